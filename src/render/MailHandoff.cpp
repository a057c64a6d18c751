#include "render/MailHandoff.h"

#include <QProcess>

#include <QCoreApplication>
#include <memory>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(MailHandoff)
};
} // namespace

namespace tabo {

namespace {
// xdg-email returns once the mail program has the message; a program that
// keeps it waiting longer is left running and counted as started.
constexpr int XdgEmailTimeoutMs = 20000;
}

QStringList MailHandoff::arguments(const MailMessage &message)
{
    QStringList args{QStringLiteral("--subject"), message.subject};
    if (!message.body.isEmpty())
        args << QStringLiteral("--body") << message.body;
    args << QStringLiteral("--attach") << message.attachment;
    if (!message.recipient.isEmpty())
        args << message.recipient;
    return args;
}

Error MailHandoff::compose(const MailMessage &message)
{
    const auto fail = [](const QString &reason) { return Error{Error::Print, 1, reason, {}}; };
    // On the heap: a mail program that keeps xdg-email waiting is left running.
    auto xdgEmail = std::make_unique<QProcess>();
    xdgEmail->setProgram(QStringLiteral("xdg-email"));
    xdgEmail->setArguments(arguments(message));
    xdgEmail->setStandardInputFile(QProcess::nullDevice());
    xdgEmail->start();
    if (!xdgEmail->waitForStarted())
        return fail(noMailProgram());
    if (!xdgEmail->waitForFinished(XdgEmailTimeoutMs)) {
        QProcess *running = xdgEmail.release();
        QObject::connect(running, &QProcess::finished, running, &QObject::deleteLater);
        return {};
    }
    if (xdgEmail->exitStatus() != QProcess::NormalExit || xdgEmail->exitCode() != 0)
        return fail(reasonForExit(xdgEmail->exitStatus() == QProcess::NormalExit ? xdgEmail->exitCode() : -1));
    return {};
}

QString MailHandoff::noMailProgram()
{
    return Tr::tr("No e-mail program is set up on this computer.");
}

QString MailHandoff::reasonForExit(int code)
{
    // xdg-email's codes: 2 a file is missing, 3 no mail program, 4 it refused.
    switch (code) {
    case 2:
        return Tr::tr("The PDF to attach could not be found.");
    case 3:
        return noMailProgram();
    case 4:
        return Tr::tr("The e-mail program did not accept the new message.");
    default:
        return Tr::tr("The e-mail program could not be asked to write the message.");
    }
}

} // namespace tabo
