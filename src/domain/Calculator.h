#pragma once

#include "base/Date.h"

#include <QList>

#include <cstdint>

namespace tabo {

class Preferences;
class Record;

// The summary figures of the document list.
struct Summary
{
    std::uint32_t invoiceCount = 0;
    std::uint32_t quoteCount = 0;
    std::uint32_t invoiceCountForNumber = 0;
    float totalAmount = 0;
    float paidAmount = 0;
    float dueAmount = 0;

    friend bool operator==(const Summary &, const Summary &) = default;
};

// The preferences the calculation reads.
struct TaxSettings
{
    bool beforeTaxesBool = false;
    bool tax2IsCompound = false;
    bool tax3IsCompound = false;
    static TaxSettings from(const Preferences &prefs);
};

// One VAT rate of a document calculated to the cent, in cents.
struct RateShare
{
    int tax = -1; // the document's tax (0..2), or -1 for untaxed amounts
    std::int64_t basisPoints = 0; // the rate in 1/100 %
    std::int64_t net = 0;         // its lines
    std::int64_t discount = 0;    // its part of the document discount
    std::int64_t shipping = 0;
    std::int64_t taxAmount = 0;
    std::int64_t taxable() const { return net - discount + shipping; }
};

// A document's figures the way EN 16931 computes them: every printed amount
// is a whole number of cents and the total is the sum of what is printed.
struct CentExactTotals
{
    QList<std::int64_t> lineNets; // in the order of the document's items
    QList<RateShare> rates;       // untaxed first, then by tax
    std::int64_t net = 0;
    std::int64_t discount = 0;
    std::int64_t shipping = 0;
    std::int64_t taxes = 0;
    std::int64_t total = 0;
    const RateShare *rate(int tax) const;
};

// Document totals on the three calculation paths. The paths differ on purpose
// in rounding, precision and where the discount acts; they are kept apart
// rather than unified, because printed invoices must not change.
class Calculator
{
public:
    // Rounding by formatting with "%.Nf" and parsing back.
    static double r2(double x);
    static double r3(double x);
    static double r4(double x);

    // Chooses the path and writes line and document amounts. The summary pass
    // is the caller's next step (the controller runs it over the list).
    static void calculateInvoice(Record &invoice, const TaxSettings &settings);
    static void calculateInvoiceWithoutTaxes(Record &invoice);
    static void calculateInvoiceTaxesStandard(Record &invoice, const TaxSettings &settings);
    static void calculateInvoiceTaxesCompound(Record &invoice, const TaxSettings &settings);
    // The second calculation, for documents marked `centExactTotals`: line
    // nets to the cent, the discount split over the rates, each rate's tax
    // rounded once. Lines with two taxes or a compound tax, and shipping
    // with them, are beyond it; such documents take the paths above.
    static bool canCalculateToTheCent(const Record &invoice, const TaxSettings &settings);
    static CentExactTotals centExactTotals(const Record &invoice);
    static void calculateInvoiceToTheCent(Record &invoice);
    // quantity (3 decimals) × unit price (4 decimals), to the cent, rounded
    // half away from zero on the exact decimal product.
    static std::int64_t centExactLineNet(const Record &item);
    // The discount as the document's row prints it: what the path took off.
    static double discountShown(const Record &invoice, const TaxSettings &settings);

    // Exists and does nothing: line results come only from the document paths.
    static void calculateItem(Record &item);

    // The summary pass over the list's arranged contents: refreshes statuses,
    // stamps `paid`, and returns the figures.
    static Summary calculateDatabase(const QList<Record *> &arranged, Date now);
};

} // namespace tabo
