#include "EditorBench.h"

#include "app/AppController.h"
#include "app/DesignLibrary.h"
#include "app/DesignPreview.h"
#include "domain/Record.h"
#include "editing/SyntaxColorizer.h"
#include "prefs/Preferences.h"
#include "QuietInteraction.h"

#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPdfDocument>
#include <QPlainTextDocumentLayout>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTextCursor>
#include <QTextDocument>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace tabo::bench {

namespace {

double median(std::vector<double> t)
{
    std::sort(t.begin(), t.end());
    return t[t.size() / 2];
}

double percentile95(std::vector<double> t)
{
    std::sort(t.begin(), t.end());
    return t[std::min(t.size() - 1, t.size() * 95 / 100)];
}

// `lines` lines cut from `source`, repeated as often as needed.
QString longText(const QString &source, int lines)
{
    const QStringList pieces = source.split(QLatin1Char('\n'));
    QStringList out;
    for (int i = 0; out.size() < lines; ++i)
        out << pieces.at(i % pieces.size());
    return out.join(QLatin1Char('\n'));
}

struct Keystrokes
{
    double medianMs, p95Ms;
};

// Keystrokes at random places, each timed from the insertion to the
// recoloured text, as in an editor.
Keystrokes typeInto(const QString &definition, const QString &text, const Preferences &prefs)
{
    // The editors' own document layout (the plain-text one).
    QTextDocument doc;
    doc.setDocumentLayout(new QPlainTextDocumentLayout(&doc));
    doc.setPlainText(text);
    SyntaxColorizer colorizer(definition, prefs, &doc);
    QRandomGenerator random(42);
    std::vector<double> times;
    for (int i = 0; i < 300; ++i) {
        QTextCursor cursor(&doc);
        cursor.setPosition(int(random.bounded(doc.characterCount() - 1)));
        QElapsedTimer timer;
        timer.start();
        cursor.insertText(QStringLiteral("a"));
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    return {median(times), percentile95(times)};
}

double colourAtOpen(const QString &definition, const QString &text, const Preferences &prefs)
{
    std::vector<double> times;
    for (int i = 0; i < 5; ++i) {
        QTextDocument doc;
        doc.setDocumentLayout(new QPlainTextDocumentLayout(&doc));
        doc.setPlainText(text);
        QElapsedTimer timer;
        timer.start();
        SyntaxColorizer colorizer(definition, prefs, &doc);
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    return median(times);
}

void row(const char *what, const char *target, double value, bool ok)
{
    std::printf("| %-52s | %-8s | %9.2f ms | %-4s |\n", what, target, value, ok ? "ok" : "MISS");
}

} // namespace

int runEditorBench()
{
    QTemporaryDir home;
    const QString homePath = home.path();
    qputenv("HOME", homePath.toUtf8());
    qputenv("XDG_CONFIG_HOME", (homePath + QStringLiteral("/config")).toUtf8());
    qputenv("XDG_DATA_HOME", (homePath + QStringLiteral("/data")).toUtf8());
    QuietInteraction ui;
    Preferences prefs;
    prefs.setInteger(Preferences::tempPaperSize, 2);
    AppController app(prefs, ui);
    if (!app.store())
        return 1;
    app.designs().loadTemplates();
    const Record *design = app.designs().currentDesign();
    if (!design)
        return 1;

    const QString css = longText(design->text(Design::css), 5000);
    const QString page = longText(design->text(Design::invoice), 2000);
    const Keystrokes cssKeys = typeInto(QStringLiteral("CSS"), css, prefs);
    const Keystrokes pageKeys = typeInto(QStringLiteral("HTML"), page, prefs);
    const double openMs = colourAtOpen(QStringLiteral("CSS"), css, prefs);

    // From the last keystroke (the texts handed over) to a loaded PDF.
    DesignPreview preview(app, app, app.outputs(), app.prefs(), app.ui());
    QPdfDocument pdf;
    std::vector<double> previews;
    for (int i = 0; i < 6; ++i) {
        QEventLoop loop;
        QElapsedTimer timer;
        double ms = -1;
        const auto ready = QObject::connect(&preview, &DesignPreview::ready, &loop, [&](const QString &path) {
            pdf.load(path);
            ms = double(timer.nsecsElapsed()) / 1e6;
            loop.quit();
        });
        QTimer::singleShot(60000, &loop, &QEventLoop::quit);
        timer.start();
        // A changed colour each time, as typing would.
        preview.setTexts(design->text(Design::invoice), design->text(Design::item),
                         design->text(Design::css) + QStringLiteral("\nh1 { color: #%1; }").arg(i, 6, 10, QLatin1Char('0')));
        loop.exec();
        QObject::disconnect(ready);
        if (ms < 0 || pdf.pageCount() < 1)
            return 1;
        if (i > 0) // the first warms the engine up
            previews.push_back(ms);
    }
    const double previewMs = median(previews);

    std::printf("Design editors (%lld-line stylesheet, %lld-line page)\n", qlonglong(css.count(QLatin1Char('\n')) + 1),
                qlonglong(page.count(QLatin1Char('\n')) + 1));
    std::printf("| %-52s | %-8s | %12s | %-4s |\n", "Measure", "Target", "Measured", "");
    std::printf("|------------------------------------------------------|----------|--------------|------|\n");
    row("recolour after a keystroke, stylesheet (median)", "< 2 ms", cssKeys.medianMs, cssKeys.medianMs < 2);
    row("  the same, 95th percentile", "-", cssKeys.p95Ms, true);
    row("recolour after a keystroke, page (median)", "< 2 ms", pageKeys.medianMs, pageKeys.medianMs < 2);
    row("  the same, 95th percentile", "-", pageKeys.p95Ms, true);
    row("colour the whole stylesheet at open", "< 100 ms", openMs, openMs < 100);
    row("last keystroke to the preview PDF loaded (median)", "< 400 ms", previewMs, previewMs < 400);
    row("  of which the wait after the last keystroke", "-", double(DesignPreview::kDelayMs), true);
    return 0;
}

} // namespace tabo::bench
