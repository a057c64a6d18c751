#include "domain/DocumentList.h"

#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "domain/RecordOwner.h"

#include <algorithm>

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
    m_arranged.clear();
    m_summary = {};
}

void DocumentList::setFilterPredicate(Date now)
{
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
    m_arranged.removeOne(document);
}

void DocumentList::rearrange()
{
    // Most edits change no date: checking the order is linear, sorting is not.
    if (!std::is_sorted(m_all.cbegin(), m_all.cend(), newerFirst))
        std::stable_sort(m_all.begin(), m_all.end(), newerFirst);
    applyPredicate();
}

void DocumentList::applyPredicate()
{
    if (m_predicate.isEmpty()) {
        m_arranged = m_all;
        return;
    }
    m_arranged.clear();
    for (Record *r : std::as_const(m_all))
        if (m_predicate.matches(*r))
            m_arranged.append(r);
}

} // namespace tabo
