#include "cli/EmailCommand.h"

#include "app/OutputCommands.h"
#include "cli/Console.h"
#include "cli/OutputRun.h"
#include "cli/Session.h"
#include "prefs/Preferences.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(EmailCommand)
};
} // namespace

namespace tabo::cli {

EmailCommand::EmailCommand(Session &session)
    : Command(session, QStringLiteral("email"), QStringLiteral("ID [--form pdf|facturx|xrechnung]"),
        Tr::tr("Open a new message in the mail program with the document as a PDF attachment; an "
               "invoice is then marked as sent when markInvoiceAsSent is on. --form attaches an "
               "invoice as PDF with its e-invoice (Factur-X / ZUGFeRD) or as e-invoice alone "
               "(XRechnung) instead; without it, the einvoiceForm preference decides."))
{
}

int EmailCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption form(QStringLiteral("form"), Tr::tr("What to attach."), QStringLiteral("FORM"));
    parser.addOption(form);
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    const QStringList forms{QStringLiteral("pdf"), QStringLiteral("facturx"), QStringLiteral("xrechnung")};
    const qsizetype chosen = forms.indexOf(parser.value(form));
    if (parser.isSet(form) && chosen < 0)
        return usageError(Tr::tr("--form takes pdf, facturx or xrechnung."));
    Preferences &prefs = m_session.prefs();
    const QVariant before = prefs.value(Preferences::einvoiceForm);
    const bool had = prefs.contains(Preferences::einvoiceForm);
    if (chosen >= 0)
        prefs.setInteger(Preferences::einvoiceForm, chosen);
    const int result = OutputRun::exportDocument(m_session, parser.positionalArguments().constFirst(), OutputCommands::Email);
    // The choice is for this message; the preference stays as it was.
    if (chosen >= 0) {
        if (had)
            prefs.setInteger(Preferences::einvoiceForm, before.toLongLong());
        else
            prefs.remove(Preferences::einvoiceForm);
    }
    return result;
}

} // namespace tabo::cli
