#include "store/Store.h"

#include "domain/Record.h"
#include "store/Schema.h"
#include "store/StoreState.h"

#include <QSet>

#include <QCoreApplication>
#include <sqlite3.h>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(StoreJournal)
};
} // namespace

// The change journal: what other processes committed since this one last
// looked, read back into the records in memory, and the conflicts with
// this process's own unsaved changes.

namespace tabo {

using storedetail::textFromColumn;

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

std::optional<QHash<int, QList<qint64>>> Store::journalRows(const ChangeMark &now)
{
    QHash<int, QList<qint64>> changed;
    sqlite3_stmt *stmt = prepare(QStringLiteral("SELECT DISTINCT \"entity\", \"row\" FROM \"%1\" WHERE \"seq\" > ? "
                                                "AND \"seq\" <= ?")
                                     .arg(schema::kChangesTable));
    if (!stmt)
        return std::nullopt;
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
        return std::nullopt;
    return changed;
}

void Store::noteOwners(const EntityDesc &d, const qint64 *fks, QSet<Record *> &owners) const
{
    int slot = 0;
    for (const auto &rel : d.relations) {
        if (rel.toMany)
            continue;
        if (Record *owner = fks[slot] ? m_entities[int(rel.target)]->map.value(fks[slot]) : nullptr)
            if (owner->m_toMany)
                owners.insert(owner);
        ++slot;
    }
}

bool Store::rereadRows(EntityId entity, const QList<qint64> &ids, QSet<Record *> &owners)
{
    EntityState &st = *m_entities[int(entity)];
    const EntityDesc &d = entityDesc(entity);
    const bool listOnly = entity == EntityId::Invoice;
    sqlite3_stmt *stmt = prepare((listOnly ? st.listSelect : st.fullSelect) + QStringLiteral(" WHERE \"id\" = ?"));
    if (!stmt)
        return false;
    const int fkColumn = 1 + int(d.attributes.size());
    std::vector<qint64> fks(d.relations.size(), 0);
    for (const qint64 id : ids) {
        Record *r = st.map.value(id);
        if (r && (r->m_inserted || r->m_deleted))
            continue;
        if (r && r->m_fk)
            noteOwners(d, r->m_fk.get(), owners);
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
                noteOwners(d, fks.data(), owners);
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
            m_lastError = sqlError(Tr::tr("The database could not be read."));
            return false;
        }
    }
    sqlite3_reset(stmt);
    return true;
}

bool Store::refreshChanged(const ChangeMark &now)
{
    const std::optional<QHash<int, QList<qint64>>> changed = journalRows(now);
    if (!changed)
        return false;
    // Owners whose lists of lines (or other to-many lists) must be read again.
    QSet<Record *> owners;
    for (auto it = changed->cbegin(); it != changed->cend(); ++it)
        if (!rereadRows(EntityId(it.key()), it.value(), owners))
            return false;
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
            m_lastError = sqlError(Tr::tr("The database could not be read."));
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

} // namespace tabo
