#pragma once

#include "domain/Calculator.h"
#include "domain/ListFilter.h"

#include <QList>

namespace tabo {

class Record;
class RecordOwner;

// All documents of the store, newest first, and the filtered view of them
// that the main window shows (the "arranged contents"). The summary figures
// are computed over the arranged contents.
class DocumentList
{
public:
    DocumentList() = default;

    // Takes every Invoice record of the store (or none without a store).
    void reload(RecordOwner *store);
    void clear();

    const QList<Record *> &all() const { return m_all; }
    const QList<Record *> &arranged() const { return m_arranged; }

    unsigned filterTag() const { return m_filterTag; }
    // Only the tag: the predicate stays until setFilterPredicate runs.
    void setFilterTag(unsigned tag) { m_filterTag = tag; }
    // Builds the predicate for the current tag at `now` and re-arranges.
    void setFilterPredicate(Date now);
    void setPredicate(const ListFilter &filter);
    const ListFilter &predicate() const { return m_predicate; }

    // Adds a new document, keeping the date order; whether it shows depends on
    // the predicate in force.
    void add(Record *document);
    void remove(Record *document);
    // Re-sorts (after a date changed) and re-applies the predicate.
    void rearrange();

    Summary calculateDatabase(Date now) { return m_summary = Calculator::calculateDatabase(m_arranged, now); }
    const Summary &summary() const { return m_summary; }

private:
    void applyPredicate();

    QList<Record *> m_all; // date descending
    QList<Record *> m_arranged;
    ListFilter m_predicate;
    unsigned m_filterTag = 0;
    Summary m_summary;
};

} // namespace tabo
