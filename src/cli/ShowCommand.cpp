#include "cli/ShowCommand.h"

#include "cli/AttributeText.h"
#include "cli/Console.h"
#include "cli/JsonWriter.h"
#include "cli/Session.h"
#include "domain/Record.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(ShowCommand)
};
} // namespace

namespace tabo::cli {

namespace {

// "key: value" for every attribute that holds one; continuation lines indented.
void appendAttributes(QStringList &lines, const Record &record, const QString &indent)
{
    const auto &attrs = record.desc().attributes;
    for (int i = 0; i < int(attrs.size()); ++i) {
        if (record.isNull(i))
            continue;
        QString value = AttributeText::plain(record, i);
        value.replace(QLatin1Char('\n'), QLatin1Char('\n') + indent + QStringLiteral("    "));
        lines << indent + attrs[i].name + QStringLiteral(": ") + value;
    }
}

} // namespace

ShowCommand::ShowCommand(Session &session)
    : Command(
        session, QStringLiteral("show"), QStringLiteral("ID [--json]"), Tr::tr("Print a document with its lines."))
{
}

int ShowCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption json(QStringLiteral("json"), Tr::tr("Print JSON."));
    parser.addOption(json);
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    const Record *doc = m_session.document(parser.positionalArguments().constFirst());
    if (!doc)
        return kExitFailure;
    if (parser.isSet(json)) {
        printOut(JsonWriter::document(*doc));
        return kExitOk;
    }
    QStringList lines;
    appendAttributes(lines, *doc, QString());
    const QList<Record *> &items = doc->toMany(Invoice::items);
    lines << QStringLiteral("items: %1").arg(items.size());
    for (const Record *item : items) {
        lines << QStringLiteral("  -");
        appendAttributes(lines, *item, QStringLiteral("    "));
    }
    printOut(lines.join(QLatin1Char('\n')));
    return kExitOk;
}

} // namespace tabo::cli
