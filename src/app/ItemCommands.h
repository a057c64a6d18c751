#pragma once

#include "base/Result.h"

#include <QList>
#include <QLocale>
#include <QString>

namespace tabo {

class CurrentDocument;
class Interaction;
class Preferences;
class StoreAccess;
class UndoHistory;
class Record;

// The item popover's fields. Price and quantity are the texts as typed; they
// must be numbers (C or the person's locale notation).
struct ItemFields
{
    QString title;
    QString subtitle;
    QString unit;
    QString sku;
    QString note;
    QString price;
    QString quantity;
    bool tax1 = false;
    bool tax2 = false;
    bool tax3 = false;
    // UN/ECE Recommendation 20; empty: derived from `unit` when needed.
    QString unitCode = {};
};

// The shipping popover's fields (the document's shipping attributes).
struct ShippingFields
{
    bool enabled = false;
    QString title;
    QString subtitle;
    bool hasSubtitle = false;
    QString amount; // as typed
    bool tax1 = false;
    bool tax2 = false;
    bool tax3 = false;
    QString note;
};

// The discount popover's fields (the document's discount attributes).
struct DiscountFields
{
    bool enabled = false;
    int kind = 0;        // 0 a fixed amount, any other value a percentage
    QString amount;      // as typed
    QString percent;     // as typed, in percent (19 means 0.19)
    QString title;
    QString subtitle;
    bool hasSubtitle = false;
};

// Lines of the current document, the article catalogue and remembered
// shipping. Every change ends in calculateInvoice: and a save.
class ItemCommands
{
public:
    ItemCommands(StoreAccess &store, CurrentDocument &current, UndoHistory &undo, Preferences &prefs,
                 Interaction &ui)
        : m_store(store)
        , m_current(current)
        , m_undo(undo)
        , m_prefs(prefs)
        , m_ui(ui)
    {
    }

    // addItem: a new line from the popover; refused (the document
    // unchanged) when price or quantity is not a number, or when there is no
    // current document.
    Result<Record *> addItem(const ItemFields &fields);
    // An empty popover: quantity 1 and one tax, the taxes of the last line
    // added (as far as they are still charged), else the first charged one.
    ItemFields newItemFields() const;
    // The catalogue, by title; `search` (case aside) narrows it to entries
    // whose title, article number or unit contains it.
    QList<Record *> catalogue(const QString &search = {}) const;
    // The remembered shipping lines, by title.
    QList<Record *> rememberedShippings() const;
    // One field of a catalogue entry by key (title, subtitle, unit, sku,
    // note, baseAmount, isTax1Applied..3), as typed.
    Error editCatalogueEntry(Record *entry, const QString &key, const QVariant &value);
    // Deletes entries after asking; the lines made from them stay as they are.
    bool deleteCatalogueEntries(const QList<Record *> &entries);
    // addItemRecent: the popover's fields from a catalogue entry.
    ItemFields addItemRecent(const Record &recentItem) const;
    // deleteItem: refused for a sent document, asks first. False when
    // nothing was deleted.
    bool deleteItem(Record *item);
    // Takes back a line this same command just added (a later step of it
    // was refused): no question, the document recalculated.
    void withdrawItem(Record *item);
    // Editing a line: one attribute by key (value parsed by its type), then
    // calculateInvoice: and a save. A sent document's refusal is shown as an
    // alert and returned as Error::shownAlready().
    Error editItem(Record *item, const QString &key, const QVariant &value);

    // closeShippingPopover: stores the fields, recalculates, remembers the
    // shipping line unless one with the same title and amount exists.
    Error closeShippingPopover(const ShippingFields &fields);
    ShippingFields shippingFields() const; // the current document's, for the popover
    // selectRecentShipping: the remembered line into the current document.
    void selectRecentShipping(const Record &recentShipping);

    // The discount popover's confirmation: stores the fields and recalculates.
    Error closeDiscountPopover(const DiscountFields &fields);
    DiscountFields discountFields() const;

    // The lines of a document in the order the editor shows (and prints)
    // them, by the preference `itemSortOrder`.
    QList<Record *> sortedItems(const Record &document) const;

    // Parses a price, quantity or percentage as typed (C notation, else the
    // documents' region, else the desktop's); false when it is not a finite
    // number.
    static bool parseNumber(const QString &text, double *value, const QLocale &region = QLocale());
    bool parseInRegion(const QString &text, double *value) const;

private:
    StoreAccess &m_store;
    CurrentDocument &m_current;
    UndoHistory &m_undo;
    Preferences &m_prefs;
    Interaction &m_ui;
    bool m_hasLastTaxes = false;
    bool m_lastTaxes[3] = {false, false, false};
};

} // namespace tabo
