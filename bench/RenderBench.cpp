#include "RenderBench.h"

#include "app/AppController.h"
#include "app/DesignLibrary.h"
#include "app/DocumentCommands.h"
#include "app/ItemCommands.h"
#include "domain/Record.h"
#include "einvoice/CiiWriter.h"
#include "einvoice/FacturX.h"
#include "prefs/Preferences.h"
#include "QuietInteraction.h"
#include "render/Formatters.h"
#include "render/PageRenderer.h"
#include "render/PdfEngine.h"

#include <QDateTime>
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
        if (const Result<Record *> added = app.items().addItem(fields); !added) {
            std::fprintf(stderr, "could not add a line: %s\n", qPrintable(added.error().text));
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
    double xmlMs = -1;
    QByteArray largeCii;
    QString largeSeller;
    {
        Preferences prefs;
        prefs.setInteger(Preferences::tempPaperSize, 2);
        AppController app(prefs, ui);
        if (!app.store())
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
        app.save();

        Formatters formatters(prefs);
        PageRenderer renderer(prefs, formatters);
        const QList<Record *> smallItems = app.items().sortedItems(*small);
        const QList<Record *> largeItems = app.items().sortedItems(*large);
        htmlSmallMs = medianMs(301, [&] { smallHtml = renderer.invoiceHTMLString(design, *small, smallItems); });
        htmlLargeMs = medianMs(51, [&] { largeHtml = renderer.invoiceHTMLString(design, *large, largeItems); });

        // The same 300 lines as an e-invoice: what it takes to state them.
        for (const auto &[key, value] :
             {std::pair{Preferences::prefsName, "Studio Example"}, {Preferences::prefsStreet, "Hauptstraße 1"},
              {Preferences::prefsPostcode, "10115"}, {Preferences::prefsCity, "Berlin"},
              {Preferences::prefsCountryCode, "DE"}, {Preferences::prefsContactPhone, "030 123456"},
              {Preferences::prefsContactEmail, "info@studio.example"}, {Preferences::prefsVATID, "DE123456789"},
              {Preferences::prefsIBAN, "DE02120300000000202051"}, {Preferences::prefsCurrencyCode, "EUR"}})
            prefs.setString(key, QString::fromUtf8(value));
        for (const auto &[attr, value] : {std::pair{int(Invoice::company), "Anna Example"}, {Invoice::number, "RE-300"},
                                          {Invoice::postcode, "20095"},
                                          {Invoice::city, "Hamburg"}, {Invoice::countryCode, "DE"}})
            large->setText(attr, QString::fromUtf8(value));
        const einvoice::Mapping mapping = einvoice::fromDocument(*large, largeItems, prefs);
        if (mapping.ok())
            xmlMs = medianMs(51, [&] {
                largeCii = einvoice::writeCii(einvoice::fromDocument(*large, largeItems, prefs).invoice, einvoice::Profile::EN16931);
            });
        else
            std::fprintf(stderr, "the e-invoice: %s\n", qPrintable(mapping.problems().join(QStringLiteral("; "))));
        largeSeller = prefs.string(Preferences::prefsName);
        app.save();
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

    // The printed 300 lines made Factur-X: the cost on top of the plain PDF.
    double hybridMs = -1;
    if (!largeCii.isEmpty()) {
        QFile printed(pdf);
        const QByteArray plain = printed.open(QIODevice::ReadOnly) ? printed.readAll() : QByteArray();
        bool made = true;
        hybridMs = medianMs(21, [&] {
            made &= bool(einvoice::makeFacturX(plain, largeCii,
                                               {QStringLiteral("Invoice"), largeSeller, QDateTime::currentDateTime()}));
        });
        if (!made)
            hybridMs = -1;
    }
    const QString received = work + QStringLiteral("/received.xml");
    QFile receivedFile(received);
    if (receivedFile.open(QIODevice::WriteOnly))
        receivedFile.write(largeCii);
    receivedFile.close();

    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    const double viewMs = largeCii.isEmpty() ? -1
        : medianRunMs(3, cliPath, {QStringLiteral("einvoice"), QStringLiteral("view"), received, QStringLiteral("--pdf"),
                                   work + QStringLiteral("/received.pdf")}, env);
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
    row("e-invoice XML (CII), 300 lines (median)", QStringLiteral("< 5 ms"), xmlMs, "ms", xmlMs >= 0 && xmlMs < 5);
    row("Factur-X on top of the PDF, 300 lines", QStringLiteral("< 30 ms"), hybridMs, "ms", hybridMs >= 0 && hybridMs < 30);
    row("tabo-cli einvoice view, 300 lines (cold)", QStringLiteral("< 1000 ms"), viewMs, "ms", viewMs >= 0 && viewMs < 1000);

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
