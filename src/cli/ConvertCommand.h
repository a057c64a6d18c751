#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// convert ID [--yes]: turns a quote into an invoice.
class ConvertCommand : public Command
{
public:
    explicit ConvertCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
