#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// show ID [--json]: one document with its lines.
class ShowCommand : public Command
{
public:
    explicit ShowCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
