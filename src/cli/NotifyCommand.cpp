#include "cli/NotifyCommand.h"

#include "app/AppController.h"
#include "app/RecurringCommands.h"
#include "base/Clock.h"
#include "app/NotificationCommands.h"
#include "app/Notifier.h"
#include "cli/Console.h"
#include "cli/JsonWriter.h"
#include "cli/Session.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(NotifyCommand)
};
} // namespace

namespace tabo::cli {

namespace {

QString kDateHelp()
{
    return Tr::tr("“%1” is not an ISO 8601 date or moment (2026-12-03 or 2026-12-03T09:00).");
}

// A day alone means its first moment, where the person is.
// A moment without a zone is local time; one with "Z" or an offset is kept
// as it says. (QDate reads the day of "2026-12-03T09:00" and drops the rest,
// so only a text of a day alone is read as one.)
std::optional<Date> moment(const QString &text)
{
    const QString t = text.trimmed();
    if (t.size() == 10) {
        const QDate day = QDate::fromString(t, Qt::ISODate);
        return day.isValid() ? std::optional(Date::fromDateTime(day.startOfDay())) : std::nullopt;
    }
    const Date date = Date::fromIso8601(t);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

} // namespace

NotifyCommand::NotifyCommand(Session &session)
    : Command(session, QStringLiteral("notify"),
        QStringLiteral("ID [--date ISO] [--title T] [--subtitle S] [--text T] [--yes]"),
        Tr::tr("Schedule a reminder of a document: by default three days after it is due, titled "
               "with its title and number, with the address's first line as subtitle. A second "
               "reminder of the same document needs --yes. Prints the reminder's number."))
{
}

int NotifyCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption date(QStringLiteral("date"), Tr::tr("When to show it."), QStringLiteral("ISO"));
    const QCommandLineOption title(QStringLiteral("title"), Tr::tr("Title."), QStringLiteral("T"));
    const QCommandLineOption subtitle(QStringLiteral("subtitle"), Tr::tr("Subtitle."), QStringLiteral("S"));
    const QCommandLineOption text(QStringLiteral("text"), Tr::tr("Informative text."), QStringLiteral("T"));
    parser.addOptions({date, title, subtitle, text});
    int code = kExitOk;
    if (!parseConfirmed(parser, args, 1, 1, &code))
        return code;
    std::optional<Date> when;
    if (parser.isSet(date) && !(when = moment(parser.value(date))))
        return usageError(kDateHelp().arg(parser.value(date)));
    if (!m_session.select(parser.positionalArguments().constFirst()))
        return kExitFailure;
    NotificationCommands &notifications = m_session.controller().notifications();
    if (!notifications.openNotificationSheet())
        return kExitFailure; // the question is on stderr
    NotificationCommands::Draft draft = notifications.prepareNotification();
    if (when)
        draft.date = *when;
    if (parser.isSet(title))
        draft.title = parser.value(title);
    if (parser.isSet(subtitle))
        draft.subtitle = parser.value(subtitle);
    if (parser.isSet(text))
        draft.text = parser.value(text);
    qint64 id = 0;
    if (notifications.sendNotification(draft, nullptr, &id))
        return kExitFailure;
    printOut(QString::number(id) + QLatin1Char('\n'));
    const QString reason = notifications.unavailableReason();
    if (!reason.isEmpty())
        printError(reason + Tr::tr(" The reminder is kept and shown by the first Tabo that can."));
    return kExitOk;
}

NotificationsCommand::NotificationsCommand(Session &session)
    : Command(session, QStringLiteral("notifications"),
        QStringLiteral("list [--json] | cancel ID | deliver-due [--wait SECONDS]"),
        Tr::tr("The scheduled reminders: list them, cancel one by its number, or show those whose "
               "moment has come (what the reminder timer runs every hour). With --wait the run "
               "stays up to SECONDS after showing something, so that a click opens Tabo on the "
               "invoice."))
{
}

int NotificationsCommand::execute(const QStringList &args)
{
    const QString sub = args.value(0);
    if (sub == QLatin1String("list"))
        return list(args.mid(1));
    if (sub == QLatin1String("cancel"))
        return cancel(args.mid(1));
    if (sub == QLatin1String("deliver-due"))
        return deliverDue(args.mid(1));
    if (sub == QLatin1String("--help") || sub == QLatin1String("-h")) {
        printOut(usage() + QLatin1Char('\n'));
        return kExitOk;
    }
    return usageError(sub.isEmpty() ? Tr::tr("Missing list, cancel or deliver-due.")
                                    : Tr::tr("Unknown “%1”: list, cancel or deliver-due.").arg(sub));
}

int NotificationsCommand::list(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption json(QStringLiteral("json"), Tr::tr("Print JSON."));
    parser.addOption(json);
    int code = kExitOk;
    if (!parse(parser, args, 0, 0, &code))
        return code;
    if (!m_session.store())
        return kExitFailure;
    const QList<ScheduledNotification> all = m_session.controller().notifications().scheduled();
    QString out;
    if (parser.isSet(json)) {
        QStringList rows;
        for (const ScheduledNotification &n : all)
            rows << QStringLiteral("{\"id\": %1, \"uniqueID\": %2, \"title\": %3, \"subtitle\": %4, \"text\": %5, "
                                   "\"date\": %6, \"sound\": %7, \"delivered\": %8}")
                        .arg(n.id)
                        .arg(JsonWriter::string(n.uniqueID), JsonWriter::string(n.title),
                             JsonWriter::string(n.subtitle), JsonWriter::string(n.text),
                             JsonWriter::string(n.date.toIso8601()),
                             n.sound ? QStringLiteral("true") : QStringLiteral("false"),
                             n.delivered.isValid() ? JsonWriter::string(n.delivered.toIso8601())
                                                   : QStringLiteral("null"));
        out = QLatin1Char('[') + rows.join(QStringLiteral(",\n ")) + QStringLiteral("]\n");
    } else {
        for (const ScheduledNotification &n : all)
            out += QStringLiteral("%1\t%2\t%3\t%4\t%5\n")
                       .arg(n.id)
                       .arg(n.date.toDateTime().toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm")),
                            n.delivered.isValid() ? QStringLiteral("delivered") : QStringLiteral("scheduled"),
                            n.title, n.uniqueID);
    }
    printOut(out);
    return kExitOk;
}

int NotificationsCommand::cancel(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    bool ok = false;
    const qint64 id = parser.positionalArguments().constFirst().toLongLong(&ok);
    if (!ok)
        return usageError(Tr::tr("“%1” is not a reminder's number (see “notifications list”).")
                              .arg(parser.positionalArguments().constFirst()));
    if (!m_session.store())
        return kExitFailure;
    return m_session.controller().notifications().cancel(id) ? kExitOk : kExitFailure;
}

int NotificationsCommand::deliverDue(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption wait(QStringLiteral("wait"), Tr::tr("Stay for clicks."), QStringLiteral("SECONDS"));
    parser.addOption(wait);
    int code = kExitOk;
    if (!parse(parser, args, 0, 0, &code))
        return code;
    bool ok = true;
    const int seconds = parser.isSet(wait) ? parser.value(wait).toInt(&ok) : 0;
    if (!ok || seconds < 0)
        return usageError(Tr::tr("--wait takes a number of seconds."));
    if (!m_session.store())
        return kExitFailure;
    // The timer's hourly run also writes the repeated invoices that came due.
    const Result<RecurringCommands::Run> repeated
        = m_session.controller().recurring().run(now().toDateTime().toLocalTime().date());
    if (!repeated)
        printError(repeated.error().message());
    else if (!repeated.value().made.isEmpty())
        printOut(Tr::tr("Repeated invoices written: %1.").arg(repeated.value().made.size()));
    for (const QString &problem : repeated ? repeated.value().problems : QStringList())
        printError(problem);
    NotificationCommands &notifications = m_session.controller().notifications();
    const NotificationCommands::Delivery delivery = notifications.deliverDue();
    const int shown = delivery.shown;
    if (delivery.problem)
        printError(delivery.problem.message());
    printOut(shown == 1 ? Tr::tr("1 reminder shown.\n") : QStringLiteral("%1 reminders shown.\n").arg(shown));
    if (shown > 0 && seconds > 0) {
        // Holding the store open blocks nobody: its writers lock only while writing.
        Notifier &notifier = notifications.notifier();
        QEventLoop loop;
        QObject::connect(&notifier, &Notifier::activated, &loop, [](const QString &uniqueID) {
            // The window takes it when it runs, or starts on that invoice.
            const QString tabo = QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("tabo"));
            QProcess::startDetached(tabo, {QStringLiteral("--show-invoice"), uniqueID});
        });
        QObject::connect(&notifier, &Notifier::allClosed, &loop, &QEventLoop::quit);
        QTimer::singleShot(std::chrono::seconds(seconds), &loop, &QEventLoop::quit);
        loop.exec();
    }
    return delivery.problem ? kExitFailure : kExitOk;
}

} // namespace tabo::cli
