#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// account-book [--filter TAG] [--search TEXT] --pdf FILE: the printed list of
// the invoices the list shows, as PDF.
class AccountBookCommand : public Command
{
public:
    explicit AccountBookCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
