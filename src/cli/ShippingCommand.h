#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// shipping ID KEY=VALUE...: the shipping popover, filled and confirmed.
class ShippingCommand : public Command
{
public:
    explicit ShippingCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
