#include "render/MailHandoff.h"

#include <QProcess>

#include <memory>

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

bool MailHandoff::compose(const MailMessage &message, QString *error)
{
    auto fail = [&](const QString &reason) {
        if (error)
            *error = reason;
        return false;
    };
    // On the heap: a mail program that keeps xdg-email waiting is left running.
    auto xdgEmail = std::make_unique<QProcess>();
    xdgEmail->setProgram(QStringLiteral("xdg-email"));
    xdgEmail->setArguments(arguments(message));
    xdgEmail->setStandardInputFile(QProcess::nullDevice());
    xdgEmail->start();
    if (!xdgEmail->waitForStarted())
        return fail(QStringLiteral("No mail program could be started: the program \"xdg-email\" was not found."));
    if (!xdgEmail->waitForFinished(XdgEmailTimeoutMs)) {
        QProcess *running = xdgEmail.release();
        QObject::connect(running, &QProcess::finished, running, &QObject::deleteLater);
        return true;
    }
    if (xdgEmail->exitStatus() != QProcess::NormalExit || xdgEmail->exitCode() != 0) {
        QString reason = QString::fromLocal8Bit(xdgEmail->readAllStandardError()).trimmed();
        reason = reason.section(QLatin1Char('\n'), 0, 0);
        if (reason.isEmpty())
            reason = QStringLiteral("xdg-email ended with code %1").arg(xdgEmail->exitCode());
        return fail(QStringLiteral("The message could not be handed to the mail program: %1").arg(reason));
    }
    return true;
}

} // namespace tabo
