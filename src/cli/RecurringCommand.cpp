#include "cli/RecurringCommand.h"

#include "app/AppController.h"
#include "app/OutputCommands.h"
#include "app/RecurringCommands.h"
#include "base/Clock.h"
#include "cli/Console.h"
#include "cli/Session.h"
#include "domain/EntityModel.h"
#include "domain/Record.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(RecurringCommand)
};
} // namespace

namespace tabo::cli {

namespace {

const QCommandLineOption &everyOption()
{
    static const QCommandLineOption option(QStringLiteral("every"),
        Tr::tr("month, quarter, year or N weeks."), QStringLiteral("INTERVAL"));
    return option;
}
const QCommandLineOption &fromOption()
{
    static const QCommandLineOption option(
        QStringLiteral("from"), Tr::tr("The day of the first invoice."), QStringLiteral("DATE"));
    return option;
}
const QCommandLineOption &untilOption()
{
    static const QCommandLineOption option(
        QStringLiteral("until"), Tr::tr("The last day an invoice may fall on."), QStringLiteral("DATE"));
    return option;
}
const QCommandLineOption &countOption()
{
    static const QCommandLineOption option(
        QStringLiteral("count"), Tr::tr("How many invoices in all."), QStringLiteral("N"));
    return option;
}
const QCommandLineOption &sendOption()
{
    static const QCommandLineOption option(
        QStringLiteral("send"), Tr::tr("add: e-mail each invoice when written; run: send those now."));
    return option;
}
const QCommandLineOption &dryRunOption()
{
    static const QCommandLineOption option(
        QStringLiteral("dry-run"), Tr::tr("Say which invoices would be written; write none."));
    return option;
}

} // namespace

RecurringCommand::RecurringCommand(Session &session)
    : Command(session, QStringLiteral("recurring"),
        QStringLiteral("add ID|TEMPLATE --every month|quarter|year|\"N weeks\" --from DATE [--until DATE | --count N] "
                       "[--send] | list | pause N | resume N | remove N | run [--dry-run] [--send]"),
        Tr::tr("Invoices that repeat. add copies an invoice or a template on every date from --from: "
               "numbered by the invoice pattern, dated on its day, %PERIOD% in its texts filled with the "
               "period it bills. run writes every date that has come, those missed meanwhile too, each once; "
               "with --send it e-mails those whose schedule says so."))
{
}

int RecurringCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    parser.addOptions({ everyOption(), fromOption(), untilOption(), countOption(), sendOption(), dryRunOption() });
    int code = kExitOk;
    if (!parse(parser, args, 1, 2, &code))
        return code;
    const QStringList pos = parser.positionalArguments();
    const QString action = pos.first();
    const auto needs = [&](int count) { return pos.size() == count; };
    if (action == QLatin1String("add") && needs(2))
        return add(parser, pos.at(1));
    if (action == QLatin1String("list") && needs(1))
        return list();
    if (action == QLatin1String("run") && needs(1))
        return run(parser.isSet(dryRunOption()), parser.isSet(sendOption()));
    const QStringList withNumber { QStringLiteral("pause"), QStringLiteral("resume"), QStringLiteral("remove") };
    if (!withNumber.contains(action))
        return usageError(Tr::tr("Unknown “%1”: add, list, pause, resume, remove or run.").arg(action));
    bool isNumber = false;
    const qint64 id = needs(2) ? pos.at(1).toLongLong(&isNumber) : 0;
    if (!isNumber)
        return usageError(Tr::tr("%1 takes the number of a repeated invoice, as the list shows it.").arg(action));
    if (!m_session.store())
        return kExitFailure;
    RecurringCommands &recurring = m_session.controller().recurring();
    const Error e = action == QLatin1String("remove") ? recurring.remove(id)
                                                      : recurring.setPaused(id, action == QLatin1String("pause"));
    return e ? failure(e) : kExitOk;
}

int RecurringCommand::add(const QCommandLineParser &parser, const QString &source)
{
    if (!parser.isSet(everyOption()) || !parser.isSet(fromOption()))
        return usageError(Tr::tr("add needs --every and --from."));
    if (parser.isSet(untilOption()) && parser.isSet(countOption()))
        return usageError(Tr::tr("Give --until or --count, not both."));
    const QDate from = QDate::fromString(parser.value(fromOption()), Qt::ISODate);
    const QDate until = QDate::fromString(parser.value(untilOption()), Qt::ISODate);
    if (!from.isValid() || (parser.isSet(untilOption()) && !until.isValid()))
        return usageError(Tr::tr("Dates are written as YYYY-MM-DD."));
    bool countIsNumber = true;
    const int count = parser.isSet(countOption()) ? parser.value(countOption()).toInt(&countIsNumber) : 0;
    if (!countIsNumber || (parser.isSet(countOption()) && count <= 0))
        return usageError(Tr::tr("--count takes a number of invoices above 0."));
    const Result<Recurrence> recurrence = Recurrence::make(parser.value(everyOption()), from, until, count);
    if (!recurrence)
        return failure(recurrence.error());
    if (!m_session.store())
        return kExitFailure;
    const Result<Schedule> added
        = m_session.controller().recurring().add(source, recurrence.value(), parser.isSet(sendOption()));
    if (!added)
        return failure(added.error());
    printOut(Tr::tr("Repeated invoice %1: %2 %3, the first on %4.")
                 .arg(added.value().id)
                 .arg(m_session.controller().recurring().sourceName(added.value()), recurrence.value().describe(),
                     from.toString(Qt::ISODate)));
    return kExitOk;
}

int RecurringCommand::list()
{
    if (!m_session.store())
        return kExitFailure;
    RecurringCommands &recurring = m_session.controller().recurring();
    const Result<QList<Schedule>> schedules = recurring.list();
    if (!schedules)
        return failure(schedules.error());
    QStringList lines;
    for (const Schedule &s : schedules.value()) {
        const QDate next = s.next();
        const QString state = s.paused ? Tr::tr("paused")
            : next.isValid()           ? Tr::tr("next %1").arg(next.toString(Qt::ISODate))
                                       : Tr::tr("ended");
        lines << QStringLiteral("%1\t%2\t%3\t%4\t%5%6")
                     .arg(s.id)
                     .arg(recurring.sourceName(s), s.recurrence.interval(), state,
                         Tr::tr("%1 written").arg(s.made), s.send ? Tr::tr(", e-mailed") : QString());
    }
    if (!lines.isEmpty())
        printOut(lines.join(QLatin1Char('\n')));
    return kExitOk;
}

int RecurringCommand::run(bool dryRun, bool send)
{
    if (!m_session.store())
        return kExitFailure;
    AppController &controller = m_session.controller();
    const Result<RecurringCommands::Run> result
        = controller.recurring().run(now().toDateTime().toLocalTime().date(), dryRun);
    if (!result)
        return failure(result.error());
    QStringList lines;
    bool allSent = true;
    for (const RecurringCommands::Made &m : result.value().made) {
        if (dryRun) {
            lines << Tr::tr("Would write repeated invoice %1 of %2.").arg(m.schedule).arg(m.day.toString(Qt::ISODate));
            continue;
        }
        lines << QStringLiteral("%1\t%2\t%3")
                     .arg(m.invoice->text(Invoice::uniqueID), m.invoice->text(Invoice::number),
                         m.day.toString(Qt::ISODate));
        if (m.send && send) {
            controller.setCurrentInvoice(m.invoice);
            allSent = controller.outputs().exportAndWait(OutputCommands::Email) && allSent;
        }
    }
    if (!lines.isEmpty())
        printOut(lines.join(QLatin1Char('\n')));
    for (const QString &problem : result.value().problems)
        printError(problem);
    return result.value().problems.isEmpty() && allSent ? kExitOk : kExitFailure;
}

} // namespace tabo::cli
