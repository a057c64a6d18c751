#include "store/Store.h"

#include "domain/Record.h"
#include "prefs/ProtectedFiles.h"
#include "store/Schema.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <sqlite3.h>

#include <algorithm>
#include <cmath>

namespace tabo {

struct Store::EntityState
{
    QHash<qint64, Record *> map; // every known record, deleted ones until save
    QList<Record *> live;        // valid once `loaded`
    bool loaded = false;
    qint64 maxId = -1;           // -1 until read from the table
    QStringList fullColumns;
    QString fullSelect;          // "SELECT id, ... FROM T"
    QList<int> listAttrs;        // attributes read at open (Invoice)
    QString listSelect;
    std::vector<std::unique_ptr<std::byte[]>> arenas; // records laid out in list order

    void destroyAll()
    {
        for (Record *r : std::as_const(map)) {
            if (r->isInline())
                r->~Record();
            else
                delete r;
        }
        map.clear();
        live.clear();
        arenas.clear();
        loaded = false;
        maxId = -1;
    }
};

namespace {

// What a person can do about a store that cannot be used.
const QString kRecovery = QStringLiteral(
    "Restore your last complete backup (File ▸ Restore Database, or: tabo-cli restore database FILE --yes), or move "
    "the file aside to start a new database and restore the automatic backup of your documents "
    "(tabo-cli restore auto --yes).");

// The first column of the first row of a one-value query ("PRAGMA x").
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
    return Error{Error::Store, SQLITE_CORRUPT,
                 QStringLiteral("The database file “%1” is damaged; nothing more is written to it.").arg(m_path),
                 QStringLiteral("Quit Tabo and keep the file for now. ") + kRecovery};
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
        return Error{Error::Store, code, what,
                     QStringLiteral("Another program (another Tabo window or tabo-cli) has kept the database busy for "
                                    "10 seconds. Your changes are still here; try again in a moment.")};
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

Error Store::open()
{
    close();
    ProtectedFiles::addStore(m_path);
    const QFileInfo info(m_path);
    const bool exists = info.exists();
    if (exists && !info.isFile())
        return Error{Error::Store, SQLITE_CANTOPEN,
                     QStringLiteral("The database “%1” is not a file.").arg(m_path), {}};
    bool empty = false;
    if (exists && !looksLikeSqlite(m_path, &empty))
        return Error{Error::Store, SQLITE_NOTADB,
                     QStringLiteral("The file “%1” is not a Tabo database.").arg(m_path),
                     QStringLiteral("It has been left as it is.")};
    // Only a missing file is a new installation; an empty one is what a full
    // disk or a failed copy leaves, and the data must come from a backup.
    if (exists && empty)
        return Error{Error::Store, kEmptyFile,
                     QStringLiteral("The database file “%1” is empty (0 bytes).").arg(m_path),
                     QStringLiteral("It has been left as it is. ") + kRecovery};

    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (exists ? 0 : SQLITE_OPEN_CREATE);
    if (sqlite3_open_v2(m_path.toUtf8().constData(), &m_db, flags, nullptr) != SQLITE_OK) {
        Error e{Error::Store, m_db ? sqlite3_errcode(m_db) : SQLITE_CANTOPEN,
                QStringLiteral("The database “%1” could not be opened.").arg(m_path),
                m_db ? QString::fromUtf8(sqlite3_errmsg(m_db)) : QString()};
        sqlite3_close(m_db);
        m_db = nullptr;
        return e;
    }
    // Another process may hold the write lock for a save of its own.
    sqlite3_busy_timeout(m_db, 10000);

    // Read-only checks first: nothing is written until the file is known to be ours.
    int version = -1;
    int tables = 0;
    bool haveInvoice = false;
    {
        sqlite3_stmt *st = nullptr;
        if (sqlite3_prepare_v2(m_db, "PRAGMA user_version", -1, &st, nullptr) == SQLITE_OK
            && sqlite3_step(st) == SQLITE_ROW)
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
    }
    Error failure;
    if (version < 0)
        failure = sqlError(QStringLiteral("The database “%1” could not be read.").arg(m_path));
    else if (version == 0 && tables > 0)
        failure = Error{Error::Store, SQLITE_NOTADB,
                        QStringLiteral("The file “%1” is an SQLite database of another program, not a Tabo database.").arg(m_path),
                        QStringLiteral("It has been left as it is.")};
    else if (version > kSchemaVersion)
        failure = Error{Error::Store, SQLITE_CANTOPEN,
                        QStringLiteral("The database “%1” was written by a newer version of Tabo.").arg(m_path),
                        QStringLiteral("Please use that version; the file has been left as it is.")};
    else if (version > 0 && !haveInvoice)
        failure = Error{Error::Store, SQLITE_CORRUPT,
                        QStringLiteral("The database “%1” is damaged: its document table is missing.").arg(m_path),
                        QStringLiteral("It has been left as it is.")};
    if (failure) {
        close();
        return failure;
    }

    // Switching to WAL, migrating or adding columns writes; a damaged file
    // must be found before any of that. A current store needs none of it, so
    // its check can wait until the first save.
    const QByteArray journal = firstText(m_db, "PRAGMA journal_mode").toLower();
    const bool needsWrite = version != kSchemaVersion || journal != "wal" || schema::hasMissingColumns(m_db);
    if (needsWrite && version > 0) {
        if (const Error e = checkIntegrity()) {
            close();
            return e;
        }
    }
    if (needsWrite) {
        if (journal != "wal")
            sqlite3_exec(m_db, "PRAGMA journal_mode=WAL", nullptr, nullptr, nullptr);
        sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr);
        const Error e = version == 0                ? schema::create(m_db, kSchemaVersion)
                        : version < kSchemaVersion ? schema::migrate(m_db, version, kSchemaVersion)
                                                   : schema::addMissingColumns(m_db);
        if (e) {
            sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
            close();
            return Error{Error::Store, e.code,
                         QStringLiteral("The database “%1” could not be updated.").arg(m_path), e.message()};
        }
        sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr);
        m_checked = m_checked || version == 0;
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
        m_lastError = sqlError(QStringLiteral("The database could not be read."));
        return nullptr;
    }
    m_statements.insert(sql, st);
    return st;
}

Record *Store::adopt(EntityId entity, qint64 id, bool *created)
{
    EntityState &st = *m_entities[int(entity)];
    if (Record *r = st.map.value(id)) {
        *created = false;
        return r;
    }
    auto *r = new Record(this, entity, id);
    st.map.insert(id, r);
    if (st.maxId >= 0)
        st.maxId = std::max(st.maxId, id);
    *created = true;
    return r;
}

void Store::readRow(Record *r, sqlite3_stmt *stmt, int col, bool listOnly)
{
    const EntityDesc &d = r->desc();
    const EntityState &st = *m_entities[int(d.id)];
    auto readAttr = [&](int a) {
        const AttributeDesc &ad = d.attributes[a];
        if (r->m_changed.test(a)) { // an unsaved local change wins over a re-read
            ++col;
            return;
        }
        if (ad.isText()) {
            r->m_text[ad.slot] = textFromColumn(stmt, col);
        } else {
            const int type = sqlite3_column_type(stmt, col);
            if (type == SQLITE_NULL) {
                r->m_nullMask |= std::uint64_t(1) << ad.slot;
            } else {
                // SQLite cannot hold a NaN as a number, so it is kept as text.
                const double v = type == SQLITE_TEXT ? std::nan("") : sqlite3_column_double(stmt, col);
                r->m_num[ad.slot] = v;
                r->m_nullMask &= ~(std::uint64_t(1) << ad.slot);
            }
        }
        ++col;
    };
    if (listOnly) {
        for (int a : st.listAttrs)
            readAttr(a);
        r->m_textLoaded = d.listTextMask == ~std::uint64_t(0);
    } else {
        for (int a = 0; a < int(d.attributes.size()); ++a)
            readAttr(a);
        r->m_textLoaded = true;
    }
    int slot = 0;
    const std::size_t attrCount = d.attributes.size();
    for (const auto &rel : d.relations) {
        if (rel.toMany)
            continue;
        const qint64 fk = sqlite3_column_type(stmt, col) == SQLITE_NULL ? 0 : sqlite3_column_int64(stmt, col);
        if (!r->m_changed.test(attrCount + slot) && r->m_fk[slot] != fk) {
            r->m_fk[slot] = fk;
            if (r->m_toOne)
                r->m_toOne[slot] = nullptr;
        }
        ++slot;
        ++col;
    }
}

bool Store::loadDocumentsInListOrder()
{
    EntityState &st = *m_entities[int(EntityId::Invoice)];
    struct Key
    {
        qint64 id;
        double date;
        bool hasDate;
    };
    std::vector<Key> keys;
    sqlite3_exec(m_db, "BEGIN", nullptr, nullptr, nullptr); // both reads see one state
    sqlite3_stmt *stmt = prepare(QStringLiteral("SELECT \"id\", \"date\" FROM \"Invoice\" ORDER BY \"id\""));
    if (!stmt) {
        sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr);
        return false;
    }
    int rc;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW)
        keys.push_back({sqlite3_column_int64(stmt, 0), sqlite3_column_double(stmt, 1),
                        sqlite3_column_type(stmt, 1) != SQLITE_NULL});
    sqlite3_reset(stmt);
    if (rc != SQLITE_DONE) {
        m_lastError = sqlError(QStringLiteral("The database could not be read."));
        sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr);
        return true;
    }
    // The document list shows newest first; records placed in that order make
    // the summary pass and filters walk memory front to back.
    std::vector<std::uint32_t> order(keys.size());
    for (std::uint32_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::sort(order.begin(), order.end(), [&](std::uint32_t a, std::uint32_t b) {
        const Key &x = keys[a], &y = keys[b];
        if (x.hasDate != y.hasDate)
            return x.hasDate;
        if (x.date != y.date)
            return x.date > y.date;
        return x.id > y.id;
    });
    std::vector<std::uint32_t> rank(keys.size());
    for (std::uint32_t pos = 0; pos < order.size(); ++pos)
        rank[order[pos]] = pos;

    const std::size_t slot = Record::inlineSize(entityDesc(EntityId::Invoice));
    const std::size_t textSlot = Record::inlineTextSize(entityDesc(EntityId::Invoice));
    const std::size_t n = std::max<std::size_t>(keys.size(), 1);
    auto arena = std::make_unique<std::byte[]>(slot * n);
    auto textArena = std::make_unique<std::byte[]>(textSlot * n);
    std::vector<Record *> placed(keys.size(), nullptr);
    st.map.reserve(qsizetype(keys.size()));
    stmt = prepare(st.listSelect + QStringLiteral(" ORDER BY \"id\""));
    std::size_t i = 0;
    while (stmt && (rc = sqlite3_step(stmt)) == SQLITE_ROW && i < keys.size()) {
        const qint64 id = sqlite3_column_int64(stmt, 0);
        if (id != keys[i].id)
            break;
        Record *r = Record::createInline(arena.get() + slot * rank[i], textArena.get() + textSlot * rank[i], this,
                                         EntityId::Invoice, id);
        readRow(r, stmt, 1, true);
        st.map.insert(id, r);
        placed[rank[i]] = r;
        ++i;
    }
    if (stmt && rc != SQLITE_DONE && rc != SQLITE_ROW)
        m_lastError = sqlError(QStringLiteral("The database could not be read."));
    if (stmt)
        sqlite3_reset(stmt);
    sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr);
    st.arenas.push_back(std::move(arena));
    st.arenas.push_back(std::move(textArena));
    st.live.reserve(qsizetype(placed.size()));
    for (Record *r : placed)
        if (r)
            st.live.append(r);
    st.loaded = true;
    return true;
}

void Store::loadAll(EntityId entity)
{
    EntityState &st = *m_entities[int(entity)];
    if (st.loaded || !m_db)
        return;
    if (entity == EntityId::Invoice && st.map.isEmpty() && m_dirty.isEmpty() && loadDocumentsInListOrder())
        return;
    const bool listOnly = entity == EntityId::Invoice;
    sqlite3_stmt *stmt = prepare(listOnly ? st.listSelect : st.fullSelect);
    if (!stmt)
        return;
    QList<Record *> live;
    live.reserve(st.map.size());
    int rc;
    while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
        bool created = false;
        Record *r = adopt(entity, sqlite3_column_int64(stmt, 0), &created);
        if (created || (m_refreshing && !r->m_inserted && !r->m_deleted))
            readRow(r, stmt, 1, listOnly);
        if (!r->m_deleted)
            live.append(r);
    }
    if (rc != SQLITE_DONE)
        m_lastError = sqlError(QStringLiteral("The database could not be read."));
    sqlite3_reset(stmt);
    for (Record *r : std::as_const(m_dirty))
        if (r->m_entity == entity && r->m_inserted && !r->m_deleted)
            live.append(r);
    st.live = std::move(live);
    st.loaded = true;
}

const QList<Record *> &Store::all(EntityId entity)
{
    loadAll(entity);
    return m_entities[int(entity)]->live;
}

Record *Store::byId(EntityId entity, qint64 id)
{
    EntityState &st = *m_entities[int(entity)];
    if (Record *r = st.map.value(id))
        return r->m_deleted ? nullptr : r;
    if (st.loaded || !m_db)
        return nullptr;
    sqlite3_stmt *stmt = prepare(st.fullSelect + QStringLiteral(" WHERE \"id\" = ?"));
    if (!stmt)
        return nullptr;
    sqlite3_bind_int64(stmt, 1, id);
    Record *r = nullptr;
    if (sqlite3_step(stmt) == SQLITE_ROW) {
        bool created = false;
        r = adopt(entity, id, &created);
        readRow(r, stmt, 1, false);
    }
    sqlite3_reset(stmt);
    return r;
}

qsizetype Store::count(EntityId entity)
{
    EntityState &st = *m_entities[int(entity)];
    if (st.loaded)
        return st.live.size();
    qsizetype n = 0;
    if (sqlite3_stmt *stmt = prepare(QStringLiteral("SELECT count(*) FROM %1").arg(schema::quoted(entityDesc(entity).name)))) {
        if (sqlite3_step(stmt) == SQLITE_ROW)
            n = sqlite3_column_int64(stmt, 0);
        sqlite3_reset(stmt);
    }
    for (Record *r : std::as_const(m_dirty)) {
        if (r->m_entity != entity)
            continue;
        if (r->m_inserted && !r->m_deleted)
            ++n;
        else if (!r->m_inserted && r->m_deleted)
            --n;
    }
    return n;
}

Record *Store::insert(EntityId entity)
{
    EntityState &st = *m_entities[int(entity)];
    if (st.maxId < 0) {
        st.maxId = 0;
        if (sqlite3_stmt *stmt = prepare(QStringLiteral("SELECT max(\"id\") FROM %1").arg(schema::quoted(entityDesc(entity).name)))) {
            if (sqlite3_step(stmt) == SQLITE_ROW)
                st.maxId = sqlite3_column_int64(stmt, 0);
            sqlite3_reset(stmt);
        }
        for (auto it = st.map.cbegin(); it != st.map.cend(); ++it)
            st.maxId = std::max(st.maxId, it.key());
    }
    auto *r = new Record(this, entity, ++st.maxId);
    r->m_inserted = true;
    st.map.insert(r->m_id, r);
    if (st.loaded)
        st.live.append(r);
    noteChanged(r);
    return r;
}

void Store::remove(Record *r)
{
    if (!r || r->m_deleted)
        return;
    const EntityDesc &d = r->desc();
    for (int rel = 0; rel < int(d.relations.size()); ++rel) {
        if (!d.relations[rel].toMany)
            continue;
        const QList<Record *> children = r->toMany(rel);
        for (Record *child : children)
            remove(child);
    }
    for (int rel = 0; rel < int(d.relations.size()); ++rel) {
        if (d.relations[rel].toMany)
            continue;
        if (Record *owner = r->toOne(rel)) {
            const int inv = owner->desc().relationIndex(d.relations[rel].inverseName);
            if (inv >= 0 && owner->m_toMany && owner->m_toMany[inv])
                owner->m_toMany[inv]->removeOne(r);
        }
    }
    r->m_deleted = true;
    m_entities[int(r->m_entity)]->live.removeOne(r);
    noteChanged(r);
}

void Store::noteChanged(Record *r)
{
    if (!r->m_inDirty) {
        r->m_inDirty = true;
        m_dirty.append(r);
    }
}

void Store::faultText(Record *r)
{
    if (r->m_textLoaded || r->m_inserted || !m_db)
        return;
    const EntityState &st = *m_entities[int(r->m_entity)];
    sqlite3_stmt *stmt = prepare(st.fullSelect + QStringLiteral(" WHERE \"id\" = ?"));
    if (!stmt)
        return;
    sqlite3_bind_int64(stmt, 1, r->m_id);
    if (sqlite3_step(stmt) == SQLITE_ROW) {
        const EntityDesc &d = r->desc();
        for (int a = 0; a < int(d.attributes.size()); ++a) {
            const AttributeDesc &ad = d.attributes[a];
            if (ad.isText() && !((d.listTextMask >> ad.slot) & 1U) && !r->m_changed.test(a))
                r->m_text[ad.slot] = textFromColumn(stmt, a + 1);
        }
    }
    sqlite3_reset(stmt);
    r->m_textLoaded = true;
}

void Store::loadFully(const QList<Record *> &records)
{
    if (records.isEmpty())
        return;
    // Whole records: their lines too, since every bulk reader walks them.
    const EntityDesc &owner = records.first()->desc();
    for (int rel = 0; rel < int(owner.relations.size()); ++rel)
        if (owner.relations[rel].toMany)
            prefetchToMany(records, rel);
    if (owner.id != EntityId::Invoice)
        return; // only documents are read in part
    constexpr qsizetype kOneByOne = 64;
    if (records.size() <= kOneByOne || !m_db) {
        for (Record *r : records)
            faultText(r);
        return;
    }
    // Many records: one pass over the table beats a query per record.
    const EntityState &st = *m_entities[int(EntityId::Invoice)];
    const EntityDesc &d = entityDesc(EntityId::Invoice);
    sqlite3_stmt *stmt = prepare(st.fullSelect);
    if (!stmt)
        return;
    while (sqlite3_step(stmt) == SQLITE_ROW) {
        Record *r = st.map.value(sqlite3_column_int64(stmt, 0));
        if (!r || r->m_textLoaded)
            continue;
        for (int a = 0; a < int(d.attributes.size()); ++a) {
            const AttributeDesc &ad = d.attributes[a];
            if (ad.isText() && !((d.listTextMask >> ad.slot) & 1U) && !r->m_changed.test(a))
                r->m_text[ad.slot] = textFromColumn(stmt, a + 1);
        }
        r->m_textLoaded = true;
    }
    sqlite3_reset(stmt);
    for (Record *r : records)
        faultText(r); // anything the pass did not meet
}

void Store::prefetchToMany(const QList<Record *> &owners, int rel)
{
    if (owners.size() <= 64 || !m_db) {
        for (Record *o : owners)
            o->toMany(rel);
        return;
    }
    const RelationDesc &rd = owners.first()->desc().relations[rel];
    const EntityDesc &target = entityDesc(rd.target);
    const int inverse = target.relationIndex(rd.inverseName);
    int fkSlot = 0;
    for (int i = 0; i < inverse; ++i)
        fkSlot += target.relations[i].toMany ? 0 : 1;
    QHash<qint64, QList<Record *> *> pending;
    for (Record *o : owners) {
        if (o->m_inserted || (o->m_toMany && o->m_toMany[rel]))
            continue;
        if (!o->m_toMany)
            o->m_toMany.reset(new std::unique_ptr<QList<Record *>>[o->desc().relations.size()]);
        o->m_toMany[rel] = std::make_unique<QList<Record *>>();
        pending.insert(o->m_id, o->m_toMany[rel].get());
    }
    const EntityState &st = *m_entities[int(rd.target)];
    sqlite3_stmt *stmt = prepare(st.fullSelect + QStringLiteral(" WHERE %1 IS NOT NULL ORDER BY \"id\"").arg(schema::quoted(rd.inverseName)));
    if (!stmt)
        return;
    while (sqlite3_step(stmt) == SQLITE_ROW) {
        bool created = false;
        Record *r = adopt(rd.target, sqlite3_column_int64(stmt, 0), &created);
        if (created)
            readRow(r, stmt, 1, false);
        if (r->m_deleted)
            continue;
        if (QList<Record *> *list = pending.value(r->m_fk[fkSlot]))
            list->append(r);
    }
    sqlite3_reset(stmt);
    // Lines attached in memory but not saved yet.
    for (Record *r : std::as_const(m_dirty))
        if (r->m_entity == rd.target && !r->m_deleted)
            if (QList<Record *> *list = pending.value(r->m_fk[fkSlot]))
                if (!list->contains(r))
                    list->append(r);
}

QList<Record *> *Store::loadToMany(const Record *owner, int rel)
{
    auto *list = new QList<Record *>;
    const RelationDesc &rd = owner->desc().relations[rel];
    const EntityDesc &target = entityDesc(rd.target);
    const int inverse = target.relationIndex(rd.inverseName);
    int fkSlot = 0;
    for (int i = 0; i < inverse; ++i)
        fkSlot += target.relations[i].toMany ? 0 : 1;
    const EntityState &st = *m_entities[int(rd.target)];
    if (m_db && !owner->m_inserted) {
        sqlite3_stmt *stmt = prepare(st.fullSelect + QStringLiteral(" WHERE %1 = ? ORDER BY \"id\"").arg(schema::quoted(rd.inverseName)));
        if (stmt) {
            sqlite3_bind_int64(stmt, 1, owner->m_id);
            int rc;
            while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
                bool created = false;
                Record *r = adopt(rd.target, sqlite3_column_int64(stmt, 0), &created);
                if (created || (m_refreshing && !r->m_inserted && !r->m_deleted))
                    readRow(r, stmt, 1, false);
                if (!r->m_deleted && r->m_fk[fkSlot] == owner->m_id)
                    list->append(r);
            }
            if (rc != SQLITE_DONE)
                m_lastError = sqlError(QStringLiteral("The lines of a document could not be read."));
            sqlite3_reset(stmt);
        }
    }
    // Lines attached in memory but not saved yet, or moved here from elsewhere.
    for (Record *r : std::as_const(m_dirty))
        if (r->m_entity == rd.target && !r->m_deleted && r->m_fk[fkSlot] == owner->m_id
            && !list->contains(r))
            list->append(r);
    return list;
}

namespace {

// Binds one value the way it is stored: NaN as the text "NaN", integers and
// booleans as integers, null as null.
void bindValue(sqlite3_stmt *stmt, int p, const AttributeDesc &ad, bool null, double v, const QString &text)
{
    if (ad.isText()) {
        if (text.isNull()) {
            sqlite3_bind_null(stmt, p);
        } else {
            const QByteArray utf8 = text.toUtf8();
            sqlite3_bind_text(stmt, p, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT);
        }
    } else if (null) {
        sqlite3_bind_null(stmt, p);
    } else if (std::isnan(v)) {
        sqlite3_bind_text(stmt, p, "NaN", 3, SQLITE_STATIC);
    } else if (ad.type == AttrType::Int || ad.type == AttrType::Bool) {
        sqlite3_bind_int64(stmt, p, qint64(v));
    } else {
        sqlite3_bind_double(stmt, p, v);
    }
}

} // namespace

void Store::rememberOriginal(Record *r, int attr)
{
    QHash<int, Original> &originals = m_originals[r];
    if (originals.contains(attr))
        return;
    const AttributeDesc &ad = r->desc().attributes[attr];
    if (ad.isText())
        originals.insert(attr, Original{false, 0.0, r->m_text[ad.slot]});
    else
        originals.insert(attr, Original{bool((r->m_nullMask >> ad.slot) & 1U), r->m_num[ad.slot], {}});
}

Error Store::writeRecord(Record *r)
{
    const EntityDesc &d = r->desc();
    const EntityState &st = *m_entities[int(d.id)];
    const QString table = schema::quoted(d.name);
    if (r->m_deleted) {
        if (r->m_inserted)
            return {};
        sqlite3_stmt *stmt = prepare(QStringLiteral("DELETE FROM %1 WHERE \"id\" = ?").arg(table));
        if (!stmt)
            return m_lastError;
        sqlite3_bind_int64(stmt, 1, r->m_id);
        return sqlite3_step(stmt) == SQLITE_DONE ? Error{} : sqlError(QStringLiteral("A record could not be deleted."));
    }

    const int attrCount = int(d.attributes.size());
    QList<int> cols; // attribute index, or attrCount + to-one slot
    if (r->m_inserted) {
        for (int c = 0; c < st.fullColumns.size(); ++c)
            cols << c;
    } else {
        for (int c = 0; c < st.fullColumns.size(); ++c)
            if (r->m_changed.test(c))
                cols << c;
        if (cols.isEmpty())
            return {};
    }
    // Each changed value must still be what this process read: otherwise
    // another process changed it meanwhile and the row is left alone.
    QList<int> guarded;
    const auto found = m_originals.constFind(r);
    const QHash<int, Original> *originals = found == m_originals.cend() ? nullptr : &*found;
    if (!r->m_inserted && originals)
        for (int c : cols)
            if (c < attrCount && originals->contains(c))
                guarded << c;
    QString sql;
    if (r->m_inserted) {
        QStringList names{QStringLiteral("\"id\"")};
        for (int c : cols)
            names << schema::quoted(st.fullColumns[c]);
        sql = QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
                  .arg(table, names.join(QLatin1Char(',')),
                       QStringList(names.size(), QStringLiteral("?")).join(QLatin1Char(',')));
    } else {
        QStringList sets;
        for (int c : cols)
            sets << schema::quoted(st.fullColumns[c]) + QStringLiteral("=?");
        sql = QStringLiteral("UPDATE %1 SET %2 WHERE \"id\" = ?").arg(table, sets.join(QLatin1Char(',')));
        for (int c : guarded)
            sql += QStringLiteral(" AND %1 IS ?").arg(schema::quoted(st.fullColumns[c]));
    }
    sqlite3_stmt *stmt = prepare(sql);
    if (!stmt)
        return m_lastError;
    int p = 1;
    if (r->m_inserted)
        sqlite3_bind_int64(stmt, p++, r->m_id);
    for (int c : cols) {
        if (c >= attrCount) {
            const qint64 fk = r->m_fk[c - attrCount];
            fk ? sqlite3_bind_int64(stmt, p++, fk) : sqlite3_bind_null(stmt, p++);
            continue;
        }
        const AttributeDesc &ad = d.attributes[c];
        bindValue(stmt, p++, ad, (r->m_nullMask >> ad.slot) & 1U, ad.isText() ? 0.0 : r->m_num[ad.slot],
                  ad.isText() ? r->m_text[ad.slot] : QString());
    }
    if (!r->m_inserted) {
        sqlite3_bind_int64(stmt, p++, r->m_id);
        for (int c : guarded) {
            const Original &o = originals->value(c);
            bindValue(stmt, p++, d.attributes[c], o.null, o.num, o.text);
        }
    }
    if (sqlite3_step(stmt) != SQLITE_DONE)
        return sqlError(QStringLiteral("A record could not be written."));
    if (!r->m_inserted && sqlite3_changes(m_db) == 0)
        m_conflicts.append(r);
    return {};
}

Error Store::assignNewIds()
{
    for (int i = 0; i < kEntityCount; ++i) {
        EntityState &st = *m_entities[i];
        QList<Record *> fresh;
        for (Record *r : std::as_const(m_dirty))
            if (int(r->m_entity) == i && r->m_inserted && !r->m_deleted)
                fresh << r;
        if (fresh.isEmpty())
            continue;
        qint64 dbMax = 0;
        sqlite3_stmt *stmt = prepare(QStringLiteral("SELECT max(\"id\") FROM %1").arg(schema::quoted(entityDesc(EntityId(i)).name)));
        if (!stmt)
            return m_lastError;
        if (sqlite3_step(stmt) != SQLITE_ROW) {
            const Error e = sqlError(QStringLiteral("The changes could not be saved."));
            sqlite3_reset(stmt);
            return e;
        }
        dbMax = sqlite3_column_int64(stmt, 0);
        sqlite3_reset(stmt);
        // Ids handed out before the write lock was held may have been taken
        // by another process since; the ones above the table's maximum are free.
        qint64 next = std::max(st.maxId, dbMax);
        QHash<qint64, qint64> moved;
        for (Record *r : std::as_const(fresh)) {
            if (r->m_id > dbMax)
                continue;
            if (st.map.value(r->m_id) == r)
                st.map.remove(r->m_id);
            moved.insert(r->m_id, ++next);
            r->m_id = next;
            st.map.insert(next, r);
        }
        st.maxId = next;
        if (moved.isEmpty())
            continue;
        for (Record *r : std::as_const(m_dirty)) {
            const EntityDesc &d = r->desc();
            int slot = 0;
            for (const auto &rel : d.relations) {
                if (rel.toMany)
                    continue;
                if (int(rel.target) == i && moved.contains(r->m_fk[slot]))
                    r->m_fk[slot] = moved.value(r->m_fk[slot]);
                ++slot;
            }
        }
    }
    return {};
}

Error Store::save(const std::function<void()> &inTransaction)
{
    if (m_dirty.isEmpty())
        return {};
    if (!m_db)
        return Error{Error::Tabo, 9999, QStringLiteral("Failed to initialize the store"),
                     QStringLiteral("There was an error building up the data file.")};
    if (const Error e = checkIntegrity())
        return e;
    if (sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK)
        return sqlError(QStringLiteral("The changes could not be saved."));
    const auto fail = [this](const Error &e) {
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
        return Error{e.source, e.code, QStringLiteral("The changes could not be saved."), e.message()};
    };
    refreshIfChanged();
    if (inTransaction)
        inTransaction();
    if (m_damaged)
        return fail(damagedError());
    if (const Error e = assignNewIds())
        return fail(e);
    m_conflicts.clear();
    for (Record *r : std::as_const(m_dirty)) {
        // Rows of a document that was deleted already went with it.
        if (const Error e = writeRecord(r))
            return fail(e);
    }
    if (!m_conflicts.isEmpty()) {
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
        return Error{Error::Store, kConflict, QStringLiteral("The changes could not be saved."),
                     QStringLiteral("Another program changed the same records after they were read here.")};
    }
    // The journal keeps what the slowest reader may still need; one that
    // falls further behind reads everything again.
    const QByteArray prune = QStringLiteral("DELETE FROM \"%1\" WHERE \"seq\" < (SELECT max(\"seq\") FROM \"%1\") - %2")
                                 .arg(schema::kChangesTable)
                                 .arg(kJournalLength)
                                 .toUtf8();
    if (sqlite3_exec(m_db, prune.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        return fail(sqlError(QStringLiteral("The changes could not be saved.")));
    // Read before the commit: whatever another process writes after it is
    // news for the next refresh.
    const ChangeMark mark = readChangeMark();
    if (sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK) {
        const Error e = sqlError(QStringLiteral("The changes could not be saved."));
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
        return e;
    }
    for (Record *r : std::as_const(m_dirty)) {
        r->m_inDirty = false;
        r->m_inserted = false;
        r->m_changed.reset();
        // Deleted records stay allocated (but unreachable) so that a pointer
        // somebody still holds does not dangle; they go with the store.
    }
    m_dirty.clear();
    m_originals.clear();
    m_mark = mark;
    changedElsewhere(); // our own commit is not news
    return {};
}

Error Store::write(const std::function<Error(sqlite3 *)> &body)
{
    if (!m_db)
        return Error{Error::Store, SQLITE_MISUSE, QStringLiteral("No database is open."), {}};
    if (const Error e = checkIntegrity())
        return e;
    if (sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK)
        return sqlError(QStringLiteral("The database could not be written."));
    refreshIfChanged();
    Error e = m_damaged ? damagedError() : body(m_db);
    if (!e && sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK)
        e = sqlError(QStringLiteral("The database could not be written."));
    if (e) {
        if ((e.code & 0xff) == SQLITE_CORRUPT || (e.code & 0xff) == SQLITE_NOTADB)
            m_damaged = true;
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
        return e;
    }
    changedElsewhere(); // our own commit is not news
    return {};
}

bool Store::changedElsewhere()
{
    if (!m_db)
        return false;
    sqlite3_stmt *stmt = prepare(QStringLiteral("PRAGMA data_version"));
    if (!stmt)
        return false;
    qint64 v = m_dataVersion;
    if (sqlite3_step(stmt) == SQLITE_ROW)
        v = sqlite3_column_int64(stmt, 0);
    sqlite3_reset(stmt);
    const bool changed = m_dataVersion >= 0 && v != m_dataVersion;
    m_dataVersion = v;
    return changed;
}

bool Store::refreshIfChanged()
{
    if (!changedElsewhere())
        return false;
    refresh();
    if (m_onExternalChange)
        m_onExternalChange();
    return true;
}

Store::ChangeMark Store::readChangeMark()
{
    ChangeMark mark;
    sqlite3_stmt *stmt = prepare(QStringLiteral("SELECT (SELECT \"generation\" FROM \"%1\"), "
                                                "(SELECT min(\"seq\") FROM \"%2\"), (SELECT max(\"seq\") FROM \"%2\")")
                                     .arg(schema::kStoreTable, schema::kChangesTable));
    if (stmt && sqlite3_step(stmt) == SQLITE_ROW) {
        mark.generation = textFromColumn(stmt, 0);
        mark.first = sqlite3_column_int64(stmt, 1);
        mark.last = sqlite3_column_int64(stmt, 2);
    }
    if (stmt)
        sqlite3_reset(stmt);
    return mark;
}

void Store::refresh()
{
    // A record made here holds an id only tentatively; another process may
    // have stored a row under it, which must not be taken for ours.
    assignNewIds();
    m_refreshing = true;
    // The mark first: a change committed while the rows are read is read
    // again next time, never missed.
    const ChangeMark now = readChangeMark();
    const bool complete = !now.generation.isEmpty() && now.generation == m_mark.generation
                          && now.last >= m_mark.last && (now.first == 0 || m_mark.last >= now.first - 1);
    const bool done = complete && refreshChanged(now);
    m_mark = now;
    if (done) {
        m_refreshing = false;
        return;
    }
    for (int i = 0; i < kEntityCount; ++i)
        rescanEntity(EntityId(i));
    // Lists of lines (and other to-many lists) already read are read again in
    // place, so whoever holds one sees the current lines.
    for (auto &st : m_entities)
        for (Record *owner : std::as_const(st->map))
            rereadLists(owner);
    m_refreshing = false;
}

bool Store::refreshChanged(const ChangeMark &now)
{
    QHash<int, QList<qint64>> changed;
    {
        sqlite3_stmt *stmt = prepare(QStringLiteral("SELECT DISTINCT \"entity\", \"row\" FROM \"%1\" WHERE \"seq\" > ? "
                                                    "AND \"seq\" <= ?")
                                         .arg(schema::kChangesTable));
        if (!stmt)
            return false;
        sqlite3_bind_int64(stmt, 1, m_mark.last);
        sqlite3_bind_int64(stmt, 2, now.last);
        int rc;
        while ((rc = sqlite3_step(stmt)) == SQLITE_ROW) {
            const int entity = sqlite3_column_int(stmt, 0);
            if (entity >= 0 && entity < kEntityCount)
                changed[entity] << sqlite3_column_int64(stmt, 1);
        }
        sqlite3_reset(stmt);
        if (rc != SQLITE_DONE)
            return false;
    }
    // Owners whose lists of lines (or other to-many lists) must be read again.
    QSet<Record *> owners;
    const auto noteOwners = [&](const EntityDesc &d, const qint64 *fks) {
        int slot = 0;
        for (const auto &rel : d.relations) {
            if (rel.toMany)
                continue;
            if (Record *owner = fks[slot] ? m_entities[int(rel.target)]->map.value(fks[slot]) : nullptr)
                if (owner->m_toMany)
                    owners.insert(owner);
            ++slot;
        }
    };
    for (auto it = changed.cbegin(); it != changed.cend(); ++it) {
        const EntityId entity = EntityId(it.key());
        EntityState &st = *m_entities[it.key()];
        const EntityDesc &d = entityDesc(entity);
        const bool listOnly = entity == EntityId::Invoice;
        sqlite3_stmt *stmt = prepare((listOnly ? st.listSelect : st.fullSelect) + QStringLiteral(" WHERE \"id\" = ?"));
        if (!stmt)
            return false;
        const int fkColumn = 1 + int(d.attributes.size());
        std::vector<qint64> fks(d.relations.size(), 0);
        for (const qint64 id : it.value()) {
            Record *r = st.map.value(id);
            if (r && (r->m_inserted || r->m_deleted))
                continue;
            if (r && r->m_fk)
                noteOwners(d, r->m_fk.get());
            sqlite3_reset(stmt);
            sqlite3_bind_int64(stmt, 1, id);
            const int rc = sqlite3_step(stmt);
            if (rc == SQLITE_ROW) {
                if (!listOnly) {
                    int slot = 0;
                    for (const auto &rel : d.relations)
                        if (!rel.toMany) {
                            fks[slot] = sqlite3_column_type(stmt, fkColumn + slot) == SQLITE_NULL
                                            ? 0 : sqlite3_column_int64(stmt, fkColumn + slot);
                            ++slot;
                        }
                    noteOwners(d, fks.data());
                }
                if (!r && !st.loaded)
                    continue; // read on first use, or with its owner's list
                bool created = false;
                if (!r) {
                    r = adopt(entity, id, &created);
                    st.live.append(r);
                }
                readRow(r, stmt, 1, listOnly);
            } else if (rc == SQLITE_DONE) {
                // Gone from the file. A record with unsaved changes stays; its
                // save reports the conflict.
                if (r && !r->hasChanges()) {
                    r->m_deleted = true;
                    st.live.removeOne(r);
                }
            } else {
                sqlite3_reset(stmt);
                m_lastError = sqlError(QStringLiteral("The database could not be read."));
                return false;
            }
        }
        sqlite3_reset(stmt);
    }
    for (Record *owner : std::as_const(owners))
        rereadLists(owner);
    return true;
}

void Store::rereadLists(Record *owner)
{
    if (!owner->m_toMany || owner->m_inserted || owner->m_deleted)
        return;
    for (int rel = 0; rel < int(owner->desc().relations.size()); ++rel) {
        if (!owner->m_toMany[rel])
            continue;
        std::unique_ptr<QList<Record *>> fresh(loadToMany(owner, rel));
        *owner->m_toMany[rel] = std::move(*fresh);
    }
}

void Store::rescanEntity(EntityId entity)
{
    EntityState &st = *m_entities[int(entity)];
    if (!st.loaded && st.map.isEmpty())
        return;
    const bool listOnly = entity == EntityId::Invoice;
    // A loaded entity is read whole (new rows join it); otherwise only the
    // records held here are looked at.
    const bool wholeTable = st.loaded || st.map.size() > 256;
    sqlite3_stmt *stmt = prepare(wholeTable ? (listOnly ? st.listSelect : st.fullSelect)
                                            : st.fullSelect + QStringLiteral(" WHERE \"id\" = ?"));
    if (!stmt)
        return;
    QSet<const Record *> seen;
    QList<Record *> live;
    const auto take = [&](sqlite3_stmt *row) {
        const qint64 id = sqlite3_column_int64(row, 0);
        Record *r = st.map.value(id);
        if (!r && !st.loaded)
            return;
        bool created = false;
        if (!r)
            r = adopt(entity, id, &created);
        if (r->m_deleted || r->m_inserted)
            return;
        readRow(r, row, 1, listOnly);
        seen.insert(r);
        live.append(r);
    };
    if (wholeTable) {
        int rc;
        while ((rc = sqlite3_step(stmt)) == SQLITE_ROW)
            take(stmt);
        if (rc != SQLITE_DONE)
            m_lastError = sqlError(QStringLiteral("The database could not be read."));
        sqlite3_reset(stmt);
    } else {
        const QList<Record *> known = st.map.values();
        for (Record *r : known) {
            if (r->m_deleted || r->m_inserted)
                continue;
            sqlite3_reset(stmt);
            sqlite3_bind_int64(stmt, 1, r->m_id);
            if (sqlite3_step(stmt) == SQLITE_ROW)
                take(stmt);
        }
        sqlite3_reset(stmt);
    }
    // Rows gone from the file: a record with unsaved changes stays (its save
    // reports the conflict), the others are gone here too.
    for (Record *r : std::as_const(st.map)) {
        if (r->m_deleted || r->m_inserted || seen.contains(r))
            continue;
        if (r->hasChanges()) {
            live.append(r);
            continue;
        }
        r->m_deleted = true;
    }
    if (!st.loaded)
        return;
    for (Record *r : std::as_const(m_dirty))
        if (r->m_entity == entity && r->m_inserted && !r->m_deleted)
            live.append(r);
    st.live = std::move(live);
}

void Store::keepMineOnConflicts()
{
    for (Record *r : std::as_const(m_conflicts)) {
        m_originals.remove(r);
        const EntityDesc &d = r->desc();
        sqlite3_stmt *stmt = prepare(QStringLiteral("SELECT 1 FROM %1 WHERE \"id\" = ?").arg(schema::quoted(d.name)));
        if (!stmt)
            continue;
        sqlite3_bind_int64(stmt, 1, r->m_id);
        const bool exists = sqlite3_step(stmt) == SQLITE_ROW;
        sqlite3_reset(stmt);
        if (!exists) { // deleted elsewhere: write it again whole
            r->m_textLoaded = true; // texts never read stay empty: the row is gone
            r->m_inserted = true;
        }
    }
    m_conflicts.clear();
}

void Store::revertConflicts()
{
    for (Record *r : std::as_const(m_conflicts)) {
        m_originals.remove(r);
        r->m_changed.reset();
        if (!r->m_inserted && !r->m_deleted) {
            m_dirty.removeOne(r);
            r->m_inDirty = false;
        }
    }
    // Their stored rows were seen while the local values still won; read
    // them again now that nothing local is left.
    for (Record *r : std::as_const(m_conflicts)) {
        if (r->m_inserted || r->m_deleted)
            continue;
        EntityState &st = *m_entities[int(r->m_entity)];
        sqlite3_stmt *stmt = prepare(st.fullSelect + QStringLiteral(" WHERE \"id\" = ?"));
        if (!stmt)
            continue;
        sqlite3_bind_int64(stmt, 1, r->m_id);
        if (sqlite3_step(stmt) == SQLITE_ROW) {
            readRow(r, stmt, 1, false);
        } else {
            r->m_deleted = true;
            st.live.removeOne(r);
        }
        sqlite3_reset(stmt);
    }
    m_conflicts.clear();
    refresh();
    if (m_onExternalChange)
        m_onExternalChange();
}

Error Store::replaceContentFrom(const QString &source)
{
    const QString what = QStringLiteral("The database could not be replaced.");
    if (!m_db)
        return Error{Error::Store, SQLITE_MISUSE, what, QStringLiteral("No database is open.")};
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
        return Error{Error::Store, SQLITE_MISMATCH, what,
                     QStringLiteral("The backup uses another page size than the database.")};
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
