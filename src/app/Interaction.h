#pragma once

#include "base/Error.h"
#include "prefs/ProtectedFiles.h"
#include "render/PrintSystem.h"

#include <QString>
#include <QStringList>

namespace tabo {

// Everything a command needs from the person goes through here. The GUI
// answers with real dialogs, the command line with its options and flags, the
// tests with a scripted fake; so every command runs the same way everywhere.
class Interaction
{
public:
    virtual ~Interaction() = default;

    // A modal alert. Returns the index of the chosen button (0 is the first,
    // the default); with no buttons an "OK" button is shown and 0 returned.
    virtual int alert(const QString &title, const QString &text, const QStringList &buttons) = 0;
    // The same with another button pressed by Return: a question whose first
    // answer destroys something defaults to its "Cancel".
    virtual int ask(const QString &title, const QString &text, const QStringList &buttons, int defaultButton)
    {
        Q_UNUSED(defaultButton)
        return alert(title, text, buttons);
    }

    // The application's error presentation.
    virtual void presentError(const Error &error) = 0;

    struct FileRequest
    {
        QString title;
        QStringList extensions; // without the dot; empty means any file
        QString suggestedName;  // save panels only
        QString directory;
        bool canCreateFolders = false;
        bool chooseFolders = false; // open panels only
    };
    // Open and save panels; an empty result means the person cancelled.
    virtual QString openFile(const FileRequest &request) = 0;
    virtual QString saveFile(const FileRequest &request) = 0;
    // A save panel whose answer may not name one of Tabo's own files (the
    // store, the settings, the automatic backups): such an answer is
    // refused in words and reads as a cancel.
    QString saveTarget(const FileRequest &request)
    {
        const QString path = saveFile(request);
        if (const Error refused = ProtectedFiles::check(path)) {
            presentError(refused);
            return {};
        }
        return path;
    }

    // Hands a file to the program the desktop associates with it. False when
    // nothing could open it.
    virtual bool openWithDefaultApplication(const QString &path) = 0;

    // The print dialog: the person picks printer and settings, which are
    // written into `request`. False when they cancelled.
    virtual bool printDialog(PrintRequest &request) = 0;
};

} // namespace tabo
