#include "RecurringBench.h"

#include "QuietInteraction.h"

#include "app/AppController.h"
#include "app/RecurringCommands.h"
#include "domain/DocumentList.h"
#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "store/ScheduleTable.h"
#include "store/Store.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>

namespace tabo::bench {

namespace {

constexpr int kDocuments = 10'000;
constexpr int kSchedules = 1'000;

void row(const char *what, const char *target, double ms, bool ok)
{
    std::printf("| %-52s | %-8s | %9.1f ms | %-4s |\n", what, target, ms, ok ? "ok" : "MISS");
}

} // namespace

int runRecurringBench()
{
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", (home.path() + QStringLiteral("/config")).toUtf8());
    qputenv("XDG_DATA_HOME", (home.path() + QStringLiteral("/data")).toUtf8());
    QuietInteraction ui;
    Preferences prefs;
    prefs.setBool(Preferences::firstCenter, true);
    prefs.setBool(Preferences::is2_0MigrationDone, true);
    prefs.setBool(Preferences::invHaveNumber, true);
    prefs.setString(Preferences::invPattern, QStringLiteral("RE-%COUNT%"));
    AppController controller(prefs, ui);
    Store *store = controller.store();
    if (!store)
        return 1;
    // The documents of a few years, and the monthly invoices to repeat.
    QList<Record *> sources;
    for (int i = 0; i < kDocuments; ++i) {
        Record *doc = store->insert(EntityId::Invoice);
        doc->setInt(Invoice::kind, 1);
        doc->setInt(Invoice::status, 3);
        doc->setText(Invoice::uniqueID, QStringLiteral("DOC-%1").arg(i));
        doc->setText(Invoice::number, QStringLiteral("OLD-%1").arg(i));
        doc->setText(Invoice::subject, QStringLiteral("Hosting %PERIOD%"));
        doc->setNum(Invoice::amount, 49.0);
        if (i < kSchedules) {
            for (int l = 0; l < 3; ++l) {
                Record *line = store->insert(EntityId::Item);
                line->setToOne(Item::invoice, doc);
                line->setNum(Item::unitCount, 1.0);
                line->setNum(Item::baseAmount, 10.0 + l);
                line->setText(Item::title, QStringLiteral("Server %PERIOD%"));
            }
            sources << doc;
        }
    }
    if (store->save())
        return 1;
    controller.reloadList();
    const Error added = store->write([&](sqlite3 *db) -> Error {
        for (const Record *source : std::as_const(sources)) {
            Schedule s;
            s.source = source->text(Invoice::uniqueID);
            s.recurrence.start = QDate(2026, 11, 1);
            if (const Error e = ScheduleTable::add(db, s))
                return e;
        }
        return {};
    });
    if (added)
        return 1;

    QElapsedTimer timer;
    timer.start();
    const Result<RecurringCommands::Run> run = controller.recurring().run(QDate(2026, 11, 26));
    const double runMs = double(timer.nsecsElapsed()) / 1e6;
    timer.restart();
    const Result<RecurringCommands::Run> again = controller.recurring().run(QDate(2026, 11, 26));
    const double againMs = double(timer.nsecsElapsed()) / 1e6;
    if (!run || !again) {
        std::fprintf(stderr, "the run: %s\n", qPrintable((run ? again.error() : run.error()).message()));
        return 1;
    }
    std::printf("Repeated invoices: %d schedules due, in a store of %d documents\n\n", kSchedules, kDocuments);
    std::printf("| %-52s | %-8s | %12s | %-4s |\n", "what", "target", "measured", "");
    std::printf("|%s|%s|%s|%s|\n", "------------------------------------------------------", "----------",
        "--------------", "------");
    row("recurring run: write every due invoice, numbered", "< 2000", runMs, runMs < 2000);
    row("recurring run again: nothing due", "-", againMs, true);
    std::printf("\n%lld invoices written, %lld the second time.\n", qint64(run.value().made.size()),
        qint64(again.value().made.size()));
    return run.value().made.size() == kSchedules && again.value().made.isEmpty() ? 0 : 1;
}

} // namespace tabo::bench
