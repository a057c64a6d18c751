#include "app/OutputCommands.h"

#include "app/DesignLibrary.h"
#include "app/FileCommands.h"
#include "app/EInvoiceCommands.h"
#include "app/Interaction.h"
#include "app/UndoHistory.h"
#include "app/Workspace.h"
#include "domain/LineOrder.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "prefs/ProtectedFiles.h"
#include "render/Formatters.h"
#include "render/MailHandoff.h"
#include "render/PageSetup.h"
#include "render/PageStamp.h"
#include "render/PdfEngine.h"
#include "render/PrintSystem.h"

#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QSaveFile>

#include <QCoreApplication>
#include <functional>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(OutputCommands)
};
} // namespace

namespace tabo {

using P = Preferences;

namespace {

QString kOK()
{
    return Tr::tr("OK");
}

// What the PDF view would accept: a file that starts like a PDF.
bool isPdfFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.read(5) == "%PDF-";
}

// The whole file or nothing at `to`: an existing file is only replaced once
// the copy is complete.
Error copyPdf(const QString &from, const QString &to)
{
    QFile source(from);
    if (!isPdfFile(from) || !source.open(QIODevice::ReadOnly))
        return Error::file(Tr::tr("The PDF file “%1” could not be read.").arg(from));
    return ProtectedFiles::writeAtomically(to, source.readAll());
}

} // namespace

OutputCommands::OutputCommands(CurrentDocument &current, DesignLibrary &designs, FileCommands &files,
                               UndoHistory &undo, WorkingFiles &workingFiles, Preferences &prefs, Interaction &ui)
    : m_current(current)
    , m_designs(designs)
    , m_files(files)
    , m_undo(undo)
    , m_workingFiles(workingFiles)
    , m_prefs(prefs)
    , m_ui(ui)
    , m_formatters(std::make_unique<Formatters>(prefs))
    , m_renderer(std::make_unique<PageRenderer>(prefs, *m_formatters))
{
}

OutputCommands::~OutputCommands()
{
    // The engine fails what it still holds as it goes; nobody is left to tell.
    m_closing = true;
    m_engine.reset();
}

RenderRequest OutputCommands::request(const Record &document, const LetterMode &letter, const Record *design) const
{
    RenderRequest r;
    r.document = &document;
    r.design = design ? design : m_designs.currentDesign();
    r.letter = letter;
    r.page = pageSetupFor(document);
    r.lines = orderedLines(document, m_prefs);
    return r;
}

QString OutputCommands::invoiceHTMLString(const RenderRequest &r) const
{
    return m_renderer->invoiceHTMLString(r.design, *r.document, r.lines, r.letter);
}

QString OutputCommands::jobTitle(const Record &invoice) const
{
    return QStringLiteral("%1 | %2 | %3")
        .arg(m_prefs.string(P::prefsName), invoice.text(Invoice::title), invoice.text(Invoice::number));
}

bool OutputCommands::checkDesignsAvailable()
{
    if (!m_designs.designs().isEmpty())
        return true;
    m_ui.alert(Tr::tr("Error!"), Tr::tr("No design available. Please download or create a design."), { kOK() });
    return false;
}

bool OutputCommands::showPreview()
{
    if (!m_current.currentInvoice() || !checkDesignsAvailable())
        return false;
    generatePreview();
    return true;
}

void OutputCommands::generatePreview()
{
    m_mode.isReminderAction = false;
    m_mode.isSlipAction = false;
    m_prefs.setBool(P::isMainPreviewAction, true);
    renderInto(Target::Preview, m_designs.currentDesign());
}

LetterTexts OutputCommands::openReminderSheet() const
{
    const Preferences &prefs = m_prefs;
    return {prefs.string(P::locReminder), prefs.string(P::tempRemConditions), prefs.string(P::tempRemMisc),
            prefs.string(P::tempRemFooter)};
}

LetterTexts OutputCommands::openSlipSheet() const
{
    const Preferences &prefs = m_prefs;
    return {prefs.string(P::locSlip), prefs.string(P::tempSlipConditions), prefs.string(P::tempSlipMisc),
            prefs.string(P::tempSlipFooter)};
}

void OutputCommands::generateReminder(const LetterTexts &texts)
{
    m_mode.isReminderAction = true;
    m_mode.isSlipAction = false;
    m_mode.reminder = texts;
    m_prefs.setBool(P::isMainPreviewAction, true);
    renderInto(Target::Preview, m_designs.currentDesign());
}

void OutputCommands::generateSlip(const LetterTexts &texts)
{
    m_mode.isSlipAction = true;
    m_mode.isReminderAction = false;
    m_mode.slip = texts;
    m_prefs.setBool(P::isMainPreviewAction, true);
    renderInto(Target::Preview, m_designs.currentDesign());
}

QString OutputCommands::exportSheetTitle(int kind)
{
    switch (kind) {
    case Print:
        return Tr::tr("Print Invoice");
    case SavePdf:
        return Tr::tr("Export Invoice As PDF File");
    case Email:
        return Tr::tr("Send Invoice As Email Attachment");
    case ExportDocument:
        return Tr::tr("Export Invoice As Document");
    default:
        return QString();
    }
}

bool OutputCommands::openExport(int kind)
{
    const Record *invoice = m_current.currentInvoice();
    if (!invoice || !checkDesignsAvailable())
        return false;
    m_exportKind = kind;
    if (kind == Print)
        m_prefs.setString(P::currentPrintJobTitle, jobTitle(*invoice));
    loadExportPDF();
    return true;
}

void OutputCommands::loadExportPDF()
{
    renderInto(Target::Export, m_designs.currentDesign());
}

void OutputCommands::cancelExport()
{
    Q_EMIT exportFinished();
}

void OutputCommands::exportCommand()
{
    // OK is only enabled once the sheet's PDF is there; the command line
    // presses it at once.
    waitUntilIdle();
    Q_EMIT exportFinished();
    Record *invoice = m_current.currentInvoice();
    if (invoice) {
        switch (m_exportKind) {
        case Print:
            printWorkingPdf(*invoice);
            break;
        case SavePdf:
            savePdf(*invoice);
            break;
        case Email:
            emailPdf(*invoice);
            break;
        case ExportDocument:
            m_files.exportInvoice(int(m_prefs.integer(P::exportFormat)));
            break;
        default:
            break;
        }
    }
    markInvoiceAsSent(invoice);
}

bool OutputCommands::printWorkingPdf(const Record &invoice)
{
    return printPdf(m_workingFiles.pdfPath(), jobTitle(invoice));
}

bool OutputCommands::printPdf(const QString &path, const QString &title)
{
    PrintRequest request;
    request.jobTitle = title;
    request.printer = m_printer;
    if (m_prefs.integer(P::printBehavior) == 1 && !m_ui.printDialog(request))
        return false;
    const Error error = PrintSystem::printFile(path, request);
    if (!error)
        return true;
    m_ui.alert(Tr::tr("Error!"), error.message(), { kOK() });
    return false;
}

bool OutputCommands::savePdf(Record &invoice)
{
    // A slash cannot stand in a file name; numbers such as "2026/17" are common.
    const QString name = jobTitle(invoice).replace(QLatin1Char('/'), QLatin1Char('-'));
    const qint64 form = invoice.integer(Invoice::kind) == 1 ? m_prefs.integer(P::einvoiceForm) : 0;
    if (form == EInvoiceCommands::PlainPdf)
        return savePdfAs(m_workingFiles.pdfPath(), Tr::tr("Export As PDF File"), name);
    EInvoiceCommands &einvoices = *m_einvoices;
    // Asked before the panel: a missing detail is found before a file name is chosen.
    const einvoice::Mapping mapping = einvoices.map(invoice);
    if (!einvoices.checked(mapping, invoice))
        return false;
    const bool xml = form == EInvoiceCommands::XRechnungXml;
    Interaction::FileRequest request;
    request.title = xml ? Tr::tr("Export As E-Invoice (XRechnung)") : Tr::tr("Export As PDF With E-Invoice");
    request.extensions = {xml ? QStringLiteral("xml") : QStringLiteral("pdf")};
    request.suggestedName = name;
    request.canCreateFolders = true;
    QString target = m_ui.saveTarget(request);
    if (target.isEmpty())
        return false;
    if (QFileInfo(target).suffix().isEmpty())
        target += xml ? QStringLiteral(".xml") : QStringLiteral(".pdf");
    return xml ? einvoices.writeXml(mapping, target, EInvoiceCommands::Form::XRechnungCii)
               : einvoices.writeFacturX(invoice, mapping, m_workingFiles.pdfPath(), target);
}

bool OutputCommands::savePdfAs(const QString &path, const QString &panelTitle, const QString &suggestedName)
{
    Interaction::FileRequest request;
    request.title = panelTitle;
    request.extensions = {QStringLiteral("pdf")};
    request.suggestedName = suggestedName;
    request.canCreateFolders = true;
    QString target = m_ui.saveTarget(request);
    if (target.isEmpty())
        return false;
    if (QFileInfo(target).suffix().compare(QLatin1String("pdf"), Qt::CaseInsensitive) != 0)
        target += QStringLiteral(".pdf");
    const Error e = copyPdf(path, target);
    if (!e)
        return true;
    m_ui.alert(Tr::tr("Error!"), e.text, { kOK() });
    return false;
}

bool OutputCommands::emailPdf(Record &invoice)
{
    const qint64 form = invoice.integer(Invoice::kind) == 1 ? m_prefs.integer(P::einvoiceForm) : 0;
    if (form == EInvoiceCommands::FacturXPdf)
        return m_einvoices->facturXFromPrinted(invoice, m_workingFiles.pdfPath(), m_workingFiles.pdfEmailPath()) && sendEmail();
    if (form == EInvoiceCommands::XRechnungXml) {
        // The XML goes alone: a public authority's inbox takes nothing else.
        const QString xml = QFileInfo(m_workingFiles.pdfEmailPath()).absolutePath() + QLatin1Char('/')
                            + jobTitle(invoice).replace(QLatin1Char('/'), QLatin1Char('-')) + QStringLiteral(".xml");
        return m_einvoices->exportXml(invoice, xml, EInvoiceCommands::Form::XRechnungCii) && sendEmail(xml);
    }
    if (const Error e = copyPdf(m_workingFiles.pdfPath(), m_workingFiles.pdfEmailPath())) {
        m_ui.alert(Tr::tr("Error!"), e.text, { kOK() });
        return false;
    }
    return sendEmail();
}

bool OutputCommands::sendEmail()
{
    return sendEmail(m_workingFiles.pdfEmailPath());
}

bool OutputCommands::sendEmail(const QString &attachment)
{
    Record *invoice = m_current.currentInvoice();
    if (!invoice)
        return false;
    MailMessage message;
    const QString body = m_prefs.string(P::tempEmailBody);
    if (!body.isEmpty())
        message.body = QStringLiteral("%1\n\n\n").arg(body) + QString(96, QLatin1Char('-')) + QStringLiteral("\n\n");
    message.subject = jobTitle(*invoice);
    message.attachment = attachment;
    message.recipient = invoice->text(Invoice::emailAddress);
    const Error error = MailHandoff::compose(message);
    if (!error)
        return true;
    // The PDF is made: offer it another way out.
    const int answer = m_ui.alert(Tr::tr("The E-Mail Could Not Be Written"),
        error.text
            + Tr::tr("\n\nYou can save the PDF and attach it to a message yourself, or open the folder "
                     "that holds it."),
        { Tr::tr("Save PDF…"), Tr::tr("Open Folder"), Tr::tr("Cancel") });
    if (answer == 0)
        savePdf(*invoice);
    else if (answer == 1)
        m_ui.openWithDefaultApplication(QFileInfo(message.attachment).absolutePath());
    return false;
}

void OutputCommands::markInvoiceAsSent(Record *document)
{
    if (!document || document->integer(Invoice::kind) != 1 || !m_prefs.boolean(P::markInvoiceAsSent))
        return;
    const UndoHistory::Step step(m_undo, document, Tr::tr("Mark as Sent"));
    // A paid invoice sent again is open again, and so no longer counts as
    // paid (a part payment stays received).
    if (document->integer(Invoice::status) == 3) {
        document->setNum(Invoice::paidAmount, 0.0);
        document->setBool(Invoice::isPaid, false);
    }
    document->setInt(Invoice::status, 1);
    m_current.documentChanged(document);
}

void OutputCommands::selectDesign(int index)
{
    m_prefs.setInteger(P::selectedDesign, index);
    if (!checkDesignsAvailable())
        return;
    const QList<Record *> designs = m_designs.designs();
    if (index < 0 || index >= designs.size() || !m_current.currentInvoice()) {
        failureAlert(Target::DesignChoice);
        return;
    }
    renderInto(Target::DesignChoice, designs.at(index));
}

PageSetup OutputCommands::pageSetupFor(const Record &document) const
{
    PageSetup setup = PageSetup::fromPreferences(m_prefs);
    setup.pageStamp = PageStamp::patternFor(document.text(Invoice::number), m_prefs.string(P::locPageOf));
    // Generous: a line with a long text may take a page of its own, and
    // the letter around the lines a few more.
    setup.maxPages = 10 * int(document.toMany(Invoice::items).size()) + 10;
    return setup;
}

bool OutputCommands::renderToFile(const RenderRequest &r, const QString &path)
{
    if (renderHtmlToFile(invoiceHTMLString(r), path, r.page))
        return true;
    reportRunaway(r.design);
    return false;
}

bool OutputCommands::renderHtmlToFile(const QString &html, const QString &path)
{
    return renderHtmlToFile(html, path, PageSetup::fromPreferences(m_prefs));
}

bool OutputCommands::renderHtmlToFile(const QString &html, const QString &path, const PageSetup &setup)
{
    if (const Error refused = ProtectedFiles::check(path)) {
        m_ui.presentError(refused);
        return false;
    }
    if (!canRender())
        return false;
    setBusy(+1);
    const bool ok = engine().renderAndWait(html, setup, path) && isPdfFile(path);
    setBusy(-1);
    return ok;
}

QStringList OutputCommands::renderToFiles(const QList<RenderRequest> &requests, const QStringList &paths)
{
    if (!canRender())
        return paths;
    QStringList failed;
    const Record *failedDesign = nullptr;
    QEventLoop loop;
    qsizetype next = 0;
    int inFlight = 0;
    // A few pages ahead keep both engine lanes busy without holding every
    // page of a large batch in memory.
    std::function<void()> feed = [&] {
        while (inFlight < 4 && next < requests.size()) {
            const qsizetype i = next++;
            const QString html = invoiceHTMLString(requests.at(i));
            ++inFlight;
            engine().render(html, requests.at(i).page, paths.at(i), [&, i](bool ok) {
                --inFlight;
                if (!ok || !isPdfFile(paths.at(i))) {
                    failed << paths.at(i);
                    if (!failedDesign)
                        failedDesign = requests.at(i).design;
                }
                if (next < requests.size())
                    feed();
                else if (inFlight == 0)
                    loop.quit();
            });
        }
    };
    setBusy(+1);
    feed();
    if (inFlight > 0)
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    setBusy(-1);
    if (!failed.isEmpty())
        reportRunaway(failedDesign);
    return failed;
}

PdfEngine &OutputCommands::engine()
{
    if (!m_engine) {
        m_engine = std::make_unique<PdfEngine>();
        m_engine->setAllowedLocalFile(PageRenderer::logoPath());
    }
    return *m_engine;
}

// The web engine cannot live without a GUI application; a core program that
// got here anyway fails the rendering instead of aborting.
bool OutputCommands::canRender()
{
    return qobject_cast<QGuiApplication *>(QCoreApplication::instance()) != nullptr;
}

void OutputCommands::renderInto(Target target, const Record *design)
{
    const Record *invoice = m_current.currentInvoice();
    if (!invoice || !canRender()) {
        failureAlert(target);
        return;
    }
    LetterMode letter = m_mode;
    letter.onScreen = target != Target::Export;
    const RenderRequest r = request(*invoice, letter, design);
    const QString path = m_workingFiles.pdfPath();
    m_renderingDesign = design ? design->text(Design::title) : QString();
    setBusy(+1);
    engine().render(invoiceHTMLString(r), r.page, path,
                    [this, target, path](bool ok) { finishRender(target, ok && isPdfFile(path)); });
}

void OutputCommands::finishRender(Target target, bool ok)
{
    if (m_closing)
        return;
    setBusy(-1);
    if (!ok) {
        failureAlert(target);
        return;
    }
    const QString path = m_workingFiles.pdfPath();
    switch (target) {
    case Target::Preview:
        Q_EMIT previewReady(path);
        break;
    case Target::Export:
        Q_EMIT exportReady(path, exportSheetTitle(m_exportKind));
        break;
    case Target::DesignChoice:
        Q_EMIT designPreviewReady(path);
        break;
    }
}

bool OutputCommands::reportRunaway(const Record *design)
{
    return reportRunaway(design ? design->text(Design::title) : QString());
}

bool OutputCommands::reportRunaway(const QString &designTitle)
{
    const int pages = engine().lastRunawayPages();
    if (pages <= 0)
        return false;
    m_ui.presentError(Error::file(Tr::tr("The design “%1” laid the document out on %2 pages, far more than "
                                         "its lines can fill, so no PDF was made. Choose another design or "
                                         "fix this one in Preferences ▸ Designs.")
                                      .arg(designTitle)
                                      .arg(pages)));
    return true;
}

void OutputCommands::failureAlert(Target target)
{
    if (reportRunaway(m_renderingDesign))
        return;
    m_ui.alert(Tr::tr("Ooops!"),
        target == Target::DesignChoice ? Tr::tr("Something went really wrong while creating the design preview.")
                                       : Tr::tr("Something went really wrong while creating the preview."),
        { kOK() });
}

void OutputCommands::setBusy(int delta)
{
    m_running = std::max(0, m_running + delta);
    const bool busy = m_running > 0;
    if (busy == m_busy)
        return;
    m_busy = busy;
    Q_EMIT busyChanged(busy);
}

void OutputCommands::waitUntilIdle()
{
    if (!m_busy)
        return;
    QEventLoop loop;
    connect(this, &OutputCommands::busyChanged, &loop, [&loop](bool busy) {
        if (!busy)
            loop.quit();
    });
    loop.exec();
}

bool OutputCommands::exportAndWait(int kind)
{
    bool ready = false;
    const QMetaObject::Connection connection = connect(this, &OutputCommands::exportReady, [&ready] { ready = true; });
    const bool opened = openExport(kind);
    if (opened)
        waitUntilIdle();
    disconnect(connection);
    if (!opened || !ready)
        return false;
    exportCommand();
    return true;
}

} // namespace tabo
