#include "cli/ListCommand.h"

#include "app/AppController.h"
#include "app/DocumentCommands.h"
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
    Q_DECLARE_TR_FUNCTIONS(ListCommand)
};
} // namespace

namespace tabo::cli {

ListCommand::ListCommand(Session &session)
    : Command(session, QStringLiteral("list"), QStringLiteral("[--filter TAG] [--json]"),
        Tr::tr("List the documents shown by a filter (0 all, 1 sent, 2 overdue or partly paid, "
               "3 paid, 4 quotes, 5-8 the last 12 hours, 3.5, 15.5, 182.5 days) and the summary."))
{
}

QString ListCommand::statusName(int status)
{
    static const char *const names[] = {"created", "sent", "overdue", "paid", "partly paid"};
    return status >= 0 && status <= 4 ? QString::fromLatin1(names[status]) : QString::number(status);
}

int ListCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption filter = filterOption();
    const QCommandLineOption json(QStringLiteral("json"), Tr::tr("Print JSON."));
    parser.addOptions({filter, json});
    int code = kExitOk;
    if (!parse(parser, args, 0, 0, &code))
        return code;
    unsigned tag = 0;
    if (!filterTag(parser, &tag, &code))
        return code;
    if (!m_session.store())
        return kExitFailure;

    arrangeList(parser, tag);
    AppController &app = m_session.controller();
    const QList<Record *> &docs = app.documentList().shown();
    const Summary &s = app.summary();
    QStringList lines;
    if (parser.isSet(json)) {
        app.documents().loadFully(docs);
        for (const Record *doc : docs)
            lines << JsonWriter::record(*doc);
        printOut(QStringLiteral("{\"documents\": [") + (lines.isEmpty() ? QString() : QStringLiteral("\n"))
                 + lines.join(QStringLiteral(",\n")) + QStringLiteral("],\n\"summary\": ")
                 + JsonWriter::summary(s) + QLatin1Char('}'));
        return kExitOk;
    }
    for (const Record *doc : docs) {
        lines << QStringList{doc->text(Invoice::number), doc->date(Invoice::date).toIso8601(),
                             doc->text(Invoice::customerName), doc->text(Invoice::title),
                             AttributeText::plain(*doc, Invoice::amount),
                             doc->integer(Invoice::kind) == 1 ? statusName(doc->integer(Invoice::status))
                                                              : QStringLiteral("quote")}
                     .join(QLatin1Char('\t'));
    }
    lines << QStringLiteral("invoiceCount: %1").arg(s.invoiceCount)
          << QStringLiteral("quoteCount: %1").arg(s.quoteCount)
          << QStringLiteral("invoiceCountForNumber: %1").arg(s.invoiceCountForNumber)
          << QStringLiteral("totalAmount: %1").arg(JsonWriter::numberText(s.totalAmount))
          << QStringLiteral("paidAmount: %1").arg(JsonWriter::numberText(s.paidAmount))
          << QStringLiteral("dueAmount: %1").arg(JsonWriter::numberText(s.dueAmount));
    printOut(lines.join(QLatin1Char('\n')));
    return kExitOk;
}

} // namespace tabo::cli
