// Reminders of due invoices against a notification service of our own on a
// private session bus (run under dbus-run-session).
#include "CommandSupport.h"

#include "app/NotificationCommands.h"
#include "app/ReminderTimer.h"
#include "base/Clock.h"
#include "domain/Record.h"
#include "store/NotificationSchedule.h"
#include "store/Store.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QJsonDocument>
#include <QJsonArray>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

using namespace tabo;

namespace {

// The notifications the fake service was asked to show, oldest first.
QList<QJsonObject> shown(const QString &log)
{
    QList<QJsonObject> list;
    QFile f(log);
    if (f.open(QIODevice::ReadOnly))
        for (const QByteArray &line : f.readAll().split('\n'))
            if (!line.isEmpty())
                list << QJsonDocument::fromJson(line).object();
    return list;
}

int cli(const QStringList &args, QString *out = nullptr, const QProcessEnvironment &env = QProcessEnvironment::systemEnvironment())
{
    QProcess p;
    p.setProcessEnvironment(env);
    p.start(QStringLiteral(TABO_CLI), args);
    p.waitForFinished(60000);
    if (out)
        *out = QString::fromUtf8(p.readAllStandardOutput() + p.readAllStandardError()).trimmed();
    return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
}

struct Fixture : test::ControllerFixture
{
    Fixture()
    {
        prefs.setBool(Preferences::firstCenter, true);
        prefs.setBool(Preferences::is2_0MigrationDone, true);
        prefs.sync();
        server.start(QStringLiteral(FAKE_SERVER), {log});
        server.waitForStarted();
        // The service is there once the bus knows its name.
        QTRY_VERIFY_WITH_TIMEOUT(app.notifications().isAvailable(), 5000);
    }
    ~Fixture()
    {
        server.kill();
        server.waitForFinished();
    }
    Record *invoice(const QString &number, Date due, const QString &address = QStringLiteral("Kunde GmbH\nWeg 1"))
    {
        Record *doc = app.addInvoice();
        app.setDocumentValue(doc, Invoice::number, number);
        app.setDocumentValue(doc, Invoice::address, address);
        app.setDocumentValue(doc, Invoice::due, QVariant::fromValue(due));
        return doc;
    }
    QString log = home.path() + QStringLiteral("/shown.jsonl");
    QProcess server;
};

} // namespace

class TestNotifications : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qputenv("TZ", "Europe/Berlin"); }
    void reminderDateIsThreeCalendarDaysAtMidnight();
    void sheetSchedulesAndAsksBeforeASecond();
    void deliversOnceAcrossProcessesAndAtTheNextStart();
    void clickFiltersToTheInvoice();
    void withoutBusOrServiceNothingBreaks();
    void timerUnitsAreWrittenAndRemoved();
};

void TestNotifications::reminderDateIsThreeCalendarDaysAtMidnight()
{
    const auto local = [](int y, int m, int d, int h = 0) {
        return Date::fromDateTime(QDateTime(QDate(y, m, d), QTime(h, 0), QTimeZone::systemTimeZone()));
    };
    // The last day of a month, late in the day: the third of the next month.
    QCOMPARE(NotificationCommands::reminderDate(local(2026, 1, 31, 23)), local(2026, 2, 3));
    QCOMPARE(NotificationCommands::reminderDate(local(2026, 12, 31, 9)), local(2027, 1, 3));
    // Across the change to summer time: still midnight, not 23:00 the day before.
    QCOMPARE(NotificationCommands::reminderDate(local(2026, 3, 27, 12)), local(2026, 3, 30));
}

void TestNotifications::sheetSchedulesAndAsksBeforeASecond()
{
    Fixture f;
    Record *doc = f.invoice(QStringLiteral("RE-7"), test::utc(2026, 5, 29), QStringLiteral("  \r\nSecond line"));
    QVERIFY(f.app.notifications().openNotificationSheet());
    NotificationCommands::Draft draft = f.app.notifications().prepareNotification();
    QCOMPARE(draft.title, doc->text(Invoice::title) + QStringLiteral(" | RE-7"));
    QCOMPARE(draft.subtitle, QStringLiteral("  ")); // the first line, as it stands
    QCOMPARE(draft.date.toDateTime().toLocalTime(), QDateTime(QDate(2026, 6, 1), QTime(0, 0)));
    draft.text = QStringLiteral("Call them");
    QVERIFY(!f.app.notifications().sendNotification(draft));
    QVERIFY(doc->boolean(Invoice::misc4));

    // A second one is asked about; Cancel keeps one, OK makes two.
    f.ui.answers = {1};
    QVERIFY(!f.app.notifications().openNotificationSheet());
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Notification Already Created"));
    f.ui.answers = {0};
    QVERIFY(f.app.notifications().openNotificationSheet());
    QVERIFY(!f.app.notifications().sendNotification(f.app.notifications().prepareNotification()));
    const auto all = f.app.notifications().scheduled();
    QCOMPARE(all.size(), 2);
    QCOMPARE(all[0].text, QStringLiteral("Call them"));
    QCOMPARE(all[1].uniqueID, doc->text(Invoice::uniqueID));
    QVERIFY(f.app.notifications().cancel(all[0].id));
    QVERIFY(!f.app.notifications().cancel(all[0].id));
    QCOMPARE(f.app.notifications().scheduled().size(), 1);
}

void TestNotifications::deliversOnceAcrossProcessesAndAtTheNextStart()
{
    FixedClock clock(test::utc(2026, 6, 10));
    Clock::setInstance(&clock);
    auto restore = qScopeGuard([] { Clock::setInstance(nullptr); });
    Fixture f;
    f.prefs.setBool(Preferences::prefsDeliverNotificationsWithSound, true);
    f.invoice(QStringLiteral("RE-1"), test::utc(2026, 6, 1));
    NotificationCommands::Draft draft = f.app.notifications().prepareNotification();
    draft.subtitle = QStringLiteral("Müller & <Söhne>");
    QVERIFY(!f.app.notifications().sendNotification(draft)); // due 4 June: already due
    draft.date = test::utc(2099, 6, 20);
    QVERIFY(!f.app.notifications().sendNotification(draft)); // not yet

    // Another process delivers what is due; then nothing is left to show here.
    QString out;
    QCOMPARE(cli({QStringLiteral("notifications"), QStringLiteral("deliver-due")}, &out), 0);
    QVERIFY2(out.contains(QStringLiteral("1 reminder shown")), qPrintable(out));
    QCOMPARE(f.app.notifications().deliverDue().shown, 0);
    const QList<QJsonObject> list = shown(f.log);
    QCOMPARE(list.size(), 1);
    QCOMPARE(list[0][QStringLiteral("summary")].toString(), draft.title);
    QCOMPARE(list[0][QStringLiteral("body")].toString(), QStringLiteral("Müller & <Söhne>")); // no markup read
    QCOMPARE(list[0][QStringLiteral("hints")][QStringLiteral("sound-name")].toString(),
             QStringLiteral("message-new-instant"));
    QCOMPARE(list[0][QStringLiteral("hints")][QStringLiteral("desktop-entry")].toString(), QStringLiteral("tabo"));
    QVERIFY(list[0][QStringLiteral("actions")].toVariant().toStringList().contains(QStringLiteral("default")));
    QVERIFY(!f.app.notifications().scheduled(true).isEmpty());

    // Closed until after the second one's moment: at the next start it arrives at once.
    QVERIFY(!f.app.closeStore());
    clock.set(test::utc(2099, 6, 21));
    AppController next(f.prefs, f.ui);
    next.store();
    next.notifications().startDelivering();
    QCOMPARE(shown(f.log).size(), 2);
    QVERIFY(next.notifications().scheduled(true).isEmpty());
    QCOMPARE(next.notifications().scheduled().constLast().delivered, clock.now());
}

void TestNotifications::clickFiltersToTheInvoice()
{
    Fixture f;
    Record *a = f.invoice(QStringLiteral("RE-1"), test::utc(2020, 1, 1));
    f.invoice(QStringLiteral("RE-2"), test::utc(2020, 1, 1));
    QVERIFY(!f.app.notifications().sendNotification(f.app.notifications().prepareNotification(), a));
    QCOMPARE(f.app.notifications().deliverDue().shown, 1);
    QSignalSpy forward(&f.app.notifications(), &NotificationCommands::bringForward);
    QDBusMessage click = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.Notifications"),
                                                        QStringLiteral("/org/tabo/Test"),
                                                        QStringLiteral("org.tabo.Test"), QStringLiteral("Click"));
    click << uint(shown(f.log).constFirst()[QStringLiteral("id")].toInt());
    QDBusConnection::sessionBus().call(click);
    QTRY_COMPARE(forward.size(), 1);
    QCOMPARE(f.app.filterTag(), 0u); // the list waits for the window to come forward
    QTRY_COMPARE_WITH_TIMEOUT(f.app.filterTag(), 99u, 5000);
    QCOMPARE(f.app.documentList().shown(), QList<Record *>{a});
    QCOMPARE(f.app.currentInvoice(), a);
    QVERIFY(f.app.filterGlows());

    // "LIKE": "*" and "?" are wildcards; a deleted invoice leaves the list empty.
    const QString id = a->text(Invoice::uniqueID);
    f.app.filterForInvoice(id.left(3) + QStringLiteral("?") + id.mid(4, 5) + QStringLiteral("*"));
    QCOMPARE(f.app.documentList().shown(), QList<Record *>{a});
    f.app.filterForInvoice(QStringLiteral("no-such-invoice"));
    QVERIFY(f.app.documentList().shown().isEmpty());
    QCOMPARE(f.app.currentInvoice(), nullptr);
}

void TestNotifications::withoutBusOrServiceNothingBreaks()
{
    test::TempHome home;
    QString id;
    QCOMPARE(cli({QStringLiteral("new"), QStringLiteral("invoice")}, &id), 0);
    QVERIFY(!id.isEmpty());
    QString out;
    // No service on the bus: scheduled all the same, and said so.
    QCOMPARE(cli({QStringLiteral("notify"), id, QStringLiteral("--date"), QStringLiteral("2020-01-01")}, &out), 0);
    QVERIFY2(out.contains(QStringLiteral("no notification service")), qPrintable(out));
    // No bus at all (a plain console): a clear failure, the reminder kept.
    QProcessEnvironment console = QProcessEnvironment::systemEnvironment();
    console.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    console.remove(QStringLiteral("DISPLAY"));
    QCOMPARE(cli({QStringLiteral("notifications"), QStringLiteral("deliver-due")}, &out, console), 1);
    QVERIFY2(out.contains(QStringLiteral("no desktop session bus")), qPrintable(out));
    QCOMPARE(cli({QStringLiteral("notifications"), QStringLiteral("list")}, &out), 0);
    QVERIFY2(out.contains(QStringLiteral("scheduled")), qPrintable(out));
    // A second one needs --yes.
    QCOMPARE(cli({QStringLiteral("notify"), id}, &out), 1);
    QVERIFY2(out.contains(QStringLiteral("already created a notification")), qPrintable(out));
}

void TestNotifications::timerUnitsAreWrittenAndRemoved()
{
    test::TempHome home;
    const QString calls = home.path() + QStringLiteral("/calls");
    const QString fake = home.path() + QStringLiteral("/systemctl");
    for (const auto &[script, exitCode] : {std::pair{QStringLiteral("ok"), 0}, {QStringLiteral("fail"), 1}}) {
        QFile f(fake);
        QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(QStringLiteral("#!/bin/sh\necho \"$*\" >> '%1'\necho refused >&2\nexit %2\n").arg(calls).arg(exitCode).toUtf8());
        f.close();
        f.setPermissions(f.permissions() | QFileDevice::ExeOwner);
        ReminderTimer timer(QStringLiteral(TABO_CLI), fake);
        const Error e = timer.install();
        QCOMPARE(bool(e), exitCode != 0);
        QCOMPARE(timer.isInstalled(), exitCode == 0);
        if (exitCode == 0) {
            QFile service(ReminderTimer::unitFolder() + QStringLiteral("/tabo-reminders.service"));
            QVERIFY(service.open(QIODevice::ReadOnly));
            QVERIFY(service.readAll().contains("ExecStart=\"" TABO_CLI "\" notifications deliver-due"));
            QVERIFY(!timer.remove());
            QVERIFY(!timer.isInstalled());
        } else {
            QVERIFY2(e.message().contains(QStringLiteral("refused")), qPrintable(e.message()));
        }
    }
    QFile log(calls);
    QVERIFY(log.open(QIODevice::ReadOnly));
    QVERIFY(log.readAll().startsWith("--user daemon-reload\n--user enable --now tabo-reminders.timer\n"));
}

QTEST_GUILESS_MAIN(TestNotifications)
#include "TestNotifications.moc"
