#include "CommandSupport.h"

#include "app/AppController.h"
#include "app/BackupCommands.h"
#include "app/DesignLibrary.h"
#include "app/FileCommands.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "store/Store.h"
#include "store/StoreFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QtTest>

#include <sqlite3.h>

#include <sys/wait.h>
#include <unistd.h>

using namespace tabo;
using P = Preferences;

namespace {

struct Fixture : test::ControllerFixture
{
};

} // namespace

class TestAppController : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startUpOnFreshInstallation();
    void upgradePrompt();
    void storeLocationFailures();
    void quitDecisions();
    void movesStoreToCustomFolder();
    void newDocumentsAndFilterTag();
    void opensFilesFromOutside();
};

void TestAppController::startUpOnFreshInstallation()
{
    Fixture f;
    // The window's list asks for the store while it is built, before prepare.
    QVERIFY(f.app.store());
    f.app.prepare();
    f.app.start();
    QVERIFY(f.ui.alerts.isEmpty());
    QVERIFY(f.ui.errors.isEmpty());
    QVERIFY(f.prefs.boolean(P::is2_0MigrationDone));
    QVERIFY(f.prefs.boolean(P::firstCenter));
    QVERIFY(!f.prefs.boolean(P::isTerminatedFine));
    QCOMPARE(f.prefs.integer(P::itemSortOrder), 1);
    QVERIFY(f.prefs.boolean(P::beforeTaxesBool));
    QCOMPARE(f.app.storeURL(), f.home.dataDir() + QStringLiteral("/Tabo.mbdb"));
    QCOMPARE(f.app.backupPath(), f.home.path() + QStringLiteral("/Documents/Tabo_Backup.mbdb"));

    // One-time steps stay done: a changed sort order survives the next launch.
    f.prefs.setInteger(P::itemSortOrder, 3);
    f.app.start();
    QCOMPARE(f.prefs.integer(P::itemSortOrder), 3);
    QVERIFY(f.app.needsFirstStartAssistant());
    QVERIFY(f.app.firstAssiTabAction(1));
    QVERIFY(!f.app.needsFirstStartAssistant());
    QVERIFY(!f.app.firstAssiTabAction(7));

    // Footers are composed from the details there are, never with blanks.
    QCOMPARE(f.prefs.string(P::tempInvFooter), QString());
    f.prefs.setString(P::prefsName, QStringLiteral("Muster GmbH"));
    f.prefs.setString(P::prefsCity, QStringLiteral("Berlin"));
    f.prefs.setString(P::prefsVATID, QStringLiteral("DE123456789"));
    f.prefs.setString(P::prefsIBAN, QStringLiteral("DE02 1203 0000 0000 2020 51"));
    f.ui.answers = {1};
    QVERIFY(!f.app.recomposeFooters());
    QCOMPARE(f.prefs.string(P::tempQuotFooter), QString());
    f.ui.answers = {0};
    QVERIFY(f.app.recomposeFooters());
    const QString footer = QStringLiteral("Muster GmbH · Berlin\nUSt-IdNr.: DE123456789\nIBAN: DE02 1203 0000 0000 2020 51");
    QCOMPARE(f.prefs.string(P::tempQuotFooter), footer);
    QCOMPARE(f.prefs.string(P::tempSlipFooter), footer);
    QVERIFY(f.app.firstAssiTabAction(3)); // Spanish: the same details in its words
    QCOMPARE(f.prefs.string(P::tempInvFooter),
             QStringLiteral("Muster GmbH · Berlin\nNIF-IVA: DE123456789\nIBAN: DE02 1203 0000 0000 2020 51"));
}

void TestAppController::upgradePrompt()
{
    for (int answer : {0, 1}) {
        Fixture f;
        f.prefs.setBool(P::firstCenter, true);
        f.ui.answers = {answer};
        QSignalSpy terminate(&f.app, &AppController::terminateRequested);
        Store *store = f.app.store();
        QCOMPARE(f.ui.alerts.size(), 1);
        QCOMPARE(f.ui.alerts[0].title, QStringLiteral("Warning!"));
        QCOMPARE(f.ui.alerts[0].buttons.value(1), QStringLiteral("Update Database And Use Tabo 2"));
        if (answer == 0) {
            // Declining opens and migrates nothing, shows no error, and quits.
            QVERIFY(!store);
            QVERIFY(f.ui.errors.isEmpty());
            QVERIFY(!QFileInfo::exists(f.home.dataDir() + QStringLiteral("/Tabo.mbdb")));
            QVERIFY(terminate.wait(1000));
            QVERIFY(!f.prefs.boolean(P::is2_0MigrationDone));
        } else {
            QVERIFY(store);
            QVERIFY(f.prefs.boolean(P::is2_0MigrationDone));
            QTRY_COMPARE_WITH_TIMEOUT(f.ui.alerts.size(), 2, 5000);
            QCOMPARE(f.ui.alerts[1].title, QStringLiteral("Database Updated"));
        }
    }
}

void TestAppController::storeLocationFailures()
{
    {
        Fixture f;
        f.prefs.setBool(P::useCustomPath, true);
        f.prefs.setString(P::customDatabasePath, f.home.path() + QStringLiteral("/gone"));
        QVERIFY(!f.app.store());
        QCOMPARE(f.ui.errors.size(), 2);
        QCOMPARE(f.ui.errors.last().code, 9999);
        QCOMPARE(f.ui.errors.last().text, QStringLiteral("Failed to initialize the store"));
        QVERIFY(QFileInfo(f.home.dataDir()).isDir());
        // Presented once; the application runs on without a store.
        QVERIFY(!f.app.store());
        QCOMPARE(f.ui.errors.size(), 2);
        QVERIFY(!f.app.addInvoice());
        QCOMPARE(f.app.askToQuit(), AppController::QuitReply::Now);
    }
    {
        Fixture f;
        QDir().mkpath(f.home.path() + QStringLiteral("/.local/share"));
        QFile file(f.home.dataDir());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        QVERIFY(!f.app.store());
        QCOMPARE(f.ui.errors.first().code, 101);
        QCOMPARE(f.ui.errors.first().source, Error::Tabo);
        QCOMPARE(f.ui.errors.first().text,
                 QStringLiteral("Expected a folder to store application data, found a file (%1).").arg(f.home.dataDir()));
    }
}

void TestAppController::quitDecisions()
{
    Fixture f;
    QVERIFY(f.app.addInvoice());
    QVERIFY(f.app.addQuote());
    QCOMPARE(f.app.askToQuit(), AppController::QuitReply::Now);
    QVERIFY(f.prefs.boolean(P::isTerminatedFine));
    QCOMPARE(f.prefs.integer(P::fetchedObjectsCount), 2);

    // Another program locks the documents against writes: the save fails.
    sqlite3 *db = nullptr;
    QCOMPARE(sqlite3_open(f.app.storeURL().toUtf8().constData(), &db), SQLITE_OK);
    QCOMPARE(sqlite3_exec(db, "CREATE TRIGGER no BEFORE UPDATE ON \"Invoice\" BEGIN SELECT RAISE(ABORT, 'locked'); END",
                          nullptr, nullptr, nullptr),
             SQLITE_OK);
    sqlite3_close(db);
    f.app.documentList().all().first()->setText(Invoice::title, QStringLiteral("changed"));

    f.ui.answers = {1};
    QCOMPARE(f.app.askToQuit(), AppController::QuitReply::Cancel);
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Could not save changes while quitting. Quit anyway?"));
    QCOMPARE(f.ui.alerts.last().buttons, QStringList({QStringLiteral("Quit anyway"), QStringLiteral("Cancel")}));
    QVERIFY(!f.prefs.boolean(P::isTerminatedFine));
    f.ui.answers = {0};
    QCOMPARE(f.app.askToQuit(), AppController::QuitReply::Now);
    QVERIFY(f.prefs.boolean(P::isTerminatedFine));
}

void TestAppController::movesStoreToCustomFolder()
{
    Fixture f;
    QVERIFY(f.app.addInvoice());
    const QString oldPath = f.app.storeURL();
    const QString folder = f.home.path() + QStringLiteral("/Dropbox");
    QDir().mkpath(folder);
    for (const char *name : {"/Tabo.mbdb", "/Tabo.mbdb-wal", "/Tabo.mbdb-shm"}) {
        QFile stale(folder + QLatin1String(name));
        QVERIFY(stale.open(QIODevice::WriteOnly));
        stale.write("stale");
    }
    bool backedUp = false;
    f.app.setBackupBeforeMove([&] { backedUp = true; });
    f.prefs.setBool(P::useCustomPath, true);
    f.prefs.setString(P::customDatabasePath, folder);
    QVERIFY(f.app.customPathChanged());
    QVERIFY(backedUp);
    QCOMPARE(f.app.storeURL(), folder + QStringLiteral("/Tabo.mbdb"));
    QCOMPARE(f.app.documentList().all().size(), 1);
    QVERIFY(f.ui.errors.isEmpty());
    QVERIFY(QFileInfo::exists(oldPath));

    // Moving to where the store already is must not delete it.
    QVERIFY(!f.app.customPathChanged());
    QCOMPARE(f.app.documentList().all().size(), 1);

    // A mover that died after its preferences named an empty folder: the
    // next start finishes the copy rather than opening a new, empty store.
    const QString second = f.home.path() + QStringLiteral("/Second");
    QDir().mkpath(second);
    const pid_t mover = ::fork();
    if (mover == 0) {
        StoreFile::beginMove(f.app.storeURL(), second + QStringLiteral("/Tabo.mbdb"));
        ::_exit(0);
    }
    ::waitpid(mover, nullptr, 0);
    f.prefs.setString(P::customDatabasePath, second);
    {
        test::FakeInteraction ui;
        AppController next(f.prefs, ui);
        QVERIFY(next.store());
        QCOMPARE(next.storeURL(), second + QStringLiteral("/Tabo.mbdb"));
        QCOMPARE(next.documentList().all().size(), 1);
    }
    // Finished once: a store deliberately removed later is not copied again.
    QFile::remove(second + QStringLiteral("/Tabo.mbdb"));
    test::FakeInteraction ui;
    AppController later(f.prefs, ui);
    QVERIFY(later.store());
    QCOMPARE(later.documentList().all().size(), 0);
}

void TestAppController::newDocumentsAndFilterTag()
{
    FixedClock clock(test::utc(2026, 3, 5, 9));
    Clock::setInstance(&clock);
    Fixture f;
    f.prefs.setString(P::invPattern, QStringLiteral("RE-%YEAR%-%COUNT%"));
    f.prefs.setInteger(P::invCount, 100);
    f.prefs.setBool(P::invHaveNumber, true);
    f.prefs.setBool(P::invHaveDueDate, true);
    f.prefs.setInteger(P::invDefaultDueDate, 14);
    f.prefs.setString(P::locInvoice, QStringLiteral("Rechnung"));
    f.prefs.setString(P::prefsCurrency, QStringLiteral("€"));
    f.prefs.setReal(P::tax1Rate, 0.19);

    Record *first = f.app.addInvoice();
    QVERIFY(first);
    QCOMPARE(first->text(Invoice::number), QStringLiteral("RE-2026-101"));
    QCOMPARE(first->text(Invoice::title), QStringLiteral("Rechnung"));
    QVERIFY(!first->text(Invoice::conditions).isNull()); // missing preference → ""
    QCOMPARE(first->text(Invoice::currency), QStringLiteral("€"));
    QCOMPARE(first->num(Invoice::tax1Percent), double(0.19f));
    QCOMPARE(first->date(Invoice::due), clock.now().addDays(14));
    QCOMPARE(first->integer(Invoice::kind), 1);
    QCOMPARE(f.app.currentInvoice(), first);
    QCOMPARE(f.app.addInvoice()->text(Invoice::number), QStringLiteral("RE-2026-102"));
    Record *quote = f.app.addQuote();
    QCOMPARE(quote->integer(Invoice::kind), 0);
    QCOMPARE(quote->date(Invoice::due), clock.now()); // no validity set

    // A new document while "paid" is shown resets the tag, not the predicate.
    f.app.selectFilterAction(3);
    QVERIFY(f.app.filterGlows());
    QSignalSpy image(&f.app, &AppController::filterImageChanged);
    Record *hidden = f.app.addInvoice();
    QCOMPARE(f.app.filterTag(), 0u);
    QCOMPARE(image.last().at(0).toBool(), false);
    QVERIFY(!f.app.documentList().shown().contains(hidden));
    // The button then shows no filter, so a click opens the popover.
    QVERIFY(f.app.openFilterPopover());
    f.app.selectFilterAction(0);
    QCOMPARE(f.app.documentList().shown().size(), 4);
    QCOMPARE(f.app.summary().invoiceCountForNumber, 3u);
    QCOMPARE(f.app.summary().quoteCount, 1u);
    Clock::setInstance(nullptr);
}

void TestAppController::opensFilesFromOutside()
{
    Fixture f;
    const auto file = [&f](const char *name) -> QString { return f.home.path() + QLatin1Char('/') + QLatin1String(name); };
    Record *invoice = f.app.addInvoice();
    QVERIFY(invoice);
    QVERIFY(!f.app.files().writeInvoiceFile(*invoice, 0, file("doc.tabo")));
    QVERIFY(!f.app.backups().writeInvoiceBackup(file("docs.taboinvoices")));
    QVERIFY(!f.app.files().writeInvoiceDump(file("all.invdump")));
    Record *design = f.app.designs().addDesign();
    QVERIFY(design);
    QVERIFY(!f.app.designs().exportDesignFile(design, file("look.design")));
    const qsizetype designs = f.app.designs().designs().size();
    const auto documents = [&f] { return f.app.documentList().all().size(); };

    // A document asks first; declined, nothing is imported, and no panel opens.
    f.ui.answers = {1};
    QVERIFY(!f.app.openFileFromOutside(file("doc.tabo")));
    QCOMPARE(documents(), 1);
    QVERIFY(f.ui.fileRequests.isEmpty());
    QVERIFY(f.app.openFileFromOutside(file("doc.tabo")));
    QCOMPARE(documents(), 2);
    QCOMPARE(f.ui.alerts.last().buttons.first(), QStringLiteral("Import…"));

    QVERIFY(f.app.openFileFromOutside(file("look.design")));
    QCOMPARE(f.app.designs().designs().size(), designs + 1);

    // A backup warns and restores: the one document it holds comes back.
    QVERIFY(f.app.openFileFromOutside(file("docs.taboinvoices")));
    QVERIFY(f.ui.alerts.last().text.startsWith(QStringLiteral("You are about to restore your Tabo invoices")));
    QCOMPARE(documents(), 1);
    QVERIFY(f.ui.fileRequests.isEmpty());

    // Known names with the wrong content, a dump and a stranger: a message, nothing taken in.
    QFile bad(file("fake.tabo"));
    QVERIFY(bad.open(QIODevice::WriteOnly) && bad.write("plain text, not an archive") > 0);
    bad.close();
    QVERIFY(!f.app.openFileFromOutside(file("fake.tabo")));
    QVERIFY(f.ui.lastAlertText().contains(QStringLiteral("fake.tabo")));
    QVERIFY(!f.app.openFileFromOutside(file("all.invdump")));
    QVERIFY(f.ui.lastAlertText().endsWith(QStringLiteral("It is an invoice dump, which no restore reads.")));
    QVERIFY(!f.app.openFileFromOutside(f.home.path() + QStringLiteral("/notes.txt")));
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Tabo, Tabo Documents, and the Tabo Database"));
    QCOMPARE(documents(), 1);
    QCOMPARE(f.app.designs().designs().size(), designs + 1);
    QVERIFY(f.ui.fileRequests.isEmpty());

    QCOMPARE(AppController::kindOfFile(file("backup.tabo2db")), AppController::OutsideFile::DatabaseBackup);
    QCOMPARE(AppController::kindOfFile(file("x.taboitems")), AppController::OutsideFile::ItemBackup);
    QCOMPARE(AppController::kindOfFile(file("received.XML")), AppController::OutsideFile::EInvoice);
}

QTEST_GUILESS_MAIN(TestAppController)
#include "TestAppController.moc"
