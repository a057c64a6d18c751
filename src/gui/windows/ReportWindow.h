#pragma once

#include <QWidget>

class QCheckBox;
class QDateEdit;
class QPushButton;

namespace tabo {

class AppController;
class PdfPane;

// Reports ▸ Report…: the report over what the main list shows, with its date
// range, Save as PDF and Print. The page is rendered like a document, so what
// the window shows is what is saved and printed.
class ReportWindow : public QWidget
{
    Q_OBJECT

public:
    explicit ReportWindow(AppController &app, QWidget *parent = nullptr);

    // showReportsWindow:: hides a visible window, else shows a new report.
    void toggle();
    void refresh();
    PdfPane *view() const { return m_view; }
    QCheckBox *rangeCheck() const { return m_useRange; }

private:
    void rangeEdited();

    AppController &m_app;
    QCheckBox *m_useRange = nullptr;
    QDateEdit *m_from = nullptr;
    QDateEdit *m_to = nullptr;
    PdfPane *m_view = nullptr;
    bool m_loading = false;
};

} // namespace tabo
