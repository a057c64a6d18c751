#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// payments import FILE [--json] [--apply]: a bank statement's credits with
// the invoices they pay; --apply takes in the sure matches.
class PaymentsCommand : public Command
{
public:
    explicit PaymentsCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
