#pragma once

#include "base/Result.h"
#include "domain/Recurrence.h"

#include <QList>
#include <QString>

struct sqlite3;

namespace tabo {

// A repeated invoice: which document or template it copies, when, and how
// many it has written.
struct Schedule
{
    qint64 id = 0;
    QString source; // an invoice's uniqueID, or a template's name
    bool fromTemplate = false;
    Recurrence recurrence;
    int made = 0;
    bool paused = false;
    bool send = false; // e-mail each invoice once written
    QString last; // uniqueID of the last invoice written

    // The day of the next invoice; invalid once the schedule has ended.
    QDate next() const { return recurrence.occurrence(made); }
};

// The `_Schedule` table. Reads and writes run on a connection; those that
// write belong inside Store::write or Store::saveWith.
namespace ScheduleTable {

Result<QList<Schedule>> list(sqlite3 *db);
Error add(sqlite3 *db, Schedule &schedule); // sets id
// False when there is no such schedule.
Result<bool> setPaused(sqlite3 *db, qint64 id, bool paused);
Result<bool> remove(sqlite3 *db, qint64 id);
Error setMade(sqlite3 *db, qint64 id, int made, const QString &last);

// Remembered column layouts of bank CSV exports: layout key → columns.
Result<QHash<QString, QString>> statementLayouts(sqlite3 *db);
Error rememberStatementLayout(sqlite3 *db, const QString &layout, const QString &columns);

} // namespace ScheduleTable

} // namespace tabo
