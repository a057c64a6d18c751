#include "app/ReminderTimer.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(ReminderTimer)
};
} // namespace

namespace tabo {

namespace {

QString unitPath(const QString &suffix)
{
    return QDir(ReminderTimer::unitFolder()).filePath(ReminderTimer::kName + suffix);
}

// systemd splits ExecStart= at blanks and reads "\" and "%" itself.
QString quotedForSystemd(const QString &path)
{
    QString q = path;
    q.replace(QLatin1Char('\\'), QLatin1String("\\\\")).replace(QLatin1Char('"'), QLatin1String("\\\""));
    q.replace(QLatin1Char('%'), QLatin1String("%%"));
    return QLatin1Char('"') + q + QLatin1Char('"');
}

} // namespace

ReminderTimer::ReminderTimer(QString cli, QString systemctl) : m_cli(std::move(cli)), m_systemctl(std::move(systemctl))
{
}

QString ReminderTimer::defaultCliPath()
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("tabo-cli"));
}

QString ReminderTimer::unitFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/systemd/user");
}

bool ReminderTimer::isInstalled() const
{
    return QFile::exists(unitPath(QStringLiteral(".timer")));
}

QString ReminderTimer::serviceUnit() const
{
    // The run stays a while after showing something, so that a click on the
    // notification can still open Tabo on that invoice.
    return QStringLiteral("[Unit]\nDescription=Tabo: show the reminders of due invoices\n\n"
                          "[Service]\nType=exec\nExecStart=%1 notifications deliver-due --wait 3000\n")
        .arg(quotedForSystemd(m_cli));
}

QString ReminderTimer::timerUnit() const
{
    return QStringLiteral("[Unit]\nDescription=Tabo: look for due reminders every hour\n\n"
                          "[Timer]\nOnStartupSec=2min\nOnCalendar=hourly\nPersistent=true\n\n"
                          "[Install]\nWantedBy=timers.target\n");
}

Error ReminderTimer::systemctl(const QStringList &arguments) const
{
    QProcess process;
    process.start(m_systemctl, QStringList{QStringLiteral("--user")} + arguments);
    if (!process.waitForStarted(5000))
        return Error::file(Tr::tr("systemd could not be asked (%1 did not start).").arg(m_systemctl));
    if (!process.waitForFinished(30000)) {
        process.kill();
        return Error::file(Tr::tr("systemd did not answer in time."));
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return Error::file(
            Tr::tr("systemd refused: %1").arg(QString::fromLocal8Bit(process.readAllStandardError()).trimmed()));
    return {};
}

Error ReminderTimer::install()
{
    if (!QFileInfo(m_cli).isExecutable())
        return Error::file(Tr::tr("The reminder timer needs tabo-cli, which is not at “%1”.").arg(m_cli));
    QDir().mkpath(unitFolder());
    for (const auto &[suffix, text] : {std::pair{QStringLiteral(".service"), serviceUnit()},
                                      std::pair{QStringLiteral(".timer"), timerUnit()}}) {
        QSaveFile file(unitPath(suffix));
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0 || !file.commit())
            return Error::file(Tr::tr("The file “%1” could not be written.").arg(unitPath(suffix)));
    }
    Error e = systemctl({QStringLiteral("daemon-reload")});
    if (!e)
        e = systemctl({QStringLiteral("enable"), QStringLiteral("--now"), kName + QStringLiteral(".timer")});
    if (e) {
        // Half an installation would look installed and never run.
        QFile::remove(unitPath(QStringLiteral(".timer")));
        QFile::remove(unitPath(QStringLiteral(".service")));
        e.text = Tr::tr("The reminder timer could not be installed. ") + e.text;
    }
    return e;
}

Error ReminderTimer::remove()
{
    // Stopping fails when systemd never knew the timer; the files go anyway.
    systemctl({QStringLiteral("disable"), QStringLiteral("--now"), kName + QStringLiteral(".timer")});
    for (const QString &suffix : {QStringLiteral(".timer"), QStringLiteral(".service")})
        if (QFile::exists(unitPath(suffix)) && !QFile::remove(unitPath(suffix)))
            return Error::file(Tr::tr("The file “%1” could not be removed.").arg(unitPath(suffix)));
    // The wants-link of "enable" goes with "disable"; a leftover one dangles harmlessly.
    QFile::remove(QDir(unitFolder()).filePath(QStringLiteral("timers.target.wants/") + kName + QStringLiteral(".timer")));
    systemctl({QStringLiteral("daemon-reload")});
    return {};
}

} // namespace tabo
