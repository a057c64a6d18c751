#include "store/Store.h"

#include "domain/Record.h"
#include "store/Schema.h"
#include "store/StoreState.h"

#include <QSet>

#include <sqlite3.h>

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(StoreRecords)
};
} // namespace

// The records: reading them in, creating and removing them, and writing
// what changed in one transaction.

namespace tabo {

using storedetail::textFromColumn;

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
        m_lastError = sqlError(Tr::tr("The database could not be read."));
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
        m_lastError = sqlError(Tr::tr("The database could not be read."));
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
        m_lastError = sqlError(Tr::tr("The database could not be read."));
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
                m_lastError = sqlError(Tr::tr("The lines of a document could not be read."));
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

namespace {

// The INSERT of a new record, or the UPDATE of its changed columns that
// matches only while the guarded ones hold what this process read.
QString writeSql(const QString &table, const QStringList &columns, bool insert, const QList<int> &cols,
                 const QList<int> &guarded)
{
    if (insert) {
        QStringList names{QStringLiteral("\"id\"")};
        for (int c : cols)
            names << schema::quoted(columns[c]);
        return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
            .arg(table, names.join(QLatin1Char(',')), QStringList(names.size(), QStringLiteral("?")).join(QLatin1Char(',')));
    }
    QStringList sets;
    for (int c : cols)
        sets << schema::quoted(columns[c]) + QStringLiteral("=?");
    QString sql = QStringLiteral("UPDATE %1 SET %2 WHERE \"id\" = ?").arg(table, sets.join(QLatin1Char(',')));
    for (int c : guarded)
        sql += QStringLiteral(" AND %1 IS ?").arg(schema::quoted(columns[c]));
    return sql;
}

} // namespace

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
        return sqlite3_step(stmt) == SQLITE_DONE ? Error {} : sqlError(Tr::tr("A record could not be deleted."));
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
    sqlite3_stmt *stmt = prepare(writeSql(table, st.fullColumns, r->m_inserted, cols, guarded));
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
        return sqlError(Tr::tr("A record could not be written."));
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
            const Error e = sqlError(Tr::tr("The changes could not be saved."));
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
    return saveWith([&inTransaction](sqlite3 *) {
        if (inTransaction)
            inTransaction();
        return Error {};
    });
}

Error Store::saveWith(const std::function<Error(sqlite3 *)> &inTransaction)
{
    if (!m_db)
        return Error { Error::Tabo, 9999, Tr::tr("Failed to initialize the store"),
            Tr::tr("There was an error building up the data file.") };
    if (const Error e = checkIntegrity())
        return e;
    if (sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK)
        return sqlError(Tr::tr("The changes could not be saved."));
    const auto fail = [this](const Error &e) {
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
        return Error { e.source, e.code, Tr::tr("The changes could not be saved."), e.message() };
    };
    refreshIfChanged();
    if (const Error e = inTransaction(m_db))
        return fail(e);
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
        return Error { Error::Store, kConflict, Tr::tr("The changes could not be saved."),
            Tr::tr("Another program changed the same records after they were read here.") };
    }
    // The journal keeps what the slowest reader may still need; one that
    // falls further behind reads everything again.
    const QByteArray prune = QStringLiteral("DELETE FROM \"%1\" WHERE \"seq\" < (SELECT max(\"seq\") FROM \"%1\") - %2")
                                 .arg(schema::kChangesTable)
                                 .arg(kJournalLength)
                                 .toUtf8();
    if (sqlite3_exec(m_db, prune.constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        return fail(sqlError(Tr::tr("The changes could not be saved.")));
    // Read before the commit: whatever another process writes after it is
    // news for the next refresh.
    const ChangeMark mark = readChangeMark();
    if (sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK) {
        const Error e = sqlError(Tr::tr("The changes could not be saved."));
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
        return Error { Error::Store, SQLITE_MISUSE, Tr::tr("No database is open."), {} };
    if (const Error e = checkIntegrity())
        return e;
    if (sqlite3_exec(m_db, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK)
        return sqlError(Tr::tr("The database could not be written."));
    refreshIfChanged();
    Error e = m_damaged ? damagedError() : body(m_db);
    if (!e && sqlite3_exec(m_db, "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK)
        e = sqlError(Tr::tr("The database could not be written."));
    if (e) {
        if ((e.code & 0xff) == SQLITE_CORRUPT || (e.code & 0xff) == SQLITE_NOTADB)
            m_damaged = true;
        sqlite3_exec(m_db, "ROLLBACK", nullptr, nullptr, nullptr);
        return e;
    }
    changedElsewhere(); // our own commit is not news
    return {};
}

} // namespace tabo
