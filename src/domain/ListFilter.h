#pragma once

#include "base/Date.h"

#include <QString>

namespace tabo {

class Record;

// The document list's predicate: one of the fixed filters of the filter
// popover, a date range, or a match on one document's unique ID.
class ListFilter
{
public:
    enum class Kind { All, SentOpen, OverdueOrPartlyPaid, Paid, Quotes, DateRange, UniqueIdLike };

    ListFilter() = default;
    // The predicate of a filter tag (0 all, 1..8, 9 and above as 1) at `now`.
    static ListFilter forTag(unsigned tag, Date now);
    static ListFilter dateRange(Date from, Date to);
    // "uniqueID LIKE pattern": case-insensitive, "*" and "?" are wildcards.
    static ListFilter uniqueIdLike(const QString &pattern);

    Kind kind() const { return m_kind; }
    bool isEmpty() const { return m_kind == Kind::All; }
    bool matches(const Record &document) const;
    // The predicate in the predicate language, for logs and display.
    QString predicateString() const;

private:
    Kind m_kind = Kind::All;
    Date m_from;
    Date m_to;
    QString m_pattern;
};

} // namespace tabo
