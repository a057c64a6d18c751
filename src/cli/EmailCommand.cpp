#include "cli/EmailCommand.h"

#include "app/OutputCommands.h"
#include "cli/Console.h"
#include "cli/OutputRun.h"

#include <QCommandLineParser>

namespace tabo::cli {

EmailCommand::EmailCommand(Session &session)
    : Command(session, QStringLiteral("email"), QStringLiteral("ID"),
              QStringLiteral("Open a new message in the mail program with the document as a PDF attachment; an "
                             "invoice is then marked as sent when markInvoiceAsSent is on."))
{
}

int EmailCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    return OutputRun::exportDocument(m_session, parser.positionalArguments().constFirst(), OutputCommands::Email);
}

} // namespace tabo::cli
