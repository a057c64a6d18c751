#pragma once

#include <QLocale>
#include <QString>

namespace tabo {

class Preferences;

// The controller's number formatting for printed documents: money with the
// currency sign of `prefsCurrency`, placed before or after the amount as the
// locale places its own sign; plain numbers with at most three decimals.
// Both use the locale's separators and grouping.
class Formatters
{
public:
    explicit Formatters(const Preferences &prefs, const QLocale &locale = QLocale());

    // `stringFromNumber:`: two decimals, the currency sign of the preferences.
    QString stringFromNumber(double value) const;
    // `decimalStringFromNumber:`: up to three decimals, trailing zeros dropped
    // (0.05 × 100 prints "5", 7.0000005 prints "7").
    QString decimalStringFromNumber(double value) const;
    // `htmlLineBreakStringFromString:`: every "\n" becomes "<br />".
    static QString htmlLineBreakStringFromString(const QString &text);

private:
    const Preferences &m_prefs;
    QLocale m_locale;
};

} // namespace tabo
