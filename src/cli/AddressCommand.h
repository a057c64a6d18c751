#pragma once

#include "cli/Command.h"

namespace tabo {
struct AddressFields;
}

namespace tabo::cli {

// address ID [--vcard FILE [--contact N]] [KEY=VALUE...]: the address
// popover, filled from a contact and the given fields, then confirmed.
class AddressCommand : public Command
{
public:
    explicit AddressCommand(Session &session);
    int execute(const QStringList &args) override;

private:
    // The popover's fields from contact `number` (1-based) of a vCard file;
    // false once the reason is on stderr.
    bool fromVCard(const QString &path, int number, AddressFields *fields);
};

} // namespace tabo::cli
