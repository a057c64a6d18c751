#pragma once

#include "base/Error.h"

#include <QString>

namespace tabo {

// A systemd user timer that runs `tabo-cli notifications deliver-due` every
// hour, so that reminders arrive while Tabo is closed. Installed only when
// the person asks for it, and removable the same way.
class ReminderTimer
{
public:
    // `cli` is the tabo-cli to run; `systemctl` the program that loads units.
    explicit ReminderTimer(QString cli = defaultCliPath(), QString systemctl = QStringLiteral("systemctl"));

    static QString defaultCliPath();
    // $XDG_CONFIG_HOME/systemd/user
    static QString unitFolder();
    static inline const QString kName = QStringLiteral("tabo-reminders");

    bool isInstalled() const;
    // Writes the units and starts the timer. When systemd does not answer,
    // the files are taken away again and the error says why.
    Error install();
    Error remove();

    QString serviceUnit() const;
    QString timerUnit() const;

private:
    Error systemctl(const QStringList &arguments) const;
    QString m_cli;
    QString m_systemctl;
};

} // namespace tabo
