#include "cli/CalcCommand.h"

#include "app/AppController.h"
#include "cli/Console.h"
#include "cli/Session.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(CalcCommand)
};
} // namespace

namespace tabo::cli {

CalcCommand::CalcCommand(Session &session)
    : Command(session, QStringLiteral("calc"), QStringLiteral("ID"), Tr::tr("Recalculate the totals of a document."))
{
}

int CalcCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    Record *doc = m_session.document(parser.positionalArguments().constFirst());
    if (!doc)
        return kExitFailure;
    m_session.controller().calculateInvoice(doc);
    return m_session.controller().save() ? kExitFailure : kExitOk;
}

} // namespace tabo::cli
