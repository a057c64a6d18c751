#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// restore database|invoices|items FILE, restore auto: the File menu's
// restores with FILE for the open panel; each replaces data, so each needs
// --yes.
class RestoreCommand : public Command
{
public:
    explicit RestoreCommand(Session &session);
    int execute(const QStringList &args) override;

private:
    int restoreAutomaticBackup();
};

} // namespace tabo::cli
