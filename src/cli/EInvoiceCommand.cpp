#include "cli/EInvoiceCommand.h"

#include "prefs/ProtectedFiles.h"
#include "app/AppController.h"
#include "app/EInvoiceCommands.h"
#include "app/OutputCommands.h"
#include "cli/OutputRun.h"
#include "cli/Console.h"
#include "domain/Record.h"
#include "cli/Session.h"
#include "einvoice/Reader.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QSaveFile>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(EInvoiceCommand)
};
} // namespace

namespace tabo::cli {

EInvoiceCommand::EInvoiceCommand(Session &session)
    : Command(session, QStringLiteral("einvoice"),
        QStringLiteral("export ID --xrechnung-cii FILE | --xrechnung-ubl FILE | --facturx FILE.pdf [--design TITLE] | "
                       "missing ID | view FILE --pdf OUT | --html OUT | check FILE"),
        Tr::tr("Write an invoice as XRechnung (CII or UBL) or as a Factur-X / ZUGFeRD PDF, or list what "
               "it still needs for one (each in words, with where to fill it); nothing is written while "
               "something is missing. view and check read a received e-invoice (XML, or a PDF carrying "
               "one): a readable page of it, or whether it is well-formed and its totals add up. A "
               "received invoice is never stored."))
{
}

int EInvoiceCommand::received(const QString &sub, const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption pdf(QStringLiteral("pdf"), Tr::tr("Write the page as PDF."), QStringLiteral("OUT"));
    const QCommandLineOption html(QStringLiteral("html"), Tr::tr("Write the page as HTML."), QStringLiteral("OUT"));
    if (sub == QLatin1String("view"))
        parser.addOptions({pdf, html});
    int code = kExitOk;
    if (!parse(parser, args, 1, 1, &code))
        return code;
    if (sub == QLatin1String("view") && parser.isSet(pdf) == parser.isSet(html))
        return usageError(Tr::tr("Say where: --pdf OUT or --html OUT."));
    // What is received is only read: the store is never opened.
    const Result<einvoice::Received> read = einvoice::readReceivedFile(parser.positionalArguments().constFirst());
    if (!read)
        return failure(read.error().text);
    const einvoice::Received &received = read.value();
    if (sub == QLatin1String("check")) {
        const QStringList problems = einvoice::checkTotals(received.invoice);
        printOut(QStringLiteral("well-formed %1 %2 (%3)%4\n")
                     .arg(received.syntaxName(),
                         received.invoice.typeCode == QLatin1String("381") ? Tr::tr("credit note")
                                                                           : QStringLiteral("invoice"),
                         received.guideline, received.fromPdf ? Tr::tr(", from a PDF") : QString()));
        for (const QString &problem : problems)
            printOut(problem + QLatin1Char('\n'));
        if (!problems.isEmpty())
            return failure(Tr::tr("Its totals do not add up."));
        printOut(Tr::tr("its totals add up: %1 %2 due\n")
                     .arg(einvoice::amount(received.invoice.payable), received.invoice.currency));
        return kExitOk;
    }
    const QString page = einvoice::viewPage(received);
    if (parser.isSet(html)) {
        if (const Error e = ProtectedFiles::writeAtomically(parser.value(html), page.toUtf8()))
            return failure(e.text);
        return kExitOk;
    }
    if (!m_session.controller().outputs().renderHtmlToFile(page, parser.value(pdf)))
        return failure(Tr::tr("The page could not be written to “%1”.").arg(parser.value(pdf)));
    return kExitOk;
}

int EInvoiceCommand::execute(const QStringList &args)
{
    const QString sub = args.value(0);
    if (sub == QLatin1String("view") || sub == QLatin1String("check"))
        return received(sub, args.mid(1));
    QCommandLineParser parser;
    const QCommandLineOption cii(QStringLiteral("xrechnung-cii"), Tr::tr("XRechnung in CII."), QStringLiteral("FILE"));
    const QCommandLineOption ubl(QStringLiteral("xrechnung-ubl"), Tr::tr("XRechnung in UBL."), QStringLiteral("FILE"));
    const QCommandLineOption facturx(
        QStringLiteral("facturx"), Tr::tr("Factur-X / ZUGFeRD PDF."), QStringLiteral("FILE.pdf"));
    const QCommandLineOption design(QStringLiteral("design"), Tr::tr("Design of the PDF."), QStringLiteral("TITLE"));
    if (sub == QLatin1String("export"))
        parser.addOptions({cii, ubl, facturx, design});
    else if (sub != QLatin1String("missing"))
        return usageError(sub.isEmpty() ? Tr::tr("Missing export, missing, view or check.")
                                        : Tr::tr("Unknown “%1”: export, missing, view or check.").arg(sub));
    int code = kExitOk;
    if (!parse(parser, args.mid(1), 1, 1, &code))
        return code;
    if (sub == QLatin1String("export") && int(parser.isSet(cii)) + int(parser.isSet(ubl)) + int(parser.isSet(facturx)) != 1)
        return usageError(Tr::tr("Say which and where: --xrechnung-cii FILE, --xrechnung-ubl FILE or "
                                 "--facturx FILE.pdf."));
    // Exporting does not make the document the current one.
    Record *doc = m_session.document(parser.positionalArguments().constFirst());
    if (!doc)
        return kExitFailure;
    const Record *chosen = nullptr;
    if (parser.isSet(facturx) && parser.isSet(design)) {
        const Result<Record *> found = OutputRun::design(m_session, parser.value(design));
        if (!found)
            return failure(found.error());
        chosen = found.value();
    }
    EInvoiceCommands &commands = m_session.controller().einvoices();
    // One request gives the page and the XML the same lines in the same order.
    const RenderRequest request = m_session.controller().outputs().request(*doc, {}, chosen);
    const einvoice::Mapping mapping = commands.map(*doc, request.lines);
    // The one action that helps a classic document, in this program's words.
    const QString advice = mapping.toTheCentHelps
        ? Tr::tr(" tabo-cli duplicate %1 --to-the-cent makes a copy calculated to the cent; tabo-cli prefs "
                 "set centExactTotals true does so for new invoices.")
              .arg(doc->text(Invoice::uniqueID))
        : QString();
    if (sub == QLatin1String("missing")) {
        for (const QString &problem : mapping.problems())
            printOut(problem + QLatin1Char('\n'));
        if (mapping.ok())
            return kExitOk;
        return failure(
            Tr::tr("The e-invoice cannot be written yet (%1 above).").arg(mapping.problems().size()) + advice);
    }
    if (!mapping.ok())
        return failure(
            Tr::tr("The e-invoice cannot be written yet: ") + mapping.problems().join(QStringLiteral("; ")) + advice);
    if (parser.isSet(facturx))
        return commands.exportFacturX(request, mapping, parser.value(facturx)) ? kExitOk : kExitFailure;
    const bool asCii = parser.isSet(cii);
    return commands.writeXml(mapping, parser.value(asCii ? cii : ubl),
                             asCii ? EInvoiceCommands::Form::XRechnungCii : EInvoiceCommands::Form::XRechnungUbl)
               ? kExitOk
               : kExitFailure;
}

} // namespace tabo::cli
