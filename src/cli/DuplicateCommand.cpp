#include "cli/DuplicateCommand.h"

#include "app/AppController.h"
#include "app/DocumentCommands.h"
#include "cli/Console.h"
#include "cli/Session.h"
#include "domain/Record.h"

#include <QCommandLineParser>

namespace tabo::cli {

DuplicateCommand::DuplicateCommand(Session &session)
    : Command(session, QStringLiteral("duplicate"), QStringLiteral("ID"),
              QStringLiteral("Copy a document with its lines under a new number; prints the copy's unique ID."))
{
}

int DuplicateCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    if (!m_session.select(parser.positionalArguments().constFirst()))
        return kExitFailure;
    const Record *copy = m_session.controller().documents().duplicateInvoice();
    // The command saves on its own; a failed save has been presented.
    if (!copy || m_session.ui().errorPresented())
        return kExitFailure;
    printOut(copy->text(Invoice::uniqueID));
    return kExitOk;
}

} // namespace tabo::cli
