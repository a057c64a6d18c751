#include "app/AppController.h"
#include "app/Translations.h"
#include "cli/AccountBookCommand.h"
#include "cli/AccountingExportCommand.h"
#include "cli/AddItemCommand.h"
#include "cli/AddressCommand.h"
#include "cli/BackupCommand.h"
#include "cli/CalcCommand.h"
#include "cli/CatalogueCommand.h"
#include "cli/Console.h"
#include "cli/ConvertCommand.h"
#include "cli/DeleteCommand.h"
#include "cli/DeleteItemCommand.h"
#include "cli/DesignCommand.h"
#include "cli/DiscountCommand.h"
#include "cli/DumpCommand.h"
#include "cli/DuplicateCommand.h"
#include "cli/EInvoiceCommand.h"
#include "cli/EmailCommand.h"
#include "cli/ExportCommand.h"
#include "cli/ExportXmlCommand.h"
#include "cli/ImportCommand.h"
#include "cli/ListCommand.h"
#include "cli/NewCommand.h"
#include "cli/NotifyCommand.h"
#include "cli/PaymentsCommand.h"
#include "cli/RecurringCommand.h"
#include "cli/PrefsCommand.h"
#include "cli/PrintCommand.h"
#include "cli/RenderCommand.h"
#include "cli/ReportCommand.h"
#include "cli/RestoreCommand.h"
#include "cli/Session.h"
#include "cli/SetCommand.h"
#include "cli/ShippingCommand.h"
#include "cli/ShowCommand.h"
#include "cli/TemplateCommand.h"
#include "prefs/Preferences.h"
#include "render/PdfEngine.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLoggingCategory>

#include <memory>
#include <vector>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(main)
};
} // namespace

using namespace tabo::cli;

namespace {

QString usageText(const std::vector<std::unique_ptr<Command>> &commands)
{
    QStringList lines { Tr::tr("Usage: tabo-cli COMMAND [ARGUMENTS]"), QString(), Tr::tr("Commands:") };
    for (const auto &c : commands)
        lines << QStringLiteral("  ") + c->usage() << QStringLiteral("      ") + c->description();
    lines << QString()
          << QStringLiteral("ID is a document's unique ID or its number. "
                            "Run “tabo-cli COMMAND --help” for one command.");
    return lines.join(QLatin1Char('\n'));
}

// Only the commands that turn pages into PDF pay for the GUI application the
// web engine needs; the others stay quick core programs.
bool rendersPages(int argc, char *argv[])
{
    if (argc < 2)
        return false;
    const QByteArray name = argv[1];
    if (name == "print" || name == "email")
        return true;
    QStringList rest;
    for (int i = 2; i < argc; ++i)
        rest << QString::fromLocal8Bit(argv[i]);
    if (name == "design")
        return DesignCommand::rendersPages(rest);
    // QPdfWriter and rich-text layout need the GUI application's fonts.
    if (name == "account-book")
        return true;
    if (name == "einvoice")
        return rest.contains(QStringLiteral("--facturx")) || (rest.value(0) == QLatin1String("view") && rest.contains(QStringLiteral("--pdf")));
    if (name != "render" && name != "report")
        return false;
    for (const QString &arg : std::as_const(rest)) {
        if (arg == QLatin1String("--"))
            break;
        if (arg.startsWith(QLatin1String("--pdf")) || arg.startsWith(QLatin1String("--out")))
            return true;
    }
    return false;
}

} // namespace

int main(int argc, char *argv[])
{
    // The core's diagnostics would break the one-line-per-failure contract on
    // stderr (the GUI application warns while it starts); QT_LOGGING_RULES
    // still turns them back on.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false\n*.warning=false"));
    std::unique_ptr<QCoreApplication> application;
    if (rendersPages(argc, argv)) {
        tabo::PdfEngine::prepareApplication();
        application = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        application = std::make_unique<QCoreApplication>(argc, argv);
    }
    QCoreApplication::setApplicationName(QStringLiteral("tabo-cli"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TABO_VERSION));
    tabo::installTranslations(*application);

    Session session;
    std::vector<std::unique_ptr<Command>> commands;
    commands.push_back(std::make_unique<PrefsCommand>(session));
    commands.push_back(std::make_unique<NewCommand>(session));
    commands.push_back(std::make_unique<SetCommand>(session));
    commands.push_back(std::make_unique<DuplicateCommand>(session));
    commands.push_back(std::make_unique<CancelCommand>(session));
    commands.push_back(std::make_unique<ConvertCommand>(session));
    commands.push_back(std::make_unique<DeleteCommand>(session));
    commands.push_back(std::make_unique<AddressCommand>(session));
    commands.push_back(std::make_unique<AddItemCommand>(session));
    commands.push_back(std::make_unique<DeleteItemCommand>(session));
    commands.push_back(std::make_unique<ShippingCommand>(session));
    commands.push_back(std::make_unique<DiscountCommand>(session));
    commands.push_back(std::make_unique<CatalogueCommand>(session));
    commands.push_back(std::make_unique<TemplateCommand>(session));
    commands.push_back(std::make_unique<CalcCommand>(session));
    commands.push_back(std::make_unique<ListCommand>(session));
    commands.push_back(std::make_unique<ReportCommand>(session));
    commands.push_back(std::make_unique<AccountBookCommand>(session));
    commands.push_back(std::make_unique<NotifyCommand>(session));
    commands.push_back(std::make_unique<NotificationsCommand>(session));
    commands.push_back(std::make_unique<ShowCommand>(session));
    commands.push_back(std::make_unique<ExportCommand>(session));
    commands.push_back(std::make_unique<ImportCommand>(session));
    commands.push_back(std::make_unique<ExportXmlCommand>(session));
    commands.push_back(std::make_unique<DumpCommand>(session));
    commands.push_back(std::make_unique<BackupCommand>(session));
    commands.push_back(std::make_unique<RestoreCommand>(session));
    commands.push_back(std::make_unique<AccountingExportCommand>(session));
    commands.push_back(std::make_unique<RenderCommand>(session));
    commands.push_back(std::make_unique<PrintCommand>(session));
    commands.push_back(std::make_unique<EmailCommand>(session));
    commands.push_back(std::make_unique<PaymentsCommand>(session));
    commands.push_back(std::make_unique<RecurringCommand>(session));
    commands.push_back(std::make_unique<EInvoiceCommand>(session));
    commands.push_back(std::make_unique<DesignCommand>(session));

    QStringList args = QCoreApplication::arguments().mid(1);
    if (args.isEmpty()) {
        printError(Tr::tr("Missing command. Run “tabo-cli --help” for usage."));
        return kExitUsage;
    }
    const QString name = args.takeFirst();
    if (name == QLatin1String("--version")) {
        printOut(QStringLiteral("tabo-cli %1").arg(QCoreApplication::applicationVersion()));
        return kExitOk;
    }
    if (name == QLatin1String("--help") || name == QLatin1String("-h") || name == QLatin1String("help")) {
        printOut(usageText(commands));
        return kExitOk;
    }
    for (const auto &command : commands) {
        if (command->name() != name)
            continue;
        const bool restoringSettings = name == QLatin1String("prefs") && args.value(0) == QLatin1String("restore");
        if (const tabo::Error e = session.prefs().loadError(); e && !restoringSettings) {
            printError(e.message());
            return kExitFailure;
        }
        if (!restoringSettings) {
            session.controller().runOneTimeUpgrades();
            if (const tabo::Error e = session.prefs().syncChecked()) {
                printError(e.message());
                return kExitFailure;
            }
        }
        return session.finish(command->execute(args));
    }
    printError(
        (name.startsWith(QLatin1Char('-')) ? Tr::tr("Unknown option “%1”.") : Tr::tr("Unknown command “%1”.")).arg(name)
        + Tr::tr(" Run “tabo-cli --help” for usage."));
    return kExitUsage;
}
