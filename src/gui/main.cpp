#include "app/AppController.h"
#include "app/InstanceBus.h"
#include "app/NotificationCommands.h"
#include "app/Notifier.h"
#include "app/OutputCommands.h"
#include "app/Translations.h"
#include "gui/main/MainWindow.h"
#include "gui/preferences/DesignPane.h"
#include "gui/preferences/FirstStartAssistant.h"
#include "gui/preferences/PreferencePanel.h"
#include "gui/widgets/GuiInteraction.h"
#include "gui/windows/CatalogueWindow.h"
#include "gui/windows/ExportSheet.h"
#include "gui/windows/NotificationSheet.h"
#include "gui/windows/PreviewWindow.h"
#include "gui/windows/PaymentReviewWindow.h"
#include "gui/windows/ReportWindow.h"
#include "gui/windows/ScheduleWindow.h"
#include "prefs/Preferences.h"
#include "render/PdfEngine.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QLayout>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>

#include <QCoreApplication>
#include <functional>
#include <memory>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(main)
};
} // namespace

using namespace tabo;

namespace {

// A sheet is a window of its own: drawn over the main window as it appears,
// made to fit it first.
QPixmap withSheet(QWidget &window, QWidget *sheet, int top)
{
    if (sheet->height() > window.height() - top) {
        sheet->resize(sheet->width(), window.height() - top);
        if (sheet->layout())
            sheet->layout()->activate();
    }
    QPixmap shot = window.grab();
    QPainter painter(&shot);
    painter.drawPixmap((shot.width() - sheet->width()) / 2, top, sheet->grab());
    return shot;
}

// Saves a screenshot for the documentation and ends the run.
void saveShot(const QPixmap &shot, const QString &target, QWidget &window)
{
    if (!shot.save(target))
        qWarning("Could not write the screenshot to %s", qPrintable(target));
    window.close();
}

// `shown` once it has had `ms` to lay out and paint.
void useDarkPalette()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QPalette dark;
    const QColor window(0x2b, 0x2b, 0x2b), base(0x1e, 0x1e, 0x1e), text(0xe8, 0xe8, 0xe8);
    dark.setColor(QPalette::Window, window);
    dark.setColor(QPalette::WindowText, text);
    dark.setColor(QPalette::Base, base);
    dark.setColor(QPalette::AlternateBase, QColor(0x26, 0x26, 0x26));
    dark.setColor(QPalette::ToolTipBase, window);
    dark.setColor(QPalette::ToolTipText, text);
    dark.setColor(QPalette::PlaceholderText, QColor(0x90, 0x90, 0x90));
    dark.setColor(QPalette::Text, text);
    dark.setColor(QPalette::Button, QColor(0x35, 0x35, 0x35));
    dark.setColor(QPalette::ButtonText, text);
    dark.setColor(QPalette::BrightText, Qt::red);
    dark.setColor(QPalette::Link, QColor(0x6c, 0xb4, 0xff));
    dark.setColor(QPalette::Highlight, QColor(0x3d, 0x7e, 0xd6));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : { QPalette::WindowText, QPalette::Text, QPalette::ButtonText })
        dark.setColor(QPalette::Disabled, role, QColor(0x80, 0x80, 0x80));
    QApplication::setPalette(dark);
}

void grabLater(QWidget *shown, int ms, const QString &target, QWidget &window)
{
    QTimer::singleShot(ms, shown, [shown, target, &window] { saveShot(shown->grab(), target, window); });
}

// Every pane of the preferences into `folder` ("1-Company.png" …), the Design
// pane with its stylesheet and live preview; then quits.
void grabPreferencePanes(tabo::MainWindow &window, const QString &folder)
{
    using tabo::QVPreferencePanel;
    QDir().mkpath(folder);
    QVPreferencePanel *panel = window.preferencePanel();
    panel->showPanel();
    auto next = std::make_shared<std::function<void(int)>>();
    *next = [panel, folder, next, &window](int pane) {
        if (pane == QVPreferencePanel::PaneCount) {
            panel->close();
            window.close();
            return;
        }
        panel->selectPane(QVPreferencePanel::Pane(pane));
        const bool design = pane == QVPreferencePanel::Design;
        if (design)
            panel->designPane()->showEditor(tabo::DesignPane::Stylesheet);
        // The Design pane waits for its sample page.
        QTimer::singleShot(design ? 2500 : 300, panel, [panel, folder, next, pane] {
            const QString file = QStringLiteral("%1/%2-%3.png").arg(folder).arg(pane + 1).arg(
                QVPreferencePanel::paneLabel(QVPreferencePanel::Pane(pane)));
            if (!panel->grab().save(file))
                qWarning("Could not write the screenshot to %s", qPrintable(file));
            (*next)(pane + 1);
        });
    };
    (*next)(0);
}

} // namespace

int main(int argc, char **argv)
{
    // The web engine's flags only count before the application object exists.
    // The web engine reports its graphics set-up at every start; QT_LOGGING_RULES
    // still turns it back on.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext.info=false"));
    PdfEngine::prepareApplication();
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tabo"));
    QApplication::setApplicationVersion(QStringLiteral(TABO_VERSION));
    QApplication::setOrganizationName(QString());
    installTranslations(application);

    QCommandLineParser parser;
    parser.setApplicationDescription(Tr::tr("Invoices and quotes for freelancers and small businesses."));
    parser.addHelpOption();
    parser.addVersionOption();
    // Options for documentation screenshots: each grabs a window once it has
    // started (the preview once its PDF is shown) and quits.
    const auto hidden = [&parser](const char *name, const char *value) {
        QCommandLineOption option(QString::fromLatin1(name), QString(), QString::fromLatin1(value));
        option.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOption(option);
        return option;
    };
    const QCommandLineOption screenshot = hidden("screenshot", "file");
    const QCommandLineOption screenshotPreview = hidden("screenshot-preview", "file");
    const QCommandLineOption screenshotPreferences = hidden("screenshot-preferences", "folder");
    const QCommandLineOption screenshotSearch = hidden("screenshot-search", "text");
    const QCommandLineOption screenshotCatalogue = hidden("screenshot-catalogue", "file");
    const QCommandLineOption screenshotReport = hidden("screenshot-report", "file");
    const QCommandLineOption screenshotExport = hidden("screenshot-export", "file");
    const QCommandLineOption screenshotReminder = hidden("screenshot-reminder", "file");
    const QCommandLineOption screenshotAssistant = hidden("screenshot-assistant", "file");
    const QCommandLineOption screenshotPayments = hidden("screenshot-payments", "file");
    const QCommandLineOption screenshotStatement = hidden("screenshot-statement", "file");
    const QCommandLineOption screenshotSchedules = hidden("screenshot-schedules", "file");
    // The Fusion style in dark colours, as a dark desktop theme shows the window.
    QCommandLineOption dark(QStringLiteral("dark"));
    dark.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(dark);
    // A click on a reminder delivered while Tabo was closed starts it so.
    QCommandLineOption showInvoice(QStringLiteral("show-invoice"),
        Tr::tr("Start with the list filtered to the invoice with this unique ID."), QStringLiteral("uniqueID"));
    parser.addOption(showInvoice);
    // The desktop entry's actions.
    const QCommandLineOption newInvoice(QStringLiteral("new-invoice"), Tr::tr("Start with a new invoice."));
    const QCommandLineOption newQuote(QStringLiteral("new-quote"), Tr::tr("Start with a new quote."));
    parser.addOption(newInvoice);
    parser.addOption(newQuote);
    parser.addPositionalArgument(QStringLiteral("files"), Tr::tr("Documents, designs, backups or e-invoices to open."));
    parser.process(application);
    QGuiApplication::setDesktopFileName(DBusNotifier::kDesktopEntry);
    const bool grabbing = parser.isSet(screenshot) || parser.isSet(screenshotPreview)
        || parser.isSet(screenshotPreferences) || parser.isSet(screenshotCatalogue) || parser.isSet(screenshotReport)
        || parser.isSet(screenshotReminder) || parser.isSet(screenshotExport) || parser.isSet(screenshotAssistant)
        || parser.isSet(screenshotPayments) || parser.isSet(screenshotSchedules);
    const bool newDocument = parser.isSet(newInvoice) || parser.isSet(newQuote);
    // A running Tabo takes the request; this process then has nothing to do.
    if (parser.isSet(showInvoice)) {
        if (InstanceBus::forwardShowInvoice(parser.value(showInvoice)))
            return 0;
    } else if (newDocument) {
        if (InstanceBus::forwardNewDocument(parser.isSet(newInvoice)))
            return 0;
    } else if (!parser.positionalArguments().isEmpty()) {
        if (InstanceBus::forwardOpen(parser.positionalArguments()))
            return 0;
    } else if (!grabbing && InstanceBus::forwardActivate()) {
        return 0;
    }

    if (parser.isSet(dark))
        useDarkPalette();

    auto settings = std::make_unique<Preferences>();
    if (const Error refused = settings->loadError()) {
        // Nothing is written over a damaged or held settings file; the kept
        // good copy can take its place.
        const bool kept = QFileInfo(settings->backupFilePath()).isFile();
        QMessageBox box(QMessageBox::Critical, Tr::tr("Error!"), refused.text);
        QPushButton *restore
            = kept ? box.addButton(Tr::tr("Restore Last Good Settings"), QMessageBox::AcceptRole) : nullptr;
        box.addButton(Tr::tr("Quit"), QMessageBox::RejectRole);
        box.exec();
        if (!restore || box.clickedButton() != restore)
            return 1;
        if (const Error e = settings->restoreBackup()) {
            QMessageBox::critical(nullptr, Tr::tr("Error!"), e.text);
            return 1;
        }
        settings = std::make_unique<Preferences>();
        if (const Error e = settings->loadError()) {
            QMessageBox::critical(nullptr, Tr::tr("Error!"), e.text);
            return 1;
        }
    }
    Preferences &prefs = *settings;
    GuiInteraction ui;
    AppController controller(prefs, ui);
    QObject::connect(
        &controller, &AppController::terminateRequested, &application, &QCoreApplication::quit, Qt::QueuedConnection);

    // The order matters: building the window opens the store before the
    // start-up steps mark the installation as started once.
    MainWindow window(controller);
    ui.setParentWidget(&window);
    controller.prepare();
    window.show();
    controller.start();
    if (controller.needsFirstStartAssistant() && !grabbing) {
        QTimer::singleShot(350, &window, [&window, &controller] {
            FirstStartAssistant assistant(controller, &window);
            assistant.exec();
        });
    }

    InstanceBus instance;
    if (instance.registerInstance())
        window.takeRequestsFrom(instance);
    if (newDocument) {
        const bool invoice = parser.isSet(newInvoice);
        window.whenFree([&window, invoice] { (invoice ? window.newInvoiceAction() : window.newQuoteAction())->trigger(); });
    }
    controller.notifications().startDelivering();
    // Repeated invoices whose day came while Tabo was closed, after the assistant.
    window.whenFree([&controller] { controller.runRecurring(); });
    if (parser.isSet(showInvoice)) {
        const QString id = parser.value(showInvoice);
        QTimer::singleShot(0, &controller, [&controller, id] { controller.notifications().didActivateNotification(id); });
    }

    // After the first-start assistant, should it be open.
    const QStringList files = parser.positionalArguments();
    if (!files.isEmpty())
        window.whenFree([&window, files] { window.openFiles(files); });

    if (parser.isSet(screenshotSearch))
        window.searchField()->setText(parser.value(screenshotSearch));
    if (parser.isSet(screenshotCatalogue)) {
        const QString target = parser.value(screenshotCatalogue);
        QTimer::singleShot(400, &window, [&window, target] {
            CatalogueWindow *catalogue = window.catalogueWindow();
            catalogue->show();
            grabLater(catalogue, 300, target, window);
        });
    }
    if (parser.isSet(screenshot)) {
        const QString target = parser.value(screenshot);
        grabLater(&window, 400, target, window);
    }
    if (parser.isSet(screenshotPreview)) {
        const QString target = parser.value(screenshotPreview);
        PreviewWindow *preview = window.previewWindow();
        auto grab = [preview, &window, target] { grabLater(preview, 600, target, window); };
        QObject::connect(&controller.outputs(), &OutputCommands::previewReady, preview, grab, Qt::QueuedConnection);
        QTimer::singleShot(400, &window, [preview, grab] {
            if (!preview->showPreview())
                grab();
        });
    }
    if (parser.isSet(screenshotReport)) {
        const QString target = parser.value(screenshotReport);
        QTimer::singleShot(400, &window, [&window, target] {
            ReportWindow *report = window.reportWindow();
            report->toggle();
            grabLater(report, 2500, target, window); // the report waits for its PDF
        });
    }
    if (parser.isSet(screenshotExport)) {
        const QString target = parser.value(screenshotExport);
        QTimer::singleShot(400, &window, [&window, &controller, target] {
            controller.prefs().setInteger(Preferences::einvoiceForm, 1);
            ExportSheet *sheet = window.exportSheet();
            if (!sheet->begin(OutputCommands::SavePdf, &window)) {
                window.close();
                return;
            }
            sheet->resize(sheet->width(), window.height() - 30);
            // The sheet waits for its PDF.
            QTimer::singleShot(2500, sheet, [&window, sheet, target] { saveShot(withSheet(window, sheet, 30), target, window); });
        });
    }
    if (parser.isSet(screenshotPayments)) {
        const QString target = parser.value(screenshotPayments);
        const QString statement = parser.value(screenshotStatement);
        QTimer::singleShot(400, &window, [&window, &controller, target, statement] {
            PaymentReviewWindow *review = PaymentReviewWindow::review(controller, statement, &window);
            if (!review) {
                window.close();
                return;
            }
            QTimer::singleShot(400, review, [&window, review, target] {
                const QPixmap shot = review->grab();
                review->close(); // a window still open would keep the run going
                saveShot(shot, target, window);
            });
        });
    }
    if (parser.isSet(screenshotSchedules)) {
        const QString target = parser.value(screenshotSchedules);
        QTimer::singleShot(400, &window, [&window, &controller, target] {
            ScheduleWindow *schedules = window.scheduleWindow();
            schedules->showFor(controller.currentInvoice());
            QTimer::singleShot(400, schedules, [&window, schedules, target] {
                const QPixmap shot = schedules->grab();
                schedules->close();
                saveShot(shot, target, window);
            });
        });
    }
    if (parser.isSet(screenshotReminder)) {
        const QString target = parser.value(screenshotReminder);
        QTimer::singleShot(400, &window, [&window, target] {
            NotificationSheet *sheet = window.notificationSheet();
            if (!sheet->begin()) {
                window.close();
                return;
            }
            QTimer::singleShot(400, sheet, [&window, sheet, target] { saveShot(withSheet(window, sheet, 60), target, window); });
        });
    }
    if (parser.isSet(screenshotAssistant)) {
        const QString target = parser.value(screenshotAssistant);
        QTimer::singleShot(400, &window, [&window, &controller, target] {
            auto *assistant = new FirstStartAssistant(controller, &window);
            assistant->setAttribute(Qt::WA_DeleteOnClose);
            assistant->show();
            grabLater(assistant, 400, target, window);
        });
    }
    if (parser.isSet(screenshotPreferences)) {
        const QString folder = parser.value(screenshotPreferences);
        QTimer::singleShot(400, &window, [&window, folder] { grabPreferencePanes(window, folder); });
    }
    return application.exec();
}
