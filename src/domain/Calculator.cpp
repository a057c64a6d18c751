#include "domain/Calculator.h"

#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "domain/TaxTables.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <system_error>

namespace tabo {

namespace {

using namespace taxes;

// "%.Nf" and back, without the C library's locale: to_chars/from_chars always
// use the C conventions, so a German LC_NUMERIC cannot turn "19.00" into 19.
// to_chars with a precision rounds the exact binary value like printf does
// (ties to even), which is the rounding the totals must reproduce.
template<int Decimals>
double roundFixed(double x)
{
    if (!std::isfinite(x))
        return x; // "nan"/"inf" parse back to themselves
    // The largest double has 309 integer digits.
    char buf[352];
    const auto [end, ec] = std::to_chars(buf, buf + sizeof buf, x, std::chars_format::fixed, Decimals);
    if (ec != std::errc())
        return x;
    double v = 0;
    std::from_chars(buf, end, v, std::chars_format::fixed);
    return v;
}

// The line net every path shares: unit price and quantity each rounded to
// three decimals, the product itself not rounded.
double lineNet(const Record &item)
{
    return Calculator::r3(item.num(Item::baseAmount)) * Calculator::r3(item.num(Item::unitCount));
}

// The fixed-amount discount is routed through its percentage of `base`, so a
// zero base yields NaN, which is stored as it is.
double fixedDiscountThroughPercent(double amount, double base)
{
    return amount / base * 100.0 * base / 100.0;
}

// Lines and taxable bases of the standard path, common to both variants.
struct StandardLines
{
    double net = 0;
    double base[3] = {0, 0, 0};
};

StandardLines standardLines(Record &invoice)
{
    StandardLines out;
    for (Record *item : invoice.toMany(Invoice::items)) {
        double rate[3];
        for (int k = 0; k < 3; ++k)
            rate[k] = Calculator::r4(item->num(kItemPercent[k]));
        const double s = lineNet(*item);
        item->setNum(Item::subAmount, s);
        out.net = Calculator::r2(out.net + s);
        double t[3];
        for (int k = 0; k < 3; ++k) {
            if (item->boolean(kItemApplied[k])) {
                out.base[k] += s;
                t[k] = Calculator::r2(rate[k] * s);
            } else {
                t[k] = 0;
            }
            item->setNum(kItemTaxAmount[k], t[k]);
        }
        // The original writes an interim amount first; only this one counts,
        // and skipping the interim write keeps unchanged records clean.
        item->setNum(Item::amount, Calculator::r2(s + t[0] + t[1] + t[2]));
    }
    return out;
}


enum class Path { WithoutTaxes, Standard, Compound, ToTheCent };

Path pathOf(const Record &invoice, const TaxSettings &settings)
{
    if (invoice.boolean(Invoice::centExactTotals) && Calculator::canCalculateToTheCent(invoice, settings))
        return Path::ToTheCent;
    bool someTax = false;
    bool compound = false;
    for (const Record *item : invoice.toMany(Invoice::items)) {
        const bool t1 = item->boolean(Item::isTax1Applied);
        const bool t2 = item->boolean(Item::isTax2Applied);
        const bool t3 = item->boolean(Item::isTax3Applied);
        if (t1 || t2 || t3)
            someTax = true;
        if ((t2 && item->boolean(Item::isTax2Compound)) || (t3 && item->boolean(Item::isTax3Compound)))
            compound = true;
    }
    if (invoice.boolean(Invoice::isShippingEnabled)) {
        if (invoice.boolean(Invoice::isShippingTax1Enabled))
            someTax = true;
        if (invoice.boolean(Invoice::isShippingTax2Enabled)) {
            someTax = true;
            if (settings.tax2IsCompound)
                compound = true;
        }
        // Steered by the tax-2 preference on purpose; the compound
        // path itself reads tax3IsCompound for the shipping's tax 3.
        if (invoice.boolean(Invoice::isShippingTax3Enabled)) {
            someTax = true;
            if (settings.tax2IsCompound)
                compound = true;
        }
    }
    if (!someTax)
        return Path::WithoutTaxes;
    return compound ? Path::Compound : Path::Standard;
}

// Cents from a value already rounded to `scale` decimals.
std::int64_t scaled(double rounded, double scale)
{
    return std::isfinite(rounded) ? std::llround(rounded * scale) : 0;
}

// num / den to the nearest whole number, halves away from zero (den > 0).
std::int64_t divideRounded(__int128 num, __int128 den)
{
    __int128 q = num / den;
    const __int128 r = num % den;
    if (2 * (r < 0 ? -r : r) >= den)
        q += num < 0 ? -1 : 1;
    return std::int64_t(q);
}

double fromCents(std::int64_t c)
{
    return double(c) / 100.0;
}

// The one tax an item or the shipping carries, -1 for none, -2 for more.
int singleTax(const bool applied[3])
{
    int tax = -1;
    for (int k = 0; k < 3; ++k)
        if (applied[k])
            tax = tax == -1 ? k : -2;
    return tax;
}

int itemTax(const Record &item)
{
    const bool applied[3] = {item.boolean(Item::isTax1Applied), item.boolean(Item::isTax2Applied),
                             item.boolean(Item::isTax3Applied)};
    return singleTax(applied);
}

int shippingTax(const Record &invoice)
{
    const bool applied[3] = {invoice.boolean(Invoice::isShippingTax1Enabled),
                             invoice.boolean(Invoice::isShippingTax2Enabled),
                             invoice.boolean(Invoice::isShippingTax3Enabled)};
    return singleTax(applied);
}

} // namespace

TaxSettings TaxSettings::from(const Preferences &prefs)
{
    TaxSettings s;
    s.beforeTaxesBool = prefs.boolean(Preferences::beforeTaxesBool);
    s.tax2IsCompound = prefs.boolean(Preferences::tax2IsCompound);
    s.tax3IsCompound = prefs.boolean(Preferences::tax3IsCompound);
    return s;
}

double Calculator::r2(double x)
{
    return roundFixed<2>(x);
}

double Calculator::r3(double x)
{
    return roundFixed<3>(x);
}

double Calculator::r4(double x)
{
    return roundFixed<4>(x);
}

void Calculator::calculateItem(Record &)
{
}

void Calculator::calculateInvoice(Record &invoice, const TaxSettings &settings)
{
    switch (pathOf(invoice, settings)) {
    case Path::WithoutTaxes: calculateInvoiceWithoutTaxes(invoice); break;
    case Path::Standard: calculateInvoiceTaxesStandard(invoice, settings); break;
    case Path::Compound: calculateInvoiceTaxesCompound(invoice, settings); break;
    case Path::ToTheCent: calculateInvoiceToTheCent(invoice); break;
    }
}

void Calculator::calculateInvoiceWithoutTaxes(Record &invoice)
{
    double net = 0;
    for (Record *item : invoice.toMany(Invoice::items)) {
        const double s = lineNet(*item);
        item->setNum(Item::subAmount, s);
        item->setNum(Item::tax1Amount, 0.0);
        item->setNum(Item::tax2Amount, 0.0);
        item->setNum(Item::tax3Amount, 0.0);
        item->setNum(Item::amount, r2(s));
        net = r2(net + s);
    }
    const double shipping =
        invoice.boolean(Invoice::isShippingEnabled) ? r2(invoice.num(Invoice::shippingAmount)) : 0.0;
    double discount = 0;
    if (invoice.boolean(Invoice::isDiscountEnabled)) {
        if (invoice.integer(Invoice::discountKind) != 0)
            discount = r4(invoice.num(Invoice::discountPercent)) * net; // items only, not shipping
        else
            discount = fixedDiscountThroughPercent(r2(invoice.num(Invoice::discountAmount)), net);
    }
    // tax1Amount..tax3Amount of the document stay as they were.
    invoice.setNum(Invoice::amount, net + shipping - discount);
    invoice.setNum(Invoice::subAmount, net);
}

void Calculator::calculateInvoiceTaxesStandard(Record &invoice, const TaxSettings &settings)
{
    StandardLines lines = standardLines(invoice);
    const double net = lines.net;
    invoice.setNum(Invoice::subAmount, net);
    double total = net;

    if (invoice.boolean(Invoice::isShippingEnabled)) {
        const double shipping = r2(invoice.num(Invoice::shippingAmount));
        for (int k = 0; k < 3; ++k)
            if (invoice.boolean(kShippingTax[k]))
                lines.base[k] += shipping;
        total += shipping;
    }

    double rate[3];
    for (int k = 0; k < 3; ++k)
        rate[k] = r4(invoice.num(kDocPercent[k]));
    const bool discountEnabled = invoice.boolean(Invoice::isDiscountEnabled);
    const bool percentDiscount = invoice.integer(Invoice::discountKind) != 0;

    // A base below 0 has always given no tax; a credit note's negated lines
    // are taxed, or it would refund the net amount only.
    const bool creditNote = !invoice.text(Invoice::precedingNumber).isEmpty();
    const auto taxed = [creditNote](double base) { return creditNote ? base != 0 : base > 0; };

    if (settings.beforeTaxesBool) {
        // The discount reduces the total only; the taxable bases stay whole.
        if (discountEnabled) {
            const double discount =
                percentDiscount ? r4(invoice.num(Invoice::discountPercent)) * total
                                : fixedDiscountThroughPercent(r2(invoice.num(Invoice::discountAmount)), total);
            total -= discount;
        }
        double tax[3];
        for (int k = 0; k < 3; ++k) {
            tax[k] = taxed(lines.base[k]) ? lines.base[k] * rate[k] : 0.0;
            invoice.setNum(kDocTaxAmount[k], tax[k]);
        }
        invoice.setNum(Invoice::amount, r2(total + tax[0] + tax[1] + tax[2]));
        return;
    }

    // Discount after taxes. A base that is not above 0 gives no tax and, unlike
    // the before-taxes variant, leaves the document's tax amount as it was.
    double tax[3];
    for (int k = 0; k < 3; ++k) {
        if (taxed(lines.base[k])) {
            tax[k] = lines.base[k] * rate[k];
            invoice.setNum(kDocTaxAmount[k], tax[k]);
        } else {
            tax[k] = 0;
        }
    }
    total = total + tax[0] + tax[1] + tax[2];
    if (discountEnabled) {
        if (percentDiscount) {
            const float p = invoice.single(Invoice::discountPercent);
            total = total - total * p;
        } else {
            total = total - invoice.num(Invoice::discountAmount);
        }
    }
    invoice.setNum(Invoice::amount, r2(total));
}

void Calculator::calculateInvoiceTaxesCompound(Record &invoice, const TaxSettings &settings)
{
    double net = 0;
    double sum[3] = {0, 0, 0};
    for (Record *item : invoice.toMany(Invoice::items)) {
        const double r1 = r3(item->num(Item::tax1Percent));
        const double r2_ = r3(item->num(Item::tax2Percent));
        const double r3_ = r3(item->num(Item::tax3Percent));
        const double s = lineNet(*item);
        item->setNum(Item::subAmount, s);
        net = r2(net + s);

        const double t1 = item->boolean(Item::isTax1Applied) ? r2(r1 * s) : 0.0;
        item->setNum(Item::tax1Amount, t1);
        sum[0] += t1;

        // The compound forms use r1 even when tax 1 is not applied to the line.
        double t2 = 0;
        if (item->boolean(Item::isTax2Applied)) {
            if (item->boolean(Item::isTax2Compound)) {
                const double x = r2(s + r1 * s);
                t2 = r2(x * r2_);
            } else {
                t2 = r2(r2_ * s);
            }
        }
        item->setNum(Item::tax2Amount, t2);
        sum[1] += t2;

        double t3 = 0;
        if (item->boolean(Item::isTax3Applied)) {
            if (item->boolean(Item::isTax3Compound)) {
                const double x = r2(s + r1 * s);
                const double y = r2(x + r2_ * x);
                t3 = r2(y * r3_);
            } else {
                t3 = r2(r3_ * s);
            }
        }
        item->setNum(Item::tax3Amount, t3);
        sum[2] += t3;

        item->setNum(Item::amount, r2(s + t1 + t2 + t3));
    }

    double shipping = 0;
    if (invoice.boolean(Invoice::isShippingEnabled)) {
        shipping = invoice.num(Invoice::shippingAmount);
        // Single precision throughout, with the document's rates as stored.
        const float sp = float(shipping);
        const double rate1 = invoice.num(Invoice::tax1Percent);
        const double rate2 = invoice.num(Invoice::tax2Percent);
        const double rate3 = invoice.num(Invoice::tax3Percent);
        if (invoice.boolean(Invoice::isShippingTax1Enabled)) {
            const float t = float(sp * rate1);
            sum[0] += t;
        }
        if (invoice.boolean(Invoice::isShippingTax2Enabled)) {
            float t;
            if (settings.tax2IsCompound) {
                const float x = sp + float(sp * rate1);
                t = float(x * rate2);
            } else {
                t = float(sp * rate2);
            }
            sum[1] += t;
        }
        if (invoice.boolean(Invoice::isShippingTax3Enabled)) {
            float t;
            if (settings.tax3IsCompound) {
                const float x = sp + float(sp * rate1);
                const float y = x + float(x * rate2);
                t = float(y * rate3);
            } else {
                t = float(sp * rate3);
            }
            sum[2] += t;
        }
    }

    double total = net + sum[0] + sum[1] + sum[2] + shipping;
    // With the discount taken before taxes this path applies no discount at
    // all; kept as it stands.
    if (invoice.boolean(Invoice::isDiscountEnabled) && !settings.beforeTaxesBool) {
        if (invoice.integer(Invoice::discountKind) != 0) {
            const float p = invoice.single(Invoice::discountPercent);
            total = total - total * p;
        } else {
            total = total - invoice.num(Invoice::discountAmount);
        }
    }
    invoice.setNum(Invoice::amount, total);
    invoice.setNum(Invoice::subAmount, net);
    invoice.setNum(Invoice::tax1Amount, sum[0]);
    invoice.setNum(Invoice::tax2Amount, sum[1]);
    invoice.setNum(Invoice::tax3Amount, sum[2]);
}

const RateShare *CentExactTotals::rate(int tax) const
{
    for (const RateShare &r : rates)
        if (r.tax == tax)
            return &r;
    return nullptr;
}

bool Calculator::canCalculateToTheCent(const Record &invoice, const TaxSettings &settings)
{
    for (const Record *item : invoice.toMany(Invoice::items)) {
        const int tax = itemTax(*item);
        if (tax == -2 || (tax == 1 && item->boolean(Item::isTax2Compound))
            || (tax == 2 && item->boolean(Item::isTax3Compound)))
            return false;
    }
    if (!invoice.boolean(Invoice::isShippingEnabled))
        return true;
    const int tax = shippingTax(invoice);
    return tax != -2 && !(tax == 1 && settings.tax2IsCompound) && !(tax == 2 && settings.tax3IsCompound);
}

std::int64_t Calculator::centExactLineNet(const Record &item)
{
    // Thousandths of a unit times ten-thousandths of a cent-unit: the exact
    // decimal product, so 0.125 rounds up as it reads, not as a double lies.
    const __int128 quantity = scaled(r3(item.num(Item::unitCount)), 1e3);
    const __int128 price = scaled(r4(item.num(Item::baseAmount)), 1e4);
    return divideRounded(quantity * price, 100000);
}

CentExactTotals Calculator::centExactTotals(const Record &invoice)
{
    CentExactTotals out;
    const auto share = [&out, &invoice](int tax) -> RateShare & {
        for (RateShare &r : out.rates)
            if (r.tax == tax)
                return r;
        RateShare r;
        r.tax = tax;
        if (tax >= 0)
            r.basisPoints = scaled(r4(invoice.num(kDocPercent[tax])), 1e4);
        const auto at = std::find_if(out.rates.begin(), out.rates.end(),
                                     [tax](const RateShare &o) { return o.tax > tax; });
        return *out.rates.insert(at, r);
    };

    const QList<Record *> items = invoice.toMany(Invoice::items);
    out.lineNets.reserve(items.size());
    for (const Record *item : items) {
        const std::int64_t net = centExactLineNet(*item);
        out.lineNets << net;
        out.net += net;
        share(std::max(itemTax(*item), -1)).net += net;
    }

    if (invoice.boolean(Invoice::isDiscountEnabled)) {
        out.discount = invoice.integer(Invoice::discountKind) != 0
            ? divideRounded(__int128(out.net) * scaled(r4(invoice.num(Invoice::discountPercent)), 1e4), 10000)
            : scaled(r2(invoice.num(Invoice::discountAmount)), 100);
    }
    if (out.discount != 0) {
        // Split by the rates' nets; the cents the division leaves go to the
        // largest share, so the parts add up to the discount.
        RateShare *largest = nullptr;
        std::int64_t given = 0;
        for (RateShare &r : out.rates) {
            if (out.net != 0)
                r.discount = std::int64_t(__int128(out.discount) * r.net / out.net);
            given += r.discount;
            if (!largest || std::abs(r.net) > std::abs(largest->net))
                largest = &r;
        }
        if (!largest)
            largest = &share(-1);
        largest->discount += out.discount - given;
    }

    if (invoice.boolean(Invoice::isShippingEnabled)) {
        out.shipping = scaled(r2(invoice.num(Invoice::shippingAmount)), 100);
        if (out.shipping != 0)
            share(std::max(shippingTax(invoice), -1)).shipping += out.shipping;
    }

    for (RateShare &r : out.rates) {
        r.taxAmount = r.tax >= 0 ? divideRounded(__int128(r.taxable()) * r.basisPoints, 10000) : 0;
        out.taxes += r.taxAmount;
    }
    out.total = out.net - out.discount + out.shipping + out.taxes;
    return out;
}

void Calculator::calculateInvoiceToTheCent(Record &invoice)
{
    const CentExactTotals totals = centExactTotals(invoice);
    const QList<Record *> items = invoice.toMany(Invoice::items);
    for (qsizetype i = 0; i < items.size(); ++i) {
        Record *item = items[i];
        const std::int64_t net = totals.lineNets[i];
        const int tax = itemTax(*item);
        std::int64_t lineTax = 0;
        for (int k = 0; k < 3; ++k) {
            // What the line adds at its rate; the document's tax is levied
            // on the rate's sum, so these are shown, not added up.
            const std::int64_t t = k == tax ? divideRounded(__int128(net) * totals.rate(k)->basisPoints, 10000) : 0;
            item->setNum(kItemTaxAmount[k], fromCents(t));
            lineTax += t;
        }
        item->setNum(Item::subAmount, fromCents(net));
        item->setNum(Item::amount, fromCents(net + lineTax));
    }
    for (int k = 0; k < 3; ++k) {
        const RateShare *r = totals.rate(k);
        invoice.setNum(kDocTaxAmount[k], fromCents(r ? r->taxAmount : 0));
    }
    invoice.setNum(Invoice::subAmount, fromCents(totals.net));
    invoice.setNum(Invoice::amount, fromCents(totals.total));
}

double Calculator::discountShown(const Record &invoice, const TaxSettings &settings)
{
    if (!invoice.boolean(Invoice::isDiscountEnabled))
        return 0;
    const bool percent = invoice.integer(Invoice::discountKind) != 0;
    const double net = invoice.num(Invoice::subAmount);
    const double shipping =
        invoice.boolean(Invoice::isShippingEnabled) ? r2(invoice.num(Invoice::shippingAmount)) : 0.0;
    const double taxes =
        invoice.num(Invoice::tax1Amount) + invoice.num(Invoice::tax2Amount) + invoice.num(Invoice::tax3Amount);
    const double amount = invoice.num(Invoice::discountAmount);
    const double rate = r4(invoice.num(Invoice::discountPercent));
    const float single = invoice.single(Invoice::discountPercent);
    switch (pathOf(invoice, settings)) {
    case Path::ToTheCent: return fromCents(centExactTotals(invoice).discount);
    case Path::WithoutTaxes: return r2(percent ? rate * net : r2(amount));
    case Path::Standard:
        if (settings.beforeTaxesBool)
            return r2(percent ? rate * (net + shipping) : r2(amount));
        return r2(percent ? (net + shipping + taxes) * single : amount);
    case Path::Compound:
        if (settings.beforeTaxesBool)
            return 0; // this path has never taken it
        return r2(percent ? (net + shipping + taxes) * single : amount);
    }
    return 0;
}

Summary Calculator::calculateDatabase(const QList<Record *> &arranged, Date now)
{
    // Runs after every edit over the whole list, so it reads through the index
    // accessors only, allocates nothing and changes nothing that is already
    // right (Record::setNum ignores a write of the value it holds).
    Summary out;
    // An empty `due` reads as 0 seconds, i.e. 2001-01-01.
    const double nowSecs = now.referenceSeconds();
    Record *const *docs = arranged.constData();
    const qsizetype count = arranged.size();
    // The kinds of a small block are read first: those reads do not depend on
    // each other, so their cache misses overlap, and the block's records are
    // in cache when they are worked on.
    constexpr qsizetype kBlock = 32;
    double kinds[kBlock];
    for (qsizetype first = 0; first < count; first += kBlock) {
        const qsizetype n = std::min(kBlock, count - first);
        for (qsizetype j = 0; j < n; ++j)
            kinds[j] = docs[first + j]->num(Invoice::kind);
        for (qsizetype j = 0; j < n; ++j) {
            if (int(kinds[j]) != 1) {
                ++out.quoteCount;
                continue;
            }
            ++out.invoiceCountForNumber;
            Record *doc = docs[first + j];
            const double storedStatus = doc->num(Invoice::status);
            int status = int(storedStatus);
            if (status <= 0)
                continue;

            const double amount = doc->num(Invoice::amount);
            if (status == 1 || status == 2) {
                status = nowSecs > doc->num(Invoice::due) ? 2 : 1;
                if (double(status) != storedStatus)
                    doc->setInt(Invoice::status, status);
            }
            if (status > 2 && !doc->boolean(Invoice::isPaid)) {
                if (status == 3)
                    doc->setNum(Invoice::paidAmount, amount);
                doc->setDate(Invoice::paid, now);
                doc->setBool(Invoice::isPaid, true);
            }
            // The amounts a status fixes are written without being read
            // first: setNum ignores a write of the value already held, and
            // one call is cheaper than a read and a write.
            double paidAmount;
            double dueAmount;
            switch (status) {
            case 1:
                dueAmount = 0.0;
                doc->setNum(Invoice::dueAmount, dueAmount);
                paidAmount = doc->num(Invoice::paidAmount);
                break;
            case 2:
                dueAmount = amount;
                doc->setNum(Invoice::dueAmount, dueAmount);
                paidAmount = 0.0;
                doc->setNum(Invoice::paidAmount, paidAmount);
                break;
            case 3:
                paidAmount = amount;
                doc->setNum(Invoice::paidAmount, paidAmount);
                dueAmount = 0.0;
                doc->setNum(Invoice::dueAmount, dueAmount);
                break;
            case 4:
                paidAmount = doc->num(Invoice::paidAmount);
                dueAmount = double(float(amount) - float(paidAmount)); // single precision
                doc->setNum(Invoice::dueAmount, dueAmount);
                break;
            default:
                paidAmount = doc->num(Invoice::paidAmount);
                dueAmount = doc->num(Invoice::dueAmount);
                break;
            }

            out.totalAmount += float(amount);
            out.paidAmount += float(paidAmount);
            out.dueAmount += float(dueAmount);
            ++out.invoiceCount;
        }
    }
    return out;
}

} // namespace tabo
