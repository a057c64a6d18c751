#pragma once

#include <QString>

namespace tabo {

class AppController;

// The report window's commands: the one-time hint, the report rendered to a
// PDF of its own ("Report.pdf" in the data folder), saving and printing it.
class ReportCommands
{
public:
    explicit ReportCommands(AppController &app) : m_app(app) {}

    // The first time only: says what the report is bound to and starts the
    // date range at today.
    void showHintOnce();
    // The report over what the list shows now; the PDF's path, or empty after
    // the failure was shown.
    QString render();
    bool savePdf();
    bool print();

    static QString reportPdfPath();

private:
    AppController &m_app;
};

} // namespace tabo
