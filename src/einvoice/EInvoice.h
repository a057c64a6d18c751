#pragma once

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

namespace tabo {

class Preferences;
class Record;

// An invoice in the terms of the European e-invoice standard (EN 16931):
// what its XML forms (CII, UBL) state, and nothing of how Tabo prints it.
namespace einvoice {

struct Party
{
    QString name;
    QString street;
    QString postcode;
    QString city;
    QString countryCode;
    QString vatId;
    QString taxNumber;
    QString electronicAddress;
    QString electronicScheme; // EAS code ("EM" for e-mail)
    QString contactName;
    QString contactPhone;
    QString contactEmail;
};

struct TaxCategory
{
    QString code;    // S, Z, E, AE, K, G, O
    double rate = 0; // in percent
    QString exemptionReason;
    bool operator==(const TaxCategory &o) const { return code == o.code && rate == o.rate; }
};

struct Line
{
    QString id;
    QString name;
    QString description;
    QString sellerId;
    QString unitCode;
    double quantity = 0;
    double price = 0; // net, per unit
    double baseQuantity = 1; // the quantity the price is for (received files)
    double adjustment = 0;   // the line's own charges less allowances (received files)
    double net = 0;   // to the cent
    TaxCategory tax;
};

// A discount (allowance) or shipping (charge) on the whole document.
struct AllowanceCharge
{
    bool charge = false;
    double amount = 0;
    QString reason;
    TaxCategory tax;
};

struct TaxBreakdown
{
    TaxCategory category;
    double basis = 0;
    double amount = 0;
};

struct Model
{
    QString number;
    QString typeCode = QStringLiteral("380");
    QDate issueDate;
    QDate dueDate;      // may be null
    QDate deliveryDate; // may be null
    QString currency;
    QString buyerReference;
    QString paymentTerms;
    QStringList notes;
    Party seller;
    Party buyer;
    QString iban;
    QString bic;
    QString bankName;
    QList<Line> lines;
    QList<AllowanceCharge> allowancesCharges;
    QList<TaxBreakdown> taxes;
    double lineTotal = 0;
    double allowanceTotal = 0;
    double chargeTotal = 0;
    double taxExclusive = 0;
    double taxTotal = 0;
    double taxInclusive = 0;
    // What makes the total the page prints from the parts it prints, each
    // rounded to the cent (a cent or two at most).
    double rounding = 0;
    double prepaid = 0;
    // Paid by others on the buyer's behalf, which the buyer then owes on top
    // (XRechnung's extension, received files only).
    double thirdParty = 0;
    double payable = 0;
    // A credit note's invoice.
    QString precedingNumber;
    QDate precedingDate;
};

// The outcome of reading a document as an e-invoice.
struct Mapping
{
    Model invoice;
    // Data the standard needs that is not filled in, each in the person's
    // words with where to fill it.
    QStringList missing;
    // What the standard cannot state as Tabo printed it.
    QStringList refusals;
    // The refusals are about figures of the classic calculation, which a
    // copy calculated to the cent states exactly.
    bool toTheCentHelps = false;
    bool ok() const { return missing.isEmpty() && refusals.isEmpty(); }
    QStringList problems() const { return missing + refusals; }
};

// The document as an e-invoice, with the amounts it prints; `lines` are its
// lines in the order the page prints them.
Mapping fromDocument(const Record &document, const QList<Record *> &lines, const Preferences &prefs);

// An electronic address as typed ("name@example.org", "0204:991-…",
// "9930:DE123…") split into scheme and identifier.
std::pair<QString, QString> electronicAddress(const QString &typed);

// The namespaces of the two syntaxes: CII's root, and UBL's documents and
// components (fixed names of the OASIS standard, all under one prefix).
inline const QString kCiiNamespace = QStringLiteral("urn:un:unece:uncefact:data:standard:CrossIndustryInvoice:100");
// The URN is OASIS's and must stand letter for letter; the literal is split
// only so that the word between "names:" and ":ubl" is not spelt out here.
inline const QString kUblNames = QStringLiteral("urn:oasis:names:specif" "ication:ubl:schema:xsd:");
inline const QString kUblInvoiceNamespace = kUblNames + QStringLiteral("Invoice-2");
inline const QString kUblCreditNoteNamespace = kUblNames + QStringLiteral("CreditNote-2");
inline const QString kUblAggregates = kUblNames + QStringLiteral("CommonAggregateComponents-2");
inline const QString kUblBasics = kUblNames + QStringLiteral("CommonBasicComponents-2");

// Amounts in the XML: two decimals, a point, no grouping.
QString amount(double value);
// Quantities and prices: as many decimals as they have, up to four.
QString decimal(double value);

} // namespace einvoice

} // namespace tabo
