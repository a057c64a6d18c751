#include "GuiInteraction.h"

#include <QDesktopServices>
#include <QUrl>

#include <QFileDialog>
#include <QGuiApplication>
#include <QList>
#include <QMessageBox>
#include <QPushButton>

namespace tabo {

namespace {

QList<int> &nextAnswers()
{
    static QList<int> answers;
    return answers;
}

QStringList &nextFileNames()
{
    static QStringList names;
    return names;
}

QStringList nameFilters(const QStringList &extensions)
{
    if (extensions.isEmpty())
        return {};
    QStringList patterns;
    for (const QString &ext : extensions)
        patterns << QStringLiteral("*.") + ext;
    return { QStringLiteral("%1 (%2)").arg(extensions.join(QStringLiteral(", ")), patterns.join(QLatin1Char(' '))) };
}

} // namespace

GuiInteraction::GuiInteraction(QWidget *parent)
    : m_parent(parent)
{
}

void GuiInteraction::setParentWidget(QWidget *parent)
{
    m_parent = parent;
}

void GuiInteraction::setNextAnswer(int answer)
{
    nextAnswers().append(answer);
}

void GuiInteraction::setNextFileName(const QString &fileName)
{
    nextFileNames().append(fileName);
}

int GuiInteraction::alert(const QString &title, const QString &text, const QStringList &buttons)
{
    if (!nextAnswers().isEmpty())
        return nextAnswers().takeFirst();

    QMessageBox box(m_parent);
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QGuiApplication::applicationDisplayName());
    box.setText(title);
    box.setInformativeText(text);
    const QStringList labels = buttons.isEmpty() ? QStringList { QStringLiteral("OK") } : buttons;
    // The action role is never reordered by any platform's button layout, so
    // the buttons stand in the order the command gave them.
    QList<QPushButton *> added;
    for (const QString &label : labels)
        added << box.addButton(label, QMessageBox::ActionRole);
    box.setDefaultButton(added.first());
    const qsizetype cancel = labels.indexOf(QStringLiteral("Cancel"));
    if (cancel >= 0)
        box.setEscapeButton(added.at(cancel));
    else if (added.size() == 1)
        box.setEscapeButton(added.first());
    box.exec();
    const qsizetype chosen = added.indexOf(qobject_cast<QPushButton *>(box.clickedButton()));
    if (chosen >= 0)
        return int(chosen);
    return cancel >= 0 ? int(cancel) : 0;
}

void GuiInteraction::presentError(const Error &error)
{
    if (!nextAnswers().isEmpty()) {
        nextAnswers().removeFirst();
        return;
    }
    QMessageBox box(
        QMessageBox::Critical, QGuiApplication::applicationDisplayName(), error.description, QMessageBox::Ok, m_parent);
    box.setInformativeText(error.failureReason);
    box.exec();
}

QString GuiInteraction::openFile(const FileRequest &request)
{
    return runFileDialog(request, false);
}

QString GuiInteraction::saveFile(const FileRequest &request)
{
    return runFileDialog(request, true);
}

QString GuiInteraction::runFileDialog(const FileRequest &request, bool save)
{
    if (!nextFileNames().isEmpty())
        return nextFileNames().takeFirst();

    QFileDialog dialog(m_parent, request.title, request.directory);
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    if (save) {
        dialog.setFileMode(QFileDialog::AnyFile);
        if (!request.suggestedName.isEmpty())
            dialog.selectFile(request.suggestedName);
        if (!request.extensions.isEmpty())
            dialog.setDefaultSuffix(request.extensions.first());
    } else {
        dialog.setFileMode(request.chooseFolders ? QFileDialog::Directory : QFileDialog::ExistingFile);
        dialog.setOption(QFileDialog::ShowDirsOnly, request.chooseFolders);
    }
    // Without folder creation the panel's model is read-only, which is what
    // hides its "New Folder" command.
    dialog.setOption(QFileDialog::ReadOnly, !request.canCreateFolders);
    if (!request.chooseFolders)
        dialog.setNameFilters(nameFilters(request.extensions));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return dialog.selectedFiles().first();
}

bool GuiInteraction::openWithDefaultApplication(const QString &path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

} // namespace tabo
