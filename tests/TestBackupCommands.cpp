#include "CommandSupport.h"

#include "app/AppController.h"
#include "app/BackupCommands.h"
#include "app/FileCommands.h"
#include "domain/ListFilter.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "store/PropertyList.h"
#include "store/Store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>
#include <QtTest>

#include <sqlite3.h>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using namespace tabo;
using P = Preferences;

namespace {

void addInvoices(AppController &app, const QString &prefix, int count, Date first = test::utc(2024, 1, 1))
{
    Store *store = app.store();
    for (int i = 0; i < count; ++i) {
        Record *doc = store->insert(EntityId::Invoice);
        doc->setText(Invoice::number, prefix + QString::number(i));
        doc->setInt(Invoice::kind, 1);
        doc->setDate(Invoice::date, first.addDays(i));
        doc->setText(Invoice::notes, QString(120, QLatin1Char('n')));
        Record *line = store->insert(EntityId::Item);
        line->setText(Item::title, prefix + QStringLiteral(" line"));
        line->setToOne(Item::invoice, doc);
    }
    QVERIFY(!store->save());
    app.documentList().reload(store);
}

QStringList numbers(AppController &app)
{
    QStringList found;
    if (Store *store = app.store())
        for (const Record *r : store->all(EntityId::Invoice))
            found << r->text(Invoice::number);
    found.sort();
    return found;
}

QByteArray contents(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &data)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(data);
}

// Files beside the store other than the store and its log.
QStringList leftovers(const QString &folder)
{
    QStringList names = QDir(folder).entryList(QDir::Files | QDir::Hidden);
    names.removeIf([](const QString &n) { return n.startsWith(QLatin1String("Tabo.mbdb")) && n.size() <= 13; });
    return names;
}

struct Fixture : test::ControllerFixture
{
    BackupCommands &backups = app.backups();
};

} // namespace

class TestBackupCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void completeBackupAndRestore();
    void badCompleteBackupsChangeNothing();
    void invoiceAndItemRestores();
    void badInvoiceBackupsChangeNothing();
    void automaticBackup();
    void savePanelsRefuseOurFiles();
    void restoreFromDefaultFolder();
    void killedRestoreLeavesOldOrNewData();
};

void TestBackupCommands::completeBackupAndRestore()
{
    Fixture f;
    addInvoices(f.app, QStringLiteral("A"), 30);
    const QString folder = f.home.path() + QStringLiteral("/Backups");
    QDir().mkpath(folder);
    f.ui.files = {folder + QStringLiteral("/Tabo 2 Database.mbdb")};
    QVERIFY(f.backups.backupCompleteTaboData());
    const QString backup = folder + QStringLiteral("/Tabo 2 Database.tabo2db");
    QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("Tabo 2 Database.tabo2db")});
    QCOMPARE(f.app.storeURL(), f.home.dataDir() + QStringLiteral("/Tabo.mbdb"));

    const QStringList backedUp = numbers(f.app);
    const QByteArray backupBytes = contents(backup);
    QVERIFY(f.app.addInvoice());
    f.ui.answers = {1};
    QVERIFY(!f.backups.restoreCompleteTaboData());
    QCOMPARE(f.app.documentList().all().size(), 31);

    f.ui.files = {backup};
    QVERIFY(f.backups.restoreCompleteTaboData());
    QCOMPARE(numbers(f.app), backedUp);
    QCOMPARE(f.app.documentList().all().size(), 30);
    QCOMPARE(contents(backup), backupBytes);
    QCOMPARE(leftovers(f.home.dataDir()), QStringList());
    QVERIFY(f.app.addInvoice());
    QVERIFY(f.app.reopenStore());
    QCOMPARE(numbers(f.app).size(), 31);
}

void TestBackupCommands::badCompleteBackupsChangeNothing()
{
    Fixture f;
    addInvoices(f.app, QStringLiteral("A"), 60);
    const QString dir = f.home.path() + QLatin1Char('/');
    QVERIFY(!f.backups.writeCompleteBackup(dir + QStringLiteral("good.mbdb")));
    const QByteArray good = contents(dir + QStringLiteral("good.tabo2db"));
    QVERIFY(good.size() > 8192);
    write(dir + QStringLiteral("text.tabo2db"), "Dear customer, thank you for your order.\n");
    write(dir + QStringLiteral("empty.tabo2db"), {});
    write(dir + QStringLiteral("truncated.tabo2db"), good.left(good.size() - 4096)); // the last page lost
    // Damage that opening does not notice: the lines' table, read only later.
    QByteArray damaged = good;
    sqlite3 *db = nullptr;
    sqlite3_open((dir + QStringLiteral("good.tabo2db")).toUtf8().constData(), &db);
    sqlite3_stmt *st = nullptr;
    sqlite3_prepare_v2(db, "SELECT rootpage FROM sqlite_master WHERE name = 'Item'", -1, &st, nullptr);
    QCOMPARE(sqlite3_step(st), SQLITE_ROW);
    const int linesPage = sqlite3_column_int(st, 0);
    sqlite3_finalize(st);
    sqlite3_close(db);
    const int pageSize = (uchar(good[16]) << 8) | uchar(good[17]);
    damaged.replace((linesPage - 1) * pageSize, 64, QByteArray(64, '\xff'));
    write(dir + QStringLiteral("damaged.tabo2db"), damaged);
    sqlite3_open((dir + QStringLiteral("foreign.tabo2db")).toUtf8().constData(), &db);
    sqlite3_exec(db, "CREATE TABLE notes(x TEXT); INSERT INTO notes VALUES('hi');", nullptr, nullptr, nullptr);
    sqlite3_close(db);

    const QStringList before = numbers(f.app);
    const QString storePath = f.app.storeURL();
    const QByteArray storeBytes = contents(storePath);
    for (const char *name : {"text", "empty", "truncated", "damaged", "foreign"}) {
        const QString file = QString::fromLatin1(name) + QStringLiteral(".tabo2db");
        QVERIFY(f.backups.restoreCompleteBackup(dir + file));
        QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Error!"));
        QVERIFY2(f.ui.lastAlertText().startsWith(QStringLiteral("The file “%1” is not a Tabo database backup. ").arg(file)),
                 qPrintable(f.ui.lastAlertText()));
        QVERIFY(f.app.hasStore());
        QCOMPARE(numbers(f.app), before);
        QCOMPARE(contents(storePath), storeBytes);
        QCOMPARE(leftovers(f.home.dataDir()), QStringList());
    }
    QCOMPARE(f.ui.alerts.size(), 5);
    QVERIFY(f.app.addInvoice());
    QVERIFY(f.app.reopenStore());
    QCOMPARE(numbers(f.app).size(), 61);
}

void TestBackupCommands::invoiceAndItemRestores()
{
    Fixture f;
    addInvoices(f.app, QStringLiteral("X"), 3);
    const QString invoices = f.home.path() + QStringLiteral("/all.taboinvoices");
    QVERIFY(!f.backups.writeInvoiceBackup(invoices));
    addInvoices(f.app, QStringLiteral("Y"), 2, test::utc(2024, 6, 1));

    // Only what the filter shows goes; everything in the file comes in.
    f.app.documentList().setPredicate(ListFilter::dateRange(test::utc(2024, 5, 1), test::utc(2024, 12, 31)));
    QCOMPARE(f.app.documentList().shown().size(), 2);
    f.ui.files = {invoices};
    QVERIFY(f.backups.restoreTaboData());
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Warning!"));
    const QStringList expected{"X0", "X0", "X1", "X1", "X2", "X2"};
    QCOMPARE(numbers(f.app), expected);
    QVERIFY(f.app.reopenStore());
    QCOMPARE(numbers(f.app), expected);
    for (const Record *doc : f.app.store()->all(EntityId::Invoice)) {
        QCOMPARE(doc->toMany(Invoice::items).size(), 1);
        QVERIFY(doc->date(Invoice::date).isValid());
    }

    Store *store = f.app.store();
    for (const char *title : {"Design work", "Hosting"})
        store->insert(EntityId::RecentItem)->setText(RecentItem::title, QString::fromLatin1(title));
    const QString items = f.home.path() + QStringLiteral("/all.taboitems");
    QVERIFY(!f.backups.writeItemBackup(items));
    store->insert(EntityId::RecentItem)->setText(RecentItem::title, QStringLiteral("Travel"));
    QVERIFY(!f.backups.restoreItemBackup(items));
    QVERIFY(f.app.reopenStore());
    QStringList titles;
    for (const Record *r : f.app.store()->all(EntityId::RecentItem))
        titles << r->text(RecentItem::title);
    titles.sort();
    QCOMPARE(titles, (QStringList{"Design work", "Hosting"}));
}

void TestBackupCommands::badInvoiceBackupsChangeNothing()
{
    Fixture f;
    addInvoices(f.app, QStringLiteral("X"), 3);
    const QString dir = f.home.path() + QLatin1Char('/');
    QVERIFY(!plist::writeFile(dir + QStringLiteral("dict.taboinvoices"), QVariantMap{{"number", "X9"}}, plist::Format::Xml));
    QVERIFY(!plist::writeFile(dir + QStringLiteral("mixed.taboinvoices"),
                             QVariantList{QVariantMap{{"number", "X9"}}, QStringLiteral("oops")}, plist::Format::Xml));
    write(dir + QStringLiteral("text.taboinvoices"), "not a property list");
    const QStringList before = numbers(f.app);
    for (const char *name : {"dict", "mixed", "text", "missing"}) {
        const QString file = QString::fromLatin1(name) + QStringLiteral(".taboinvoices");
        QVERIFY(f.backups.restoreInvoiceBackup(dir + file));
        QVERIFY(f.ui.lastAlertText().startsWith(QStringLiteral("The file “%1” is not a Tabo invoice backup. ").arg(file)));
        QCOMPARE(numbers(f.app), before);
        QCOMPARE(f.app.documentList().shown().size(), 3);
    }
    QVERIFY(f.app.reopenStore());
    QCOMPARE(numbers(f.app), before);
}

void TestBackupCommands::automaticBackup()
{
    Fixture f;
    addInvoices(f.app, QStringLiteral("X"), 2);
    f.app.createBackupPath();
    const QString path = f.app.backupPath();

    QVERIFY(!f.backups.createBackup()); // the first run after the upgrade
    QVERIFY(f.prefs.boolean(P::isDatabase2Migrated));
    QVERIFY(!QFileInfo::exists(path));
    f.prefs.setInteger(P::fetchedObjectsCount, 5);
    f.prefs.setBool(P::justMigratedFrommFree, true);
    QVERIFY(!f.backups.createBackup());
    QVERIFY(!QFileInfo::exists(path));
    QVERIFY(!f.prefs.boolean(P::justMigratedFrommFree));
    f.prefs.setInteger(P::fetchedObjectsCount, 2);
    QVERIFY(f.backups.createBackup());
    QCOMPARE(plist::readFile(path).value().toList().size(), 2);

    addInvoices(f.app, QStringLiteral("Y"), 1);
    QVERIFY(f.backups.restoreFromBackup());
    QCOMPARE(numbers(f.app), (QStringList{"X0", "X1"}));
    QVERIFY(f.ui.alerts.isEmpty());

    QFile::remove(path);
    QVERIFY(!f.backups.restoreFromBackup());
    QCOMPARE(f.ui.lastAlertText(), QStringLiteral("No valid backup file available. Please restore your Tabo database "
                                                  "from your own (Time Machine) backups."));
    QCOMPARE(numbers(f.app), (QStringList{"X0", "X1"}));
}

void TestBackupCommands::savePanelsRefuseOurFiles()
{
    Fixture f;
    addInvoices(f.app, QStringLiteral("P"), 1);
    f.app.setCurrentInvoice(f.app.documentList().all().first());
    f.app.createBackupPath();
    QVERIFY(!f.backups.doTheNewBackup());
    const QString store = f.app.storeURL();
    const QString link = f.home.path() + QStringLiteral("/export.xml");
    QVERIFY(QFile::link(store, link));
    const QList<std::function<bool()>> commands = {
        [&] { return f.backups.backupTaboData(); }, [&] { return f.backups.backupItems(); },
        [&] { return f.backups.backupCompleteTaboData(); }, [&] { return f.app.files().exportInvoice(0); },
        [&] { return f.app.files().exportItems(); }, [&] { return f.app.files().exportTaboDataXML(); },
        [&] { return f.app.files().exportAsInvoiceFile(); }};
    const QByteArray backup = plist::write(plist::readFile(f.app.backupPath()).value(), plist::Format::Xml).value();
    for (const QString &target : QStringList{store, link, f.home.configFile(), f.app.backupPath()}) {
        for (const auto &command : commands) {
            f.ui.files = {target};
            const qsizetype errors = f.ui.errors.size();
            QVERIFY(!command());
            QCOMPARE(f.ui.errors.size(), errors + 1);
            QVERIFY2(f.ui.errors.last().text.contains(QStringLiteral("Tabo never writes")),
                     qPrintable(f.ui.errors.last().text));
        }
    }
    QVERIFY(QFileInfo(link).isSymLink());
    QCOMPARE(plist::write(plist::readFile(f.app.backupPath()).value(), plist::Format::Xml).value(), backup);
    QVERIFY(f.app.reopenStore());
    QCOMPARE(numbers(f.app), QStringList{QStringLiteral("P0")});
}

void TestBackupCommands::restoreFromDefaultFolder()
{
    Fixture f;
    addInvoices(f.app, QStringLiteral("D"), 3);
    const QString defaultStore = f.app.storeURL();
    QVERIFY(!f.backups.restoreAutomaticallyFromSandbox()); // the open store is the default one
    QVERIFY(f.ui.alerts.isEmpty() && f.ui.errors.isEmpty());

    const QString custom = f.home.path() + QStringLiteral("/Custom");
    QDir().mkpath(custom);
    f.prefs.setBool(P::useCustomPath, true);
    f.prefs.setString(P::customDatabasePath, custom);
    QVERIFY(f.app.reopenStore());
    addInvoices(f.app, QStringLiteral("C"), 2);
    QVERIFY(f.backups.restoreAutomaticallyFromSandbox());
    QCOMPARE(f.app.storeURL(), custom + QStringLiteral("/Tabo.mbdb"));
    QCOMPARE(numbers(f.app), (QStringList{"D0", "D1", "D2"}));
    QVERIFY(QFileInfo::exists(defaultStore));

    write(defaultStore, "garbage");
    QVERIFY(!f.backups.restoreAutomaticallyFromSandbox());
    QCOMPARE(f.ui.errors.size(), 1);
    QCOMPARE(f.ui.lastAlertText(), QStringLiteral("Could not restore Tabo database automatically. Please do this by "
                                                  "hand. In case of problems, simply contact the Pemra support."));
    QCOMPARE(numbers(f.app), (QStringList{"D0", "D1", "D2"}));
}

void TestBackupCommands::killedRestoreLeavesOldOrNewData()
{
    test::TempHome home;
    const QString backupA = home.path() + QStringLiteral("/A.tabo2db");
    const QString backupB = home.path() + QStringLiteral("/B.tabo2db");
    QStringList dataA, dataB;
    {
        test::FakeInteraction ui;
        Preferences prefs(home.configFile());
        AppController app(prefs, ui);
        addInvoices(app, QStringLiteral("A"), 400);
        dataA = numbers(app);
        QVERIFY(!app.backups().writeCompleteBackup(home.path() + QStringLiteral("/A.mbdb")));
        Store *store = app.store();
        for (Record *r : QList<Record *>(store->all(EntityId::Invoice)))
            store->remove(r);
        addInvoices(app, QStringLiteral("B"), 300);
        dataB = numbers(app);
        QVERIFY(!app.backups().writeCompleteBackup(home.path() + QStringLiteral("/B.mbdb")));
    }

    int sawA = 0, sawB = 0;
    for (int round = 0; round < 12; ++round) {
        const pid_t child = ::fork();
        QVERIFY(child >= 0);
        if (child == 0) {
            qputenv("TABO_TEST_RESTORE_PAUSE_MS", "15");
            test::FakeInteraction ui;
            Preferences prefs(home.configFile());
            AppController app(prefs, ui);
            for (int i = 0; i < 200; ++i)
                app.backups().restoreCompleteBackup(i % 2 ? backupB : backupA);
            ::_exit(0);
        }
        QThread::msleep(30 + round * 29);
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        QVERIFY(WIFSIGNALED(status));

        test::FakeInteraction ui;
        Preferences prefs(home.configFile());
        AppController app(prefs, ui);
        const QStringList found = numbers(app);
        sawA += found == dataA;
        sawB += found == dataB;
        QVERIFY2(found == dataA || found == dataB, qPrintable(QStringLiteral("round %1: %2 documents, first %3")
                                                                 .arg(round).arg(found.size()).arg(found.value(0))));
        QVERIFY(ui.errors.isEmpty());
        QCOMPARE(leftovers(home.dataDir()), QStringList());
    }
    QVERIFY(sawA > 0 && sawB > 0); // the kills landed in different restores
}

QTEST_GUILESS_MAIN(TestBackupCommands)
#include "TestBackupCommands.moc"
