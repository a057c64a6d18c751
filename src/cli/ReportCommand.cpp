#include "cli/ReportCommand.h"

#include "prefs/ProtectedFiles.h"
#include "app/AppController.h"
#include "app/OutputCommands.h"
#include "app/ReportCommands.h"
#include "cli/Console.h"
#include "cli/JsonWriter.h"
#include "cli/Session.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QSaveFile>
#include <QStringList>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(ReportCommand)
};
} // namespace

namespace tabo::cli {

ReportCommand::ReportCommand(Session &session)
    : Command(session, QStringLiteral("report"),
        QStringLiteral("[--filter TAG] [--search TEXT] [--from DATE --to DATE] [--json | --html FILE | --pdf FILE]"),
        Tr::tr("The report over the documents a filter and search show: counts, sums and averages "
               "(with --json by their placeholder names), revenue per month and the five clients "
               "with the most. --from and --to limit it to invoices dated in between, both days "
               "included."))
{
}

int ReportCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption filter = filterOption();
    const QCommandLineOption search = searchOption();
    const QCommandLineOption from(QStringLiteral("from"), Tr::tr("First day."), QStringLiteral("DATE"));
    const QCommandLineOption to(QStringLiteral("to"), Tr::tr("Last day."), QStringLiteral("DATE"));
    const QCommandLineOption json(QStringLiteral("json"), Tr::tr("Print JSON."));
    const QCommandLineOption html(QStringLiteral("html"), Tr::tr("Write the report page."), QStringLiteral("FILE"));
    const QCommandLineOption pdf(QStringLiteral("pdf"), Tr::tr("Write the report as PDF."), QStringLiteral("FILE"));
    parser.addOptions({filter, search, from, to, json, html, pdf});
    int code = kExitOk;
    if (!parse(parser, args, 0, 0, &code))
        return code;
    unsigned tag = 0;
    if (!filterTag(parser, &tag, &code))
        return code;
    if (parser.isSet(from) != parser.isSet(to))
        return usageError(Tr::tr("A range needs both --from and --to."));
    Report::Range range;
    if (parser.isSet(from)) {
        const std::optional<Date> begin = rangeDate(parser.value(from), false);
        const std::optional<Date> end = rangeDate(parser.value(to), true);
        if (!begin || !end)
            return usageError(
                Tr::tr("“%1” is not an ISO 8601 date.").arg(begin ? parser.value(to) : parser.value(from)));
        range = std::pair(*begin, *end);
    }
    if (!m_session.store())
        return kExitFailure;

    arrangeList(parser, tag);
    AppController &app = m_session.controller();
    const ReportFigures figures = range ? app.reports().generateReport(range) : app.reports().generateReport(Report::Range());
    const auto values = Report::placeholderValues(figures);

    QStringList out;
    if (parser.isSet(pdf)) {
        // The bars are the page's own CSS: the PDF engine runs no script.
        if (!app.outputs().renderHtmlToFile(app.reports().reportPage(figures), parser.value(pdf)))
            return failure(Tr::tr("The report could not be written to “%1”.").arg(parser.value(pdf)));
        return kExitOk;
    }
    if (parser.isSet(html)) {
        if (const Error e = ProtectedFiles::writeAtomically(parser.value(html), app.reports().reportPage(figures).toUtf8()))
            return failure(e.text);
        return kExitOk;
    }
    if (parser.isSet(json)) {
        for (const auto &[name, value] : values)
            out << JsonWriter::string(name) + QStringLiteral(": ") + value.toString();
        printOut(QLatin1Char('{') + out.join(QStringLiteral(", ")) + QLatin1Char('}'));
        return kExitOk;
    }
    for (const auto &[name, value] : values)
        out << name + QLatin1Char('\t') + value.toString();
    for (const ReportFigures::Month &m : figures.months)
        out << QStringLiteral("month %1-%2\t%3\t%4\tpaid %5\topen %6")
                   .arg(m.year)
                   .arg(m.month, 2, 10, QLatin1Char('0'))
                   .arg(JsonWriter::number(m.gross), JsonWriter::number(m.net), JsonWriter::number(m.paid),
                        JsonWriter::number(m.open));
    for (const ReportFigures::Client &c : figures.topClients)
        out << QStringLiteral("client\t%1\t%2\t%3 invoices").arg(c.name, JsonWriter::number(c.gross)).arg(c.invoices);
    printOut(out.join(QLatin1Char('\n')));
    return kExitOk;
}

} // namespace tabo::cli
