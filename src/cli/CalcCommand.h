#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// calc ID: recalculates a document's totals and the list's summary.
class CalcCommand : public Command
{
public:
    explicit CalcCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
