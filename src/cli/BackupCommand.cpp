#include "cli/BackupCommand.h"

#include "app/AppController.h"
#include "app/BackupCommands.h"
#include "cli/Console.h"
#include "cli/Session.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(BackupCommand)
};
} // namespace

namespace tabo::cli {

BackupCommand::BackupCommand(Session &session)
    : Command(session, QStringLiteral("backup"), QStringLiteral("database|invoices|items FILE | auto"),
        Tr::tr("Back up the whole database (prints the .tabo2db written), the documents or the "
               "catalogue to FILE, or the documents to the automatic backup (prints its path)."))
{
}

int BackupCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    int code = kExitOk;
    if (!parse(parser, args, 1, 2, &code))
        return code;
    const QStringList pos = parser.positionalArguments();
    const QString &what = pos.constFirst();
    if (what == QLatin1String("auto")) {
        if (pos.size() != 1)
            return usageError(Tr::tr("The automatic backup has its own place."));
        if (!m_session.store())
            return kExitFailure;
        AppController &app = m_session.controller();
        if (const Error e = app.backups().doTheNewBackup())
            return failure(Tr::tr("The automatic backup “%1” could not be written. %2")
                               .arg(app.automaticBackupFile(), e.message()));
        printOut(app.automaticBackupFile());
        return kExitOk;
    }
    if (pos.size() != 2)
        return usageError(
            what == QLatin1String("database") || what == QLatin1String("invoices") || what == QLatin1String("items")
                ? Tr::tr("Missing FILE.")
                : QString());
    if (what == QLatin1String("database"))
        return backupDatabase(pos.at(1));
    Error (BackupCommands::*write)(const QString &) = nullptr;
    if (what == QLatin1String("invoices"))
        write = &BackupCommands::writeInvoiceBackup;
    else if (what == QLatin1String("items"))
        write = &BackupCommands::writeItemBackup;
    else
        return usageError(Tr::tr("Unknown backup “%1”.").arg(what));
    if (!m_session.store())
        return kExitFailure;
    if (const Error e = (m_session.controller().backups().*write)(pos.at(1)))
        return failure(e.message());
    return kExitOk;
}

int BackupCommand::backupDatabase(const QString &file)
{
    // FILE stands for the ".mbdb" name a save panel would offer; the lasting
    // copy is the ".tabo2db" beside it.
    const QFileInfo info(file);
    const QString suffix = info.suffix();
    const QString base = suffix == QLatin1String("mbdb") || suffix == QLatin1String("tabo2db")
                             ? info.completeBaseName()
                             : info.fileName();
    const QString lasting = info.dir().absoluteFilePath(base + QStringLiteral(".tabo2db"));
    if (!m_session.store())
        return kExitFailure;
    if (const Error e = m_session.controller().backups().writeCompleteBackup(
            info.dir().filePath(base + QStringLiteral(".mbdb"))))
        return failure(e.message());
    printOut(lasting);
    return kExitOk;
}

} // namespace tabo::cli
