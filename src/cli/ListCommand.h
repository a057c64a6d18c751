#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// list [--filter TAG] [--json]: the document list with its summary figures.
class ListCommand : public Command
{
public:
    explicit ListCommand(Session &session);
    int execute(const QStringList &args) override;

    // The status code as a word, for people.
    static QString statusName(int status);
};

} // namespace tabo::cli
