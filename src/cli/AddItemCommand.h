#pragma once

#include "cli/Command.h"

namespace tabo {
class Record;
}

namespace tabo::cli {

// add-item ID KEY=VALUE...: a new line in a document, then its totals.
class AddItemCommand : public Command
{
public:
    explicit AddItemCommand(Session &session);
    int execute(const QStringList &args) override;

private:
    // The values a line gets from the preferences before the given ones.
    void setDefaults(Record &item);
};

} // namespace tabo::cli
