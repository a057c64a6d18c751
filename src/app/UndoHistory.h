#pragma once

#include <QString>

#include "base/Error.h"

#include <QList>

#include <functional>
#include <memory>
#include <vector>

class QUndoStack;
struct sqlite3;

namespace tabo {

class CurrentDocument;
class Record;
class StoreAccess;

// One undo stack for every change the window makes to a document: fields,
// lines, shipping, discount, an applied template, the status. A step keeps the
// document and its lines as they were before and after (whole, so every kind
// of change is undone the same way); undoing writes the "before" back through
// the controller, which recalculates and saves it like any edit. Deleting a
// document is not undoable and empties the history.
class UndoHistory
{
public:
    UndoHistory(StoreAccess &store, CurrentDocument &current);
    ~UndoHistory();

    QUndoStack &stack() { return *m_stack; }
    void clear();

    // Records one step around a command: the document is read when the step
    // begins and when it ends; nested steps and steps that changed nothing
    // leave no trace, nor does anything while a step is being undone.
    class Step
    {
    public:
        Step(UndoHistory &history, Record *document, const QString &text);
        ~Step();
        Step(const Step &) = delete;
        Step &operator=(const Step &) = delete;

    private:
        struct State;
        UndoHistory &m_history;
        std::unique_ptr<State> m_before;
        QString m_text;
    };

    // One step for a command that changes several documents at once and
    // also rows of a table of its own: `undoRows` takes those rows out and
    // `redoRows` puts them back, in the transaction that writes the
    // documents back, so the two never disagree.
    using RowsChange = std::function<Error(sqlite3 *)>;
    struct Snapshot;
    class Batch
    {
    public:
        Batch(UndoHistory &history, const QList<Record *> &documents, const QString &text);
        ~Batch();
        Batch(const Batch &) = delete;
        Batch &operator=(const Batch &) = delete;
        void setRows(RowsChange undoRows, RowsChange redoRows);

    private:
        UndoHistory &m_history;
        QList<Record *> m_documents;
        std::vector<Snapshot> m_before;
        QString m_text;
        RowsChange m_undoRows;
        RowsChange m_redoRows;
    };

private:
    class Change;
    class BatchChange;
    Snapshot snapshot(const Record &document) const;
    // The document as it was; nullptr when it is gone.
    Record *writeBack(const Snapshot &snapshot);
    void restore(const Snapshot &snapshot);
    void restore(const std::vector<Snapshot> &snapshots, const RowsChange &rows);

    StoreAccess &m_store;
    CurrentDocument &m_current;
    std::unique_ptr<QUndoStack> m_stack;
    int m_depth = 0;
    bool m_restoring = false;
};

} // namespace tabo
