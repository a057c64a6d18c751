#pragma once

#include "einvoice/EInvoice.h"

#include <QByteArray>

namespace tabo::einvoice {

// Which rules the document declares it follows.
enum class Profile {
    XRechnung, // the German public sector's rules on top of EN 16931
    EN16931,   // the standard alone (Factur-X / ZUGFeRD, profile EN 16931)
};

// The UN/CEFACT Cross Industry Invoice (D16B) of an invoice, UTF-8.
QByteArray writeCii(const Model &invoice, Profile profile);

inline const QString kXRechnungId = QStringLiteral("urn:cen.eu:en16931:2017#compliant#urn:xeinkauf.de:kosit:xrechnung_3.0");
inline const QString kEN16931Id = QStringLiteral("urn:cen.eu:en16931:2017");
inline const QString kPeppolProcess = QStringLiteral("urn:fdc:peppol.eu:2017:poacc:billing:01:1.0");

} // namespace tabo::einvoice
