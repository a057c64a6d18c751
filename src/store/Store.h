#pragma once

#include "base/Result.h"
#include "domain/EntityModel.h"
#include "domain/RecordOwner.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace tabo {

class Record;

// The object store: one SQLite file in WAL mode, a table per entity. Records
// are kept in an identity map; `all(Invoice)` is read at open (list columns
// only, the remaining texts on first use), the other entities on first use,
// lines per document on first use. save() writes only what changed, in one
// transaction.
//
// Other processes may work on the same file. A save takes the write lock
// first, re-reads what another process committed since (refresh), gives new
// records their ids only then, and never overwrites a value that was changed
// elsewhere after this process read it: such records are reported as
// conflicts and nothing is written.
class Store : public RecordOwner
{
public:
    explicit Store(QString path);
    ~Store();
    Store(const Store &) = delete;
    Store &operator=(const Store &) = delete;

    // Opens the file, creating it when missing; applies forward migrations.
    // A file that is not one of our stores (or is newer, or damaged) is left
    // exactly as it is and reported.
    Error open();
    void close();
    bool isOpen() const { return m_db != nullptr; }
    QString path() const { return m_path; }
    int schemaVersion() const;

    const QList<Record *> &all(EntityId entity) override;
    Record *insert(EntityId entity) override;
    void remove(Record *record); // cascades to the lines of a document
    Record *byId(EntityId entity, qint64 id) override;
    qsizetype count(EntityId entity);

    bool hasChanges() const { return !m_dirty.isEmpty(); }
    // Writes every change in one transaction. `inTransaction` runs once the
    // write lock is held and the store is current, so what it computes from
    // the store (the next number) cannot be taken by another process.
    Error save(const std::function<void()> &inTransaction = {});
    // The same, for work that also writes rows of its own tables and may
    // refuse: `inTransaction` runs (also when nothing is changed yet) with the
    // write lock held and the store current; an error rolls everything back.
    Error saveWith(const std::function<Error(sqlite3 *)> &inTransaction);

    // Whether another connection committed since this one last looked.
    bool changedElsewhere();
    // Re-reads what is held (records keep their identity; unsaved changes
    // stay). Returns whether anything was re-read.
    bool refreshIfChanged();
    // Runs after every refresh, also inside a save.
    void setExternalChangeHandler(std::function<void()> handler) { m_onExternalChange = std::move(handler); }

    // The records of the last save that failed with kConflict.
    const QList<Record *> &conflicts() const { return m_conflicts; }
    // Conflict answers: keep this process's values (the next save overwrites)
    // or take the stored ones.
    void keepMineOnConflicts();
    void revertConflicts();
    static constexpr int kConflict = -409;
    // open(): the file is there but empty.
    static constexpr int kEmptyFile = -410;

    // A failed integrity check or a corruption met while working: nothing is
    // written any more.
    bool isDamaged() const { return m_damaged; }
    // The integrity check that must pass before the first write.
    Error checkIntegrity();
    // Replaces the whole content of the open file by that of the store file
    // at `source` (a complete, checked working copy, which is marked as a new
    // generation of the store on the way), in one transaction through SQLite's
    // backup: other processes on the file see the new content at their next
    // read, as if one of them had saved it. Unsaved changes here are dropped;
    // the records held stay until the store is closed and opened again.
    Error replaceContentFrom(const QString &source);
    // Forgets every unsaved change and every loaded record (a context reset).
    void reset();
    // The last read failure (damaged file), cleared by the next successful open.
    Error lastError() const { return m_lastError; }

    // Reads the remaining texts of many documents (bulk readers): one query
    // per record for a few, one pass over the table for many.
    void loadFully(const QList<Record *> &records);
    // Reads the to-many relationship `rel` of many owners (of one entity) in
    // one pass over the related table instead of a query per owner.
    void prefetchToMany(const QList<Record *> &owners, int rel);

    sqlite3 *handle() const { return m_db; }
    // Writes rows beside the records (tables of their own) under the same
    // rules as save(): refused on a damaged file, after the integrity check,
    // with the write lock held and what others committed read first. `body`
    // returns an error to roll back.
    Error write(const std::function<Error(sqlite3 *)> &body);

    static constexpr int kSchemaVersion = 8;

private:
    friend class Record;
    struct EntityState;

    struct Original
    {
        bool null;
        double num;
        QString text;
    };

    void faultText(Record *record) override;
    void rememberOriginal(Record *record, int attr) override;
    struct ChangeMark
    {
        QString generation;
        qint64 first = 0; // the oldest change still in the journal
        qint64 last = 0;
    };
    ChangeMark readChangeMark();
    static constexpr int kJournalLength = 20000;
    void refresh();
    bool refreshChanged(const ChangeMark &now);
    // The rows the journal names since this process last read it, by entity.
    std::optional<QHash<int, QList<qint64>>> journalRows(const ChangeMark &now);
    bool rereadRows(EntityId entity, const QList<qint64> &ids, QSet<Record *> &owners);
    // The loaded owners (by the to-one keys `fks`) whose to-many lists must be read again.
    void noteOwners(const EntityDesc &desc, const qint64 *fks, QSet<Record *> &owners) const;
    void rereadLists(Record *owner);
    void rescanEntity(EntityId entity);
    Error assignNewIds();
    Error damagedError() const;
    // The steps of open(): the file is looked at before SQLite opens it, and
    // read before anything is written to it.
    Error checkFile(bool *exists) const;
    Error connect(bool create);
    Result<int> readVersion();
    Error bringUpToDate(int version);
    QList<Record *> *loadToMany(const Record *owner, int rel) override;
    void noteChanged(Record *record) override;
    Record *adopt(EntityId entity, qint64 id, bool *created);
    void readRow(Record *record, sqlite3_stmt *stmt, int firstColumn, bool listOnly);
    void loadAll(EntityId entity);
    bool loadDocumentsInListOrder();
    sqlite3_stmt *prepare(const QString &sql);
    Error sqlError(const QString &what);
    Error writeRecord(Record *record);
    void discardRecord(Record *record);

    QString m_path;
    sqlite3 *m_db = nullptr;
    Error m_lastError;
    std::array<std::unique_ptr<EntityState>, kEntityCount> m_entities;
    QList<Record *> m_dirty;
    QHash<QString, sqlite3_stmt *> m_statements;
    QHash<const Record *, QHash<int, Original>> m_originals;
    QList<Record *> m_conflicts;
    std::function<void()> m_onExternalChange;
    qint64 m_dataVersion = -1;
    ChangeMark m_mark; // how far this process has read the change journal
    bool m_refreshing = false;
    bool m_checked = false;
    bool m_damaged = false;
};

} // namespace tabo
