#pragma once

#include "base/Error.h"
#include "domain/EntityModel.h"

#include <QString>
#include <QStringList>

struct sqlite3;

namespace tabo::schema {

// Table and column names follow the entity description exactly.
QString quoted(const QString &identifier);
QString columnType(AttrType type);
QString createTableSql(const EntityDesc &entity);
QStringList createIndexSql();

// Column names of a table in the order the store reads them: attributes, then
// the foreign key of each to-one relationship.
QStringList columns(const EntityDesc &entity);

// Brings a store of an older schema version up to the current one: the
// numbered steps in order, then any attribute the description has gained since
// (added as an empty column). Runs inside the caller's transaction.
Error migrate(sqlite3 *db, int fromVersion, int toVersion);
// Adds, as empty columns, attributes the description has gained since the
// file was written; reads only when nothing is missing.
Error addMissingColumns(sqlite3 *db);
// Whether addMissingColumns would write anything (only reads).
bool hasMissingColumns(sqlite3 *db);
// The change journal: its tables and the triggers that fill it.
inline const QString kChangesTable = QStringLiteral("_Changes");
inline const QString kStoreTable = QStringLiteral("_Store");
QStringList changeJournalSql();
// Scheduled notifications (date in reference seconds; delivered when shown).
inline const QString kNotificationTable = QStringLiteral("_Notification");
QString notificationTableSql();
inline const QString kCounterTable = QStringLiteral("_Counter");
QString counterTableSql();
// The bank bookings taken in as payments, by the bank's reference: a second
// import of the same statement finds them here.
inline const QString kPaymentTable = QStringLiteral("_Payment");
QString paymentTableSql();
// The invoices that repeat, and the column layouts of bank CSV exports the
// person named once.
inline const QString kScheduleTable = QStringLiteral("_Schedule");
inline const QString kStatementLayoutTable = QStringLiteral("_StatementLayout");
QStringList scheduleTablesSql();
// A new, empty store.
Error create(sqlite3 *db, int version);

} // namespace tabo::schema
