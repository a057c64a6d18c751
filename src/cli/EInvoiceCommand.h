#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// einvoice export ID --xrechnung-cii FILE | --xrechnung-ubl FILE, einvoice missing ID: the
// e-invoice of an invoice, or what it still needs.
class EInvoiceCommand : public Command
{
public:
    explicit EInvoiceCommand(Session &session);
    int execute(const QStringList &args) override;

private:
    int received(const QString &sub, const QStringList &args);
};

} // namespace tabo::cli
