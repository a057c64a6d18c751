#include "prefs/ProtectedFiles.h"

#include "prefs/Locations.h"

#include <QDir>
#include <QFileInfo>
#include <QMutex>
#include <QSaveFile>
#include <QStandardPaths>

#include <optional>
#include <utility>

#include <QCoreApplication>
#include <sys/stat.h>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(ProtectedFiles)
};
} // namespace

namespace tabo::ProtectedFiles {

namespace {

QMutex g_mutex;
QStringList g_stores;

const QStringList kStoreSides = {QString(), QStringLiteral("-wal"), QStringLiteral("-shm"), QStringLiteral("-journal")};

// The path with links and ".." resolved as far as it exists: a file not yet
// written is named by its folder's real path.
QString resolved(const QString &path)
{
    const QFileInfo info(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
    if (info.exists())
        return info.canonicalFilePath();
    const QString folder = QFileInfo(info.absolutePath()).canonicalFilePath();
    return folder.isEmpty() ? info.absoluteFilePath() : folder + QLatin1Char('/') + info.fileName();
}

// The file's identity, so that a hard link to the store is the store too.
std::optional<std::pair<dev_t, ino_t>> identity(const QString &path)
{
    struct stat st{};
    if (::stat(QFile::encodeName(path).constData(), &st) != 0)
        return std::nullopt;
    return std::pair{st.st_dev, st.st_ino};
}

struct Guarded
{
    QString path;
    QString what;
};

QList<Guarded> guardedFiles(Writer writer)
{
    QList<Guarded> files;
    QStringList stores;
    {
        QMutexLocker lock(&g_mutex);
        stores = g_stores;
    }
    stores.prepend(Locations::defaultStoreFile());
    for (const QString &store : std::as_const(stores))
        for (const QString &side : kStoreSides)
            files.append({ store + side, side.isEmpty() ? Tr::tr("the database") : Tr::tr("a file of the database") });
    const QString settings = Locations::settingsFile();
    files.append({ settings, Tr::tr("the settings file") });
    files.append({ settings + QStringLiteral(".lock"), Tr::tr("the settings file's lock") });
    files.append({ settings + QStringLiteral(".bak"), Tr::tr("the kept copy of the settings") });
    if (writer != Writer::AutomaticBackup)
        for (const QString &backup : Locations::automaticBackupFiles())
            files.append({ backup, Tr::tr("an automatic backup") });
    return files;
}

} // namespace

void addStore(const QString &storePath)
{
    if (storePath.isEmpty())
        return;
    const QString path = QFileInfo(storePath).absoluteFilePath();
    QMutexLocker lock(&g_mutex);
    if (!g_stores.contains(path))
        g_stores.append(path);
}

Error check(const QString &target, Writer writer)
{
    if (target.isEmpty())
        return {};
    const QString real = resolved(target);
    const auto id = identity(real);
    for (const Guarded &g : guardedFiles(writer)) {
        if (resolved(g.path) == real || (id && identity(g.path) == id))
            return Error::file(Tr::tr("“%1” is %2 (%3). Tabo never writes anything else onto it; "
                                      "please choose another file.")
                                   .arg(target, g.what, resolved(g.path)));
    }
    return {};
}

Error writeAtomically(const QString &target, const QByteArray &data, Writer writer)
{
    if (Error e = check(target, writer))
        return e;
    QSaveFile file(target);
    if (!file.open(QIODevice::WriteOnly) || file.write(data) != data.size() || !file.commit())
        return Error::file(Tr::tr("The file “%1” could not be written: %2").arg(target, file.errorString()));
    return {};
}

} // namespace tabo::ProtectedFiles
