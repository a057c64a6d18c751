#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// catalogue list|shipping [--json]: the remembered articles or shipping lines.
class CatalogueCommand : public Command
{
public:
    explicit CatalogueCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
