#include "cli/SetCommand.h"

#include "app/AppController.h"
#include "cli/AttributeText.h"
#include "cli/Console.h"
#include "cli/Session.h"
#include "domain/Record.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(SetCommand)
};
} // namespace

namespace tabo::cli {

SetCommand::SetCommand(Session &session)
    : Command(session, QStringLiteral("set"), QStringLiteral("ID KEY VALUE"),
        Tr::tr("Set one attribute of a document (dates ISO 8601, booleans true/false/1/0, "
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
    const QString &key = pos.at(1);
    // The unique ID is how reminders, the window and every command find the
    // document; the codes have meanings only within their range.
    if (key == QLatin1String("uniqueID"))
        return failure(Tr::tr("A document's uniqueID cannot be changed: reminders, the window and every "
                              "command find the document by it."));
    const Result<QVariant> typed = AttributeText::convert(doc->desc(), key, pos.at(2));
    if (!typed)
        return failure(typed.error().text);
    const QVariant &value = typed.value();
    if (key == QLatin1String("kind") && value.toLongLong() != 0 && value.toLongLong() != 1)
        return failure(Tr::tr("“%1” is no kind: 0 is a quote, 1 an invoice.").arg(pos.at(2)));
    if (key == QLatin1String("status") && (value.toLongLong() < 0 || value.toLongLong() > 4))
        return failure(
            Tr::tr("“%1” is no status: 0 created, 1 sent, 2 overdue, 3 paid, 4 partly paid.").arg(pos.at(2)));
    if (const Error e = AttributeText::assign(*doc, key, pos.at(2)))
        return failure(e.text);
    return m_session.controller().save() ? kExitFailure : kExitOk;
}

} // namespace tabo::cli
