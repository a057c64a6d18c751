#include "cli/DuplicateCommand.h"

#include "app/AppController.h"
#include "app/DocumentCommands.h"
#include "cli/Console.h"
#include "cli/Session.h"
#include "domain/Record.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(DuplicateCommand)
};
} // namespace

namespace tabo::cli {

DuplicateCommand::DuplicateCommand(Session &session)
    : Command(session, QStringLiteral("duplicate"), QStringLiteral("ID [--to-the-cent]"),
        Tr::tr("Copy a document with its lines under a new number; prints the copy's unique ID. "
               "--to-the-cent calculates the copy to the cent per VAT rate, as e-invoices need."))
{
}

namespace {

// Both commands make a new document from the selected one and print its ID.
int printNew(Session &session, const Record *made)
{
    // The command saves on its own; a failed save has been presented.
    if (!made || session.ui().errorPresented())
        return kExitFailure;
    printOut(made->text(Invoice::uniqueID));
    return kExitOk;
}

} // namespace

int DuplicateCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption toTheCent(QStringLiteral("to-the-cent"));
    parser.addOption(toTheCent);
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    if (!m_session.select(parser.positionalArguments().constFirst()))
        return kExitFailure;
    return printNew(m_session, m_session.controller().documents().duplicateInvoice(parser.isSet(toTheCent)));
}

CancelCommand::CancelCommand(Session &session)
    : Command(session, QStringLiteral("cancel"), QStringLiteral("ID [--yes]"),
        Tr::tr("Cancel a sent or paid invoice by a credit note (needs --yes): its lines negated, "
               "numbered as invoices are, naming the invoice. Prints the credit note's unique ID."))
{
}

int CancelCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parseConfirmed(parser, args, 1, 1, &code))
        return code;
    if (!m_session.select(parser.positionalArguments().constFirst()))
        return kExitFailure;
    return printNew(m_session, m_session.controller().documents().cancelInvoice());
}

} // namespace tabo::cli
