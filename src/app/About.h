#pragma once

#include <QList>
#include <QString>

namespace tabo {

// What Tabo is built on, for Help ▸ About Tabo: each library with the
// version this process runs with (read from the library itself where it
// says so, else the one it was built against).
struct LibraryVersion
{
    QString name;
    QString version;
};

QList<LibraryVersion> libraryVersions();

} // namespace tabo
