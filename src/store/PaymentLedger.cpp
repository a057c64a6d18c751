#include "store/PaymentLedger.h"

#include "store/Schema.h"
#include "store/SqlStatement.h"

#include <QCoreApplication>


namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(PaymentLedger)
};

// Statements of the payments table, named "%1" in their text.
struct Statement : tabo::SqlStatement
{
    Statement(sqlite3 *db, const QString &sql)
        : SqlStatement(db, sql.arg(tabo::schema::kPaymentTable))
    {
    }
};

tabo::Error failed(sqlite3 *db)
{
    return tabo::Error::file(
        Tr::tr("The payments taken in could not be read or written: %1").arg(QString::fromUtf8(sqlite3_errmsg(db))));
}

} // namespace

namespace tabo::PaymentLedger {

Result<QSet<QString>> references(sqlite3 *db)
{
    Statement st(db, QStringLiteral("SELECT \"reference\" FROM \"%1\""));
    if (!st.get())
        return failed(db);
    QSet<QString> out;
    while (sqlite3_step(st.get()) == SQLITE_ROW)
        out << st.text(0);
    return out;
}

Result<QHash<QString, QString>> payersByIban(sqlite3 *db, const QHash<QString, QString> &clientOfInvoice)
{
    Statement st(db, QStringLiteral("SELECT \"iban\", \"invoice\" FROM \"%1\" WHERE \"iban\" <> ''"));
    if (!st.get())
        return failed(db);
    QHash<QString, QString> out;
    while (sqlite3_step(st.get()) == SQLITE_ROW) {
        const QString client = clientOfInvoice.value(st.text(1));
        if (!client.isEmpty())
            out.insert(st.text(0), client);
    }
    return out;
}

Result<bool> contains(sqlite3 *db, const QString &reference)
{
    Statement st(db, QStringLiteral("SELECT 1 FROM \"%1\" WHERE \"reference\" = ?"));
    if (!st.get())
        return failed(db);
    st.bind(1, reference);
    return sqlite3_step(st.get()) == SQLITE_ROW;
}

Error add(sqlite3 *db, const Entry &entry)
{
    Statement st(db,
        QStringLiteral("INSERT INTO \"%1\" (\"reference\", \"invoice\", \"cents\", \"booked\", \"payer\", "
                       "\"iban\") VALUES (?, ?, ?, ?, ?, ?)"));
    if (!st)
        return failed(db);
    st.bind(1, entry.reference);
    st.bind(2, entry.invoice);
    st.bind(3, entry.cents);
    st.bind(4, entry.booked.toString(Qt::ISODate));
    st.bind(5, entry.payer);
    st.bind(6, entry.iban);
    return st.run() ? Error {} : failed(db);
}

Error remove(sqlite3 *db, const QString &reference)
{
    Statement st(db, QStringLiteral("DELETE FROM \"%1\" WHERE \"reference\" = ?"));
    if (!st.get())
        return failed(db);
    st.bind(1, reference);
    return st.run() ? Error {} : failed(db);
}

} // namespace tabo::PaymentLedger
