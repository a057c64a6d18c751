#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// delete-item ID N [--yes]: removes a document's line N as the editor counts.
class DeleteItemCommand : public Command
{
public:
    explicit DeleteItemCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
