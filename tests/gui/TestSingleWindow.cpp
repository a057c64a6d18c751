#include "WindowFixture.h"

#include "app/FileCommands.h"
#include "app/InstanceBus.h"
#include "domain/DocumentList.h"
#include "domain/Record.h"
#include "gui/main/MainWindow.h"

#include <QDialog>
#include <QDir>
#include <QProcess>
#include <QtTest>

using namespace tabo;

// Runs on a private session bus (dbus-run-session, see CMake): a second
// `tabo` hands its request to this window and ends.
class TestSingleWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void secondStartsHandOver();
};

namespace {

// The real program, as a desktop action starts it; its exit code. This
// process keeps handling events meanwhile: it is the one that answers.
int startTabo(const QStringList &arguments, const QString &folder = {})
{
    QProcess tabo;
    tabo.setWorkingDirectory(folder);
    QEventLoop loop;
    QObject::connect(&tabo, &QProcess::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(20000, &loop, &QEventLoop::quit);
    tabo.start(QStringLiteral(TABO_GUI), arguments);
    loop.exec();
    if (tabo.state() != QProcess::NotRunning) {
        tabo.kill();
        tabo.waitForFinished();
        return -1;
    }
    return tabo.exitStatus() == QProcess::NormalExit ? tabo.exitCode() : -1;
}

} // namespace

void TestSingleWindow::secondStartsHandOver()
{
    test::WindowFixture f;
    f.prefs.setBool(Preferences::isTabo2TemplateLoadingDone, true);
    f.prefs.setBool(Preferences::firstStartEverDone, true);
    f.prefs.sync();
    f.window = std::make_unique<MainWindow>(f.app);
    f.window->show();
    InstanceBus bus;
    QVERIFY2(bus.registerInstance(), "no private session bus: run through CTest");
    f.window->takeRequestsFrom(bus);
    const auto documents = [&f] { return f.app.documentList().all().size(); };

    // A desktop action: the running window makes the document.
    QCOMPARE(startTabo({QStringLiteral("--new-invoice")}), 0);
    QTRY_COMPARE(documents(), 1);
    QCOMPARE(f.app.currentInvoice()->integer(Invoice::kind), 1);

    // While the person answers a dialog the request waits, and is carried
    // out after it, not lost.
    QDialog dialog(f.window.get());
    dialog.setModal(true);
    dialog.show();
    QTRY_VERIFY(QApplication::activeModalWidget());
    QCOMPARE(startTabo({QStringLiteral("--new-quote")}), 0);
    QTest::qWait(400);
    QCOMPARE(documents(), 1);
    dialog.accept();
    QTRY_COMPARE(documents(), 2);
    QCOMPARE(f.app.currentInvoice()->integer(Invoice::kind), 0);

    // `tabo FILE` from another folder: the running window asks, then imports.
    Record *written = f.app.currentInvoice();
    const QString folder = f.home.path() + QStringLiteral("/Downloads");
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(!f.app.files().writeInvoiceFile(*written, 0, folder + QStringLiteral("/sent to me.tabo")));
    GuiInteraction::setNextAnswer(0);
    QCOMPARE(startTabo({QStringLiteral("sent to me.tabo")}, folder), 0);
    QTRY_COMPARE(documents(), 3);
    QVERIFY(GuiInteraction::lastAlertText().startsWith(QStringLiteral("The integrity of your data")));

    // A plain second start only brings this window forward.
    f.window->showMinimized();
    QCOMPARE(startTabo({}), 0);
    QTRY_VERIFY(!f.window->isMinimized());
    QCOMPARE(documents(), 3);
}

QTEST_MAIN(TestSingleWindow)
#include "TestSingleWindow.moc"
