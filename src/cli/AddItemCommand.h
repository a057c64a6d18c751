#pragma once

#include "cli/Command.h"

namespace tabo {
struct ItemFields;
}

namespace tabo::cli {

// add-item ID KEY=VALUE...: a new line in a document through the item
// popover, so that the catalogue learns it; other attributes follow as edits.
class AddItemCommand : public Command
{
public:
    explicit AddItemCommand(Session &session);
    int execute(const QStringList &args) override;

private:
    // Puts a popover key into `fields`: false when `key` is not one of them,
    // refused when it is but the value is not valid.
    static Result<bool> popoverField(ItemFields &fields, const QString &key, const QString &value);
};

} // namespace tabo::cli
