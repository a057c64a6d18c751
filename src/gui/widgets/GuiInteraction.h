#pragma once

#include "app/Interaction.h"

#include <QPageLayout>
#include <QPointer>

#include <functional>

class QPrinter;
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
    int ask(const QString &title, const QString &text, const QStringList &buttons, int defaultButton) override;
    void presentError(const Error &error) override;
    QString openFile(const FileRequest &request) override;
    QString saveFile(const FileRequest &request) override;
    bool openWithDefaultApplication(const QString &path) override;
    bool printDialog(PrintRequest &request) override;

    // Answers the next alert or error box (the button index) without showing it.
    static void setNextAnswer(int answer);
    // Answers the next open or save panel ("" cancels) without showing it.
    static void setNextFileName(const QString &fileName);
    // What the person settles in the print dialog.
    struct PrintSettings
    {
        QString printer;
        int copies = 1;
        bool collate = true;
        enum Sides { OneSided, LongEdge, ShortEdge, Automatic } sides = OneSided;
        QPageLayout::Orientation orientation = QPageLayout::Portrait;
        QString pageRanges; // "1-2,4"; empty for all pages
        bool grayscale = false;
    };
    static PrintSettings settingsFrom(const QPrinter &printer);

    // Answers the next print dialog without showing it: `settings` changes
    // the dialog's settings as the person would; `accepted` false cancels.
    static void setNextPrintAnswer(bool accepted, const std::function<void(PrintSettings &)> &settings = {});
    // The title and text of the last alert, whether shown or answered by a hook.
    static QString lastAlertTitle();
    static QString lastAlertText();

    // What the print dialog's settings mean to the print system: printer,
    // copies and the `lp` options for sides, page ranges, colour and collation.
    static void applyPrintSettings(const PrintSettings &settings, PrintRequest &request);

private:
    QString runFileDialog(const FileRequest &request, bool save);

    QPointer<QWidget> m_parent;
};

} // namespace tabo
