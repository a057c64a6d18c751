#pragma once

#include "render/PageRenderer.h"

#include <QObject>
#include <QString>

#include <memory>

namespace tabo {

class CurrentDocument;
class DesignLibrary;
class EInvoiceCommands;
class FileCommands;
class Interaction;
class Preferences;
class UndoHistory;
class WorkingFiles;
class Formatters;
class PdfEngine;
struct PageSetup;
class Record;

// Preview, PDF, print and e-mail of the current document. Every output goes
// one way: the page is rendered into the working PDF (`pdfPath`), and that
// file is shown, printed, saved or mailed. Views listen to the signals; what
// the person decides goes through Interaction.
class OutputCommands : public QObject
{
    Q_OBJECT

public:
    enum ExportKind { Print = 0, SavePdf = 1, Email = 2, ExportDocument = 3 };

    OutputCommands(CurrentDocument &current, DesignLibrary &designs, FileCommands &files, UndoHistory &undo,
                   WorkingFiles &workingFiles, Preferences &prefs, Interaction &ui);
    // The export sheet writes e-invoices, and e-invoices are rendered here:
    // the two are wired once both exist.
    void setEInvoices(EInvoiceCommands &einvoices) { m_einvoices = &einvoices; }
    ~OutputCommands() override;

    // Everything a rendering of `document` depends on, from the preferences:
    // the design (`design`, else the library's choice), the letter, the page
    // setup and the lines in their order.
    RenderRequest request(const Record &document, const LetterMode &letter = {},
                          const Record *design = nullptr) const;
    // The page of a request. Rendering never changes the current document:
    // a batch or another process's document is rendered while the window
    // shows its own.
    QString invoiceHTMLString(const RenderRequest &request) const;
    // "%@ | %@ | %@": company name, document title, document number.
    QString jobTitle(const Record &invoice) const;
    const Formatters &formatters() const { return *m_formatters; }
    const PageRenderer &renderer() const { return *m_renderer; }

    // The letter the window's preview shows, and so what its export prints.
    const LetterMode &letterMode() const { return m_mode; }
    bool isReminderAction() const { return m_mode.isReminderAction; }
    bool isSlipAction() const { return m_mode.isSlipAction; }

    // "Error!" "No design available. …" when there is no design; false then.
    bool checkDesignsAvailable();

    // `showPreview` / `generatePreview`: clears the letter flags and renders
    // the main preview; previewReady follows. False when refused.
    bool showPreview();
    void generatePreview();

    // `openReminderSheet` / `openSlipSheet`: the sheet's four fields,
    // filled from the preferences.
    LetterTexts openReminderSheet() const;
    LetterTexts openSlipSheet() const;
    // `generateReminder` / `generateSlip`: the preview in that letter mode.
    void generateReminder(const LetterTexts &texts);
    void generateSlip(const LetterTexts &texts);

    // `printInvoice` (0), `pdfInvoice` (1), `emailInvoice` (2) and the
    // document export (3): sets `exportKind`, renders into the export sheet
    // (`loadExportPDF`); exportReady follows. False when refused.
    bool openExport(int kind);
    int exportKind() const { return m_exportKind; }
    static QString exportSheetTitle(int kind);
    void loadExportPDF();
    // `exportCommand`, the export sheet's OK: performs `exportKind`, then
    // marks an invoice as sent when `markInvoiceAsSent` is on, on every path.
    void exportCommand();
    // `cancelExport`
    void cancelExport();

    // `selectDesign`: makes the design at `index` (of the library's list)
    // the stored choice and renders it; designPreviewReady follows.
    void selectDesign(int index);

    // `sendEmail`: a new message with the attachment at `pdfEmailPath`.
    bool sendEmail();
    bool sendEmail(const QString &attachment);

    // Sets the status of an invoice to sent when `markInvoiceAsSent` is on,
    // then re-arranges the list and recalculates.
    void markInvoiceAsSent(Record *document);

    // Renders the request's page into `path` and waits (command line).
    bool renderToFile(const RenderRequest &request, const QString &path);
    // Renders any page into `path` and waits (the design preview of the
    // command line).
    bool renderHtmlToFile(const QString &html, const QString &path);
    bool renderHtmlToFile(const QString &html, const QString &path, const PageSetup &setup);
    // Any finished PDF to the printer (with the print dialog when the
    // preferences ask for it), or copied to a file the person chooses.
    bool printPdf(const QString &path, const QString &jobTitle);
    bool savePdfAs(const QString &path, const QString &panelTitle, const QString &suggestedName);
    // Renders each request into the path of the same index, several at a
    // time, and waits; returns the paths that failed.
    QStringList renderToFiles(const QList<RenderRequest> &requests, const QStringList &paths);
    // Returns once no rendering is running any more.
    void waitUntilIdle();
    // The export of the current document from start to end without a sheet:
    // opened, rendered, waited for and performed. False when it was refused
    // or no PDF came (the reason has been shown).
    bool exportAndWait(int kind);

    // The printer a job goes to unless the print dialog picks another
    // (empty: the system's default).
    void setPrinter(const QString &printer) { m_printer = printer; }

    // True while a rendering runs.
    bool isBusy() const { return m_busy; }
    PdfEngine &engine();

Q_SIGNALS:
    void busyChanged(bool busy);
    // The main preview's PDF is ready to be shown (`createPDF`).
    void previewReady(const QString &pdfPath);
    // The export sheet's PDF is ready; OK may be enabled (`setOKEnabled`).
    void exportReady(const QString &pdfPath, const QString &sheetTitle);
    // The export sheet ended (OK or cancel): empty its view.
    void exportFinished();
    // The design-choice sheet's PDF is ready (`createTemplatePDF`).
    void designPreviewReady(const QString &pdfPath);

private:
    enum class Target { Preview, Export, DesignChoice };
    PageSetup pageSetupFor(const Record &document) const;
    void renderInto(Target target, const Record *design);
    void finishRender(Target target, bool ok);
    void setBusy(int delta);
    bool canRender();
    void failureAlert(Target target);
    // Tells the person when the engine refused a document for laying out
    // without end; false when that was not why it failed.
    bool reportRunaway(const Record *design);
    bool reportRunaway(const QString &designTitle);
    bool printWorkingPdf(const Record &invoice);
    bool savePdf(Record &invoice);
    bool emailPdf(Record &invoice);

    CurrentDocument &m_current;
    DesignLibrary &m_designs;
    FileCommands &m_files;
    UndoHistory &m_undo;
    WorkingFiles &m_workingFiles;
    Preferences &m_prefs;
    Interaction &m_ui;
    EInvoiceCommands *m_einvoices = nullptr;
    std::unique_ptr<Formatters> m_formatters;
    std::unique_ptr<PageRenderer> m_renderer;
    std::unique_ptr<PdfEngine> m_engine;
    LetterMode m_mode;
    int m_exportKind = 0;
    bool m_busy = false;
    bool m_closing = false;
    int m_running = 0;
    QString m_printer;
    QString m_renderingDesign; // the title of the design the window renders with
};

} // namespace tabo
