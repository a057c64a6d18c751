#include "store/ScheduleTable.h"

#include "store/Schema.h"
#include "store/SqlStatement.h"

#include <QCoreApplication>
#include <QHash>


namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(ScheduleTable)
};

// Statements of the two tables, named "%1" (schedules) and "%2" (statement
// layouts) in their text.
struct Statement : tabo::SqlStatement
{
    Statement(sqlite3 *db, const QString &sql)
        : SqlStatement(db,
            QString(sql)
                .replace(QLatin1String("%1"), tabo::schema::kScheduleTable)
                .replace(QLatin1String("%2"), tabo::schema::kStatementLayoutTable))
    {
    }
};

tabo::Error failed(sqlite3 *db)
{
    return tabo::Error::file(Tr::tr("The repeated invoices could not be read or written: %1")
                                 .arg(QString::fromUtf8(sqlite3_errmsg(db))));
}

// Runs a one-row change; false when no row was there.
tabo::Result<bool> changeOne(sqlite3 *db, Statement &st)
{
    if (!st.run())
        return failed(db);
    return sqlite3_changes(db) > 0;
}

} // namespace

namespace tabo::ScheduleTable {

Result<QList<Schedule>> list(sqlite3 *db)
{
    Statement st(db,
        QStringLiteral("SELECT \"id\", \"source\", \"fromTemplate\", \"unit\", \"every\", \"start\", \"until\", "
                       "\"count\", \"made\", \"paused\", \"send\", \"last\" FROM \"%1\" ORDER BY \"id\""));
    if (!st.get())
        return failed(db);
    QList<Schedule> out;
    while (sqlite3_step(st.get()) == SQLITE_ROW) {
        Schedule s;
        s.id = sqlite3_column_int64(st.get(), 0);
        s.source = st.text(1);
        s.fromTemplate = st.integer(2) != 0;
        s.recurrence.unit = st.text(3) == QLatin1String("week") ? Recurrence::Unit::Week : Recurrence::Unit::Month;
        s.recurrence.every = st.integer(4);
        s.recurrence.start = QDate::fromString(st.text(5), Qt::ISODate);
        s.recurrence.until = QDate::fromString(st.text(6), Qt::ISODate);
        s.recurrence.count = st.integer(7);
        s.made = st.integer(8);
        s.paused = st.integer(9) != 0;
        s.send = st.integer(10) != 0;
        s.last = st.text(11);
        out << s;
    }
    return out;
}

Error add(sqlite3 *db, Schedule &s)
{
    Statement st(db,
        QStringLiteral("INSERT INTO \"%1\" (\"source\", \"fromTemplate\", \"unit\", \"every\", \"start\", "
                       "\"until\", \"count\", \"made\", \"paused\", \"send\") VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"));
    if (!st.get())
        return failed(db);
    const Recurrence &r = s.recurrence;
    st.bind(1, s.source);
    st.bind(2, qint64(s.fromTemplate));
    st.bind(3, r.unit == Recurrence::Unit::Week ? QStringLiteral("week") : QStringLiteral("month"));
    st.bind(4, qint64(r.every));
    st.bind(5, r.start.toString(Qt::ISODate));
    if (r.until.isValid())
        st.bind(6, r.until.toString(Qt::ISODate));
    else
        st.bindNull(6);
    st.bind(7, qint64(r.count));
    st.bind(8, qint64(s.made));
    st.bind(9, qint64(s.paused));
    st.bind(10, qint64(s.send));
    if (sqlite3_step(st.get()) != SQLITE_DONE)
        return failed(db);
    s.id = sqlite3_last_insert_rowid(db);
    return {};
}

Result<bool> setPaused(sqlite3 *db, qint64 id, bool paused)
{
    Statement st(db, QStringLiteral("UPDATE \"%1\" SET \"paused\" = ? WHERE \"id\" = ?"));
    st.bind(1, qint64(paused));
    st.bind(2, id);
    return changeOne(db, st);
}

Result<bool> remove(sqlite3 *db, qint64 id)
{
    Statement st(db, QStringLiteral("DELETE FROM \"%1\" WHERE \"id\" = ?"));
    st.bind(1, id);
    return changeOne(db, st);
}

Error setMade(sqlite3 *db, qint64 id, int made, const QString &last)
{
    Statement st(db, QStringLiteral("UPDATE \"%1\" SET \"made\" = ?, \"last\" = ? WHERE \"id\" = ?"));
    st.bind(1, qint64(made));
    st.bind(2, last);
    st.bind(3, id);
    const Result<bool> changed = changeOne(db, st);
    return changed ? Error {} : changed.error();
}

Result<QHash<QString, QString>> statementLayouts(sqlite3 *db)
{
    Statement st(db, QStringLiteral("SELECT \"layout\", \"columns\" FROM \"%2\""));
    if (!st.get())
        return failed(db);
    QHash<QString, QString> out;
    while (sqlite3_step(st.get()) == SQLITE_ROW)
        out.insert(st.text(0), st.text(1));
    return out;
}

Error rememberStatementLayout(sqlite3 *db, const QString &layout, const QString &columns)
{
    Statement st(db, QStringLiteral("INSERT OR REPLACE INTO \"%2\" (\"layout\", \"columns\") VALUES (?, ?)"));
    st.bind(1, layout);
    st.bind(2, columns);
    const Result<bool> changed = changeOne(db, st);
    return changed ? Error {} : changed.error();
}

} // namespace tabo::ScheduleTable
