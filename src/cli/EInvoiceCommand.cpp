#include "cli/EInvoiceCommand.h"

#include "app/AppController.h"
#include "app/EInvoiceCommands.h"
#include "app/OutputCommands.h"
#include "cli/OutputRun.h"
#include "cli/Console.h"
#include "cli/Session.h"

#include <QCommandLineParser>

namespace tabo::cli {

EInvoiceCommand::EInvoiceCommand(Session &session)
    : Command(session, QStringLiteral("einvoice"), QStringLiteral("export ID --xrechnung-cii FILE | --xrechnung-ubl FILE | --facturx FILE.pdf [--design TITLE] | missing ID"),
              QStringLiteral("Write an invoice as XRechnung (CII or UBL), or list what it still needs for one (each in "
                             "words, with where to fill it). Nothing is written while something is missing."))
{
}

int EInvoiceCommand::execute(const QStringList &args)
{
    const QString sub = args.value(0);
    QCommandLineParser parser;
    const QCommandLineOption cii(QStringLiteral("xrechnung-cii"), QStringLiteral("XRechnung in CII."),
                                 QStringLiteral("FILE"));
    const QCommandLineOption ubl(QStringLiteral("xrechnung-ubl"), QStringLiteral("XRechnung in UBL."),
                                 QStringLiteral("FILE"));
    const QCommandLineOption facturx(QStringLiteral("facturx"), QStringLiteral("Factur-X / ZUGFeRD PDF."),
                                     QStringLiteral("FILE.pdf"));
    const QCommandLineOption design(QStringLiteral("design"), QStringLiteral("Design of the PDF."),
                                    QStringLiteral("TITLE"));
    if (sub == QLatin1String("export"))
        parser.addOptions({cii, ubl, facturx, design});
    else if (sub != QLatin1String("missing"))
        return usageError(sub.isEmpty() ? QStringLiteral("Missing export or missing.")
                                        : QStringLiteral("Unknown “%1”: export or missing.").arg(sub));
    int code = kExitOk;
    if (!parse(parser, args.mid(1), 1, 1, &code))
        return code;
    if (sub == QLatin1String("export") && int(parser.isSet(cii)) + int(parser.isSet(ubl)) + int(parser.isSet(facturx)) != 1)
        return usageError(QStringLiteral("Say which and where: --xrechnung-cii FILE, --xrechnung-ubl FILE or "
                                         "--facturx FILE.pdf."));
    Record *doc = m_session.select(parser.positionalArguments().constFirst());
    if (!doc)
        return kExitFailure;
    EInvoiceCommands commands(m_session.controller());
    const einvoice::Mapping mapping = commands.map(*doc);
    if (sub == QLatin1String("missing")) {
        for (const QString &problem : mapping.problems())
            printOut(problem + QLatin1Char('\n'));
        if (mapping.ok())
            return kExitOk;
        return failure(QStringLiteral("The e-invoice cannot be written yet (%1 above).").arg(mapping.problems().size()));
    }
    if (!mapping.ok())
        return failure(QStringLiteral("The e-invoice cannot be written yet: ") + mapping.problems().join(QStringLiteral("; ")));
    if (parser.isSet(facturx)) {
        if (parser.isSet(design)) {
            QString error;
            const Record *chosen = OutputRun::design(m_session, parser.value(design), &error);
            if (!chosen)
                return failure(error);
            m_session.controller().outputs().setDesignOverride(chosen);
        }
        return commands.exportFacturX(*doc, parser.value(facturx)) ? kExitOk : kExitFailure;
    }
    const bool asCii = parser.isSet(cii);
    return commands.exportXml(*doc, parser.value(asCii ? cii : ubl),
                              asCii ? EInvoiceCommands::Form::XRechnungCii : EInvoiceCommands::Form::XRechnungUbl)
               ? kExitOk
               : kExitFailure;
}

} // namespace tabo::cli
