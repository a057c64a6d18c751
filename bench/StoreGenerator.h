#pragma once

#include <QString>

namespace tabo::bench {

// Writes a realistic store of `documents` documents with `lines` lines in all
// (one document carries `bigDocumentLines` of them) unless the file exists
// with that content already. Returns the uniqueID of the big document.
QString generateStore(const QString &path, int documents, int lines, int bigDocumentLines);

} // namespace tabo::bench
