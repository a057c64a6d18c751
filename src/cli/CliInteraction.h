#pragma once

#include "app/Interaction.h"

namespace tabo::cli {

// Answers the controller's questions from command-line flags: with --yes the
// confirming button is chosen, otherwise a question that needs consent is
// refused and the command ends in failure. Panels answer with a path given
// by an option, or cancel.
class CliInteraction : public Interaction
{
public:
    void setConfirm(bool yes) { m_confirm = yes; }
    void setPanelPath(const QString &path) { m_panelPath = path; }

    // A question was refused for want of --yes; its text is already on stderr.
    bool refused() const { return m_refused; }
    bool errorPresented() const { return m_errorPresented; }

    int alert(const QString &title, const QString &text, const QStringList &buttons) override;
    void presentError(const Error &error) override;
    QString openFile(const FileRequest &request) override;
    QString saveFile(const FileRequest &request) override;

    // The button that declines: "Cancel", a "Don't …" choice, else the last.
    static int decliningButton(const QStringList &buttons);

private:
    bool m_confirm = false;
    bool m_refused = false;
    bool m_errorPresented = false;
    QString m_panelPath;
};

} // namespace tabo::cli
