#pragma once

#include "base/Result.h"
#include "payments/Statement.h"

#include <QHash>
#include <QStringList>

#include <optional>

namespace tabo::payments {

// Which column (0-based, -1 for none) of a bank's CSV export holds what.
struct CsvColumns
{
    int date = -1;
    int amount = -1; // signed; or the two below
    int credit = -1;
    int debit = -1;
    int currency = -1;
    int payer = -1;
    int iban = -1;
    int text = -1;
    int reference = -1;

    bool isUsable() const { return date >= 0 && (amount >= 0 || credit >= 0); }
    bool operator==(const CsvColumns &) const = default;
    // "date=1,amount=4,…" with columns counted from 1, as a person names them.
    QString toText() const;
    // Reads that form; a column may also be named by its heading. Refused
    // with a sentence when a field or column is unknown.
    static Result<CsvColumns> fromText(const QString &text, const QStringList &header);
};

// A CSV file split into its heading and rows. Banks write the heading after
// some lines about the account, in UTF-8 or Latin-1, with ';' or ','.
struct CsvTable
{
    QChar separator;
    QStringList header;
    QList<QStringList> rows;
    // The same for every export laid out like this one: what a remembered
    // column mapping is kept under.
    QString layoutKey() const;
};

Result<CsvTable> splitCsv(const QByteArray &data);

// The columns recognised by their headings in the common German, French and
// Spanish exports; isUsable() is false when the date or amount is not found.
CsvColumns detectColumns(const QStringList &header);

// The credits of the table. `columns` from detectColumns or as remembered.
Result<Statement> readCsvStatement(const CsvTable &table, const CsvColumns &columns, QDate today);

} // namespace tabo::payments
