#pragma once

#include "base/Result.h"

#include <QDate>
#include <QHash>
#include <QSet>
#include <QString>

struct sqlite3;

namespace tabo {

// The bank bookings taken in as payments (the `_Payment` table): a booking's
// reference is written in the transaction that raises the invoice's paid
// amount, so a second import of the same statement, in this process or
// another, can never count it twice.
namespace PaymentLedger {

struct Entry
{
    QString reference;
    QString invoice; // the invoice's uniqueID
    qint64 cents = 0;
    QDate booked;
    QString payer;
    QString iban;
};

Result<QSet<QString>> references(sqlite3 *db);
// The client name each IBAN paid for before (from the invoices matched).
Result<QHash<QString, QString>> payersByIban(sqlite3 *db, const QHash<QString, QString> &clientOfInvoice);
Result<bool> contains(sqlite3 *db, const QString &reference);
// Inside a write transaction.
Error add(sqlite3 *db, const Entry &entry);
Error remove(sqlite3 *db, const QString &reference);

} // namespace PaymentLedger

} // namespace tabo
