#include "app/ReportCommands.h"

#include "app/Interaction.h"
#include "app/OutputCommands.h"
#include "app/Workspace.h"
#include "base/Clock.h"
#include "domain/DocumentList.h"
#include "domain/Numbering.h"
#include "prefs/Locations.h"
#include "prefs/Preferences.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(ReportCommands)
};
} // namespace

namespace tabo {

using P = Preferences;

QString ReportCommands::reportPdfPath()
{
    return QDir(Locations::dataFolder()).filePath(QStringLiteral("Report.pdf"));
}

ReportFigures ReportCommands::generateReport()
{
    Report::Range range;
    if (m_prefs.boolean(P::useReportDateRange))
        range = std::pair(m_prefs.date(P::reportDateL), m_prefs.date(P::reportDateR));
    return generateReport(range);
}

ReportFigures ReportCommands::generateReport(const Report::Range &range)
{
    m_list.calculateDatabase();
    return Report::compute(m_list.documentList().shown(), range);
}

QString ReportCommands::reportPage(const ReportFigures &figures) const
{
    const QString comment = QStringLiteral("%1 | %2 | %3")
                                .arg(Tr::tr("Report"), m_prefs.string(P::prefsName),
                                    Numbering::getPatternDateStringFromDate(m_prefs, now()));
    return Report::page(Report::chartTemplate(), figures, Report::chartScript(), comment,
                        QLocale(m_prefs.documentRegion()));
}

void ReportCommands::showHintOnce()
{
    Preferences &prefs = m_prefs;
    if (prefs.boolean(P::isReportHintShown))
        return;
    m_ui.alert(Tr::tr("Hint!"),
        Tr::tr("The report is bound to the arranged invoices in Tabo's main window. This means "
               "you can, for example, search for a client and therefore see the report just for "
               "this single client or you can pre-filter all your invoices to see a report only "
               "for overdue invoices."),
        { Tr::tr("OK") });
    prefs.setDate(P::reportDateL, now());
    prefs.setDate(P::reportDateR, now());
    prefs.setBool(P::isReportHintShown, true);
    prefs.sync();
}

QString ReportCommands::render()
{
    QDir().mkpath(Locations::dataFolder());
    const QString path = reportPdfPath();
    if (m_outputs.renderHtmlToFile(reportPage(generateReport()), path))
        return path;
    m_ui.alert(Tr::tr("Ooops!"), Tr::tr("Something went really wrong while creating the report."), { Tr::tr("OK") });
    return QString();
}

bool ReportCommands::savePdf()
{
    const QString path = render();
    return !path.isEmpty()
        && m_outputs.savePdfAs(
            path, Tr::tr("Save Report as PDF"), QStringLiteral("%1 | Report").arg(m_prefs.string(P::prefsName)));
}

bool ReportCommands::print()
{
    const QString path = render();
    return !path.isEmpty()
           && m_outputs.printPdf(path, QStringLiteral("%1 | Report").arg(m_prefs.string(P::prefsName)));
}

} // namespace tabo
