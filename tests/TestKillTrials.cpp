// kill -9 at random moments of saves, backups, restores and store moves: every
// file left behind is a whole store whose documents agree with their lines.
#include "CommandSupport.h"

#include "app/BackupCommands.h"
#include "app/ItemCommands.h"
#include "domain/Record.h"
#include "store/Store.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QtTest>

#include <sqlite3.h>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tabo;

namespace {

QStringList rows(const QString &path, const char *sql)
{
    QStringList out;
    sqlite3 *db = nullptr;
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK) {
        sqlite3_stmt *st = nullptr;
        if (sqlite3_prepare_v2(db, sql, -1, &st, nullptr) == SQLITE_OK)
            while (sqlite3_step(st) == SQLITE_ROW)
                out << QString::fromUtf8(reinterpret_cast<const char *>(sqlite3_column_text(st, 0)));
        else
            out << QStringLiteral("error: ") + QString::fromUtf8(sqlite3_errmsg(db));
        sqlite3_finalize(st);
    }
    sqlite3_close(db);
    return out;
}

// Whether the store at `path` is whole: its pages, its links, and every
// document's total equal to its lines (written in the same save).
QString checkStore(const QString &path)
{
    if (!QFileInfo::exists(path))
        return {};
    const QStringList integrity = rows(path, "PRAGMA integrity_check");
    if (integrity != QStringList{QStringLiteral("ok")})
        return QStringLiteral("%1: %2").arg(path, integrity.join(QLatin1Char(' ')));
    const QStringList orphans = rows(path, "SELECT count(*) FROM Item WHERE invoice IS NOT NULL AND invoice NOT IN "
                                           "(SELECT id FROM Invoice)");
    if (orphans != QStringList{QStringLiteral("0")})
        return QStringLiteral("%1: lines without a document").arg(path);
    const QStringList wrong = rows(path, "SELECT i.number FROM Invoice i WHERE abs(i.subAmount - (SELECT "
                                         "coalesce(sum(baseAmount * unitCount), 0) FROM Item WHERE invoice = i.id)) > 0.005");
    if (!wrong.isEmpty())
        return QStringLiteral("%1: totals and lines disagree in %2").arg(path, wrong.join(QLatin1Char(',')));
    return {};
}

// The child: works on the shared store until it is killed.
[[noreturn]] void work(const QString &restoreFrom, const QString &backupTo, const QStringList &folders, quint32 seed)
{
    test::FakeInteraction ui;
    Preferences prefs;
    AppController app(prefs, ui);
    QRandomGenerator random(seed);
    app.store(); // open, as in the window, before a move is asked for
    for (int i = 0;; ++i) {
        switch (random.bounded(6)) {
        case 0:
            app.backups().writeCompleteBackup(backupTo);
            break;
        case 1:
            app.backups().restoreCompleteBackup(restoreFrom);
            break;
        case 2:
            prefs.setBool(Preferences::useCustomPath, true);
            prefs.setString(Preferences::customDatabasePath, folders.at(i % folders.size()));
            app.customPathChanged();
            break;
        default:
            if (app.addInvoice())
                for (int l = 0; l < 4; ++l)
                    app.items().addItem({QStringLiteral("Line"), {}, {}, {}, {}, QString::number(l + 1),
                                         QStringLiteral("3"), false, false, false}).value();
        }
    }
}

} // namespace

class TestKillTrials : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void killedAnywhereLosesNothingCommitted();
};

void TestKillTrials::killedAnywhereLosesNothingCommitted()
{
    test::TempHome home;
    const QString base = home.path();
    const QStringList folders{base + QStringLiteral("/one"), base + QStringLiteral("/two")};
    for (const QString &f : folders)
        QDir().mkpath(f);
    const QString restoreFrom = base + QStringLiteral("/seed.tabo2db");
    {
        test::FakeInteraction ui;
        Preferences prefs;
        prefs.setBool(Preferences::firstCenter, true);
        prefs.setBool(Preferences::is2_0MigrationDone, true);
        AppController app(prefs, ui);
        for (int d = 0; d < 20; ++d) {
            app.addInvoice();
            app.items().addItem({QStringLiteral("Seed"), {}, {}, {}, {}, QStringLiteral("9.5"), QStringLiteral("2"),
                                 false, false, false}).value();
        }
        QVERIFY(!app.backups().writeCompleteBackup(base + QStringLiteral("/seed.mbdb")));
    }
    const QString backupTo = base + QStringLiteral("/out/latest.mbdb");
    QDir().mkpath(base + QStringLiteral("/out"));

    const int trials = qEnvironmentVariableIntValue("TABO_KILL_TRIALS") > 0 ? qEnvironmentVariableIntValue("TABO_KILL_TRIALS")
                                                                             : 60;
    QRandomGenerator random(20261125);
    int documents = 0;
    for (int trial = 0; trial < trials; ++trial) {
        const quint32 seed = random.generate();
        const pid_t child = ::fork();
        QVERIFY(child >= 0);
        if (child == 0)
            work(restoreFrom, base + QStringLiteral("/out/latest.mbdb"), folders, seed);
        QThread::msleep(40 + random.bounded(220));
        ::kill(child, SIGKILL);
        int status = 0;
        ::waitpid(child, &status, 0);
        QVERIFY(WIFSIGNALED(status));

        // The next start settles what the kill interrupted.
        test::FakeInteraction ui;
        Preferences prefs;
        AppController app(prefs, ui);
        QVERIFY2(app.store(), qPrintable(ui.errors.isEmpty() ? QString() : ui.errors.first().message()));
        QVERIFY(ui.errors.isEmpty());
        documents = int(app.documentList().all().size());
        const QString storeUsed = app.storeURL();
        QVERIFY(documents >= 20);
        app.closeStore();
        const QStringList stores{home.dataDir() + QStringLiteral("/Tabo.mbdb"), folders[0] + QStringLiteral("/Tabo.mbdb"),
                                 folders[1] + QStringLiteral("/Tabo.mbdb"), base + QStringLiteral("/out/latest.tabo2db")};
        for (const QString &store : stores) {
            const QString problem = checkStore(store);
            QVERIFY2(problem.isEmpty(), qPrintable(QStringLiteral("trial %1: %2").arg(trial).arg(problem)));
        }
        // Unfinished copies are gone wherever they were written.
        const QStringList left = QDir(base + QStringLiteral("/out")).entryList(QDir::Files | QDir::Hidden);
        QVERIFY2(left.isEmpty() || left == QStringList{QStringLiteral("latest.tabo2db")}, qPrintable(left.join(u' ')));
        for (const QString &folder : folders) {
            const QStringList there = QDir(folder).entryList({QStringLiteral("Tabo.mbdb.*")}, QDir::Files | QDir::Hidden);
            QVERIFY2(there.isEmpty(), qPrintable(QStringLiteral("trial %1: %2 left in %3, the store in %4")
                                                          .arg(trial).arg(there.join(u' '), folder, storeUsed)));
        }
    }
    qInfo("%d trials, %d documents in the last store", trials, documents);
}

QTEST_GUILESS_MAIN(TestKillTrials)
#include "TestKillTrials.moc"
