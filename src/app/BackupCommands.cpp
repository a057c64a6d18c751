#include "app/BackupCommands.h"

#include "app/Interaction.h"
#include "app/Workspace.h"
#include "domain/DocumentList.h"
#include "domain/Record.h"
#include "prefs/Locations.h"
#include "prefs/Preferences.h"
#include "prefs/ProtectedFiles.h"
#include "store/ObjectDictionary.h"
#include "store/PropertyList.h"
#include "store/Store.h"
#include "store/StoreFile.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(BackupCommands)
};
} // namespace

namespace tabo {

namespace {

using P = Preferences;

QString kError()
{
    return Tr::tr("Error!");
}
QString kWarning()
{
    return Tr::tr("Warning!");
}
QString kOK()
{
    return Tr::tr("OK");
}
QString kRestore()
{
    return Tr::tr("Restore…");
}
QString kCancel()
{
    return Tr::tr("Cancel");
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
    case EntityId::Invoice:
        return Tr::tr("documents (an invoice backup or an XML export); restore it with "
                      "File ▸ Restore Invoices… or tabo-cli restore invoices");
    case EntityId::RecentItem:
        return Tr::tr("catalogue items (an item backup); restore it with "
                      "File ▸ Restore Items… or tabo-cli restore items");
    case EntityId::Address:
        return Tr::tr("remembered addresses, which no restore replaces");
    case EntityId::RecentShipping:
        return Tr::tr("remembered shipping lines, which no restore replaces");
    case EntityId::Design:
        return Tr::tr("designs; import them from the Design pane");
    default:
        return Tr::tr("records no restore replaces");
    }
}

// What a file that is no list of records is, in words, so the person learns
// which command fits it.
QString fileKind(const QString &path, const QVariant &root)
{
    QFile file(path);
    const QByteArray head = file.open(QIODevice::ReadOnly) ? file.read(16) : QByteArray();
    if (head.startsWith("SQLite format 3"))
        return Tr::tr("It is a complete database backup; restore it with File ▸ Restore Database… or "
                      "tabo-cli restore database.");
    if (head.startsWith("bplist00"))
        return Tr::tr("It is a single exported document or a design; import it with File ▸ Import… or "
                      "from the Design pane.");
    if (head.startsWith("%PDF"))
        return Tr::tr("It is a PDF file.");
    if (root.typeId() == QMetaType::QVariantMap && root.toMap().contains(QStringLiteral("invoices")))
        return Tr::tr("It is an invoice dump, which no restore reads.");
    if (root.typeId() == QMetaType::QVariantMap)
        return Tr::tr("It holds a single record, not a list of them.");
    return Tr::tr("It does not hold a list of records.");
}

} // namespace

// The store a backup is taken of, when it passes its check: a copy of a
// damaged store would replace the one good copy the person is told to restore.

namespace {

// The file a restore works on: the one handed over (opened from outside),
// else the one the person picks in the open panel.
QString askForFile(Interaction &ui, const QString &title, const QString &extension)
{
    Interaction::FileRequest request;
    request.title = title;
    request.extensions = {extension};
    return ui.openFile(request);
}

} // namespace

Result<Store *> BackupCommands::checkedStore()
{
    Store *store = m_access.store();
    if (!store)
        return Error { Error::Tabo, 1, Tr::tr("There is no database to back up."), {} };
    if (const Error e = store->checkIntegrity())
        return Error { Error::Store, e.code,
            Tr::tr("No backup was taken: the database fails its check, and a backup of it would be "
                   "no better. %1")
                .arg(e.message()),
            {} };
    return store;
}

Error BackupCommands::writeRecords(EntityId entity, const QString &path)
{
    const Result<Store *> checked = checkedStore();
    if (!checked)
        return checked.error();
    Store *store = checked.value();
    if (Error e = m_access.save())
        return e;
    if (Error e = plist::writeFile(path, recordList(*store, entity), plist::Format::Xml)) {
        qWarning().noquote() << Tr::tr("Unable to write %1: %2").arg(path, e.message());
        return e;
    }
    return {};
}

// Forgets a restore whose save failed: the store and the list as saved before.
void BackupCommands::rollBack(Store &store)
{
    m_current.setCurrentInvoice(nullptr);
    store.reset();
    m_list.reloadList();
}

// Replaces the shown records of `entity` by the dictionaries in the file. The
// file is read and its kind checked before anything is removed, and
// everything goes in one save.
Error BackupCommands::restoreRecords(EntityId entity, const QString &path, const QString &what)
{
    const Result<QVariant> read = plist::readFile(path);
    const QVariant root = read.value();
    QString reason = read.error().message();
    QVariantList list;
    if (root.typeId() == QMetaType::QVariantList) {
        list = root.toList();
        for (qsizetype i = 0; i < list.size() && reason.isEmpty(); ++i) {
            if (list[i].typeId() != QMetaType::QVariantMap) {
                reason = Tr::tr("Entry %1 is not a record.").arg(i + 1);
            } else if (const EntityId found = entityOf(list[i].toMap()); found != entity) {
                reason = Tr::tr("It holds %1.").arg(kindInWords(found));
            }
        }
    } else if (root.isValid() || QFileInfo(path).isFile()) {
        reason = fileKind(path, root);
    } else if (reason.isEmpty()) {
        reason = Tr::tr("It could not be read.");
    }
    if (!reason.isEmpty()) {
        const QString text = Tr::tr("The file “%1” is not a %2. %3").arg(QFileInfo(path).fileName(), what, reason);
        m_ui.alert(kError(), text, { kOK() });
        return Error::file(text);
    }

    Store *store = m_access.store();
    if (!store)
        return Error { Error::Tabo, 1, Tr::tr("There is no database to restore into."), {} };
    if (Error e = m_access.save())
        return e;
    const bool documents = entity == EntityId::Invoice;
    const QList<Record *> shown = documents ? m_list.documentList().shown() : store->all(entity);
    if (documents && shown.contains(m_current.currentInvoice()))
        m_current.setCurrentInvoice(nullptr);
    for (Record *r : shown)
        store->remove(r);
    const QString className = entityDesc(entity).name;
    for (const QVariant &v : std::as_const(list)) {
        QVariantMap dictionary = v.toMap();
        dictionary.insert(ObjectDictionary::kClassKey, className);
        ObjectDictionary::createManagedObjectFromDictionary(dictionary, *store);
    }
    if (Error e = store->save()) {
        rollBack(*store);
        m_ui.presentError(e);
        return e;
    }
    if (documents)
        m_list.reloadList();
    return {};
}

// Puts the checked copy's content in place of the store the application uses.
// The file itself stays: written through SQLite, the new content reaches every
// other process that has the store open (the window, tabo-cli), and nobody
// keeps working on a file that was renamed away. Only a store that cannot be
// opened (damaged, empty), which nobody can be working on, is replaced as a file.
Error BackupCommands::swapIn(StoreFile &copy)
{
    Store *store = m_access.hasStore() ? m_access.store() : nullptr;
    if (store && !store->isDamaged()) {
        StoreFile::pauseForTest();
        if (Error e = store->replaceContentFrom(copy.path()))
            return e;
        m_access.reopenStore();
        return {};
    }
    return copy.swapIn([this] { m_access.closeStore(); }, [this] { return m_access.reopenStore(); });
}


bool BackupCommands::backupCompleteTaboData()
{
    if (!m_access.store() || m_access.save())
        return false;
    Interaction::FileRequest request;
    request.title = Tr::tr("Backup Tabo Database");
    request.extensions = {QStringLiteral("mbdb")};
    request.suggestedName = Tr::tr("Tabo 2 Database");
    request.canCreateFolders = true;
    const QString path = m_ui.saveTarget(request);
    if (path.isEmpty())
        return false;
    return !writeCompleteBackup(path);
}

Error BackupCommands::writeCompleteBackup(const QString &chosenPath)
{
    Store *store = m_access.store();
    if (!store)
        return Error { Error::Tabo, 1, Tr::tr("There is no database to back up."), {} };
    if (Error e = m_access.save())
        return e;
    const QFileInfo chosen(chosenPath);
    const QString target = chosen.absolutePath() + QLatin1Char('/') + chosen.completeBaseName() + QStringLiteral(".tabo2db");
    if (Error refused = ProtectedFiles::check(target))
        return refused;
    if (const Result<Store *> checked = checkedStore(); !checked)
        return checked.error();
    return StoreFile::writeCopy(*store, target);
}

bool BackupCommands::restoreCompleteTaboData(const QString &given)
{
    const int answer = m_ui.alert(kWarning(),
        Tr::tr("You are about to restore your entire Tabo database from a backup. This will irretrievably "
               "replace any existing data. Do you really want to do that?"),
        { kRestore(), kCancel() });
    if (answer != 0)
        return false;
    const QString path = given.isEmpty() ? askForFile(m_ui, Tr::tr("Restore Tabo 2 Database"), QStringLiteral("tabo2db")) : given;
    if (path.isEmpty())
        return false;
    return !restoreCompleteBackup(path);
}

Error BackupCommands::restoreCompleteBackup(const QString &backupPath)
{
    // Opened first so that an interrupted earlier restore is settled; a store
    // that does not open at all can still be replaced.
    m_access.store();
    const QString storePath = m_files.storeFilePath();
    const QString name = QFileInfo(backupPath).fileName();
    const auto fail = [&](const QString &text) {
        m_ui.alert(kError(), text, { kOK() });
        return Error::file(text);
    };

    StoreFile copy(storePath);
    if (copy.path().isEmpty())
        return fail(Tr::tr("The file “%1” could not be restored. No working copy could be made beside the "
                           "database.")
                        .arg(name));
    if (const Error e = copy.copyFrom(backupPath))
        return fail(Tr::tr("The file “%1” could not be restored. %2").arg(name, e.message()));
    if (const Error e = copy.check()) {
        // A list of records read as what it is tells which restore fits.
        const QVariant root = plist::readFile(backupPath).value();
        const QVariantList list = root.toList();
        const QString kind = !list.isEmpty() && list.first().typeId() == QMetaType::QVariantMap
            ? Tr::tr("It holds %1.").arg(kindInWords(entityOf(list.first().toMap())))
            : root.isValid() ? fileKind(backupPath, root)
                             : e.message().replace(copy.path(), backupPath);
        return fail(Tr::tr("The file “%1” is not a Tabo database backup. %2").arg(name, kind));
    }
    StoreFile::pauseForTest();
    if (m_access.hasStore())
        if (Error e = m_access.save())
            return e;
    if (const Error e = swapIn(copy))
        return fail(Tr::tr("The database could not be restored from “%1”. %2 Your previous data are still in "
                           "place.")
                        .arg(name, e.message()));
    return {};
}

bool BackupCommands::backupTaboData()
{
    if (!m_access.store() || m_access.save())
        return false;
    Interaction::FileRequest request;
    request.title = Tr::tr("Backup Tabo Invoices");
    request.extensions = {QStringLiteral("taboinvoices")};
    request.suggestedName = Tr::tr("Tabo Invoices");
    const QString path = m_ui.saveTarget(request);
    if (path.isEmpty())
        return false;
    return !writeInvoiceBackup(path);
}

bool BackupCommands::restoreTaboData(const QString &given)
{
    const int answer = m_ui.alert(kWarning(),
        Tr::tr("You are about to restore your Tabo invoices from a backup. This will irretrievably replace "
               "any existing invoices. Do you really want to do that?"),
        { kRestore(), kCancel() });
    if (answer != 0)
        return false;
    const QString path = given.isEmpty() ? askForFile(m_ui, Tr::tr("Restore Tabo Invoices"), QStringLiteral("taboinvoices")) : given;
    if (path.isEmpty())
        return false;
    return !restoreInvoiceBackup(path);
}

bool BackupCommands::backupItems()
{
    if (!m_access.store() || m_access.save())
        return false;
    Interaction::FileRequest request;
    request.title = Tr::tr("Backup Tabo Items");
    request.extensions = {QStringLiteral("taboitems")};
    request.suggestedName = Tr::tr("Tabo Items");
    const QString path = m_ui.saveTarget(request);
    if (path.isEmpty())
        return false;
    return !writeItemBackup(path);
}

bool BackupCommands::restoreItems(const QString &given)
{
    const int answer = m_ui.alert(kWarning(),
        Tr::tr("You are about to restore your Tabo items from a backup. This will irretrievably replace any "
               "existing items. Do you really want to do that?"),
        { kRestore(), kCancel() });
    if (answer != 0)
        return false;
    const QString path = given.isEmpty() ? askForFile(m_ui, Tr::tr("Restore Tabo Items"), QStringLiteral("taboitems")) : given;
    if (path.isEmpty())
        return false;
    return !restoreItemBackup(path);
}

Error BackupCommands::writeInvoiceBackup(const QString &path)
{
    return writeRecords(EntityId::Invoice, path);
}

Error BackupCommands::restoreInvoiceBackup(const QString &path)
{
    return restoreRecords(EntityId::Invoice, path, Tr::tr("Tabo invoice backup"));
}

Error BackupCommands::writeItemBackup(const QString &path)
{
    return writeRecords(EntityId::RecentItem, path);
}

Error BackupCommands::restoreItemBackup(const QString &path)
{
    return restoreRecords(EntityId::RecentItem, path, Tr::tr("Tabo item backup"));
}

bool BackupCommands::createBackup()
{
    Preferences &prefs = m_prefs;
    // The first run after the upgrade has nothing worth keeping yet.
    if (!prefs.boolean(P::isDatabase2Migrated)) {
        prefs.setBool(P::isDatabase2Migrated, true);
        return false;
    }
    Store *store = m_access.store();
    if (!store)
        return false;
    // An unexpected change of the count must not overwrite the last good backup.
    if (store->count(EntityId::Invoice) != prefs.integer(P::fetchedObjectsCount)) {
        if (prefs.boolean(P::justMigratedFrommFree))
            prefs.setBool(P::justMigratedFrommFree, false);
        return false;
    }
    return !doTheNewBackup();
}

Error BackupCommands::doTheNewBackup()
{
    const QString path = m_files.automaticBackupFile();
    const Result<Store *> checked = checkedStore();
    if (!checked)
        return checked.error();
    Store *store = checked.value();
    const Result<QByteArray> data = plist::write(recordList(*store, EntityId::Invoice), plist::Format::Xml);
    if (!data)
        return data.error();
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
    if (Error e = ProtectedFiles::writeAtomically(path, data.value(), ProtectedFiles::Writer::AutomaticBackup)) {
        qWarning().noquote() << Tr::tr("Unable to write %1: %2").arg(path, e.text);
        return e;
    }
    return {};
}

bool BackupCommands::restoreFromBackup()
{
    // The newest generation there is: a kill between the rotation and the
    // write leaves the last backup one place down.
    QString path = m_files.automaticBackupFile();
    for (const QString &generation : Locations::automaticBackupFiles())
        if (QFileInfo(generation).isFile()) {
            path = generation;
            break;
        }
    if (!QFileInfo(path).isFile()) {
        m_ui.alert(kError(),
            Tr::tr("No valid backup file available. Please restore your Tabo database from your "
                   "own (Time Machine) backups."),
            { kOK() });
        return false;
    }
    return !restoreInvoiceBackup(path);
}

bool BackupCommands::restoreAutomaticallyFromSandbox()
{
    const QString source = Locations::dataFile(QStringLiteral("Tabo.mbdb"));
    const QString storePath = m_files.storeFilePath();
    if (Locations::sameFile(source, storePath))
        return false;
    qInfo().noquote() << QStringLiteral("restoreAutomaticallyFromSandbox '%1'.").arg(storePath);
    const auto fail = [this](const QString &description, const QString &reason) {
        if (!description.isEmpty())
            m_ui.presentError(Error{Error::Tabo, 1, description, reason});
        m_ui.alert(kError(),
            Tr::tr("Could not restore Tabo database automatically. Please do this by hand. In "
                   "case of problems, simply contact the Pemra support."),
            { kOK() });
        return false;
    };

    m_access.store();
    StoreFile copy(storePath);
    const Error copied = copy.path().isEmpty()
        ? Error::file(Tr::tr("No working copy could be made beside the database."))
        : copy.copyFrom(source);
    if (copied)
        return fail(Tr::tr("Failed to create writable database file with message '%1'.").arg(copied.message()), {});
    if (const Error e = copy.check())
        return fail(Tr::tr("The database “%1” cannot be used.").arg(source), e.message().replace(copy.path(), source));
    if (m_access.hasStore() && m_access.save())
        return fail({}, {}); // the save error has been presented
    if (const Error e = swapIn(copy))
        return fail(Tr::tr("The database “%1” could not be replaced.").arg(storePath), e.message());
    return true;
}

} // namespace tabo
