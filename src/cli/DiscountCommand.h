#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// discount ID KEY=VALUE...: the discount popover, filled and confirmed.
class DiscountCommand : public Command
{
public:
    explicit DiscountCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
