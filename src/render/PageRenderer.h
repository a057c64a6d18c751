#pragma once

#include "render/PageSetup.h"

#include <QList>
#include <QString>

namespace tabo {

class Formatters;
class Preferences;
class Record;

// The four texts of the reminder and delivery-slip sheets.
struct LetterTexts
{
    QString title;
    QString conditions;
    QString misc;
    QString footer;
};

// The letter mode of one rendering. Reminder wins when both are set; the
// confirmation flag does not change the page.
struct LetterMode
{
    bool isReminderAction = false;
    bool isSlipAction = false;
    bool isConfirmationAction = false;
    // For the screen only (previews): hints meant for the person, never for
    // the client, may show.
    bool onScreen = false;
    LetterTexts reminder;
    LetterTexts slip;
};

// One rendering of a document, decided in full before it starts; nothing of
// it stays set anywhere between two renderings. The e-invoice of the same
// document takes the same `lines`, so the PDF and its XML list them alike.
struct RenderRequest
{
    const Record *document = nullptr;
    const Record *design = nullptr;
    LetterMode letter;
    PageSetup page;
    QList<Record *> lines; // in the order they print
};

// Fills a design's page and row templates with a document. Keeps no state
// between calls; the same code renders real documents and the sample
// document of the design preview.
class Placeholders;

class PageRenderer
{
public:
    PageRenderer(const Preferences &prefs, const Formatters &formatters);

    // `invoiceHTMLString`: the whole page. `items` are the document's lines
    // in the editor's order. A design without page HTML or stylesheet (or no
    // design) gives the failure text.
    QString invoiceHTMLString(const Record *design, const Record &invoice, const QList<Record *> &items,
                              const LetterMode &mode = {}) const;
    // `itemsList`: the rows of the item table, joined without separator.
    QString itemsList(const Record *design, const Record &invoice, const QList<Record *> &items) const;

    // The value of "%LOGO%": writes the logo of `prefsLogo` as PNG to
    // logoPath() and returns its image tag; without one, the hint on screen
    // and nothing on paper.
    QString logoValue(bool onScreen = true) const;
    // The value of "%TAXNOTE%": the sentences tax law wants on the invoice
    // (reverse charge, exemptions) and the VAT IDs they rest on, in the
    // documents' language; empty when no line needs them.
    QString taxNote(const Record &invoice, const QList<Record *> &items, bool withBuyerVatId) const;
    // The lines of a tax that no line and no shipping uses print no row.
    static bool taxUsed(const Record &invoice, const QList<Record *> &items, int tax);
    // $XDG_DATA_HOME/Tabo/Logo.png
    static QString logoPath();
    static QString failureText();
    // Whether the design has the page, row and style texts a page needs;
    // without them the page is the failure text.
    static bool canRender(const Record *design);

    // How often itemsList ran (the page calls it only for "%ITEMSLIST%").
    int itemsListCalls() const { return m_itemsListCalls; }

private:
    // One page's placeholders and their values, in sections.
    struct PageFill;
    // What every row of one page shares, read once.
    struct RowSettings;
    QString row(const Placeholders &rowTemplate, const Record &item, int number, const RowSettings &settings) const;

    const Preferences &m_prefs;
    const Formatters &m_formatters;
    mutable int m_itemsListCalls = 0;
};

} // namespace tabo
