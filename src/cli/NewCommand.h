#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// new invoice|quote: the application's own New Invoice / New Quote.
class NewCommand : public Command
{
public:
    explicit NewCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
