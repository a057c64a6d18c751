#pragma once

#include "app/Interaction.h"

#include <QHash>

namespace tabo::cli {

// Answers the controller's questions from command-line flags: with --yes the
// confirming button is chosen, otherwise a question that needs consent is
// refused and the command ends in failure. Panels answer with a path given
// by an option, or cancel.
class CliInteraction : public Interaction
{
public:
    void setConfirm(bool yes) { m_confirm = yes; }
    // The question titled `title` is a choice, not a consent: it is answered
    // `confirm` silently and declining it is no failure.
    void setAnswer(const QString &title, bool confirm) { m_answers.insert(title, confirm); }
    void setPanelPath(const QString &path) { m_panelPath = path; }
    // The printer of `--printer` (empty: the system's default).
    void setPrinter(const QString &printer) { m_printer = printer; }

    // A question was refused for want of --yes; its text is already on stderr.
    bool refused() const { return m_refused; }
    bool errorPresented() const { return m_errorPresented; }
    // Alerts and errors written so far: a command can tell whether a failure
    // has been told already.
    int messagesShown() const { return m_messages; }

    int alert(const QString &title, const QString &text, const QStringList &buttons) override;
    void presentError(const Error &error) override;
    QString openFile(const FileRequest &request) override;
    QString saveFile(const FileRequest &request) override;
    // xdg-open, unless opening was switched off (--no-open).
    bool openWithDefaultApplication(const QString &path) override;
    bool printDialog(PrintRequest &request) override;
    void setOpenFiles(bool open) { m_openFiles = open; }

    // The button that declines: "Cancel", a "Don't …" choice, else the last.
    static int decliningButton(const QStringList &buttons);

private:
    bool m_confirm = false;
    bool m_refused = false;
    bool m_errorPresented = false;
    int m_messages = 0;
    QString m_panelPath;
    QString m_printer;
    QHash<QString, bool> m_answers;
    bool m_openFiles = true;
};

} // namespace tabo::cli
