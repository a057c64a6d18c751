// Several processes on one store: the window's controller here, tabo-cli as
// children, and files damaged on purpose.
#include "CommandSupport.h"

#include "app/BackupCommands.h"
#include "app/ItemCommands.h"
#include "domain/Record.h"
#include "store/Store.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QtTest>

#include <sqlite3.h>

using namespace tabo;

namespace {

QByteArray contents(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Runs tabo-cli on the test's home; returns its exit code, output in *out.
int cli(const QStringList &args, QString *out = nullptr)
{
    QProcess p;
    p.start(QStringLiteral(TABO_CLI), args);
    p.waitForFinished(60000);
    if (out)
        *out = QString::fromUtf8(p.readAllStandardOutput()).trimmed();
    return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
}

QString firstRow(const QString &path, const char *sql)
{
    sqlite3 *db = nullptr;
    sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt *st = nullptr;
    QString value;
    if (sqlite3_prepare_v2(db, sql, -1, &st, nullptr) == SQLITE_OK && sqlite3_step(st) == SQLITE_ROW)
        value = QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(st, 0)));
    sqlite3_finalize(st);
    sqlite3_close(db);
    return value;
}

struct Fixture : test::ControllerFixture
{
    Fixture()
    {
        prefs.setBool(Preferences::firstCenter, true);
        prefs.setBool(Preferences::is2_0MigrationDone, true);
        prefs.setBool(Preferences::invHaveNumber, true);
        prefs.setString(Preferences::invPattern, QStringLiteral("R-%COUNT%"));
        prefs.sync();
    }
    QString storePath() const { return home.dataDir() + QStringLiteral("/Tabo.mbdb"); }
};

} // namespace

class TestSharedStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void documentsCreatedAtOnceAreUnique();
    void otherProcessChangesAreSeenAndConflictsAsked();
    void restoreByAnotherProcessLandsHere();
    void commandsMergeWhatClashes();
    void linesAndOlderStoresFollow();
    void damagedAndEmptyFilesAreNeverWritten();
};

void TestSharedStore::documentsCreatedAtOnceAreUnique()
{
    Fixture f;
    QVERIFY(f.app.store());
    // Two command lines and this controller create documents at the same time.
    QList<QProcess *> children;
    for (int c = 0; c < 2; ++c) {
        auto *p = new QProcess(this);
        p->start(QStringLiteral("bash"), {QStringLiteral("-c"),
                                          QStringLiteral("for i in $(seq 12); do '%1' new invoice >/dev/null || exit 1; done")
                                              .arg(QStringLiteral(TABO_CLI))});
        children << p;
    }
    for (int i = 0; i < 12; ++i) {
        QVERIFY(f.app.addInvoice());
        QTest::qWait(15);
    }
    for (QProcess *p : children) {
        // A child may have ended while this process waited in its event loop;
        // waiting for it then reports false.
        QVERIFY(p->state() == QProcess::NotRunning || p->waitForFinished(60000));
        QCOMPARE(p->exitStatus(), QProcess::NormalExit);
        QCOMPARE(p->exitCode(), 0);
    }
    QVERIFY(f.ui.errors.isEmpty());
    f.app.syncWithStore();
    const QList<Record *> all = f.app.documentList().all();
    QCOMPARE(all.size(), 36);
    QSet<QString> numbers, ids;
    for (const Record *r : all) {
        numbers.insert(r->text(Invoice::number));
        ids.insert(r->text(Invoice::uniqueID));
    }
    QCOMPARE(numbers.size(), 36);
    QCOMPARE(ids.size(), 36);
    QVERIFY(numbers.contains(QStringLiteral("R-1")) && numbers.contains(QStringLiteral("R-36")));
    QCOMPARE(firstRow(f.storePath(), "SELECT count(DISTINCT id) FROM Invoice"), QStringLiteral("36"));
}

void TestSharedStore::otherProcessChangesAreSeenAndConflictsAsked()
{
    Fixture f;
    Record *doc = f.app.addInvoice();
    QVERIFY(doc);
    const QString id = doc->text(Invoice::uniqueID);
    QCOMPARE(f.app.summary().invoiceCountForNumber, 1.0);

    // Seen before the next save; a change of another column is no conflict.
    QCOMPARE(cli({QStringLiteral("set"), id, QStringLiteral("title"), QStringLiteral("From the terminal")}), 0);
    QCOMPARE(cli({QStringLiteral("new"), QStringLiteral("invoice")}), 0);
    doc->setText(Invoice::subject, QStringLiteral("From the window"));
    QVERIFY(!f.app.save());
    QCOMPARE(doc->text(Invoice::title), QStringLiteral("From the terminal"));
    QCOMPARE(f.app.documentList().all().size(), 2);
    QCOMPARE(f.app.summary().invoiceCountForNumber, 2.0);
    QVERIFY(f.ui.alerts.isEmpty());
    // The next number counts the document the terminal made.
    QCOMPARE(f.app.addInvoice()->text(Invoice::number), QStringLiteral("R-3"));

    // The same column changed on both sides: the person keeps theirs...
    doc->setText(Invoice::title, QStringLiteral("Mine"));
    QCOMPARE(cli({QStringLiteral("set"), id, QStringLiteral("title"), QStringLiteral("Theirs")}), 0);
    f.ui.answers = {0};
    QVERIFY(!f.app.save());
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Changed Elsewhere"));
    QVERIFY(f.ui.lastAlertText().contains(doc->text(Invoice::number)));
    QString shown;
    QCOMPARE(cli({QStringLiteral("show"), id, QStringLiteral("--json")}, &shown), 0);
    QVERIFY(shown.contains(QStringLiteral("\"Mine\"")));

    // ...or takes the stored one; nothing is written over it either way.
    doc->setText(Invoice::title, QStringLiteral("Mine again"));
    QCOMPARE(cli({QStringLiteral("set"), id, QStringLiteral("title"), QStringLiteral("Theirs again")}), 0);
    f.ui.answers = {1};
    QVERIFY(f.app.save());
    QCOMPARE(doc->text(Invoice::title), QStringLiteral("Theirs again"));
    QVERIFY(!f.app.store()->hasChanges());
    QCOMPARE(firstRow(f.storePath(), "SELECT title FROM Invoice ORDER BY id LIMIT 1"), QStringLiteral("Theirs again"));

    // Deleted elsewhere while edited here: kept, written again whole.
    QCOMPARE(cli({QStringLiteral("delete"), id, QStringLiteral("--yes")}), 0);
    doc->setText(Invoice::notes, QStringLiteral("still wanted"));
    f.ui.answers = {0};
    QVERIFY(!f.app.save());
    QCOMPARE(firstRow(f.storePath(), "SELECT notes || '|' || title FROM Invoice WHERE uniqueID IN "
                                     "(SELECT uniqueID FROM Invoice WHERE notes = 'still wanted')"),
             QStringLiteral("still wanted|Theirs again"));
}

void TestSharedStore::commandsMergeWhatClashes()
{
    // Two commands adding lines to one document at once both recalculate its
    // totals: the later save takes in the other's line and counts both.
    Fixture f;
    f.app.setMergeConflicts(true);
    Record *doc = f.app.addInvoice();
    const QString id = doc->text(Invoice::uniqueID);
    QVERIFY(f.app.items().addItem({QStringLiteral("Here"), {}, {}, {}, {}, QStringLiteral("10"), QStringLiteral("1"),
                                   false, false, false}).value());
    QCOMPARE(cli({QStringLiteral("add-item"), id, QStringLiteral("title=There"), QStringLiteral("price=5"),
                  QStringLiteral("quantity=1")}),
             0);
    // Here, unsaved and not yet aware of the other line.
    Record *line = f.app.store()->insert(EntityId::Item);
    line->setText(Item::title, QStringLiteral("Here too"));
    line->setNum(Item::baseAmount, 20);
    line->setNum(Item::unitCount, 1);
    line->setToOne(Item::invoice, doc);
    f.app.calculateInvoice(doc);
    QCOMPARE(doc->num(Invoice::amount), 30.0);
    QVERIFY(!f.app.save());
    QVERIFY(f.ui.alerts.isEmpty());
    QCOMPARE(doc->toMany(Invoice::items).size(), 3);
    QCOMPARE(doc->num(Invoice::amount), 35.0);
    QCOMPARE(firstRow(f.storePath(), "SELECT amount FROM Invoice"), QStringLiteral("35.0"));
}

void TestSharedStore::restoreByAnotherProcessLandsHere()
{
    Fixture f;
    for (int i = 0; i < 3; ++i)
        f.app.addInvoice();
    const QString backup = f.home.path() + QStringLiteral("/three.tabo2db");
    QVERIFY(!f.app.backups().writeCompleteBackup(f.home.path() + QStringLiteral("/three.mbdb")));
    f.app.addInvoice();
    QFile::setPermissions(f.storePath(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ReadGroup
                                             | QFileDevice::WriteGroup);
    const auto mode = QFileInfo(f.storePath()).permissions();

    QCOMPARE(cli({QStringLiteral("restore"), QStringLiteral("database"), backup, QStringLiteral("--yes")}), 0);
    // This process still works on the one live file, now holding the backup.
    f.app.syncWithStore();
    QCOMPARE(f.app.documentList().all().size(), 3);
    Record *later = f.app.addInvoice();
    QVERIFY(later);
    QCOMPARE(later->text(Invoice::number), QStringLiteral("R-4"));
    QCOMPARE(QFileInfo(f.storePath()).permissions(), mode);
    QCOMPARE(firstRow(f.storePath(), "SELECT count(*) FROM Invoice"), QStringLiteral("4"));
    QCOMPARE(firstRow(f.storePath(), "PRAGMA integrity_check"), QStringLiteral("ok"));
}

void TestSharedStore::linesAndOlderStoresFollow()
{
    Fixture f;
    Record *doc = f.app.addInvoice();
    const QString id = doc->text(Invoice::uniqueID);
    QVERIFY(f.app.items().addItem({QStringLiteral("Here"), {}, {}, {}, {}, QStringLiteral("5"), QStringLiteral("1"),
                                   false, false, false}).value());
    QCOMPARE(doc->toMany(Invoice::items).size(), 1);
    // Lines added and changed elsewhere join the list this process holds.
    QCOMPARE(cli({QStringLiteral("add-item"), id, QStringLiteral("title=There"), QStringLiteral("price=7")}), 0);
    QCOMPARE(cli({QStringLiteral("set"), id, QStringLiteral("subject"), QStringLiteral("Read again")}), 0);
    f.app.syncWithStore();
    QStringList titles;
    for (const Record *line : doc->toMany(Invoice::items))
        titles << line->text(Item::title);
    titles.sort();
    QCOMPARE(titles, QStringList({QStringLiteral("Here"), QStringLiteral("There")}));
    QCOMPARE(doc->text(Invoice::subject), QStringLiteral("Read again"));
    QCOMPARE(cli({QStringLiteral("delete"), id, QStringLiteral("--yes")}), 0);
    f.app.syncWithStore();
    QVERIFY(f.app.documentList().all().isEmpty());
    QCOMPARE(f.app.currentInvoice(), nullptr);

    // A store written before the journal and the reminders existed gets both on opening.
    f.app.closeStore();
    sqlite3 *db = nullptr;
    sqlite3_open(QFile::encodeName(f.storePath()).constData(), &db);
    for (const char *sql : {"DROP TABLE _Changes", "DROP TABLE _Store", "DROP TABLE _Notification", "DROP TABLE _Counter",
                            "DROP TABLE _Payment",
                            "ALTER TABLE Invoice DROP COLUMN company", "ALTER TABLE Item DROP COLUMN unitCode",
                            "PRAGMA user_version = 1"})
        sqlite3_exec(db, sql, nullptr, nullptr, nullptr);
    sqlite3_close(db);
    QCOMPARE(firstRow(f.storePath(), "SELECT count(*) FROM sqlite_master WHERE type = 'trigger'"),
             QString::number(3 * kEntityCount));
    QVERIFY(f.app.reopenStore());
    QCOMPARE(firstRow(f.storePath(), "PRAGMA user_version"), QString::number(Store::kSchemaVersion));
    QCOMPARE(firstRow(f.storePath(), "SELECT count(*) FROM _Payment"), QStringLiteral("0"));
    // The counters move into the store from the settings at the first number.
    f.prefs.setInteger(Preferences::invCount, 41);
    f.prefs.sync();
    QString created;
    QCOMPARE(cli({QStringLiteral("new"), QStringLiteral("invoice")}, &created), 0);
    QCOMPARE(firstRow(f.storePath(), "SELECT value FROM _Counter WHERE name = 'invCount'"), QStringLiteral("41"));
    QCOMPARE(cli({QStringLiteral("notify"), created}), 0);
    QCOMPARE(firstRow(f.storePath(), "SELECT count(*) FROM _Notification"), QStringLiteral("1"));
    QCOMPARE(firstRow(f.storePath(), "SELECT count(*) FROM pragma_table_info('Invoice') WHERE name IN "
                                     "('company', 'electronicAddress')"), QStringLiteral("2"));
    QCOMPARE(firstRow(f.storePath(), "SELECT count(*) FROM pragma_table_info('Item') WHERE name = 'unitCode'"),
             QStringLiteral("1"));
    f.app.syncWithStore();
    QCOMPARE(f.app.documentList().all().size(), 1);
}

void TestSharedStore::damagedAndEmptyFilesAreNeverWritten()
{
    test::TempHome home;
    const QString store = home.dataDir() + QStringLiteral("/Tabo.mbdb");
    QString id;
    {
        Fixture f;
        QVERIFY(f.app.firstAssiTabAction(0));
        for (int d = 0; d < 40; ++d) {
            Record *doc = f.app.addInvoice();
            for (int i = 0; i < 5; ++i)
                QVERIFY(f.app.items().addItem({QStringLiteral("Line %1").arg(i), {}, {}, {}, {},
                                               QString::number(10 + d), QStringLiteral("2"), true, false, false}).value());
            id = doc->text(Invoice::uniqueID);
        }
        QVERIFY(!f.app.closeStore()); // the log written back: one file to copy
        QDir().mkpath(home.dataDir());
        QFile::remove(store);
        QVERIFY(QFile::copy(f.storePath(), store));
        QVERIFY(QFile::exists(store));
    }
    const QByteArray good = contents(store);
    QVERIFY(good.size() > 8 * 4096);
    const int pageSize = (uchar(good[16]) << 8) | uchar(good[17]);

    // The schema page, the root page of every table, and pages inside the data.
    QList<int> pages{1};
    {
        sqlite3 *db = nullptr;
        sqlite3_open(QFile::encodeName(store).constData(), &db);
        sqlite3_stmt *st = nullptr;
        sqlite3_prepare_v2(db, "SELECT rootpage FROM sqlite_master WHERE type = 'table'", -1, &st, nullptr);
        while (sqlite3_step(st) == SQLITE_ROW)
            pages << sqlite3_column_int(st, 0);
        sqlite3_finalize(st);
        sqlite3_close(db);
    }
    for (int p = 2; p * pageSize < good.size(); p += 5)
        pages << p;

    const QList<QStringList> commands{
        {QStringLiteral("set"), id, QStringLiteral("title"), QStringLiteral("x")},
        {QStringLiteral("new"), QStringLiteral("invoice")},
        {QStringLiteral("add-item"), id, QStringLiteral("title=y"), QStringLiteral("price=1")},
        {QStringLiteral("list")}};
    // What SQLite itself calls damaged, read without touching the file.
    const auto malformed = [&home](const QByteArray &bytes) {
        const QString copy = home.path() + QStringLiteral("/probe.mbdb");
        QFile::remove(copy);
        QFile f(copy);
        f.open(QIODevice::WriteOnly);
        f.write(bytes);
        f.close();
        return firstRow(copy, "PRAGMA integrity_check") != QStringLiteral("ok");
    };
    int damagedCount = 0;
    for (int page : std::as_const(pages)) {
        QByteArray bad = good;
        // The b-tree page header and the first cell pointers.
        const qsizetype at = qsizetype(page - 1) * pageSize + (page == 1 ? 100 : 0);
        for (int k : {1, 3, 4, 5, 8, 9, 11})
            bad[at + k] = char(bad[at + k] ^ 0x5a);
        const bool empty = page == pages.last(); // the last round: an empty file
        const QByteArray damaged = empty ? QByteArray() : bad;
        if (!empty && !malformed(damaged))
            continue;
        ++damagedCount;
        for (const QStringList &command : commands) {
            QFile::remove(store + QStringLiteral("-wal"));
            QFile::remove(store + QStringLiteral("-shm"));
            QFile out(store);
            QVERIFY(out.open(QIODevice::WriteOnly | QIODevice::Truncate));
            out.write(damaged);
            out.close();
            const int rc = cli(command);
            QVERIFY2(contents(store) == damaged, qPrintable(QStringLiteral("page %1, %2 changed the file")
                                                                 .arg(page)
                                                                 .arg(command.join(QLatin1Char(' ')))));
            if (command.first() != QLatin1String("list"))
                QVERIFY2(rc != 0, qPrintable(QStringLiteral("page %1: %2 succeeded").arg(page).arg(command.first())));
        }
    }
    QVERIFY2(damagedCount > pages.size() / 2, qPrintable(QString::number(damagedCount)));

    // The window: an empty file is reported with the automatic backup on offer,
    // and kept.
    QFile::resize(store, 0);
    QFile::remove(store + QStringLiteral("-wal"));
    {
        test::FakeInteraction ui;
        Preferences prefs(home.configFile());
        AppController app(prefs, ui);
        app.createBackupPath();
        QDir().mkpath(QFileInfo(app.backupPath()).absolutePath());
        QFile backup(app.backupPath());
        QVERIFY(backup.open(QIODevice::WriteOnly));
        backup.write("<?xml version=\"1.0\"?><plist version=\"1.0\"><array/></plist>");
        backup.close();
        ui.answers = {1};
        QVERIFY(!app.store());
        QVERIFY(ui.lastAlertText().contains(QStringLiteral("is empty (0 bytes)")));
        QCOMPARE(ui.alerts.last().buttons.first(), QStringLiteral("Restore Automatic Backup"));
        QCOMPARE(QFileInfo(store).size(), 0);
    }
}

QTEST_GUILESS_MAIN(TestSharedStore)
#include "TestSharedStore.moc"
