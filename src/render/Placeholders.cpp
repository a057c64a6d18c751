#include "render/Placeholders.h"

#include <algorithm>

namespace tabo {

namespace {

// A placeholder formed anew by the joins again and again is hostile input,
// not a design: give up rather than hang.
constexpr int kMaxPasses = 32;

bool isWordChar(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= u'A' && u <= u'Z') || (u >= u'0' && u <= u'9');
}

// Length of the placeholder starting at `at` (a '%'), or 0.
qsizetype placeholderAt(QStringView text, qsizetype at)
{
    qsizetype end = at + 1;
    while (end < text.size() && isWordChar(text[end]))
        ++end;
    return end < text.size() && end > at + 1 && text[end] == u'%' ? end + 1 - at : 0;
}

} // namespace

Placeholders::Placeholders(const QString &text)
    : m_text(text)
{
    scan(0, m_text.size(), m_found);
}

bool Placeholders::contains(QStringView placeholder) const
{
    for (const auto &[start, length] : m_found) {
        if (isAt(start, length, placeholder))
            return true;
    }
    return false;
}

bool Placeholders::isAt(qsizetype start, qsizetype length, QStringView placeholder) const
{
    return length == placeholder.size() && QStringView(m_text).sliced(start, length) == placeholder;
}

void Placeholders::replaceFound(QStringView placeholder, const QString &value)
{
    const bool holdsItself = value.contains(u'%') && value.contains(placeholder);
    int passes = 0;
    do {
        substitute(placeholder, value);
    } while (!holdsItself && ++passes < kMaxPasses && contains(placeholder));
}

// The index knows where the placeholder stands, so no search is needed; and
// the text between the replaced places is unchanged, so only the surroundings
// of the inserted values are scanned again. Occurrences that overlap an
// earlier one are left, as QString::replace would leave them.
void Placeholders::substitute(QStringView placeholder, const QString &value)
{
    std::vector<qsizetype> hits;
    for (const auto &[start, length] : m_found) {
        if ((hits.empty() || start >= hits.back() + placeholder.size()) && isAt(start, length, placeholder))
            hits.push_back(start);
    }
    const QStringView text(m_text);
    QString result;
    result.reserve(text.size() + qsizetype(hits.size()) * (value.size() - placeholder.size()));
    std::vector<Found> kept;
    std::vector<qsizetype> valueStarts;
    std::size_t next = 0;
    qsizetype copied = 0;
    const auto keepUpTo = [&](qsizetype end) {
        const qsizetype shift = result.size() - copied;
        result.append(text.sliced(copied, end - copied));
        for (; next < m_found.size() && m_found[next].first < end; ++next) {
            const auto &[start, length] = m_found[next];
            if (start >= copied && start + length <= end)
                kept.emplace_back(start + shift, length);
        }
    };
    for (const qsizetype hit : hits) {
        keepUpTo(hit);
        valueStarts.push_back(result.size());
        result.append(value);
        copied = hit + placeholder.size();
    }
    keepUpTo(text.size());
    m_text = std::move(result);

    // A placeholder touching an inserted value starts at a '%' inside it, or
    // at the '%' before the word that runs into it. What starts before the
    // last scanned value was found with it.
    std::vector<Found> formed;
    const QStringView now(m_text);
    qsizetype scanned = 0;
    for (const qsizetype valueStart : valueStarts) {
        qsizetype from = std::max(valueStart, scanned);
        while (from > scanned && isWordChar(now[from - 1]))
            --from;
        if (from > scanned && now[from - 1] == u'%')
            --from;
        scan(from, valueStart + value.size(), formed);
        scanned = std::max(scanned, valueStart + value.size());
    }
    m_found.clear();
    std::merge(kept.begin(), kept.end(), formed.begin(), formed.end(), std::back_inserter(m_found));
}

// Every placeholder starting in [from, to), overlapping ones too.
void Placeholders::scan(qsizetype from, qsizetype to, std::vector<Found> &out) const
{
    const QStringView text(m_text);
    const QStringView starts = text.first(to); // not a search through the rest of a long page
    for (qsizetype at = starts.indexOf(u'%', from); at >= 0; at = starts.indexOf(u'%', at + 1)) {
        if (const qsizetype length = placeholderAt(text, at))
            out.emplace_back(at, length);
    }
}

} // namespace tabo
