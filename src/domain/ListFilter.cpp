#include "domain/ListFilter.h"

#include "domain/EntityModel.h"
#include "domain/Record.h"

namespace tabo {

namespace {

// Half a day, half a week, half a month of 31 days, half a year of 365 days:
// the halving is deliberate.
constexpr double kSpanSeconds[4] = {43200.0, 302400.0, 1339200.0, 15768000.0};

// Comparisons follow the predicate language: an empty attribute equals no
// number, so it never matches.
bool equals(const Record &r, int attr, double value)
{
    return !r.isNull(attr) && r.num(attr) == value;
}

// "LIKE[c]": "*" is any run of characters, "?" exactly one, everything else
// literal; the whole text must match. Greedy with one backtrack point, which
// is enough for "*" patterns.
bool likeMatch(QStringView text, QStringView pattern)
{
    const auto fold = [](QChar c) { return c.toCaseFolded(); };
    qsizetype t = 0, p = 0;
    qsizetype starP = -1, starT = 0;
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == u'*') {
            starP = p++;
            starT = t;
        } else if (p < pattern.size() && (pattern[p] == u'?' || fold(pattern[p]) == fold(text[t]))) {
            ++p;
            ++t;
        } else if (starP >= 0) {
            p = starP + 1;
            t = ++starT;
        } else {
            return false;
        }
    }
    while (p < pattern.size() && pattern[p] == u'*')
        ++p;
    return p == pattern.size();
}

} // namespace

ListFilter ListFilter::forTag(unsigned tag, Date now)
{
    ListFilter f;
    switch (tag) {
    case 0: f.m_kind = Kind::All; break;
    case 2: f.m_kind = Kind::OverdueOrPartlyPaid; break;
    case 3: f.m_kind = Kind::Paid; break;
    case 4: f.m_kind = Kind::Quotes; break;
    case 5:
    case 6:
    case 7:
    case 8: return dateRange(now.addSeconds(-kSpanSeconds[tag - 5]), now);
    default: f.m_kind = Kind::SentOpen; break; // 1, and 9 and above
    }
    return f;
}

ListFilter ListFilter::dateRange(Date from, Date to)
{
    ListFilter f;
    f.m_kind = Kind::DateRange;
    f.m_from = from;
    f.m_to = to;
    return f;
}

ListFilter ListFilter::uniqueIdLike(const QString &pattern)
{
    ListFilter f;
    f.m_kind = Kind::UniqueIdLike;
    f.m_pattern = pattern;
    return f;
}

bool ListFilter::matches(const Record &document) const
{
    switch (m_kind) {
    case Kind::All:
        return true;
    case Kind::SentOpen:
        return equals(document, Invoice::kind, 1) && equals(document, Invoice::status, 1);
    case Kind::OverdueOrPartlyPaid:
        // "kind == 1 AND status == 2 OR status == 4": AND binds tighter.
        return (equals(document, Invoice::kind, 1) && equals(document, Invoice::status, 2))
               || equals(document, Invoice::status, 4);
    case Kind::Paid:
        return equals(document, Invoice::kind, 1) && equals(document, Invoice::status, 3);
    case Kind::Quotes:
        return equals(document, Invoice::kind, 0);
    case Kind::DateRange: {
        if (document.isNull(Invoice::date) || !m_from.isValid() || !m_to.isValid())
            return false;
        const double d = document.num(Invoice::date);
        return d >= m_from.referenceSeconds() && d <= m_to.referenceSeconds();
    }
    case Kind::UniqueIdLike: {
        if (document.isNull(Invoice::uniqueID))
            return false;
        return likeMatch(document.text(Invoice::uniqueID), m_pattern);
    }
    }
    return false;
}

QString ListFilter::predicateString() const
{
    switch (m_kind) {
    case Kind::All: return QString();
    case Kind::SentOpen: return QStringLiteral("kind == 1 AND status == 1");
    case Kind::OverdueOrPartlyPaid: return QStringLiteral("kind == 1 AND status == 2 OR status == 4");
    case Kind::Paid: return QStringLiteral("kind == 1 AND status == 3");
    case Kind::Quotes: return QStringLiteral("kind == 0");
    case Kind::DateRange:
        return QStringLiteral("date >= ") + m_from.toIso8601() + QStringLiteral(" AND date <= ")
               + m_to.toIso8601();
    case Kind::UniqueIdLike: {
        QString quoted = m_pattern;
        quoted.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
        return QStringLiteral("uniqueID LIKE \"") + quoted + QLatin1Char('"');
    }
    }
    return QString();
}

} // namespace tabo
