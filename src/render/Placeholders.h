#pragma once

#include <QString>
#include <QStringView>

#include <concepts>
#include <vector>

namespace tabo {

// A template being filled. Every placeholder is replaced until none is left,
// since the joins of replaced text can form it anew; a value holding its own
// placeholder is put in once, as looping on it would never end.
//
// Most placeholders of the language are absent from any one design, so the
// text keeps an index of the placeholders it holds: asking is a look-up, and
// after a replacement only the surroundings of the inserted values are
// scanned again.
class Placeholders
{
public:
    explicit Placeholders(const QString &text);

    // The value is only made when the placeholder is there: some values cost
    // formatting, the item rows or a file write.
    template <typename MakeValue>
    requires std::invocable<MakeValue>
    bool replace(QStringView placeholder, MakeValue &&makeValue)
    {
        if (!contains(placeholder))
            return false;
        replaceFound(placeholder, makeValue());
        return true;
    }
    bool replace(QStringView placeholder, const QString &value)
    {
        if (!contains(placeholder))
            return false;
        replaceFound(placeholder, value);
        return true;
    }

    bool contains(QStringView placeholder) const;
    const QString &text() const { return m_text; }

private:
    using Found = std::pair<qsizetype, qsizetype>; // start and length

    void replaceFound(QStringView placeholder, const QString &value);
    void substitute(QStringView placeholder, const QString &value);
    bool isAt(qsizetype start, qsizetype length, QStringView placeholder) const;
    void scan(qsizetype from, qsizetype to, std::vector<Found> &out) const;

    QString m_text;
    // Every "%WORD%" in the text by its start, overlapping ones too.
    std::vector<Found> m_found;
};

} // namespace tabo
