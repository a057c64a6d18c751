#include "CommandSupport.h"

#include "app/AppController.h"
#include "app/RecurringCommands.h"
#include "app/TemplateCommands.h"
#include "base/Clock.h"
#include "domain/DocumentList.h"
#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "domain/Recurrence.h"
#include "store/Store.h"

#include <QProcess>
#include <QtTest>

using namespace tabo;

class TestRecurring : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void datesFollowTheCalendar();
    void catchesUpEachDateOnceInOrder();
    void keepsTheDayAcrossDaylightSaving();
    void twoProcessesNeverBillTwice();
    void windowAsksBeforeSending();
};

namespace {

const QDate kToday(2026, 11, 26);

QList<QDate> dates(const Recurrence &r, int n)
{
    QList<QDate> out;
    for (int i = 0; i < n; ++i)
        out << r.occurrence(i);
    return out;
}

Recurrence every(const char *interval, QDate start, QDate until = {}, int count = 0)
{
    const Result<Recurrence> r = Recurrence::make(QString::fromLatin1(interval), start, until, count);
    return r ? r.value() : Recurrence {};
}

struct Books : test::ControllerFixture
{
    FixedClock clock { Date::fromDateTime(QDateTime(kToday, QTime(12, 0))) };
    Books()
    {
        Clock::setInstance(&clock);
        prefs.setBool(Preferences::firstCenter, true);
        prefs.setBool(Preferences::is2_0MigrationDone, true);
        prefs.setBool(Preferences::invHaveNumber, true);
        prefs.setString(Preferences::invPattern, QStringLiteral("R-%COUNT%"));
        prefs.setBool(Preferences::invHaveDueDate, true);
        prefs.setInteger(Preferences::invDefaultDueDate, 14);
        prefs.setString(Preferences::prefsRegion, QStringLiteral("de_DE"));
        prefs.sync();
    }
    ~Books() { Clock::setInstance(nullptr); }
    Record *monthlyInvoice()
    {
        Record *doc = app.addInvoice();
        doc->setText(Invoice::subject, QStringLiteral("Hosting %PERIOD%"));
        Record *line = app.store()->insert(EntityId::Item);
        line->setToOne(Item::invoice, doc);
        line->setNum(Item::unitCount, 1.0);
        line->setNum(Item::baseAmount, 49.0);
        line->setText(Item::title, QStringLiteral("Server, %PERIOD%"));
        app.documentChanged(doc);
        return doc;
    }
    QList<Record *> madeFrom(const QString &subjectStart)
    {
        QList<Record *> out;
        for (Record *d : app.documentList().all())
            if (d->text(Invoice::subject).startsWith(subjectStart) && !d->text(Invoice::subject).contains(u'%'))
                out << d;
        std::sort(out.begin(), out.end(),
            [](const Record *a, const Record *b) { return a->date(Invoice::date) < b->date(Invoice::date); });
        return out;
    }
};

} // namespace

void TestRecurring::datesFollowTheCalendar()
{
    // The 31st falls on the month's last day and comes back after it.
    QCOMPARE(dates(every("month", QDate(2027, 1, 31)), 4),
        (QList<QDate> { QDate(2027, 1, 31), QDate(2027, 2, 28), QDate(2027, 3, 31), QDate(2027, 4, 30) }));
    QCOMPARE(every("month", QDate(2028, 1, 31)).occurrence(1), QDate(2028, 2, 29));
    // The 29th of February in the years between.
    QCOMPARE(dates(every("year", QDate(2028, 2, 29)), 5),
        (QList<QDate> { QDate(2028, 2, 29), QDate(2029, 2, 28), QDate(2030, 2, 28), QDate(2031, 2, 28),
            QDate(2032, 2, 29) }));
    QCOMPARE(dates(every("quarter", QDate(2026, 11, 30)), 2), (QList<QDate> { QDate(2026, 11, 30), QDate(2027, 2, 28) }));
    QCOMPARE(every("2 weeks", QDate(2026, 12, 28)).occurrence(1), QDate(2027, 1, 11));
    // Ends: a last day, a count.
    QVERIFY(!every("month", QDate(2026, 1, 15), QDate(2026, 3, 14)).occurrence(2).isValid());
    QVERIFY(every("month", QDate(2026, 1, 15), QDate(2026, 3, 15)).occurrence(2).isValid());
    QVERIFY(!every("week", QDate(2026, 1, 1), {}, 3).occurrence(3).isValid());

    QVERIFY(!Recurrence::make(QStringLiteral("0 weeks"), QDate(2026, 1, 1), {}, 0).ok());
    QVERIFY(!Recurrence::make(QStringLiteral("fortnight"), QDate(2026, 1, 1), {}, 0).ok());
    const Result<Recurrence> backwards = Recurrence::make(QStringLiteral("month"), QDate(2026, 5, 1), QDate(2026, 4, 1), 0);
    QVERIFY(!backwards.ok() && backwards.error().message().contains(QLatin1String("2026-04-01")));
    // What it reads, it writes back.
    for (const char *interval : { "month", "quarter", "year", "5 months", "week", "3 weeks" })
        QCOMPARE(every(interval, QDate(2026, 1, 1)).interval(), QString::fromLatin1(interval));

    const QLocale german(QStringLiteral("de_DE"));
    QCOMPARE(every("month", QDate(2026, 1, 1)).periodLabel(QDate(2026, 3, 1), german), QStringLiteral("März 2026"));
    QCOMPARE(every("quarter", QDate(2026, 1, 1)).periodLabel(QDate(2026, 10, 1), german),
        QStringLiteral("Oktober – Dezember 2026"));
    QCOMPARE(every("quarter", QDate(2026, 1, 1)).periodLabel(QDate(2026, 11, 1), QLocale(QStringLiteral("en_US"))),
        QStringLiteral("November 2026 – January 2027"));
    QCOMPARE(every("year", QDate(2026, 1, 1)).periodLabel(QDate(2027, 1, 1), german), QStringLiteral("2027"));
}

void TestRecurring::catchesUpEachDateOnceInOrder()
{
    Books f;
    Record *source = f.monthlyInvoice();
    QCOMPARE(source->text(Invoice::number), QStringLiteral("R-1"));
    RecurringCommands &recurring = f.app.recurring();
    // The computer was off since the end of August: three dates have passed.
    const Result<Schedule> added = recurring.add(source->text(Invoice::number),
        every("month", QDate(2026, 8, 31)), false);
    QVERIFY2(added.ok(), qPrintable(added.error().message()));
    QCOMPARE(recurring.run(kToday, true).value().made.size(), 3);
    QCOMPARE(f.madeFrom(QStringLiteral("Hosting ")).size(), 0); // a dry run writes nothing

    const Result<RecurringCommands::Run> run = recurring.run(kToday);
    QVERIFY2(run.ok(), qPrintable(run.error().message()));
    const QList<Record *> made = f.madeFrom(QStringLiteral("Hosting "));
    QCOMPARE(made.size(), 3);
    const QStringList subjects { QStringLiteral("Hosting August 2026"), QStringLiteral("Hosting September 2026"),
        QStringLiteral("Hosting Oktober 2026") };
    const QList<QDate> days { QDate(2026, 8, 31), QDate(2026, 9, 30), QDate(2026, 10, 31) };
    for (int i = 0; i < 3; ++i) {
        const Record *doc = made.at(i);
        QCOMPARE(doc->text(Invoice::subject), subjects.at(i));
        QCOMPARE(doc->text(Invoice::number), QStringLiteral("R-%1").arg(i + 2));
        QCOMPARE(doc->date(Invoice::date).toDateTime().toLocalTime().date(), days.at(i));
        QCOMPARE(doc->date(Invoice::due).toDateTime().toLocalTime().date(), days.at(i).addDays(14));
        QCOMPARE(doc->integer(Invoice::status), 0);
        QCOMPARE(doc->num(Invoice::amount), source->num(Invoice::amount));
        QCOMPARE(doc->toMany(Invoice::items).first()->text(Item::title), QStringLiteral("Server, ") + subjects.at(i).mid(8));
    }
    QVERIFY(!f.app.store()->hasChanges());
    QCOMPARE(source->text(Invoice::subject), QStringLiteral("Hosting %PERIOD%"));

    // Again today: nothing; a month later, one; paused, none.
    QCOMPARE(recurring.run(kToday).value().made.size(), 0);
    QCOMPARE(recurring.run(QDate(2026, 12, 1)).value().made.size(), 1);
    QVERIFY(!recurring.setPaused(added.value().id, true));
    QCOMPARE(recurring.run(QDate(2027, 3, 1)).value().made.size(), 0);
    QVERIFY(!recurring.setPaused(added.value().id, false));
    QCOMPARE(recurring.run(QDate(2027, 1, 1)).value().made.size(), 1);
    QVERIFY(recurring.setPaused(99, true)); // no such schedule

    // A template repeats too; once it is deleted, the run says so and writes nothing.
    QVERIFY(!recurring.add(QStringLiteral("no such thing"), every("month", kToday), false).ok());
    f.app.setCurrentInvoice(source);
    Record *tmpl = f.app.templates().createNewTemplate(QStringLiteral("Hosting"), QString());
    QVERIFY(tmpl);
    const Result<Schedule> fromTemplate = recurring.add(QStringLiteral("Hosting"), every("week", kToday), false);
    QVERIFY(fromTemplate.ok() && fromTemplate.value().fromTemplate);
    QCOMPARE(recurring.run(kToday).value().made.size(), 1);
    f.app.templates().deleteTemplate(tmpl);
    const Result<RecurringCommands::Run> orphan = recurring.run(kToday.addDays(7));
    QCOMPARE(orphan.value().made.size(), 0);
    QCOMPARE(orphan.value().problems.size(), 1);
}

void TestRecurring::keepsTheDayAcrossDaylightSaving()
{
    // The test runs in Europe/Berlin (see its CTest environment): clocks go
    // forward on 29 March 2026 and back on 25 October 2026.
    Books f;
    Record *source = f.monthlyInvoice();
    f.app.recurring().add(source->text(Invoice::uniqueID), every("week", QDate(2026, 3, 22), {}, 3), false);
    f.app.recurring().add(source->text(Invoice::uniqueID), every("week", QDate(2026, 10, 18), {}, 3), false);
    QCOMPARE(f.app.recurring().run(kToday).value().made.size(), 6);
    QList<QDate> days;
    for (const Record *doc : f.madeFrom(QStringLiteral("Hosting ")))
        days << doc->date(Invoice::date).toDateTime().toLocalTime().date();
    QCOMPARE(days,
        (QList<QDate> { QDate(2026, 3, 22), QDate(2026, 3, 29), QDate(2026, 4, 5), QDate(2026, 10, 18),
            QDate(2026, 10, 25), QDate(2026, 11, 1) }));
}

void TestRecurring::twoProcessesNeverBillTwice()
{
    Books f;
    Record *source = f.monthlyInvoice();
    // Weekly since the start of 2025: about a hundred dates to catch up.
    const Result<Schedule> added
        = f.app.recurring().add(source->text(Invoice::uniqueID), every("week", QDate(2025, 1, 6)), false);
    QVERIFY(added.ok());
    const QDate today = QDate::currentDate();
    int due = 0;
    while (added.value().recurrence.occurrence(due).isValid() && added.value().recurrence.occurrence(due) <= today)
        ++due;
    QVERIFY(due > 90);
    QList<QProcess *> runs;
    for (int i = 0; i < 3; ++i) {
        auto *p = new QProcess(this);
        p->start(QStringLiteral(TABO_CLI), { QStringLiteral("recurring"), QStringLiteral("run") });
        runs << p;
    }
    for (QProcess *p : runs) {
        QVERIFY(p->waitForFinished(60000));
        QCOMPARE(p->exitCode(), 0);
    }
    f.app.syncWithStore();
    const QList<Record *> made = f.madeFrom(QStringLiteral("Hosting "));
    QCOMPARE(made.size(), due);
    QSet<QString> numbers;
    QSet<QDate> days;
    for (const Record *doc : made) {
        numbers << doc->text(Invoice::number);
        days << doc->date(Invoice::date).toDateTime().toLocalTime().date();
    }
    QCOMPARE(numbers.size(), due);
    QCOMPARE(days.size(), due);
    QCOMPARE(f.app.recurring().list().value().first().made, due);
}

void TestRecurring::windowAsksBeforeSending()
{
    Books f;
    Record *source = f.monthlyInvoice();
    QVERIFY(f.app.recurring().add(source->text(Invoice::uniqueID), every("month", kToday), true).ok());
    f.ui.answers = { 1 }; // "Not Now"
    f.app.runRecurring();
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Send Repeated Invoices"));
    const QList<Record *> made = f.madeFrom(QStringLiteral("Hosting "));
    QCOMPARE(made.size(), 1);
    QVERIFY(f.ui.lastAlertText().contains(made.first()->text(Invoice::number)));
    QVERIFY(f.ui.opened.isEmpty());
    // Written once: the next start asks nothing.
    const qsizetype asked = f.ui.alerts.size();
    f.app.runRecurring();
    QCOMPARE(f.ui.alerts.size(), asked);
}

QTEST_GUILESS_MAIN(TestRecurring)
#include "TestRecurring.moc"
