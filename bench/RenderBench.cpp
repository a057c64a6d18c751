#include "RenderBench.h"

#include "app/AppController.h"
#include "app/DesignLibrary.h"
#include "app/DocumentCommands.h"
#include "app/ItemCommands.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "QuietInteraction.h"
#include "render/Formatters.h"
#include "render/PageRenderer.h"
#include "render/PdfEngine.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace tabo::bench {

namespace {

double medianMs(int runs, const std::function<void()> &f)
{
    std::vector<double> t;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        f();
        t.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(t.begin(), t.end());
    return t[t.size() / 2];
}

// Milliseconds from start to exit, or -1 when the program failed.
double runMs(const QString &program, const QStringList &args, const QProcessEnvironment &env = {})
{
    QProcess p;
    if (!env.isEmpty())
        p.setProcessEnvironment(env);
    p.setProgram(program);
    p.setArguments(args);
    p.setStandardOutputFile(QProcess::nullDevice());
    QElapsedTimer timer;
    timer.start();
    p.start();
    if (!p.waitForFinished(300000) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0) {
        std::fprintf(stderr, "%s failed: %s\n", qPrintable(program), p.readAllStandardError().constData());
        return -1;
    }
    return double(timer.nsecsElapsed()) / 1e6;
}

double medianRunMs(int runs, const QString &program, const QStringList &args, const QProcessEnvironment &env = {})
{
    std::vector<double> t;
    for (int i = 0; i < runs; ++i) {
        const double ms = runMs(program, args, env);
        if (ms < 0)
            return -1;
        t.push_back(ms);
    }
    std::sort(t.begin(), t.end());
    return t[t.size() / 2];
}

void row(const char *what, const QString &target, double value, const char *unit, bool ok)
{
    if (value < 0) {
        std::printf("| %-46s | %-10s | %14s | %-4s |\n", what, qPrintable(target), "failed", "MISS");
        return;
    }
    std::printf("| %-46s | %-10s | %10.2f %-3s | %-4s |\n", what, qPrintable(target), value, unit, ok ? "ok" : "MISS");
}

void textRow(const char *what, const QString &measured)
{
    std::printf("| %-46s | %-10s | %14s | %-4s |\n", what, "-", qPrintable(measured), "");
}

Record *invoiceWithLines(AppController &app, int lines)
{
    Record *doc = app.addInvoice();
    if (!doc)
        return nullptr;
    doc->setText(Invoice::title, QStringLiteral("Website relaunch"));
    doc->setText(Invoice::customerName, QStringLiteral("Anna Example"));
    doc->setText(Invoice::emailAddress, QStringLiteral("anna@example.com"));
    for (int i = 1; i <= lines; ++i) {
        ItemFields fields;
        fields.title = QStringLiteral("Design and layout, part %1").arg(i);
        fields.subtitle = QStringLiteral("Pages, images and the mobile view");
        fields.unit = QStringLiteral("h");
        fields.price = QStringLiteral("%1.50").arg(40 + i % 30);
        fields.quantity = QString::number(1 + i % 7);
        fields.tax1 = true;
        QString error;
        if (!app.items().addItem(fields, &error)) {
            std::fprintf(stderr, "could not add a line: %s\n", qPrintable(error));
            return nullptr;
        }
    }
    return doc;
}

} // namespace

int runRenderBench(const QString &cliPath)
{
    QTemporaryDir home;
    // TABO_BENCH_KEEP=1 leaves the files behind for a look at the PDFs.
    home.setAutoRemove(!qEnvironmentVariableIsSet("TABO_BENCH_KEEP"));
    const QString homePath = home.path();
    std::fprintf(stderr, "working in %s\n", qPrintable(homePath));
    qputenv("HOME", homePath.toUtf8());
    qputenv("XDG_CONFIG_HOME", (homePath + QStringLiteral("/config")).toUtf8());
    qputenv("XDG_DATA_HOME", (homePath + QStringLiteral("/data")).toUtf8());
    qputenv("XDG_CACHE_HOME", (homePath + QStringLiteral("/cache")).toUtf8());
    const QString work = homePath + QStringLiteral("/out");
    QDir().mkpath(work);

    // The documents: one of 25 lines, one of 300, and copies of the first up
    // to a hundred, all through the controller as the person would make them.
    QElapsedTimer made;
    made.start();
    QuietInteraction ui;
    QString smallId, largeId;
    QString smallHtml, largeHtml;
    double htmlSmallMs = 0, htmlLargeMs = 0;
    {
        Preferences prefs;
        prefs.setInteger(Preferences::tempPaperSize, 2);
        AppController app(prefs, ui);
        if (!app.managedObjectContext())
            return 1;
        app.designs().loadTemplates();
        Record *design = app.designs().currentDesign();
        Record *small = invoiceWithLines(app, 25);
        Record *large = invoiceWithLines(app, 300);
        if (!design || !small || !large)
            return 1;
        smallId = small->text(Invoice::uniqueID);
        largeId = large->text(Invoice::uniqueID);
        app.setCurrentInvoice(small);
        for (int i = 0; i < 98; ++i)
            if (!app.documents().duplicateInvoice())
                return 1;
        app.saveContext();

        Formatters formatters(prefs);
        PageRenderer renderer(prefs, formatters);
        const QList<Record *> smallItems = app.items().sortedItems(*small);
        const QList<Record *> largeItems = app.items().sortedItems(*large);
        htmlSmallMs = medianMs(301, [&] { smallHtml = renderer.invoiceHTMLString(design, *small, smallItems); });
        htmlLargeMs = medianMs(51, [&] { largeHtml = renderer.invoiceHTMLString(design, *large, largeItems); });
    }

    std::fprintf(stderr, "documents ready in %.1f s\n", double(made.elapsed()) / 1000.0);
    const QString page = work + QStringLiteral("/page.html");
    QFile file(page);
    if (!file.open(QIODevice::WriteOnly) || file.write(smallHtml.toUtf8()) < 0)
        return 1;
    file.close();

    PageSetup setup;
    setup.paperName = PageSetup::paperNameForSize(2);
    PdfEngine engine;
    engine.setAllowedLocalFile(PageRenderer::logoPath());
    const QString pdf = work + QStringLiteral("/warm.pdf");
    bool allOk = true;
    QElapsedTimer firstTimer;
    firstTimer.start();
    allOk &= engine.renderAndWait(smallHtml, setup, pdf);
    const double firstMs = double(firstTimer.nsecsElapsed()) / 1e6;
    std::fprintf(stderr, "first PDF in %.0f ms (%s)\n", firstMs, allOk ? "ok" : "failed");
    for (int i = 0; i < 3; ++i)
        allOk &= engine.renderAndWait(largeHtml, setup, pdf);
    const double warmSmallMs = medianMs(31, [&] { allOk &= engine.renderAndWait(smallHtml, setup, pdf); });
    const double warmLargeMs = medianMs(15, [&] { allOk &= engine.renderAndWait(largeHtml, setup, pdf); });

    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    const QString cliPdf = work + QStringLiteral("/cli.pdf");
    const double coldMs = medianRunMs(5, cliPath, {QStringLiteral("render"), smallId, QStringLiteral("--pdf"), cliPdf}, env);
    const double coldLargeMs
        = medianRunMs(3, cliPath, {QStringLiteral("render"), largeId, QStringLiteral("--pdf"), cliPdf}, env);
    const double hundredMs = runMs(cliPath,
                                   {QStringLiteral("render"), QStringLiteral("--all"), QStringLiteral("--out"),
                                    work + QStringLiteral("/all")},
                                   env);
    const qsizetype hundredFiles = QDir(work + QStringLiteral("/all")).entryList({QStringLiteral("*.pdf")}).size();

    std::printf("Rendering: design \"Temp001\", A4, 25 and 300 lines\n");
    std::printf("| %-46s | %-10s | %14s | %-4s |\n", "Measure", "Target", "Measured", "");
    std::printf("|------------------------------------------------|------------|----------------|------|\n");
    row("invoiceHTMLString, 25 lines (median)", QStringLiteral("< 1 ms"), htmlSmallMs, "ms", htmlSmallMs < 1);
    row("invoiceHTMLString, 300 lines (median)", QStringLiteral("< 20 ms"), htmlLargeMs, "ms", htmlLargeMs < 20);
    row("first PDF of a new engine, 25 lines", QStringLiteral("-"), firstMs, "ms", true);
    row("warm PDF, 25 lines (load + print, median)", QStringLiteral("< 40 ms"), allOk ? warmSmallMs : -1, "ms",
        warmSmallMs < 40);
    row("warm PDF, 300 lines (load + print, median)", QStringLiteral("< 150 ms"), allOk ? warmLargeMs : -1, "ms",
        warmLargeMs < 150);
    row("tabo-cli render ID --pdf, 25 lines (cold)", QStringLiteral("< 400 ms"), coldMs, "ms", coldMs < 400);
    row("tabo-cli render ID --pdf, 300 lines (cold)", QStringLiteral("-"), coldLargeMs, "ms", true);
    row("tabo-cli render --all --out, 100 documents", QStringLiteral("< 5 s"),
        hundredFiles == 100 ? hundredMs / 1000 : -1, "s", hundredMs < 5000);

    // Other programs on the same page, from a file; ratios to our times.
    struct Other
    {
        const char *label;
        QString program;
        QStringList args;
    };
    const QString out = work + QStringLiteral("/other.pdf");
    const Other others[] = {
        {"weasyprint, 25 lines", QStringLiteral("weasyprint"), {QStringLiteral("-q"), page, out}},
        {"wkhtmltopdf, 25 lines", QStringLiteral("wkhtmltopdf"), {QStringLiteral("-q"), page, out}},
        {"chromium --headless --print-to-pdf, 25 lines", QStringLiteral("chromium"),
         {QStringLiteral("--headless"), QStringLiteral("--no-sandbox"), QStringLiteral("--disable-gpu"),
          QStringLiteral("--print-to-pdf=") + out, QUrl::fromLocalFile(page).toString()}},
    };
    for (const Other &other : others) {
        if (QStandardPaths::findExecutable(other.program).isEmpty()) {
            textRow(other.label, QStringLiteral("not installed"));
            continue;
        }
        const double ms = medianRunMs(3, other.program, other.args);
        row(other.label, QStringLiteral("-"), ms, "ms", true);
        if (ms > 0)
            textRow("  times our warm PDF / our cold CLI",
                    QStringLiteral("%1x / %2x").arg(ms / warmSmallMs, 0, 'f', 1).arg(ms / coldMs, 0, 'f', 1));
    }
    return 0;
}

} // namespace tabo::bench
