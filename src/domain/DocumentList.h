#pragma once

#include "domain/Calculator.h"
#include "domain/ListFilter.h"

#include <QList>
#include <QString>
#include <QStringMatcher>

#include <optional>

namespace tabo {

class Record;
class RecordOwner;

// All documents of the store, newest first, and the filtered view of them
// that the main window shows (`shown()`). The summary figures
// are computed over what is shown.
class DocumentList
{
public:
    DocumentList() = default;

    // Takes every Invoice record of the store (or none without a store).
    void reload(RecordOwner *store);
    void clear();

    const QList<Record *> &all() const { return m_all; }
    const QList<Record *> &shown() const { return m_shown; }

    // The tag of a filter to one invoice (from a notification): outside the
    // person's own filters, and kept when the predicate is rebuilt.
    static constexpr unsigned kInvoiceFilterTag = 99;
    unsigned filterTag() const { return m_filterTag; }
    // Only the tag: the predicate stays until applyFilter runs.
    void setFilterTag(unsigned tag) { m_filterTag = tag; }
    // Builds the predicate for the current tag at `now` and re-arranges.
    void applyFilter(Date now);
    void setPredicate(const ListFilter &filter);
    const ListFilter &predicate() const { return m_predicate; }

    // The search over the list, on top of the predicate: a document shows
    // when its number, client, address, subject or title contains `text`
    // (case aside), or when `amount` is its total or net total to the cent.
    struct Search
    {
        QString text;
        std::optional<double> amount;
        bool isEmpty() const { return text.isEmpty(); }
        bool matches(const Record &document) const;
        QStringMatcher matcher{}; // made by setSearch: one skip table for every document
    };
    void setSearch(const Search &search);
    const Search &search() const { return m_search; }
    // Whether the list shows `document`.
    bool shows(const Record *document) const;

    // Adds a new document, keeping the date order; whether it shows depends on
    // the predicate in force.
    void add(Record *document);
    void remove(Record *document);
    // Re-sorts (after a date changed) and re-applies the predicate.
    void rearrange();

    Summary calculateDatabase(Date now) { return m_summary = Calculator::calculateDatabase(m_shown, now); }
    const Summary &summary() const { return m_summary; }

private:
    void applyPredicate();

    QList<Record *> m_all; // date descending
    QList<Record *> m_shown;
    ListFilter m_predicate;
    Search m_search;
    unsigned m_filterTag = 0;
    Summary m_summary;
};

} // namespace tabo
