#pragma once

#include <QByteArray>
#include <QString>
#include <QVariantMap>

namespace tabo {

class Record;

// The files Tabo writes as keyed archives around one dictionary: designs
// ("designDic") and exported documents ("taboDic").

// The dictionary under `key` of an archive's root, or an empty map with a
// reason (not an archive, no such dictionary, an empty one).
QVariantMap archivedDictionary(const QByteArray &data, const QString &key, QString *error);

// A design file: {"designDic": the design's dictionary, "class" "Design"}.
QByteArray designFileData(const Record &design);
// The design dictionary of a design file ("class" set to "Design"), or an
// empty map with a reason.
QVariantMap readDesignFile(const QByteArray &data, QString *error);

} // namespace tabo
