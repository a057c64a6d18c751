#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// print ID [--printer NAME]: the document's PDF to the print system, marked
// as sent as the print sheet does.
class PrintCommand : public Command
{
public:
    explicit PrintCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
