#include "editing/SyntaxColoring.h"

#include "editing/SyntaxDefinition.h"

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <bitset>
#include <memory>
#include <unordered_set>

namespace tabo::SyntaxColoring {

namespace {

using Type = SyntaxComponent::Type;

bool isLineBreak(QChar c)
{
    return c == QLatin1Char('\n') || c == QLatin1Char('\r');
}

void fill(Modes &modes, qsizetype from, qsizetype to, std::uint8_t mode)
{
    std::fill(modes.begin() + from, modes.begin() + to, mode);
}

// Colours every run that opens with `c.start`; `endOf` says where a run that
// opened at `a` (text starting at `from`) ends.
template<typename EndOf>
void colorRuns(QStringView s, const SyntaxComponent &c, std::uint8_t mode, Modes &modes, EndOf endOf)
{
    for (qsizetype pos = 0;;) {
        const qsizetype a = s.indexOf(c.start, pos);
        if (a < 0)
            return;
        const qsizetype e = endOf(a + c.start.size());
        fill(modes, a, e, mode);
        pos = e;
    }
}

void colorBlockComments(QStringView s, const SyntaxComponent &c, std::uint8_t mode, Modes &modes)
{
    colorRuns(s, c, mode, modes, [&](qsizetype from) {
        const qsizetype b = s.indexOf(c.end, from);
        // An unclosed comment runs to the end of what is coloured.
        return b < 0 ? s.size() : b + c.end.size();
    });
}

void colorOneLineComments(QStringView s, const SyntaxComponent &c, std::uint8_t mode, Modes &modes)
{
    colorRuns(s, c, mode, modes, [&](qsizetype e) {
        while (e < s.size() && !isLineBreak(s[e]))
            ++e;
        return e;
    });
}

void colorStrings(QStringView s, const SyntaxComponent &c, std::uint8_t mode, Modes &modes)
{
    colorRuns(s, c, mode, modes, [&](qsizetype from) {
        for (;;) {
            const qsizetype b = s.indexOf(c.end, from);
            if (b < 0)
                return s.size();
            if (b > 0 && s[b - 1] == c.escape) {
                from = b + c.end.size();
                continue;
            }
            return b + c.end.size();
        }
    });
}

struct ViewHash
{
    std::size_t operator()(QStringView v) const noexcept { return qHash(v); }
};

void colorIdentifiers(QStringView s, const SyntaxComponent &c, std::uint8_t mode, Modes &modes)
{
    auto inWord = std::make_unique<std::bitset<65536>>();
    for (QChar ch : c.charset)
        inWord->set(ch.unicode());
    // A keyword made of identifier characters can only match a whole run of
    // them, so one pass over the runs with a look-up serves them all; the
    // others are searched for one by one.
    std::unordered_set<QStringView, ViewHash> words;
    QStringList others;
    for (const QString &word : c.keywords) {
        if (word.isEmpty())
            continue;
        if (std::all_of(word.begin(), word.end(), [&](QChar ch) { return inWord->test(ch.unicode()); }))
            words.insert(word);
        else
            others << word;
    }
    if (!words.empty()) {
        for (qsizetype i = 0; i < s.size();) {
            if (!inWord->test(s[i].unicode())) {
                ++i;
                continue;
            }
            qsizetype e = i + 1;
            while (e < s.size() && inWord->test(s[e].unicode()))
                ++e;
            if (words.count(s.sliced(i, e - i)))
                fill(modes, i, e, mode);
            i = e;
        }
    }
    for (const QString &word : std::as_const(others)) {
        for (qsizetype a = s.indexOf(word); a >= 0; a = s.indexOf(word, a + word.size())) {
            const qsizetype e = a + word.size();
            // A keyword inside a longer identifier stays plain.
            if ((a > 0 && inWord->test(s[a - 1].unicode())) || (e < s.size() && inWord->test(s[e].unicode())))
                continue;
            fill(modes, a, e, mode);
        }
    }
}

void colorTags(QStringView s, const SyntaxComponent &c, std::uint8_t mode, std::uint8_t ignored, Modes &modes)
{
    for (qsizetype pos = 0;;) {
        const qsizetype a = s.indexOf(c.start, pos);
        if (a < 0)
            return;
        const qsizetype b = s.indexOf(c.end, a + c.start.size());
        const qsizetype e = b < 0 ? s.size() : b + c.end.size();
        // A "<" inside a comment is no tag.
        if (!ignored || (modes[a] != ignored && modes[e - 1] != ignored))
            fill(modes, a, e, mode);
        pos = e;
    }
}

} // namespace

Modes colorText(QStringView text, const SyntaxDefinition &definition)
{
    Modes modes(text.size(), 0);
    for (const SyntaxComponent &c : definition.components()) {
        const auto mode = std::uint8_t(definition.modeOf(c.name));
        switch (c.type) {
        case Type::BlockComment: colorBlockComments(text, c, mode, modes); break;
        case Type::OneLineComment: colorOneLineComments(text, c, mode, modes); break;
        case Type::String: colorStrings(text, c, mode, modes); break;
        case Type::Keywords:
        case Type::UserIdentifiers: colorIdentifiers(text, c, mode, modes); break;
        case Type::Tag:
            colorTags(text, c, mode, std::uint8_t(definition.modeOf(c.ignoredComponent)), modes);
            break;
        case Type::Unknown: break;
        }
    }
    return modes;
}

Range rangeToRecolor(QStringView text, const Modes &modes, Range edited, bool lengthChanged)
{
    const qsizetype n = text.size();
    qsizetype location = std::clamp<qsizetype>(edited.location, 0, n);
    qsizetype length = std::clamp<qsizetype>(edited.length, 0, n - location);
    if (!lengthChanged) {
        if (location > 0)
            --location;
        const qsizetype room = n - (location + length);
        length += std::min<qsizetype>(2, std::max<qsizetype>(room, 0));
    }
    if (length == 0)
        return {};

    qsizetype start = location;
    while (start > 0 && !isLineBreak(text[start - 1]))
        --start;
    qsizetype end = location + length;
    while (end < n && !isLineBreak(text[end]))
        ++end;

    const std::uint8_t mode = location < qsizetype(modes.size()) ? modes[location] : 0;
    if (mode) {
        qsizetype runStart = location;
        while (runStart > 0 && modes[runStart - 1] == mode)
            --runStart;
        qsizetype runEnd = location;
        while (runEnd < qsizetype(modes.size()) && modes[runEnd] == mode)
            ++runEnd;
        start = std::min(start, runStart);
        end = std::max(end, std::min(runEnd, n));
    }
    return {start, end - start};
}

QString indentationBefore(QStringView text, qsizetype breakPosition)
{
    qsizetype lineStart = std::clamp<qsizetype>(breakPosition, 0, text.size());
    while (lineStart > 0 && !isLineBreak(text[lineStart - 1]))
        --lineStart;
    qsizetype e = lineStart;
    while (e < breakPosition && (text[e] == QLatin1Char(' ') || text[e] == QLatin1Char('\t')))
        ++e;
    return text.mid(lineStart, e - lineStart).toString();
}

} // namespace tabo::SyntaxColoring
