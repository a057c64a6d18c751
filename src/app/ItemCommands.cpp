#include "app/ItemCommands.h"

#include "app/Workspace.h"
#include "app/Interaction.h"
#include "app/UndoHistory.h"
#include "base/Clock.h"
#include "domain/Record.h"
#include "domain/UniqueId.h"
#include "prefs/Preferences.h"
#include "store/Store.h"
#include "domain/LineOrder.h"
#include "domain/TaxTables.h"

#include <QCollator>
#include <QHash>
#include <QLocale>

#include <QCoreApplication>
#include <algorithm>
#include <charconv>
#include <cmath>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(ItemCommands)
};
} // namespace

namespace tabo {

namespace {

using namespace taxes;

// Lists for people: case aside, "Item 9" before "Item 10".
void sortByTitle(QList<Record *> &entries, int title)
{
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setNumericMode(true);
    std::stable_sort(entries.begin(), entries.end(), [&](const Record *a, const Record *b) {
        return collator.compare(a->text(title), b->text(title)) < 0;
    });
}

using P = Preferences;

QString kSentText()
{
    return Tr::tr("The selected invoice is marked as already sent. If you really need to make changes, please set its "
                  "status back "
                  "to 'Created' first. Then you will also be able to resend the modified invoice.");
}

// Shortest text that reads back to the same value, never in exponent form.
// Values that went through single precision are written as the float they
// are, so a price typed as 100.1 shows as 100.1 again.
QString numberText(double v)
{
    char buf[400];
    const bool single = std::isfinite(v) && std::abs(v) < 3.0e38 && double(float(v)) == v;
    const auto r = single ? std::to_chars(buf, buf + sizeof buf, float(v), std::chars_format::fixed)
                          : std::to_chars(buf, buf + sizeof buf, v, std::chars_format::fixed);
    return r.ec == std::errc() ? QString::fromLatin1(buf, int(r.ptr - buf)) : QString();
}

QString tooLarge(const QString &what, const QString &text)
{
    return Tr::tr("The %1 “%2” is too large; it can be at most about 3.4e38.").arg(what, text);
}

// A typed number for the field called `what`, or why it is not one.
Error readField(const ItemCommands &commands, const QString &text, const QString &what, double *value)
{
    // Price and quantity are single precision: a larger number would be
    // stored as infinity.
    const bool number = commands.parseInRegion(text, value);
    if (number && fitsAttribute(AttrType::Float, *value))
        return {};
    return Error::input(text.trimmed().isEmpty() ? Tr::tr("The %1 is empty; please enter a number.").arg(what)
            : number                             ? tooLarge(what, text)
                                                 : Tr::tr("The %1 “%2” is not a number.").arg(what, text));
}

// A line's field as the person knows it.
QString fieldWords(const QString &key)
{
    static const QHash<QString, QString> words = {
        { QStringLiteral("baseAmount"), QStringLiteral("price") },
        { QStringLiteral("unitCount"), QStringLiteral("quantity") },
        { QStringLiteral("tax1Percent"), Tr::tr("rate of the first tax") },
        { QStringLiteral("tax2Percent"), Tr::tr("rate of the second tax") },
        { QStringLiteral("tax3Percent"), Tr::tr("rate of the third tax") },
        { QStringLiteral("amount"), QStringLiteral("amount") },
        { QStringLiteral("subAmount"), Tr::tr("net amount") },
    };
    return words.value(key, key);
}

Record *documentOf(const Record &item)
{
    return item.toOne(Item::invoice);
}

} // namespace

bool ItemCommands::parseInRegion(const QString &text, double *value) const
{
    return parseNumber(text, value, QLocale(m_prefs.documentRegion()));
}

bool ItemCommands::parseNumber(const QString &text, double *value, const QLocale &region)
{
    const QString t = text.trimmed();
    if (t.isEmpty())
        return false;
    // Group separators are refused in C notation: "1,5" must fall through to
    // the person's locale, where it may be a decimal comma.
    QLocale c = QLocale::c();
    c.setNumberOptions(QLocale::RejectGroupSeparator);
    bool ok = false;
    double v = c.toDouble(t, &ok);
    if (!ok)
        v = region.toDouble(t, &ok);
    if (!ok)
        v = QLocale().toDouble(t, &ok);
    if (!ok || !std::isfinite(v))
        return false;
    if (value)
        *value = v;
    return true;
}

ItemFields ItemCommands::newItemFields() const
{
    const Preferences &prefs = m_prefs;
    bool charged[3];
    for (int k = 0; k < 3; ++k)
        charged[k] = prefs.boolean(kTaxEnabled[k]);
    ItemFields f;
    f.quantity = QStringLiteral("1");
    bool *taxes[3] = {&f.tax1, &f.tax2, &f.tax3};
    // Without a line added in this run, the newest line of the document
    // stands for the last one.
    bool last[3] = {false, false, false};
    bool known = m_hasLastTaxes;
    if (known) {
        std::copy(std::begin(m_lastTaxes), std::end(m_lastTaxes), std::begin(last));
    } else if (const Record *doc = m_current.currentInvoice()) {
        const Record *newest = nullptr;
        for (const Record *item : doc->toMany(Invoice::items))
            if (!newest || !(item->date(Item::misc5) < newest->date(Item::misc5)))
                newest = item;
        if (newest) {
            known = true;
            for (int k = 0; k < 3; ++k)
                last[k] = newest->boolean(kItemApplied[k]);
        }
    }
    bool any = false;
    for (int k = 0; k < 3; ++k) {
        *taxes[k] = known && last[k] && charged[k];
        any = any || *taxes[k];
    }
    // A last line without any tax is a choice; one whose taxes are no longer
    // charged is not.
    const bool chosenNone = known && std::none_of(std::begin(last), std::end(last), [](bool b) { return b; });
    if (!any && !chosenNone) {
        for (int k = 0; k < 3; ++k) {
            if (charged[k]) {
                *taxes[k] = true;
                break;
            }
        }
    }
    return f;
}

QList<Record *> ItemCommands::catalogue(const QString &search) const
{
    Store *store = m_store.store();
    if (!store)
        return {};
    QList<Record *> entries;
    const QString needle = search.trimmed();
    for (Record *entry : store->all(EntityId::RecentItem)) {
        if (entry->isDeleted())
            continue;
        static constexpr int searched[] = {RecentItem::title, RecentItem::sku, RecentItem::unit};
        if (!needle.isEmpty() && std::none_of(std::begin(searched), std::end(searched), [&](int a) {
                return entry->text(a).contains(needle, Qt::CaseInsensitive);
            }))
            continue;
        entries << entry;
    }
    sortByTitle(entries, RecentItem::title);
    return entries;
}

QList<Record *> ItemCommands::rememberedShippings() const
{
    Store *store = m_store.store();
    if (!store)
        return {};
    QList<Record *> entries = store->all(EntityId::RecentShipping);
    entries.removeIf([](const Record *r) { return r->isDeleted(); });
    sortByTitle(entries, RecentShipping::title);
    return entries;
}

Error ItemCommands::editCatalogueEntry(Record *entry, const QString &key, const QVariant &value)
{
    Store *store = m_store.store();
    if (!store || !entry || entry->isDeleted())
        return Error::input(Tr::tr("The catalogue entry is no longer there."));
    static const QStringList editable = {QStringLiteral("title"),         QStringLiteral("subtitle"),
                                         QStringLiteral("unit"),          QStringLiteral("sku"),
                                         QStringLiteral("note"),          QStringLiteral("baseAmount"),
                                         QStringLiteral("isTax1Applied"), QStringLiteral("isTax2Applied"),
                                         QStringLiteral("isTax3Applied")};
    if (!editable.contains(key))
        return Error::input(Tr::tr("A catalogue entry has no field “%1” to change.").arg(key));
    const int attr = entry->desc().attributeIndex(key);
    if (key == QLatin1String("baseAmount")) {
        double price = 0;
        if (value.metaType() == QMetaType::fromType<QString>()) {
            if (Error e = readField(*this, value.toString(), QStringLiteral("price"), &price))
                return e;
        } else {
            bool ok = false;
            price = value.toDouble(&ok);
            if (!ok || !fitsAttribute(AttrType::Float, price))
                return Error::input(Tr::tr("The price is not a number."));
        }
        entry->setSingle(attr, float(price));
    } else if (key.startsWith(QLatin1String("isTax"))) {
        entry->setBool(attr, value.toBool());
    } else {
        entry->setText(attr, value.toString());
    }
    m_store.save();
    return {};
}

bool ItemCommands::deleteCatalogueEntries(const QList<Record *> &entries)
{
    Store *store = m_store.store();
    if (!store || entries.isEmpty())
        return false;
    const QString what = entries.size() == 1 ? QStringLiteral("“%1”").arg(entries.first()->text(RecentItem::title))
                                             : QStringLiteral("%1 entries").arg(entries.size());
    const int answer = m_ui.ask(Tr::tr("Delete from Catalogue"),
        Tr::tr("Delete %1 from the catalogue? Lines already written with %2 stay as they are.")
            .arg(what, entries.size() == 1 ? QStringLiteral("it") : QStringLiteral("them")),
        { Tr::tr("Delete"), Tr::tr("Cancel") }, 1);
    if (answer != 0)
        return false;
    for (Record *entry : entries)
        store->remove(entry);
    m_store.save();
    return true;
}

Result<Record *> ItemCommands::addItem(const ItemFields &fields)
{
    Record *doc = m_current.currentInvoice();
    Store *store = m_store.store();
    if (!doc || !store)
        return Error::input(Tr::tr("There is no document to add the line to."));
    double price = 0;
    double quantity = 0;
    if (Error e = readField(*this, fields.price, QStringLiteral("price"), &price))
        return e;
    if (Error e = readField(*this, fields.quantity, QStringLiteral("quantity"), &quantity))
        return e;

    const UndoHistory::Step step(m_undo, doc, Tr::tr("Add Line"));
    const Preferences &prefs = m_prefs;
    Record *item = store->insert(EntityId::Item);
    item->setText(Item::uniqueID, newUniqueId());
    item->setText(Item::title, fields.title);
    item->setText(Item::subtitle, fields.subtitle);
    item->setText(Item::unit, fields.unit);
    item->setText(Item::unitCode, fields.unitCode.trimmed().toUpper());
    item->setText(Item::sku, fields.sku);
    item->setText(Item::note, fields.note);
    // The popover has always read price and quantity in single precision.
    item->setSingle(Item::baseAmount, float(price));
    item->setSingle(Item::unitCount, float(quantity));
    const bool applied[3] = {fields.tax1, fields.tax2, fields.tax3};
    for (int k = 0; k < 3; ++k) {
        item->setText(kItemTitle[k], prefs.string(kTaxTitle[k]));
        item->setBool(kItemApplied[k], applied[k]);
        item->setSingle(kItemPercent[k], prefs.single(kTaxRate[k]));
    }
    std::copy(std::begin(applied), std::end(applied), std::begin(m_lastTaxes));
    m_hasLastTaxes = true;
    item->setBool(Item::isTax2Compound, prefs.boolean(P::tax2IsCompound));
    item->setBool(Item::isTax3Compound, prefs.boolean(P::tax3IsCompound));
    for (int a : {Item::subAmount, Item::amount, Item::tax1Amount, Item::tax2Amount, Item::tax3Amount})
        item->setNum(a, 0.0);
    item->setText(Item::misc1, QStringLiteral(""));
    item->setInt(Item::misc2, 0);
    item->setSingle(Item::misc3, 0.0f);
    item->setBool(Item::misc4, false);
    item->setDate(Item::misc5, now());
    item->setToOne(Item::invoice, doc);
    m_current.documentChanged(doc);

    // A catalogue grows with every new line; the price is compared first
    // because it is cheap and rarely equal.
    const QString sku = item->text(Item::sku);
    const QString title = item->text(Item::title);
    const double baseAmount = item->num(Item::baseAmount);
    for (const Record *entry : store->all(EntityId::RecentItem)) {
        if (entry->num(RecentItem::baseAmount) == baseAmount && entry->text(RecentItem::title) == title)
            return item;
        if (!sku.isEmpty() && entry->text(RecentItem::sku) == sku)
            return item;
    }
    Record *entry = store->insert(EntityId::RecentItem);
    entry->setText(RecentItem::uniqueID, newUniqueId());
    entry->setText(RecentItem::title, item->text(Item::title));
    entry->setText(RecentItem::subtitle, item->text(Item::subtitle));
    entry->setText(RecentItem::unit, item->text(Item::unit));
    entry->setText(RecentItem::unitCode, item->text(Item::unitCode));
    entry->setText(RecentItem::sku, sku);
    entry->setText(RecentItem::note, item->text(Item::note));
    entry->setNum(RecentItem::baseAmount, item->num(Item::baseAmount));
    entry->setNum(RecentItem::subAmount, item->num(Item::subAmount));
    // The catalogue takes the taxes switched on in the preferences, not the
    // line's boxes: an entry is meant for any later document.
    for (int k = 0; k < 3; ++k)
        entry->setBool(kRecentApplied[k], prefs.boolean(kTaxEnabled[k]));
    m_store.save();
    return item;
}

ItemFields ItemCommands::addItemRecent(const Record &recentItem) const
{
    const Preferences &prefs = m_prefs;
    ItemFields f;
    f.title = recentItem.text(RecentItem::title);
    f.subtitle = recentItem.text(RecentItem::subtitle);
    f.unit = recentItem.text(RecentItem::unit);
    f.unitCode = recentItem.text(RecentItem::unitCode);
    f.sku = recentItem.text(RecentItem::sku);
    f.note = recentItem.text(RecentItem::note);
    f.price = numberText(recentItem.num(RecentItem::baseAmount));
    // The entry holds no quantity; one unit is what a person adds most often.
    f.quantity = QStringLiteral("1");
    // A box is ticked only when the entry applies the tax and the tax is still
    // switched on: a tax turned off since must not creep back into new lines.
    bool *boxes[3] = {&f.tax1, &f.tax2, &f.tax3};
    for (int k = 0; k < 3; ++k)
        *boxes[k] = recentItem.boolean(kRecentApplied[k]) && prefs.boolean(kTaxEnabled[k]);
    return f;
}

bool ItemCommands::deleteItem(Record *item)
{
    Store *store = m_store.store();
    if (!item || !store)
        return false;
    Record *doc = documentOf(*item);
    if (!doc)
        doc = m_current.currentInvoice();
    const UndoHistory::Step step(m_undo, doc, Tr::tr("Delete Line"));
    Interaction &ui = m_ui;
    if (doc && doc->integer(Invoice::status) != 0) {
        ui.alert(Tr::tr("Error!"), kSentText(), { Tr::tr("OK") });
        return false;
    }
    const int answer = ui.alert(Tr::tr("Delete Item"),
        Tr::tr("Deleting items is permanent and cannot be undone. Do you really "
               "want to delete the selected item?"),
        { Tr::tr("Delete"), Tr::tr("Cancel") });
    if (answer != 0)
        return false;
    store->remove(item);
    if (doc)
        m_current.documentChanged(doc);
    else
        m_store.save();
    return true;
}

void ItemCommands::withdrawItem(Record *item)
{
    Store *store = m_store.store();
    if (!item || !store)
        return;
    Record *doc = documentOf(*item);
    store->remove(item);
    if (doc)
        m_current.documentChanged(doc);
}

Error ItemCommands::editItem(Record *item, const QString &key, const QVariant &value)
{
    if (!item)
        return Error::input(Tr::tr("There is no line to change."));
    const int attr = item->desc().attributeIndex(key);
    if (attr < 0)
        return Error::input(Tr::tr("A line has no field “%1”.").arg(key));
    Record *doc = documentOf(*item);
    // A sent invoice must not change silently, whichever way a line is touched.
    if (doc && doc->integer(Invoice::status) != 0) {
        m_ui.alert(Tr::tr("Error!"), kSentText(), { Tr::tr("OK") });
        return Error::shownAlready();
    }
    const AttrType type = item->desc().attributes[attr].type;
    const UndoHistory::Step step(m_undo, doc, Tr::tr("Edit Line"));
    const bool numeric = type == AttrType::Int || type == AttrType::Double || type == AttrType::Float;
    QVariant v = value;
    if (numeric && value.isValid() && !value.isNull()) {
        double d = 0;
        bool ok = false;
        if (value.metaType() == QMetaType::fromType<QString>())
            ok = parseInRegion(value.toString(), &d);
        else if (value.metaType() != QMetaType::fromType<Date>())
            d = value.toDouble(&ok);
        if (!ok || !fitsAttribute(type, d))
            return Error::input(ok ? tooLarge(fieldWords(key), value.toString())
                                   : Tr::tr("The %1 “%2” is not a number.").arg(fieldWords(key), value.toString()));
        v = d;
    }
    if (!item->setValue(attr, v))
        return Error::input(Tr::tr("The value “%1” does not fit the field “%2”.").arg(value.toString(), key));
    if (doc)
        m_current.documentChanged(doc);
    else
        m_store.save();
    return {};
}

Error ItemCommands::closeShippingPopover(const ShippingFields &fields)
{
    Record *doc = m_current.currentInvoice();
    Store *store = m_store.store();
    if (!doc || !store)
        return Error::input(Tr::tr("There is no document to add the shipping to."));
    const UndoHistory::Step step(m_undo, doc, Tr::tr("Shipping"));
    double amount = 0;
    // A blank amount only matters when shipping is switched on.
    if (fields.enabled || !fields.amount.trimmed().isEmpty())
        if (Error e = readField(*this, fields.amount, Tr::tr("shipping amount"), &amount))
            return e;

    doc->setBool(Invoice::isShippingEnabled, fields.enabled);
    doc->setText(Invoice::shippingTitle, fields.title);
    doc->setText(Invoice::shippingSubtitle, fields.subtitle);
    doc->setBool(Invoice::hasShippingSubtitle, fields.hasSubtitle);
    doc->setNum(Invoice::shippingAmount, amount);
    const bool taxes[3] = {fields.tax1, fields.tax2, fields.tax3};
    for (int k = 0; k < 3; ++k)
        doc->setBool(kShippingTax[k], taxes[k]);
    m_current.documentChanged(doc);

    for (const Record *entry : store->all(EntityId::RecentShipping))
        if (entry->text(RecentShipping::title) == fields.title && entry->num(RecentShipping::amount) == amount)
            return {};
    Record *entry = store->insert(EntityId::RecentShipping);
    entry->setText(RecentShipping::uniqueID, newUniqueId());
    entry->setText(RecentShipping::title, fields.title);
    entry->setText(RecentShipping::subtitle, fields.subtitle);
    entry->setText(RecentShipping::note, fields.note);
    entry->setBool(RecentShipping::hasSubtitle, fields.hasSubtitle);
    for (int k = 0; k < 3; ++k)
        entry->setBool(kRecentShippingTax[k], taxes[k]);
    entry->setNum(RecentShipping::amount, amount);
    m_store.save();
    return {};
}

ShippingFields ItemCommands::shippingFields() const
{
    ShippingFields f;
    const Record *doc = m_current.currentInvoice();
    if (!doc)
        return f;
    f.enabled = doc->boolean(Invoice::isShippingEnabled);
    f.title = doc->text(Invoice::shippingTitle);
    f.subtitle = doc->text(Invoice::shippingSubtitle);
    f.hasSubtitle = doc->boolean(Invoice::hasShippingSubtitle);
    f.amount = numberText(doc->num(Invoice::shippingAmount));
    bool *taxes[3] = {&f.tax1, &f.tax2, &f.tax3};
    for (int k = 0; k < 3; ++k)
        *taxes[k] = doc->boolean(kShippingTax[k]);
    return f;
}

void ItemCommands::selectRecentShipping(const Record &recentShipping)
{
    Record *doc = m_current.currentInvoice();
    if (!doc)
        return;
    const UndoHistory::Step step(m_undo, doc, Tr::tr("Shipping"));
    doc->setText(Invoice::shippingTitle, recentShipping.text(RecentShipping::title));
    doc->setText(Invoice::shippingSubtitle, recentShipping.text(RecentShipping::subtitle));
    doc->setBool(Invoice::hasShippingSubtitle, recentShipping.boolean(RecentShipping::hasSubtitle));
    for (int k = 0; k < 3; ++k)
        doc->setBool(kShippingTax[k], recentShipping.boolean(kRecentShippingTax[k]));
    doc->setNum(Invoice::shippingAmount, recentShipping.num(RecentShipping::amount));
    doc->setBool(Invoice::isShippingEnabled, true);
    m_current.documentChanged(doc);
}

Error ItemCommands::closeDiscountPopover(const DiscountFields &fields)
{
    Record *doc = m_current.currentInvoice();
    if (!doc)
        return Error::input(Tr::tr("There is no document to add the discount to."));
    const UndoHistory::Step step(m_undo, doc, Tr::tr("Discount"));
    // Only the field the kind selects must be filled in; a blank other one is 0.
    const bool fixed = fields.kind == 0;
    const bool needed = fields.enabled;
    double amount = 0;
    double percent = 0;
    if ((needed && fixed) || !fields.amount.trimmed().isEmpty())
        if (Error e = readField(*this, fields.amount, Tr::tr("discount amount"), &amount))
            return e;
    if ((needed && !fixed) || !fields.percent.trimmed().isEmpty())
        if (Error e = readField(*this, fields.percent, Tr::tr("discount percentage"), &percent))
            return e;

    doc->setBool(Invoice::isDiscountEnabled, fields.enabled);
    doc->setInt(Invoice::discountKind, fields.kind);
    doc->setNum(Invoice::discountAmount, amount);
    doc->setNum(Invoice::discountPercent, percent / 100.0);
    doc->setText(Invoice::discountTitle, fields.title);
    doc->setText(Invoice::discountSubtitle, fields.subtitle);
    doc->setBool(Invoice::hasDiscountSubtitle, fields.hasSubtitle);
    m_current.documentChanged(doc);
    return {};
}

DiscountFields ItemCommands::discountFields() const
{
    DiscountFields f;
    const Record *doc = m_current.currentInvoice();
    if (!doc)
        return f;
    f.enabled = doc->boolean(Invoice::isDiscountEnabled);
    f.kind = doc->integer(Invoice::discountKind);
    f.amount = numberText(doc->num(Invoice::discountAmount));
    // Through single precision so that 0.07 shows as 7, not 7.000000000000001.
    f.percent = numberText(double(float(doc->num(Invoice::discountPercent) * 100.0)));
    f.title = doc->text(Invoice::discountTitle);
    f.subtitle = doc->text(Invoice::discountSubtitle);
    f.hasSubtitle = doc->boolean(Invoice::hasDiscountSubtitle);
    return f;
}

QList<Record *> ItemCommands::sortedItems(const Record &document) const
{
    return orderedLines(document, m_prefs);
}

} // namespace tabo
