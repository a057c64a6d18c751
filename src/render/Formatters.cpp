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

// A currency code written in letters ("EUR", "CHF") must not touch the
// digits: "297.50 EUR", not "297.50EUR".
QString withCodeSpaced(QString text, const QString &sign)
{
    const qsizetype at = text.indexOf(sign);
    if (at < 0)
        return text;
    const qsizetype end = at + sign.size();
    if (sign.back().isLetter() && end < text.size() && text.at(end).isDigit())
        text.insert(end, QLatin1Char(' '));
    else if (sign.front().isLetter() && at > 0 && text.at(at - 1).isDigit())
        text.insert(at, QLatin1Char(' '));
    return text;
}

} // namespace

Formatters::Formatters(const Preferences &prefs)
    : m_prefs(prefs)
    , m_fixed(false)
{
}

Formatters::Formatters(const Preferences &prefs, const QLocale &locale)
    : m_prefs(prefs)
    , m_fixed(true)
    , m_locale(locale)
{
}

const QLocale &Formatters::locale() const
{
    if (m_fixed)
        return m_locale;
    // Built again only when the region changed: a page formats many numbers.
    const QString region = m_prefs.documentRegion();
    if (region != m_region) {
        m_region = region;
        m_locale = QLocale(region);
    }
    return m_locale;
}

QString Formatters::stringFromNumber(double value) const
{
    return stringFromNumber(value, 2);
}

QString Formatters::stringFromNumber(double value, int maxDecimals) const
{
    if (!std::isfinite(value))
        return QString();
    // Two decimals, more only where the value has them (a unit price of 0.125).
    int decimals = 2;
    while (decimals < maxDecimals && std::fabs(value - std::round(value * std::pow(10.0, decimals)) / std::pow(10.0, decimals)) > 1e-9)
        ++decimals;
    const QLocale &loc = locale();
    // Accounting brackets ("($5.00)") would read oddly on a credit note: the
    // amount is laid out unsigned and the locale's minus put in front.
    const double magnitude = std::fabs(value);
    const QString minus = value < 0 && magnitude >= 0.005 ? loc.negativeSign() : QString();
    const QString sign = m_prefs.string(Preferences::prefsCurrency);
    if (sign.isEmpty())
        return minus + withoutMarker(loc.toCurrencyString(magnitude, QString(kSignMarker), decimals));
    // The C locale (no LANG set) has no currency layout of its own; a sign
    // goes first there, as most readers expect.
    if (loc.language() == QLocale::C && !sign.front().isLetter())
        return minus + sign + loc.toString(magnitude, 'f', decimals);
    return minus + withCodeSpaced(loc.toCurrencyString(magnitude, sign, decimals), sign);
}

QString Formatters::decimalStringFromNumber(double value) const
{
    if (!std::isfinite(value))
        return QString();
    const QLocale &loc = locale();
    // Whatever rounds to zero prints as zero, never as "-0".
    if (std::fabs(value) < 0.0005)
        return loc.toString(0);
    QString text = loc.toString(value, 'f', 3);
    const QString point = loc.decimalPoint();
    if (text.lastIndexOf(point) < 0)
        return text;
    const QString zero = loc.zeroDigit();
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

QString Formatters::htmlTextFromPlainText(const QString &text)
{
    return htmlLineBreakStringFromString(text.toHtmlEscaped());
}

} // namespace tabo
