#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// set ID KEY VALUE: one attribute of a document, by its key name.
class SetCommand : public Command
{
public:
    explicit SetCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
