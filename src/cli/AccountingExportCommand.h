#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// accounting-export vorlux|quandrella: the accounting sheet with its controls
// given as options.
class AccountingExportCommand : public Command
{
public:
    explicit AccountingExportCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
