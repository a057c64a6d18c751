#pragma once

#include <QDialog>

class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;

namespace tabo {

class AppController;
class PdfPane;

// The sheet that shows what will be printed, saved or mailed before it is.
// OK waits for the rendered PDF; OK and Cancel both end the sheet and empty
// its view, and hand over to the output commands.
class ExportSheet : public QDialog
{
    Q_OBJECT

public:
    explicit ExportSheet(AppController &app, QWidget *parent = nullptr);

    // Renders the current document for `kind` (OutputCommands::ExportKind)
    // and shows the sheet on `window`. False when the command refused.
    bool begin(int kind, QWidget *window);

    PdfPane *pane() const { return m_pane; }
    QPushButton *okButton() const { return m_ok; }
    QLabel *titleLabel() const { return m_title; }
    // What Save and E-mail hand over: the PDF, the PDF with its e-invoice,
    // or the e-invoice alone (`einvoiceForm`).
    QComboBox *formChoice() const { return m_form; }

    // `exportCommand` after the sheet has ended.
    void accept() override;
    // `cancelExport`
    void reject() override;

private:
    void exportReady(const QString &path, const QString &title);
    // `setOKEnabled`
    void setOKEnabled();
    void busyChanged(bool busy);
    void end(int result);

    AppController &m_app;
    QLabel *m_title;
    PdfPane *m_pane;
    QProgressBar *m_busy;
    QPushButton *m_ok;
    QPushButton *m_cancel;
    QComboBox *m_form;
    // Between begin and the end of the sheet: only then is a PDF for it.
    bool m_active = false;
};

} // namespace tabo
