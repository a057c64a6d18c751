#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// recurring add|list|pause|resume|remove|run: invoices that repeat.
class RecurringCommand : public Command
{
public:
    explicit RecurringCommand(Session &session);
    int execute(const QStringList &args) override;

private:
    int add(const QCommandLineParser &parser, const QString &source);
    int list();
    int run(bool dryRun, bool send);
};

} // namespace tabo::cli
