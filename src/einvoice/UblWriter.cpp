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

    void header(const Model &inv, Profile profile, bool credit, const QString &root)
    {
        cbc(QStringLiteral("CustomizationID"), profile == Profile::XRechnung ? kXRechnungId : kEN16931Id);
        if (profile == Profile::XRechnung)
            cbc(QStringLiteral("ProfileID"), kPeppolProcess);
        cbc(QStringLiteral("ID"), inv.number);
        cbc(QStringLiteral("IssueDate"), inv.issueDate.toString(Qt::ISODate));
        if (inv.dueDate.isValid() && !credit)
            cbc(QStringLiteral("DueDate"), inv.dueDate.toString(Qt::ISODate));
        cbc(root + QStringLiteral("TypeCode"), inv.typeCode);
        for (const QString &note : inv.notes)
            cbc(QStringLiteral("Note"), note);
        cbc(QStringLiteral("DocumentCurrencyCode"), inv.currency);
        cbc(QStringLiteral("BuyerReference"), inv.buyerReference);
        if (!inv.precedingNumber.isEmpty()) {
            start(QStringLiteral("BillingReference"));
            start(QStringLiteral("InvoiceDocumentReference"));
            cbc(QStringLiteral("ID"), inv.precedingNumber);
            if (inv.precedingDate.isValid())
                cbc(QStringLiteral("IssueDate"), inv.precedingDate.toString(Qt::ISODate));
            end();
            end();
        }
    }
    void deliveryAndPayment(const Model &inv)
    {
        if (inv.deliveryDate.isValid()) {
            start(QStringLiteral("Delivery"));
            cbc(QStringLiteral("ActualDeliveryDate"), inv.deliveryDate.toString(Qt::ISODate));
            end();
        }
        start(QStringLiteral("PaymentMeans"));
        cbc(QStringLiteral("PaymentMeansCode"), QStringLiteral("58")); // SEPA credit transfer
        cbc(QStringLiteral("PaymentID"), inv.number);
        start(QStringLiteral("PayeeFinancialAccount"));
        cbc(QStringLiteral("ID"), inv.iban);
        cbc(QStringLiteral("Name"), inv.seller.name);
        if (!inv.bic.isEmpty()) {
            start(QStringLiteral("FinancialInstitutionBranch"));
            cbc(QStringLiteral("ID"), inv.bic);
            end();
        }
        end();
        end();
        if (!inv.paymentTerms.isEmpty()) {
            start(QStringLiteral("PaymentTerms"));
            cbc(QStringLiteral("Note"), inv.paymentTerms);
            end();
        }
    }
    void allowanceCharge(const AllowanceCharge &ac)
    {
        start(QStringLiteral("AllowanceCharge"));
        cbc(QStringLiteral("ChargeIndicator"), ac.charge ? QStringLiteral("true") : QStringLiteral("false"));
        cbc(QStringLiteral("AllowanceChargeReason"), ac.reason);
        money(QStringLiteral("Amount"), ac.amount);
        category(QStringLiteral("TaxCategory"), ac.tax, false);
        end();
    }
    void taxTotal(const Model &inv)
    {
        start(QStringLiteral("TaxTotal"));
        money(QStringLiteral("TaxAmount"), inv.taxTotal);
        for (const TaxBreakdown &t : inv.taxes) {
            start(QStringLiteral("TaxSubtotal"));
            money(QStringLiteral("TaxableAmount"), t.basis);
            money(QStringLiteral("TaxAmount"), t.amount);
            category(QStringLiteral("TaxCategory"), t.category,
                     t.category.code != QLatin1String("S") && t.category.code != QLatin1String("Z"));
            end();
        }
        end();
    }
    void monetaryTotal(const Model &inv)
    {
        start(QStringLiteral("LegalMonetaryTotal"));
        money(QStringLiteral("LineExtensionAmount"), inv.lineTotal);
        money(QStringLiteral("TaxExclusiveAmount"), inv.taxExclusive);
        money(QStringLiteral("TaxInclusiveAmount"), inv.taxInclusive);
        money(QStringLiteral("AllowanceTotalAmount"), inv.allowanceTotal);
        money(QStringLiteral("ChargeTotalAmount"), inv.chargeTotal);
        money(QStringLiteral("PrepaidAmount"), inv.prepaid);
        if (inv.rounding != 0)
            money(QStringLiteral("PayableRoundingAmount"), inv.rounding);
        money(QStringLiteral("PayableAmount"), inv.payable);
        end();
    }
    void line(const Line &line, bool credit, const QString &root)
    {
        start(root + QStringLiteral("Line"));
        cbc(QStringLiteral("ID"), line.id);
        cbcAttr(credit ? QStringLiteral("CreditedQuantity") : QStringLiteral("InvoicedQuantity"), decimal(line.quantity),
                QStringLiteral("unitCode"), line.unitCode);
        money(QStringLiteral("LineExtensionAmount"), line.net);
        start(QStringLiteral("Item"));
        cbc(QStringLiteral("Description"), line.description);
        cbc(QStringLiteral("Name"), line.name);
        if (!line.sellerId.isEmpty()) {
            start(QStringLiteral("SellersItemIdentification"));
            cbc(QStringLiteral("ID"), line.sellerId);
            end();
        }
        category(QStringLiteral("ClassifiedTaxCategory"), line.tax, false);
        end();
        start(QStringLiteral("Price"));
        cbcAttr(QStringLiteral("PriceAmount"), decimal(line.price), QStringLiteral("currencyID"), m_currency);
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
    // UBL states a credit note in a document of its own, whose names differ.
    const bool credit = inv.typeCode == QLatin1String("381");
    const QString root = credit ? QStringLiteral("CreditNote") : QStringLiteral("Invoice");
    const QString &ns = credit ? kUblCreditNoteNamespace : kUblInvoiceNamespace;
    x.w.writeStartDocument();
    x.w.writeDefaultNamespace(ns);
    x.w.writeNamespace(kCac, QStringLiteral("cac"));
    x.w.writeNamespace(kCbc, QStringLiteral("cbc"));
    x.w.writeStartElement(ns, root);
    x.header(inv, profile, credit, root);
    x.party(QStringLiteral("AccountingSupplierParty"), inv.seller, true);
    x.party(QStringLiteral("AccountingCustomerParty"), inv.buyer, false);
    x.deliveryAndPayment(inv);
    for (const AllowanceCharge &ac : inv.allowancesCharges)
        x.allowanceCharge(ac);
    x.taxTotal(inv);
    x.monetaryTotal(inv);
    for (const Line &line : inv.lines)
        x.line(line, credit, root);
    x.w.writeEndElement();
    x.w.writeEndDocument();
    return out;
}

} // namespace tabo::einvoice
