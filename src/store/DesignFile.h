#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>
#include <QVariantMap>

namespace tabo {

class Record;

// The files Tabo writes as keyed archives around one dictionary: designs
// ("designDic") and exported documents ("taboDic").

// The dictionary under `key` of an archive's root; refused when the data is
// not an archive or holds no such (or an empty) dictionary.
Result<QVariantMap> archivedDictionary(const QByteArray &data, const QString &key);

// A design file: {"designDic": the design's dictionary, "class" "Design"}.
Result<QByteArray> designFileData(const Record &design);
// The design dictionary of a design file ("class" set to "Design").
Result<QVariantMap> readDesignFile(const QByteArray &data);

} // namespace tabo
