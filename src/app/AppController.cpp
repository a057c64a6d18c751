#include "app/AppController.h"

#include "app/AccountBook.h"
#include "app/AccountingExport.h"
#include "app/BackupCommands.h"
#include "app/DesignLibrary.h"
#include "app/DocumentCommands.h"
#include "app/EInvoiceCommands.h"
#include "app/FileCommands.h"
#include "app/Interaction.h"
#include "app/ItemCommands.h"
#include "app/NotificationCommands.h"
#include "app/OutputCommands.h"
#include "app/PaymentCommands.h"
#include "app/RecurringCommands.h"
#include "app/ReportCommands.h"
#include "app/TemplateCommands.h"
#include "app/UndoHistory.h"
#include "base/Clock.h"
#include "domain/CompanyFooter.h"
#include "domain/Numbering.h"
#include "domain/Record.h"
#include "domain/UniqueId.h"
#include "editing/SyntaxDefinition.h"
#include "prefs/Locations.h"
#include "prefs/Preferences.h"
#include "prefs/ProtectedFiles.h"
#include "store/NumberCounters.h"
#include "store/Store.h"
#include "store/StoreFile.h"

#include <QDebug>
#include <QDir>
#include <QHash>
#include <QMimeDatabase>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QTimer>

#include <QCoreApplication>
#include <sqlite3.h>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(AppController)
};
} // namespace

namespace tabo {

namespace {
using P = Preferences;
const QString kStoreFileName = QStringLiteral("Tabo.mbdb");
} // namespace

AppController::AppController(Preferences &prefs, Interaction &ui, QObject *parent)
    : QObject(parent)
    , m_prefs(prefs)
    , m_ui(ui)
    , m_undo(std::make_unique<UndoHistory>(*this, *this))
    , m_items(std::make_unique<ItemCommands>(*this, *this, *m_undo, prefs, ui))
    , m_templates(std::make_unique<TemplateCommands>(*this, *this, *m_undo, prefs, ui))
    , m_files(std::make_unique<FileCommands>(*this, *this, m_list, prefs, ui))
    , m_backups(std::make_unique<BackupCommands>(*this, *this, *this, *this, prefs, ui))
    , m_accounting(std::make_unique<AccountingExport>(*this, m_list, prefs, ui))
    , m_designs(std::make_unique<DesignLibrary>(*this, prefs, ui))
    , m_outputs(std::make_unique<OutputCommands>(*this, *m_designs, *m_files, *m_undo, *this, prefs, ui))
    , m_documents(
          std::make_unique<DocumentCommands>(*this, *this, *this, *this, *m_undo, m_outputs->formatters(), prefs, ui))
    , m_reports(std::make_unique<ReportCommands>(*this, *m_outputs, prefs, ui))
    , m_notifications(std::make_unique<NotificationCommands>(*this, *this, *this, prefs, ui))
    , m_einvoices(std::make_unique<EInvoiceCommands>(*this, *m_documents, *m_outputs, prefs, ui))
    , m_payments(std::make_unique<PaymentCommands>(*this, *this, *m_undo, ui))
    , m_recurring(std::make_unique<RecurringCommands>(*this, *this, *this, m_prefs))
{
    m_outputs->setEInvoices(*m_einvoices);
    setBackupBeforeMove([this] { m_backups->backupCompleteTaboData(); });
    SyntaxDefinition::registerColorDefaults(m_prefs);
    // Known before it is opened (the default one always is), and without
    // creating its folder.
    if (m_prefs.boolean(P::useCustomPath))
        ProtectedFiles::addStore(storeFilePath());
}

AccountBook AppController::accountBook()
{
    return AccountBook(*this, *m_outputs, m_prefs, m_ui);
}

AppController::~AppController()
{
    // A short-lived process (the command line) must not lose the design
    // whose flag is already set.
    installPendingTabo2Template();
}

void AppController::installPendingTabo2Template()
{
    if (!m_tabo2TemplatePending || !m_store)
        return;
    m_tabo2TemplatePending = false;
    m_designs->loadTabo2Template();
}

QString AppController::applicationFilesDirectory()
{
    return Locations::dataFolder(); // a failure shows when the store is opened
}

QString AppController::storeFilePath() const
{
    if (m_prefs.boolean(P::useCustomPath))
        return m_prefs.string(P::customDatabasePath) + QLatin1Char('/') + kStoreFileName;
    return applicationFilesDirectory() + QLatin1Char('/') + kStoreFileName;
}

Store *AppController::store()
{
    if (m_store || m_storeTried)
        return m_store.get();
    m_storeTried = true;
    openStore();
    if (!m_store && !m_terminating)
        m_ui.presentError(Error { Error::Tabo, 9999, Tr::tr("Failed to initialize the store"),
            Tr::tr("There was an error building up the data file.") });
    return m_store.get();
}

void AppController::openStore()
{
    // A store of the previous major version is only upgraded with consent.
    if (!m_prefs.boolean(P::firstCenter)) {
        m_prefs.setBool(P::is2_0MigrationDone, true);
    } else if (!m_prefs.boolean(P::is2_0MigrationDone)) {
        const int answer = m_ui.alert(Tr::tr("Warning!"),
            Tr::tr("Tabo 2 comes with new features that require the database to be updated.\n"
                   "Once updated you will not be able to open and edit it with an older version of Tabo.\n\n"
                   "In case you don't want to upgrade to Tabo 2 - which is a paid upgrade - you need to quit "
                   "Tabo 2 right now and just continue working with Tabo 1.\n\n"
                   "Do you want to update the database and use Tabo 2?"),
            { Tr::tr("Don't Update Database and Quit Tabo 2"), Tr::tr("Update Database And Use Tabo 2") });
        if (answer != 1) {
            qInfo() << "terminate!";
            m_terminating = true;
            QTimer::singleShot(100, this, [this] { Q_EMIT terminateRequested(); });
            return;
        }
        m_prefs.setBool(P::is2_0MigrationDone, true);
        QTimer::singleShot(3000, this, &AppController::restartApp);
    }

    const QString folder = applicationFilesDirectory();
    const QFileInfo folderInfo(folder);
    if (!folderInfo.exists()) {
        m_ui.presentError(Error { Error::Tabo, 260, Tr::tr("The folder “%1” could not be created.").arg(folder), {} });
        return;
    }
    if (!folderInfo.isDir()) {
        m_ui.presentError(Error { Error::Tabo, 101,
            Tr::tr("Expected a folder to store application data, found a file (%1).").arg(folder), {} });
        return;
    }

    if (m_storeURL.isEmpty()) { // once per start; a restore or move running here handles its own files
        StoreFile::recoverInterruptedRestore(storeFilePath());
        StoreFile::finishInterruptedMove(storeFilePath());
    }
    m_storeURL = storeFilePath();
    auto store = std::make_unique<Store>(m_storeURL);
    if (const Error e = store->open()) {
        if (e.source == Error::Store && e.code == Store::kEmptyFile && offerAutomaticBackup(e))
            return;
        m_ui.presentError(e);
        return;
    }
    m_store = std::move(store);
    m_store->setExternalChangeHandler([this] { storeChangedElsewhere(); });
    mirrorCounters(false);
    if (!m_prefs.boolean(P::isTabo2TemplateLoadingDone)) {
        m_prefs.setBool(P::isTabo2TemplateLoadingDone, true);
        m_tabo2TemplatePending = true;
        QTimer::singleShot(1300, this, [this] { installPendingTabo2Template(); });
    }
    m_list.reload(m_store.get());
    m_list.calculateDatabase(now());
    Q_EMIT storeOpened();
    Q_EMIT listChanged();
    Q_EMIT summaryChanged();
}

bool AppController::offerAutomaticBackup(const Error &empty)
{
    // An empty store is what a full disk or a failed copy leaves, not a new
    // installation: the documents can come back from the automatic backup.
    if (!QFileInfo(automaticBackupFile()).isFile())
        return false;
    const int answer = m_ui.alert(Tr::tr("Error!"),
        empty.message()
            + Tr::tr("\n\nThe empty file can be kept as “%1” and a new database started with the "
                     "documents of the automatic backup “%2”.")
                  .arg(QFileInfo(m_storeURL).fileName() + QStringLiteral(".empty"), m_backupPath),
        { Tr::tr("Restore Automatic Backup"), Tr::tr("Cancel") });
    if (answer != 0)
        return true;
    const QString kept = m_storeURL + QStringLiteral(".empty");
    QFile::remove(kept);
    if (!QFile::rename(m_storeURL, kept)) {
        m_ui.presentError(Error { Error::Tabo, 6, Tr::tr("“%1” could not be renamed.").arg(m_storeURL), {} });
        return true;
    }
    m_storeURL.clear();
    openStore();
    if (m_store)
        m_backups->restoreFromBackup();
    return true;
}

Error AppController::save()
{
    if (!m_store)
        return {};
    m_changedDuringSave = false;
    Error e = m_store->save([this] { renumberPending(); });
    // A command of its own (the command line) made its change on purpose: a
    // clash with another program's save is settled by taking in what that
    // one wrote, recalculating the documents both touched, and saving again.
    for (int attempt = 0; m_mergeConflicts && attempt < 5 && e.source == Error::Store && e.code == Store::kConflict;
         ++attempt) {
        QSet<Record *> documents;
        for (Record *r : m_store->conflicts())
            if (Record *doc = r->entityId() == EntityId::Item ? r->toOne(Item::invoice) : r;
                doc && doc->entityId() == EntityId::Invoice && !doc->isDeleted())
                documents.insert(doc);
        m_store->keepMineOnConflicts();
        for (Record *doc : std::as_const(documents))
            calculateInvoice(doc);
        e = m_store->save([this] { renumberPending(); });
    }
    if (e.source == Error::Store && e.code == Store::kConflict) {
        if (!resolveConflicts())
            return e;
        e = m_store->save([this] { renumberPending(); });
    }
    if (e)
        m_ui.presentError(e);
    else
        m_pendingNumbers.clear();
    return e;
}

bool AppController::resolveConflicts()
{
    QStringList names;
    for (const Record *r : m_store->conflicts()) {
        const Record *doc = r->entityId() == EntityId::Item ? r->toOne(Item::invoice) : r;
        QString name = doc && doc->entityId() == EntityId::Invoice
                           ? (doc->text(Invoice::number).isEmpty() ? doc->text(Invoice::title) : doc->text(Invoice::number))
                           : r->desc().name;
        if (!names.contains(name))
            names << name;
    }
    const int answer = m_ui.alert(Tr::tr("Changed Elsewhere"),
        Tr::tr("“%1” was changed by another program (another Tabo window or tabo-cli) after it was read "
               "here. Keep your changes and overwrite the other ones, or reload the stored version and "
               "lose your changes?")
            .arg(names.join(QStringLiteral("”, “"))),
        { Tr::tr("Keep My Changes"), Tr::tr("Reload") });
    if (answer == 0) {
        m_store->keepMineOnConflicts();
        return true;
    }
    m_store->revertConflicts();
    return false;
}

void AppController::syncWithStore()
{
    if (m_store)
        m_store->refreshIfChanged();
}

void AppController::storeChangedElsewhere()
{
    m_changedDuringSave = true;
    m_list.reload(m_store.get());
    if (m_current && (m_current->isDeleted() || !m_list.all().contains(m_current)))
        m_current = nullptr;
    m_list.calculateDatabase(now());
    Q_EMIT listChanged();
    Q_EMIT summaryChanged();
    Q_EMIT currentInvoiceChanged(m_current);
}

void AppController::numberInSave(Record *document, Kind kind)
{
    m_pendingNumbers.append({document, kind});
}

namespace {
const P::Key kCounters[] = {P::invCount, P::quotCount};
// A number is skipped when another document holds it; so many in a row
// would mean a pattern that repeats.
constexpr int kMaxSkips = 100000;
} // namespace

bool AppController::mirrorCounters(bool seed)
{
    bool moved = false;
    for (const P::Key key : kCounters) {
        const QString name = Preferences::info(key).name;
        const std::optional<qint64> stored = NumberCounters::read(m_store->handle(), name);
        if (!stored) {
            if (seed)
                NumberCounters::write(m_store->handle(), name, m_prefs.integer(key));
        } else if (*stored != m_prefs.integer(key)) {
            m_prefs.setString(key, QString::number(*stored));
            moved = true;
        }
    }
    return moved;
}

void AppController::renumberPending()
{
    // Runs with the write lock held: the counters and the numbers other
    // documents hold cannot change before these numbers are written.
    // Other saves leave the counters alone: every edit saves.
    if (m_pendingNumbers.isEmpty())
        return;
    const bool countersMoved = mirrorCounters(true);
    const bool recount = m_changedDuringSave || countersMoved;
    // Asked of the store (indexed, and current under the lock), and of the
    // documents this save is about to insert.
    const auto held = [this](const Record *self, const QString &number) {
        if (number.isEmpty())
            return false;
        for (const PendingNumber &p : std::as_const(m_pendingNumbers))
            if (p.document != self && !p.document->isDeleted() && p.document->text(Invoice::number) == number)
                return true;
        return NumberCounters::numberHeld(m_store->handle(), number, self->text(Invoice::uniqueID));
    };
    bool renumbered = false;
    for (const PendingNumber &p : std::as_const(m_pendingNumbers)) {
        if (p.document->isDeleted() || (!recount && !held(p.document, p.document->text(Invoice::number))))
            continue;
        const P::Key counter = p.kind == Kind::Quote ? P::quotCount : P::invCount;
        const qint64 counted = m_prefs.integer(counter);
        const bool countsItself = p.kind == Kind::ConvertedInvoice;
        if (!countsItself)
            m_list.remove(p.document);
        m_list.calculateDatabase(now());
        QString number = nextNumber(p.kind);
        for (int skipped = 0; held(p.document, number) && skipped < kMaxSkips; ++skipped) {
            m_prefs.setString(counter, QString::number(m_prefs.integer(counter) + 1));
            const QString next = nextNumber(p.kind);
            if (next == number) // the pattern has no count: nothing to skip to
                break;
            number = next;
        }
        if (m_prefs.integer(counter) != counted)
            NumberCounters::write(m_store->handle(), Preferences::info(counter).name, m_prefs.integer(counter));
        p.document->setText(Invoice::number, number);
        if (!countsItself)
            m_list.add(p.document);
        renumbered = true;
    }
    if (renumbered)
        m_list.calculateDatabase(now());
}

Error AppController::setNumberCounter(P::Key counter, qint64 value)
{
    if (Store *store = this->store())
        if (Error e = store->write([&](sqlite3 *db) { return NumberCounters::write(db, Preferences::info(counter).name, value); }))
            return e;
    m_prefs.setString(counter, QString::number(value));
    return {};
}

Error AppController::raiseNumberCounter(P::Key counter)
{
    qint64 value = m_prefs.integer(counter) + 1;
    if (Store *store = this->store()) {
        const Error e = store->write([&](sqlite3 *db) {
            value = NumberCounters::read(db, Preferences::info(counter).name).value_or(m_prefs.integer(counter)) + 1;
            return NumberCounters::write(db, Preferences::info(counter).name, value);
        });
        if (e)
            return e;
    }
    m_prefs.setString(counter, QString::number(value));
    return {};
}

void AppController::saveAction()
{
    save();
}

void AppController::prepare()
{
    if (!m_prefs.boolean(P::firstCenter)) {
        m_prefs.setBool(P::isFirstInvoiceEverCreated, true);
        m_prefs.setBool(P::firstCenter, true);
    }
    applicationFilesDirectory();
    createBackupPath();
    m_pdfPath = applicationFilesDirectory() + QStringLiteral("/Invoice.pdf");
    m_pdfEmailPath = applicationFilesDirectory() + QStringLiteral("/PDFInvoice.pdf");
}

QString AppController::pdfPath() const
{
    return m_pdfPath.isEmpty() ? applicationFilesDirectory() + QStringLiteral("/Invoice.pdf") : m_pdfPath;
}

QString AppController::pdfEmailPath() const
{
    return m_pdfEmailPath.isEmpty() ? applicationFilesDirectory() + QStringLiteral("/PDFInvoice.pdf")
                                    : m_pdfEmailPath;
}

QString AppController::automaticBackupFile()
{
    if (m_backupPath.isEmpty())
        createBackupPath();
    return m_backupPath;
}

void AppController::createBackupPath()
{
    m_backupPath = Locations::automaticBackupFile();
}

void AppController::start()
{
    m_prefs.setBool(P::isTerminatedFine, false);
    runOneTimeUpgrades();
    m_prefs.sync();
}

void AppController::runOneTimeUpgrades()
{
    m_prefs.migrate();
    if (!m_prefs.boolean(P::update_1_3)) {
        m_prefs.setInteger(P::itemSortOrder, 1);
        m_prefs.setBool(P::update_1_3, true);
    }
    if (!m_prefs.boolean(P::update_2_1)) {
        m_prefs.setBool(P::beforeTaxesBool, true);
        m_prefs.setBool(P::update_2_1, true);
    }
    // Labels and settings this version added, in the language installed.
    m_prefs.completeFromLanguageDefaults();
}

bool AppController::needsFirstStartAssistant() const
{
    return !m_prefs.boolean(P::firstStartEverDone);
}

bool AppController::firstAssiTabAction(qint64 languageDefaults)
{
    if (!m_prefs.boolean(P::isFirstStoreLoadEverDone) && store()) {
        m_designs->loadTemplates();
        m_prefs.setBool(P::isFirstStoreLoadEverDone, true);
    }
    m_prefs.setInteger(P::languageDefaults, languageDefaults);
    const bool installed = m_prefs.installLanguageDefaults();
    if (installed) {
        m_prefs.setBool(P::centExactTotals, recommendsCentExactTotals(languageDefaults));
        composeFooters();
        // The defaults' counters are the person's choice too: the store,
        // which numbers from them, takes them over.
        if (m_store)
            for (const P::Key key : kCounters)
                if (const Error e = setNumberCounter(key, m_prefs.integer(key)))
                    m_ui.presentError(e);
    }
    m_prefs.setBool(P::firstStartEverDone, true);
    m_prefs.sync();
    return installed;
}

bool AppController::recommendsCentExactTotals(qint64 languageDefaults)
{
    // German, French and Spanish invoices are checked against EN 16931.
    return languageDefaults >= 1 && languageDefaults <= 3;
}

QString AppController::centExactTotalsReason()
{
    return Tr::tr("Each line is rounded to the cent and the VAT of each rate is taken on the amount after "
                  "the discount, which is what tax offices and e-invoices (EN 16931) expect.");
}

void AppController::composeFooters()
{
    const QString footer = CompanyFooter::compose(m_prefs);
    for (const P::Key key : {P::tempInvFooter, P::tempQuotFooter, P::tempRemFooter, P::tempSlipFooter})
        m_prefs.setString(key, footer);
}

bool AppController::recomposeFooters()
{
    const int answer = m_ui.alert(Tr::tr("Compose Footers?"),
        Tr::tr("The footers of invoices, quotes, reminders and delivery slips are replaced by one made from "
               "your company's address, tax and bank details:\n\n%1")
            .arg(CompanyFooter::compose(m_prefs)),
        { Tr::tr("Compose"), Tr::tr("Cancel") });
    if (answer != 0)
        return false;
    composeFooters();
    m_prefs.sync();
    return true;
}

AppController::QuitReply AppController::askToQuit()
{
    if (!m_store) {
        m_prefs.setBool(P::isTerminatedFine, true);
        m_prefs.sync();
        return QuitReply::Now;
    }
    m_prefs.setInteger(P::fetchedObjectsCount, m_store->count(EntityId::Invoice));
    QuitReply reply = QuitReply::Now;
    if (!m_store->hasChanges()) {
        m_prefs.setBool(P::isTerminatedFine, true);
    } else if (const Error e = m_store->save()) {
        m_ui.presentError(e);
        const int answer = m_ui.alert(Tr::tr("Could not save changes while quitting. Quit anyway?"),
            Tr::tr("Quitting now will lose any changes you have made since the last successful save"),
            { Tr::tr("Quit anyway"), Tr::tr("Cancel") });
        const bool quit = answer == 0;
        m_prefs.setBool(P::isTerminatedFine, quit);
        reply = quit ? QuitReply::Now : QuitReply::Cancel;
    } else {
        m_prefs.setBool(P::isTerminatedFine, true);
    }
    m_prefs.sync();
    return reply;
}

void AppController::quit()
{
    m_prefs.sync();
}

bool AppController::customPathChanged()
{
    qInfo() << "customPathChanged";
    // Without an open store there is nothing to move; opening one now would
    // make a new, empty store in the new folder.
    if (!m_store)
        return false;
    const QString target = storeFilePath();
    if (Locations::sameFile(target, m_storeURL))
        return false; // the store is already there: deleting "the target" would delete it
    // Noted before the backup panel gives the event loop a chance to write the
    // preferences that name the target.
    StoreFile::beginMove(m_storeURL, target);
    const auto fail = [this](const Error &e) {
        StoreFile::endMove();
        m_ui.presentError(e);
        return false;
    };
    if (m_backupBeforeMove)
        m_backupBeforeMove();
    if (const Error e = m_store->save())
        return fail(e);
    const QString folder = QFileInfo(target).absolutePath();
    if (!QFileInfo(folder).isDir())
        return fail(Error { Error::Tabo, 4, Tr::tr("The folder “%1” does not exist.").arg(folder), {} });
    // The target holds the old file or the complete copy at every moment,
    // never a half-written one.
    if (const Error e = StoreFile::writeCopy(*m_store, target))
        return fail(
            Error { Error::Tabo, 5, Tr::tr("The database could not be moved to “%1”.").arg(folder), e.message() });
    QFile::setPermissions(target, QFileInfo(m_storeURL).permissions());
    m_prefs.sync();
    StoreFile::endMove();
    m_current = nullptr;
    m_list.clear();
    m_store.reset();
    m_storeTried = false;
    Q_EMIT currentInvoiceChanged(nullptr);
    Q_EMIT listChanged();
    Q_EMIT summaryChanged();
    return store() != nullptr;
}

bool AppController::chooseCustomDatabasePath(bool use)
{
    QString folder;
    if (use) {
        m_ui.alert(Tr::tr("Hint!"),
            Tr::tr("For your own safety Tabo will create a backup of your current data before moving "
                   "your database to the changed location. You may want to save it temporarily on "
                   "your desktop.\n\nAfterwards Tabo will automatically restart."),
            { Tr::tr("OK") });
        Interaction::FileRequest request;
        request.title = Tr::tr("Choose Custom Database Path");
        request.chooseFolders = true;
        request.canCreateFolders = true;
        folder = m_ui.openFile(request);
    }
    return moveStore(!folder.isEmpty(), folder);
}

bool AppController::moveStore(bool useCustom, const QString &folder)
{
    const bool wasCustom = m_prefs.boolean(P::useCustomPath);
    const QString oldPath = m_prefs.string(P::customDatabasePath);
    // Not synced here: the move writes the preferences once the copy is in
    // place, so a kill in between never names a folder without the store.
    m_prefs.setBool(P::useCustomPath, useCustom);
    if (!folder.isEmpty())
        m_prefs.setString(P::customDatabasePath, folder);
    ProtectedFiles::addStore(storeFilePath());
    const bool moved = customPathChanged();
    if (m_store && !Locations::sameFile(storeFilePath(), m_storeURL)) {
        m_prefs.setBool(P::useCustomPath, wasCustom);
        m_prefs.setString(P::customDatabasePath, oldPath);
    }
    return moved;
}

bool AppController::installLanguageDefaults(qint64 languageDefaults)
{
    static const char *const names[] = {"English", "German", "French", "Spanish"};
    if (Preferences::languageDefaultsResource(languageDefaults).isEmpty())
        return false;
    const int answer = m_ui.alert(Tr::tr("Install %1 Defaults?").arg(QLatin1String(names[languageDefaults])),
        Tr::tr("The labels, text blocks, numbering patterns and counters, taxes and paper size are replaced by the %1 "
               "defaults. Your company details, documents and designs stay as they are.")
            .arg(QLatin1String(names[languageDefaults])),
        { Tr::tr("Install"), Tr::tr("Cancel") });
    return answer == 0 && firstAssiTabAction(languageDefaults);
}

Error AppController::closeStore()
{
    installPendingTabo2Template();
    Error e;
    if (m_store)
        e = m_store->save();
    m_undo->clear();
    m_current = nullptr;
    m_list.clear();
    m_store.reset();
    Q_EMIT currentInvoiceChanged(nullptr);
    Q_EMIT listChanged();
    Q_EMIT summaryChanged();
    return e;
}

bool AppController::reopenStore()
{
    closeStore();
    m_storeTried = false;
    return store() != nullptr;
}

void AppController::restartApp()
{
    m_ui.alert(Tr::tr("Database Updated"),
        Tr::tr("The database was successfully updated. In case your old invoices don't show up "
               "just restart Tabo 2 and everything will be fine."),
        { Tr::tr("OK") });
}

AppController::OutsideFile AppController::kindOfFile(const QString &path)
{
    // The installed file types know the content too; without them (a build
    // tree, another desktop) the name decides.
    static const QHash<QString, OutsideFile> byType {
        {QStringLiteral("application/x-tabo-document"), OutsideFile::Document},
        {QStringLiteral("application/x-tabo-design"), OutsideFile::Design},
        {QStringLiteral("application/x-tabo-database-backup"), OutsideFile::DatabaseBackup},
        {QStringLiteral("application/x-tabo-invoice-backup"), OutsideFile::InvoiceBackup},
        {QStringLiteral("application/x-tabo-item-backup"), OutsideFile::ItemBackup},
        {QStringLiteral("application/x-tabo-invoice-dump"), OutsideFile::InvoiceDump},
        {QStringLiteral("application/x-cii-invoice+xml"), OutsideFile::EInvoice},
        {QStringLiteral("application/x-ubl-invoice+xml"), OutsideFile::EInvoice},
    };
    static const QHash<QString, OutsideFile> bySuffix {
        {QStringLiteral("tabo"), OutsideFile::Document},
        {QStringLiteral("design"), OutsideFile::Design},
        {QStringLiteral("tabo2db"), OutsideFile::DatabaseBackup},
        {QStringLiteral("taboinvoices"), OutsideFile::InvoiceBackup},
        {QStringLiteral("taboitems"), OutsideFile::ItemBackup},
        {QStringLiteral("invdump"), OutsideFile::InvoiceDump},
        {QStringLiteral("xml"), OutsideFile::EInvoice},
        {QStringLiteral("pdf"), OutsideFile::EInvoice},
    };
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path);
    if (const auto known = byType.constFind(type.name()); known != byType.cend())
        return *known;
    return bySuffix.value(QFileInfo(path).suffix().toLower(), OutsideFile::Unknown);
}

bool AppController::openFileFromOutside(const QString &path)
{
    switch (kindOfFile(path)) {
    case OutsideFile::Document:
        return m_files->importInvoice(path) != nullptr;
    case OutsideFile::Design:
        return m_designs->importDesign(path) != nullptr;
    case OutsideFile::DatabaseBackup:
        return m_backups->restoreCompleteTaboData(path);
    case OutsideFile::InvoiceBackup:
        return m_backups->restoreTaboData(path);
    case OutsideFile::ItemBackup:
        return m_backups->restoreItems(path);
    case OutsideFile::InvoiceDump:
        m_ui.alert(Tr::tr("Error!"),
            Tr::tr("Nothing was imported from “%1”.").arg(QFileInfo(path).fileName()) + QLatin1Char(' ')
                + Tr::tr("It is an invoice dump, which no restore reads."),
            { Tr::tr("OK") });
        return false;
    case OutsideFile::EInvoice: {
        const QString pdf = m_einvoices->viewReceived(path);
        if (!pdf.isEmpty())
            Q_EMIT receivedEInvoiceReady(pdf);
        return !pdf.isEmpty();
    }
    case OutsideFile::Unknown:
        break;
    }
    m_ui.alert(Tr::tr("Tabo, Tabo Documents, and the Tabo Database"),
        Tr::tr("In order to avoid duplicate entries, hiccups, and to keep the database intact - "
               "please use the 'File Menu' to open documents and to restore the Tabo database."),
        { Tr::tr("OK") });
    return false;
}

void AppController::setFilterTag(unsigned tag)
{
    m_list.setFilterTag(tag);
    Q_EMIT filterImageChanged(filterGlows());
}

void AppController::applyFilter()
{
    m_list.applyFilter(now());
    showAnew();
}

void AppController::setSearchText(const QString &text)
{
    DocumentList::Search search;
    search.text = text;
    double amount = 0;
    if (ItemCommands::parseNumber(text, &amount, QLocale(m_prefs.documentRegion())))
        search.amount = amount;
    m_list.setSearch(search);
    showAnew();
}

void AppController::showAnew()
{
    // The editor shows the list's selection: what the list hides, it drops.
    if (m_current && !m_list.shows(m_current))
        setCurrentInvoice(nullptr);
    Q_EMIT listChanged();
    calculateDatabase();
}

bool AppController::openFilterPopover()
{
    if (m_list.filterTag() != 0) {
        setFilterTag(0);
        applyFilter();
        return false;
    }
    return true;
}

void AppController::selectFilterAction(unsigned tag)
{
    setFilterTag(tag);
    applyFilter();
}

void AppController::filterForInvoice(const QString &uniqueID)
{
    if (!store())
        return;
    m_list.setPredicate(ListFilter::uniqueIdLike(uniqueID));
    m_list.rearrange();
    const QList<Record *> &shown = m_list.shown();
    setCurrentInvoice(shown.isEmpty() ? nullptr : shown.first());
    showAnew();
    setFilterTag(DocumentList::kInvoiceFilterTag);
}

void AppController::calculateDatabase()
{
    m_list.calculateDatabase(now());
    Q_EMIT summaryChanged();
}

void AppController::calculateInvoice(Record *invoice)
{
    if (!invoice)
        return;
    Calculator::calculateInvoice(*invoice, TaxSettings::from(m_prefs));
    calculateDatabase();
}

void AppController::setCurrentInvoice(Record *invoice)
{
    if (m_current == invoice)
        return;
    m_current = invoice;
    Q_EMIT currentInvoiceChanged(invoice);
}

Record *AppController::addInvoice()
{
    return newDocument(true);
}

Record *AppController::addQuote()
{
    return newDocument(false);
}

Record *AppController::newDocument(bool invoice)
{
    Store *store = this->store();
    if (!store)
        return nullptr;
    m_prefs.setBool(P::isFirstInvoiceEverCreated, true);
    setFilterTag(0); // before numbering: the creating commands never re-apply the predicate

    syncWithStore();
    Record *doc = store->insert(EntityId::Invoice);
    doc->setText(Invoice::uniqueID, newUniqueId());
    const bool numbered = m_prefs.boolean(invoice ? P::invHaveNumber : P::quotHaveNumber);
    const Kind kind = invoice ? Kind::Invoice : Kind::Quote;
    doc->setText(Invoice::number, numbered ? nextNumber(kind) : QString(""));
    if (numbered)
        numberInSave(doc, kind);

    const auto pref = [this](P::Key key) { return m_prefs.contains(key) ? m_prefs.string(key) : QStringLiteral(""); };
    doc->setText(Invoice::address, QStringLiteral(""));
    doc->setText(Invoice::title, pref(invoice ? P::locInvoice : P::locQuote));
    doc->setText(Invoice::subject, QStringLiteral(""));
    doc->setText(Invoice::conditions, pref(invoice ? P::tempInvConditions : P::tempQuotConditions));
    doc->setText(Invoice::footer, pref(invoice ? P::tempInvFooter : P::tempQuotFooter));
    doc->setText(Invoice::misc1, pref(invoice ? P::tempInvMisc : P::tempQuotMisc));
    for (int a : {Invoice::notes, Invoice::dispatchNumber, Invoice::clientNumber, Invoice::shippingTitle,
                  Invoice::shippingSubtitle, Invoice::discountTitle, Invoice::discountSubtitle, Invoice::invoiceMisc2,
                  Invoice::customerTitle, Invoice::customerName, Invoice::customerVATID, Invoice::miscString1,
                  Invoice::miscString2, Invoice::miscString3})
        doc->setText(a, QStringLiteral(""));
    doc->setText(Invoice::currency, m_prefs.string(P::prefsCurrency));

    const Date created = now();
    Date due = created;
    if (invoice && m_prefs.boolean(P::invHaveDueDate))
        due = futureDateFromTodayWithDays(m_prefs.integer(P::invDefaultDueDate));
    else if (!invoice && m_prefs.boolean(P::quotHaveValidity))
        due = futureDateFromTodayWithDays(m_prefs.integer(P::quotDefaultValidity));
    doc->setDate(Invoice::due, due);
    for (int a : {Invoice::date, Invoice::paid, Invoice::sent, Invoice::dispatched, Invoice::misc5})
        doc->setDate(a, created);

    doc->setInt(Invoice::kind, invoice ? 1 : 0);
    for (int a : {Invoice::status, Invoice::discountKind, Invoice::tax1Kind, Invoice::tax2Kind, Invoice::tax3Kind,
                  Invoice::misc2})
        doc->setInt(a, 0);
    doc->setBool(Invoice::isDispatched, false);
    doc->setBool(Invoice::misc4, false);
    doc->setSingle(Invoice::misc3, 0.0f);
    for (int a : {Invoice::amount, Invoice::subAmount, Invoice::paidAmount, Invoice::dueAmount,
                  Invoice::shippingAmount, Invoice::discountAmount, Invoice::tax1Amount, Invoice::tax2Amount,
                  Invoice::tax3Amount})
        doc->setNum(a, 0.0);
    // The rates are read in single precision, as the tax fields have always been.
    doc->setSingle(Invoice::tax1Percent, m_prefs.single(P::tax1Rate));
    doc->setSingle(Invoice::tax2Percent, m_prefs.single(P::tax2Rate));
    doc->setSingle(Invoice::tax3Percent, m_prefs.single(P::tax3Rate));
    // Fixed here, so that switching the setting never changes the figures
    // of a document that exists.
    doc->setBool(Invoice::centExactTotals, m_prefs.boolean(P::centExactTotals));

    documentCreated(doc);
    return doc;
}

void AppController::documentCreated(Record *document)
{
    setFilterTag(0);
    m_list.add(document);
    Q_EMIT listChanged();
    calculateDatabase();
    setCurrentInvoice(document);
    save();
}

void AppController::documentChanged(Record *document)
{
    if (!document)
        return;
    if (document->entityId() == EntityId::Invoice)
        Calculator::calculateInvoice(*document, TaxSettings::from(m_prefs));
    m_list.rearrange();
    Q_EMIT listChanged();
    calculateDatabase();
    save();
}

bool AppController::setDocumentValue(Record *document, int attr, const QVariant &value, const QVariant &startedFrom)
{
    if (!document)
        return true;
    // Take in what others saved, so the question below sees it.
    syncWithStore();
    const QVariant stored = document->value(attr);
    if (stored == value)
        return true;
    if (startedFrom.isValid() && stored != startedFrom) {
        const auto shown = [](const QVariant &v) {
            const QString text = v.canConvert<Date>() && v.value<Date>().isValid() ? v.value<Date>().toIso8601() : v.toString();
            return text.isEmpty() ? QStringLiteral("(empty)") : text.left(300);
        };
        const int answer = m_ui.ask(Tr::tr("Changed Elsewhere"),
            Tr::tr("“%1” of “%2” was changed by another program (another Tabo window or tabo-cli) while you "
                   "were editing it.\n\nStored now: %3\nYours: %4\n\nKeep your changes and overwrite the other "
                   "ones, or reload the stored version and lose your changes?")
                .arg(document->desc().attributes[attr].name,
                    document->text(Invoice::number).isEmpty() ? document->text(Invoice::title)
                                                              : document->text(Invoice::number),
                    shown(stored), shown(value)),
            { Tr::tr("Keep My Changes"), Tr::tr("Reload") }, 1);
        if (answer != 0)
            return false;
    }
    if (attr == Invoice::due && !confirmDueDate(*document, value))
        return false;
    const UndoHistory::Step step(*m_undo, document, attr == Invoice::status ? Tr::tr("Status") : Tr::tr("Typing"));
    document->setValue(attr, value);
    documentChanged(document);
    return true;
}

bool AppController::confirmDueDate(const Record &document, const QVariant &due)
{
    // Asked once per document: a second answer would only repeat the first.
    if (document.integer(Invoice::kind) != 1 || !due.canConvert<Date>() || document.isNull(Invoice::date)
        || m_dueDateAsked.contains(document.text(Invoice::uniqueID)))
        return true;
    const QDate dueDay = due.value<Date>().toDateTime().toLocalTime().date();
    const QDate day = document.date(Invoice::date).toDateTime().toLocalTime().date();
    if (!dueDay.isValid() || dueDay >= day)
        return true;
    m_dueDateAsked.insert(document.text(Invoice::uniqueID));
    const int answer = m_ui.ask(Tr::tr("Due Date Before Invoice Date"),
        Tr::tr("The invoice would be due on %1, before its own date, %2: it would be overdue the moment it "
               "is sent. Keep this due date?")
            .arg(QLocale().toString(dueDay, QLocale::ShortFormat), QLocale().toString(day, QLocale::ShortFormat)),
        { Tr::tr("Keep Due Date"), Tr::tr("Cancel") }, 1);
    return answer == 0;
}

void AppController::documentRemoved(Record *document)
{
    m_list.remove(document);
    if (m_current == document)
        setCurrentInvoice(nullptr);
    Q_EMIT listChanged();
    calculateDatabase();
}

void AppController::documentsAdded()
{
    m_list.rearrange();
    calculateDatabase();
    Q_EMIT listChanged();
}

void AppController::reloadList()
{
    m_list.reload(m_store.get());
    if (m_current && !m_list.all().contains(m_current))
        setCurrentInvoice(nullptr);
    calculateDatabase();
    Q_EMIT listChanged();
}

QString AppController::nextNumber(Kind kind) const
{
    switch (kind) {
    case Kind::Invoice:
        return Numbering::invoiceNumberString(m_prefs, m_list.summary(), now());
    case Kind::Quote:
        return Numbering::quoteNumberString(m_prefs, m_list.summary(), now());
    case Kind::ConvertedInvoice:
        break;
    }
    return Numbering::convertedInvoiceNumberString(m_prefs, m_list.summary(), now());
}

QString AppController::clientNumberString()
{
    Store *store = this->store();
    return Numbering::clientNumberString(m_prefs, store ? store->count(EntityId::Address) : 0, now());
}

QString AppController::getPatternDateStringFromDate(Date date) const
{
    return Numbering::getPatternDateStringFromDate(m_prefs, date);
}

void AppController::runRecurring()
{
    if (!store())
        return;
    const Result<RecurringCommands::Run> run = m_recurring->run(now().toDateTime().toLocalTime().date());
    if (!run) {
        m_ui.presentError(run.error());
        return;
    }
    if (!run.value().problems.isEmpty())
        m_ui.alert(Tr::tr("Repeated Invoices"), run.value().problems.join(QLatin1Char('\n')), { Tr::tr("OK") });
    QList<Record *> toSend;
    QStringList names;
    for (const RecurringCommands::Made &m : run.value().made) {
        if (m.send && m.invoice) {
            toSend << m.invoice;
            names << m_documents->describe(*m.invoice);
        }
    }
    if (toSend.isEmpty())
        return;
    const int answer = m_ui.ask(Tr::tr("Send Repeated Invoices"),
        Tr::tr("These repeated invoices were written and are to be e-mailed:\n\n%1\n\nOpen a message for each now?")
            .arg(names.join(QLatin1Char('\n'))),
        { Tr::tr("Send"), Tr::tr("Not Now") }, 1);
    if (answer != 0)
        return;
    for (Record *invoice : std::as_const(toSend)) {
        setCurrentInvoice(invoice);
        m_outputs->exportAndWait(OutputCommands::Email);
    }
}

Record *AppController::findDocument(const QString &idOrNumber)
{
    const QList<Record *> found = findDocuments(idOrNumber);
    return found.isEmpty() ? nullptr : found.first();
}

QList<Record *> AppController::findDocuments(const QString &idOrNumber)
{
    QList<Record *> found;
    if (!store() || idOrNumber.isEmpty())
        return found;
    for (Record *r : m_list.all())
        if (r->text(Invoice::uniqueID) == idOrNumber)
            found << r;
    if (!found.isEmpty())
        return found;
    for (Record *r : m_list.all())
        if (r->text(Invoice::number) == idOrNumber)
            found << r;
    return found;
}

} // namespace tabo
