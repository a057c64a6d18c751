#include "cli/AccountingExportCommand.h"

#include "app/AccountingExport.h"
#include "app/AppController.h"
#include "cli/Console.h"
#include "cli/Session.h"
#include "prefs/Preferences.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(AccountingExportCommand)
};
} // namespace

namespace tabo::cli {

AccountingExportCommand::AccountingExportCommand(Session &session)
    : Command(session, QStringLiteral("accounting-export"),
        QStringLiteral("vorlux|quandrella [--from DATE] [--to DATE] [--kind K] [--items-kind K] [--no-open]"),
        Tr::tr("Write the invoices in the date range (ISO 8601; by default all shown) and of a kind "
               "(0 all but created, 1 paid, 2 overdue) for an accounting program, with one summary "
               "line (items kind 0) or every line (1); kinds not given stay as last set. Opens the "
               "file unless --no-open. Prints the file and the number of invoices."))
{
}

int AccountingExportCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption from(QStringLiteral("from"), Tr::tr("First day."), QStringLiteral("DATE"));
    const QCommandLineOption to(QStringLiteral("to"), Tr::tr("Last day."), QStringLiteral("DATE"));
    const QCommandLineOption kind(QStringLiteral("kind"), Tr::tr("Which invoices."), QStringLiteral("K"));
    const QCommandLineOption itemsKind(QStringLiteral("items-kind"), Tr::tr("How lines go over."), QStringLiteral("K"));
    const QCommandLineOption noOpen(QStringLiteral("no-open"), Tr::tr("Only write the file."));
    parser.addOptions({from, to, kind, itemsKind, noOpen});
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    const QString program = parser.positionalArguments().constFirst();
    if (program != QLatin1String("vorlux") && program != QLatin1String("quandrella"))
        return usageError(Tr::tr("Unknown program “%1”.").arg(program));

    std::optional<Date> begin, end;
    if (parser.isSet(from) && !(begin = rangeDate(parser.value(from), false)))
        return usageError(Tr::tr("“%1” is not an ISO 8601 date.").arg(parser.value(from)));
    if (parser.isSet(to) && !(end = rangeDate(parser.value(to), true)))
        return usageError(Tr::tr("“%1” is not an ISO 8601 date.").arg(parser.value(to)));
    bool ok = true;
    const int kindValue = parser.isSet(kind) ? parser.value(kind).toInt(&ok) : 0;
    if (!ok || kindValue < 0 || kindValue > 2)
        return usageError(Tr::tr("The kind is 0, 1 or 2."));
    const int itemsValue = parser.isSet(itemsKind) ? parser.value(itemsKind).toInt(&ok) : 0;
    if (!ok || itemsValue < 0 || itemsValue > 1)
        return usageError(Tr::tr("The items kind is 0 or 1."));

    if (!m_session.store())
        return kExitFailure;
    m_session.ui().setOpenFiles(!parser.isSet(noOpen));
    AccountingExport &accounting = m_session.controller().accounting();
    Preferences &prefs = m_session.prefs();
    // Opening the sheet sets the range to the shown invoices; the options are
    // then what the person would change in it.
    accounting.sendToVorlux(program == QLatin1String("vorlux") ? 0 : 1);
    if (begin)
        prefs.setDate(Preferences::prefsVorluxExportBeginDate, *begin);
    if (end)
        prefs.setDate(Preferences::prefsVorluxExportEndDate, *end);
    if (parser.isSet(kind))
        prefs.setInteger(Preferences::prefsVorluxExportKind, kindValue);
    if (parser.isSet(itemsKind))
        prefs.setInteger(Preferences::prefsVorluxExportItemsKind, itemsValue);
    accounting.doTheFilter();
    if (!accounting.closeVorluxSheet(!parser.isSet(noOpen)))
        return kExitFailure;
    printOut(accounting.exportFilePath() + QLatin1Char('\n') + QString::number(accounting.vorluxArray().size()));
    return kExitOk;
}

} // namespace tabo::cli
