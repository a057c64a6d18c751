#include "cli/ConvertCommand.h"

#include "app/AppController.h"
#include "app/DocumentCommands.h"
#include "cli/Console.h"
#include "cli/Session.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(ConvertCommand)
};
} // namespace

namespace tabo::cli {

ConvertCommand::ConvertCommand(Session &session)
    : Command(session, QStringLiteral("convert"), QStringLiteral("ID [--yes]"),
        Tr::tr("Convert a quote into an invoice (new number, title and texts); cannot be undone, "
               "so it needs --yes."))
{
}

int ConvertCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parseConfirmed(parser, args, 1, 1, &code))
        return code;
    if (!m_session.select(parser.positionalArguments().constFirst()))
        return kExitFailure;
    return m_session.controller().documents().convertQuoteToInvoice() ? kExitOk : kExitFailure;
}

} // namespace tabo::cli
