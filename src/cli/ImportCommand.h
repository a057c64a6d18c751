#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// import FILE: a Tabo document as a new document, after the application's warning.
class ImportCommand : public Command
{
public:
    explicit ImportCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
