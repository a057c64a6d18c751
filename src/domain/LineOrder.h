#pragma once

#include <QList>

namespace tabo {

class Preferences;
class Record;

// The lines of a document in the order they print, are edited and go into
// the e-invoice, by `itemSortOrder`: 0 title A–Z, 1 order of entry,
// 2 newest entry first, 3 highest amount first; anything else is the order
// of entry. Ties keep the order of entry.
QList<Record *> orderedLines(const Record &document, qint64 itemSortOrder);
// By the order the preferences set.
QList<Record *> orderedLines(const Record &document, const Preferences &prefs);

} // namespace tabo
