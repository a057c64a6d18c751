#include "domain/DocumentList.h"

#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "domain/RecordOwner.h"

#include <algorithm>
#include <cmath>

namespace tabo {

namespace {

// Newest first; documents without a date last; ties by id so the order is stable.
bool newerFirst(const Record *a, const Record *b)
{
    const bool an = a->isNull(Invoice::date);
    const bool bn = b->isNull(Invoice::date);
    if (an != bn)
        return bn;
    const double da = a->num(Invoice::date);
    const double db = b->num(Invoice::date);
    if (da != db)
        return da > db;
    return a->id() > b->id();
}

} // namespace

void DocumentList::reload(RecordOwner *store)
{
    m_all = store ? store->all(EntityId::Invoice) : QList<Record *>();
    // The store hands the documents over newest first already.
    if (!std::is_sorted(m_all.cbegin(), m_all.cend(), newerFirst))
        std::sort(m_all.begin(), m_all.end(), newerFirst);
    applyPredicate();
}

void DocumentList::clear()
{
    m_all.clear();
    m_shown.clear();
    m_summary = {};
}

void DocumentList::applyFilter(Date now)
{
    if (m_filterTag != kInvoiceFilterTag)
        m_predicate = ListFilter::forTag(m_filterTag, now);
    applyPredicate();
}

void DocumentList::setPredicate(const ListFilter &filter)
{
    m_predicate = filter;
    applyPredicate();
}

void DocumentList::add(Record *document)
{
    m_all.insert(std::upper_bound(m_all.begin(), m_all.end(), document, newerFirst), document);
    applyPredicate();
}

void DocumentList::remove(Record *document)
{
    m_all.removeOne(document);
    m_shown.removeOne(document);
}

void DocumentList::rearrange()
{
    // Most edits change no date: checking the order is linear, sorting is not.
    if (!std::is_sorted(m_all.cbegin(), m_all.cend(), newerFirst))
        std::stable_sort(m_all.begin(), m_all.end(), newerFirst);
    applyPredicate();
}

void DocumentList::setSearch(const Search &search)
{
    const QString previous = m_search.text;
    m_search = search;
    m_search.text = m_search.text.trimmed();
    m_search.matcher = QStringMatcher(m_search.text, Qt::CaseInsensitive);
    // Typing on narrows what is shown: only the rows shown can still match
    // (an amount is matched whole, so a search with one starts over).
    if (!previous.isEmpty() && !m_search.amount && m_search.text.startsWith(previous, Qt::CaseInsensitive)) {
        m_shown.removeIf([this](const Record *r) { return !m_search.matches(*r); });
        return;
    }
    applyPredicate();
}

bool DocumentList::Search::matches(const Record &document) const
{
    if (text.isEmpty())
        return true;
    for (int attr : {Invoice::number, Invoice::customerName, Invoice::address, Invoice::subject, Invoice::title}) {
        if (matcher.indexIn(document.text(attr)) >= 0)
            return true;
    }
    if (!amount)
        return false;
    for (int attr : {Invoice::amount, Invoice::subAmount}) {
        if (!document.isNull(attr) && std::abs(document.num(attr) - *amount) < 0.005)
            return true;
    }
    return false;
}

bool DocumentList::shows(const Record *document) const
{
    if (!document)
        return false;
    // What is shown is a subset in the same order; the test is the
    // cheaper way to ask.
    return (m_predicate.isEmpty() || m_predicate.matches(*document)) && m_search.matches(*document)
           && m_all.contains(document);
}

void DocumentList::applyPredicate()
{
    if (m_predicate.isEmpty() && m_search.isEmpty()) {
        m_shown = m_all;
        return;
    }
    m_shown.clear();
    for (Record *r : std::as_const(m_all))
        if ((m_predicate.isEmpty() || m_predicate.matches(*r)) && m_search.matches(*r))
            m_shown.append(r);
}

} // namespace tabo
