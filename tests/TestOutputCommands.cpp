// Preview, export sheet, print, PDF and e-mail of the current document, with
// stand-ins for `lp` and `xdg-email` and the PDFs read back with poppler-utils.

#include "CommandSupport.h"

#include "app/DesignLibrary.h"
#include "app/ItemCommands.h"
#include "app/OutputCommands.h"
#include "domain/Record.h"
#include "render/Formatters.h"
#include "render/PageStamp.h"
#include "render/PdfEngine.h"
#include "store/Store.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

using namespace tabo;
using P = Preferences;

namespace {

QString tool(const QString &name, const QStringList &args)
{
    QProcess p;
    p.start(name, args);
    p.waitForFinished(30000);
    return QString::fromUtf8(p.readAllStandardOutput());
}

QString pdfText(const QString &pdf)
{
    return tool(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")}).simplified();
}

struct Fixture : test::ControllerFixture
{
    FixedClock clock{test::utc(2026, 3, 1)};
    OutputCommands &out = app.outputs();
    Record *doc = nullptr;

    explicit Fixture(bool designs = true)
    {
        Clock::setInstance(&clock);
        app.store();
        if (designs)
            app.designs().loadTemplates();
        prefs.setString(P::prefsName, QStringLiteral("Acme Studio"));
        doc = app.addInvoice();
        doc->setText(Invoice::customerName, QStringLiteral("Erika Muster"));
        doc->setText(Invoice::title, QStringLiteral("Invoice"));
        doc->setText(Invoice::emailAddress, QStringLiteral("erika@example.org"));
        doc->setDate(Invoice::due, test::utc(2026, 4, 1));
        app.items().addItem({QStringLiteral("Consulting"), {}, {}, {}, {}, QStringLiteral("1234.5"),
                             QStringLiteral("2"), false, false, false}).value();
        app.documentChanged(doc);
    }
    ~Fixture() { Clock::setInstance(nullptr); }

    // Renders for the export sheet of `kind` and presses OK.
    bool exportAs(int kind)
    {
        QSignalSpy ready(&out, &OutputCommands::exportReady);
        if (!out.openExport(kind) || (ready.isEmpty() && !ready.wait(60000)))
            return false;
        out.exportCommand();
        return !out.isBusy();
    }
};

} // namespace

class TestOutputCommands : public QObject
{
    Q_OBJECT

    QTemporaryDir m_bin;

    // The arguments of the last run of a stand-in, or empty when it did not run.
    QStringList standInArgs(const QString &name)
    {
        QFile f(m_bin.filePath(name + QStringLiteral(".args")));
        if (!f.open(QIODevice::ReadOnly))
            return {};
        QStringList args = QString::fromUtf8(f.readAll()).split(QChar(0));
        args.removeLast();
        f.remove();
        return args;
    }

private Q_SLOTS:
    void initTestCase()
    {
        for (const char *name : {"lp", "xdg-email"}) {
            QFile script(m_bin.filePath(name));
            QVERIFY(script.open(QIODevice::WriteOnly));
            script.write(QStringLiteral("#!/bin/sh\nprintf '%s\\0' \"$@\" > '%1.args'\n")
                             .arg(m_bin.filePath(name))
                             .toUtf8());
            script.close();
            script.setPermissions(script.permissions() | QFile::ExeOwner);
        }
        qputenv("PATH", m_bin.path().toUtf8() + ':' + qgetenv("PATH"));
    }

    void refusesWithoutDesigns()
    {
        Fixture f(false);
        QVERIFY(!f.out.showPreview());
        QVERIFY(!f.out.openExport(OutputCommands::Print));
        QVERIFY(!f.out.openExport(OutputCommands::Email));
        QCOMPARE(f.ui.alerts.size(), 3);
        QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Error!"));
        QCOMPARE(f.ui.lastAlertText(), QStringLiteral("No design available. Please download or create a design."));
        QCOMPARE(f.ui.alerts.last().buttons, QStringList{QStringLiteral("OK")});
        f.out.selectDesign(0);
        QCOMPARE(f.ui.alerts.size(), 4);
        QVERIFY(!QFile::exists(f.app.pdfPath()));
        QVERIFY(!f.out.isBusy());
    }

    // A batch renders each document it is given; the window's document
    // stays, and nothing tells the views that it changed.
    void batchLeavesTheCurrentDocument()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext (poppler-utils) is missing");
        Fixture f;
        Record *other = f.app.addInvoice();
        other->setText(Invoice::customerName, QStringLiteral("Hans Beispiel"));
        f.app.setCurrentInvoice(f.doc);
        QSignalSpy current(&f.app, &AppController::currentInvoiceChanged);
        QTemporaryDir dir;
        const QStringList paths{dir.filePath(QStringLiteral("a.pdf")), dir.filePath(QStringLiteral("b.pdf"))};
        QVERIFY(f.out.renderToFiles({f.out.request(*f.doc), f.out.request(*other)}, paths).isEmpty());
        QCOMPARE(f.app.currentInvoice(), f.doc);
        QCOMPARE(current.size(), 0);
        QVERIFY(pdfText(paths[0]).contains(QStringLiteral("Erika Muster")));
        QVERIFY(pdfText(paths[1]).contains(QStringLiteral("Hans Beispiel")));
        QVERIFY(!pdfText(paths[1]).contains(QStringLiteral("Erika Muster")));
        QVERIFY(f.out.invoiceHTMLString(f.out.request(*other)).contains(QStringLiteral("Hans Beispiel")));
        QCOMPARE(f.app.currentInvoice(), f.doc);

        // Several pages are numbered and name the document; one page is not.
        QVERIFY(!pdfText(paths[0]).contains(QStringLiteral("Page 1")));
        f.prefs.setString(P::locPageOf, QStringLiteral("Seite %1 von %2"));
        f.app.setCurrentInvoice(other);
        for (int i = 0; i < 45; ++i)
            QVERIFY(f.app.items().addItem({QStringLiteral("Line %1").arg(i), {}, {}, {}, {}, QStringLiteral("10"),
                                           QStringLiteral("1"), false, false, false}).value());
        other->setText(Invoice::number, QStringLiteral("RE-7"));
        QVERIFY(f.out.renderToFile(f.out.request(*other), paths[1]));
        const QString text = pdfText(paths[1]);
        const QString count = QString::number(text.count(QStringLiteral("RE-7 · Seite ")));
        QVERIFY2(count.toInt() >= 2 && text.contains(QStringLiteral("RE-7 · Seite %1 von %1").arg(count)),
                 qPrintable(text.right(300)));
        QCOMPARE(PageStamp::patternFor(QString(), QStringLiteral("Page")), QStringLiteral("Page %1 / %2"));
    }

    void previewAndLetters()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext (poppler-utils) is missing");
        Fixture f;
        f.prefs.setString(P::locReminder, QStringLiteral("Payment Reminder"));
        f.prefs.setString(P::tempRemConditions, QStringLiteral("Please pay within seven days."));
        f.prefs.setString(P::locSlip, QStringLiteral("Delivery Slip"));
        f.prefs.setString(P::tempSlipFooter, QStringLiteral("Handle with care"));
        QSignalSpy ready(&f.out, &OutputCommands::previewReady);

        const LetterTexts reminder = f.out.openReminderSheet();
        QCOMPARE(reminder.title, QStringLiteral("Payment Reminder"));
        QCOMPARE(reminder.conditions, QStringLiteral("Please pay within seven days."));
        f.out.generateReminder(reminder);
        QVERIFY(f.out.isReminderAction() && !f.out.isSlipAction());
        QVERIFY(ready.wait(60000));
        QString text = pdfText(ready.last().at(0).toString());
        QVERIFY2(text.contains(QStringLiteral("Payment Reminder")), qPrintable(text));
        QVERIFY(text.contains(QStringLiteral("Please pay within seven days.")));

        const LetterTexts slip = f.out.openSlipSheet();
        QCOMPARE(slip.footer, QStringLiteral("Handle with care"));
        f.out.generateSlip(slip);
        QVERIFY(f.out.isSlipAction() && !f.out.isReminderAction());
        QVERIFY(ready.wait(60000));
        text = pdfText(f.app.pdfPath());
        QVERIFY2(text.contains(QStringLiteral("Delivery Slip")) && text.contains(QStringLiteral("Handle with care")),
                 qPrintable(text));

        f.prefs.setBool(P::isMainPreviewAction, false);
        QVERIFY(f.out.showPreview());
        QVERIFY(!f.out.isReminderAction() && !f.out.isSlipAction());
        QVERIFY(f.prefs.boolean(P::isMainPreviewAction));
        QVERIFY(ready.wait(60000));
        text = pdfText(f.app.pdfPath());
        QVERIFY2(text.contains(QStringLiteral("Erika Muster")), qPrintable(text));
        QVERIFY2(text.contains(f.out.formatters().stringFromNumber(2469)), qPrintable(text));
        QVERIFY(!text.contains(QStringLiteral("Delivery Slip")));
        QVERIFY(f.ui.alerts.isEmpty() && !f.out.isBusy());
    }

    // Every built-in design: one line fills one page with a payment code a
    // banking app reads; forty lines fill a few pages, not thousands.
    void everyDesignFillsItsPages()
    {
        for (const char *tool : {"pdfinfo", "pdftoppm", "zbarimg"})
            if (QStandardPaths::findExecutable(QLatin1String(tool)).isEmpty())
                QSKIP("poppler-utils or zbar-tools are missing (scripts/setup.sh installs them)");
        Fixture f;
        f.prefs.setString(P::prefsCurrencyCode, QStringLiteral("EUR"));
        f.prefs.setString(P::prefsIBAN, QStringLiteral("DE02120300000000202051"));
        f.prefs.setString(P::prefsBIC, QStringLiteral("BYLADEM1001"));
        f.app.documentChanged(f.doc);
        const QString pdf = f.home.path() + QStringLiteral("/design.pdf");
        const auto pages = [&] {
            static const QRegularExpression count(QStringLiteral("Pages:\\s*(\\d+)"));
            return count.match(tool(QStringLiteral("pdfinfo"), {pdf})).captured(1).toInt();
        };
        f.app.designs().loadTabo2Template(); // the thirteenth, which a reload of the others leaves out
        const QList<Record *> designs = f.app.designs().designs();
        QCOMPARE(designs.size(), 13);
        for (const Record *design : designs) {
            const QString title = design->text(Design::title);
            QVERIFY2(f.out.renderToFile(f.out.request(*f.doc, {}, design), pdf), qPrintable(title));
            QVERIFY2(pages() == 1, qPrintable(title));
            const QString png = f.home.path() + QStringLiteral("/page");
            tool(QStringLiteral("pdftoppm"), {QStringLiteral("-r"), QStringLiteral("200"), QStringLiteral("-png"),
                                              QStringLiteral("-singlefile"), pdf, png});
            const QString code = tool(QStringLiteral("zbarimg"), {QStringLiteral("-q"), QStringLiteral("--raw"),
                                                                  png + QStringLiteral(".png")});
            QVERIFY2(code.startsWith(QStringLiteral("BCD\n002\n1\nSCT\nBYLADEM1001\nAcme Studio\n")), qPrintable(title + code));
            QVERIFY(!pdfText(pdf).contains(QStringLiteral("Logo Image")));
        }
        for (int i = 1; i < 40; ++i)
            f.app.items().addItem({QStringLiteral("Line %1").arg(i), QStringLiteral("A second line of text"), {}, {},
                                   {}, QStringLiteral("10"), QStringLiteral("1"), false, false, false}).value();
        QCOMPARE(f.doc->toMany(Invoice::items).size(), 40);
        for (const Record *design : designs) {
            QVERIFY(f.out.renderToFile(f.out.request(*f.doc, {}, design), pdf));
            QVERIFY2(pages() >= 2 && pages() <= 6, qPrintable(design->text(Design::title) + QString::number(pages())));
        }
        QVERIFY(f.ui.alerts.isEmpty());

        // A design that lays out far more pages than 40 lines can fill is
        // refused by name, and no PDF is left.
        Record *runaway = f.app.store()->insert(EntityId::Design);
        runaway->setText(Design::title, QStringLiteral("Tall"));
        runaway->setText(Design::invoice, QStringLiteral("<html><body>%ITEMSLIST%<div style=\"height:150000mm\"></div></body></html>"));
        runaway->setText(Design::item, QStringLiteral("<p>%ITEMSTITLE%</p>"));
        runaway->setText(Design::css, QStringLiteral("p{}"));
        QVERIFY(!f.out.renderToFile(f.out.request(*f.doc, {}, runaway), pdf));
        QVERIFY(!QFile::exists(pdf));
        QVERIFY2(f.ui.errors.value(0).text.startsWith(QStringLiteral("The design “Tall” laid the document out on")),
                 qPrintable(f.ui.errors.value(0).text));
    }

    void paperAndMargins()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdfinfo")).isEmpty())
            QSKIP("pdfinfo (poppler-utils) is missing");
        Fixture f;
        QSignalSpy ready(&f.out, &OutputCommands::previewReady);
        auto render = [&](qint64 paper, bool borderless) {
            f.prefs.setInteger(P::tempPaperSize, paper);
            f.prefs.setBool(P::printBorderless, borderless);
            f.out.generatePreview();
            if (!ready.wait(60000))
                return QString();
            static const QRegularExpression size(QStringLiteral("Page size:\\s*(.*)"));
            return size.match(tool(QStringLiteral("pdfinfo"), {f.app.pdfPath()})).captured(1).trimmed();
        };
        // The left edge of the leftmost word on page 1.
        auto left = [&] {
            const QString bbox = tool(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), QStringLiteral("-l"),
                                                                    QStringLiteral("1"), f.app.pdfPath(),
                                                                    QStringLiteral("-")});
            double x = 1e9;
            const QRegularExpression re(QStringLiteral("<word xMin=\"([\\d.]+)\""));
            for (auto it = re.globalMatch(bbox); it.hasNext();)
                x = std::min(x, it.next().captured(1).toDouble());
            return x;
        };
        // The engine rounds to whole pixels; pdfinfo still names the paper.
        QVERIFY(render(2, false).endsWith(QStringLiteral("pts (A4)")));
        const double framed = left();
        QVERIFY(render(7, true).endsWith(QStringLiteral("pts (letter)")));
        const double borderless = left();
        QVERIFY2(qAbs(framed - borderless - 40) < 1.5, qPrintable(QStringLiteral("%1 %2").arg(framed).arg(borderless)));
    }

    void exportPathsMarkAsSent()
    {
        Fixture f;
        f.prefs.setBool(P::markInvoiceAsSent, true);
        f.prefs.setString(P::tempEmailBody, QStringLiteral("Dear Erika,\nplease find the invoice attached."));
        const QString title = f.out.jobTitle(*f.doc);
        QCOMPARE(title, QStringLiteral("Acme Studio | Invoice | %1").arg(f.doc->text(Invoice::number)));
        auto reset = [&](int status) {
            f.doc->setInt(Invoice::status, status);
            f.app.documentChanged(f.doc);
        };

        reset(3); // paid: printing again opens it again
        QVERIFY(f.app.summary().paidAmount > 0);
        QSignalSpy summaryChanged(&f.app, &AppController::summaryChanged);
        QVERIFY(f.exportAs(OutputCommands::Print));
        QCOMPARE(f.prefs.string(P::currentPrintJobTitle), title);
        const QStringList lp = standInArgs(QStringLiteral("lp"));
        QVERIFY2(lp.contains(title) && lp.last() == f.app.pdfPath(), qPrintable(lp.join(u' ')));
        QCOMPARE(f.doc->integer(Invoice::status), 1);
        // ... and the summary no longer counts it as paid.
        QVERIFY(!summaryChanged.isEmpty());
        QCOMPARE(f.app.summary().paidAmount, 0.0f);
        QVERIFY(!f.doc->boolean(Invoice::isPaid));

        reset(0);
        f.prefs.setInteger(P::printBehavior, 1);
        f.ui.printAnswer = false;
        QVERIFY(f.exportAs(OutputCommands::Print));
        QCOMPARE(f.ui.printRequests.size(), 1);
        QCOMPARE(f.ui.printRequests.last().jobTitle, title);
        QVERIFY(standInArgs(QStringLiteral("lp")).isEmpty());
        QCOMPARE(f.doc->integer(Invoice::status), 1);

        reset(0);
        QVERIFY(f.exportAs(OutputCommands::SavePdf)); // the panel is cancelled
        QCOMPARE(f.ui.fileRequests.last().title, QStringLiteral("Export As PDF File"));
        QCOMPARE(f.ui.fileRequests.last().extensions, QStringList{QStringLiteral("pdf")});
        QVERIFY(f.ui.fileRequests.last().canCreateFolders);
        QCOMPARE(f.doc->integer(Invoice::status), 1);

        reset(0);
        const QString saved = f.home.path() + QStringLiteral("/out/invoice.pdf");
        QDir().mkpath(f.home.path() + QStringLiteral("/out"));
        QFile old(saved);
        QVERIFY(old.open(QIODevice::WriteOnly) && old.write("old") == 3);
        old.close();
        f.ui.files << saved;
        QVERIFY(f.exportAs(OutputCommands::SavePdf));
        QFile pdf(saved);
        QVERIFY(pdf.open(QIODevice::ReadOnly) && pdf.read(5) == "%PDF-");
        QCOMPARE(f.doc->integer(Invoice::status), 1);

        reset(0);
        QVERIFY(f.exportAs(OutputCommands::Email));
        const QStringList mail = standInArgs(QStringLiteral("xdg-email"));
        const QString body = QStringLiteral("Dear Erika,\nplease find the invoice attached.\n\n\n")
                             + QString(96, u'-') + QStringLiteral("\n\n");
        QCOMPARE(mail, (QStringList{QStringLiteral("--subject"), title, QStringLiteral("--body"), body,
                                    QStringLiteral("--attach"), f.app.pdfEmailPath(),
                                    QStringLiteral("erika@example.org")}));
        QVERIFY(QFile::exists(f.app.pdfEmailPath()));
        QCOMPARE(f.doc->integer(Invoice::status), 1);

        // Without a mail program the person is told so and offered the PDF.
        reset(0);
        QFile mailer(m_bin.filePath(QStringLiteral("xdg-email")));
        QVERIFY(mailer.open(QIODevice::ReadOnly));
        const QByteArray script = mailer.readAll();
        mailer.close();
        QVERIFY(mailer.open(QIODevice::WriteOnly) && mailer.write("#!/bin/sh\necho 'xdg-email: no method' >&2\nexit 3\n"));
        mailer.close();
        const QString mailed = QDir(f.home.path()).filePath(QStringLiteral("mailed.pdf"));
        f.ui.answers = {0};
        f.ui.files << mailed;
        QVERIFY(f.exportAs(OutputCommands::Email));
        QCOMPARE(f.ui.lastAlertText().section(u'\n', 0, 0), QStringLiteral("No e-mail program is set up on this computer."));
        QCOMPARE(f.ui.alerts.last().buttons.first(), QStringLiteral("Save PDF…"));
        QVERIFY(QFile::exists(mailed));
        QVERIFY(mailer.open(QIODevice::WriteOnly) && mailer.write(script));
        mailer.close();
        f.ui.alerts.clear();

        reset(0);
        QVERIFY(f.exportAs(9));
        QCOMPARE(f.doc->integer(Invoice::status), 1);
        QVERIFY(f.ui.alerts.isEmpty());
    }

    void quotesAndSwitchedOffStayAsTheyAre()
    {
        Fixture f;
        f.prefs.setBool(P::markInvoiceAsSent, true);
        Record *quote = f.app.addQuote();
        quote->setText(Invoice::emailAddress, QStringLiteral("q@example.org"));
        QVERIFY(f.exportAs(OutputCommands::Email));
        QCOMPARE(quote->integer(Invoice::status), 0);
        // No body set: no body and no hyphen line.
        const QStringList mail = standInArgs(QStringLiteral("xdg-email"));
        QVERIFY(!mail.isEmpty() && !mail.contains(QStringLiteral("--body")));
        QVERIFY(!mail.join(u' ').contains(QString(96, u'-')));

        f.prefs.setBool(P::markInvoiceAsSent, false);
        f.app.setCurrentInvoice(f.doc);
        QVERIFY(f.exportAs(OutputCommands::Email));
        QCOMPARE(f.doc->integer(Invoice::status), 0);
    }

    void designChoice()
    {
        Fixture f;
        QSignalSpy ready(&f.out, &OutputCommands::designPreviewReady);
        f.out.selectDesign(2);
        QCOMPARE(f.prefs.integer(P::selectedDesign), 2);
        QVERIFY(ready.wait(60000));
        f.out.selectDesign(99);
        QCOMPARE(f.ui.lastAlertText(), QStringLiteral("Something went really wrong while creating the design preview."));
        QVERIFY(!f.out.isBusy());
    }
};

int main(int argc, char **argv)
{
    tabo::PdfEngine::prepareApplication();
    QGuiApplication app(argc, argv);
    TestOutputCommands test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestOutputCommands.moc"
