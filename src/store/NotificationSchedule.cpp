#include "store/NotificationSchedule.h"

#include "store/Schema.h"
#include "store/SqlStatement.h"
#include "store/Store.h"

#include <QCoreApplication>
#include <sqlite3.h>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(NotificationSchedule)
};
} // namespace

namespace tabo {

namespace {

// Statements of the notification table, named "%1" in their text.
struct Statement : SqlStatement
{
    Statement(sqlite3 *db, const QString &sql)
        : SqlStatement(db, sql.arg(schema::kNotificationTable))
    {
    }
};

const QString kColumns = QStringLiteral("\"id\", \"uniqueID\", \"title\", \"subtitle\", \"text\", \"date\", \"sound\", \"delivered\"");

QString text(sqlite3_stmt *st, int col)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(st, col)), sqlite3_column_bytes(st, col));
}

ScheduledNotification readRow(sqlite3_stmt *st)
{
    ScheduledNotification n;
    n.id = sqlite3_column_int64(st, 0);
    n.uniqueID = text(st, 1);
    n.title = text(st, 2);
    n.subtitle = text(st, 3);
    n.text = text(st, 4);
    n.date = Date::fromReferenceSeconds(sqlite3_column_double(st, 5));
    n.sound = sqlite3_column_int(st, 6) != 0;
    if (sqlite3_column_type(st, 7) != SQLITE_NULL)
        n.delivered = Date::fromReferenceSeconds(sqlite3_column_double(st, 7));
    return n;
}

QString kWriteFailed()
{
    return Tr::tr("The notification could not be saved.");
}

} // namespace

Error NotificationSchedule::schedule(ScheduledNotification &n)
{
    if (!n.date.isValid())
        return Error { Error::Store, SQLITE_MISUSE, kWriteFailed(), Tr::tr("It has no date.") };
    return m_store.write([&n](sqlite3 *db) {
        Statement st(db, QStringLiteral("INSERT INTO \"%1\" (\"uniqueID\", \"title\", \"subtitle\", \"text\", \"date\", "
                                        "\"sound\") VALUES (?, ?, ?, ?, ?, ?)"));
        if (!st)
            return st.error(kWriteFailed());
        st.bind(1, n.uniqueID);
        st.bind(2, n.title);
        st.bind(3, n.subtitle);
        st.bind(4, n.text);
        st.bind(5, n.date.referenceSeconds());
        st.bind(6, qint64(n.sound));
        if (sqlite3_step(st.get()) != SQLITE_DONE)
            return st.error(kWriteFailed());
        n.id = sqlite3_last_insert_rowid(db);
        n.delivered = Date();
        return Error{};
    });
}

QList<ScheduledNotification> NotificationSchedule::list(bool pendingOnly) const
{
    QList<ScheduledNotification> result;
    Statement st(m_store.handle(), QStringLiteral("SELECT %1 FROM \"%2\"%3 ORDER BY \"date\", \"id\"")
                                       .arg(kColumns, QStringLiteral("%1"),
                                            pendingOnly ? QStringLiteral(" WHERE \"delivered\" IS NULL") : QString()));
    while (st && sqlite3_step(st.get()) == SQLITE_ROW)
        result << readRow(st.get());
    return result;
}

Result<bool> NotificationSchedule::cancel(qint64 id)
{
    bool found = false;
    const Error e = m_store.write([id, &found](sqlite3 *db) {
        Statement st(db, QStringLiteral("DELETE FROM \"%1\" WHERE \"id\" = ?"));
        if (!st)
            return st.error(kWriteFailed());
        st.bind(1, id);
        if (sqlite3_step(st.get()) != SQLITE_DONE)
            return st.error(kWriteFailed());
        found = sqlite3_changes(db) > 0;
        return Error{};
    });
    if (e)
        return e;
    return found;
}

Result<QList<ScheduledNotification>> NotificationSchedule::claimDue(Date now)
{
    QList<ScheduledNotification> due;
    const Error e = m_store.write([&due, now](sqlite3 *db) {
        // One statement claims and returns the rows, inside the write lock.
        Statement st(db, QStringLiteral("UPDATE \"%1\" SET \"delivered\" = ? WHERE \"delivered\" IS NULL AND "
                                        "\"date\" <= ? RETURNING %2").arg(QStringLiteral("%1"), kColumns));
        if (!st)
            return st.error(kWriteFailed());
        st.bind(1, now.referenceSeconds());
        st.bind(2, now.referenceSeconds());
        int rc;
        while ((rc = sqlite3_step(st.get())) == SQLITE_ROW)
            due << readRow(st.get());
        if (rc != SQLITE_DONE) {
            due.clear();
            return st.error(kWriteFailed());
        }
        return Error{};
    });
    if (e)
        return e;
    std::sort(due.begin(), due.end(), [](const auto &a, const auto &b) {
        return a.date < b.date || (a.date == b.date && a.id < b.id);
    });
    return due;
}

Error NotificationSchedule::unclaim(const QList<qint64> &ids)
{
    if (ids.isEmpty())
        return {};
    return m_store.write([&ids](sqlite3 *db) {
        Statement st(db, QStringLiteral("UPDATE \"%1\" SET \"delivered\" = NULL WHERE \"id\" = ?"));
        for (qint64 id : ids) {
            st.bind(1, id);
            if (sqlite3_step(st.get()) != SQLITE_DONE)
                return st.error(kWriteFailed());
            sqlite3_reset(st.get());
        }
        return Error{};
    });
}

std::optional<Date> NotificationSchedule::nextDate() const
{
    Statement st(m_store.handle(), QStringLiteral("SELECT min(\"date\") FROM \"%1\" WHERE \"delivered\" IS NULL"));
    if (st && sqlite3_step(st.get()) == SQLITE_ROW && sqlite3_column_type(st.get(), 0) != SQLITE_NULL)
        return Date::fromReferenceSeconds(sqlite3_column_double(st.get(), 0));
    return std::nullopt;
}

Error NotificationSchedule::cancelPendingOf(sqlite3 *db, const QString &uniqueID)
{
    Statement st(db, QStringLiteral("DELETE FROM \"%1\" WHERE \"uniqueID\" = ? AND \"delivered\" IS NULL"));
    if (!st)
        return st.error(kWriteFailed());
    st.bind(1, uniqueID);
    return sqlite3_step(st.get()) == SQLITE_DONE ? Error {} : st.error(kWriteFailed());
}

} // namespace tabo
