#include "cli/DeleteCommand.h"

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
    Q_DECLARE_TR_FUNCTIONS(DeleteCommand)
};
} // namespace

namespace tabo::cli {

DeleteCommand::DeleteCommand(Session &session)
    : Command(session, QStringLiteral("delete"), QStringLiteral("ID [--yes] [--adjust-counter]"),
        Tr::tr("Delete a document (needs --yes). With --adjust-counter the invoice or quote "
               "counter is raised so that no number is used twice."))
{
}

int DeleteCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption adjust(
        QStringLiteral("adjust-counter"), Tr::tr("Answer “Adjust Counter” after the deletion."));
    parser.addOption(adjust);
    int code = kExitOk;
    if (!parseConfirmed(parser, args, 1, 1, &code))
        return code;
    CliInteraction &ui = m_session.ui();
    ui.setAnswer(Tr::tr("Adjust Counter"), parser.isSet(adjust));
    if (!m_session.select(parser.positionalArguments().constFirst()))
        return kExitFailure;
    return m_session.controller().documents().deleteInvoice() ? kExitOk : kExitFailure;
}

} // namespace tabo::cli
