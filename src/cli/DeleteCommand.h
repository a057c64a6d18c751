#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// delete ID [--yes] [--adjust-counter]: removes a document, asking first.
class DeleteCommand : public Command
{
public:
    explicit DeleteCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
