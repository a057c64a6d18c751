#include "prefs/Locations.h"

#include <QDir>
#include <QFileInfo>
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

bool sameFile(const QString &a, const QString &b)
{
    const QFileInfo fa(a), fb(b);
    if (fa.exists() && fb.exists())
        return fa.canonicalFilePath() == fb.canonicalFilePath();
    return fa.absoluteFilePath() == fb.absoluteFilePath();
}

} // namespace tabo::Locations
