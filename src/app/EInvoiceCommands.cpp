#include "app/EInvoiceCommands.h"

#include "app/AppController.h"
#include "app/Interaction.h"
#include "einvoice/UblWriter.h"

#include <QSaveFile>

namespace tabo {

einvoice::Mapping EInvoiceCommands::map(Record &document) const
{
    m_app.calculateInvoice(&document);
    return einvoice::fromDocument(document, m_app.prefs());
}

QString EInvoiceCommands::problemsText(const einvoice::Mapping &mapping)
{
    QStringList lines;
    for (const QString &problem : mapping.problems())
        lines << QStringLiteral("• ") + problem;
    return lines.join(QLatin1Char('\n'));
}

bool EInvoiceCommands::exportXml(Record &document, const QString &path, Form form)
{
    const einvoice::Mapping mapping = map(document);
    if (!mapping.ok()) {
        m_app.ui().alert(QStringLiteral("The e-invoice cannot be written yet"), problemsText(mapping),
                         {QStringLiteral("OK")});
        return false;
    }
    const QByteArray xml = form == Form::XRechnungCii ? einvoice::writeCii(mapping.invoice, einvoice::Profile::XRechnung)
                                                      : einvoice::writeUbl(mapping.invoice, einvoice::Profile::XRechnung);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(xml) != xml.size() || !file.commit()) {
        m_app.ui().presentError(Error::file(QStringLiteral("The e-invoice could not be written to “%1”: %2")
                                                .arg(path, file.errorString())));
        return false;
    }
    return true;
}

} // namespace tabo
