#include "cli/DeleteItemCommand.h"

#include "app/AppController.h"
#include "app/ItemCommands.h"
#include "cli/Console.h"
#include "cli/Session.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(DeleteItemCommand)
};
} // namespace

namespace tabo::cli {

DeleteItemCommand::DeleteItemCommand(Session &session)
    : Command(session, QStringLiteral("delete-item"), QStringLiteral("ID N [--yes]"),
        Tr::tr("Delete line N (1 is the first, in the order the editor shows) of a document; "
               "needs --yes."))
{
}

int DeleteItemCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parseConfirmed(parser, args, 2, 2, &code))
        return code;
    const QStringList pos = parser.positionalArguments();
    bool ok = false;
    const int n = pos.at(1).toInt(&ok);
    if (!ok || n < 1)
        return usageError(Tr::tr("“%1” is not a line number.").arg(pos.at(1)));
    Record *doc = m_session.select(pos.at(0));
    if (!doc)
        return kExitFailure;
    ItemCommands &items = m_session.controller().items();
    const QList<Record *> lines = items.sortedItems(*doc);
    if (n > lines.size())
        return failure(Tr::tr("Document “%1” has no line %2; it has %3.")
                           .arg(pos.at(0), QString::number(n), QString::number(lines.size())));
    return items.deleteItem(lines.at(n - 1)) ? kExitOk : kExitFailure;
}

} // namespace tabo::cli
