#include "FirstStartAssistant.h"
#include "GuiInteraction.h"
#include "MainWindow.h"
#include "app/AppController.h"
#include "prefs/Preferences.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

using namespace tabo;

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Tabo"));
    QApplication::setOrganizationName(QString());

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Invoices and quotes for freelancers and small businesses."));
    parser.addHelpOption();
    // Grabs the window once it has started and quits: for documentation.
    QCommandLineOption screenshot(QStringLiteral("screenshot"), QString(), QStringLiteral("file"));
    screenshot.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOption(screenshot);
    parser.addPositionalArgument(
        QStringLiteral("files"), QStringLiteral("Refused: open documents from the File menu."));
    parser.process(application);

    Preferences prefs;
    GuiInteraction ui;
    AppController controller(prefs, ui);
    QObject::connect(
        &controller, &AppController::terminateRequested, &application, &QCoreApplication::quit, Qt::QueuedConnection);

    // The order matters: building the window opens the store before the
    // start-up steps mark the installation as started once.
    MainWindow window(controller);
    ui.setParentWidget(&window);
    controller.awakeFromNib();
    window.show();
    controller.applicationDidFinishLaunching();
    if (controller.needsFirstStartAssistant() && !parser.isSet(screenshot)) {
        QTimer::singleShot(350, &window, [&window, &controller] {
            FirstStartAssistant assistant(controller, &window);
            assistant.exec();
        });
    }

    const QStringList files = parser.positionalArguments();
    for (const QString &file : files)
        QTimer::singleShot(0, &controller, [&controller, file] { controller.applicationOpenFile(file); });

    if (parser.isSet(screenshot)) {
        const QString target = parser.value(screenshot);
        QTimer::singleShot(400, &window, [&window, target] {
            if (!window.grab().save(target))
                qWarning("Could not write the screenshot to %s", qPrintable(target));
            window.close();
        });
    }
    return application.exec();
}
