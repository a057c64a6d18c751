#include "store/StoreFile.h"

#include "prefs/Locations.h"
#include "store/Store.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QTemporaryFile>
#include <QThread>

#include <sqlite3.h>

#include <QCoreApplication>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(StoreFile)
};
} // namespace

namespace tabo {

namespace {

// Beside the store: the file a restore replaces, kept until the new one is
// open, and the restore's working copies.
const QString kPrevious = QStringLiteral(".previous");
const QString kScratch = QStringLiteral(".restore-");
const QString kDamaged = QStringLiteral(".damaged");

void syncPath(const QString &path, bool folder)
{
    const int fd = ::open(QFile::encodeName(path).constData(), folder ? O_RDONLY | O_DIRECTORY : O_RDONLY);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

// rename(2): replaces `to` in one step, so a crash leaves the old or the new file.
Error renameOver(const QString &from, const QString &to)
{
    if (::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0)
        return {};
    const Error e = Error::file(
        Tr::tr("“%1” could not be renamed to “%2”: %3.").arg(from, to, QString::fromLocal8Bit(std::strerror(errno))));
    qWarning().noquote() << Tr::tr("Unable to move temporary store: %1").arg(e.text);
    return e;
}

void removeStoreFiles(const QString &path)
{
    for (const QString &suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")})
        QFile::remove(path + suffix);
}

// The first column of the first row; SQLITE_ROW when there is one.
int firstRow(sqlite3 *db, const char *sql, QString *value)
{
    sqlite3_stmt *st = nullptr;
    int rc = sqlite3_prepare_v2(db, sql, -1, &st, nullptr);
    if (rc == SQLITE_OK)
        rc = sqlite3_step(st);
    if (rc == SQLITE_ROW)
        *value = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(st, 0)));
    sqlite3_finalize(st);
    return rc;
}

// Whether the file is a complete, undamaged store of ours. The raw checks come
// first because opening creates the tables in an empty database.
Error checkStoreFile(const QString &path, bool checkIntegrity)
{
    const QFileInfo info(path);
    if (!info.isFile()) {
        return Error::file(Tr::tr("It does not exist or is not a file."));
    }
    if (info.size() == 0) {
        return Error::file(Tr::tr("It is empty."));
    }
    sqlite3 *db = nullptr;
    QString version, tables, check = QStringLiteral("ok");
    int rc = sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READWRITE, nullptr);
    if (rc == SQLITE_OK)
        rc = firstRow(db, "PRAGMA user_version", &version);
    if (rc == SQLITE_ROW)
        rc = firstRow(db, "SELECT count(*) FROM sqlite_master", &tables);
    if (rc == SQLITE_ROW && version.toInt() > 0 && checkIntegrity)
        rc = firstRow(db, "PRAGMA integrity_check", &check);
    const QString message = QString::fromUtf8(sqlite3_errmsg(db));
    sqlite3_close(db);
    if (rc == SQLITE_NOTADB)
        return Error::file(Tr::tr("It is not a database file."));
    if (rc != SQLITE_ROW || check != QStringLiteral("ok"))
        return Error::file(Tr::tr("It is damaged or incomplete (%1).").arg(rc == SQLITE_ROW ? check : message));
    if (version.toInt() == 0)
        return Error::file(
            tables.toInt() > 0 ? Tr::tr("It is a database of another program.") : Tr::tr("It holds no Tabo data."));

    Store store(path);
    if (const Error e = store.open())
        return Error::file(e.message());
    store.close();
    if (QFileInfo::exists(path + QStringLiteral("-wal")))
        return Error::file(Tr::tr("Its log could not be written back."));
    return {};
}

// Brings the file a restore replaced back to `storePath`. Whatever stands there
// goes first (set aside when `keepAside`), so that a log never meets a
// database it does not belong to.
void bringBackPrevious(const QString &storePath, bool keepAside)
{
    const QString previous = storePath + kPrevious;
    if (QFileInfo::exists(storePath)) {
        if (keepAside) {
            renameOver(storePath, storePath + kDamaged);
            if (QFileInfo::exists(storePath + QStringLiteral("-wal")))
                renameOver(storePath + QStringLiteral("-wal"), storePath + kDamaged + QStringLiteral("-wal"));
        }
        removeStoreFiles(storePath);
    }
    // Without the store file a log there still belongs to the previous one.
    QFile::remove(storePath + QStringLiteral("-shm"));
    QFile::remove(previous + QStringLiteral("-shm"));
    if (QFileInfo::exists(previous + QStringLiteral("-wal")))
        renameOver(previous + QStringLiteral("-wal"), storePath + QStringLiteral("-wal"));
    renameOver(previous, storePath);
    syncPath(QFileInfo(storePath).absolutePath(), true);
}

} // namespace

void StoreFile::pauseForTest()
{
    const int ms = qEnvironmentVariableIntValue("TABO_TEST_RESTORE_PAUSE_MS");
    if (ms > 0)
        QThread::msleep(ms);
}

StoreFile::StoreFile(const QString &storePath)
    : m_storePath(storePath)
{
    QTemporaryFile file(storePath + kScratch + QStringLiteral("XXXXXX"));
    file.setAutoRemove(false);
    if (file.open())
        m_path = file.fileName();
}

StoreFile::~StoreFile()
{
    if (!m_kept && !m_path.isEmpty())
        removeStoreFiles(m_path);
}

Error StoreFile::copyFrom(const QString &source)
{
    QFile in(source);
    if (!in.open(QIODevice::ReadOnly))
        return Error::file(Tr::tr("It could not be read: %1.").arg(in.errorString()));
    QFile out(m_path);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return Error::file(Tr::tr("“%1” could not be written: %2.").arg(m_path, out.errorString()));
    while (!in.atEnd()) {
        const QByteArray chunk = in.read(1 << 20);
        if (chunk.isEmpty() && in.error() != QFileDevice::NoError)
            return Error::file(Tr::tr("It could not be read: %1.").arg(in.errorString()));
        if (out.write(chunk) != chunk.size())
            return Error::file(Tr::tr("“%1” could not be written: %2.").arg(m_path, out.errorString()));
    }
    out.flush();
    ::fsync(out.handle());
    return {};
}

Error StoreFile::check() const
{
    return checkStoreFile(m_path, true);
}

Error StoreFile::swapIn(const std::function<void()> &closeStore, const std::function<bool()> &reopenStore)
{
    const QString &storePath = m_storePath;
    const QString previous = storePath + kPrevious;
    const QString folder = QFileInfo(storePath).absolutePath();
    removeStoreFiles(previous); // left by an earlier restore whose store opened
    closeStore();
    pauseForTest();
    QFile::remove(storePath + QStringLiteral("-shm"));
    if (QFileInfo::exists(storePath)) {
        if (Error e = renameOver(storePath, previous)) {
            reopenStore();
            return e;
        }
    }
    if (QFileInfo::exists(storePath + QStringLiteral("-wal"))) {
        if (Error e = renameOver(storePath + QStringLiteral("-wal"), previous + QStringLiteral("-wal"))) {
            bringBackPrevious(storePath, false);
            reopenStore();
            return e;
        }
    }
    syncPath(folder, true);
    pauseForTest();
    // The restored file keeps the permissions the person gave the store.
    if (QFileInfo::exists(previous))
        QFile::setPermissions(m_path, QFileInfo(previous).permissions());
    if (Error e = renameOver(m_path, storePath)) {
        bringBackPrevious(storePath, false);
        reopenStore();
        return e;
    }
    m_kept = true;
    syncPath(folder, true);
    pauseForTest();
    if (!reopenStore()) {
        qWarning().noquote() << Tr::tr("Unable to add new store: %1").arg(storePath);
        closeStore();
        if (QFileInfo::exists(previous))
            bringBackPrevious(storePath, false);
        reopenStore();
        return Error::file(Tr::tr("The restored database could not be opened."));
    }
    pauseForTest();
    removeStoreFiles(previous);
    syncPath(folder, true);
    return {};
}

void StoreFile::recoverInterruptedRestore(const QString &storePath)
{
    removeInterruptedCopies();
    const QFileInfo info(storePath);
    QDir folder = info.absoluteDir();
    const QStringList copies = folder.entryList({info.fileName() + kScratch + QLatin1Char('*')}, QDir::Files | QDir::Hidden);
    for (const QString &copy : copies)
        QFile::remove(folder.filePath(copy));

    const QString previous = storePath + kPrevious;
    if (!QFileInfo::exists(previous))
        return;
    // A restored file is only ever put in place complete and checked, so
    // opening it is proof enough.
    const Error problem
        = info.exists() ? checkStoreFile(storePath, false) : Error::file(Tr::tr("The restored database is missing."));
    if (!problem) {
        qInfo().noquote()
            << Tr::tr("An interrupted restore of “%1” is complete; removing the previous database.").arg(storePath);
        removeStoreFiles(previous);
        return;
    }
    qWarning().noquote() << Tr::tr("An interrupted restore of “%1” is undone: %2").arg(storePath, problem.text);
    bringBackPrevious(storePath, true);
}

namespace {

// Copies being written (complete backups, store moves) are listed in the
// user's data folder, so that a copy a kill cut short is removed at the next
// start wherever it was written, whichever store is open then.
QString pendingListPath()
{
    return Locations::dataFile(QStringLiteral("unfinished-copies"));
}

QStringList pendingCopies()
{
    QFile list(pendingListPath());
    if (!list.open(QIODevice::ReadOnly))
        return {};
    return QString::fromUtf8(list.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

void setPendingCopies(const QStringList &paths)
{
    if (paths.isEmpty()) {
        QFile::remove(pendingListPath());
        return;
    }
    QDir().mkpath(QFileInfo(pendingListPath()).absolutePath());
    // Replaced in one step: a kill while writing must not empty the list.
    QSaveFile list(pendingListPath());
    if (list.open(QIODevice::WriteOnly)) {
        list.write(paths.join(QLatin1Char('\n')).toUtf8() + '\n');
        list.flush();
        ::fsync(list.handle());
        list.commit();
    }
}

} // namespace

namespace {

QString movePath()
{
    return Locations::dataFile(QStringLiteral("store-move"));
}

} // namespace

void StoreFile::beginMove(const QString &source, const QString &target)
{
    QDir().mkpath(QFileInfo(movePath()).absolutePath());
    QFile note(movePath());
    if (note.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        note.write(QByteArray::number(::getpid()) + '\n' + source.toUtf8() + '\n' + target.toUtf8() + '\n');
        note.flush();
        ::fsync(note.handle());
    }
}

void StoreFile::endMove()
{
    QFile::remove(movePath());
}

void StoreFile::finishInterruptedMove(const QString &storePath)
{
    QFile note(movePath());
    if (!note.open(QIODevice::ReadOnly))
        return;
    const QStringList lines = QString::fromUtf8(note.readAll()).split(QLatin1Char('\n'));
    note.close();
    if (lines.size() < 3)
        return endMove();
    const pid_t pid = pid_t(lines[0].toLongLong());
    const QString &source = lines[1];
    const QString &target = lines[2];
    const bool moverAlive = pid > 0 && (::kill(pid, 0) == 0 || errno == EPERM);
    if (QFileInfo::exists(target))
        return endMove(); // the copy is in place: it is only ever renamed there whole
    // A live mover is still copying; it syncs the preferences only after.
    if (moverAlive)
        return;
    if (!Locations::sameFile(storePath, target))
        return endMove(); // the preferences never came to name the target
    // Opening would make a new store of a missing or empty file; the source
    // may be open elsewhere, so its log is not asked to be written back.
    Store from(source);
    Error e = !QFileInfo(source).isFile() || QFileInfo(source).size() == 0
        ? Error::file(Tr::tr("It is missing or empty."))
        : from.open();
    if (!e)
        e = writeCopy(from, target);
    if (e)
        qWarning().noquote()
            << Tr::tr("The interrupted move of the database from “%1” cannot be finished: %2").arg(source, e.message());
    else
        qInfo().noquote()
            << Tr::tr("Finished the interrupted move of the database from “%1” to “%2”.").arg(source, target);
    from.close();
    endMove();
}

void StoreFile::removeInterruptedCopies()
{
    for (const QString &path : pendingCopies()) {
        // VACUUM INTO keeps a rollback journal beside the file it writes.
        QFile::remove(path + QStringLiteral("-journal"));
        if (QFile::remove(path))
            qInfo().noquote() << Tr::tr("Removed “%1”, left by an interrupted copy.").arg(path);
    }
    setPendingCopies({});
}

Error StoreFile::writeCopy(Store &store, const QString &target)
{
    // VACUUM INTO writes a consistent copy, log included, into a file beside
    // the target; synced and renamed, the finished copy appears in one step.
    // The name is listed before anything is written under it, so a kill at
    // any moment leaves nothing the next start does not know of.
    QString tempPath;
    for (int attempt = 0; attempt < 100 && tempPath.isEmpty(); ++attempt) {
        const QString candidate = QFileInfo(target).absoluteFilePath() + QLatin1Char('.')
                                  + QString::number(QRandomGenerator::global()->generate() % 0x1000000, 36);
        if (!QFileInfo::exists(candidate) && !QFileInfo::exists(candidate + QStringLiteral("-journal")))
            tempPath = candidate;
    }
    if (tempPath.isEmpty()) {
        const Error e
            = Error::file(Tr::tr("“%1” could not be written: no free name for a working copy beside it.").arg(target));
        qWarning().noquote() << Tr::tr("Unable to add migratePersistentStore: %1").arg(e.text);
        return e;
    }
    setPendingCopies(pendingCopies() << tempPath);
    const auto done = [&] {
        QStringList pending = pendingCopies();
        pending.removeAll(tempPath);
        setPendingCopies(pending);
    };
    sqlite3_stmt *stmt = nullptr;
    sqlite3_prepare_v2(store.handle(), "VACUUM INTO ?", -1, &stmt, nullptr);
    const QByteArray tempName = QFile::encodeName(tempPath);
    sqlite3_bind_text(stmt, 1, tempName.constData(), -1, SQLITE_TRANSIENT);
    const int rc = sqlite3_step(stmt);
    sqlite3_finalize(stmt);
    if (rc != SQLITE_DONE) {
        const Error e = Error::file(
            Tr::tr("“%1” could not be written: %2.").arg(target, QString::fromUtf8(sqlite3_errmsg(store.handle()))));
        qWarning().noquote() << Tr::tr("Unable to add migratePersistentStore: %1").arg(e.text);
        QFile::remove(tempPath);
        done();
        return e;
    }
    syncPath(tempPath, false);
    pauseForTest();
    // A log left beside an older file of that name would be read into the
    // new one.
    QFile::remove(target + QStringLiteral("-wal"));
    QFile::remove(target + QStringLiteral("-shm"));
    if (::rename(tempName.constData(), QFile::encodeName(target).constData()) != 0) {
        const Error e = Error::file(
            Tr::tr("“%1” could not be written: %2.").arg(target, QString::fromLocal8Bit(std::strerror(errno))));
        qWarning().noquote() << Tr::tr("Unable to acopyItemAtURL: %1").arg(e.text);
        QFile::remove(tempPath);
        done();
        return e;
    }
    syncPath(QFileInfo(target).absolutePath(), true);
    done();
    return {};
}

} // namespace tabo
