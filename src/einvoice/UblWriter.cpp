#include "einvoice/UblWriter.h"

#include <QXmlStreamWriter>

namespace tabo::einvoice {

namespace {

const QString &kCac = kUblAggregates;
const QString &kCbc = kUblBasics;

// The element order below is the schema's.
class Ubl
{
public:
    Ubl(QByteArray *out, QString currency) : w(out), m_currency(std::move(currency)) { w.setAutoFormatting(true); }

    void start(const QString &name) { w.writeStartElement(kCac, name); }
    void end() { w.writeEndElement(); }
    void cbc(const QString &name, const QString &text)
    {
        if (!text.isEmpty())
            w.writeTextElement(kCbc, name, text);
    }
    void cbcAttr(const QString &name, const QString &text, const QString &attr, const QString &value)
    {
        if (text.isEmpty())
            return;
        w.writeStartElement(kCbc, name);
        if (!value.isEmpty())
            w.writeAttribute(attr, value);
        w.writeCharacters(text);
        w.writeEndElement();
    }
    void money(const QString &name, double value) { cbcAttr(name, amount(value), QStringLiteral("currencyID"), m_currency); }
    void taxScheme(const QString &id)
    {
        start(QStringLiteral("TaxScheme"));
        cbc(QStringLiteral("ID"), id);
        end();
    }
    void category(const QString &element, const TaxCategory &c, bool withReason)
    {
        start(element);
        cbc(QStringLiteral("ID"), c.code);
        if (c.code != QLatin1String("O"))
            cbc(QStringLiteral("Percent"), decimal(c.rate));
        if (withReason)
            cbc(QStringLiteral("TaxExemptionReason"), c.exemptionReason);
        taxScheme(QStringLiteral("VAT"));
        end();
    }
    void party(const QString &element, const Party &p, bool seller)
    {
        start(element);
        start(QStringLiteral("Party"));
        cbcAttr(QStringLiteral("EndpointID"), p.electronicAddress, QStringLiteral("schemeID"), p.electronicScheme);
        start(QStringLiteral("PostalAddress"));
        cbc(QStringLiteral("StreetName"), p.street);
        cbc(QStringLiteral("CityName"), p.city);
        cbc(QStringLiteral("PostalZone"), p.postcode);
        start(QStringLiteral("Country"));
        cbc(QStringLiteral("IdentificationCode"), p.countryCode);
        end();
        end();
        for (const auto &[id, scheme] : {std::pair{p.vatId, QStringLiteral("VAT")}, {p.taxNumber, QStringLiteral("FC")}}) {
            if (id.isEmpty() || (!seller && scheme == QLatin1String("FC")))
                continue;
            start(QStringLiteral("PartyTaxScheme"));
            cbc(QStringLiteral("CompanyID"), id);
            taxScheme(scheme);
            end();
        }
        start(QStringLiteral("PartyLegalEntity"));
        cbc(QStringLiteral("RegistrationName"), p.name);
        end();
        if (seller) {
            start(QStringLiteral("Contact"));
            cbc(QStringLiteral("Name"), p.contactName);
            cbc(QStringLiteral("Telephone"), p.contactPhone);
            cbc(QStringLiteral("ElectronicMail"), p.contactEmail);
            end();
        }
        end();
        end();
    }

    QXmlStreamWriter w;

private:
    QString m_currency;
};

} // namespace

QByteArray writeUbl(const Model &inv, Profile profile)
{
    QByteArray out;
    Ubl x(&out, inv.currency);
    QXmlStreamWriter &w = x.w;
    // UBL states a credit note in a document of its own, whose names differ.
    const bool credit = inv.typeCode == QLatin1String("381");
    const QString root = credit ? QStringLiteral("CreditNote") : QStringLiteral("Invoice");
    w.writeStartDocument();
    w.writeDefaultNamespace(credit ? kUblCreditNoteNamespace : kUblInvoiceNamespace);
    w.writeNamespace(kCac, QStringLiteral("cac"));
    w.writeNamespace(kCbc, QStringLiteral("cbc"));
    w.writeStartElement(credit ? kUblCreditNoteNamespace : kUblInvoiceNamespace, root);
    x.cbc(QStringLiteral("CustomizationID"), profile == Profile::XRechnung ? kXRechnungId : kEN16931Id);
    if (profile == Profile::XRechnung)
        x.cbc(QStringLiteral("ProfileID"), kPeppolProcess);
    x.cbc(QStringLiteral("ID"), inv.number);
    x.cbc(QStringLiteral("IssueDate"), inv.issueDate.toString(Qt::ISODate));
    if (inv.dueDate.isValid() && !credit)
        x.cbc(QStringLiteral("DueDate"), inv.dueDate.toString(Qt::ISODate));
    x.cbc(root + QStringLiteral("TypeCode"), inv.typeCode);
    for (const QString &note : inv.notes)
        x.cbc(QStringLiteral("Note"), note);
    x.cbc(QStringLiteral("DocumentCurrencyCode"), inv.currency);
    x.cbc(QStringLiteral("BuyerReference"), inv.buyerReference);
    if (!inv.precedingNumber.isEmpty()) {
        x.start(QStringLiteral("BillingReference"));
        x.start(QStringLiteral("InvoiceDocumentReference"));
        x.cbc(QStringLiteral("ID"), inv.precedingNumber);
        if (inv.precedingDate.isValid())
            x.cbc(QStringLiteral("IssueDate"), inv.precedingDate.toString(Qt::ISODate));
        x.end();
        x.end();
    }
    x.party(QStringLiteral("AccountingSupplierParty"), inv.seller, true);
    x.party(QStringLiteral("AccountingCustomerParty"), inv.buyer, false);
    if (inv.deliveryDate.isValid()) {
        x.start(QStringLiteral("Delivery"));
        x.cbc(QStringLiteral("ActualDeliveryDate"), inv.deliveryDate.toString(Qt::ISODate));
        x.end();
    }
    x.start(QStringLiteral("PaymentMeans"));
    x.cbc(QStringLiteral("PaymentMeansCode"), QStringLiteral("58")); // SEPA credit transfer
    x.cbc(QStringLiteral("PaymentID"), inv.number);
    x.start(QStringLiteral("PayeeFinancialAccount"));
    x.cbc(QStringLiteral("ID"), inv.iban);
    x.cbc(QStringLiteral("Name"), inv.seller.name);
    if (!inv.bic.isEmpty()) {
        x.start(QStringLiteral("FinancialInstitutionBranch"));
        x.cbc(QStringLiteral("ID"), inv.bic);
        x.end();
    }
    x.end();
    x.end();
    if (!inv.paymentTerms.isEmpty()) {
        x.start(QStringLiteral("PaymentTerms"));
        x.cbc(QStringLiteral("Note"), inv.paymentTerms);
        x.end();
    }
    for (const AllowanceCharge &ac : inv.allowancesCharges) {
        x.start(QStringLiteral("AllowanceCharge"));
        x.cbc(QStringLiteral("ChargeIndicator"), ac.charge ? QStringLiteral("true") : QStringLiteral("false"));
        x.cbc(QStringLiteral("AllowanceChargeReason"), ac.reason);
        x.money(QStringLiteral("Amount"), ac.amount);
        x.category(QStringLiteral("TaxCategory"), ac.tax, false);
        x.end();
    }
    x.start(QStringLiteral("TaxTotal"));
    x.money(QStringLiteral("TaxAmount"), inv.taxTotal);
    for (const TaxBreakdown &t : inv.taxes) {
        x.start(QStringLiteral("TaxSubtotal"));
        x.money(QStringLiteral("TaxableAmount"), t.basis);
        x.money(QStringLiteral("TaxAmount"), t.amount);
        x.category(QStringLiteral("TaxCategory"), t.category,
                   t.category.code != QLatin1String("S") && t.category.code != QLatin1String("Z"));
        x.end();
    }
    x.end();
    x.start(QStringLiteral("LegalMonetaryTotal"));
    x.money(QStringLiteral("LineExtensionAmount"), inv.lineTotal);
    x.money(QStringLiteral("TaxExclusiveAmount"), inv.taxExclusive);
    x.money(QStringLiteral("TaxInclusiveAmount"), inv.taxInclusive);
    x.money(QStringLiteral("AllowanceTotalAmount"), inv.allowanceTotal);
    x.money(QStringLiteral("ChargeTotalAmount"), inv.chargeTotal);
    x.money(QStringLiteral("PrepaidAmount"), inv.prepaid);
    if (inv.rounding != 0)
        x.money(QStringLiteral("PayableRoundingAmount"), inv.rounding);
    x.money(QStringLiteral("PayableAmount"), inv.payable);
    x.end();
    for (const Line &line : inv.lines) {
        x.start(root + QStringLiteral("Line"));
        x.cbc(QStringLiteral("ID"), line.id);
        x.cbcAttr(credit ? QStringLiteral("CreditedQuantity") : QStringLiteral("InvoicedQuantity"), decimal(line.quantity),
                  QStringLiteral("unitCode"), line.unitCode);
        x.money(QStringLiteral("LineExtensionAmount"), line.net);
        x.start(QStringLiteral("Item"));
        x.cbc(QStringLiteral("Description"), line.description);
        x.cbc(QStringLiteral("Name"), line.name);
        if (!line.sellerId.isEmpty()) {
            x.start(QStringLiteral("SellersItemIdentification"));
            x.cbc(QStringLiteral("ID"), line.sellerId);
            x.end();
        }
        x.category(QStringLiteral("ClassifiedTaxCategory"), line.tax, false);
        x.end();
        x.start(QStringLiteral("Price"));
        x.cbcAttr(QStringLiteral("PriceAmount"), decimal(line.price), QStringLiteral("currencyID"), inv.currency);
        x.end();
        x.end();
    }
    w.writeEndElement();
    w.writeEndDocument();
    return out;
}

} // namespace tabo::einvoice
