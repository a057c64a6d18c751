#include "gui/windows/DesignChoiceSheet.h"
#include "gui/windows/ExportSheet.h"
#include "app/EInvoiceCommands.h"
#include "gui/widgets/GuiInteraction.h"
#include "gui/windows/LetterSheet.h"
#include "gui/main/MainWindow.h"
#include "gui/windows/PdfPane.h"
#include "gui/windows/PreviewWindow.h"
#include "TestSupport.h"
#include "WindowFixture.h"

#include "app/AppController.h"
#include "app/DesignLibrary.h"
#include "app/OutputCommands.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "render/PdfEngine.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPrinter>
#include <QPushButton>
#include <QTimer>
#include <QComboBox>
#include <QtTest>

#include <memory>

using namespace tabo;

namespace {

constexpr int RenderTimeout = 60000;
const QString NoDesign = QStringLiteral("No design available. Please download or create a design.");

struct Fixture : test::WindowFixture
{
    QStringList unexpectedBoxes;
    QTimer boxGuard;

    explicit Fixture(bool withDesigns = true)
    {
        // No design may arrive behind the test's back.
        prefs.setBool(Preferences::isTabo2TemplateLoadingDone, true);
        window = std::make_unique<MainWindow>(app);
        ui.setParentWidget(window.get());
        app.prepare();
        app.start();
        if (withDesigns)
            app.designs().loadTemplates();
        // A box nobody answers would hang the test: close it and say so.
        boxGuard.callOnTimeout([this] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                unexpectedBoxes << box->text() + QLatin1Char(' ') + box->informativeText();
                qWarning() << "Unexpected message box:" << unexpectedBoxes.last();
                box->done(0);
            }
        });
        boxGuard.start(50);
    }

    QAction *action(const char *name) const { return window->findChild<QAction *>(QLatin1String(name)); }
    Record *newInvoice()
    {
        Record *doc = app.addInvoice();
        doc->setText(Invoice::title, QStringLiteral("Website"));
        app.documentChanged(doc);
        return doc;
    }
};

} // namespace

class TestOutputWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void previewShowsPdfAndRenewsOnRepeat();
    void exportSheetWaitsForPdf();
    void letterSheetAndDesignChoice();
    void withoutDesignsNothingRenders();
    void printSettingsBecomeOptions();
};

void TestOutputWindows::previewShowsPdfAndRenewsOnRepeat()
{
    Fixture f;
    QAction *preview = f.action("actionPreview");
    QVERIFY(!preview->isEnabled());
    f.newInvoice();
    QVERIFY(preview->isEnabled());
    QCOMPARE(preview->shortcut(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P));

    PreviewWindow *window = f.window->previewWindow();
    preview->trigger();
    QVERIFY(window->isVisible());
    QTRY_COMPARE_WITH_TIMEOUT(window->state(), PreviewWindow::State::Pdf, RenderTimeout);
    QVERIFY(window->pane()->pageCount() >= 1);
    QVERIFY(window->pane()->thumbnailsVisible());
    QCOMPARE(window->pane()->thumbnails()->count(), window->pane()->pageCount());

    // Asked again, the window starts over instead of keeping the old page.
    QSignalSpy ready(&f.app.outputs(), &OutputCommands::previewReady);
    preview->trigger();
    QCOMPARE(window->state(), PreviewWindow::State::Busy);
    QVERIFY(window->pane()->isEmpty());
    QVERIFY(!window->pane()->thumbnailsVisible());
    QTRY_COMPARE_WITH_TIMEOUT(ready.size(), 1, RenderTimeout);
    QCOMPARE(window->state(), PreviewWindow::State::Pdf);
    QVERIFY(window->pane()->pageCount() >= 1);

    f.app.setCurrentInvoice(nullptr);
    QVERIFY(!preview->isEnabled());
    QVERIFY(!window->printAction()->isEnabled());
    QVERIFY(f.unexpectedBoxes.isEmpty());
}

void TestOutputWindows::exportSheetWaitsForPdf()
{
    Fixture f;
    Record *doc = f.newInvoice();
    // Not yet due, so that sent stays sent.
    doc->setDate(Invoice::due, test::utc(2100, 1, 1));
    f.app.documentChanged(doc);
    f.prefs.setBool(Preferences::markInvoiceAsSent, true);
    ExportSheet *sheet = f.window->exportSheet();

    // Cancelled before its PDF arrives: the late PDF must not bring it back.
    QSignalSpy exportReady(&f.app.outputs(), &OutputCommands::exportReady);
    f.action("actionPrint")->trigger();
    QVERIFY(sheet->isVisible());
    QCOMPARE(sheet->titleLabel()->text(), QStringLiteral("Print Invoice"));
    QVERIFY(!sheet->okButton()->isEnabled());
    QVERIFY(!sheet->formChoice()->isVisibleTo(sheet)); // printing hands over paper only
    sheet->reject();
    QTRY_COMPARE_WITH_TIMEOUT(exportReady.size(), 1, RenderTimeout);
    QVERIFY(!sheet->isVisible());
    QVERIFY(!sheet->okButton()->isEnabled());
    QVERIFY(sheet->pane()->isEmpty());

    f.action("actionSavePdf")->trigger();
    QCOMPARE(sheet->titleLabel()->text(), QStringLiteral("Export Invoice As PDF File"));
    QVERIFY(!sheet->okButton()->isEnabled());
    // Return before the PDF is there does nothing.
    sheet->accept();
    QVERIFY(sheet->isVisible());
    QTRY_VERIFY_WITH_TIMEOUT(sheet->okButton()->isEnabled(), RenderTimeout);
    QVERIFY(sheet->pane()->pageCount() >= 1);

    const QString path = f.home.path() + QStringLiteral("/Invoice 1.pdf");
    GuiInteraction::setNextFileName(path);
    sheet->okButton()->click();
    QVERIFY(!sheet->isVisible());
    QVERIFY(sheet->pane()->isEmpty());
    QFile saved(path);
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QCOMPARE(saved.read(5), QByteArray("%PDF-"));
    QCOMPARE(doc->integer(Invoice::status), 1);
    QVERIFY(f.unexpectedBoxes.isEmpty());

    // With its e-invoice: the seller's details are missing, so the person
    // hears what, and no file is asked for or written.
    f.action("actionSavePdf")->trigger();
    QVERIFY(sheet->formChoice()->isVisibleTo(sheet));
    sheet->formChoice()->setCurrentIndex(EInvoiceCommands::FacturXPdf);
    Q_EMIT sheet->formChoice()->activated(EInvoiceCommands::FacturXPdf);
    QCOMPARE(f.prefs.integer(Preferences::einvoiceForm), 1);
    QTRY_VERIFY_WITH_TIMEOUT(sheet->okButton()->isEnabled(), RenderTimeout);
    const QString hybrid = f.home.path() + QStringLiteral("/Invoice 1 e.pdf");
    GuiInteraction::setNextAnswer(0);
    GuiInteraction::setNextFileName(hybrid);
    sheet->okButton()->click();
    QCOMPARE(GuiInteraction::lastAlertTitle(), QStringLiteral("The e-invoice cannot be written yet"));
    QVERIFY(GuiInteraction::lastAlertText().contains(QStringLiteral("The company's IBAN is missing")));
    QVERIFY(!QFile::exists(hybrid));
}

void TestOutputWindows::letterSheetAndDesignChoice()
{
    Fixture f;
    f.newInvoice();
    f.prefs.setString(Preferences::locReminder, QStringLiteral("Payment Reminder"));
    f.prefs.setString(Preferences::tempRemConditions, QStringLiteral("Please pay within 7 days."));
    f.prefs.setString(Preferences::tempRemMisc, QStringLiteral("Misc"));
    f.prefs.setString(Preferences::tempRemFooter, QStringLiteral("Thank you"));
    f.prefs.setString(Preferences::locSlip, QStringLiteral("Delivery Slip"));

    LetterSheet *sheet = f.window->letterSheet();
    f.action("actionDeliverySlip")->trigger();
    QCOMPARE(sheet->titleField()->text(), QStringLiteral("Delivery Slip"));
    QVERIFY(sheet->conditionsField()->toPlainText().isEmpty());
    sheet->reject();
    f.action("actionReminder")->trigger();
    QVERIFY(sheet->isVisible());
    QCOMPARE(sheet->titleField()->text(), QStringLiteral("Payment Reminder"));
    QCOMPARE(sheet->conditionsField()->toPlainText(), QStringLiteral("Please pay within 7 days."));
    QCOMPARE(sheet->miscField()->toPlainText(), QStringLiteral("Misc"));
    QCOMPARE(sheet->footerField()->toPlainText(), QStringLiteral("Thank you"));

    // The edited text is this letter's, not the preferences'.
    sheet->titleField()->setText(QStringLiteral("Second Reminder"));
    sheet->generateButton()->click();
    QVERIFY(!sheet->isVisible());
    PreviewWindow *preview = f.window->previewWindow();
    QVERIFY(preview->isVisible());
    QTRY_COMPARE_WITH_TIMEOUT(preview->state(), PreviewWindow::State::Pdf, RenderTimeout);
    QVERIFY(preview->pane()->pageCount() >= 1);
    QVERIFY(f.app.outputs().isReminderAction());
    QCOMPARE(f.app.outputs().letterMode().reminder.title, QStringLiteral("Second Reminder"));
    QCOMPARE(f.prefs.string(Preferences::locReminder), QStringLiteral("Payment Reminder"));

    // Opening a letter closes the preview; the slip from the preview's own
    // toolbar goes the same way.
    preview->slipAction()->trigger();
    QVERIFY(!preview->isVisible());
    QVERIFY(sheet->isVisible());
    sheet->reject();

    DesignChoiceSheet *choice = f.window->designChoiceSheet();
    f.action("actionChooseDesign")->trigger();
    QVERIFY(choice->isVisible());
    const QList<Record *> designs = f.app.designs().designs();
    QCOMPARE(choice->list()->count(), designs.size());
    QCOMPARE(designs.at(choice->list()->currentRow()), f.app.designs().currentDesign());
    QTRY_VERIFY_WITH_TIMEOUT(choice->okButton()->isEnabled(), RenderTimeout);
    QVERIFY(choice->pane()->pageCount() >= 1);
    const int other = choice->list()->currentRow() == 0 ? 1 : 0;
    choice->list()->setCurrentRow(other);
    QVERIFY(!choice->okButton()->isEnabled());
    QTRY_VERIFY_WITH_TIMEOUT(choice->okButton()->isEnabled(), RenderTimeout);
    QCOMPARE(f.prefs.integer(Preferences::selectedDesign), other);
    choice->okButton()->click();
    QCOMPARE(f.app.designs().currentDesign(), designs.at(other));
    QVERIFY(f.unexpectedBoxes.isEmpty());
}

void TestOutputWindows::withoutDesignsNothingRenders()
{
    Fixture f(false);
    f.newInvoice();
    QVERIFY(f.app.designs().designs().isEmpty());

    for (const char *name : { "actionPrint", "actionEmail", "actionChooseDesign" }) {
        GuiInteraction::setNextAnswer(0);
        f.action(name)->trigger();
        QCOMPARE(GuiInteraction::lastAlertText(), NoDesign);
        QVERIFY2(!f.window->exportSheet()->isVisible(), name);
        QVERIFY2(!f.window->designChoiceSheet()->isVisible(), name);
    }

    // The preview says what to do instead of showing an empty page, and can
    // do it.
    GuiInteraction::setNextAnswer(0);
    f.action("actionPreview")->trigger();
    QCOMPARE(GuiInteraction::lastAlertTitle(), QStringLiteral("Error!"));
    PreviewWindow *preview = f.window->previewWindow();
    QVERIFY(preview->isVisible());
    QCOMPARE(preview->state(), PreviewWindow::State::NoDesign);
    QVERIFY(preview->pane()->isEmpty());
    preview->findChild<QPushButton *>(QStringLiteral("reinstallDesigns"))->click();
    QVERIFY(!f.app.designs().designs().isEmpty());
    QTRY_COMPARE_WITH_TIMEOUT(preview->state(), PreviewWindow::State::Pdf, RenderTimeout);
    QVERIFY(preview->pane()->pageCount() >= 1);
    QVERIFY(f.unexpectedBoxes.isEmpty());
}

void TestOutputWindows::printSettingsBecomeOptions()
{
    using Settings = GuiInteraction::PrintSettings;
    Settings settings;
    settings.printer = QStringLiteral("Office");
    settings.copies = 3;
    settings.collate = false;
    settings.sides = Settings::LongEdge;
    settings.grayscale = true;
    settings.pageRanges = QStringLiteral("1-2,4");
    PrintRequest request;
    request.options = { QStringLiteral("sides=one-sided"), QStringLiteral("media=iso-a4") };
    GuiInteraction::applyPrintSettings(settings, request);
    QCOMPARE(request.printer, QStringLiteral("Office"));
    QCOMPARE(request.copies, 3);
    QCOMPARE(request.options,
        QStringList({ QStringLiteral("media=iso-a4"), QStringLiteral("sides=two-sided-long-edge"),
            QStringLiteral("page-ranges=1-2,4"), QStringLiteral("print-color-mode=monochrome"),
            QStringLiteral("collate=false") }));

    // Chosen again in colour, single-sided, all pages, once: the old choices go.
    settings = Settings();
    GuiInteraction::applyPrintSettings(settings, request);
    QCOMPARE(request.options, QStringList({ QStringLiteral("media=iso-a4"), QStringLiteral("sides=one-sided") }));
    QCOMPARE(request.copies, 1);

    settings.sides = Settings::Automatic;
    settings.orientation = QPageLayout::Landscape;
    GuiInteraction::applyPrintSettings(settings, request);
    QVERIFY(request.options.contains(QStringLiteral("sides=two-sided-short-edge")));

    // What the dialog's printer reports, and the hook that answers it.
    QPrinter printer;
    printer.setCopyCount(2);
    printer.setColorMode(QPrinter::GrayScale);
    printer.setPrintRange(QPrinter::PageRange);
    printer.setPageRanges(QPageRanges::fromString(QStringLiteral("2-3")));
    const Settings read = GuiInteraction::settingsFrom(printer);
    QCOMPARE(read.copies, 2);
    QVERIFY(read.grayscale);
    QCOMPARE(read.pageRanges, QStringLiteral("2-3"));

    GuiInteraction ui;
    PrintRequest asked;
    asked.printer = QStringLiteral("Office");
    GuiInteraction::setNextPrintAnswer(false);
    QVERIFY(!ui.printDialog(asked));
    GuiInteraction::setNextPrintAnswer(true, [](Settings &s) {
        s.copies = 2;
        s.sides = Settings::ShortEdge;
    });
    QVERIFY(ui.printDialog(asked));
    QCOMPARE(asked.printer, QStringLiteral("Office"));
    QCOMPARE(asked.copies, 2);
    QVERIFY(asked.options.contains(QStringLiteral("sides=two-sided-short-edge")));
}

int main(int argc, char **argv)
{
    PdfEngine::prepareApplication();
    QApplication app(argc, argv);
    TestOutputWindows test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestOutputWindows.moc"
