#pragma once

#include <QString>

namespace tabo {

class Preferences;

// The footer of customer documents, composed from the seller's details by the
// language's pattern (`tempFooterPattern`): lines of parts joined by " · ",
// each with %NAME%, %STREET%, %POSTCODE%, %CITY%, %PHONE%, %EMAIL%,
// %VATID%, %TAXNUMBER%, %BANK%, %IBAN% or %BIC%. A part whose details are
// all empty is left out, and so is a line left without parts: a footer never
// prints a blank to fill in.
namespace CompanyFooter {

QString compose(const QString &pattern, const Preferences &prefs);
QString compose(const Preferences &prefs);

} // namespace CompanyFooter

} // namespace tabo
