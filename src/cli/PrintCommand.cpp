#include "cli/PrintCommand.h"

#include "app/AppController.h"
#include "app/OutputCommands.h"
#include "cli/Console.h"
#include "cli/OutputRun.h"
#include "cli/Session.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(PrintCommand)
};
} // namespace

namespace tabo::cli {

PrintCommand::PrintCommand(Session &session)
    : Command(session, QStringLiteral("print"), QStringLiteral("ID [--printer NAME]"),
        Tr::tr("Print a document (default printer unless --printer); an invoice is then marked as "
               "sent when markInvoiceAsSent is on."))
{
}

int PrintCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption printer(QStringLiteral("printer"), Tr::tr("Printer to use."), QStringLiteral("NAME"));
    parser.addOption(printer);
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    if (parser.isSet(printer) && parser.value(printer).trimmed().isEmpty())
        return usageError(Tr::tr("--printer needs a printer name."));
    m_session.ui().setPrinter(parser.value(printer));
    m_session.controller().outputs().setPrinter(parser.value(printer));
    return OutputRun::exportDocument(m_session, parser.positionalArguments().constFirst(), OutputCommands::Print);
}

} // namespace tabo::cli
