#pragma once

#include "base/Result.h"
#include "domain/EntityModel.h"

#include <QString>

namespace tabo {

class CurrentDocument;
class Interaction;
class ListedDocuments;
class Preferences;
class Store;
class StoreAccess;
class StoreFile;
class WorkingFiles;

// Backups and restores of the complete store, the documents and the
// catalogue, and the automatic backup in the documents folder. A restore
// keeps what it replaces until the new data is in place and opened: a file
// that cannot be read, is not a store, or is not a list of the right
// dictionaries leaves the store and its records exactly as they were (with a
// message); an interrupted restore leaves the old or the new state.
class BackupCommands
{
public:
    BackupCommands(StoreAccess &store, CurrentDocument &current, ListedDocuments &list, WorkingFiles &files,
                   Preferences &prefs, Interaction &ui)
        : m_access(store), m_current(current), m_list(list), m_files(files), m_prefs(prefs), m_ui(ui)
    {
    }

    bool backupCompleteTaboData();   // save panel, then writeCompleteBackup
    // A restore warns, then takes `given` or asks with the open panel.
    bool restoreCompleteTaboData(const QString &given = {});  // then restoreCompleteBackup
    bool backupTaboData();           // documents → "taboinvoices"
    bool restoreTaboData(const QString &given = {});
    bool backupItems();              // catalogue → "taboitems"
    bool restoreItems(const QString &given = {});

    // The work behind the panels, also used by the command line. `chosenPath`
    // is the ".mbdb" name the person chose; the lasting copy is the
    // ".tabo2db" beside it. A restore has shown its failure as well.
    Error writeCompleteBackup(const QString &chosenPath);
    Error restoreCompleteBackup(const QString &backupPath);
    Error writeInvoiceBackup(const QString &path);
    Error restoreInvoiceBackup(const QString &path);
    Error writeItemBackup(const QString &path);
    Error restoreItemBackup(const QString &path);

    // The automatic backup (WorkingFiles::automaticBackupFile).
    bool createBackup();     // guarded (first run after the upgrade, changed count)
    Error doTheNewBackup();  // refused only on a damaged store
    bool restoreFromBackup();
    // Replaces the open store by the store in the default folder.
    bool restoreAutomaticallyFromSandbox();

private:
    Result<Store *> checkedStore();
    Error writeRecords(EntityId entity, const QString &path);
    Error restoreRecords(EntityId entity, const QString &path, const QString &what);
    void rollBack(Store &store);
    Error swapIn(StoreFile &copy);

    StoreAccess &m_access;
    CurrentDocument &m_current;
    ListedDocuments &m_list;
    WorkingFiles &m_files;
    Preferences &m_prefs;
    Interaction &m_ui;
};

} // namespace tabo
