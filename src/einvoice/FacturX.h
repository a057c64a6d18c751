#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace tabo::einvoice {

// What the hybrid PDF says about itself (document information and XMP).
struct PdfInfo
{
    QString title;  // "Rechnung RE-2026-3"
    QString author; // the seller
    QDateTime created;
};

// A printed invoice with its e-invoice inside (Factur-X 1.07 / ZUGFeRD 2.3,
// profile EN 16931): the PDF made PDF/A-3b, "factur-x.xml" attached to the
// document as its alternative form, XMP naming the profile, an sRGB output
// intent. The page itself stays as the design drew it (its fonts are
// embedded by the engine). The reason when the PDF cannot be read.
Result<QByteArray> makeFacturX(const QByteArray &pdf, const QByteArray &xml, const PdfInfo &info);

inline const QString kFacturXFileName = QStringLiteral("factur-x.xml");

} // namespace tabo::einvoice
