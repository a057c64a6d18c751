#pragma once

#include <QLocale>
#include <QString>

namespace tabo {

class Preferences;

// The controller's number formatting for printed documents: money with the
// currency sign of `prefsCurrency`, placed before or after the amount as the
// locale places its own sign; plain numbers with at most three decimals.
// Both use the separators and grouping of the documents' region, whatever the
// desktop's locale: a French invoice reads "406,89 €" on any computer.
class Formatters
{
public:
    explicit Formatters(const Preferences &prefs);
    // With a fixed locale instead of the region (tests, comparisons).
    Formatters(const Preferences &prefs, const QLocale &locale);

    // Money: two decimals and the currency sign of the preferences, so that a
    // page shows amounts the way the person's invoices always have.
    QString stringFromNumber(double value) const;
    // The same with up to `maxDecimals` where the value has them.
    QString stringFromNumber(double value, int maxDecimals) const;
    // Quantities and rates: up to three decimals, trailing zeros dropped, so
    // that a float's noise never reaches paper (0.05 × 100 prints "5",
    // 7.0000005 prints "7").
    QString decimalStringFromNumber(double value) const;
    // Every "\n" becomes "<br />": multi-line fields keep their lines on a page.
    static QString htmlLineBreakStringFromString(const QString &text);

    // The locale numbers are written in now.
    const QLocale &locale() const;
    // Escapes what a person typed as plain text so that a page prints it as
    // typed ("A<B & C"), line breaks kept as "<br />".
    static QString htmlTextFromPlainText(const QString &text);

private:
    const Preferences &m_prefs;
    bool m_fixed;
    mutable QLocale m_locale;
    mutable QString m_region;
};

} // namespace tabo
