#pragma once

#include "cli/Command.h"

namespace tabo::cli {

// export-xml FILE: the documents, all or those a filter shows, as an XML property list.
class ExportXmlCommand : public Command
{
public:
    explicit ExportXmlCommand(Session &session);
    int execute(const QStringList &args) override;
};

} // namespace tabo::cli
