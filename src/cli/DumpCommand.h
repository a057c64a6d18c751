#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// dump FILE: every record of the database in one keyed archive, for the person's own files.
class DumpCommand : public Command
{
public:
    explicit DumpCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
