#include "store/Store.h"

#include "domain/Record.h"
#include "prefs/ProtectedFiles.h"
#include "store/Schema.h"
#include "store/StoreState.h"

#include <QFile>
#include <QFileInfo>

#include <QCoreApplication>
#include <sqlite3.h>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Store)
};
} // namespace

namespace tabo {

using storedetail::firstText;

namespace {

// What a person can do about a store that cannot be used.
QString kRecovery()
{
    return Tr::tr("Restore your last complete backup (File ▸ Restore Database, or: tabo-cli restore database FILE "
                  "--yes), or move "
                  "the file aside to start a new database and restore the automatic backup of your documents "
                  "(tabo-cli restore auto --yes).");
}

bool looksLikeSqlite(const QString &path, bool *empty)
{
    QFile f(path);
    *empty = false;
    if (!f.open(QIODevice::ReadOnly))
        return true; // let SQLite report why it cannot be read
    const QByteArray head = f.read(16);
    if (head.isEmpty()) {
        *empty = true;
        return true;
    }
    return head == QByteArray("SQLite format 3\0", 16);
}

} // namespace

namespace storedetail {

QByteArray firstText(sqlite3 *db, const char *sql)
{
    sqlite3_stmt *st = nullptr;
    QByteArray value;
    if (sqlite3_prepare_v2(db, sql, -1, &st, nullptr) == SQLITE_OK && sqlite3_step(st) == SQLITE_ROW)
        value = QByteArray(reinterpret_cast<const char *>(sqlite3_column_text(st, 0)));
    sqlite3_finalize(st);
    return value;
}

QString textFromColumn(sqlite3_stmt *stmt, int col)
{
    if (sqlite3_column_type(stmt, col) == SQLITE_NULL)
        return QString();
    const auto *p = reinterpret_cast<const char *>(sqlite3_column_text(stmt, col));
    const int n = sqlite3_column_bytes(stmt, col);
    if (n == 0)
        return QStringLiteral(""); // empty but not null: "" and no value differ
    return QString::fromUtf8(p, n);
}

} // namespace storedetail

Store::Store(QString path) : m_path(std::move(path))
{
    for (int i = 0; i < kEntityCount; ++i) {
        auto st = std::make_unique<EntityState>();
        const EntityDesc &d = entityDesc(EntityId(i));
        st->fullColumns = schema::columns(d);
        QStringList q;
        for (const QString &c : st->fullColumns)
            q << schema::quoted(c);
        st->fullSelect = QStringLiteral("SELECT \"id\", %1 FROM %2").arg(q.join(QLatin1Char(',')), schema::quoted(d.name));
        QStringList lq;
        for (int a = 0; a < int(d.attributes.size()); ++a) {
            const auto &ad = d.attributes[a];
            if (!ad.isText() || ((d.listTextMask >> ad.slot) & 1U)) {
                st->listAttrs << a;
                lq << schema::quoted(ad.name);
            }
        }
        for (const auto &r : d.relations)
            if (!r.toMany)
                lq << schema::quoted(r.name);
        st->listSelect = QStringLiteral("SELECT \"id\", %1 FROM %2").arg(lq.join(QLatin1Char(',')), schema::quoted(d.name));
        m_entities[i] = std::move(st);
    }
}

Store::~Store()
{
    close();
}

Error Store::damagedError() const
{
    return Error { Error::Store, SQLITE_CORRUPT,
        Tr::tr("The database file “%1” is damaged; nothing more is written to it.").arg(m_path),
        Tr::tr("Quit Tabo and keep the file for now. ") + kRecovery() };
}

Error Store::sqlError(const QString &what)
{
    const int code = m_db ? sqlite3_errcode(m_db) : SQLITE_ERROR;
    if ((code & 0xff) == SQLITE_CORRUPT || (code & 0xff) == SQLITE_NOTADB) {
        m_damaged = true; // whatever comes next must not make it worse
        Error e = damagedError();
        e.text = what + QLatin1Char(' ') + e.text;
        return e;
    }
    if ((code & 0xff) == SQLITE_BUSY || (code & 0xff) == SQLITE_LOCKED)
        return Error { Error::Store, code, what,
            Tr::tr("Another program (another Tabo window or tabo-cli) has kept the database busy for "
                   "10 seconds. Your changes are still here; try again in a moment.") };
    return Error{Error::Store, code, what, m_db ? QString::fromUtf8(sqlite3_errmsg(m_db)) : QString()};
}

Error Store::checkIntegrity()
{
    if (m_damaged)
        return damagedError();
    if (m_checked || !m_db)
        return {};
    // quick_check reads every page and the schema; it leaves out only the
    // index-against-table comparison, which a write does not depend on.
    // quick_check answers a single "ok" row, or the problems it found.
    if (firstText(m_db, "PRAGMA quick_check") != "ok") {
        m_damaged = true;
        return damagedError();
    }
    m_checked = true;
    return {};
}

Error Store::checkFile(bool *exists) const
{
    const QFileInfo info(m_path);
    *exists = info.exists();
    if (*exists && !info.isFile())
        return Error { Error::Store, SQLITE_CANTOPEN, Tr::tr("The database “%1” is not a file.").arg(m_path), {} };
    bool empty = false;
    if (*exists && !looksLikeSqlite(m_path, &empty))
        return Error { Error::Store, SQLITE_NOTADB, Tr::tr("The file “%1” is not a Tabo database.").arg(m_path),
            Tr::tr("It has been left as it is.") };
    // Only a missing file is a new installation; an empty one is what a full
    // disk or a failed copy leaves, and the data must come from a backup.
    if (*exists && empty)
        return Error { Error::Store, kEmptyFile, Tr::tr("The database file “%1” is empty (0 bytes).").arg(m_path),
            Tr::tr("It has been left as it is. ") + kRecovery() };
    return {};
}

Error Store::connect(bool create)
{
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (create ? SQLITE_OPEN_CREATE : 0);
    if (sqlite3_open_v2(m_path.toUtf8().constData(), &m_db, flags, nullptr) != SQLITE_OK) {
        Error e { Error::Store, m_db ? sqlite3_errcode(m_db) : SQLITE_CANTOPEN,
            Tr::tr("The database “%1” could not be opened.").arg(m_path),
            m_db ? QString::fromUtf8(sqlite3_errmsg(m_db)) : QString() };
        sqlite3_close(m_db);
        m_db = nullptr;
        return e;
    }
    // Another process may hold the write lock for a save of its own.
    sqlite3_busy_timeout(m_db, 10000);
    return {};
}

// The schema version, when the file is a Tabo store this version can use.
Result<int> Store::readVersion()
{
    int version = -1;
    int tables = 0;
    bool haveInvoice = false;
    sqlite3_stmt *st = nullptr;
    if (sqlite3_prepare_v2(m_db, "PRAGMA user_version", -1, &st, nullptr) == SQLITE_OK && sqlite3_step(st) == SQLITE_ROW)
        version = sqlite3_column_int(st, 0);
    sqlite3_finalize(st);
    st = nullptr;
    if (version >= 0
        && sqlite3_prepare_v2(m_db, "SELECT name FROM sqlite_master WHERE type='table'", -1, &st, nullptr) == SQLITE_OK) {
        int rc;
        while ((rc = sqlite3_step(st)) == SQLITE_ROW) {
            ++tables;
            if (qstrcmp(reinterpret_cast<const char *>(sqlite3_column_text(st, 0)), "Invoice") == 0)
                haveInvoice = true;
        }
        if (rc != SQLITE_DONE)
            version = -1;
    }
    sqlite3_finalize(st);
    if (version < 0)
        return sqlError(Tr::tr("The database “%1” could not be read.").arg(m_path));
    if (version == 0 && tables > 0)
        return Error { Error::Store, SQLITE_NOTADB,
            Tr::tr("The file “%1” is an SQLite database of another program, not a Tabo database.").arg(m_path),
            Tr::tr("It has been left as it is.") };
    if (version > kSchemaVersion)
        return Error { Error::Store, SQLITE_CANTOPEN,
            Tr::tr("The database “%1” was written by a newer version of Tabo.").arg(m_path),
            Tr::tr("Please use that version; the file has been left as it is.") };
    if (version > 0 && !haveInvoice)
        return Error { Error::Store, SQLITE_CORRUPT,
            Tr::tr("The database “%1” is damaged: its document table is missing.").arg(m_path),
            Tr::tr("It has been left as it is.") };
    return version;
}

// Write-ahead logging, the schema of this version and its columns.
Error Store::bringUpToDate(int version)
{
    // Switching to WAL, migrating or adding columns writes; a damaged file
    // must be found before any of that. A current store needs none of it, so
    // its check can wait until the first save.
    const QByteArray journal = firstText(m_db, "PRAGMA journal_mode").toLower();
    const bool needsWrite = version != kSchemaVersion || journal != "wal" || schema::hasMissingColumns(m_db);
    if (!needsWrite)
        return {};
    if (version > 0)
        if (Error e = checkIntegrity())
            return e;
    if (journal != "wal")
        sqlite3_exec(m_db, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr);
    sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
    const Error e = version == 0                ? schema::create(m_db, kSchemaVersion)
                    : version < kSchemaVersion ? schema::migrate(m_db, version, kSchemaVersion)
                                               : schema::addMissingColumns(m_db);
    if (e) {
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
        return Error { Error::Store, e.code, Tr::tr("The database “%1” could not be updated.").arg(m_path),
            e.message() };
    }
    sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr);
    m_checked = m_checked || version == 0;
    return {};
}

Error Store::open()
{
    close();
    ProtectedFiles::addStore(m_path);
    bool exists = false;
    if (Error e = checkFile(&exists))
        return e;
    if (Error e = connect(!exists))
        return e;
    const Result<int> version = readVersion();
    if (Error e = version ? bringUpToDate(version.value()) : version.error()) {
        close();
        return e;
    }
    sqlite3_exec(m_db, "PRAGMA synchronous=FULL", nullptr, nullptr, nullptr);
    sqlite3_exec(m_db, "PRAGMA foreign_keys=ON", nullptr, nullptr, nullptr);

    m_lastError = {};
    changedElsewhere(); // remember where the file stands
    m_mark = readChangeMark();
    loadAll(EntityId::Invoice);
    if (m_lastError) {
        const Error e = m_lastError;
        close();
        return e;
    }
    return {};
}

void Store::close()
{
    for (sqlite3_stmt *st : std::as_const(m_statements))
        sqlite3_finalize(st);
    m_statements.clear();
    for (auto &st : m_entities)
        st->destroyAll();
    m_dirty.clear();
    m_originals.clear();
    m_conflicts.clear();
    if (m_db) {
        sqlite3_close(m_db);
        m_db = nullptr;
    }
    m_dataVersion = -1;
    m_checked = false;
    m_damaged = false;
}

int Store::schemaVersion() const
{
    if (!m_db)
        return -1;
    sqlite3_stmt *st = nullptr;
    int v = -1;
    if (sqlite3_prepare_v2(m_db, "PRAGMA user_version", -1, &st, nullptr) == SQLITE_OK
        && sqlite3_step(st) == SQLITE_ROW)
        v = sqlite3_column_int(st, 0);
    sqlite3_finalize(st);
    return v;
}

sqlite3_stmt *Store::prepare(const QString &sql)
{
    if (!m_db)
        return nullptr;
    auto it = m_statements.constFind(sql);
    if (it != m_statements.constEnd()) {
        sqlite3_reset(*it);
        sqlite3_clear_bindings(*it);
        return *it;
    }
    sqlite3_stmt *st = nullptr;
    if (sqlite3_prepare_v3(m_db, sql.toUtf8().constData(), -1, SQLITE_PREPARE_PERSISTENT, &st, nullptr) != SQLITE_OK) {
        m_lastError = sqlError(Tr::tr("The database could not be read."));
        return nullptr;
    }
    m_statements.insert(sql, st);
    return st;
}

Error Store::replaceContentFrom(const QString &source)
{
    const QString what = Tr::tr("The database could not be replaced.");
    if (!m_db)
        return Error { Error::Store, SQLITE_MISUSE, what, Tr::tr("No database is open.") };
    if (const Error e = checkIntegrity())
        return e;
    sqlite3 *src = nullptr;
    if (sqlite3_open_v2(QFile::encodeName(source).constData(), &src, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
        const Error e{Error::Store, sqlite3_errcode(src), what, QString::fromUtf8(sqlite3_errmsg(src))};
        sqlite3_close(src);
        return e;
    }
    // A file in WAL mode only takes pages of its own size.
    if (firstText(src, "PRAGMA page_size") != firstText(m_db, "PRAGMA page_size")) {
        sqlite3_close(src);
        return Error { Error::Store, SQLITE_MISMATCH, what,
            Tr::tr("The backup uses another page size than the database.") };
    }
    // A new generation tells every other process to read the store again
    // whole: the journal of the restored file says nothing about what they hold.
    const QByteArray renew = QStringLiteral("UPDATE \"%1\" SET \"generation\" = lower(hex(randomblob(16)))")
                                 .arg(schema::kStoreTable)
                                 .toUtf8();
    if (sqlite3_exec(src, renew.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        const Error e{Error::Store, sqlite3_errcode(src), what, QString::fromUtf8(sqlite3_errmsg(src))};
        sqlite3_close(src);
        return e;
    }
    sqlite3_backup *backup = sqlite3_backup_init(m_db, "main", src, "main");
    int rc = backup ? sqlite3_backup_step(backup, -1) : sqlite3_errcode(m_db);
    const int finished = backup ? sqlite3_backup_finish(backup) : rc;
    if (rc == SQLITE_DONE)
        rc = finished;
    sqlite3_close(src);
    if (rc != SQLITE_OK && rc != SQLITE_DONE)
        return sqlError(what);
    // What was held here belongs to the old content: nothing of it is saved.
    for (Record *r : std::as_const(m_dirty)) {
        r->m_changed.reset();
        r->m_inDirty = false;
    }
    m_dirty.clear();
    m_originals.clear();
    changedElsewhere();
    return {};
}

void Store::reset()
{
    const QString path = m_path;
    for (sqlite3_stmt *st : std::as_const(m_statements))
        sqlite3_finalize(st);
    m_statements.clear();
    for (auto &st : m_entities)
        st->destroyAll();
    m_dirty.clear();
    m_originals.clear();
    m_conflicts.clear();
    if (m_db) {
        changedElsewhere();
        m_mark = readChangeMark();
        loadAll(EntityId::Invoice);
    }
}

} // namespace tabo
