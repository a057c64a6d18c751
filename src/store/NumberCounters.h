#pragma once

#include "base/Error.h"

#include <QString>

#include <optional>

struct sqlite3;

namespace tabo {

// The numbering counters kept in the store, so that the one transaction that
// gives a document its number also reads and raises them: two processes can
// then never count from the same value. Called on a connection that holds
// the write lock (inside Store::save's callback or Store::write).
namespace NumberCounters {

std::optional<qint64> read(sqlite3 *db, const QString &name);
Error write(sqlite3 *db, const QString &name, qint64 value);
// Whether a stored document other than the one with `uniqueID` holds `number`.
bool numberHeld(sqlite3 *db, const QString &number, const QString &uniqueID);

} // namespace NumberCounters

} // namespace tabo
