#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// notify ID [--date ISO] [--title T] [--subtitle S] [--text T] [--yes]:
// schedules a reminder of the invoice, as the notification sheet does.
class NotifyCommand : public Command
{
public:
    explicit NotifyCommand(Session &session);
    int execute(const QStringList &args) override;
};

// notifications list [--json] | cancel ID | deliver-due [--wait SECONDS]
class NotificationsCommand : public Command
{
public:
    explicit NotificationsCommand(Session &session);
    int execute(const QStringList &args) override;

private:
    int list(const QStringList &args);
    int cancel(const QStringList &args);
    int deliverDue(const QStringList &args);
};

} // namespace tabo::cli
