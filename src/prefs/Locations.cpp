#include "prefs/Locations.h"

#include <QDir>
#include <QStandardPaths>

namespace tabo::Locations {

QString dataFolder()
{
    const QString dir = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Tabo");
    QDir().mkpath(dir);
    return dir;
}

QString dataFile(const QString &name)
{
    return dataFolder() + QLatin1Char('/') + name;
}

QString settingsFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/Tabo/Tabo.conf");
}

QString automaticBackupFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + QStringLiteral("/Tabo_Backup.mbdb");
}

} // namespace tabo::Locations
