#include "einvoice/FacturX.h"

#include <QColorSpace>
#include <QTimeZone>

#include <QCoreApplication>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFEFStreamObjectHelper.hh>
#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>
#include <qpdf/QPDFFileSpecObjectHelper.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(FacturX)
};
} // namespace

namespace tabo::einvoice {

namespace {

std::string utf8(const QString &text)
{
    return text.toStdString();
}

QString pdfDate(const QDateTime &t)
{
    const int offset = t.offsetFromUtc() / 60;
    return t.toString(QStringLiteral("'D:'yyyyMMddHHmmss"))
           + (offset == 0 ? QStringLiteral("Z")
                          : QStringLiteral("%1%2'%3'")
                                .arg(offset < 0 ? QLatin1Char('-') : QLatin1Char('+'))
                                .arg(std::abs(offset) / 60, 2, 10, QLatin1Char('0'))
                                .arg(std::abs(offset) % 60, 2, 10, QLatin1Char('0')));
}

QString xmpDate(const QDateTime &t)
{
    return t.toOffsetFromUtc(t.offsetFromUtc()).toString(Qt::ISODate);
}

// The extension schema tells PDF/A readers what the "fx" properties are.
QString fxProperty(const char *name, const char *description)
{
    return QStringLiteral("<rdf:li rdf:parseType=\"Resource\"><pdfaProperty:name>%1</pdfaProperty:name>"
                          "<pdfaProperty:valueType>Text</pdfaProperty:valueType><pdfaProperty:category>external"
                          "</pdfaProperty:category><pdfaProperty:description>%2</pdfaProperty:description></rdf:li>")
        .arg(QLatin1String(name), QLatin1String(description));
}

QByteArray xmp(const PdfInfo &info, const QString &producer)
{
    const QString created = xmpDate(info.created);
    const QString packet = QStringLiteral(
        "<?xpacket begin=\"\uFEFF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>\n"
        "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">\n<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">\n"
        "<rdf:Description rdf:about=\"\" xmlns:pdfaid=\"http://www.aiim.org/pdfa/ns/id/\">"
        "<pdfaid:part>3</pdfaid:part><pdfaid:conformance>B</pdfaid:conformance></rdf:Description>\n"
        "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\">"
        "<dc:format>application/pdf</dc:format>"
        "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">%1</rdf:li></rdf:Alt></dc:title>"
        "<dc:creator><rdf:Seq><rdf:li>%2</rdf:li></rdf:Seq></dc:creator></rdf:Description>\n"
        "<rdf:Description rdf:about=\"\" xmlns:pdf=\"http://ns.adobe.com/pdf/1.3/\"><pdf:Producer>%3</pdf:Producer>"
        "</rdf:Description>\n"
        "<rdf:Description rdf:about=\"\" xmlns:xmp=\"http://ns.adobe.com/xap/1.0/\"><xmp:CreatorTool>Tabo"
        "</xmp:CreatorTool><xmp:CreateDate>%4</xmp:CreateDate><xmp:ModifyDate>%4</xmp:ModifyDate>"
        "<xmp:MetadataDate>%4</xmp:MetadataDate></rdf:Description>\n"
        "<rdf:Description rdf:about=\"\" xmlns:fx=\"urn:factur-x:pdfa:CrossIndustryDocument:invoice:1p0#\">"
        "<fx:DocumentType>INVOICE</fx:DocumentType><fx:DocumentFileName>factur-x.xml</fx:DocumentFileName>"
        "<fx:Version>1.0</fx:Version><fx:ConformanceLevel>EN 16931</fx:ConformanceLevel></rdf:Description>\n"
        "<rdf:Description rdf:about=\"\" xmlns:pdfaExtension=\"http://www.aiim.org/pdfa/ns/extension/\" "
        "xmlns:pdfaSchema=\"http://www.aiim.org/pdfa/ns/schema#\" xmlns:pdfaProperty=\"http://www.aiim.org/pdfa/ns/property#\">"
        "<pdfaExtension:schemas><rdf:Bag><rdf:li rdf:parseType=\"Resource\">"
        "<pdfaSchema:schema>Factur-X PDFA Extension Schema</pdfaSchema:schema>"
        "<pdfaSchema:namespaceURI>urn:factur-x:pdfa:CrossIndustryDocument:invoice:1p0#</pdfaSchema:namespaceURI>"
        "<pdfaSchema:prefix>fx</pdfaSchema:prefix><pdfaSchema:property><rdf:Seq>%5</rdf:Seq></pdfaSchema:property>"
        "</rdf:li></rdf:Bag></pdfaExtension:schemas></rdf:Description>\n"
        "</rdf:RDF>\n</x:xmpmeta>\n<?xpacket end=\"w\"?>")
        .arg(info.title.toHtmlEscaped(), info.author.toHtmlEscaped(), producer.toHtmlEscaped(), created,
             fxProperty("DocumentFileName", "The name of the embedded XML document")
                 + fxProperty("DocumentType", "The type of the hybrid document in capital letters")
                 + fxProperty("Version", "The actual version of the standard applying to the embedded XML document")
                 + fxProperty("ConformanceLevel", "The conformance level of the embedded XML document"));
    return packet.toUtf8();
}

} // namespace

Result<QByteArray> makeFacturX(const QByteArray &pdf, const QByteArray &xml, const PdfInfo &info)
{
    try {
        QPDF doc;
        doc.processMemoryFile("invoice", pdf.constData(), size_t(pdf.size()));
        QPDFObjectHandle catalog = doc.getRoot();
        const QString date = pdfDate(info.created);
        const QString producer = QStringLiteral("Tabo");

        // The attachment, as the document's alternative form.
        QPDFEFStreamObjectHelper stream = QPDFEFStreamObjectHelper::createEFStream(doc, xml.toStdString());
        stream.setSubtype("text/xml").setModDate(utf8(date));
        QPDFFileSpecObjectHelper attachment =
            QPDFFileSpecObjectHelper::createFileSpec(doc, utf8(kFacturXFileName), stream);
        attachment.setDescription("Factur-X / ZUGFeRD invoice (EN 16931)");
        attachment.getObjectHandle().replaceKey("/AFRelationship", QPDFObjectHandle::newName("/Alternative"));
        QPDFEmbeddedFileDocumentHelper(doc).replaceEmbeddedFile(utf8(kFacturXFileName), attachment);
        catalog.replaceKey("/AF", QPDFObjectHandle::newArray({attachment.getObjectHandle()}));

        // PDF/A: metadata, output intent, information that says the same.
        QPDFObjectHandle metadata = QPDFObjectHandle::newStream(&doc, xmp(info, producer).toStdString());
        metadata.getDict().replaceKey("/Type", QPDFObjectHandle::newName("/Metadata"));
        metadata.getDict().replaceKey("/Subtype", QPDFObjectHandle::newName("/XML"));
        catalog.replaceKey("/Metadata", metadata);
        const QByteArray icc = QColorSpace(QColorSpace::SRgb).iccProfile();
        QPDFObjectHandle profile = QPDFObjectHandle::newStream(&doc, icc.toStdString());
        profile.getDict().replaceKey("/N", QPDFObjectHandle::newInteger(3));
        QPDFObjectHandle intent = QPDFObjectHandle::newDictionary();
        intent.replaceKey("/Type", QPDFObjectHandle::newName("/OutputIntent"));
        intent.replaceKey("/S", QPDFObjectHandle::newName("/GTS_PDFA1"));
        intent.replaceKey("/OutputConditionIdentifier", QPDFObjectHandle::newUnicodeString("sRGB IEC61966-2.1"));
        intent.replaceKey("/Info", QPDFObjectHandle::newUnicodeString("sRGB IEC61966-2.1"));
        intent.replaceKey("/DestOutputProfile", profile);
        catalog.replaceKey("/OutputIntents", QPDFObjectHandle::newArray({intent}));
        QPDFObjectHandle infoDict = QPDFObjectHandle::newDictionary();
        infoDict.replaceKey("/Title", QPDFObjectHandle::newUnicodeString(utf8(info.title)));
        infoDict.replaceKey("/Author", QPDFObjectHandle::newUnicodeString(utf8(info.author)));
        infoDict.replaceKey("/Creator", QPDFObjectHandle::newUnicodeString("Tabo"));
        infoDict.replaceKey("/Producer", QPDFObjectHandle::newUnicodeString(utf8(producer)));
        infoDict.replaceKey("/CreationDate", QPDFObjectHandle::newString(utf8(date)));
        infoDict.replaceKey("/ModDate", QPDFObjectHandle::newString(utf8(date)));
        doc.getTrailer().replaceKey("/Info", doc.makeIndirectObject(infoDict));

        // PDF/A wants every annotation (a link, say) printable and visible.
        for (QPDFPageObjectHelper &page : QPDFPageDocumentHelper(doc).getAllPages()) {
            QPDFObjectHandle annotations = page.getObjectHandle().getKey("/Annots");
            if (!annotations.isArray())
                continue;
            for (int i = 0; i < annotations.getArrayNItems(); ++i) {
                QPDFObjectHandle annotation = annotations.getArrayItem(i);
                if (!annotation.isDictionary())
                    continue;
                const int flags = annotation.getKey("/F").isInteger() ? annotation.getKey("/F").getIntValueAsInt() : 0;
                // Print on; Invisible, Hidden and NoView off.
                annotation.replaceKey("/F", QPDFObjectHandle::newInteger((flags | 4) & ~(1 | 2 | 32)));
            }
        }

        QPDFWriter writer(doc);
        writer.setOutputMemory();
        writer.setMinimumPDFVersion("1.7");
        // The page streams stay as drawn; the new ones (metadata above all,
        // which PDF/A readers want legible) are written uncompressed.
        writer.setStreamDataMode(qpdf_s_preserve);
        writer.write();
        std::shared_ptr<Buffer> buffer(writer.getBufferSharedPointer());
        return QByteArray(reinterpret_cast<const char *>(buffer->getBuffer()), qsizetype(buffer->getSize()));
    } catch (const std::exception &e) {
        return Error::file(
            Tr::tr("The printed invoice could not be made a Factur-X PDF: %1").arg(QString::fromUtf8(e.what())));
    }
}

} // namespace tabo::einvoice
