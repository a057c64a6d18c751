#include "render/PageRenderer.h"

#include "domain/Calculator.h"
#include "domain/Numbering.h"
#include "domain/Record.h"
#include "prefs/Locations.h"
#include "prefs/Preferences.h"
#include "render/Formatters.h"
#include "render/PaymentQr.h"
#include "render/Placeholders.h"
#include "domain/TaxTables.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QImage>

#include <functional>

#include <algorithm>
#include <array>
#include <cmath>

namespace tabo {

namespace {

using namespace taxes;

using P = Preferences;

// Old designs rely on this name and on its value being wrong (see the rows).
constexpr QStringView kGrossPrice = u"%IKNOWITSWRONGBUTILIVEINTHEPASTITEMSINGLEGROSSAMOUNT%";

struct TaxFields
{
    QStringView title, amount, rate;
    P::Key enabled, titleKey;
    Invoice::Attr amountAttr, percentAttr;
};

constexpr std::array<TaxFields, 3> kPageTaxes { {
    { u"%TAX1TITLE%", u"%TAX1%", u"%TAX1RATE%", P::tax1Enabled, P::tax1Title, Invoice::tax1Amount,
        Invoice::tax1Percent },
    { u"%TAX2TITLE%", u"%TAX2%", u"%TAX2RATE%", P::tax2Enabled, P::tax2Title, Invoice::tax2Amount,
        Invoice::tax2Percent },
    { u"%TAX3TITLE%", u"%TAX3%", u"%TAX3RATE%", P::tax3Enabled, P::tax3Title, Invoice::tax3Amount,
        Invoice::tax3Percent },
} };

struct ItemTaxFields
{
    QStringView title, percent, amount;
    Item::Attr applied, titleAttr, percentAttr, amountAttr;
};

constexpr std::array<ItemTaxFields, 3> kRowTaxes { {
    { u"%ITEMSTAX1TITLE%", u"%ITEMSTAX1PERCENT%", u"%ITEMSTAX1AMOUNT%", Item::isTax1Applied, Item::tax1Title,
        Item::tax1Percent, Item::tax1Amount },
    { u"%ITEMSTAX2TITLE%", u"%ITEMSTAX2PERCENT%", u"%ITEMSTAX2AMOUNT%", Item::isTax2Applied, Item::tax2Title,
        Item::tax2Percent, Item::tax2Amount },
    { u"%ITEMSTAX3TITLE%", u"%ITEMSTAX3PERCENT%", u"%ITEMSTAX3AMOUNT%", Item::isTax3Applied, Item::tax3Title,
        Item::tax3Percent, Item::tax3Amount },
} };

// Labels that page and rows share, in the rows' order after the taxes.
struct Label
{
    QStringView placeholder;
    P::Key key;
};

// "%DISCOUNTKINDCHAR%" follows the first of them.
constexpr std::array<Label, 12> kRowLabels { {
    { u"%LOCDISCOUNT%", P::locDiscount },
    { u"%LOCSUBTOTAL%", P::locSubtotal },
    { u"%LOCSHIPPING%", P::locShipping },
    { u"%LOCTOTAL%", P::locTotal },
    { u"%LOCSHORTNUMBER%", P::locNo },
    { u"%LOCUNIT%", P::locUnit },
    { u"%LOCUNITPRICE%", P::locUnitPrice },
    { u"%LOCNET%", P::locNet },
    { u"%LOCSKUNUMBER%", P::locSKUNumber },
    { u"%LOCDESCRIPTION%", P::locDescription },
    { u"%LOCQUANTITY%", P::locQuantity },
    { u"%LOCTAXES%", P::locTaxes },
} };

// Then the column headings, which the rows share (kRowLabels from
// kFirstHeading on).
constexpr std::array<Label, 9> kLateLabels { {
    { u"%LOCINVOICE%", P::locInvoice },
    { u"%LOCDUE%", P::locQuote }, // only what later values brought in is left
    { u"%LOCEXPIRATION%", P::locExpiration },
    { u"%LOCQUOTENUMBER%", P::locQuoteNumber },
    { u"%LOCREMINDER%", P::locReminder },
    { u"%LOCOVERDUE%", P::locOverdue },
    { u"%LOCINVOICENUMBER%", P::locInvoiceNumber },
    { u"%LOCTAXES%", P::locTaxes },
    { u"%WINDOW%", P::prefsLetterbox },
} };
constexpr std::size_t kFirstHeading = 4;     // "%LOCSHORTNUMBER%"
constexpr std::size_t kHeadingsEnd = 11;     // up to "%LOCQUANTITY%"
static_assert(kRowLabels[kFirstHeading].key == P::locNo && kRowLabels[kHeadingsEnd - 1].key == P::locQuantity);


// What the law of each document language calls a reverse charge, and how it
// names the one who owes the tax; by `languageDefaults`.
struct LegalWords
{
    const char *reverseCharge;
    const char *recipient;
};
constexpr LegalWords kLegalWords[4] = {
    {"Reverse charge: the recipient of the supply is liable for the VAT.", "Recipient"},
    {"Steuerschuldnerschaft des Leistungsempfängers", "Leistungsempfänger"},
    {"Autoliquidation", "Preneur"},
    {"Inversión del sujeto pasivo", "Destinatario"},
};

QString withSubtitle(const QString &title, const QString &subtitle)
{
    return title % QLatin1String("<br /><small>") % subtitle % QLatin1String("</small>");
}

} // namespace

PageRenderer::PageRenderer(const Preferences &prefs, const Formatters &formatters)
    : m_prefs(prefs)
    , m_formatters(formatters)
{
}

// The page's placeholders in tables of placeholder and value, applied in
// order: a value may bring in placeholders of a later table (old designs put
// "%LOCDUE%" into a label), and a few values depend on what the page holds
// by then.
struct PageRenderer::PageFill
{
    using Value = std::function<QString()>;
    struct Entry
    {
        QStringView placeholder;
        Value value;
    };

    const PageRenderer &r;
    const Record &design;
    const Record &invoice;
    const QList<Record *> &items;
    const LetterMode &mode;
    const bool reminder = mode.isReminderAction;
    const bool slip = !reminder && mode.isSlipAction;
    const LetterTexts *letter = reminder ? &mode.reminder : slip ? &mode.slip : nullptr;
    Placeholders page { design.text(Design::invoice) };
    bool noteInConditions = false;
    bool designShowsBuyerVatId = false;

    void apply(const std::vector<Entry> &table)
    {
        for (const Entry &entry : table)
            page.replace(entry.placeholder, entry.value);
    }

    Value pref(P::Key key) const
    {
        return [this, key] { return r.m_prefs.string(key); };
    }
    // What a person typed as plain text prints as typed: "A<B" is no tag.
    Value typed(int attr) const
    {
        return [this, attr] { return Formatters::htmlTextFromPlainText(invoice.text(attr)); };
    }
    Value money(int attr) const
    {
        return [this, attr] {
            return invoice.isNull(attr) ? QString() : r.m_formatters.stringFromNumber(invoice.num(attr));
        };
    }
    Value date(int attr) const
    {
        return [this, attr] { return Numbering::getPatternDateStringFromDate(r.m_prefs, invoice.date(attr)); };
    }
    Value letterText(QString LetterTexts::*field, int attr) const
    {
        return [this, field, attr] {
            return letter ? Formatters::htmlLineBreakStringFromString(letter->*field) : invoice.text(attr);
        };
    }
    Value withOptionalSubtitle(int title, int hasSubtitle, int subtitle) const
    {
        return [this, title, hasSubtitle, subtitle] {
            const QString text = typed(title)();
            return invoice.boolean(hasSubtitle) ? withSubtitle(text, typed(subtitle)()) : text;
        };
    }

    std::vector<Entry> letterhead() const
    {
        return {
            {u"%CSS%", [this] { return design.text(Design::css); }},
            {u"%COMPANY%", [this] { return Formatters::htmlTextFromPlainText(r.m_prefs.string(P::prefsName)); }},
            {u"%SLOGAN%", pref(P::prefsSlogan)},
            {u"%COMPANYCONTACT%",
             [this] { return Formatters::htmlLineBreakStringFromString(r.m_prefs.string(P::prefsContact)); }},
            {u"%LETTERTITLE%",
             [this] { return Formatters::htmlTextFromPlainText(letter ? letter->title : invoice.text(Invoice::title)); }},
            {u"%CLIENTADDRESS%", typed(Invoice::address)},
        };
    }
    // A design of its own without a place for the tax note gets it under the
    // conditions: the law's sentences must reach the paper.
    std::vector<Entry> conditions() const
    {
        return {
            {u"%TAXNOTE%", [this] { return r.taxNote(invoice, items, !designShowsBuyerVatId); }},
            {u"%CONDITIONS%",
             [this] {
                 const QString conditions = letterText(&LetterTexts::conditions, Invoice::conditions)();
                 if (!noteInConditions)
                     return conditions;
                 const QString note = r.taxNote(invoice, items, !designShowsBuyerVatId);
                 return note.isEmpty()         ? conditions
                        : conditions.isEmpty() ? note
                                               : conditions + QLatin1String("<br />") + note;
             }},
            {u"%MISCELLANEOUS%", letterText(&LetterTexts::misc, Invoice::misc1)},
            {u"%FOOTER%", letterText(&LetterTexts::footer, Invoice::footer)},
        };
    }
    std::vector<Entry> documentFields() const
    {
        const P::Key dueLabel = invoice.integer(Invoice::kind) == 0 ? P::locExpiration
                                : reminder                          ? P::locOverdue
                                : slip                              ? P::locDispatched
                                                                    : P::locDue;
        return {
            {u"%DISPATCHED%", typed(Invoice::dispatchNumber)},
            {u"%DATE%", date(Invoice::date)},
            {u"%DUEDATE%", date(slip ? Invoice::dispatched : Invoice::due)},
            {u"%NUMBER%", typed(Invoice::number)},
            {u"%CLIENTNUMBER%", typed(Invoice::clientNumber)},
            // A name put together from empty parts is only blanks: it greets no one.
            {u"%CLIENTNAME%",
             [this] { return Formatters::htmlTextFromPlainText(invoice.text(Invoice::customerName).trimmed()); }},
            {u"%CLIENTVATID%", typed(Invoice::customerVATID)},
            {u"%LOCDATE%", pref(P::locDate)},
            {u"%LOCDUE%", pref(dueLabel)},
            {u"%LOCNUMBER%", pref(P::locNumber)},
            {u"%LOCCLIENTNUMBER%", pref(P::locClientNumber)},
            {u"%LOCDISPATCHED%", pref(P::locDispatched)},
            {u"%CURRENCY%", typed(Invoice::currency)},
            {u"%SUBJECT%", typed(Invoice::subject)},
            {u"%SUBTOTAL%", money(Invoice::subAmount)},
            {u"%TOTAL%", money(Invoice::amount)},
            {u"%LOCSUBTOTAL%", pref(P::locSubtotal)},
            {u"%PAIDAMOUNT%", money(Invoice::paidAmount)},
        };
    }
    std::vector<Entry> discount() const
    {
        const Value none = [] { return QString(); };
        if (!invoice.boolean(Invoice::isDiscountEnabled))
            return {{u"%LOCDISCOUNT%", none}, {u"%DISCOUNTKINDCHAR%", none}, {u"%DISCOUNT%", none},
                    {u"%DISCOUNTPERCENT%", none}, {u"%DISCOUNTAMOUNT%", none}};
        const bool isAmount = invoice.integer(Invoice::discountKind) == 0;
        const Value percent = [this] {
            if (invoice.isNull(Invoice::discountPercent))
                return QString();
            return r.m_formatters.decimalStringFromNumber(invoice.single(Invoice::discountPercent) * 100.0f);
        };
        return {
            {u"%LOCDISCOUNT%",
             withOptionalSubtitle(Invoice::discountTitle, Invoice::hasDiscountSubtitle, Invoice::discountSubtitle)},
            {u"%DISCOUNTKINDCHAR%", [isAmount] { return isAmount ? QStringLiteral("-") : QStringLiteral("%"); }},
            {u"%DISCOUNT%", isAmount ? money(Invoice::discountAmount) : percent},
            {u"%DISCOUNTPERCENT%", isAmount ? none : percent},
            // What was taken off, as the calculation took it.
            {u"%DISCOUNTAMOUNT%",
             [this] {
                 return r.m_formatters.stringFromNumber(
                     Calculator::discountShown(invoice, TaxSettings::from(r.m_prefs)));
             }},
        };
    }
    std::vector<Entry> shippingAndTaxes() const
    {
        const bool shipping = invoice.boolean(Invoice::isShippingEnabled);
        const Value none = [] { return QString(); };
        std::vector<Entry> table {
            {u"%SHIPPING%", shipping ? money(Invoice::shippingAmount) : none},
            {u"%LOCSHIPPING%", shipping ? withOptionalSubtitle(Invoice::shippingTitle, Invoice::hasShippingSubtitle,
                                                               Invoice::shippingSubtitle)
                                        : none},
            {u"%LOCTOTAL%", pref(P::locTotal)},
        };
        for (std::size_t k = 0; k < kPageTaxes.size(); ++k) {
            const TaxFields &tax = kPageTaxes[k];
            const bool enabled = r.m_prefs.boolean(tax.enabled) && taxUsed(invoice, items, int(k));
            if (!enabled) {
                table.insert(table.end(), {{tax.title, none}, {tax.amount, none}, {tax.rate, none}});
                continue;
            }
            table.push_back({tax.title, [this, &tax] { return Formatters::htmlTextFromPlainText(r.m_prefs.string(tax.titleKey)); }});
            table.push_back({tax.amount, money(tax.amountAttr)});
            table.push_back({tax.rate, [this, &tax] {
                                 const double percent = invoice.num(tax.percentAttr) * 100.0;
                                 if (invoice.isNull(tax.percentAttr) || !std::isfinite(percent))
                                     return QString();
                                 return QString::asprintf("%.02f", percent);
                             }});
        }
        return table;
    }
    std::vector<Entry> itemsAndLabels() const
    {
        std::vector<Entry> table {{u"%ITEMSLIST%", [this] { return r.itemsList(&design, invoice, items); }}};
        for (const Label &label : kLateLabels)
            table.push_back({label.placeholder, pref(label.key)});
        for (std::size_t i = kFirstHeading; i < kHeadingsEnd; ++i)
            table.push_back({kRowLabels[i].placeholder, pref(kRowLabels[i].key)});
        // The line-amount column is headed by what it shows: net amounts when
        // they are printed, else the line totals.
        table.push_back({u"%LOCLINEAMOUNT%", pref(r.m_prefs.boolean(P::showItemSubAmount) ? P::locNet : P::locAmount)});
        table.push_back({u"%LOCAMOUNT%", pref(P::locAmount)});
        table.push_back({u"%LOCVATID%", pref(P::locVATID)});
        table.push_back({u"%LOGO%", [this] { return r.logoValue(mode.onScreen); }});
        // Quotes are not paid; reminders and invoices are.
        table.push_back({u"%PAYMENTQR%", [this] {
                             return invoice.integer(Invoice::kind) == 1 && !slip ? PaymentQr::svg(invoice, r.m_prefs)
                                                                                  : QString();
                         }});
        return table;
    }
};

QString PageRenderer::invoiceHTMLString(
    const Record *design, const Record &invoice, const QList<Record *> &items, const LetterMode &mode) const
{
    if (!design || design->isNull(Design::invoice) || design->isNull(Design::css))
        return failureText();
    PageFill fill {*this, *design, invoice, items, mode};
    fill.apply(fill.letterhead());
    fill.noteInConditions = !fill.page.contains(u"%TAXNOTE%");
    fill.designShowsBuyerVatId = fill.page.contains(u"%CLIENTVATID%");
    fill.apply(fill.conditions());
    fill.apply(fill.documentFields());
    fill.apply(fill.discount());
    fill.apply(fill.shippingAndTaxes());
    fill.apply(fill.itemsAndLabels());
    return fill.page.text();
}

struct PageRenderer::RowSettings
{
    bool useSKU = false;
    bool showSubAmount = false;
    bool showTaxAmounts = false;
    bool toTheCent = false;
    std::array<QString, kRowLabels.size()> labels;
    QString currency;
};

QString PageRenderer::itemsList(const Record *design, const Record &invoice, const QList<Record *> &items) const
{
    ++m_itemsListCalls;
    if (!design || design->isNull(Design::item))
        return failureText();
    const Placeholders rowTemplate(design->text(Design::item));
    RowSettings settings;
    settings.useSKU = m_prefs.boolean(P::tempUseSKU);
    settings.showSubAmount = m_prefs.boolean(P::showItemSubAmount);
    settings.showTaxAmounts = m_prefs.boolean(P::showSingleTaxAmounts);
    settings.toTheCent = invoice.boolean(Invoice::centExactTotals);
    for (std::size_t i = 0; i < kRowLabels.size(); ++i)
        settings.labels[i] = m_prefs.string(kRowLabels[i].key);
    settings.currency = Formatters::htmlTextFromPlainText(invoice.text(Invoice::currency));
    QString list;
    // Rows grow by their values; one reservation keeps appending linear.
    list.reserve(items.size() * (rowTemplate.text().size() + 256));
    int number = 1;
    for (const Record *item : items) {
        if (!item)
            continue;
        list += row(rowTemplate, *item, number, settings);
        ++number;
    }
    return list;
}


QString PageRenderer::row(const Placeholders &rowTemplate, const Record &item, int number,
                          const RowSettings &settings) const
{
    const auto money = [&](int attr) {
        return [&, attr] { return item.isNull(attr) ? QString() : m_formatters.stringFromNumber(item.num(attr)); };
    };
    const auto typed = [&](int attr) { return [&, attr] { return Formatters::htmlTextFromPlainText(item.text(attr)); }; };
    Placeholders row = rowTemplate;
    row.replace(u"%ITEMNUMBER%", [&] { return m_formatters.decimalStringFromNumber(number); });
    row.replace(u"%ITEMSQUANTITY%", [&] {
        return item.isNull(Item::unitCount) ? QString() : m_formatters.decimalStringFromNumber(item.num(Item::unitCount));
    });
    row.replace(u"%ITEMSUNIT%", typed(Item::unit));
    // Calculated to the cent, the price counts as typed, to four decimals.
    row.replace(u"%ITEMSBASEAMOUNT%", [&] {
        if (item.isNull(Item::baseAmount))
            return QString();
        return m_formatters.stringFromNumber(item.num(Item::baseAmount), settings.toTheCent ? 4 : 2);
    });
    row.replace(u"%ITEMSSKU%", [&] { return settings.useSKU ? typed(Item::sku)() : QString(); });
    row.replace(u"%ITEMSSUBAMOUNT%", [&] { return settings.showSubAmount ? money(Item::subAmount)() : QString(); });
    row.replace(u"%ITEMSTITLE%", typed(Item::title));
    row.replace(u"%ITEMSSUBTITLE%", typed(Item::subtitle));
    row.replace(u"%ITEMSAMOUNT%", money(Item::amount));
    for (const ItemTaxFields &tax : kRowTaxes) {
        if (!item.boolean(tax.applied)) {
            row.replace(tax.title, QString());
            row.replace(tax.percent, QString());
            row.replace(tax.amount, QString());
            continue;
        }
        // Single precision and only the first applied tax: printed
        // prices of old designs must not change.
        row.replace(kGrossPrice, [&] {
            if (item.isNull(Item::baseAmount))
                return QString();
            const float base = item.single(Item::baseAmount);
            return m_formatters.stringFromNumber(base + base * item.single(tax.percentAttr));
        });
        row.replace(tax.title, typed(tax.titleAttr));
        row.replace(tax.percent, [&] {
            if (item.isNull(tax.percentAttr))
                return QString();
            return m_formatters.decimalStringFromNumber(item.single(tax.percentAttr) * 100.0f);
        });
        row.replace(tax.amount, [&] { return settings.showTaxAmounts ? money(tax.amountAttr)() : QString(); });
    }
    row.replace(kRowLabels[0].placeholder, settings.labels[0]);
    // A row knows no discount kind.
    row.replace(u"%DISCOUNTKINDCHAR%", QStringLiteral("%"));
    for (std::size_t i = 1; i < kRowLabels.size(); ++i)
        row.replace(kRowLabels[i].placeholder, settings.labels[i]);
    row.replace(u"%CURRENCY%", settings.currency);
    return row.text();
}

bool PageRenderer::taxUsed(const Record &invoice, const QList<Record *> &items, int tax)
{
    if (invoice.boolean(Invoice::isShippingEnabled) && invoice.boolean(kShippingTax[tax]))
        return true;
    return std::any_of(items.begin(), items.end(),
                       [tax](const Record *item) { return item && item->boolean(kItemApplied[tax]); });
}

QString PageRenderer::taxNote(const Record &invoice, const QList<Record *> &items, bool withBuyerVatId) const
{
    if (invoice.integer(Invoice::kind) != 1)
        return {};
    const qint64 language = m_prefs.integer(P::languageDefaults);
    const LegalWords &words = kLegalWords[language >= 0 && language < 4 ? language : 0];
    QStringList lines;
    bool buyerIdNeeded = false;
    for (int k = 0; k < 3; ++k) {
        if (!taxUsed(invoice, items, k))
            continue;
        const QString category = m_prefs.string(kTaxCategory[k]).trimmed().toUpper();
        const QString reason = m_prefs.string(kTaxReason[k]).trimmed();
        QString line;
        if (category == QLatin1String("AE"))
            line = QString::fromUtf8(words.reverseCharge);
        else if (category == QLatin1String("E") || category == QLatin1String("Z") || category == QLatin1String("K")
                 || category == QLatin1String("G") || category == QLatin1String("O"))
            line = reason;
        if (!line.isEmpty() && !lines.contains(line))
            lines << line;
        if (category == QLatin1String("AE") || category == QLatin1String("K"))
            buyerIdNeeded = true;
    }
    const QString label = m_prefs.string(P::locVATID).trimmed();
    const QString sellerId = m_prefs.string(P::prefsVATID).trimmed();
    // The seller's VAT ID, unless the page shows it already in the contact
    // or footer texts.
    if (!sellerId.isEmpty() && !m_prefs.string(P::prefsContact).contains(sellerId)
        && !invoice.text(Invoice::footer).contains(sellerId))
        lines << QStringLiteral("%1: %2").arg(label.isEmpty() ? QStringLiteral("VAT ID") : label, sellerId);
    const QString buyerId = invoice.text(Invoice::customerVATID).trimmed();
    if (buyerIdNeeded && withBuyerVatId && !buyerId.isEmpty())
        lines << QStringLiteral("%1 %2: %3")
                     .arg(label.isEmpty() ? QStringLiteral("VAT ID") : label, QString::fromUtf8(words.recipient), buyerId);
    QStringList escaped;
    for (const QString &line : std::as_const(lines))
        escaped << Formatters::htmlTextFromPlainText(line);
    return escaped.join(QLatin1String("<br />"));
}

QString PageRenderer::logoValue(bool onScreen) const
{
    const QByteArray data = m_prefs.data(P::prefsLogo);
    if (data.isEmpty() && !onScreen)
        return QString();
    if (data.isEmpty())
        return QStringLiteral("<small><small>Please provide a 'Logo Image' in the Preferences<br />or remove the "
                              "'LOGO' substitute from the design/template.</small></small>");
    const QString path = logoPath();
    // The web engine does not read TIFF, so the logo is written as PNG; a
    // PNG (what the preferences usually hold) goes out as it is, without a
    // decode and encode on every page.
    static const QByteArray pngSignature("\x89PNG\r\n\x1a\n", 8);
    QByteArray png = data.startsWith(pngSignature) ? data : QByteArray();
    QImage image;
    if (png.isEmpty() && image.loadFromData(data)) {
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
    }
    if (png.isEmpty()) {
        // An earlier logo must not stand in for one that cannot be read.
        QFile::remove(path);
    } else {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            file.write(png);
    }
    return QLatin1String("<img src=\"file://") % path % QLatin1String("\" alt=\"logo\">");
}

QString PageRenderer::logoPath()
{
    return Locations::dataFile(QStringLiteral("Logo.png"));
}

bool PageRenderer::canRender(const Record *design)
{
    return design && !design->isNull(Design::invoice) && !design->isNull(Design::css) && !design->isNull(Design::item);
}

QString PageRenderer::failureText()
{
    return QCoreApplication::translate("tabo::PageRenderer",
        "FAIL! YOUR SELECTED DESIGN IS EITHER BROKEN, CORRUPTED, OR DAMAGED! YOU NEED TO FIX THIS!");
}

} // namespace tabo
