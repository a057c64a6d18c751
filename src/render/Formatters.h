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

    // Money: two decimals and the currency sign of the preferences, so that a
    // page shows amounts the way the person's invoices always have.
    QString stringFromNumber(double value) const;
    // Quantities and rates: up to three decimals, trailing zeros dropped, so
    // that a float's noise never reaches paper (0.05 × 100 prints "5",
    // 7.0000005 prints "7").
    QString decimalStringFromNumber(double value) const;
    // Every "\n" becomes "<br />": multi-line fields keep their lines on a page.
    static QString htmlLineBreakStringFromString(const QString &text);

private:
    const Preferences &m_prefs;
    QLocale m_locale;
};

} // namespace tabo
