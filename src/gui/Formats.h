#pragma once

class QString;

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

} // namespace Formats

} // namespace tabo
