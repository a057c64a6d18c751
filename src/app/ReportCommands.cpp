#include "app/ReportCommands.h"

#include "app/AppController.h"
#include "app/Interaction.h"
#include "app/OutputCommands.h"
#include "base/Clock.h"
#include "prefs/Locations.h"
#include "prefs/Preferences.h"

#include <QDir>
#include <QFile>

namespace tabo {

using P = Preferences;

QString ReportCommands::reportPdfPath()
{
    return QDir(Locations::dataFolder()).filePath(QStringLiteral("Report.pdf"));
}

void ReportCommands::showHintOnce()
{
    Preferences &prefs = m_app.prefs();
    if (prefs.boolean(P::isReportHintShown))
        return;
    m_app.ui().alert(QStringLiteral("Hint!"),
                     QStringLiteral("The report is bound to the arranged invoices in Tabo's main window. This means "
                                    "you can, for example, search for a client and therefore see the report just for "
                                    "this single client or you can pre-filter all your invoices to see a report only "
                                    "for overdue invoices."),
                     {QStringLiteral("OK")});
    prefs.setDate(P::reportDateL, now());
    prefs.setDate(P::reportDateR, now());
    prefs.setBool(P::isReportHintShown, true);
    prefs.sync();
}

QString ReportCommands::render()
{
    QDir().mkpath(Locations::dataFolder());
    const QString path = reportPdfPath();
    if (m_app.outputs().renderHtmlToFile(m_app.reportPage(m_app.generateReport()), path))
        return path;
    m_app.ui().alert(QStringLiteral("Ooops!"), QStringLiteral("Something went really wrong while creating the report."),
                     {QStringLiteral("OK")});
    return QString();
}

bool ReportCommands::savePdf()
{
    const QString path = render();
    return !path.isEmpty()
           && m_app.outputs().savePdfAs(path, QStringLiteral("Save Report as PDF"),
                                        QStringLiteral("%1 | Report").arg(m_app.prefs().string(P::prefsName)));
}

bool ReportCommands::print()
{
    const QString path = render();
    return !path.isEmpty()
           && m_app.outputs().printPdf(path, QStringLiteral("%1 | Report").arg(m_app.prefs().string(P::prefsName)));
}

} // namespace tabo
