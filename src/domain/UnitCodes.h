#pragma once

#include <QString>

namespace tabo {

// Units of measure as e-invoices name them (UN/ECE Recommendation 20), read
// from the unit a person typed on a line in any of Tabo's four languages.
namespace UnitCodes {

// "Std." → HUR, "Stk." → H87, "pauschal" → LS …; C62 ("one") for a unit the
// table does not know or an empty one.
QString fromUnitText(const QString &unit);
// The code a line goes out with: its own when set, else the derived one.
QString forLine(const QString &unitCode, const QString &unit);
// Looks like a Recommendation 20 code: 1 to 3 letters or digits.
bool isCode(const QString &text);
// The unit's name for a received invoice's page ("HUR" → "h"); the code
// itself when it is not in the table.
QString displayName(const QString &code);

} // namespace UnitCodes

} // namespace tabo
