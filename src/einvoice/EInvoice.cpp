#include "einvoice/EInvoice.h"

#include "domain/Calculator.h"
#include "domain/Contacts.h"
#include "domain/Record.h"
#include "domain/UnitCodes.h"
#include "prefs/Preferences.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <map>

namespace tabo::einvoice {

using P = Preferences;

namespace {

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

constexpr P::Key kCategory[3] = {P::tax1Category, P::tax2Category, P::tax3Category};
constexpr P::Key kReason[3] = {P::tax1ExemptionReason, P::tax2ExemptionReason, P::tax3ExemptionReason};
constexpr P::Key kTitle[3] = {P::tax1Title, P::tax2Title, P::tax3Title};
constexpr int kItemApplied[3] = {Item::isTax1Applied, Item::isTax2Applied, Item::isTax3Applied};
constexpr int kDocPercent[3] = {Invoice::tax1Percent, Invoice::tax2Percent, Invoice::tax3Percent};
constexpr int kDocTaxAmount[3] = {Invoice::tax1Amount, Invoice::tax2Amount, Invoice::tax3Amount};
constexpr int kShippingTax[3] = {Invoice::isShippingTax1Enabled, Invoice::isShippingTax2Enabled,
                                 Invoice::isShippingTax3Enabled};

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
        c.code = prefs.string(kCategory[k]).trimmed().toUpper();
        if (c.code.isEmpty())
            c.code = QStringLiteral("S");
        c.rate = c.code == QLatin1String("S") ? percent(doc.num(kDocPercent[k])) : 0.0;
        c.exemptionReason = prefs.string(kReason[k]).trimmed();
        return c;
    }
    TaxCategory untaxed() const { return {QStringLiteral("Z"), 0.0, {}}; }
};

QString taxName(const Preferences &prefs, int k)
{
    const QString title = prefs.string(kTitle[k]).trimmed();
    return title.isEmpty() ? QStringLiteral("tax %1").arg(k + 1) : QStringLiteral("“%1”").arg(title);
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

Mapping fromDocument(const Record &doc, const Preferences &prefs)
{
    Mapping m;
    Model &inv = m.invoice;
    QStringList &missing = m.missing;
    QStringList &refusals = m.refusals;
    const auto need = [&missing](const QString &value, const QString &what) {
        if (value.trimmed().isEmpty())
            missing << what;
        return value.trimmed();
    };
    const QString company = QStringLiteral(" (Preferences ▸ Company)");
    const QString client = QStringLiteral(" (Client ▸ Address ▸ E-invoice)");

    if (doc.integer(Invoice::kind) == 0)
        refusals << QStringLiteral("A quote is not an invoice: e-invoices are made of invoices.");

    // The seller.
    Party &s = inv.seller;
    s.name = need(prefs.string(P::prefsName), QStringLiteral("The company's name is missing") + company);
    s.street = need(prefs.string(P::prefsStreet), QStringLiteral("The company's street is missing") + company);
    s.postcode = need(prefs.string(P::prefsPostcode), QStringLiteral("The company's postcode is missing") + company);
    s.city = need(prefs.string(P::prefsCity), QStringLiteral("The company's city is missing") + company);
    s.countryCode = Contacts::countryCode(prefs.string(P::prefsCountryCode));
    need(s.countryCode, QStringLiteral("The company's country code (DE, FR …) is missing") + company);
    s.vatId = prefs.string(P::prefsVATID).simplified().remove(QLatin1Char(' '));
    s.taxNumber = prefs.string(P::prefsTaxNumber).trimmed();
    if (s.vatId.isEmpty() && s.taxNumber.isEmpty())
        missing << QStringLiteral("The company's VAT ID or tax number is missing") + company;
    s.contactName = prefs.string(P::prefsContactName).trimmed();
    if (s.contactName.isEmpty())
        s.contactName = s.name;
    s.contactPhone = need(prefs.string(P::prefsContactPhone), QStringLiteral("The company's phone number is missing") + company);
    if (!s.contactPhone.isEmpty() && s.contactPhone.count(QRegularExpression(QStringLiteral("[0-9]"))) < 3)
        missing << QStringLiteral("The company's phone number needs at least three digits") + company;
    s.contactEmail = need(prefs.string(P::prefsContactEmail), QStringLiteral("The company's e-mail address is missing") + company);
    std::tie(s.electronicScheme, s.electronicAddress) = electronicAddress(prefs.string(P::prefsElectronicAddress));
    if (const QString scheme = prefs.string(P::prefsElectronicAddressScheme).trimmed();
        !scheme.isEmpty() && !s.electronicAddress.isEmpty())
        s.electronicScheme = scheme;
    if (s.electronicAddress.isEmpty())
        std::tie(s.electronicScheme, s.electronicAddress) = electronicAddress(s.contactEmail);
    inv.iban = prefs.string(P::prefsIBAN).remove(QRegularExpression(QStringLiteral("\\s"))).toUpper();
    need(inv.iban, QStringLiteral("The company's IBAN is missing") + company);
    inv.bic = prefs.string(P::prefsBIC).remove(QRegularExpression(QStringLiteral("\\s"))).toUpper();
    inv.bankName = prefs.string(P::prefsBankName).trimmed();
    inv.currency = prefs.string(P::prefsCurrencyCode).trimmed().toUpper();
    if (!QRegularExpression(QStringLiteral("^[A-Z]{3}$")).match(inv.currency).hasMatch())
        missing << QStringLiteral("The currency code (EUR, CHF …) is missing") + company;

    // The buyer.
    Party &b = inv.buyer;
    const std::array<QString, 7> buyer = Contacts::buyerOf(doc);
    b.name = buyer[0].trimmed();
    if (b.name.isEmpty())
        b.name = Contacts::clientOf(doc);
    need(b.name, QStringLiteral("The client's name is missing") + client);
    b.street = buyer[1].trimmed();
    b.postcode = need(buyer[2], QStringLiteral("The client's postcode is missing") + client);
    b.city = need(buyer[3], QStringLiteral("The client's city is missing") + client);
    b.countryCode = Contacts::countryCode(buyer[4]);
    need(b.countryCode, QStringLiteral("The client's country code (DE, FR …) is missing") + client);
    b.vatId = doc.text(Invoice::customerVATID).simplified().remove(QLatin1Char(' '));
    std::tie(b.electronicScheme, b.electronicAddress) =
        electronicAddress(buyer[6].trimmed().isEmpty() ? doc.text(Invoice::emailAddress) : buyer[6]);
    need(b.electronicAddress, QStringLiteral("The client's e-invoice address or e-mail address is missing") + client);
    // Public authorities route by their Leitweg-ID; others by what the client
    // knows the invoice by.
    inv.buyerReference = buyer[5].trimmed();
    if (inv.buyerReference.isEmpty())
        inv.buyerReference = doc.text(Invoice::clientNumber).trimmed();
    if (inv.buyerReference.isEmpty())
        inv.buyerReference = doc.text(Invoice::number).trimmed();

    // The document.
    inv.number = need(doc.text(Invoice::number), QStringLiteral("The invoice has no number (Invoice ▸ Number)"));
    inv.issueDate = localDay(doc, Invoice::date);
    if (!inv.issueDate.isValid())
        missing << QStringLiteral("The invoice has no date (Dates and status)");
    // The date of supply: the dispatch where one is recorded, else the
    // invoice's own date, which is what an invoice without one means.
    inv.deliveryDate = doc.boolean(Invoice::isDispatched) ? localDay(doc, Invoice::dispatched) : QDate();
    if (!inv.deliveryDate.isValid())
        inv.deliveryDate = inv.issueDate;
    inv.dueDate = localDay(doc, Invoice::due);
    if (inv.dueDate.isValid() && inv.dueDate < inv.issueDate)
        inv.dueDate = {};
    inv.paymentTerms = doc.text(Invoice::conditions).trimmed();
    if (const QString subject = doc.text(Invoice::subject).trimmed(); !subject.isEmpty())
        inv.notes << subject;

    // Lines: one VAT category each.
    const Taxes taxes{doc, prefs};
    const bool toTheCent =
        doc.boolean(Invoice::centExactTotals) && Calculator::canCalculateToTheCent(doc, TaxSettings::from(prefs));
    QList<Record *> items = doc.toMany(Invoice::items);
    std::sort(items.begin(), items.end(), [](const Record *a, const Record *x) { return a->id() < x->id(); });
    std::map<std::pair<QString, qint64>, qint64> baseCents; // (category, rate in 1/100 %) → basis
    std::map<std::pair<QString, qint64>, int> taxOf;         // → Tabo's tax k, or -1
    const auto key = [](const TaxCategory &c) { return std::pair(c.code, std::llround(c.rate * 100.0)); };
    qint64 lineCents = 0;
    int n = 0;
    for (const Record *item : std::as_const(items)) {
        ++n;
        Line line;
        line.id = QString::number(n);
        line.name = item->text(Item::title).trimmed();
        if (line.name.isEmpty())
            line.name = QStringLiteral("Line %1").arg(n);
        line.description = item->text(Item::subtitle).trimmed();
        line.sellerId = item->text(Item::sku).trimmed();
        line.unitCode = UnitCodes::forLine(item->text(Item::unitCode), item->text(Item::unit));
        line.quantity = Calculator::r3(item->num(Item::unitCount));
        // The cent-exact calculation keeps the price as typed, to four decimals.
        line.price = toTheCent ? Calculator::r4(item->num(Item::baseAmount)) : Calculator::r3(item->num(Item::baseAmount));
        line.net = toTheCent ? fromCents(Calculator::centExactLineNet(*item)) : fromCents(cents(line.quantity * line.price));
        if (line.price < 0) {
            // The standard's prices are never negative; the sign goes to the quantity.
            line.price = -line.price;
            line.quantity = -line.quantity;
        }
        QList<int> applied;
        for (int k = 0; k < 3; ++k)
            if (item->boolean(kItemApplied[k]))
                applied << k;
        const QString named = QStringLiteral("Line %1 “%2”").arg(n).arg(line.name);
        if (applied.size() > 1) {
            refusals << QStringLiteral("%1 carries %2 and %3; an e-invoice line carries one VAT rate.")
                            .arg(named, taxName(prefs, applied[0]), taxName(prefs, applied[1]));
            continue;
        }
        if (!applied.isEmpty()
            && ((applied[0] == 1 && item->boolean(Item::isTax2Compound))
                || (applied[0] == 2 && item->boolean(Item::isTax3Compound)))) {
            refusals << QStringLiteral("%1 carries the compound tax %2, which an e-invoice cannot state.")
                            .arg(named, taxName(prefs, applied[0]));
            continue;
        }
        line.tax = applied.isEmpty() ? taxes.untaxed() : taxes.category(applied[0]);
        inv.lines << line;
        lineCents += cents(line.net);
        baseCents[key(line.tax)] += cents(line.net);
        taxOf.try_emplace(key(line.tax), applied.isEmpty() ? -1 : applied[0]);
    }
    if (n == 0)
        missing << QStringLiteral("The invoice has no lines (Items)");

    // Shipping: a charge on the whole document.
    if (doc.boolean(Invoice::isShippingEnabled) && cents(doc.num(Invoice::shippingAmount)) != 0) {
        AllowanceCharge charge;
        charge.charge = true;
        charge.amount = fromCents(cents(doc.num(Invoice::shippingAmount)));
        charge.reason = doc.text(Invoice::shippingTitle).trimmed();
        if (charge.reason.isEmpty())
            charge.reason = QStringLiteral("Shipping");
        QList<int> applied;
        for (int k = 0; k < 3; ++k)
            if (doc.boolean(kShippingTax[k]))
                applied << k;
        if (applied.size() > 1) {
            refusals << QStringLiteral("The shipping carries %1 and %2; an e-invoice charge carries one VAT rate.")
                            .arg(taxName(prefs, applied[0]), taxName(prefs, applied[1]));
        } else if (!applied.isEmpty() && applied[0] > 0
                   && prefs.boolean(applied[0] == 1 ? P::tax2IsCompound : P::tax3IsCompound)) {
            refusals << QStringLiteral("The shipping carries the compound tax %1, which an e-invoice cannot state.")
                            .arg(taxName(prefs, applied[0]));
        } else {
            charge.tax = applied.isEmpty() ? taxes.untaxed() : taxes.category(applied[0]);
            inv.allowancesCharges << charge;
            inv.chargeTotal += charge.amount;
            baseCents[key(charge.tax)] += cents(charge.amount);
            taxOf.try_emplace(key(charge.tax), applied.isEmpty() ? -1 : applied[0]);
        }
    }
    if (!refusals.isEmpty())
        return m;

    // What Tabo printed, per tax and in all.
    const qint64 printedTotal = cents(doc.num(Invoice::amount));
    std::map<std::pair<QString, qint64>, qint64> keyTaxCents; // the tax each category charges
    if (toTheCent) {
        // The calculation's own figures: each rate's part of the discount is
        // an allowance of that rate, and nothing is left to round.
        const CentExactTotals totals = Calculator::centExactTotals(doc);
        baseCents.clear();
        taxOf.clear();
        for (const RateShare &r : totals.rates) {
            const TaxCategory category = r.tax >= 0 ? taxes.category(r.tax) : taxes.untaxed();
            baseCents[key(category)] += r.taxable();
            keyTaxCents[key(category)] += r.taxAmount;
            taxOf.try_emplace(key(category), r.tax);
            if (r.discount == 0)
                continue;
            AllowanceCharge allowance;
            allowance.amount = fromCents(r.discount);
            allowance.reason = doc.text(Invoice::discountTitle).trimmed();
            if (allowance.reason.isEmpty())
                allowance.reason = QStringLiteral("Discount");
            allowance.tax = category;
            inv.allowancesCharges << allowance;
            inv.allowanceTotal += allowance.amount;
        }
    } else {
        // The classic calculation rounds differently from the standard: its
        // figures are stated where they can be, the discount inferred from
        // what the page prints.
        qint64 printedTax = 0;
        std::map<int, qint64> taxCents;
        for (const auto &[k, tabo] : taxOf)
            if (tabo >= 0 && !taxCents.count(tabo)) {
                taxCents[tabo] = baseCents[k] != 0 ? cents(doc.num(kDocTaxAmount[tabo])) : 0;
                printedTax += taxCents[tabo];
            }
        for (const auto &[k, tabo] : taxOf)
            keyTaxCents[k] = tabo >= 0 ? taxCents[tabo] : 0;
        if (lineCents != cents(doc.num(Invoice::subAmount)))
            refusals << QStringLiteral("The lines, each to the cent, add up to %1, but the invoice prints a net "
                                       "amount of %2: the classic calculation does not round each line.")
                            .arg(amount(fromCents(lineCents)), amount(doc.num(Invoice::subAmount)));

        // The discount: whatever the printed total leaves between the lines,
        // shipping and taxes, spread over the categories by their share.
        const qint64 discountCents = lineCents + cents(inv.chargeTotal) + printedTax - printedTotal;
        if (doc.boolean(Invoice::isDiscountEnabled) && discountCents != 0) {
            qint64 left = discountCents;
            qint64 baseSum = 0;
            for (const auto &[k, c] : baseCents)
                baseSum += c;
            auto last = std::prev(baseCents.end());
            for (auto it = baseCents.begin(); it != baseCents.end(); ++it) {
                const qint64 share =
                    it == last ? left : (baseSum ? std::llround(double(discountCents) * it->second / baseSum) : 0);
                left -= share;
                if (share == 0)
                    continue;
                AllowanceCharge allowance;
                allowance.amount = fromCents(share);
                allowance.reason = doc.text(Invoice::discountTitle).trimmed();
                if (allowance.reason.isEmpty())
                    allowance.reason = QStringLiteral("Discount");
                const int tabo = taxOf[it->first];
                allowance.tax = tabo >= 0 ? taxes.category(tabo) : taxes.untaxed();
                inv.allowancesCharges << allowance;
                inv.allowanceTotal += allowance.amount;
                it->second -= share;
            }
        } else if (std::abs(discountCents) <= 2) {
            // The page rounds the total once and each tax once; the standard
            // states the difference as rounding.
            inv.rounding = fromCents(-discountCents);
        } else if (discountCents != 0) {
            refusals << QStringLiteral("The invoice prints a total of %1, but its lines, shipping and taxes come to "
                                       "%2.")
                            .arg(amount(fromCents(printedTotal)), amount(fromCents(printedTotal + discountCents)));
        }
        m.toTheCentHelps = !refusals.isEmpty();
    }

    // The VAT breakdown, checked against the standard's rule: tax = basis ×
    // rate, to the cent, within one currency unit.
    qint64 taxTotal = 0;
    for (const auto &[k, basis] : baseCents) {
        TaxBreakdown t;
        const int tabo = taxOf[k];
        t.category = tabo >= 0 ? taxes.category(tabo) : taxes.untaxed();
        t.basis = fromCents(basis);
        // A Tabo tax that became several categories cannot happen: one tax, one category.
        t.amount = t.category.code == QLatin1String("S") ? fromCents(keyTaxCents[k]) : 0.0;
        const double rule = std::round(t.basis * t.category.rate) / 100.0;
        if (std::abs(t.amount - rule) > 1.0 + 1e-9) {
            if (!toTheCent && !inv.allowancesCharges.isEmpty() && doc.boolean(Invoice::isDiscountEnabled)) {
                refusals << QStringLiteral("The discount: the classic calculation charges the tax at %1 % on the "
                                           "amount before the discount (%2), an e-invoice on the amount after it "
                                           "(%3 × %1 % = %4).")
                                .arg(decimal(t.category.rate), amount(t.amount), amount(t.basis), amount(rule));
                m.toTheCentHelps = true;
            } else {
                refusals << QStringLiteral("The tax at %1 %: the invoice prints %2, but %3 × %1 % is %4. A rate "
                                           "changed after the lines were added causes this: recalculate the invoice.")
                                .arg(decimal(t.category.rate), amount(t.amount), amount(t.basis), amount(rule));
            }
        }
        if (tabo >= 0 && t.category.code != QLatin1String("S") && keyTaxCents[k] != 0)
            refusals << QStringLiteral("%1 is marked as “%2” in the preferences but charges %3.")
                            .arg(taxName(prefs, tabo), t.category.code, amount(fromCents(keyTaxCents[k])));
        if (!kCategories.contains(t.category.code))
            refusals << QStringLiteral("“%1” is not a VAT category (Preferences ▸ Taxes).").arg(t.category.code);
        else if (needsReason(t.category.code) && t.category.exemptionReason.isEmpty())
            missing << QStringLiteral("%1 is “%2”, which needs a reason why VAT is not charged (Preferences ▸ Taxes)")
                           .arg(tabo >= 0 ? taxName(prefs, tabo) : QStringLiteral("A tax"), t.category.code);
        if (t.category.code == QLatin1String("AE") || t.category.code == QLatin1String("K"))
            need(b.vatId, QStringLiteral("The client's VAT ID is missing, which reverse charge and intra-community "
                                         "supplies need (Client ▸ Address)"));
        inv.taxes << t;
        taxTotal += cents(t.amount);
    }
    const bool hasO = std::any_of(inv.taxes.begin(), inv.taxes.end(),
                                  [](const TaxBreakdown &t) { return t.category.code == QLatin1String("O"); });
    if (hasO && inv.taxes.size() > 1)
        refusals << QStringLiteral("Supplies not subject to VAT cannot share an e-invoice with taxed ones.");

    inv.lineTotal = fromCents(lineCents);
    inv.taxExclusive = fromCents(lineCents - cents(inv.allowanceTotal) + cents(inv.chargeTotal));
    inv.taxTotal = fromCents(taxTotal);
    inv.taxInclusive = fromCents(cents(inv.taxExclusive) + taxTotal);
    const qint64 total = cents(inv.taxInclusive) + cents(inv.rounding);
    if (total != printedTotal && refusals.isEmpty()) {
        refusals << QStringLiteral("The invoice prints a total of %1; stated the standard's way it comes to %2.")
                        .arg(amount(fromCents(printedTotal)), amount(fromCents(total)));
        m.toTheCentHelps = !toTheCent;
    }
    const double paid = doc.num(Invoice::paidAmount);
    inv.prepaid = std::isfinite(paid) && paid > 0 ? fromCents(std::min(cents(paid), total)) : 0.0;
    inv.payable = fromCents(total - cents(inv.prepaid));
    if (const QString preceding = doc.text(Invoice::precedingNumber).trimmed(); !preceding.isEmpty()) {
        // A credit note: the standard states it with its own type and the
        // amounts of what it takes back, not as an invoice of negative ones.
        inv.typeCode = QStringLiteral("381");
        inv.precedingNumber = preceding;
        inv.precedingDate = QDate::fromString(doc.text(Invoice::precedingDate), Qt::ISODate);
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
    if (cents(inv.payable) > 0 && !inv.dueDate.isValid() && inv.paymentTerms.isEmpty() && inv.typeCode == QLatin1String("380"))
        missing << QStringLiteral("The invoice needs a due date or payment conditions (Dates and status, Texts)");
    return m;
}

} // namespace tabo::einvoice
