#include "store/NumberCounters.h"

#include "store/Schema.h"

#include <QCoreApplication>
#include <sqlite3.h>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(NumberCounters)
};
} // namespace

namespace tabo::NumberCounters {

std::optional<qint64> read(sqlite3 *db, const QString &name)
{
    sqlite3_stmt *stmt = nullptr;
    const QByteArray sql = QStringLiteral("SELECT \"value\" FROM \"%1\" WHERE \"name\" = ?").arg(schema::kCounterTable).toUtf8();
    std::optional<qint64> value;
    if (sqlite3_prepare_v2(db, sql.constData(), -1, &stmt, nullptr) == SQLITE_OK) {
        const QByteArray key = name.toUtf8();
        sqlite3_bind_text(stmt, 1, key.constData(), int(key.size()), SQLITE_TRANSIENT);
        if (sqlite3_step(stmt) == SQLITE_ROW)
            value = sqlite3_column_int64(stmt, 0);
    }
    sqlite3_finalize(stmt);
    return value;
}

Error write(sqlite3 *db, const QString &name, qint64 value)
{
    sqlite3_stmt *stmt = nullptr;
    const QByteArray sql = QStringLiteral("INSERT INTO \"%1\" (\"name\", \"value\") VALUES (?, ?) "
                                          "ON CONFLICT(\"name\") DO UPDATE SET \"value\" = excluded.\"value\"")
                               .arg(schema::kCounterTable)
                               .toUtf8();
    int rc = sqlite3_prepare_v2(db, sql.constData(), -1, &stmt, nullptr);
    if (rc == SQLITE_OK) {
        const QByteArray key = name.toUtf8();
        sqlite3_bind_text(stmt, 1, key.constData(), int(key.size()), SQLITE_TRANSIENT);
        sqlite3_bind_int64(stmt, 2, value);
        rc = sqlite3_step(stmt);
    }
    sqlite3_finalize(stmt);
    if (rc != SQLITE_DONE)
        return Error::file(
            Tr::tr("The counter “%1” could not be stored: %2").arg(name, QString::fromUtf8(sqlite3_errmsg(db))));
    return {};
}

bool numberHeld(sqlite3 *db, const QString &number, const QString &uniqueID)
{
    sqlite3_stmt *stmt = nullptr;
    bool held = false;
    if (sqlite3_prepare_v2(db, "SELECT 1 FROM \"Invoice\" WHERE \"number\" = ? AND \"uniqueID\" IS NOT ? LIMIT 1", -1,
                           &stmt, nullptr) == SQLITE_OK) {
        const QByteArray n = number.toUtf8(), id = uniqueID.toUtf8();
        sqlite3_bind_text(stmt, 1, n.constData(), int(n.size()), SQLITE_TRANSIENT);
        sqlite3_bind_text(stmt, 2, id.constData(), int(id.size()), SQLITE_TRANSIENT);
        held = sqlite3_step(stmt) == SQLITE_ROW;
    }
    sqlite3_finalize(stmt);
    return held;
}

} // namespace tabo::NumberCounters
