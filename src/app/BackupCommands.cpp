#include "app/BackupCommands.h"

#include "app/AppController.h"
#include "app/Interaction.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "store/ObjectDictionary.h"
#include "store/PropertyList.h"
#include "store/Store.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <QThread>

#include <sqlite3.h>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace tabo {

namespace {

using P = Preferences;

const QString kError = QStringLiteral("Error!");
const QString kWarning = QStringLiteral("Warning!");
const QString kOK = QStringLiteral("OK");
const QString kRestore = QStringLiteral("Restore…");
const QString kCancel = QStringLiteral("Cancel");
// Beside the store: the file a restore replaces, kept until the new one is
// open, and the restore's working copies.
const QString kPrevious = QStringLiteral(".previous");
const QString kScratch = QStringLiteral(".restore-");
const QString kDamaged = QStringLiteral(".damaged");

// Test hook: with TABO_TEST_RESTORE_PAUSE_MS set, a restore waits that long
// between its file steps, so that a test can kill it in every window.
void pauseForTest()
{
    const int ms = qEnvironmentVariableIntValue("TABO_TEST_RESTORE_PAUSE_MS");
    if (ms > 0)
        QThread::msleep(ms);
}

void syncPath(const QString &path, bool folder)
{
    const int fd = ::open(QFile::encodeName(path).constData(), folder ? O_RDONLY | O_DIRECTORY : O_RDONLY);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

// rename(2): replaces `to` in one step, so a crash leaves the old or the new file.
bool renameOver(const QString &from, const QString &to, QString *reason)
{
    if (::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0)
        return true;
    *reason = QStringLiteral("“%1” could not be renamed to “%2”: %3.")
                  .arg(from, to, QString::fromLocal8Bit(std::strerror(errno)));
    qWarning().noquote() << QStringLiteral("Unable to move temporary store: %1").arg(*reason);
    return false;
}

void removeStoreFiles(const QString &path)
{
    for (const QString &suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")})
        QFile::remove(path + suffix);
}

bool copyFile(const QString &from, const QString &to, QString *reason)
{
    QFile in(from);
    if (!in.open(QIODevice::ReadOnly)) {
        *reason = QStringLiteral("It could not be read: %1.").arg(in.errorString());
        return false;
    }
    QFile out(to);
    if (!out.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        *reason = QStringLiteral("“%1” could not be written: %2.").arg(to, out.errorString());
        return false;
    }
    while (!in.atEnd()) {
        const QByteArray chunk = in.read(1 << 20);
        if (chunk.isEmpty() && in.error() != QFileDevice::NoError) {
            *reason = QStringLiteral("It could not be read: %1.").arg(in.errorString());
            return false;
        }
        if (out.write(chunk) != chunk.size()) {
            *reason = QStringLiteral("“%1” could not be written: %2.").arg(to, out.errorString());
            return false;
        }
    }
    out.flush();
    ::fsync(out.handle());
    return true;
}

// A working copy beside the store, removed with its companions unless kept.
class ScratchFile
{
public:
    explicit ScratchFile(const QString &storePath)
    {
        QTemporaryFile file(storePath + kScratch + QStringLiteral("XXXXXX"));
        file.setAutoRemove(false);
        if (file.open())
            m_path = file.fileName();
    }
    ~ScratchFile()
    {
        if (!m_kept && !m_path.isEmpty())
            removeStoreFiles(m_path);
    }
    ScratchFile(const ScratchFile &) = delete;
    ScratchFile &operator=(const ScratchFile &) = delete;
    QString path() const { return m_path; }
    void keep() { m_kept = true; }

private:
    QString m_path;
    bool m_kept = false;
};

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
bool isUsableStore(const QString &path, bool checkIntegrity, QString *reason)
{
    reason->clear();
    const QFileInfo info(path);
    if (!info.isFile()) {
        *reason = QStringLiteral("It does not exist or is not a file.");
        return false;
    }
    if (info.size() == 0) {
        *reason = QStringLiteral("It is empty.");
        return false;
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
        *reason = QStringLiteral("It is not a database file.");
    else if (rc != SQLITE_ROW || check != QStringLiteral("ok"))
        *reason = QStringLiteral("It is damaged or incomplete (%1).").arg(rc == SQLITE_ROW ? check : message);
    else if (version.toInt() == 0)
        *reason = tables.toInt() > 0 ? QStringLiteral("It is a database of another program.")
                                     : QStringLiteral("It holds no Tabo data.");
    if (!reason->isEmpty())
        return false;

    Store store(path);
    if (const Error e = store.open()) {
        *reason = e.message();
        return false;
    }
    store.close();
    if (QFileInfo::exists(path + QStringLiteral("-wal"))) {
        *reason = QStringLiteral("Its log could not be written back.");
        return false;
    }
    return true;
}

// Brings the file a restore replaced back to `storePath`. Whatever stands there
// goes first (set aside when `keepAside`), so that a log never meets a
// database it does not belong to.
void bringBackPrevious(const QString &storePath, bool keepAside)
{
    const QString previous = storePath + kPrevious;
    QString reason;
    if (QFileInfo::exists(storePath)) {
        if (keepAside) {
            renameOver(storePath, storePath + kDamaged, &reason);
            if (QFileInfo::exists(storePath + QStringLiteral("-wal")))
                renameOver(storePath + QStringLiteral("-wal"), storePath + kDamaged + QStringLiteral("-wal"), &reason);
        }
        removeStoreFiles(storePath);
    }
    // Without the store file a log there still belongs to the previous one.
    QFile::remove(storePath + QStringLiteral("-shm"));
    QFile::remove(previous + QStringLiteral("-shm"));
    if (QFileInfo::exists(previous + QStringLiteral("-wal")))
        renameOver(previous + QStringLiteral("-wal"), storePath + QStringLiteral("-wal"), &reason);
    renameOver(previous, storePath, &reason);
    syncPath(QFileInfo(storePath).absolutePath(), true);
}

// Puts the checked copy in place of the store, keeping the previous file until
// the new one is open. On failure the previous store is open again.
bool swapInStore(AppController &app, const QString &storePath, ScratchFile &copy, QString *reason)
{
    const QString previous = storePath + kPrevious;
    const QString folder = QFileInfo(storePath).absolutePath();
    removeStoreFiles(previous); // left by an earlier restore whose store opened
    app.closeStore();
    pauseForTest();
    QFile::remove(storePath + QStringLiteral("-shm"));
    if (QFileInfo::exists(storePath) && !renameOver(storePath, previous, reason)) {
        app.reopenStore();
        return false;
    }
    if (QFileInfo::exists(storePath + QStringLiteral("-wal"))
        && !renameOver(storePath + QStringLiteral("-wal"), previous + QStringLiteral("-wal"), reason)) {
        bringBackPrevious(storePath, false);
        app.reopenStore();
        return false;
    }
    syncPath(folder, true);
    pauseForTest();
    if (!renameOver(copy.path(), storePath, reason)) {
        bringBackPrevious(storePath, false);
        app.reopenStore();
        return false;
    }
    copy.keep();
    syncPath(folder, true);
    pauseForTest();
    if (!app.reopenStore()) {
        qWarning().noquote() << QStringLiteral("Unable to add new store: %1").arg(storePath);
        *reason = QStringLiteral("The restored database could not be opened.");
        app.closeStore();
        if (QFileInfo::exists(previous))
            bringBackPrevious(storePath, false);
        app.reopenStore();
        return false;
    }
    pauseForTest();
    removeStoreFiles(previous);
    syncPath(folder, true);
    return true;
}

bool samePath(const QString &a, const QString &b)
{
    const QFileInfo fa(a), fb(b);
    if (fa.exists() && fb.exists())
        return fa.canonicalFilePath() == fb.canonicalFilePath();
    return fa.absoluteFilePath() == fb.absoluteFilePath();
}

bool writeRecords(AppController &app, EntityId entity, const QString &path, bool saveFirst, QString *error)
{
    Store *store = app.managedObjectContext();
    if (!store) {
        *error = QStringLiteral("There is no database to back up.");
        return false;
    }
    if (saveFirst) {
        if (const Error e = app.saveContext()) {
            *error = e.message();
            return false;
        }
    }
    const QList<Record *> records = store->all(entity);
    store->loadFully(records);
    QVariantList list;
    list.reserve(records.size());
    for (const Record *r : records)
        list.append(ObjectDictionary::toDictionary(*r));
    if (!plist::writeFile(path, list, plist::Format::Xml, error)) {
        qWarning().noquote() << QStringLiteral("Unable to write %1: %2").arg(path, *error);
        return false;
    }
    return true;
}

// Forgets a restore whose save failed: the store and the list as saved before.
void rollBack(AppController &app, Store &store)
{
    app.setCurrentInvoice(nullptr);
    store.reset();
    app.documentList().reload(&store);
    app.calculateDatabase();
    Q_EMIT app.listChanged();
}

// Replaces the shown records of `entity` by the dictionaries in the file. The
// file is read and checked before anything is removed, and everything goes in
// one save.
bool restoreRecords(AppController &app, EntityId entity, const QString &path, const QString &what, QString *error)
{
    QString reason;
    const QVariant root = plist::readFile(path, &reason);
    QVariantList list;
    if (root.typeId() == QMetaType::QVariantList) {
        list = root.toList();
        for (qsizetype i = 0; i < list.size() && reason.isEmpty(); ++i)
            if (list[i].typeId() != QMetaType::QVariantMap)
                reason = QStringLiteral("Entry %1 is not a record.").arg(i + 1);
    } else if (root.isValid()) {
        reason = QStringLiteral("It does not hold a list of records.");
    } else if (reason.isEmpty()) {
        reason = QStringLiteral("It could not be read.");
    }
    if (!reason.isEmpty()) {
        *error = QStringLiteral("The file “%1” is not a %2. %3").arg(QFileInfo(path).fileName(), what, reason);
        app.ui().alert(kError, *error, {kOK});
        return false;
    }

    Store *store = app.managedObjectContext();
    if (!store) {
        *error = QStringLiteral("There is no database to restore into.");
        return false;
    }
    if (const Error e = app.saveContext()) {
        *error = e.message();
        return false;
    }
    const bool documents = entity == EntityId::Invoice;
    const QList<Record *> shown = documents ? app.documentList().arranged() : store->all(entity);
    if (documents && shown.contains(app.currentInvoice()))
        app.setCurrentInvoice(nullptr);
    for (Record *r : shown)
        store->remove(r);
    const QString className = entityDesc(entity).name;
    for (const QVariant &v : std::as_const(list)) {
        QVariantMap dictionary = v.toMap();
        dictionary.insert(ObjectDictionary::kClassKey, className);
        ObjectDictionary::createManagedObjectFromDictionary(dictionary, *store);
    }
    if (const Error e = store->save()) {
        rollBack(app, *store);
        app.ui().presentError(e);
        *error = e.message();
        return false;
    }
    if (documents) {
        app.documentList().reload(store);
        app.calculateDatabase();
        Q_EMIT app.listChanged();
    }
    return true;
}

} // namespace

bool BackupCommands::backupCompleteTaboData()
{
    if (!m_app.managedObjectContext() || m_app.saveContext())
        return false;
    Interaction::FileRequest request;
    request.title = QStringLiteral("Backup Tabo Database");
    request.extensions = {QStringLiteral("mbdb")};
    request.suggestedName = QStringLiteral("Tabo 2 Database");
    request.canCreateFolders = true;
    const QString path = m_app.ui().saveFile(request);
    if (path.isEmpty())
        return false;
    QString error;
    return writeCompleteBackup(path, &error);
}

bool BackupCommands::writeCompleteBackup(const QString &chosenPath, QString *error)
{
    Store *store = m_app.managedObjectContext();
    if (!store) {
        *error = QStringLiteral("There is no database to back up.");
        return false;
    }
    if (const Error e = m_app.saveContext()) {
        *error = e.message();
        return false;
    }
    const QFileInfo chosen(chosenPath);
    const QString folder = chosen.absolutePath();
    const QString target = folder + QLatin1Char('/') + chosen.completeBaseName() + QStringLiteral(".tabo2db");

    // VACUUM INTO writes a consistent copy, log included; the rename makes the
    // finished copy appear in one step.
    QTemporaryFile temp(target + QStringLiteral(".XXXXXX"));
    if (!temp.open()) {
        *error = QStringLiteral("“%1” could not be written: %2.").arg(target, temp.errorString());
        qWarning().noquote() << QStringLiteral("Unable to add migratePersistentStore: %1").arg(*error);
        return false;
    }
    temp.close();
    sqlite3_stmt *stmt = nullptr;
    sqlite3_prepare_v2(store->handle(), "VACUUM INTO ?", -1, &stmt, nullptr);
    const QByteArray tempName = QFile::encodeName(temp.fileName());
    sqlite3_bind_text(stmt, 1, tempName.constData(), -1, SQLITE_TRANSIENT);
    const int rc = sqlite3_step(stmt);
    sqlite3_finalize(stmt);
    if (rc != SQLITE_DONE) {
        *error = QStringLiteral("“%1” could not be written: %2.")
                     .arg(target, QString::fromUtf8(sqlite3_errmsg(store->handle())));
        qWarning().noquote() << QStringLiteral("Unable to add migratePersistentStore: %1").arg(*error);
        return false;
    }
    syncPath(temp.fileName(), false);
    if (::rename(tempName.constData(), QFile::encodeName(target).constData()) != 0) {
        *error = QStringLiteral("“%1” could not be written: %2.").arg(target, QString::fromLocal8Bit(std::strerror(errno)));
        qWarning().noquote() << QStringLiteral("Unable to acopyItemAtURL: %1").arg(*error);
        return false;
    }
    temp.setAutoRemove(false);
    syncPath(folder, true);
    return true;
}

bool BackupCommands::restoreCompleteTaboData()
{
    const int answer = m_app.ui().alert(
        kWarning,
        QStringLiteral("You are about to restore your entire Tabo database from a backup. This will irretrievably "
                       "replace any existing data. Do you really want to do that?"),
        {kRestore, kCancel});
    if (answer != 0)
        return false;
    Interaction::FileRequest request;
    request.title = QStringLiteral("Restore Tabo 2 Database");
    request.extensions = {QStringLiteral("tabo2db")};
    const QString path = m_app.ui().openFile(request);
    if (path.isEmpty())
        return false;
    QString error;
    return restoreCompleteBackup(path, &error);
}

bool BackupCommands::restoreCompleteBackup(const QString &backupPath, QString *error)
{
    // Opened first so that an interrupted earlier restore is settled; a store
    // that does not open at all can still be replaced.
    m_app.managedObjectContext();
    const QString storePath = m_app.storeFilePath();
    const QString name = QFileInfo(backupPath).fileName();
    const auto fail = [&](const QString &text) {
        *error = text;
        m_app.ui().alert(kError, text, {kOK});
        return false;
    };

    ScratchFile copy(storePath);
    QString reason;
    if (copy.path().isEmpty())
        return fail(QStringLiteral("The file “%1” could not be restored. No working copy could be made beside the "
                                   "database.").arg(name));
    if (!copyFile(backupPath, copy.path(), &reason))
        return fail(QStringLiteral("The file “%1” could not be restored. %2").arg(name, reason));
    if (!isUsableStore(copy.path(), true, &reason))
        return fail(QStringLiteral("The file “%1” is not a Tabo database backup. %2")
                        .arg(name, reason.replace(copy.path(), backupPath)));
    pauseForTest();
    if (m_app.hasStore()) {
        if (const Error e = m_app.saveContext()) {
            *error = e.message();
            return false;
        }
    }
    if (!swapInStore(m_app, storePath, copy, &reason))
        return fail(QStringLiteral("The database could not be restored from “%1”. %2 Your previous data are still in "
                                   "place.").arg(name, reason));
    return true;
}

void BackupCommands::recoverInterruptedRestore(const QString &storePath)
{
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
    QString reason = QStringLiteral("The restored database is missing.");
    if (info.exists() && isUsableStore(storePath, false, &reason)) {
        qInfo().noquote() << QStringLiteral("An interrupted restore of “%1” is complete; removing the previous database.")
                                 .arg(storePath);
        removeStoreFiles(previous);
        return;
    }
    qWarning().noquote() << QStringLiteral("An interrupted restore of “%1” is undone: %2").arg(storePath, reason);
    bringBackPrevious(storePath, true);
}

bool BackupCommands::backupTaboData()
{
    if (!m_app.managedObjectContext() || m_app.saveContext())
        return false;
    Interaction::FileRequest request;
    request.title = QStringLiteral("Backup Tabo Invoices");
    request.extensions = {QStringLiteral("taboinvoices")};
    request.suggestedName = QStringLiteral("Tabo Invoices");
    const QString path = m_app.ui().saveFile(request);
    if (path.isEmpty())
        return false;
    QString error;
    return writeInvoiceBackup(path, &error);
}

bool BackupCommands::restoreTaboData()
{
    const int answer = m_app.ui().alert(
        kWarning,
        QStringLiteral("You are about to restore your Tabo invoices from a backup. This will irretrievably replace "
                       "any existing invoices. Do you really want to do that?"),
        {kRestore, kCancel});
    if (answer != 0)
        return false;
    Interaction::FileRequest request;
    request.title = QStringLiteral("Restore Tabo Invoices");
    request.extensions = {QStringLiteral("taboinvoices")};
    const QString path = m_app.ui().openFile(request);
    if (path.isEmpty())
        return false;
    QString error;
    return restoreInvoiceBackup(path, &error);
}

bool BackupCommands::backupItems()
{
    if (!m_app.managedObjectContext() || m_app.saveContext())
        return false;
    Interaction::FileRequest request;
    request.title = QStringLiteral("Backup Tabo Items");
    request.extensions = {QStringLiteral("taboitems")};
    request.suggestedName = QStringLiteral("Tabo Items");
    const QString path = m_app.ui().saveFile(request);
    if (path.isEmpty())
        return false;
    QString error;
    return writeItemBackup(path, &error);
}

bool BackupCommands::restoreItems()
{
    const int answer = m_app.ui().alert(
        kWarning,
        QStringLiteral("You are about to restore your Tabo items from a backup. This will irretrievably replace any "
                       "existing items. Do you really want to do that?"),
        {kRestore, kCancel});
    if (answer != 0)
        return false;
    Interaction::FileRequest request;
    request.title = QStringLiteral("Restore Tabo Items");
    request.extensions = {QStringLiteral("taboitems")};
    const QString path = m_app.ui().openFile(request);
    if (path.isEmpty())
        return false;
    QString error;
    return restoreItemBackup(path, &error);
}

bool BackupCommands::writeInvoiceBackup(const QString &path, QString *error)
{
    return writeRecords(m_app, EntityId::Invoice, path, true, error);
}

bool BackupCommands::restoreInvoiceBackup(const QString &path, QString *error)
{
    return restoreRecords(m_app, EntityId::Invoice, path, QStringLiteral("Tabo invoice backup"), error);
}

bool BackupCommands::writeItemBackup(const QString &path, QString *error)
{
    return writeRecords(m_app, EntityId::RecentItem, path, true, error);
}

bool BackupCommands::restoreItemBackup(const QString &path, QString *error)
{
    return restoreRecords(m_app, EntityId::RecentItem, path, QStringLiteral("Tabo item backup"), error);
}

bool BackupCommands::createBackup()
{
    Preferences &prefs = m_app.prefs();
    // The first run after the upgrade has nothing worth keeping yet.
    if (!prefs.boolean(P::isDatabase2Migrated)) {
        prefs.setBool(P::isDatabase2Migrated, true);
        return false;
    }
    Store *store = m_app.managedObjectContext();
    if (!store)
        return false;
    // An unexpected change of the count must not overwrite the last good backup.
    if (store->count(EntityId::Invoice) != prefs.integer(P::fetchedObjectsCount)
        && !prefs.boolean(P::USMCloudEnabledKey)) {
        if (prefs.boolean(P::justMigratedFrommFree))
            prefs.setBool(P::justMigratedFrommFree, false);
        return false;
    }
    return doTheNewBackup();
}

bool BackupCommands::doTheNewBackup()
{
    if (m_app.backupPath().isEmpty())
        m_app.createBackupPath();
    const QString path = m_app.backupPath();
    QDir().mkpath(QFileInfo(path).absolutePath());
    QString error;
    return writeRecords(m_app, EntityId::Invoice, path, false, &error);
}

bool BackupCommands::restoreFromBackup()
{
    if (m_app.backupPath().isEmpty())
        m_app.createBackupPath();
    const QString path = m_app.backupPath();
    if (!QFileInfo(path).isFile()) {
        m_app.ui().alert(kError,
                         QStringLiteral("No valid backup file available. Please restore your Tabo database from your "
                                        "own (Time Machine) backups."),
                         {kOK});
        return false;
    }
    QString error;
    return restoreInvoiceBackup(path, &error);
}

bool BackupCommands::restoreAutomaticallyFromSandbox()
{
    const QString source = AppController::applicationFilesDirectory() + QStringLiteral("/Tabo.mbdb");
    const QString storePath = m_app.storeFilePath();
    if (samePath(source, storePath))
        return false;
    qInfo().noquote() << QStringLiteral("restoreAutomaticallyFromSandbox '%1'.").arg(storePath);
    const auto fail = [this](const QString &description, const QString &reason) {
        if (!description.isEmpty())
            m_app.ui().presentError(Error{Error::kAppDomain, 1, description, reason});
        m_app.ui().alert(kError,
                         QStringLiteral("Could not restore Tabo database automatically. Please do this by hand. In "
                                        "case of problems, simply contact the Pemra support."),
                         {kOK});
        return false;
    };

    m_app.managedObjectContext();
    ScratchFile copy(storePath);
    QString reason;
    if (copy.path().isEmpty() || !copyFile(source, copy.path(), &reason))
        return fail(QStringLiteral("Failed to create writable database file with message '%1'.").arg(reason), {});
    if (!isUsableStore(copy.path(), true, &reason))
        return fail(QStringLiteral("The database “%1” cannot be used.").arg(source), reason.replace(copy.path(), source));
    if (m_app.hasStore() && m_app.saveContext())
        return fail({}, {}); // the save error has been presented
    if (!swapInStore(m_app, storePath, copy, &reason))
        return fail(QStringLiteral("The database “%1” could not be replaced.").arg(storePath), reason);
    return true;
}

} // namespace tabo
