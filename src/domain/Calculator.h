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
    // Exists and does nothing: line results come only from the document paths.
    static void calculateItem(Record &item);

    // The summary pass over the list's arranged contents: refreshes statuses,
    // stamps `paid`, and returns the figures.
    static Summary calculateDatabase(const QList<Record *> &arranged, Date now);
};

} // namespace tabo
