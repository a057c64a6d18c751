#pragma once

#include <QByteArray>
#include <QString>

namespace tabo {

// Numbers the pages of a finished PDF of more than one page: each page gets
// one small line at the foot, `pattern` with %1 the page and %2 the number
// of pages ("RE-2026-3 · Page 2 of 3"). The web engine here cannot number
// pages itself (no page-margin boxes), so the line is drawn with QPdfWriter
// as a page of its own and laid over each page with qpdf.
class PageStamp
{
public:
    // The stamped PDF; `pdf` itself when it has one page, the pattern is
    // empty, or the PDF cannot be read.
    static QByteArray apply(const QByteArray &pdf, const QString &pattern);
    // The number of pages of a PDF, -1 when it cannot be read.
    static int pageCount(const QByteArray &pdf);
    // The document's line: its number (when it has one) and the
    // page-of-pages wording, where "Page" alone reads "Page %1 / %2".
    static QString patternFor(const QString &number, const QString &pageOfWording);
};

} // namespace tabo
