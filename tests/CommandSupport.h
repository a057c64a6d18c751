#pragma once

#include "TestSupport.h"

#include "app/AppController.h"
#include "app/Interaction.h"
#include "prefs/Preferences.h"

#include <QList>

namespace tabo::test {

// Answers alerts and panels from a script and records what was shown.
class FakeInteraction : public Interaction
{
public:
    struct Shown
    {
        QString title;
        QString text;
        QStringList buttons;
        int defaultButton = 0;
    };
    QList<Shown> alerts;
    QList<Error> errors;
    QList<FileRequest> fileRequests;
    QList<int> answers;  // next alert answers; 0 (the first button) when empty
    QStringList files;   // next panel results; "" (cancel) when empty

    int alert(const QString &title, const QString &text, const QStringList &buttons) override;
    int ask(const QString &title, const QString &text, const QStringList &buttons, int defaultButton) override;
    void presentError(const Error &error) override;
    QString openFile(const FileRequest &request) override;
    QString saveFile(const FileRequest &request) override;
    QStringList opened;        // paths handed to the desktop
    bool openSucceeds = true;
    bool openWithDefaultApplication(const QString &path) override
    {
        opened << path;
        return openSucceeds;
    }

    QList<PrintRequest> printRequests; // print dialogs shown
    bool printAnswer = true;           // false: the dialog is cancelled
    QString chosenPrinter;
    bool printDialog(PrintRequest &request) override
    {
        printRequests << request;
        request.printer = chosenPrinter;
        return printAnswer;
    }

    QString lastAlertTitle() const { return alerts.isEmpty() ? QString() : alerts.last().title; }
    QString lastAlertText() const { return alerts.isEmpty() ? QString() : alerts.last().text; }
};

// A controller on a fresh temporary home with scripted answers: the common
// ground of the command tests.
struct ControllerFixture
{
    TempHome home;
    FakeInteraction ui;
    Preferences prefs{home.configFile()};
    AppController app{prefs, ui};
};

} // namespace tabo::test
