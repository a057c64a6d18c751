#pragma once

#include "base/Result.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QString>

namespace tabo::payments {

// One credit on a bank statement: money that came in.
struct Credit
{
    // The bank's own reference of the booking; what makes a second import of
    // the same or an overlapping statement recognise it.
    QString reference;
    QDate booked;
    qint64 cents = 0;
    QString currency;
    QString payer;
    QString iban;
    // The remittance information (Verwendungszweck) as one line.
    QString text;
};

struct Statement
{
    QString format; // "CAMT.053", "CAMT.054", "MT940", "CSV"
    QList<Credit> credits;
    int debitsSkipped = 0;
    // A CSV file's layout and the columns read ("date=1,amount=4,…"), to be
    // remembered when the person named them.
    QString layoutKey;
    QString columns;
};

// How the columns of a CSV statement are found: as the person names them
// (CsvColumns::toText's form), else as remembered for files of the same
// layout (layout key → columns), else by their headings.
struct CsvOptions
{
    QString columns;
    QHash<QString, QString> remembered;
};

// Reads a statement in one of the formats banks give their customers:
// ISO 20022 CAMT.053 or CAMT.054 (XML), MT940 or CSV. Debits are left out. A file
// of another format, a damaged one, an unknown currency, a zero amount or a
// booking date after `today` is refused with a sentence.
Result<Statement> readStatement(const QByteArray &data, QDate today, const CsvOptions &csv = {});
Result<Statement> readStatementFile(const QString &path, QDate today, const CsvOptions &csv = {});

// A reference for a booking the bank gave none: the same booking in a
// second file gets the same one.
QString madeUpReference(const Credit &credit, const QString &context);
// Refuses a credit without a date, booked after `today`, of no amount or in
// no currency; `number` counts the statement's entries for the message.
Error checkCredit(const Credit &credit, QDate today, int number);

// Whole cents of a decimal amount written with a point or a comma ("1234,5").
std::optional<qint64> centsOf(QString text);

} // namespace tabo::payments
