#pragma once

#include <QString>

namespace tabo {

// Where Tabo keeps its files, in one place so that every layer asks the same
// question the same way (XDG folders; tests point them at a temporary home).
namespace Locations {

// $XDG_DATA_HOME/Tabo: the default store, the working PDFs, the logo and the
// notes of unfinished copies and moves. Created when missing; a failure shows
// when something is written there.
QString dataFolder();
// A file of that name in dataFolder().
QString dataFile(const QString &name);
// $XDG_CONFIG_HOME/Tabo/Tabo.conf
QString settingsFile();
// ~/Documents/Tabo_Backup.mbdb: the automatic backup of the store.
QString automaticBackupFile();

// Whether two paths name the same file: through links when both exist, so
// that a store is never copied or restored onto itself.
bool sameFile(const QString &a, const QString &b);

} // namespace Locations

} // namespace tabo
