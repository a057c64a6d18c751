#pragma once

#include "reports/Report.h"

#include <QString>

namespace tabo {

class Interaction;
class ListedDocuments;
class OutputCommands;
class Preferences;

// The report window's commands: the one-time hint, the report rendered to a
// PDF of its own ("Report.pdf" in the data folder), saving and printing it.
class ReportCommands
{
public:
    ReportCommands(ListedDocuments &list, OutputCommands &outputs, Preferences &prefs, Interaction &ui)
        : m_list(list), m_outputs(outputs), m_prefs(prefs), m_ui(ui)
    {
    }

    // The report over what the list shows, after a summary pass; the range
    // from the preferences when `useReportDateRange` is on.
    ReportFigures generateReport();
    ReportFigures generateReport(const Report::Range &range);
    // The report page of those figures ("Report | company | today").
    QString reportPage(const ReportFigures &figures) const;

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
    ListedDocuments &m_list;
    OutputCommands &m_outputs;
    Preferences &m_prefs;
    Interaction &m_ui;
};

} // namespace tabo
