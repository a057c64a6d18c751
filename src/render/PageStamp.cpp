#include "render/PageStamp.h"

#include <QBuffer>
#include <QFont>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <QCoreApplication>
#include <vector>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(PageStamp)
};
} // namespace

namespace tabo {

namespace {

// The line sits this far above the foot of the page, inside the bottom
// margin every setup but the borderless one keeps.
constexpr double kBaselinePt = 24.0;
constexpr double kFontPt = 7.0;

// One page per page of the document, each holding only its line.
QByteArray overlay(const std::vector<QPDFPageObjectHelper> &pages, const QString &pattern)
{
    QByteArray out;
    QBuffer buffer(&out);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(72); // one unit a point
    writer.setPageMargins(QMarginsF(0, 0, 0, 0));
    QPainter painter;
    const int count = int(pages.size());
    for (int i = 0; i < count; ++i) {
        QPDFObjectHandle::Rectangle box = const_cast<QPDFPageObjectHelper &>(pages[i]).getTrimBox().getArrayAsRectangle();
        const QSizeF size(box.urx - box.llx, box.ury - box.lly);
        writer.setPageSize(QPageSize(size, QPageSize::Point, QString(), QPageSize::ExactMatch));
        if (i == 0) {
            if (!painter.begin(&writer))
                return {};
        } else if (!writer.newPage()) {
            return {};
        }
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPointSizeF(kFontPt);
        painter.setFont(font);
        painter.setPen(QColor(0x66, 0x66, 0x66));
        const QString line = QString(pattern).replace(QLatin1String("%1"), QString::number(i + 1))
                                 .replace(QLatin1String("%2"), QString::number(count));
        const QRectF rect(0, size.height() - kBaselinePt - kFontPt * 1.5, size.width(), kFontPt * 2);
        painter.drawText(rect, Qt::AlignHCenter | Qt::AlignBottom, line);
    }
    painter.end();
    return out;
}

} // namespace

QString PageStamp::patternFor(const QString &number, const QString &pageOfWording)
{
    QString pages = pageOfWording.trimmed();
    if (pages.isEmpty())
        pages = QStringLiteral("%1 / %2");
    else if (!pages.contains(QLatin1String("%1")))
        pages += QStringLiteral(" %1 / %2");
    const QString n = number.trimmed();
    return n.isEmpty() ? pages : n + QStringLiteral(" · ") + pages;
}

int PageStamp::pageCount(const QByteArray &pdf)
{
    try {
        QPDF doc;
        doc.processMemoryFile("document", pdf.constData(), size_t(pdf.size()));
        return int(QPDFPageDocumentHelper(doc).getAllPages().size());
    } catch (const std::exception &) {
        return -1;
    }
}

QByteArray PageStamp::apply(const QByteArray &pdf, const QString &pattern)
{
    if (pattern.isEmpty())
        return pdf;
    try {
        QPDF doc;
        doc.processMemoryFile("document", pdf.constData(), size_t(pdf.size()));
        std::vector<QPDFPageObjectHelper> pages = QPDFPageDocumentHelper(doc).getAllPages();
        if (pages.size() < 2)
            return pdf;
        const QByteArray lines = overlay(pages, pattern);
        if (lines.isEmpty())
            return pdf;
        QPDF stamp;
        stamp.processMemoryFile("page numbers", lines.constData(), size_t(lines.size()));
        std::vector<QPDFPageObjectHelper> stampPages = QPDFPageDocumentHelper(stamp).getAllPages();
        if (stampPages.size() != pages.size())
            return pdf;
        for (size_t i = 0; i < pages.size(); ++i) {
            QPDFPageObjectHelper &page = pages[i];
            QPDFObjectHandle form = doc.copyForeignObject(stampPages[i].getFormXObjectForPage());
            QPDFObjectHandle resources = page.getAttribute("/Resources", true);
            int suffix = 1;
            const std::string name = resources.getUniqueResourceName("/Fx", suffix);
            const std::string placed = page.placeFormXObject(form, name, page.getTrimBox().getArrayAsRectangle());
            if (placed.empty())
                continue;
            resources.mergeResources(QPDFObjectHandle::parse("<< /XObject << >> >>"));
            resources.getKey("/XObject").replaceKey(name, form);
            // The page's own drawing is wrapped so its state cannot move the line.
            page.addPageContents(QPDFObjectHandle::newStream(&doc, "q\n"), true);
            page.addPageContents(QPDFObjectHandle::newStream(&doc, "\nQ\n" + placed), false);
        }
        QPDFWriter writer(doc);
        writer.setOutputMemory();
        writer.write();
        std::shared_ptr<Buffer> buffer(writer.getBufferSharedPointer());
        return QByteArray(reinterpret_cast<const char *>(buffer->getBuffer()), qsizetype(buffer->getSize()));
    } catch (const std::exception &) {
        // An unnumbered document beats none.
        return pdf;
    }
}

} // namespace tabo
