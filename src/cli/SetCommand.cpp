#include "cli/SetCommand.h"

#include "app/AppController.h"
#include "cli/AttributeText.h"
#include "cli/Console.h"
#include "cli/Session.h"

#include <QCommandLineParser>

namespace tabo::cli {

SetCommand::SetCommand(Session &session)
    : Command(session, QStringLiteral("set"), QStringLiteral("ID KEY VALUE"),
              QStringLiteral("Set one attribute of a document (dates ISO 8601, booleans true/false/1/0, "
                             "numbers in C notation or NaN). Totals are not recalculated."))
{
}

int SetCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parse(parser, args, 3, 3, &code, true))
        return code;
    const QStringList pos = parser.positionalArguments();
    Record *doc = m_session.document(pos.at(0));
    if (!doc)
        return kExitFailure;
    QString reason;
    if (!AttributeText::assign(*doc, pos.at(1), pos.at(2), &reason))
        return failure(reason);
    return m_session.controller().saveContext() ? kExitFailure : kExitOk;
}

} // namespace tabo::cli
