#pragma once

#include "einvoice/CiiWriter.h"
#include "render/PageRenderer.h"

#include <QString>

namespace tabo {

class CurrentDocument;
class DocumentCommands;
class Interaction;
class OutputCommands;
class Preferences;
class Record;

// E-invoices of the user's invoices: the check of what the standard needs,
// then the XML.
class EInvoiceCommands
{
public:
    // The outputs render the printed invoice inside a Factur-X; the document
    // commands make the cent-exact copy offered when a document cannot be
    // mapped.
    EInvoiceCommands(CurrentDocument &current, DocumentCommands &documents, OutputCommands &outputs,
                     Preferences &prefs, Interaction &ui)
        : m_current(current), m_documents(documents), m_outputs(outputs), m_prefs(prefs), m_ui(ui)
    {
    }

    // The document as the standard sees it, calculated afresh first, its
    // lines in `lines`' order (by default the order they print in).
    einvoice::Mapping map(Record &document);
    einvoice::Mapping map(Record &document, const QList<Record *> &lines);
    enum class Form { XRechnungCii, XRechnungUbl };
    // Writes the e-invoice of `document` to `path`. Nothing is written
    // while something is missing or cannot be stated: the person is told
    // what and where to fill it, all at once.
    bool exportXml(Record &document, const QString &path, Form form);

    // The printed invoice (the design in force) made a Factur-X / ZUGFeRD
    // PDF with its EN 16931 e-invoice inside, at `path`.
    bool exportFacturX(Record &document, const QString &path);
    // The same for a document mapped already with the request's lines: the
    // request's page is printed, the mapping goes inside.
    bool exportFacturX(const RenderRequest &request, const einvoice::Mapping &mapping, const QString &path);
    // The same from a PDF of the document printed already (the export
    // sheet's): nothing is printed twice.
    bool facturXFromPrinted(Record &document, const QString &printedPdf, const QString &path);

    // For callers that have mapped the document already: false, after
    // telling the person everything missing, when it cannot be written.
    // Where a copy calculated to the cent would do, it is offered.
    bool checked(const einvoice::Mapping &mapping, Record &document) const;
    static QString toTheCentAdvice();
    bool writeXml(const einvoice::Mapping &mapping, const QString &path, Form form) const;
    bool writeFacturX(const Record &document, const einvoice::Mapping &mapping, const QString &printedPdf,
                      const QString &path) const;

    // File ▸ Open E-invoice…: the open panel, then the received invoice as
    // a readable page, rendered to "Received.pdf" in the data folder. Its
    // path, or empty when cancelled or unreadable (said to the person).
    // Nothing of it enters the store.
    QString openReceived();
    QString viewReceived(const QString &path);

    // The forms of `einvoiceForm`, as the export sheet offers them.
    enum OutputForm { PlainPdf = 0, FacturXPdf = 1, XRechnungXml = 2 };
    static QStringList outputFormLabels();

    static QString problemsText(const einvoice::Mapping &mapping);

private:
    bool write(const QString &path, const QByteArray &data) const;

    CurrentDocument &m_current;
    DocumentCommands &m_documents;
    OutputCommands &m_outputs;
    Preferences &m_prefs;
    Interaction &m_ui;
};

} // namespace tabo
