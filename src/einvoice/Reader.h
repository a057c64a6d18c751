#pragma once

#include "base/Result.h"
#include "einvoice/EInvoice.h"

#include <QByteArray>
#include <QStringList>

namespace tabo::einvoice {

// A received e-invoice, read without trusting it: a DTD is refused (no
// entity is ever expanded), the size is bounded, and what is read is only
// shown, never stored.
struct Received
{
    enum class Syntax { CII, UBL };
    Syntax syntax = Syntax::CII;
    QString guideline; // the rules it claims to follow (its customization ID)
    Model invoice;
    bool fromPdf = false;
    QString syntaxName() const { return syntax == Syntax::CII ? QStringLiteral("CII") : QStringLiteral("UBL"); }
};

// Larger files are refused unread: real e-invoices are kilobytes, and a
// PDF of many megabytes is a scan, not one.
inline constexpr qint64 kMaxReceivedBytes = 20 * 1024 * 1024;

// An XML e-invoice (CII or UBL), or a PDF carrying one (Factur-X, ZUGFeRD,
// or any XML attachment); else the reason in the person's words.
Result<Received> readReceived(const QByteArray &data);
Result<Received> readReceivedFile(const QString &path);

// Whether its amounts add up as the standard's rules say: empty when they
// do, else one line for each sum that does not.
QStringList checkTotals(const Model &invoice);

// A readable page of it (our own design for received invoices): seller,
// buyer, lines, allowances and charges, taxes, totals, payment, notes.
QString viewPage(const Received &received);

} // namespace tabo::einvoice
