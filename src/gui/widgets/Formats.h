#pragma once

class QString;

namespace tabo { class Date; }

namespace tabo {

// How the editor writes numbers: the same money form as the document list, so
// that a total reads the same in both places.
namespace Formats {

// Two decimals and the document's currency after a blank ("297.50 $").
QString money(double amount, const QString &currency);
// A quantity without trailing zeros ("2", "1.5").
QString quantity(double value);
// A price as typed into a field: two decimals, no currency.
QString plainMoney(double amount);
// A fraction as a percentage ("19 %" for 0.19).
QString percent(double fraction);
// A date as the desktop writes it short; every date of the window uses it.
QString date(const Date &date);
// The pattern of date fields, the same short form.
QString dateFieldFormat();

} // namespace Formats

} // namespace tabo
