#include "render/PrintSystem.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(PrintSystem)
};
} // namespace

namespace tabo {

namespace {
constexpr int LpTimeoutMs = 30000;
}

QStringList PrintSystem::lpArguments(const QString &pdfPath, const PrintRequest &request)
{
    QStringList args;
    if (!request.printer.isEmpty())
        args << QStringLiteral("-d") << request.printer;
    args << QStringLiteral("-t") << request.jobTitle;
    if (request.copies > 1)
        args << QStringLiteral("-n") << QString::number(request.copies);
    for (const QString &option : request.options)
        args << QStringLiteral("-o") << option;
    // A relative path starting with a dash would be read as an option.
    args << (pdfPath.startsWith(QLatin1Char('-')) ? QFileInfo(pdfPath).absoluteFilePath() : pdfPath);
    return args;
}

Error PrintSystem::printFile(const QString &pdfPath, const PrintRequest &request)
{
    QProcess lp;
    lp.setProgram(QStringLiteral("lp"));
    lp.setArguments(lpArguments(pdfPath, request));
    lp.setStandardInputFile(QProcess::nullDevice());
    lp.start();
    const auto fail = [](const QString &reason) { return Error{Error::Print, 1, reason, {}}; };
    if (!lp.waitForStarted())
        return fail(Tr::tr("The print system could not be reached: the program \"lp\" was not found."));
    if (!lp.waitForFinished(LpTimeoutMs)) {
        lp.kill();
        lp.waitForFinished();
        return fail(Tr::tr("The print system did not answer in time."));
    }
    if (lp.exitStatus() != QProcess::NormalExit || lp.exitCode() != 0) {
        QString reason = QString::fromLocal8Bit(lp.readAllStandardError()).trimmed();
        reason = reason.section(QLatin1Char('\n'), 0, 0);
        if (reason.isEmpty())
            reason = Tr::tr("lp ended with code %1").arg(lp.exitCode());
        return fail(Tr::tr("The document could not be printed: %1").arg(reason));
    }
    return {};
}

} // namespace tabo
