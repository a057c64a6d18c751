#include "prefs/Locations.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace tabo::Locations {

namespace {
constexpr int kAutomaticBackupGenerations = 4;
}

QString dataFolder()
{
    const QString dir = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Tabo");
    QDir().mkpath(dir);
    return dir;
}

QString defaultStoreFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/Tabo/Tabo.mbdb");
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

QStringList automaticBackupFiles()
{
    const QString first = automaticBackupFile();
    QStringList files{first};
    const QString stem = first.chopped(QStringLiteral(".mbdb").size());
    for (int generation = 1; generation < kAutomaticBackupGenerations; ++generation)
        files.append(QStringLiteral("%1.%2.mbdb").arg(stem).arg(generation));
    return files;
}

bool sameFile(const QString &a, const QString &b)
{
    const QFileInfo fa(a), fb(b);
    if (fa.exists() && fb.exists())
        return fa.canonicalFilePath() == fb.canonicalFilePath();
    return fa.absoluteFilePath() == fb.absoluteFilePath();
}

} // namespace tabo::Locations
