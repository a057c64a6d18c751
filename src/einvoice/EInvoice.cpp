#include "einvoice/EInvoice.h"

#include "domain/Calculator.h"
#include "domain/Contacts.h"
#include "domain/Record.h"
#include "domain/UnitCodes.h"
#include "prefs/Preferences.h"
#include "domain/TaxTables.h"

#include <QRegularExpression>

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <map>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(EInvoice)
};
} // namespace

namespace tabo::einvoice {

using P = Preferences;

namespace {

using namespace taxes;

// Sums to the cent are kept in whole cents: adding doubles would let 0.1 + 0.2
// differ from what the standard's rules add up.
qint64 cents(double v)
{
    return std::llround(v * 100.0);
}

double fromCents(qint64 c)
{
    return double(c) / 100.0;
}

QDate localDay(const Record &doc, int attr)
{
    return doc.isNull(attr) ? QDate() : doc.date(attr).toDateTime().toLocalTime().date();
}


const QStringList kCategories{QStringLiteral("S"), QStringLiteral("Z"),  QStringLiteral("E"), QStringLiteral("AE"),
                              QStringLiteral("K"), QStringLiteral("G"), QStringLiteral("O")};

// Categories whose VAT is not charged on the invoice and that need a reason.
bool needsReason(const QString &code)
{
    return code == QLatin1String("E") || code == QLatin1String("AE") || code == QLatin1String("K")
           || code == QLatin1String("G") || code == QLatin1String("O");
}

// The rate a person set, in percent with at most two decimals (the document
// keeps fractions such as 0.19).
double percent(double fraction)
{
    return std::round(Calculator::r4(fraction) * 10000.0) / 100.0;
}

struct Taxes
{
    const Record &doc;
    const Preferences &prefs;

    TaxCategory category(int k) const
    {
        TaxCategory c;
        c.code = prefs.string(kTaxCategory[k]).trimmed().toUpper();
        if (c.code.isEmpty())
            c.code = QStringLiteral("S");
        c.rate = c.code == QLatin1String("S") ? percent(doc.num(kDocPercent[k])) : 0.0;
        c.exemptionReason = prefs.string(kTaxReason[k]).trimmed();
        return c;
    }
    TaxCategory untaxed() const { return {QStringLiteral("Z"), 0.0, {}}; }
};

QString taxName(const Preferences &prefs, int k)
{
    const QString title = prefs.string(kTaxTitle[k]).trimmed();
    return title.isEmpty() ? Tr::tr("tax %1").arg(k + 1) : QStringLiteral("“%1”").arg(title);
}

} // namespace

QString amount(double value)
{
    return QString::number(fromCents(cents(value)), 'f', 2);
}

QString decimal(double value)
{
    QString text = QString::number(value, 'f', 4);
    while (text.endsWith(QLatin1Char('0')))
        text.chop(1);
    if (text.endsWith(QLatin1Char('.')))
        text.chop(1);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}

std::pair<QString, QString> electronicAddress(const QString &typed)
{
    const QString text = typed.trimmed();
    if (text.isEmpty())
        return {};
    if (text.contains(QLatin1Char('@')) && !text.contains(QLatin1Char(':')))
        return {QStringLiteral("EM"), text};
    // "0204:991-12345-67" and the like: an EAS code before the colon.
    static const QRegularExpression withScheme(QStringLiteral("^([0-9]{4}|EM):(.+)$"));
    if (const QRegularExpressionMatch m = withScheme.match(text); m.hasMatch())
        return {m.captured(1), m.captured(2).trimmed()};
    // A Leitweg-ID: the German public sector's routing identifier.
    static const QRegularExpression leitweg(QStringLiteral("^[0-9]{2,12}(-[0-9A-Za-z]{1,30})?-[0-9]{2}$"));
    if (leitweg.match(text).hasMatch())
        return {QStringLiteral("0204"), text};
    return {QStringLiteral("EM"), text};
}

namespace {

// The mapping in named steps. Each states what it can in the model and adds
// to `missing` what the person has to fill in, or to `refusals` what the
// standard cannot state.
class Mapper
{
public:
    Mapper(const Record &doc, const QList<Record *> &items, const Preferences &prefs)
        : m_doc(doc)
        , m_items(items)
        , m_prefs(prefs)
        , m_taxes{doc, prefs}
        , m_toTheCent(doc.boolean(Invoice::centExactTotals)
                      && Calculator::canCalculateToTheCent(doc, TaxSettings::from(prefs)))
        , m_printedTotal(cents(doc.num(Invoice::amount)))
    {
    }

    Mapping run()
    {
        if (m_doc.integer(Invoice::kind) == 0)
            m.refusals << Tr::tr("A quote is not an invoice: e-invoices are made of invoices.");
        seller();
        buyer();
        document();
        lines();
        shipping();
        if (!m.refusals.isEmpty())
            return m;
        if (m_toTheCent)
            centExactFigures();
        else
            classicFigures();
        vatBreakdown();
        totals();
        creditNote();
        if (cents(inv.payable) > 0 && !inv.dueDate.isValid() && inv.paymentTerms.isEmpty()
            && inv.typeCode == QLatin1String("380"))
            m.missing << Tr::tr("The invoice needs a due date or payment conditions (Dates and status, Texts)");
        return m;
    }

private:
    using Key = std::pair<QString, qint64>; // (category, rate in 1/100 %)
    static Key key(const TaxCategory &c) { return {c.code, std::llround(c.rate * 100.0)}; }
    TaxCategory categoryOf(int tabo) const { return tabo >= 0 ? m_taxes.category(tabo) : m_taxes.untaxed(); }

    QString need(const QString &value, const QString &what)
    {
        if (value.trimmed().isEmpty())
            m.missing << what;
        return value.trimmed();
    }

    void seller();
    void buyer();
    void document();
    void lines();
    void shipping();
    void centExactFigures();
    void classicFigures();
    void spreadDiscount(qint64 discountCents);
    void vatBreakdown();
    void checkCategory(const TaxBreakdown &t, int tabo, qint64 taxCents);
    void totals();
    void creditNote();

    const Record &m_doc;
    const QList<Record *> &m_items;
    const Preferences &m_prefs;
    const Taxes m_taxes;
    const bool m_toTheCent;
    Mapping m;
    Model &inv = m.invoice;
    std::map<Key, qint64> m_baseCents; // the basis of each category
    std::map<Key, int> m_taxOf;        // Tabo's tax k of each category, or -1
    std::map<Key, qint64> m_taxCents;  // the tax each category charges
    qint64 m_lineCents = 0;
    qint64 m_taxTotalCents = 0;
    const qint64 m_printedTotal; // what the page prints, in cents

    static QString kCompany() { return Tr::tr(" (Preferences ▸ Company)"); }
    static QString kClient() { return Tr::tr(" (Client ▸ Address ▸ E-invoice)"); }
};

void Mapper::seller()
{
    Party &s = inv.seller;
    s.name = need(m_prefs.string(P::prefsName), Tr::tr("The company's name is missing") + kCompany());
    s.street = need(m_prefs.string(P::prefsStreet), Tr::tr("The company's street is missing") + kCompany());
    s.postcode = need(m_prefs.string(P::prefsPostcode), Tr::tr("The company's postcode is missing") + kCompany());
    s.city = need(m_prefs.string(P::prefsCity), Tr::tr("The company's city is missing") + kCompany());
    s.countryCode = Contacts::countryCode(m_prefs.string(P::prefsCountryCode));
    need(s.countryCode, Tr::tr("The company's country code (DE, FR …) is missing") + kCompany());
    s.vatId = m_prefs.string(P::prefsVATID).simplified().remove(QLatin1Char(' '));
    s.taxNumber = m_prefs.string(P::prefsTaxNumber).trimmed();
    if (s.vatId.isEmpty() && s.taxNumber.isEmpty())
        m.missing << Tr::tr("The company's VAT ID or tax number is missing") + kCompany();
    s.contactName = m_prefs.string(P::prefsContactName).trimmed();
    if (s.contactName.isEmpty())
        s.contactName = s.name;
    s.contactPhone
        = need(m_prefs.string(P::prefsContactPhone), Tr::tr("The company's phone number is missing") + kCompany());
    if (!s.contactPhone.isEmpty() && s.contactPhone.count(QRegularExpression(QStringLiteral("[0-9]"))) < 3)
        m.missing << Tr::tr("The company's phone number needs at least three digits") + kCompany();
    s.contactEmail
        = need(m_prefs.string(P::prefsContactEmail), Tr::tr("The company's e-mail address is missing") + kCompany());
    std::tie(s.electronicScheme, s.electronicAddress) = electronicAddress(m_prefs.string(P::prefsElectronicAddress));
    if (const QString scheme = m_prefs.string(P::prefsElectronicAddressScheme).trimmed();
        !scheme.isEmpty() && !s.electronicAddress.isEmpty())
        s.electronicScheme = scheme;
    if (s.electronicAddress.isEmpty())
        std::tie(s.electronicScheme, s.electronicAddress) = electronicAddress(s.contactEmail);
    inv.iban = m_prefs.string(P::prefsIBAN).remove(QRegularExpression(QStringLiteral("\\s"))).toUpper();
    need(inv.iban, Tr::tr("The company's IBAN is missing") + kCompany());
    inv.bic = m_prefs.string(P::prefsBIC).remove(QRegularExpression(QStringLiteral("\\s"))).toUpper();
    inv.bankName = m_prefs.string(P::prefsBankName).trimmed();
    inv.currency = m_prefs.string(P::prefsCurrencyCode).trimmed().toUpper();
    if (!QRegularExpression(QStringLiteral("^[A-Z]{3}$")).match(inv.currency).hasMatch())
        m.missing << Tr::tr("The currency code (EUR, CHF …) is missing") + kCompany();
}

void Mapper::buyer()
{
    Party &b = inv.buyer;
    const Buyer buyer = Contacts::buyerOf(m_doc);
    b.name = buyer.company.trimmed();
    if (b.name.isEmpty())
        b.name = Contacts::clientOf(m_doc);
    need(b.name, Tr::tr("The client's name is missing") + kClient());
    b.street = buyer.street.trimmed();
    b.postcode = need(buyer.postcode, Tr::tr("The client's postcode is missing") + kClient());
    b.city = need(buyer.city, Tr::tr("The client's city is missing") + kClient());
    b.countryCode = Contacts::countryCode(buyer.countryCode);
    need(b.countryCode, Tr::tr("The client's country code (DE, FR …) is missing") + kClient());
    b.vatId = m_doc.text(Invoice::customerVATID).simplified().remove(QLatin1Char(' '));
    std::tie(b.electronicScheme, b.electronicAddress) = electronicAddress(
        buyer.electronicAddress.trimmed().isEmpty() ? m_doc.text(Invoice::emailAddress) : buyer.electronicAddress);
    need(b.electronicAddress, Tr::tr("The client's e-invoice address or e-mail address is missing") + kClient());
    // Public authorities route by their Leitweg-ID; others by what the client
    // knows the invoice by.
    inv.buyerReference = buyer.buyerReference.trimmed();
    if (inv.buyerReference.isEmpty())
        inv.buyerReference = m_doc.text(Invoice::clientNumber).trimmed();
    if (inv.buyerReference.isEmpty())
        inv.buyerReference = m_doc.text(Invoice::number).trimmed();
}

void Mapper::document()
{
    inv.number = need(m_doc.text(Invoice::number), Tr::tr("The invoice has no number (Invoice ▸ Number)"));
    inv.issueDate = localDay(m_doc, Invoice::date);
    if (!inv.issueDate.isValid())
        m.missing << Tr::tr("The invoice has no date (Dates and status)");
    // The date of supply: the dispatch where one is recorded, else the
    // invoice's own date, which is what an invoice without one means.
    inv.deliveryDate = m_doc.boolean(Invoice::isDispatched) ? localDay(m_doc, Invoice::dispatched) : QDate();
    if (!inv.deliveryDate.isValid())
        inv.deliveryDate = inv.issueDate;
    inv.dueDate = localDay(m_doc, Invoice::due);
    if (inv.dueDate.isValid() && inv.dueDate < inv.issueDate)
        inv.dueDate = {};
    inv.paymentTerms = m_doc.text(Invoice::conditions).trimmed();
    if (const QString subject = m_doc.text(Invoice::subject).trimmed(); !subject.isEmpty())
        inv.notes << subject;
}

// Lines: one VAT category each.
void Mapper::lines()
{
    int n = 0;
    for (const Record *item : m_items) {
        ++n;
        Line line;
        line.id = QString::number(n);
        line.name = item->text(Item::title).trimmed();
        if (line.name.isEmpty())
            line.name = Tr::tr("Line %1").arg(n);
        line.description = item->text(Item::subtitle).trimmed();
        line.sellerId = item->text(Item::sku).trimmed();
        line.unitCode = UnitCodes::forLine(item->text(Item::unitCode), item->text(Item::unit));
        line.quantity = Calculator::r3(item->num(Item::unitCount));
        // The cent-exact calculation keeps the price as typed, to four decimals.
        line.price = m_toTheCent ? Calculator::r4(item->num(Item::baseAmount)) : Calculator::r3(item->num(Item::baseAmount));
        line.net = m_toTheCent ? fromCents(Calculator::centExactLineNet(*item)) : fromCents(cents(line.quantity * line.price));
        if (line.price < 0) {
            // The standard's prices are never negative; the sign goes to the quantity.
            line.price = -line.price;
            line.quantity = -line.quantity;
        }
        QList<int> applied;
        for (int k = 0; k < 3; ++k)
            if (item->boolean(kItemApplied[k]))
                applied << k;
        const QString named = Tr::tr("Line %1 “%2”").arg(n).arg(line.name);
        if (applied.size() > 1) {
            m.refusals << Tr::tr("%1 carries %2 and %3; an e-invoice line carries one VAT rate.")
                              .arg(named, taxName(m_prefs, applied[0]), taxName(m_prefs, applied[1]));
            continue;
        }
        if (!applied.isEmpty()
            && ((applied[0] == 1 && item->boolean(Item::isTax2Compound))
                || (applied[0] == 2 && item->boolean(Item::isTax3Compound)))) {
            m.refusals << Tr::tr("%1 carries the compound tax %2, which an e-invoice cannot state.")
                              .arg(named, taxName(m_prefs, applied[0]));
            continue;
        }
        const int tabo = applied.isEmpty() ? -1 : applied[0];
        line.tax = categoryOf(tabo);
        inv.lines << line;
        m_lineCents += cents(line.net);
        m_baseCents[key(line.tax)] += cents(line.net);
        m_taxOf.try_emplace(key(line.tax), tabo);
    }
    if (n == 0)
        m.missing << Tr::tr("The invoice has no lines (Items)");
}

// Shipping: a charge on the whole document.
void Mapper::shipping()
{
    if (!m_doc.boolean(Invoice::isShippingEnabled) || cents(m_doc.num(Invoice::shippingAmount)) == 0)
        return;
    AllowanceCharge charge;
    charge.charge = true;
    charge.amount = fromCents(cents(m_doc.num(Invoice::shippingAmount)));
    charge.reason = m_doc.text(Invoice::shippingTitle).trimmed();
    if (charge.reason.isEmpty())
        charge.reason = QStringLiteral("Shipping");
    QList<int> applied;
    for (int k = 0; k < 3; ++k)
        if (m_doc.boolean(kShippingTax[k]))
            applied << k;
    if (applied.size() > 1) {
        m.refusals << Tr::tr("The shipping carries %1 and %2; an e-invoice charge carries one VAT rate.")
                          .arg(taxName(m_prefs, applied[0]), taxName(m_prefs, applied[1]));
        return;
    }
    if (!applied.isEmpty() && applied[0] > 0
        && m_prefs.boolean(applied[0] == 1 ? P::tax2IsCompound : P::tax3IsCompound)) {
        m.refusals << Tr::tr("The shipping carries the compound tax %1, which an e-invoice cannot state.")
                          .arg(taxName(m_prefs, applied[0]));
        return;
    }
    const int tabo = applied.isEmpty() ? -1 : applied[0];
    charge.tax = categoryOf(tabo);
    inv.allowancesCharges << charge;
    inv.chargeTotal += charge.amount;
    m_baseCents[key(charge.tax)] += cents(charge.amount);
    m_taxOf.try_emplace(key(charge.tax), tabo);
}

// The calculation's own figures: each rate's part of the discount is an
// allowance of that rate, and nothing is left to round.
void Mapper::centExactFigures()
{
    const CentExactTotals totals = Calculator::centExactTotals(m_doc);
    m_baseCents.clear();
    m_taxOf.clear();
    for (const RateShare &r : totals.rates) {
        const TaxCategory category = categoryOf(r.tax);
        m_baseCents[key(category)] += r.taxable();
        m_taxCents[key(category)] += r.taxAmount;
        m_taxOf.try_emplace(key(category), r.tax);
        if (r.discount == 0)
            continue;
        AllowanceCharge allowance;
        allowance.amount = fromCents(r.discount);
        allowance.reason = m_doc.text(Invoice::discountTitle).trimmed();
        if (allowance.reason.isEmpty())
            allowance.reason = QStringLiteral("Discount");
        allowance.tax = category;
        inv.allowancesCharges << allowance;
        inv.allowanceTotal += allowance.amount;
    }
}

// The classic calculation rounds differently from the standard: its figures
// are stated where they can be, the discount inferred from what the page
// prints.
void Mapper::classicFigures()
{
    qint64 printedTax = 0;
    std::map<int, qint64> byTabo;
    for (const auto &[k, tabo] : m_taxOf)
        if (tabo >= 0 && !byTabo.count(tabo)) {
            byTabo[tabo] = m_baseCents[k] != 0 ? cents(m_doc.num(kDocTaxAmount[tabo])) : 0;
            printedTax += byTabo[tabo];
        }
    for (const auto &[k, tabo] : m_taxOf)
        m_taxCents[k] = tabo >= 0 ? byTabo[tabo] : 0;
    if (m_lineCents != cents(m_doc.num(Invoice::subAmount)))
        m.refusals << Tr::tr("The lines, each to the cent, add up to %1, but the invoice prints a net "
                             "amount of %2: the classic calculation does not round each line.")
                          .arg(amount(fromCents(m_lineCents)), amount(m_doc.num(Invoice::subAmount)));

    // The discount: whatever the printed total leaves between the lines,
    // shipping and taxes.
    const qint64 discountCents = m_lineCents + cents(inv.chargeTotal) + printedTax - m_printedTotal;
    if (m_doc.boolean(Invoice::isDiscountEnabled) && discountCents != 0) {
        spreadDiscount(discountCents);
    } else if (std::abs(discountCents) <= 2) {
        // The page rounds the total once and each tax once; the standard
        // states the difference as rounding.
        inv.rounding = fromCents(-discountCents);
    } else if (discountCents != 0) {
        m.refusals << Tr::tr("The invoice prints a total of %1, but its lines, shipping and taxes come to "
                             "%2.")
                          .arg(amount(fromCents(m_printedTotal)), amount(fromCents(m_printedTotal + discountCents)));
    }
    m.toTheCentHelps = !m.refusals.isEmpty();
}

// A discount the classic page took off, spread over the categories by their
// share of the basis, the rest to the last.
void Mapper::spreadDiscount(qint64 discountCents)
{
    qint64 left = discountCents;
    qint64 baseSum = 0;
    for (const auto &[k, c] : m_baseCents)
        baseSum += c;
    const auto last = std::prev(m_baseCents.end());
    for (auto it = m_baseCents.begin(); it != m_baseCents.end(); ++it) {
        const qint64 share =
            it == last ? left : (baseSum ? std::llround(double(discountCents) * it->second / baseSum) : 0);
        left -= share;
        if (share == 0)
            continue;
        AllowanceCharge allowance;
        allowance.amount = fromCents(share);
        allowance.reason = m_doc.text(Invoice::discountTitle).trimmed();
        if (allowance.reason.isEmpty())
            allowance.reason = QStringLiteral("Discount");
        allowance.tax = categoryOf(m_taxOf[it->first]);
        inv.allowancesCharges << allowance;
        inv.allowanceTotal += allowance.amount;
        it->second -= share;
    }
}

// The VAT breakdown, checked against the standard's rule: tax = basis ×
// rate, to the cent, within one currency unit.
void Mapper::vatBreakdown()
{
    for (const auto &[k, basis] : m_baseCents) {
        TaxBreakdown t;
        const int tabo = m_taxOf[k];
        t.category = categoryOf(tabo);
        t.basis = fromCents(basis);
        // A Tabo tax that became several categories cannot happen: one tax, one category.
        t.amount = t.category.code == QLatin1String("S") ? fromCents(m_taxCents[k]) : 0.0;
        const double rule = std::round(t.basis * t.category.rate) / 100.0;
        if (std::abs(t.amount - rule) > 1.0 + 1e-9) {
            if (!m_toTheCent && !inv.allowancesCharges.isEmpty() && m_doc.boolean(Invoice::isDiscountEnabled)) {
                m.refusals << Tr::tr("The discount: the classic calculation charges the tax at %1 % on the "
                                     "amount before the discount (%2), an e-invoice on the amount after it "
                                     "(%3 × %1 % = %4).")
                                  .arg(decimal(t.category.rate), amount(t.amount), amount(t.basis), amount(rule));
                m.toTheCentHelps = true;
            } else {
                m.refusals << Tr::tr("The tax at %1 %: the invoice prints %2, but %3 × %1 % is %4. A rate "
                                     "changed after the lines were added causes this: recalculate the invoice.")
                                  .arg(decimal(t.category.rate), amount(t.amount), amount(t.basis), amount(rule));
            }
        }
        checkCategory(t, tabo, m_taxCents[k]);
        inv.taxes << t;
        m_taxTotalCents += cents(t.amount);
    }
    const bool hasO = std::any_of(inv.taxes.begin(), inv.taxes.end(),
                                  [](const TaxBreakdown &t) { return t.category.code == QLatin1String("O"); });
    if (hasO && inv.taxes.size() > 1)
        m.refusals << Tr::tr("Supplies not subject to VAT cannot share an e-invoice with taxed ones.");
}

// What the category of a tax asks for besides its figures.
void Mapper::checkCategory(const TaxBreakdown &t, int tabo, qint64 taxCents)
{
    const QString &code = t.category.code;
    if (tabo >= 0 && code != QLatin1String("S") && taxCents != 0)
        m.refusals << Tr::tr("%1 is marked as “%2” in the preferences but charges %3.")
                          .arg(taxName(m_prefs, tabo), code, amount(fromCents(taxCents)));
    if (!kCategories.contains(code))
        m.refusals << Tr::tr("“%1” is not a VAT category (Preferences ▸ Taxes).").arg(code);
    else if (needsReason(code) && t.category.exemptionReason.isEmpty())
        m.missing << Tr::tr("%1 is “%2”, which needs a reason why VAT is not charged (Preferences ▸ Taxes)")
                         .arg(tabo >= 0 ? taxName(m_prefs, tabo) : Tr::tr("A tax"), code);
    if (code == QLatin1String("AE") || code == QLatin1String("K"))
        need(inv.buyer.vatId,
            Tr::tr("The client's VAT ID is missing, which reverse charge and "
                   "intra-community supplies need (Client ▸ Address)"));
}

void Mapper::totals()
{
    const qint64 taxTotal = m_taxTotalCents;
    inv.taxTotal = fromCents(taxTotal);
    inv.lineTotal = fromCents(m_lineCents);
    inv.taxExclusive = fromCents(m_lineCents - cents(inv.allowanceTotal) + cents(inv.chargeTotal));
    inv.taxInclusive = fromCents(cents(inv.taxExclusive) + taxTotal);
    const qint64 total = cents(inv.taxInclusive) + cents(inv.rounding);
    if (total != m_printedTotal && m.refusals.isEmpty()) {
        m.refusals << Tr::tr("The invoice prints a total of %1; stated the standard's way it comes to %2.")
                          .arg(amount(fromCents(m_printedTotal)), amount(fromCents(total)));
        m.toTheCentHelps = !m_toTheCent;
    }
    const double paid = m_doc.num(Invoice::paidAmount);
    inv.prepaid = std::isfinite(paid) && paid > 0 ? fromCents(std::min(cents(paid), total)) : 0.0;
    inv.payable = fromCents(total - cents(inv.prepaid));
}

// A credit note: the standard states it with its own type and the amounts
// of what it takes back, not as an invoice of negative ones.
void Mapper::creditNote()
{
    const QString preceding = m_doc.text(Invoice::precedingNumber).trimmed();
    if (preceding.isEmpty())
        return;
    inv.typeCode = QStringLiteral("381");
    inv.precedingNumber = preceding;
    inv.precedingDate = QDate::fromString(m_doc.text(Invoice::precedingDate), Qt::ISODate);
    for (Line &line : inv.lines) {
        line.quantity = -line.quantity;
        line.net = -line.net;
    }
    for (AllowanceCharge &ac : inv.allowancesCharges)
        ac.amount = -ac.amount;
    for (TaxBreakdown &t : inv.taxes) {
        t.basis = -t.basis;
        t.amount = -t.amount;
    }
    for (double *v : {&inv.lineTotal, &inv.allowanceTotal, &inv.chargeTotal, &inv.taxExclusive, &inv.taxTotal,
                      &inv.taxInclusive, &inv.rounding, &inv.prepaid, &inv.payable})
        *v = -*v;
    inv.dueDate = {};
}

} // namespace

Mapping fromDocument(const Record &doc, const QList<Record *> &items, const Preferences &prefs)
{
    return Mapper(doc, items, prefs).run();
}

} // namespace tabo::einvoice
