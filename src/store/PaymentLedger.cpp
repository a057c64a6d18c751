#include "store/PaymentLedger.h"

#include "store/Schema.h"

#include <QCoreApplication>

#include <sqlite3.h>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(PaymentLedger)
};

// A prepared statement that finalizes itself.
class Statement
{
public:
    Statement(sqlite3 *db, const QString &sql)
    {
        sqlite3_prepare_v2(db, sql.arg(tabo::schema::kPaymentTable).toUtf8().constData(), -1, &m_st, nullptr);
    }
    ~Statement() { sqlite3_finalize(m_st); }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;
    sqlite3_stmt *get() const { return m_st; }
    void bind(int i, const QString &text)
    {
        const QByteArray utf8 = text.toUtf8();
        sqlite3_bind_text(m_st, i, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
    }
    QString text(int column) const
    {
        return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(m_st, column)));
    }

private:
    sqlite3_stmt *m_st = nullptr;
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
    if (!st.get())
        return failed(db);
    st.bind(1, entry.reference);
    st.bind(2, entry.invoice);
    sqlite3_bind_int64(st.get(), 3, entry.cents);
    st.bind(4, entry.booked.toString(Qt::ISODate));
    st.bind(5, entry.payer);
    st.bind(6, entry.iban);
    return sqlite3_step(st.get()) == SQLITE_DONE ? Error {} : failed(db);
}

Error remove(sqlite3 *db, const QString &reference)
{
    Statement st(db, QStringLiteral("DELETE FROM \"%1\" WHERE \"reference\" = ?"));
    if (!st.get())
        return failed(db);
    st.bind(1, reference);
    return sqlite3_step(st.get()) == SQLITE_DONE ? Error {} : failed(db);
}

} // namespace tabo::PaymentLedger
