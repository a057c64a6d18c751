#pragma once

#include "base/Error.h"

#include <QString>

#include <sqlite3.h>

namespace tabo {

// A prepared statement of the tables kept beside the entities, finalized
// when it goes. A statement that failed to prepare is false, and every step
// of it fails; error() then says why.
class SqlStatement
{
public:
    SqlStatement(sqlite3 *db, const QString &sql)
        : m_db(db)
    {
        if (db)
            sqlite3_prepare_v2(db, sql.toUtf8().constData(), -1, &m_st, nullptr);
    }
    ~SqlStatement() { sqlite3_finalize(m_st); }
    SqlStatement(const SqlStatement &) = delete;
    SqlStatement &operator=(const SqlStatement &) = delete;

    explicit operator bool() const { return m_st != nullptr; }
    sqlite3_stmt *get() const { return m_st; }
    // A null text is bound as the empty one, as the tables have always held it.
    void bind(int i, const QString &text)
    {
        const QByteArray utf8 = text.toUtf8();
        sqlite3_bind_text(m_st, i, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
    }
    void bindNull(int i) { sqlite3_bind_null(m_st, i); }
    void bind(int i, double v) { sqlite3_bind_double(m_st, i, v); }
    void bind(int i, qint64 v) { sqlite3_bind_int64(m_st, i, v); }
    // A null column reads as a null text.
    QString text(int column) const
    {
        const auto *t = reinterpret_cast<const char *>(sqlite3_column_text(m_st, column));
        return t ? QString::fromUtf8(t) : QString();
    }
    int integer(int column) const { return sqlite3_column_int(m_st, column); }
    // Runs a statement that returns no rows.
    bool run() { return m_st && sqlite3_step(m_st) == SQLITE_DONE; }
    Error error(const QString &what) const
    {
        return Error { Error::Store, m_db ? sqlite3_errcode(m_db) : SQLITE_MISUSE, what,
            m_db ? QString::fromUtf8(sqlite3_errmsg(m_db)) : QString() };
    }

private:
    sqlite3 *m_db;
    sqlite3_stmt *m_st = nullptr;
};

} // namespace tabo
