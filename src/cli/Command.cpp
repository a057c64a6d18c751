#include "cli/Command.h"

#include "app/AppController.h"
#include "cli/CliInteraction.h"
#include "cli/Console.h"
#include "cli/Session.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Command)
};
} // namespace

namespace tabo::cli {

Command::Command(Session &session, QString name, QString arguments, QString description)
    : m_session(session)
    , m_name(std::move(name))
    , m_arguments(std::move(arguments))
    , m_description(std::move(description))
{
}

Command::~Command() = default;

QString Command::usage() const
{
    return QStringLiteral("tabo-cli ") + m_name + (m_arguments.isEmpty() ? QString() : QLatin1Char(' ') + m_arguments);
}

bool Command::parse(QCommandLineParser &parser, const QStringList &args, int minPositional, int maxPositional,
                    int *exitCode, bool optionsFirst) const
{
    const QCommandLineOption help({ QStringLiteral("h"), QStringLiteral("help") }, Tr::tr("Show this help."));
    parser.addOption(help);
    if (optionsFirst)
        parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    if (!parser.parse(QStringList{m_name} + args)) {
        const QString reason = parser.errorText();
        *exitCode = usageError(reason.endsWith(QLatin1Char('.')) ? reason : reason + QLatin1Char('.'));
        return false;
    }
    if (parser.isSet(help)) {
        printOut(Tr::tr("Usage: ") + usage() + QStringLiteral("\n") + m_description);
        *exitCode = kExitOk;
        return false;
    }
    const qsizetype n = parser.positionalArguments().size();
    if (n < minPositional) {
        *exitCode = usageError(Tr::tr("Missing argument."));
        return false;
    }
    if (maxPositional >= 0 && n > maxPositional) {
        *exitCode = usageError(Tr::tr("Too many arguments."));
        return false;
    }
    return true;
}

int Command::usageError(const QString &reason) const
{
    printError((reason.isEmpty() ? QString() : reason + QLatin1Char(' ')) + Tr::tr("Usage: ") + usage());
    return kExitUsage;
}

int Command::failure(const QString &line)
{
    printError(line);
    return kExitFailure;
}

int Command::failure(const Error &error)
{
    if (!error.text.isEmpty())
        printError(error.message());
    return kExitFailure;
}

bool Command::splitKeyValues(const QStringList &words, const QStringList &keys, KeyValues *out,
                             int *exitCode) const
{
    for (const QString &word : words) {
        const qsizetype eq = word.indexOf(QLatin1Char('='));
        if (eq <= 0) {
            *exitCode = usageError(QStringLiteral("“%1” is not KEY=VALUE.").arg(word));
            return false;
        }
        const QString key = word.left(eq);
        if (!keys.isEmpty() && !keys.contains(key)) {
            *exitCode
                = usageError(Tr::tr("Unknown key “%1”; known keys: %2.").arg(key, keys.join(QStringLiteral(", "))));
            return false;
        }
        out->append({key, word.mid(eq + 1)});
    }
    return true;
}

std::optional<Date> Command::rangeDate(const QString &text, bool end)
{
    const QDate day = QDate::fromString(text, Qt::ISODate);
    if (day.isValid())
        return Date::fromDateTime(end ? day.endOfDay() : day.startOfDay());
    const Date date = Date::fromIso8601(text);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

QCommandLineOption Command::yesOption()
{
    return QCommandLineOption(QStringLiteral("yes"), Tr::tr("Confirm the questions the command asks."));
}

QCommandLineOption Command::filterOption()
{
    return QCommandLineOption(QStringLiteral("filter"), Tr::tr("Filter tag."), QStringLiteral("TAG"));
}

QCommandLineOption Command::searchOption()
{
    return QCommandLineOption(QStringLiteral("search"), Tr::tr("The list's search."), QStringLiteral("TEXT"));
}

void Command::arrangeList(const QCommandLineParser &parser, unsigned tag)
{
    AppController &app = m_session.controller();
    app.setFilterTag(tag);
    app.applyFilter();
    // Only commands that offer --search can have it given.
    if (parser.optionNames().contains(QStringLiteral("search")))
        app.setSearchText(parser.value(QStringLiteral("search")));
}

bool Command::filterTag(const QCommandLineParser &parser, unsigned *tag, int *exitCode) const
{
    const QString name = QStringLiteral("filter");
    bool ok = true;
    *tag = parser.isSet(name) ? parser.value(name).toUInt(&ok) : 0;
    if (!ok)
        *exitCode = usageError(Tr::tr("“%1” is not a filter tag.").arg(parser.value(name)));
    return ok;
}

bool Command::selectDocumentWithPairs(const QStringList &args, const QStringList &keys, QStringList *rest,
                                      int *exitCode)
{
    QCommandLineParser parser;
    *exitCode = kExitOk;
    if (!parse(parser, args, 1, -1, exitCode, true))
        return false;
    QStringList pos = parser.positionalArguments();
    const QString id = pos.takeFirst();
    KeyValues values;
    if (!splitKeyValues(pos, keys, &values, exitCode))
        return false;
    if (!m_session.select(id)) {
        *exitCode = kExitFailure;
        return false;
    }
    *rest = pos;
    return true;
}

bool Command::parseConfirmed(QCommandLineParser &parser, const QStringList &args, int minPositional,
                             int maxPositional, int *exitCode) const
{
    const QCommandLineOption yes = yesOption();
    parser.addOption(yes);
    if (!parse(parser, args, minPositional, maxPositional, exitCode))
        return false;
    m_session.ui().setConfirm(parser.isSet(yes));
    return true;
}

int Command::popoverResult() const
{
    return m_session.ui().errorPresented() ? kExitFailure : kExitOk;
}

} // namespace tabo::cli
