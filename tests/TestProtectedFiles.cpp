#include "TestSupport.h"

#include "prefs/Locations.h"
#include "prefs/ProtectedFiles.h"

#include <QDir>
#include <QFile>
#include <QtTest>

#include <unistd.h>

using namespace tabo;

class TestProtectedFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ourFilesByAnyPath();
    void writesLeaveOurFilesAlone();
};

namespace {
void put(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(bytes);
}
QByteArray bytesOf(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}
} // namespace

void TestProtectedFiles::ourFilesByAnyPath()
{
    test::TempHome home;
    const QString store = home.dataDir() + QStringLiteral("/Tabo.mbdb");
    const QString custom = home.path() + QStringLiteral("/elsewhere/Tabo.mbdb");
    put(store, "SQLite format 3");
    put(home.configFile(), "[General]\n");
    ProtectedFiles::addStore(custom);
    const QString backup = Locations::automaticBackupFile();
    const QString older = Locations::automaticBackupFiles().last();
    QVERIFY(older != backup && older.endsWith(QStringLiteral(".mbdb")));

    const QString links = home.path() + QStringLiteral("/links");
    QDir().mkpath(links);
    QVERIFY(QFile::link(store, links + QStringLiteral("/store.pdf")));
    QVERIFY(::link(QFile::encodeName(store).constData(), QFile::encodeName(links + QStringLiteral("/hard.pdf")).constData()) == 0);
    for (const QString &target : QStringList{store, store + QStringLiteral("-wal"), store + QStringLiteral("-shm"), store + QStringLiteral("-journal"),
          custom, custom + QStringLiteral("-wal"), home.configFile(), home.configFile() + QStringLiteral(".lock"),
          home.configFile() + QStringLiteral(".bak"), backup, older, links + QStringLiteral("/store.pdf"),
          links + QStringLiteral("/hard.pdf"), links + QStringLiteral("/../") + QDir(home.path()).relativeFilePath(store)}) {
        const Error e = ProtectedFiles::check(target);
        QVERIFY2(e, qPrintable(target));
        QVERIFY2(e.text.contains(target), qPrintable(e.text));
    }
    for (const QString &fine : QStringList{home.path() + QStringLiteral("/Tabo.mbdb.pdf"), links + QStringLiteral("/invoice.pdf"),
                                home.dataDir() + QStringLiteral("/Invoice.pdf")})
        QVERIFY2(!ProtectedFiles::check(fine), qPrintable(fine));
    // The automatic backup's own rotation may write the backups, and nothing else.
    QVERIFY(!ProtectedFiles::check(older, ProtectedFiles::Writer::AutomaticBackup));
    QVERIFY(ProtectedFiles::check(store, ProtectedFiles::Writer::AutomaticBackup));
}

void TestProtectedFiles::writesLeaveOurFilesAlone()
{
    test::TempHome home;
    const QString store = home.dataDir() + QStringLiteral("/Tabo.mbdb");
    put(store, "SQLite format 3 and the documents");
    const QString link = home.path() + QStringLiteral("/out.html");
    QVERIFY(QFile::link(store, link));
    QVERIFY(ProtectedFiles::writeAtomically(link, "<html>"));
    QVERIFY(ProtectedFiles::writeAtomically(store, "%PDF-"));
    QCOMPARE(bytesOf(store), QByteArray("SQLite format 3 and the documents"));
    QVERIFY(QFileInfo(link).isSymLink());
    const QString fine = home.path() + QStringLiteral("/fine.html");
    QVERIFY(!ProtectedFiles::writeAtomically(fine, "<html>"));
    QCOMPARE(bytesOf(fine), QByteArray("<html>"));
}

QTEST_GUILESS_MAIN(TestProtectedFiles)
#include "TestProtectedFiles.moc"
