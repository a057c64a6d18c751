#include "render/Formatters.h"

#include "prefs/Preferences.h"

#include <cmath>

namespace tabo {

namespace {

// Stands in for an empty currency sign: QLocale would put its own there.
constexpr QChar kSignMarker(0xE000);

QString withoutMarker(const QString &text)
{
    const qsizetype at = text.indexOf(kSignMarker);
    if (at < 0)
        return text;
    qsizetype from = at;
    qsizetype to = at + 1;
    while (from > 0 && text.at(from - 1).isSpace())
        --from;
    while (to < text.size() && text.at(to).isSpace())
        ++to;
    QString result = text;
    result.remove(from, to - from);
    return result;
}

} // namespace

Formatters::Formatters(const Preferences &prefs, const QLocale &locale)
    : m_prefs(prefs)
    , m_locale(locale)
{
}

QString Formatters::stringFromNumber(double value) const
{
    if (!std::isfinite(value))
        return QString();
    const QString sign = m_prefs.string(Preferences::prefsCurrency);
    if (!sign.isEmpty())
        return m_locale.toCurrencyString(value, sign, 2);
    return withoutMarker(m_locale.toCurrencyString(value, QString(kSignMarker), 2));
}

QString Formatters::decimalStringFromNumber(double value) const
{
    if (!std::isfinite(value))
        return QString();
    // Whatever rounds to zero prints as zero, never as "-0".
    if (std::fabs(value) < 0.0005)
        return m_locale.toString(0);
    QString text = m_locale.toString(value, 'f', 3);
    const QString point = m_locale.decimalPoint();
    if (text.lastIndexOf(point) < 0)
        return text;
    const QString zero = m_locale.zeroDigit();
    while (text.endsWith(zero))
        text.chop(zero.size());
    if (text.endsWith(point))
        text.chop(point.size());
    return text;
}

QString Formatters::htmlLineBreakStringFromString(const QString &text)
{
    QString result = text;
    result.replace(QLatin1Char('\n'), QLatin1String("<br />"));
    return result;
}

} // namespace tabo
