#pragma once


#include <QString>

namespace tabo {

class AppController;

// Backups and restores of the complete store, the documents and the
// catalogue, and the automatic backup in the documents folder. A restore
// keeps what it replaces until the new data is in place and opened: a file
// that cannot be read, is not a store, or is not a list of the right
// dictionaries leaves the store and its records exactly as they were (with a
// message); an interrupted restore leaves the old or the new state.
class BackupCommands
{
public:
    explicit BackupCommands(AppController &app) : m_app(app) {}

    bool backupCompleteTaboData();   // save panel, then writeCompleteBackup
    bool restoreCompleteTaboData();  // warning, open panel, then restoreCompleteBackup
    bool backupTaboData();           // documents → "taboinvoices"
    bool restoreTaboData();
    bool backupItems();              // catalogue → "taboitems"
    bool restoreItems();

    // The work behind the panels, also used by the command line. `chosenPath`
    // is the ".mbdb" name the person chose; the lasting copy is the
    // ".tabo2db" beside it.
    bool writeCompleteBackup(const QString &chosenPath, QString *error);
    bool restoreCompleteBackup(const QString &backupPath, QString *error);
    bool writeInvoiceBackup(const QString &path, QString *error);
    bool restoreInvoiceBackup(const QString &path, QString *error);
    bool writeItemBackup(const QString &path, QString *error);
    bool restoreItemBackup(const QString &path, QString *error);

    // The automatic backup at AppController::backupPath().
    bool createBackup();     // guarded (first run after the upgrade, changed count)
    bool doTheNewBackup(QString *error = nullptr); // refused only on a damaged store
    bool restoreFromBackup();
    // Replaces the open store by the store in the default folder.
    bool restoreAutomaticallyFromSandbox();

private:
    AppController &m_app;
};

} // namespace tabo
