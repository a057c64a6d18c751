#pragma once

#include "app/Workspace.h"
#include "base/Error.h"
#include "domain/Calculator.h"
#include "domain/DocumentList.h"
#include "prefs/Preferences.h"
#include "reports/Report.h"

#include <QObject>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>

namespace tabo {

class AccountBook;
class AccountingExport;
class BackupCommands;
class DesignLibrary;
class OutputCommands;
class DocumentCommands;
class EInvoiceCommands;
class PaymentCommands;
class RecurringCommands;
class FileCommands;
class Interaction;
class ItemCommands;
class NotificationCommands;
class ReportCommands;
class UndoHistory;
class TemplateCommands;
class Record;
class Store;

// The application controller: owns the store, the document list, the current
// document and the summary figures, and runs every command. It never touches
// a widget; whatever it needs from the person goes through Interaction.
class AppController : public QObject,
                      public StoreAccess,
                      public CurrentDocument,
                      public ListedDocuments,
                      public DocumentNumbers,
                      public WorkingFiles
{
    Q_OBJECT

public:
    AppController(Preferences &prefs, Interaction &ui, QObject *parent = nullptr);
    ~AppController() override;

    Preferences &prefs() const { return m_prefs; }
    Interaction &ui() const { return m_ui; }

    // ---- Store location and lifecycle ----
    // $XDG_DATA_HOME/Tabo, created when missing (failures are left to the
    // store opening, which reports them).
    static QString applicationFilesDirectory();
    // The store file that is (or would be) opened: the custom folder while
    // `useCustomPath` is on, else the default folder; "Tabo.mbdb" in it.
    QString storeFilePath() const override;
    QString storeURL() const { return m_storeURL; }

    // The open store, through which every command reads and changes records.
    // Opened on first use (the window asks for it as it fills its lists), so
    // that the first-start assistant and the upgrade prompt come first.
    // nullptr when there is none; the reason has been presented once.
    Store *store() override;
    bool hasStore() const override { return m_store != nullptr; }
    bool isTerminating() const { return m_terminating; }

    // Saves what changed; a failure is presented and returned. When another
    // program changed the same records meanwhile the person chooses between
    // their edit and the stored one.
    Error save() override;
    // Takes in what other programs committed to the store since we last
    // looked (the window calls it on activation and when idle).
    void syncWithStore() override;
    void saveAction();

    // Start-up, in this order. The first runs once the main window exists:
    // it makes the data folder and settles the working PDF and backup paths,
    // which the window's first actions rely on. The second marks the session
    // as running (a crash leaves it so) and applies the one-time settings
    // updates of earlier versions.
    void prepare();
    // The one-time upgrade steps of the settings; run before any command
    // reads or writes a setting, so a value set afterwards is never undone.
    void runOneTimeUpgrades();
    void start();

    enum class QuitReply { Now, Cancel };
    QuitReply askToQuit();
    void quit();

    // Moves the store to the folder now named by the preferences, which the
    // caller sets without syncing them: they are written once the copy is in
    // place. The caller relaunches when this returns true.
    bool customPathChanged();
    // Runs before a store move so that the person has a copy (the complete
    // backup with its save panel); a cancelled backup does not stop the move.
    void setBackupBeforeMove(std::function<void()> backup) { m_backupBeforeMove = std::move(backup); }

    // The Data pane's switch for `useCustomPath`. On: the "Hint!" alert,
    // then the folder panel; a chosen folder becomes `customDatabasePath`,
    // a cancel turns the switch off. Either way the store follows
    // (`customPathChanged`). A move that fails leaves both keys as they were,
    // so the next start finds the store where it still is. True when the
    // store was moved.
    bool chooseCustomDatabasePath(bool use);
    // The move itself: the store goes to `folder` (custom) or to the data
    // folder, and the keys name it only once it is there.
    bool moveStore(bool useCustom, const QString &folder);

    // "Install language defaults…": after a confirmation that they replace
    // the current texts. False when declined or nothing was installed.
    bool installLanguageDefaults(qint64 languageDefaults);

    void restartApp();
    // The first page of the first-start assistant: installs the language
    // defaults chosen by `languageDefaults`. False when nothing was installed.
    bool firstAssiTabAction(qint64 languageDefaults);
    // Whether documents in that language should be calculated to the cent:
    // the default the assistant and install-language offer.
    static bool recommendsCentExactTotals(qint64 languageDefaults);
    static QString centExactTotalsReason();
    // The footers of every kind of document, composed anew from the
    // seller's details (after the language defaults or the assistant).
    void composeFooters();
    // The same as a command: asks first, since it replaces edited footers.
    bool recomposeFooters();
    bool needsFirstStartAssistant() const;

    QString backupPath() const { return m_backupPath; }
    // The working PDF of every rendering and the e-mail attachment, in the
    // application's data folder (settled at start-up, or on first use).
    QString pdfPath() const override;
    QString pdfEmailPath() const override;
    void createBackupPath();
    QString automaticBackupFile() override;
    // A file handed over by the desktop or `tabo FILE`, told by its type:
    // a document is imported and a design added after the usual question,
    // a backup restored after its warning, an e-invoice shown
    // (receivedEInvoiceReady). Other files are refused with a hint to the
    // File menu. True when the file was taken in.
    enum class OutsideFile { Document, Design, DatabaseBackup, InvoiceBackup, ItemBackup, InvoiceDump, EInvoice,
                             Unknown };
    static OutsideFile kindOfFile(const QString &path);
    bool openFileFromOutside(const QString &path);

    // ---- Document list, filter and summary ----
    DocumentList &documentList() override { return m_list; }
    const Summary &summary() const { return m_list.summary(); }
    unsigned filterTag() const { return m_list.filterTag(); }
    void setFilterTag(unsigned tag) override;
    // The search field over the list, combined with the filter; the
    // summary follows what is shown.
    void setSearchText(const QString &text);
    void applyFilter();
    // The filter button: with a filter on it clears it and returns false;
    // otherwise returns true (the caller opens the popover).
    bool openFilterPopover();
    void selectFilterAction(unsigned tag);
    // The list down to the invoice with that unique ID ("LIKE": "*" and "?"
    // are wildcards), its first row selected; a deleted one leaves it empty.
    void filterForInvoice(const QString &uniqueID) override;
    // True when the filter button shows "torchGlow".
    bool filterGlows() const { return m_list.filterTag() != 0; }

    void calculateDatabase() override;
    void calculateInvoice(Record *invoice) override;

    // ---- Documents ----
    Record *currentInvoice() const override { return m_current; }
    void setCurrentInvoice(Record *invoice) override;
    Record *addInvoice();
    Record *addQuote();

    QString nextNumber(Kind kind) const override;
    QString clientNumberString();
    QString getPatternDateStringFromDate(Date date) const;

    // Finds a document by uniqueID or number (first match, newest first).
    // At start and when a schedule is added: writes the repeated invoices
    // whose day has come, then asks before e-mailing those whose schedule
    // says so.
    void runRecurring();
    Record *findDocument(const QString &idOrNumber);
    // Every document with that uniqueID or, when none has it, that number.
    QList<Record *> findDocuments(const QString &idOrNumber);

    // ---- Commands on the current document ----
    DocumentCommands &documents() { return *m_documents; }
    ItemCommands &items() { return *m_items; }
    UndoHistory &undo() { return *m_undo; }
    ReportCommands &reports() { return *m_reports; }
    NotificationCommands &notifications() { return *m_notifications; }
    EInvoiceCommands &einvoices() { return *m_einvoices; }
    PaymentCommands &payments() { return *m_payments; }
    RecurringCommands &recurring() { return *m_recurring; }
    TemplateCommands &templates() { return *m_templates; }
    FileCommands &files() { return *m_files; }
    BackupCommands &backups() { return *m_backups; }
    AccountingExport &accounting() { return *m_accounting; }
    DesignLibrary &designs() { return *m_designs; }
    OutputCommands &outputs() { return *m_outputs; }
    // The book of what the list shows; made when asked, as it keeps nothing.
    AccountBook accountBook();

    // Closes the store (saving first) and opens the file at storeURL again;
    // used by the restores. False (with the error presented) when it cannot
    // be opened.
    bool reopenStore() override;
    // Closes the store without reopening (the file can then be replaced).
    Error closeStore() override;

    // The change observer: after any edit of a document, recalculate it, run
    // the summary pass, keep the list in date order, save, and tell the views.
    void documentChanged(Record *document) override;
    // The editor's way to change a document: one attribute, then the change
    // observer; nothing happens when the value is already there.
    // False when the person kept the old value (a due date before the
    // invoice's own date is asked about).
    // `startedFrom`: the value the person saw when they began the edit; when
    // the stored value has changed since (another program, a restore), they
    // are asked which to keep.
    bool setDocumentValue(Record *document, int attr, const QVariant &value,
                          const QVariant &startedFrom = {}) override;
    // The document's number depends on the other documents: it is computed
    // again inside the save that writes it when another program added
    // documents meanwhile.
    void numberInSave(Record *document, Kind kind) override;
    void numberPendingNow() override { renumberPending(); }
    // For programs whose every change is a command given on purpose (the
    // command line): a save that clashes with another program's is retried
    // with both changes instead of asking "Changed Elsewhere".
    void setMergeConflicts(bool merge) { m_mergeConflicts = merge; }
    // The numbering counters (`invCount`, `quotCount`) live in the store and
    // the settings mirror them. Sets one as the person chose it, or raises it
    // by one (after a deletion), in a write of the store.
    Error setNumberCounter(Preferences::Key counter, qint64 value);
    Error raiseNumberCounter(Preferences::Key counter) override;

    // A document was removed from the store: drop it from the list and the
    // current selection.
    void documentRemoved(Record *document) override;
    void reloadList() override;
    void documentsAdded() override;
    // Adds a created document to the list, resets the filter tag and selects
    // it (the creating commands' common ending).
    void documentCreated(Record *document) override;

Q_SIGNALS:
    void storeOpened();
    // The readable page (a PDF) of a received e-invoice opened from outside.
    void receivedEInvoiceReady(const QString &pdf);
    void listChanged();
    void summaryChanged();
    void filterImageChanged(bool glowing);
    void currentInvoiceChanged(tabo::Record *invoice);
    // The application should quit (the upgrade was declined).
    void terminateRequested();

private:
    void showAnew();
    bool confirmDueDate(const Record &document, const QVariant &due);
    Record *newDocument(bool invoice);
    void installPendingTabo2Template();
    void openStore();
    void storeChangedElsewhere();
    bool offerAutomaticBackup(const Error &empty);
    void renumberPending();
    // Store → settings; a counter the store does not hold yet is taken from
    // the settings (`seed`, with the write lock held). True when a counter
    // moved since the settings last saw it.
    bool mirrorCounters(bool seed);
    bool resolveConflicts();

    struct PendingNumber
    {
        Record *document;
        Kind kind;
    };
    QList<PendingNumber> m_pendingNumbers;
    bool m_changedDuringSave = false;
    bool m_mergeConflicts = false;

    Preferences &m_prefs;
    Interaction &m_ui;
    std::unique_ptr<Store> m_store;
    bool m_storeTried = false;
    bool m_terminating = false;
    QString m_storeURL;
    DocumentList m_list;
    Record *m_current = nullptr;
    std::unique_ptr<UndoHistory> m_undo;
    QSet<QString> m_dueDateAsked; // unique IDs
    std::function<void()> m_backupBeforeMove;
    // In the order they are made: each takes the ones before it.
    std::unique_ptr<ItemCommands> m_items;
    std::unique_ptr<TemplateCommands> m_templates;
    std::unique_ptr<FileCommands> m_files;
    std::unique_ptr<BackupCommands> m_backups;
    std::unique_ptr<AccountingExport> m_accounting;
    std::unique_ptr<DesignLibrary> m_designs;
    std::unique_ptr<OutputCommands> m_outputs;
    std::unique_ptr<DocumentCommands> m_documents;
    std::unique_ptr<ReportCommands> m_reports;
    std::unique_ptr<NotificationCommands> m_notifications;
    std::unique_ptr<EInvoiceCommands> m_einvoices;
    std::unique_ptr<PaymentCommands> m_payments;
    std::unique_ptr<RecurringCommands> m_recurring;
    bool m_tabo2TemplatePending = false;
    QString m_backupPath;
    QString m_pdfPath;
    QString m_pdfEmailPath;
};

} // namespace tabo
