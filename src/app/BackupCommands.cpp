#include "app/BackupCommands.h"

#include "app/AppController.h"
#include "app/Interaction.h"
#include "domain/Record.h"
#include "prefs/Locations.h"
#include "prefs/Preferences.h"
#include "prefs/ProtectedFiles.h"
#include "store/ObjectDictionary.h"
#include "store/PropertyList.h"
#include "store/Store.h"
#include "store/StoreFile.h"

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tabo {

namespace {

using P = Preferences;

const QString kError = QStringLiteral("Error!");
const QString kWarning = QStringLiteral("Warning!");
const QString kOK = QStringLiteral("OK");
const QString kRestore = QStringLiteral("Restore…");
const QString kCancel = QStringLiteral("Cancel");

// The store a backup is taken of, when it passes its check: a copy of a
// damaged store would replace the one good copy the person is told to restore.
Store *checkedStore(AppController &app, QString *error)
{
    Store *store = app.store();
    if (!store) {
        *error = QStringLiteral("There is no database to back up.");
        return nullptr;
    }
    if (const Error e = store->checkIntegrity()) {
        *error = QStringLiteral("No backup was taken: the database fails its check, and a backup of it would be "
                                "no better. %1").arg(e.message());
        return nullptr;
    }
    return store;
}

QVariantList recordList(Store &store, EntityId entity)
{
    const QList<Record *> records = store.all(entity);
    store.loadFully(records);
    QVariantList list;
    list.reserve(records.size());
    for (const Record *r : records)
        list.append(ObjectDictionary::toDictionary(*r));
    return list;
}

bool writeRecords(AppController &app, EntityId entity, const QString &path, QString *error)
{
    Store *store = checkedStore(app, error);
    if (!store)
        return false;
    if (const Error e = app.save()) {
        *error = e.message();
        return false;
    }
    if (!plist::writeFile(path, recordList(*store, entity), plist::Format::Xml, error)) {
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

// The entity a dictionary describes: its "class" when it names one, else
// the one whose attributes cover most of its keys (files of other programs
// may leave the class out).
EntityId entityOf(const QVariantMap &dictionary)
{
    if (const EntityDesc *named = entityDescByName(dictionary.value(ObjectDictionary::kClassKey).toString()))
        return named->id;
    EntityId best = EntityId::Invoice;
    qsizetype bestCount = -1;
    for (const EntityId candidate : {EntityId::Invoice, EntityId::RecentItem, EntityId::Address, EntityId::RecentShipping,
                                     EntityId::Design, EntityId::Item}) {
        const EntityDesc &desc = entityDesc(candidate);
        qsizetype count = 0;
        for (auto it = dictionary.cbegin(); it != dictionary.cend(); ++it) {
            QString key = it.key();
            key.remove(QStringLiteral("dAtEaTtr:"));
            if (desc.attributeIndex(key) >= 0 || desc.relationIndex(key) >= 0)
                ++count;
        }
        if (count > bestCount) {
            best = candidate;
            bestCount = count;
        }
    }
    return best;
}

QString kindInWords(EntityId entity)
{
    switch (entity) {
    case EntityId::Invoice: return QStringLiteral("documents (an invoice backup or an XML export); restore it with "
                                                  "File ▸ Restore Invoices… or tabo-cli restore invoices");
    case EntityId::RecentItem: return QStringLiteral("catalogue items (an item backup); restore it with "
                                                     "File ▸ Restore Items… or tabo-cli restore items");
    case EntityId::Address: return QStringLiteral("remembered addresses, which no restore replaces");
    case EntityId::RecentShipping: return QStringLiteral("remembered shipping lines, which no restore replaces");
    case EntityId::Design: return QStringLiteral("designs; import them from the Design pane");
    default: return QStringLiteral("records no restore replaces");
    }
}

// What a file that is no list of records is, in words, so the person learns
// which command fits it.
QString fileKind(const QString &path, const QVariant &root)
{
    QFile file(path);
    const QByteArray head = file.open(QIODevice::ReadOnly) ? file.read(16) : QByteArray();
    if (head.startsWith("SQLite format 3"))
        return QStringLiteral("It is a complete database backup; restore it with File ▸ Restore Database… or "
                              "tabo-cli restore database.");
    if (head.startsWith("bplist00"))
        return QStringLiteral("It is a single exported document or a design; import it with File ▸ Import… or "
                              "from the Design pane.");
    if (head.startsWith("%PDF"))
        return QStringLiteral("It is a PDF file.");
    if (root.typeId() == QMetaType::QVariantMap && root.toMap().contains(QStringLiteral("invoices")))
        return QStringLiteral("It is an invoice dump, which no restore reads.");
    if (root.typeId() == QMetaType::QVariantMap)
        return QStringLiteral("It holds a single record, not a list of them.");
    return QStringLiteral("It does not hold a list of records.");
}

// Replaces the shown records of `entity` by the dictionaries in the file. The
// file is read and its kind checked before anything is removed, and
// everything goes in one save.
bool restoreRecords(AppController &app, EntityId entity, const QString &path, const QString &what, QString *error)
{
    QString reason;
    const QVariant root = plist::readFile(path, &reason);
    QVariantList list;
    if (root.typeId() == QMetaType::QVariantList) {
        list = root.toList();
        for (qsizetype i = 0; i < list.size() && reason.isEmpty(); ++i) {
            if (list[i].typeId() != QMetaType::QVariantMap) {
                reason = QStringLiteral("Entry %1 is not a record.").arg(i + 1);
            } else if (const EntityId found = entityOf(list[i].toMap()); found != entity) {
                reason = QStringLiteral("It holds %1.").arg(kindInWords(found));
            }
        }
    } else if (root.isValid() || QFileInfo(path).isFile()) {
        reason = fileKind(path, root);
    } else if (reason.isEmpty()) {
        reason = QStringLiteral("It could not be read.");
    }
    if (!reason.isEmpty()) {
        *error = QStringLiteral("The file “%1” is not a %2. %3").arg(QFileInfo(path).fileName(), what, reason);
        app.ui().alert(kError, *error, {kOK});
        return false;
    }

    Store *store = app.store();
    if (!store) {
        *error = QStringLiteral("There is no database to restore into.");
        return false;
    }
    if (const Error e = app.save()) {
        *error = e.message();
        return false;
    }
    const bool documents = entity == EntityId::Invoice;
    const QList<Record *> shown = documents ? app.documentList().shown() : store->all(entity);
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

// Puts the checked copy's content in place of the store the application uses.
// The file itself stays: written through SQLite, the new content reaches every
// other process that has the store open (the window, tabo-cli), and nobody
// keeps working on a file that was renamed away. Only a store that cannot be
// opened (damaged, empty), which nobody can be working on, is replaced as a file.
Error swapIn(AppController &app, StoreFile &copy)
{
    Store *store = app.hasStore() ? app.store() : nullptr;
    if (store && !store->isDamaged()) {
        StoreFile::pauseForTest();
        if (Error e = store->replaceContentFrom(copy.path()))
            return e;
        app.reopenStore();
        return {};
    }
    return copy.swapIn([&app] { app.closeStore(); }, [&app] { return app.reopenStore(); });
}

} // namespace

bool BackupCommands::backupCompleteTaboData()
{
    if (!m_app.store() || m_app.save())
        return false;
    Interaction::FileRequest request;
    request.title = QStringLiteral("Backup Tabo Database");
    request.extensions = {QStringLiteral("mbdb")};
    request.suggestedName = QStringLiteral("Tabo 2 Database");
    request.canCreateFolders = true;
    const QString path = m_app.ui().saveTarget(request);
    if (path.isEmpty())
        return false;
    QString error;
    return writeCompleteBackup(path, &error);
}

bool BackupCommands::writeCompleteBackup(const QString &chosenPath, QString *error)
{
    Store *store = m_app.store();
    if (!store) {
        *error = QStringLiteral("There is no database to back up.");
        return false;
    }
    if (const Error e = m_app.save()) {
        *error = e.message();
        return false;
    }
    const QFileInfo chosen(chosenPath);
    const QString target = chosen.absolutePath() + QLatin1Char('/') + chosen.completeBaseName() + QStringLiteral(".tabo2db");
    if (const Error refused = ProtectedFiles::check(target)) {
        *error = refused.text;
        return false;
    }
    if (!checkedStore(m_app, error))
        return false;
    if (const Error e = StoreFile::writeCopy(*store, target)) {
        *error = e.message();
        return false;
    }
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
    m_app.store();
    const QString storePath = m_app.storeFilePath();
    const QString name = QFileInfo(backupPath).fileName();
    const auto fail = [&](const QString &text) {
        *error = text;
        m_app.ui().alert(kError, text, {kOK});
        return false;
    };

    StoreFile copy(storePath);
    if (copy.path().isEmpty())
        return fail(QStringLiteral("The file “%1” could not be restored. No working copy could be made beside the "
                                   "database.").arg(name));
    if (const Error e = copy.copyFrom(backupPath))
        return fail(QStringLiteral("The file “%1” could not be restored. %2").arg(name, e.message()));
    if (const Error e = copy.check()) {
        // A list of records read as what it is tells which restore fits.
        const QVariant root = plist::readFile(backupPath, nullptr);
        const QVariantList list = root.toList();
        const QString kind = !list.isEmpty() && list.first().typeId() == QMetaType::QVariantMap
                                 ? QStringLiteral("It holds %1.").arg(kindInWords(entityOf(list.first().toMap())))
                                 : root.isValid() ? fileKind(backupPath, root)
                                                  : e.message().replace(copy.path(), backupPath);
        return fail(QStringLiteral("The file “%1” is not a Tabo database backup. %2").arg(name, kind));
    }
    StoreFile::pauseForTest();
    if (m_app.hasStore()) {
        if (const Error e = m_app.save()) {
            *error = e.message();
            return false;
        }
    }
    if (const Error e = swapIn(m_app, copy))
        return fail(QStringLiteral("The database could not be restored from “%1”. %2 Your previous data are still in "
                                   "place.").arg(name, e.message()));
    return true;
}

bool BackupCommands::backupTaboData()
{
    if (!m_app.store() || m_app.save())
        return false;
    Interaction::FileRequest request;
    request.title = QStringLiteral("Backup Tabo Invoices");
    request.extensions = {QStringLiteral("taboinvoices")};
    request.suggestedName = QStringLiteral("Tabo Invoices");
    const QString path = m_app.ui().saveTarget(request);
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
    if (!m_app.store() || m_app.save())
        return false;
    Interaction::FileRequest request;
    request.title = QStringLiteral("Backup Tabo Items");
    request.extensions = {QStringLiteral("taboitems")};
    request.suggestedName = QStringLiteral("Tabo Items");
    const QString path = m_app.ui().saveTarget(request);
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
    return writeRecords(m_app, EntityId::Invoice, path, error);
}

bool BackupCommands::restoreInvoiceBackup(const QString &path, QString *error)
{
    return restoreRecords(m_app, EntityId::Invoice, path, QStringLiteral("Tabo invoice backup"), error);
}

bool BackupCommands::writeItemBackup(const QString &path, QString *error)
{
    return writeRecords(m_app, EntityId::RecentItem, path, error);
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
    Store *store = m_app.store();
    if (!store)
        return false;
    // An unexpected change of the count must not overwrite the last good backup.
    if (store->count(EntityId::Invoice) != prefs.integer(P::fetchedObjectsCount)) {
        if (prefs.boolean(P::justMigratedFrommFree))
            prefs.setBool(P::justMigratedFrommFree, false);
        return false;
    }
    return doTheNewBackup();
}

bool BackupCommands::doTheNewBackup(QString *error)
{
    QString reason;
    if (!error)
        error = &reason;
    if (m_app.backupPath().isEmpty())
        m_app.createBackupPath();
    const QString path = m_app.backupPath();
    Store *store = checkedStore(m_app, error);
    if (!store)
        return false;
    const QByteArray data = plist::write(recordList(*store, EntityId::Invoice), plist::Format::Xml, error);
    if (data.isEmpty())
        return false;
    QDir().mkpath(QFileInfo(path).absolutePath());
    // The older generations move down one place before the newest is
    // written, so a store that went bad unnoticed never replaces them all.
    const QStringList generations = Locations::automaticBackupFiles();
    for (qsizetype i = generations.size() - 1; i > 0; --i) {
        if (!QFileInfo::exists(generations[i - 1]))
            continue;
        QFile::remove(generations[i]);
        QFile::rename(generations[i - 1], generations[i]);
    }
    if (const Error e = ProtectedFiles::writeAtomically(path, data, ProtectedFiles::Writer::AutomaticBackup)) {
        *error = e.text;
        qWarning().noquote() << QStringLiteral("Unable to write %1: %2").arg(path, e.text);
        return false;
    }
    return true;
}

bool BackupCommands::restoreFromBackup()
{
    if (m_app.backupPath().isEmpty())
        m_app.createBackupPath();
    // The newest generation there is: a kill between the rotation and the
    // write leaves the last backup one place down.
    QString path = m_app.backupPath();
    for (const QString &generation : Locations::automaticBackupFiles())
        if (QFileInfo(generation).isFile()) {
            path = generation;
            break;
        }
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
    if (Locations::sameFile(source, storePath))
        return false;
    qInfo().noquote() << QStringLiteral("restoreAutomaticallyFromSandbox '%1'.").arg(storePath);
    const auto fail = [this](const QString &description, const QString &reason) {
        if (!description.isEmpty())
            m_app.ui().presentError(Error{Error::Tabo, 1, description, reason});
        m_app.ui().alert(kError,
                         QStringLiteral("Could not restore Tabo database automatically. Please do this by hand. In "
                                        "case of problems, simply contact the Pemra support."),
                         {kOK});
        return false;
    };

    m_app.store();
    StoreFile copy(storePath);
    const Error copied = copy.path().isEmpty()
                             ? Error::file(QStringLiteral("No working copy could be made beside the database."))
                             : copy.copyFrom(source);
    if (copied)
        return fail(QStringLiteral("Failed to create writable database file with message '%1'.").arg(copied.message()), {});
    if (const Error e = copy.check())
        return fail(QStringLiteral("The database “%1” cannot be used.").arg(source),
                    e.message().replace(copy.path(), source));
    if (m_app.hasStore() && m_app.save())
        return fail({}, {}); // the save error has been presented
    if (const Error e = swapIn(m_app, copy))
        return fail(QStringLiteral("The database “%1” could not be replaced.").arg(storePath), e.message());
    return true;
}

} // namespace tabo
