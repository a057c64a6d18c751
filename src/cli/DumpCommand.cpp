#include "cli/DumpCommand.h"

#include "app/AppController.h"
#include "app/FileCommands.h"
#include "cli/Console.h"
#include "cli/Session.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(DumpCommand)
};
} // namespace

namespace tabo::cli {

DumpCommand::DumpCommand(Session &session)
    : Command(session, QStringLiteral("dump"), QStringLiteral("FILE"),
        Tr::tr("Write documents, catalogue, designs, addresses, shipping lines and templates to an "
               "invoices dump (a keyed archive; nothing reads it back)."))
{
}

int DumpCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    if (!m_session.store())
        return kExitFailure;
    if (const Error e = m_session.controller().files().writeInvoiceDump(parser.positionalArguments().constFirst()))
        return failure(e.text);
    return kExitOk;
}

} // namespace tabo::cli
