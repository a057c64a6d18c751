#include "cli/RestoreCommand.h"

#include "app/AppController.h"
#include "app/BackupCommands.h"
#include "cli/Console.h"
#include "cli/Session.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(RestoreCommand)
};
} // namespace

namespace tabo::cli {

RestoreCommand::RestoreCommand(Session &session)
    : Command(session, QStringLiteral("restore"), QStringLiteral("database|invoices|items FILE [--yes] | auto [--yes]"),
        Tr::tr("Replace the whole database by a .tabo2db backup, the shown documents or the catalogue "
               "by their backup, or the shown documents by the automatic backup; needs --yes."))
{
}

int RestoreCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parseConfirmed(parser, args, 1, 2, &code))
        return code;
    const QStringList pos = parser.positionalArguments();
    const QString &what = pos.constFirst();
    bool (BackupCommands::*restore)(const QString &) = nullptr;
    if (what == QLatin1String("database"))
        restore = &BackupCommands::restoreCompleteTaboData;
    else if (what == QLatin1String("invoices"))
        restore = &BackupCommands::restoreTaboData;
    else if (what == QLatin1String("items"))
        restore = &BackupCommands::restoreItems;
    else if (what != QLatin1String("auto"))
        return usageError(Tr::tr("Unknown backup “%1”.").arg(what));
    if (pos.size() != (restore ? 2 : 1))
        return usageError(restore ? Tr::tr("Missing FILE.") : Tr::tr("The automatic backup has its own place."));

    CliInteraction &ui = m_session.ui();
    if (!m_session.store())
        return kExitFailure;
    if (!restore)
        return restoreAutomaticBackup();
    // The application's own command: its warning, then FILE.
    const int shown = ui.messagesShown();
    if ((m_session.controller().backups().*restore)(pos.at(1)))
        return kExitOk;
    if (ui.messagesShown() == shown)
        return failure(Tr::tr("Nothing was restored from “%1”.").arg(pos.at(1)));
    return kExitFailure;
}

int RestoreCommand::restoreAutomaticBackup()
{
    // The application restores it without asking; here nobody sees the
    // documents vanish, so it asks as the other restores do.
    CliInteraction &ui = m_session.ui();
    if (ui.alert(Tr::tr("Warning!"),
            Tr::tr("You are about to restore your Tabo invoices from a backup. This will irretrievably "
                   "replace any existing invoices. Do you really want to do that?"),
            { Tr::tr("Restore…"), Tr::tr("Cancel") })
        != 0)
        return kExitFailure;
    const int shown = ui.messagesShown();
    if (m_session.controller().backups().restoreFromBackup())
        return kExitOk;
    if (ui.messagesShown() == shown)
        return failure(Tr::tr("Nothing was restored from the automatic backup."));
    return kExitFailure;
}

} // namespace tabo::cli
