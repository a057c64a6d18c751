#pragma once

#include "cli/Command.h"

namespace tabo {
class Record;
}

namespace tabo::cli {

// catalogue list|shipping [--json]: the remembered articles or shipping
// lines; catalogue edit|delete: keeping the articles tidy.
class CatalogueCommand : public Command
{
public:
    explicit CatalogueCommand(Session &session);
    int execute(const QStringList &args) override;

private:
    Record *entry(const QString &name) const; // prints why when there is none
    int edit(const QStringList &positional);
    int remove(const QStringList &positional);
};

} // namespace tabo::cli
