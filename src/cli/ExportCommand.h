#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// export ID --tabo FILE | --xml FILE: one document as a file that import reads back (--tabo).
class ExportCommand : public Command
{
public:
    explicit ExportCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
