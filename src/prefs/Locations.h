#pragma once

#include <QString>
#include <QStringList>

namespace tabo {

// Where Tabo keeps its files, in one place so that every layer asks the same
// question the same way (XDG folders; tests point them at a temporary home).
namespace Locations {

// $XDG_DATA_HOME/Tabo: the default store, the working PDFs, the logo and the
// notes of unfinished copies and moves. Created when missing; a failure shows
// when something is written there.
QString dataFolder();
// Where the default store is, without creating anything.
QString defaultStoreFile();
// A file of that name in dataFolder().
QString dataFile(const QString &name);
// $XDG_CONFIG_HOME/Tabo/Tabo.conf
QString settingsFile();
// ~/Documents/Tabo_Backup.mbdb: the automatic backup of the store.
QString automaticBackupFile();
// The automatic backup and its older generations, newest first
// ("Tabo_Backup.mbdb", "Tabo_Backup.1.mbdb" …): a backup taken of a store
// that went bad unnoticed never replaces the last good one alone.
QStringList automaticBackupFiles();

// Whether two paths name the same file: through links when both exist, so
// that a store is never copied or restored onto itself.
bool sameFile(const QString &a, const QString &b);

} // namespace Locations

} // namespace tabo
