#pragma once

#include "base/Date.h"

#include <QString>

namespace tabo {

class Preferences;
struct Summary;

// Document and client numbers from the user's patterns, and dates in the
// user's date pattern.
namespace Numbering {

// Replaces every "%COUNT%" with `count` and "%YEAR%", "%MONTH%", "%DAY%" with
// today's calendar fields (local time, no padding).
QString build(const QString &pattern, qint64 count, Date today);

QString invoiceNumberString(const Preferences &prefs, const Summary &summary, Date now);
QString quoteNumberString(const Preferences &prefs, const Summary &summary, Date now);
// For a quote being converted: its kind is already 1, so no + 1.
QString convertedInvoiceNumberString(const Preferences &prefs, const Summary &summary, Date now);
QString clientNumberString(const Preferences &prefs, qsizetype recentAddressCount, Date now);

// Why `pattern` cannot number documents (empty when it can): without
// "%COUNT%" every document of a day would get the same number.
QString patternRefusal(const QString &pattern);

// `prefsDatePattern` with its placeholders turned into Unicode date-field
// symbols and formatted by ICU in the user's time zone, with the month names
// of `region` (a locale such as "fr_FR"; empty: the process's locale).
QString patternDateString(const QString &datePattern, Date date, const QString &region = QString());
// In the documents' region.
QString getPatternDateStringFromDate(const Preferences &prefs, Date date);

} // namespace Numbering

} // namespace tabo
