#pragma once

#include <QString>

namespace tabo {

class Preferences;
class Record;

// The payment code banks' apps read to fill in a transfer (EPC069-12,
// version 2, SEPA credit transfer), drawn as an inline SVG so that the page
// needs no image file and the code stays sharp in print.
namespace PaymentQr {

// The code's text: "BCD", version, UTF-8, "SCT", BIC, name, IBAN,
// "EUR123.45", the invoice number as remittance text. Empty when the
// invoice is not in euros, has no IBAN or nothing is left to pay.
QString payload(const Record &invoice, const Preferences &prefs);
// The page's %PAYMENTQR%: the SVG of the payload, or nothing.
QString svg(const Record &invoice, const Preferences &prefs);
// The SVG of any text (error correction M), with the quiet zone of four
// modules the standard asks for.
QString svgOf(const QByteArray &text);

} // namespace PaymentQr

} // namespace tabo
