#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// report [--filter TAG] [--search TEXT] [--from DATE --to DATE] [--json | --html FILE | --pdf FILE]:
// the
// report's figures over the documents the list shows.
class ReportCommand : public Command
{
public:
    explicit ReportCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
