#include "app/UndoHistory.h"

#include "app/Workspace.h"
#include "domain/Record.h"
#include "store/Store.h"

#include <QHash>
#include <QSet>
#include <QUndoCommand>
#include <QUndoStack>
#include <QVariant>
#include <QVector>

#include <algorithm>

namespace tabo {

namespace {
// Steps hold whole documents: a hundred of them is plenty to go back on and
// stays small next to the store.
constexpr int kUndoLimit = 100;
} // namespace

struct UndoHistory::Snapshot
{
    QString uniqueID;
    QVector<QVariant> values;
    QList<QVector<QVariant>> lines; // each with its uniqueID among the values

    bool operator==(const Snapshot &other) const = default;
};

struct UndoHistory::Step::State
{
    Record *document;
    Snapshot snapshot;
};

class UndoHistory::Change : public QUndoCommand
{
public:
    Change(UndoHistory &history, Snapshot before, Snapshot after, const QString &text)
        : QUndoCommand(text)
        , m_history(history)
        , m_before(std::move(before))
        , m_after(std::move(after))
    {
    }
    void undo() override { m_history.restore(m_before); }
    void redo() override
    {
        // The change itself has happened already when the step is pushed.
        if (std::exchange(m_done, true))
            m_history.restore(m_after);
    }

private:
    UndoHistory &m_history;
    Snapshot m_before;
    Snapshot m_after;
    bool m_done = false;
};

class UndoHistory::BatchChange : public QUndoCommand
{
public:
    BatchChange(UndoHistory &history, std::vector<Snapshot> before, std::vector<Snapshot> after,
        RowsChange undoRows, RowsChange redoRows, const QString &text)
        : QUndoCommand(text)
        , m_history(history)
        , m_before(std::move(before))
        , m_after(std::move(after))
        , m_undoRows(std::move(undoRows))
        , m_redoRows(std::move(redoRows))
    {
    }
    void undo() override { m_history.restore(m_before, m_undoRows); }
    void redo() override
    {
        if (std::exchange(m_done, true))
            m_history.restore(m_after, m_redoRows);
    }

private:
    UndoHistory &m_history;
    std::vector<Snapshot> m_before;
    std::vector<Snapshot> m_after;
    RowsChange m_undoRows;
    RowsChange m_redoRows;
    bool m_done = false;
};

namespace {

QVector<QVariant> valuesOf(const Record &record)
{
    QVector<QVariant> values;
    const qsizetype count = qsizetype(record.desc().attributes.size());
    values.reserve(count);
    for (int a = 0; a < count; ++a)
        values << record.value(a);
    return values;
}

void writeValues(Record &record, const QVector<QVariant> &values)
{
    for (int a = 0; a < values.size(); ++a) {
        if (record.value(a) != values.at(a)) {
            if (values.at(a).isValid())
                record.setValue(a, values.at(a));
            else
                record.setNull(a);
        }
    }
}

} // namespace

UndoHistory::UndoHistory(StoreAccess &store, CurrentDocument &current)
    : m_store(store)
    , m_current(current)
    , m_stack(std::make_unique<QUndoStack>())
{
    m_stack->setUndoLimit(kUndoLimit);
}

UndoHistory::~UndoHistory() = default;

void UndoHistory::clear()
{
    m_stack->clear();
}

UndoHistory::Snapshot UndoHistory::snapshot(const Record &document) const
{
    Snapshot s;
    s.uniqueID = document.text(Invoice::uniqueID);
    s.values = valuesOf(document);
    for (const Record *line : document.toMany(Invoice::items))
        s.lines << valuesOf(*line);
    return s;
}

Record *UndoHistory::writeBack(const Snapshot &snapshot)
{
    Store *store = m_store.store();
    if (!store)
        return nullptr;
    const QList<Record *> documents = store->all(EntityId::Invoice);
    const auto found = std::find_if(documents.cbegin(), documents.cend(), [&](const Record *r) {
        return r->text(Invoice::uniqueID) == snapshot.uniqueID;
    });
    Record *doc = found == documents.cend() ? nullptr : *found;
    if (!doc || doc->isDeleted())
        return nullptr;
    writeValues(*doc, snapshot.values);
    QHash<QString, Record *> current;
    for (Record *line : doc->toMany(Invoice::items))
        current.insert(line->text(Item::uniqueID), line);
    QSet<QString> kept;
    for (const QVector<QVariant> &values : snapshot.lines) {
        const QString id = values.value(Item::uniqueID).toString();
        kept.insert(id);
        Record *line = current.value(id);
        if (!line) {
            line = store->insert(EntityId::Item);
            line->setToOne(Item::invoice, doc);
        }
        writeValues(*line, values);
    }
    for (auto it = current.cbegin(); it != current.cend(); ++it)
        if (!kept.contains(it.key()))
            store->remove(it.value());
    return doc;
}

void UndoHistory::restore(const Snapshot &snapshot)
{
    m_restoring = true;
    if (Record *doc = writeBack(snapshot)) {
        m_current.setCurrentInvoice(doc);
        m_current.documentChanged(doc);
    }
    m_restoring = false;
}

void UndoHistory::restore(const std::vector<Snapshot> &snapshots, const RowsChange &rows)
{
    Store *store = m_store.store();
    if (!store)
        return;
    m_restoring = true;
    Record *last = nullptr;
    for (const Snapshot &s : snapshots)
        if (Record *doc = writeBack(s))
            last = doc;
    // The documents and the rows go in one transaction or not at all; a
    // refusal leaves the documents changed and unsaved, to be saved again.
    if (const Error e = store->saveWith(rows))
        qWarning("An undo step could not be saved: %s", qPrintable(e.message()));
    if (last)
        m_current.documentChanged(last);
    m_restoring = false;
}

UndoHistory::Batch::Batch(UndoHistory &history, const QList<Record *> &documents, const QString &text)
    : m_history(history)
    , m_text(text)
{
    if (history.m_depth++ > 0 || history.m_restoring)
        return;
    for (Record *doc : documents) {
        if (doc && !doc->isDeleted() && !m_documents.contains(doc)) {
            m_documents << doc;
            m_before.push_back(history.snapshot(*doc));
        }
    }
}

void UndoHistory::Batch::setRows(RowsChange undoRows, RowsChange redoRows)
{
    m_undoRows = std::move(undoRows);
    m_redoRows = std::move(redoRows);
}

UndoHistory::Batch::~Batch()
{
    --m_history.m_depth;
    if (m_documents.isEmpty())
        return;
    std::vector<Snapshot> after;
    for (const Record *doc : std::as_const(m_documents))
        after.push_back(m_history.snapshot(*doc));
    if (after == m_before)
        return;
    const auto none = [](sqlite3 *) { return Error {}; };
    m_history.m_stack->push(new BatchChange(m_history, std::move(m_before), std::move(after),
        m_undoRows ? m_undoRows : none, m_redoRows ? m_redoRows : none, m_text));
}

UndoHistory::Step::Step(UndoHistory &history, Record *document, const QString &text)
    : m_history(history)
    , m_text(text)
{
    if (history.m_depth++ > 0 || history.m_restoring || !document || document->isDeleted())
        return;
    m_before = std::make_unique<State>(State{document, history.snapshot(*document)});
}

UndoHistory::Step::~Step()
{
    --m_history.m_depth;
    if (!m_before)
        return;
    // Records stay allocated while the store is open, deleted or not.
    Record *doc = m_before->document;
    if (doc->isDeleted())
        return;
    Snapshot after = m_history.snapshot(*doc);
    if (after == m_before->snapshot)
        return;
    m_history.m_stack->push(new Change(m_history, std::move(m_before->snapshot), std::move(after), m_text));
}

} // namespace tabo
