#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// email ID: a new message in the mail program with the document's PDF
// attached, to the document's e-mail address; the person sends it.
class EmailCommand : public Command
{
public:
    explicit EmailCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
