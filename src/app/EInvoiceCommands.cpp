#include "app/EInvoiceCommands.h"

#include "app/DocumentCommands.h"
#include "app/Interaction.h"
#include "app/OutputCommands.h"
#include "app/Workspace.h"
#include "domain/LineOrder.h"
#include "domain/Record.h"
#include "einvoice/FacturX.h"
#include "einvoice/Reader.h"
#include "prefs/Locations.h"
#include "prefs/ProtectedFiles.h"
#include "einvoice/UblWriter.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QSaveFile>
#include <QTemporaryDir>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(EInvoiceCommands)
};
} // namespace

namespace tabo {

einvoice::Mapping EInvoiceCommands::map(Record &document)
{
    return map(document, orderedLines(document, m_prefs));
}

einvoice::Mapping EInvoiceCommands::map(Record &document, const QList<Record *> &lines)
{
    m_current.calculateInvoice(&document);
    return einvoice::fromDocument(document, lines, m_prefs);
}

QString EInvoiceCommands::problemsText(const einvoice::Mapping &mapping)
{
    QStringList lines;
    for (const QString &problem : mapping.problems())
        lines << QStringLiteral("• ") + problem;
    return lines.join(QLatin1Char('\n'));
}

QString EInvoiceCommands::toTheCentAdvice()
{
    return Tr::tr("Make a copy calculated to the cent, whose e-invoice states exactly what it prints, or "
                  "switch the setting for new invoices (Preferences ▸ Taxes ▸ Calculate new documents to "
                  "the cent).");
}

bool EInvoiceCommands::checked(const einvoice::Mapping &mapping, Record &document) const
{
    if (mapping.ok())
        return true;
    if (!mapping.toTheCentHelps || !mapping.missing.isEmpty()) {
        m_ui.alert(Tr::tr("The e-invoice cannot be written yet"), problemsText(mapping), { Tr::tr("OK") });
        return false;
    }
    const int answer = m_ui.alert(Tr::tr("The e-invoice cannot be written yet"),
        problemsText(mapping) + QStringLiteral("\n\n") + toTheCentAdvice(),
        { Tr::tr("OK"), Tr::tr("Make a copy calculated to the cent") });
    if (answer == 1) {
        m_current.setCurrentInvoice(&document);
        m_documents.duplicateInvoice(true);
    }
    return false;
}

bool EInvoiceCommands::write(const QString &path, const QByteArray &data) const
{
    if (const Error e = ProtectedFiles::writeAtomically(path, data)) {
        m_ui.presentError(e);
        return false;
    }
    return true;
}

bool EInvoiceCommands::exportXml(Record &document, const QString &path, Form form)
{
    const einvoice::Mapping mapping = map(document);
    return checked(mapping, document) && writeXml(mapping, path, form);
}

bool EInvoiceCommands::writeXml(const einvoice::Mapping &mapping, const QString &path, Form form) const
{
    return write(path, form == Form::XRechnungCii ? einvoice::writeCii(mapping.invoice, einvoice::Profile::XRechnung)
                                                  : einvoice::writeUbl(mapping.invoice, einvoice::Profile::XRechnung));
}

QString EInvoiceCommands::openReceived()
{
    Interaction::FileRequest request;
    request.title = Tr::tr("Open E-Invoice");
    request.extensions = {QStringLiteral("xml"), QStringLiteral("pdf")};
    const QString path = m_ui.openFile(request);
    return path.isEmpty() ? QString() : viewReceived(path);
}

QString EInvoiceCommands::viewReceived(const QString &path)
{
    const Result<einvoice::Received> read = einvoice::readReceivedFile(path);
    if (!read) {
        m_ui.alert(Tr::tr("The e-invoice cannot be shown"), read.error().text, { Tr::tr("OK") });
        return {};
    }
    const einvoice::Received &received = read.value();
    QDir().mkpath(Locations::dataFolder());
    const QString pdf = QDir(Locations::dataFolder()).filePath(QStringLiteral("Received.pdf"));
    if (!m_outputs.renderHtmlToFile(einvoice::viewPage(received), pdf)) {
        m_ui.alert(Tr::tr("The e-invoice cannot be shown"), Tr::tr("Its page could not be made."), { Tr::tr("OK") });
        return {};
    }
    return pdf;
}

QStringList EInvoiceCommands::outputFormLabels()
{
    return { Tr::tr("PDF"), Tr::tr("PDF with e-invoice (Factur-X / ZUGFeRD)"), Tr::tr("E-invoice (XRechnung)") };
}

bool EInvoiceCommands::exportFacturX(Record &document, const QString &path)
{
    const RenderRequest request = m_outputs.request(document);
    const einvoice::Mapping mapping = map(document, request.lines);
    return checked(mapping, document) && exportFacturX(request, mapping, path);
}

bool EInvoiceCommands::exportFacturX(const RenderRequest &request, const einvoice::Mapping &mapping,
                                     const QString &path)
{
    QTemporaryDir scratch;
    const QString printed = scratch.filePath(QStringLiteral("printed.pdf"));
    if (!scratch.isValid() || !m_outputs.renderToFile(request, printed))
        return false; // the renderer has said why
    return writeFacturX(*request.document, mapping, printed, path);
}

bool EInvoiceCommands::facturXFromPrinted(Record &document, const QString &printedPdf, const QString &path)
{
    const einvoice::Mapping mapping = map(document);
    return checked(mapping, document) && writeFacturX(document, mapping, printedPdf, path);
}

bool EInvoiceCommands::writeFacturX(const Record &document, const einvoice::Mapping &mapping,
                                    const QString &printedPdf, const QString &path) const
{
    QFile page(printedPdf);
    if (!page.open(QIODevice::ReadOnly)) {
        m_ui.presentError(Error::file(Tr::tr("The printed invoice “%1” cannot be read.").arg(printedPdf)));
        return false;
    }
    einvoice::PdfInfo info;
    info.title = QStringLiteral("%1 %2").arg(document.text(Invoice::title), document.text(Invoice::number)).trimmed();
    info.author = mapping.invoice.seller.name;
    info.created = QDateTime::currentDateTime();
    const Result<QByteArray> hybrid =
        einvoice::makeFacturX(page.readAll(), einvoice::writeCii(mapping.invoice, einvoice::Profile::EN16931), info);
    if (!hybrid) {
        m_ui.presentError(hybrid.error());
        return false;
    }
    return write(path, hybrid.value());
}

} // namespace tabo
