#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// backup database|invoices|items FILE, backup auto: the File menu's backups
// with FILE for the save panel.
class BackupCommand : public Command
{
public:
    explicit BackupCommand(Session &session);
    int execute(const QStringList &args) override;

private:
    int backupDatabase(const QString &file);
};

} // namespace tabo::cli
