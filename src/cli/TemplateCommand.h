#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// template save|apply|list|delete: saved invoice templates, by name.
class TemplateCommand : public Command
{
public:
    explicit TemplateCommand(Session &session);
    int execute(const QStringList &args) override;

private:
    // `include` is the --include list, or null for the stored preferences.
    int save(const QString &id, const QString &name, const QString *include, const QString *notes);
    int apply(const QString &id, const QString &name);
    int list(bool json);
    int remove(const QString &name);
};

} // namespace tabo::cli
