#include "cli/ImportCommand.h"

#include "app/AppController.h"
#include "app/FileCommands.h"
#include "cli/Console.h"
#include "cli/Session.h"
#include "domain/Record.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(ImportCommand)
};
} // namespace

namespace tabo::cli {

ImportCommand::ImportCommand(Session &session)
    : Command(session, QStringLiteral("import"), QStringLiteral("FILE [--yes]"),
        Tr::tr("Add the document of a Tabo document file; the application warns first, so it needs "
               "--yes. Prints the new document's unique ID."))
{
}

int ImportCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parseConfirmed(parser, args, 1, 1, &code))
        return code;
    const QString path = parser.positionalArguments().constFirst();
    if (!QFileInfo(path).isFile())
        return failure(Tr::tr("No file “%1”.").arg(path));
    if (!m_session.store())
        return kExitFailure;
    // The application's own command: its warning, then the file as the
    // open panel's answer.
    CliInteraction &ui = m_session.ui();
    ui.setPanelPath(path);
    const Record *doc = m_session.controller().files().importInvoice();
    if (!doc) {
        if (ui.messagesShown() == 0)
            return failure(Tr::tr("Nothing was imported from “%1”.").arg(path));
        return kExitFailure;
    }
    printOut(doc->text(Invoice::uniqueID));
    return kExitOk;
}

} // namespace tabo::cli
