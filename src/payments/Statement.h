#pragma once

#include "base/Result.h"

#include <QDate>
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
    QString format; // "CAMT.053", "CAMT.054", "MT940"
    QList<Credit> credits;
    int debitsSkipped = 0;
};

// Reads a statement in one of the formats banks give their customers:
// ISO 20022 CAMT.053 or CAMT.054 (XML) or MT940. Debits are left out. A file
// of another format, a damaged one, an unknown currency, a zero amount or a
// booking date after `today` is refused with a sentence.
Result<Statement> readStatement(const QByteArray &data, QDate today);
Result<Statement> readStatementFile(const QString &path, QDate today);

// Whole cents of a decimal amount written with a point or a comma ("1234,5").
std::optional<qint64> centsOf(QString text);

} // namespace tabo::payments
