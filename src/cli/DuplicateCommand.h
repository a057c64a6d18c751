#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// duplicate ID: the application's Duplicate on one document.
class DuplicateCommand : public Command
{
public:
    explicit DuplicateCommand(Session &session);
    int execute(const QStringList &args) override;
};

// cancel ID [--yes]: the credit note of a sent or paid invoice; prints its
// unique ID.
class CancelCommand : public Command
{
public:
    explicit CancelCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
