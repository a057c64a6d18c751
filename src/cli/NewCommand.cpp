#include "cli/NewCommand.h"

#include "app/AppController.h"
#include "cli/Console.h"
#include "cli/Session.h"
#include "domain/Record.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(NewCommand)
};
} // namespace

namespace tabo::cli {

NewCommand::NewCommand(Session &session)
    : Command(session, QStringLiteral("new"), QStringLiteral("invoice|quote"),
        Tr::tr("Create a document and print its unique ID."))
{
}

int NewCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    const QString kind = parser.positionalArguments().constFirst();
    if (kind != QLatin1String("invoice") && kind != QLatin1String("quote"))
        return usageError(Tr::tr("Unknown document kind “%1”.").arg(kind));
    if (!m_session.store())
        return kExitFailure;
    AppController &app = m_session.controller();
    Record *doc = kind == QLatin1String("invoice") ? app.addInvoice() : app.addQuote();
    // The command saves on its own; a failed save has been presented.
    if (!doc || m_session.ui().errorPresented())
        return kExitFailure;
    printOut(doc->text(Invoice::uniqueID));
    return kExitOk;
}

} // namespace tabo::cli
