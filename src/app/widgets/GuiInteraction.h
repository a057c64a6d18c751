#pragma once

#include "app/Interaction.h"

#include <QPointer>

class QWidget;

namespace tabo {

// The controller's questions as real dialogs. GUI tests queue answers through
// the static hooks; a queued answer is used instead of showing the dialog.
class GuiInteraction : public Interaction
{
public:
    explicit GuiInteraction(QWidget *parent = nullptr);

    // Dialogs are modal to this window once it exists.
    void setParentWidget(QWidget *parent);

    int alert(const QString &title, const QString &text, const QStringList &buttons) override;
    void presentError(const Error &error) override;
    QString openFile(const FileRequest &request) override;
    QString saveFile(const FileRequest &request) override;
    bool openWithDefaultApplication(const QString &path) override;

    // Answers the next alert or error box (the button index) without showing it.
    static void setNextAnswer(int answer);
    // Answers the next open or save panel ("" cancels) without showing it.
    static void setNextFileName(const QString &fileName);

private:
    QString runFileDialog(const FileRequest &request, bool save);

    QPointer<QWidget> m_parent;
};

} // namespace tabo
