#include "store/Schema.h"

#include <QSet>

#include <sqlite3.h>

#include <functional>

namespace tabo::schema {

namespace {

Error exec(sqlite3 *db, const QString &sql)
{
    char *msg = nullptr;
    if (sqlite3_exec(db, sql.toUtf8().constData(), nullptr, nullptr, &msg) != SQLITE_OK) {
        Error e{Error::Store, sqlite3_errcode(db),
                QString::fromUtf8(msg ? msg : "SQLite error"), sql};
        sqlite3_free(msg);
        return e;
    }
    return {};
}

QSet<QString> existingColumns(sqlite3 *db, const QString &table)
{
    QSet<QString> names;
    sqlite3_stmt *stmt = nullptr;
    const QByteArray sql = QStringLiteral("PRAGMA table_info(%1)").arg(quoted(table)).toUtf8();
    if (sqlite3_prepare_v2(db, sql.constData(), -1, &stmt, nullptr) != SQLITE_OK)
        return names;
    while (sqlite3_step(stmt) == SQLITE_ROW)
        names.insert(QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(stmt, 1))));
    sqlite3_finalize(stmt);
    return names;
}

// The attributes kept in the store only that a file does not have yet.
// Adds the columns of `entity` its table lacks (`have`); with `storeOnly`,
// only those of attributes that never leave the store.
Error addColumns(sqlite3 *db, const EntityDesc &entity, const QSet<QString> &have, bool storeOnly)
{
    for (const auto &a : entity.attributes) {
        if (have.contains(a.name) || (storeOnly && a.exchanged))
            continue;
        if (Error e = exec(db, QStringLiteral("ALTER TABLE %1 ADD COLUMN %2 %3")
                                   .arg(quoted(entity.name), quoted(a.name), columnType(a.type))))
            return e;
    }
    return Error{};
}

Error addStoreOnlyColumns(sqlite3 *db)
{
    for (int i = 0; i < kEntityCount; ++i) {
        const EntityDesc &entity = entityDesc(EntityId(i));
        if (Error e = addColumns(db, entity, existingColumns(db, entity.name), true))
            return e;
    }
    return Error{};
}

// Numbered steps; step N brings a store from version N-1 to N. Version 1 is
// the first schema.
const std::vector<std::function<Error(sqlite3 *)>> &steps()
{
    static const std::vector<std::function<Error(sqlite3 *)>> list = {
        /* 1 */ [](sqlite3 *) { return Error {}; },
        /* 2: the change journal */
        [](sqlite3 *db) {
            for (const QString &sql : changeJournalSql())
                if (Error e = exec(db, sql))
                    return e;
            return Error{};
        },
        /* 3: scheduled due-date notifications */
        [](sqlite3 *db) { return exec(db, notificationTableSql()); },
        /* 4: what e-invoices need and the exchange files do not carry: the
              buyer's address in parts, reference and electronic address;
              the lines' unit codes */
        addStoreOnlyColumns,
        /* 5: the numbering counters, raised in the transaction that writes
              the number (their values move in from the settings at the
              first open, since only the application knows those) */
        [](sqlite3 *db) { return exec(db, counterTableSql()); },
        /* 6: which calculation a document's figures come from */
        addStoreOnlyColumns,
        /* 7: the bank bookings taken in as payments */
        [](sqlite3 *db) { return exec(db, paymentTableSql()); },
        /* 8: repeated invoices and remembered statement layouts */
        [](sqlite3 *db) {
            for (const QString &sql : scheduleTablesSql())
                if (Error e = exec(db, sql))
                    return e;
            return Error {};
        },
    };
    return list;
}

} // namespace

QString quoted(const QString &identifier)
{
    return QLatin1Char('"') + identifier + QLatin1Char('"');
}

QString columnType(AttrType type)
{
    switch (type) {
    case AttrType::Text: return QStringLiteral("TEXT");
    case AttrType::Int:
    case AttrType::Bool: return QStringLiteral("INTEGER");
    case AttrType::Double:
    case AttrType::Float:
    case AttrType::Date: return QStringLiteral("REAL");
    }
    return {};
}

QStringList columns(const EntityDesc &entity)
{
    QStringList cols;
    for (const auto &a : entity.attributes)
        cols << a.name;
    for (const auto &r : entity.relations)
        if (!r.toMany)
            cols << r.name;
    return cols;
}

QString createTableSql(const EntityDesc &entity)
{
    QStringList defs{QStringLiteral("\"id\" INTEGER PRIMARY KEY")};
    for (const auto &a : entity.attributes)
        defs << quoted(a.name) + QLatin1Char(' ') + columnType(a.type);
    for (const auto &r : entity.relations) {
        if (r.toMany)
            continue;
        // Deferred so that one save may insert a document and its lines in any order.
        defs << QStringLiteral("%1 INTEGER REFERENCES %2(\"id\") ON DELETE CASCADE "
                               "DEFERRABLE INITIALLY DEFERRED")
                    .arg(quoted(r.name), quoted(entityDesc(r.target).name));
    }
    return QStringLiteral("CREATE TABLE IF NOT EXISTS %1 (%2)")
        .arg(quoted(entity.name), defs.join(QStringLiteral(", ")));
}

QStringList createIndexSql()
{
    return {
        QStringLiteral("CREATE INDEX IF NOT EXISTS \"Item_invoice\" ON \"Item\"(\"invoice\")"),
        QStringLiteral("CREATE INDEX IF NOT EXISTS \"Item_template\" ON \"Item\"(\"template\")"),
        // A new number is checked against every number held, inside the save.
        QStringLiteral("CREATE INDEX IF NOT EXISTS \"Invoice_number\" ON \"Invoice\"(\"number\")"),
    };
}

QStringList changeJournalSql()
{
    // Every row written, by whichever process or program, leaves its entity
    // and id here; another process reads only what changed since it last
    // looked instead of the whole store. A restore gives the store a new
    // generation, which tells the others to read everything again.
    QStringList sql{
        QStringLiteral("CREATE TABLE IF NOT EXISTS \"%1\" (\"seq\" INTEGER PRIMARY KEY AUTOINCREMENT, "
                       "\"entity\" INTEGER NOT NULL, \"row\" INTEGER NOT NULL)")
            .arg(kChangesTable),
        QStringLiteral("CREATE TABLE IF NOT EXISTS \"%1\" (\"generation\" TEXT NOT NULL)").arg(kStoreTable),
        QStringLiteral("INSERT INTO \"%1\" SELECT lower(hex(randomblob(16))) WHERE NOT EXISTS (SELECT 1 FROM \"%1\")")
            .arg(kStoreTable),
    };
    for (int i = 0; i < kEntityCount; ++i) {
        const QString table = entityDesc(EntityId(i)).name;
        for (const auto &[event, ref] : {std::pair{"INSERT", "NEW"}, {"UPDATE", "NEW"}, {"DELETE", "OLD"}})
            sql << QStringLiteral("CREATE TRIGGER IF NOT EXISTS \"%1_%2\" AFTER %2 ON %3 BEGIN "
                                  "INSERT INTO \"%4\" (\"entity\", \"row\") VALUES (%5, %6.\"id\"); END")
                       .arg(table, QLatin1String(event), quoted(table), kChangesTable)
                       .arg(i)
                       .arg(QLatin1String(ref));
    }
    return sql;
}

QString notificationTableSql()
{
    // Kept beside the entities, not as one: the exchange files and object
    // dictionaries carry exactly the entities' keys. `delivered` is set by
    // whichever process shows the notification, inside the same write, so a
    // second process never shows it again.
    return QStringLiteral("CREATE TABLE IF NOT EXISTS \"%1\" (\"id\" INTEGER PRIMARY KEY, "
                          "\"uniqueID\" TEXT NOT NULL, \"title\" TEXT, \"subtitle\" TEXT, \"text\" TEXT, "
                          "\"date\" REAL NOT NULL, \"sound\" INTEGER NOT NULL DEFAULT 0, \"delivered\" REAL)")
        .arg(kNotificationTable);
}

QString counterTableSql()
{
    return QStringLiteral("CREATE TABLE IF NOT EXISTS \"%1\" (\"name\" TEXT PRIMARY KEY, \"value\" INTEGER NOT NULL)")
        .arg(kCounterTable);
}

QString paymentTableSql()
{
    return QStringLiteral(
        "CREATE TABLE IF NOT EXISTS \"%1\" (\"reference\" TEXT PRIMARY KEY, \"invoice\" TEXT NOT NULL, "
        "\"cents\" INTEGER NOT NULL, \"booked\" TEXT NOT NULL, \"payer\" TEXT, \"iban\" TEXT)")
        .arg(kPaymentTable);
}

QStringList scheduleTablesSql()
{
    // `made` counts the invoices written so far: the next one is due on the
    // recurrence's date number `made`, and raising it in the transaction
    // that writes the invoice is what keeps a date from being billed twice.
    return { QStringLiteral("CREATE TABLE IF NOT EXISTS \"%1\" (\"id\" INTEGER PRIMARY KEY, "
                            "\"source\" TEXT NOT NULL, \"fromTemplate\" INTEGER NOT NULL DEFAULT 0, "
                            "\"unit\" TEXT NOT NULL, \"every\" INTEGER NOT NULL, \"start\" TEXT NOT NULL, "
                            "\"until\" TEXT, \"count\" INTEGER NOT NULL DEFAULT 0, "
                            "\"made\" INTEGER NOT NULL DEFAULT 0, \"paused\" INTEGER NOT NULL DEFAULT 0, "
                            "\"send\" INTEGER NOT NULL DEFAULT 0, \"last\" TEXT)")
                 .arg(kScheduleTable),
        QStringLiteral("CREATE TABLE IF NOT EXISTS \"%1\" (\"layout\" TEXT PRIMARY KEY, \"columns\" TEXT NOT NULL)")
            .arg(kStatementLayoutTable) };
}

Error create(sqlite3 *db, int version)
{
    for (int i = 0; i < kEntityCount; ++i)
        if (Error e = exec(db, createTableSql(entityDesc(EntityId(i)))))
            return e;
    for (const QString &sql : createIndexSql())
        if (Error e = exec(db, sql))
            return e;
    for (const QString &sql : changeJournalSql())
        if (Error e = exec(db, sql))
            return e;
    if (Error e = exec(db, notificationTableSql()))
        return e;
    if (Error e = exec(db, counterTableSql()))
        return e;
    if (Error e = exec(db, paymentTableSql()))
        return e;
    for (const QString &sql : scheduleTablesSql())
        if (Error e = exec(db, sql))
            return e;
    return exec(db, QStringLiteral("PRAGMA user_version = %1").arg(version));
}

Error migrate(sqlite3 *db, int fromVersion, int toVersion)
{
    for (int v = fromVersion + 1; v <= toVersion; ++v)
        if (Error e = steps()[v - 1](db))
            return e;
    if (Error e = addMissingColumns(db))
        return e;
    return exec(db, QStringLiteral("PRAGMA user_version = %1").arg(toVersion));
}

bool hasMissingColumns(sqlite3 *db)
{
    for (int i = 0; i < kEntityCount; ++i) {
        const EntityDesc &entity = entityDesc(EntityId(i));
        const QSet<QString> have = existingColumns(db, entity.name);
        for (const auto &a : entity.attributes)
            if (!have.contains(a.name))
                return true;
    }
    sqlite3_stmt *stmt = nullptr;
    int indexes = 0;
    if (sqlite3_prepare_v2(db, "SELECT count(*) FROM sqlite_master WHERE type='index' AND name IN "
                               "('Item_invoice','Item_template','Invoice_number')", -1, &stmt, nullptr) == SQLITE_OK
        && sqlite3_step(stmt) == SQLITE_ROW)
        indexes = sqlite3_column_int(stmt, 0);
    sqlite3_finalize(stmt);
    return indexes != int(createIndexSql().size());
}

Error addMissingColumns(sqlite3 *db)
{
    // Attributes added to the description since the file was written arrive
    // as empty columns, which every reader takes as 0, false or "".
    for (int i = 0; i < kEntityCount; ++i) {
        const EntityDesc &entity = entityDesc(EntityId(i));
        const QSet<QString> have = existingColumns(db, entity.name);
        if (have.isEmpty()) {
            if (Error e = exec(db, createTableSql(entity)))
                return e;
            continue;
        }
        if (Error e = addColumns(db, entity, have, false))
            return e;
    }
    for (const QString &sql : createIndexSql())
        if (Error e = exec(db, sql))
            return e;
    return {};
}

} // namespace tabo::schema
