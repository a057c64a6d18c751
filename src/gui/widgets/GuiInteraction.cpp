#include "gui/widgets/GuiInteraction.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QGuiApplication>
#include <QList>
#include <QMessageBox>
#include <QPageRanges>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QUrl>

#include <QCoreApplication>
#include <algorithm>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(GuiInteraction)
};
} // namespace

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

struct PrintAnswer
{
    bool accepted;
    std::function<void(GuiInteraction::PrintSettings &)> settings;
};

QList<PrintAnswer> &nextPrintAnswers()
{
    static QList<PrintAnswer> answers;
    return answers;
}

QString &lastAlert(int part)
{
    static QString texts[2];
    return texts[part];
}

// One value per `lp` option: a new choice replaces what the request had.
void setOption(QStringList &options, const QString &key, const QString &value)
{
    const QString prefix = key + QLatin1Char('=');
    options.erase(std::remove_if(options.begin(), options.end(),
                      [&prefix](const QString &option) { return option.startsWith(prefix); }),
        options.end());
    if (!value.isEmpty())
        options << prefix + value;
}

QString sidesOption(const GuiInteraction::PrintSettings &settings)
{
    switch (settings.sides) {
    case GuiInteraction::PrintSettings::LongEdge:
        return QStringLiteral("two-sided-long-edge");
    case GuiInteraction::PrintSettings::ShortEdge:
        return QStringLiteral("two-sided-short-edge");
    case GuiInteraction::PrintSettings::Automatic:
        // Turning the sheet the way the page is read.
        return settings.orientation == QPageLayout::Landscape ? QStringLiteral("two-sided-short-edge")
                                                              : QStringLiteral("two-sided-long-edge");
    case GuiInteraction::PrintSettings::OneSided:
        break;
    }
    return QStringLiteral("one-sided");
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

void GuiInteraction::setNextPrintAnswer(bool accepted, const std::function<void(PrintSettings &)> &settings)
{
    nextPrintAnswers().append({ accepted, settings });
}

QString GuiInteraction::lastAlertTitle()
{
    return lastAlert(0);
}

QString GuiInteraction::lastAlertText()
{
    return lastAlert(1);
}

int GuiInteraction::alert(const QString &title, const QString &text, const QStringList &buttons)
{
    return ask(title, text, buttons, 0);
}

int GuiInteraction::ask(const QString &title, const QString &text, const QStringList &buttons, int defaultButton)
{
    lastAlert(0) = title;
    lastAlert(1) = text;
    if (!nextAnswers().isEmpty())
        return nextAnswers().takeFirst();

    QMessageBox box(m_parent);
    box.setIcon(QMessageBox::Warning);
    box.setWindowTitle(QGuiApplication::applicationDisplayName());
    box.setText(title);
    box.setInformativeText(text);
    const QStringList labels = buttons.isEmpty() ? QStringList { Tr::tr("OK") } : buttons;
    // The action role is never reordered by any platform's button layout, so
    // the buttons stand in the order the command gave them.
    QList<QPushButton *> added;
    for (const QString &label : labels)
        added << box.addButton(label, QMessageBox::ActionRole);
    box.setDefaultButton(added.value(defaultButton, added.first()));
    const qsizetype cancel = labels.indexOf(Tr::tr("Cancel"));
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
        QMessageBox::Critical, QGuiApplication::applicationDisplayName(), error.text, QMessageBox::Ok, m_parent);
    box.setInformativeText(error.detail);
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

bool GuiInteraction::printDialog(PrintRequest &request)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(request.jobTitle);
    if (!request.printer.isEmpty())
        printer.setPrinterName(request.printer);
    printer.setCopyCount(qMax(1, request.copies));

    if (!nextPrintAnswers().isEmpty()) {
        const PrintAnswer answer = nextPrintAnswers().takeFirst();
        PrintSettings settings = settingsFrom(printer);
        // Without a print system the printer above falls back to a PDF file
        // and forgets its name.
        settings.printer = request.printer;
        if (answer.settings)
            answer.settings(settings);
        if (answer.accepted)
            applyPrintSettings(settings, request);
        return answer.accepted;
    }

    QPrintDialog dialog(&printer, m_parent);
    // The PDF is already laid out on its paper and goes to the print system
    // as it is: printing into a file is what "Save as PDF" is for.
    dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, true);
    dialog.setOption(QAbstractPrintDialog::PrintCollateCopies, true);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    applyPrintSettings(settingsFrom(printer), request);
    return true;
}

GuiInteraction::PrintSettings GuiInteraction::settingsFrom(const QPrinter &printer)
{
    PrintSettings settings;
    settings.printer = printer.outputFormat() == QPrinter::NativeFormat ? printer.printerName() : QString();
    settings.copies = printer.copyCount();
    settings.collate = printer.collateCopies();
    switch (printer.duplex()) {
    case QPrinter::DuplexLongSide:
        settings.sides = PrintSettings::LongEdge;
        break;
    case QPrinter::DuplexShortSide:
        settings.sides = PrintSettings::ShortEdge;
        break;
    case QPrinter::DuplexAuto:
        settings.sides = PrintSettings::Automatic;
        break;
    case QPrinter::DuplexNone:
        settings.sides = PrintSettings::OneSided;
        break;
    }
    settings.orientation = printer.pageLayout().orientation();
    if (printer.printRange() == QPrinter::PageRange && !printer.pageRanges().isEmpty())
        settings.pageRanges = printer.pageRanges().toString();
    settings.grayscale = printer.colorMode() == QPrinter::GrayScale;
    return settings;
}

void GuiInteraction::applyPrintSettings(const PrintSettings &settings, PrintRequest &request)
{
    request.printer = settings.printer;
    request.copies = qMax(1, settings.copies);
    setOption(request.options, QStringLiteral("sides"), sidesOption(settings));
    setOption(request.options, QStringLiteral("page-ranges"), settings.pageRanges);
    setOption(request.options, QStringLiteral("print-color-mode"),
        settings.grayscale ? QStringLiteral("monochrome") : QString());
    setOption(request.options, QStringLiteral("collate"),
        request.copies > 1 ? QLatin1String(settings.collate ? "true" : "false") : QString());
}

} // namespace tabo
