#include "einvoice/CiiWriter.h"

#include <QXmlStreamWriter>

namespace tabo::einvoice {

namespace {

const QString &kRsm = kCiiNamespace;
const QString kRam = QStringLiteral("urn:un:unece:uncefact:data:standard:ReusableAggregateBusinessInformationEntity:100");
const QString kUdt = QStringLiteral("urn:un:unece:uncefact:data:standard:UnqualifiedDataType:100");
const QString kQdt = QStringLiteral("urn:un:unece:uncefact:data:standard:QualifiedDataType:100");

// The element order below is the schema's: CII readers may rely on it.
class Cii
{
public:
    explicit Cii(QByteArray *out) : w(out) { w.setAutoFormatting(true); }

    void start(const QString &ns, const QString &name) { w.writeStartElement(ns, name); }
    void end() { w.writeEndElement(); }
    void ram(const QString &name, const QString &text)
    {
        if (!text.isEmpty())
            w.writeTextElement(kRam, name, text);
    }
    void ramAttr(const QString &name, const QString &text, const QString &attr, const QString &value)
    {
        if (text.isEmpty())
            return;
        w.writeStartElement(kRam, name);
        w.writeAttribute(attr, value);
        w.writeCharacters(text);
        w.writeEndElement();
    }
    void date(const QString &element, const QDate &day, const QString &ns = kUdt)
    {
        w.writeStartElement(kRam, element);
        w.writeStartElement(ns, QStringLiteral("DateTimeString"));
        w.writeAttribute(QStringLiteral("format"), QStringLiteral("102"));
        w.writeCharacters(day.toString(QStringLiteral("yyyyMMdd")));
        w.writeEndElement();
        w.writeEndElement();
    }
    void indicator(bool value)
    {
        start(kRam, QStringLiteral("ChargeIndicator"));
        w.writeTextElement(kUdt, QStringLiteral("Indicator"), value ? QStringLiteral("true") : QStringLiteral("false"));
        end();
    }
    void category(const TaxCategory &c, bool withReason)
    {
        ram(QStringLiteral("TypeCode"), QStringLiteral("VAT"));
        if (withReason)
            ram(QStringLiteral("ExemptionReason"), c.exemptionReason);
        ram(QStringLiteral("CategoryCode"), c.code);
        if (c.code != QLatin1String("O"))
            ram(QStringLiteral("RateApplicablePercent"), decimal(c.rate));
    }
    void party(const QString &element, const Party &p, bool seller)
    {
        start(kRam, element);
        ram(QStringLiteral("Name"), p.name);
        if (seller) {
            start(kRam, QStringLiteral("DefinedTradeContact"));
            ram(QStringLiteral("PersonName"), p.contactName);
            start(kRam, QStringLiteral("TelephoneUniversalCommunication"));
            ram(QStringLiteral("CompleteNumber"), p.contactPhone);
            end();
            start(kRam, QStringLiteral("EmailURIUniversalCommunication"));
            ram(QStringLiteral("URIID"), p.contactEmail);
            end();
            end();
        }
        start(kRam, QStringLiteral("PostalTradeAddress"));
        ram(QStringLiteral("PostcodeCode"), p.postcode);
        ram(QStringLiteral("LineOne"), p.street);
        ram(QStringLiteral("CityName"), p.city);
        ram(QStringLiteral("CountryID"), p.countryCode);
        end();
        if (!p.electronicAddress.isEmpty()) {
            start(kRam, QStringLiteral("URIUniversalCommunication"));
            ramAttr(QStringLiteral("URIID"), p.electronicAddress, QStringLiteral("schemeID"), p.electronicScheme);
            end();
        }
        for (const auto &[id, scheme] : {std::pair{p.vatId, QStringLiteral("VA")}, {p.taxNumber, QStringLiteral("FC")}}) {
            if (id.isEmpty() || (!seller && scheme == QLatin1String("FC")))
                continue;
            start(kRam, QStringLiteral("SpecifiedTaxRegistration"));
            ramAttr(QStringLiteral("ID"), id, QStringLiteral("schemeID"), scheme);
            end();
        }
        end();
    }

    // BG-2: the business process and the rule set (guideline) the file follows.
    void context(Profile profile)
    {
        start(kRsm, QStringLiteral("ExchangedDocumentContext"));
        if (profile == Profile::XRechnung) {
            start(kRam, QStringLiteral("BusinessProcessSpecifiedDocumentContextParameter"));
            ram(QStringLiteral("ID"), kPeppolProcess);
            end();
        }
        start(kRam, QStringLiteral("GuidelineSpecifiedDocumentContextParameter"));
        ram(QStringLiteral("ID"), profile == Profile::XRechnung ? kXRechnungId : kEN16931Id);
        end();
        end();
    }
    void document(const Model &inv)
    {
        start(kRsm, QStringLiteral("ExchangedDocument"));
        ram(QStringLiteral("ID"), inv.number);
        ram(QStringLiteral("TypeCode"), inv.typeCode);
        date(QStringLiteral("IssueDateTime"), inv.issueDate);
        for (const QString &note : inv.notes) {
            start(kRam, QStringLiteral("IncludedNote"));
            ram(QStringLiteral("Content"), note);
            end();
        }
        end();
    }
    void line(const Line &line)
    {
        start(kRam, QStringLiteral("IncludedSupplyChainTradeLineItem"));
        start(kRam, QStringLiteral("AssociatedDocumentLineDocument"));
        ram(QStringLiteral("LineID"), line.id);
        end();
        start(kRam, QStringLiteral("SpecifiedTradeProduct"));
        ram(QStringLiteral("SellerAssignedID"), line.sellerId);
        ram(QStringLiteral("Name"), line.name);
        ram(QStringLiteral("Description"), line.description);
        end();
        start(kRam, QStringLiteral("SpecifiedLineTradeAgreement"));
        start(kRam, QStringLiteral("NetPriceProductTradePrice"));
        ram(QStringLiteral("ChargeAmount"), decimal(line.price));
        end();
        end();
        start(kRam, QStringLiteral("SpecifiedLineTradeDelivery"));
        ramAttr(QStringLiteral("BilledQuantity"), decimal(line.quantity), QStringLiteral("unitCode"), line.unitCode);
        end();
        start(kRam, QStringLiteral("SpecifiedLineTradeSettlement"));
        start(kRam, QStringLiteral("ApplicableTradeTax"));
        category(line.tax, false);
        end();
        start(kRam, QStringLiteral("SpecifiedTradeSettlementLineMonetarySummation"));
        ram(QStringLiteral("LineTotalAmount"), amount(line.net));
        end();
        end();
        end();
    }
    void agreementAndDelivery(const Model &inv)
    {
        start(kRam, QStringLiteral("ApplicableHeaderTradeAgreement"));
        ram(QStringLiteral("BuyerReference"), inv.buyerReference);
        party(QStringLiteral("SellerTradeParty"), inv.seller, true);
        party(QStringLiteral("BuyerTradeParty"), inv.buyer, false);
        end();

        start(kRam, QStringLiteral("ApplicableHeaderTradeDelivery"));
        if (inv.deliveryDate.isValid()) {
            start(kRam, QStringLiteral("ActualDeliverySupplyChainEvent"));
            date(QStringLiteral("OccurrenceDateTime"), inv.deliveryDate);
            end();
        }
        end();
    }
    void paymentMeans(const Model &inv)
    {
        start(kRam, QStringLiteral("SpecifiedTradeSettlementPaymentMeans"));
        ram(QStringLiteral("TypeCode"), QStringLiteral("58")); // SEPA credit transfer
        start(kRam, QStringLiteral("PayeePartyCreditorFinancialAccount"));
        ram(QStringLiteral("IBANID"), inv.iban);
        ram(QStringLiteral("AccountName"), inv.seller.name);
        end();
        if (!inv.bic.isEmpty()) {
            start(kRam, QStringLiteral("PayeeSpecifiedCreditorFinancialInstitution"));
            ram(QStringLiteral("BICID"), inv.bic);
            end();
        }
        end();
    }
    void vatBreakdown(const TaxBreakdown &t)
    {
        start(kRam, QStringLiteral("ApplicableTradeTax"));
        ram(QStringLiteral("CalculatedAmount"), amount(t.amount));
        ram(QStringLiteral("TypeCode"), QStringLiteral("VAT"));
        if (t.category.code != QLatin1String("S") && t.category.code != QLatin1String("Z"))
            ram(QStringLiteral("ExemptionReason"), t.category.exemptionReason);
        ram(QStringLiteral("BasisAmount"), amount(t.basis));
        ram(QStringLiteral("CategoryCode"), t.category.code);
        if (t.category.code != QLatin1String("O"))
            ram(QStringLiteral("RateApplicablePercent"), decimal(t.category.rate));
        end();
    }
    void allowanceCharge(const AllowanceCharge &ac)
    {
        start(kRam, QStringLiteral("SpecifiedTradeAllowanceCharge"));
        indicator(ac.charge);
        ram(QStringLiteral("ActualAmount"), amount(ac.amount));
        ram(QStringLiteral("Reason"), ac.reason);
        start(kRam, QStringLiteral("CategoryTradeTax"));
        category(ac.tax, false);
        end();
        end();
    }
    void totals(const Model &inv)
    {
        start(kRam, QStringLiteral("SpecifiedTradeSettlementHeaderMonetarySummation"));
        ram(QStringLiteral("LineTotalAmount"), amount(inv.lineTotal));
        ram(QStringLiteral("ChargeTotalAmount"), amount(inv.chargeTotal));
        ram(QStringLiteral("AllowanceTotalAmount"), amount(inv.allowanceTotal));
        ram(QStringLiteral("TaxBasisTotalAmount"), amount(inv.taxExclusive));
        ramAttr(QStringLiteral("TaxTotalAmount"), amount(inv.taxTotal), QStringLiteral("currencyID"), inv.currency);
        if (inv.rounding != 0)
            ram(QStringLiteral("RoundingAmount"), amount(inv.rounding));
        ram(QStringLiteral("GrandTotalAmount"), amount(inv.taxInclusive));
        ram(QStringLiteral("TotalPrepaidAmount"), amount(inv.prepaid));
        ram(QStringLiteral("DuePayableAmount"), amount(inv.payable));
        end();
    }
    void settlement(const Model &inv)
    {
        start(kRam, QStringLiteral("ApplicableHeaderTradeSettlement"));
        ram(QStringLiteral("PaymentReference"), inv.number);
        ram(QStringLiteral("InvoiceCurrencyCode"), inv.currency);
        paymentMeans(inv);
        for (const TaxBreakdown &t : inv.taxes)
            vatBreakdown(t);
        for (const AllowanceCharge &ac : inv.allowancesCharges)
            allowanceCharge(ac);
        if (inv.dueDate.isValid() || !inv.paymentTerms.isEmpty()) {
            start(kRam, QStringLiteral("SpecifiedTradePaymentTerms"));
            ram(QStringLiteral("Description"), inv.paymentTerms);
            if (inv.dueDate.isValid())
                date(QStringLiteral("DueDateDateTime"), inv.dueDate);
            end();
        }
        totals(inv);
        if (!inv.precedingNumber.isEmpty()) {
            start(kRam, QStringLiteral("InvoiceReferencedDocument"));
            ram(QStringLiteral("IssuerAssignedID"), inv.precedingNumber);
            if (inv.precedingDate.isValid())
                date(QStringLiteral("FormattedIssueDateTime"), inv.precedingDate, kQdt);
            end();
        }
        end();
    }

    QXmlStreamWriter w;
};

} // namespace

QByteArray writeCii(const Model &inv, Profile profile)
{
    QByteArray out;
    Cii x(&out);
    x.w.writeStartDocument();
    x.w.writeNamespace(kRsm, QStringLiteral("rsm"));
    x.w.writeNamespace(kRam, QStringLiteral("ram"));
    x.w.writeNamespace(kQdt, QStringLiteral("qdt"));
    x.w.writeNamespace(kUdt, QStringLiteral("udt"));
    x.start(kRsm, QStringLiteral("CrossIndustryInvoice"));
    x.context(profile);
    x.document(inv);
    x.start(kRsm, QStringLiteral("SupplyChainTradeTransaction"));
    for (const Line &line : inv.lines)
        x.line(line);
    x.agreementAndDelivery(inv);
    x.settlement(inv);
    x.end(); // transaction
    x.end(); // invoice
    x.w.writeEndDocument();
    return out;
}

} // namespace tabo::einvoice
