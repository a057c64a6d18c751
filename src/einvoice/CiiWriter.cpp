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

    QXmlStreamWriter w;
};

} // namespace

QByteArray writeCii(const Model &inv, Profile profile)
{
    QByteArray out;
    Cii x(&out);
    QXmlStreamWriter &w = x.w;
    w.writeStartDocument();
    w.writeNamespace(kRsm, QStringLiteral("rsm"));
    w.writeNamespace(kRam, QStringLiteral("ram"));
    w.writeNamespace(kQdt, QStringLiteral("qdt"));
    w.writeNamespace(kUdt, QStringLiteral("udt"));
    x.start(kRsm, QStringLiteral("CrossIndustryInvoice"));

    x.start(kRsm, QStringLiteral("ExchangedDocumentContext"));
    if (profile == Profile::XRechnung) {
        x.start(kRam, QStringLiteral("BusinessProcessSpecifiedDocumentContextParameter"));
        x.ram(QStringLiteral("ID"), kPeppolProcess);
        x.end();
    }
    x.start(kRam, QStringLiteral("GuidelineSpecifiedDocumentContextParameter"));
    x.ram(QStringLiteral("ID"), profile == Profile::XRechnung ? kXRechnungId : kEN16931Id);
    x.end();
    x.end();

    x.start(kRsm, QStringLiteral("ExchangedDocument"));
    x.ram(QStringLiteral("ID"), inv.number);
    x.ram(QStringLiteral("TypeCode"), inv.typeCode);
    x.date(QStringLiteral("IssueDateTime"), inv.issueDate);
    for (const QString &note : inv.notes) {
        x.start(kRam, QStringLiteral("IncludedNote"));
        x.ram(QStringLiteral("Content"), note);
        x.end();
    }
    x.end();

    x.start(kRsm, QStringLiteral("SupplyChainTradeTransaction"));
    for (const Line &line : inv.lines) {
        x.start(kRam, QStringLiteral("IncludedSupplyChainTradeLineItem"));
        x.start(kRam, QStringLiteral("AssociatedDocumentLineDocument"));
        x.ram(QStringLiteral("LineID"), line.id);
        x.end();
        x.start(kRam, QStringLiteral("SpecifiedTradeProduct"));
        x.ram(QStringLiteral("SellerAssignedID"), line.sellerId);
        x.ram(QStringLiteral("Name"), line.name);
        x.ram(QStringLiteral("Description"), line.description);
        x.end();
        x.start(kRam, QStringLiteral("SpecifiedLineTradeAgreement"));
        x.start(kRam, QStringLiteral("NetPriceProductTradePrice"));
        x.ram(QStringLiteral("ChargeAmount"), decimal(line.price));
        x.end();
        x.end();
        x.start(kRam, QStringLiteral("SpecifiedLineTradeDelivery"));
        x.ramAttr(QStringLiteral("BilledQuantity"), decimal(line.quantity), QStringLiteral("unitCode"), line.unitCode);
        x.end();
        x.start(kRam, QStringLiteral("SpecifiedLineTradeSettlement"));
        x.start(kRam, QStringLiteral("ApplicableTradeTax"));
        x.category(line.tax, false);
        x.end();
        x.start(kRam, QStringLiteral("SpecifiedTradeSettlementLineMonetarySummation"));
        x.ram(QStringLiteral("LineTotalAmount"), amount(line.net));
        x.end();
        x.end();
        x.end();
    }

    x.start(kRam, QStringLiteral("ApplicableHeaderTradeAgreement"));
    x.ram(QStringLiteral("BuyerReference"), inv.buyerReference);
    x.party(QStringLiteral("SellerTradeParty"), inv.seller, true);
    x.party(QStringLiteral("BuyerTradeParty"), inv.buyer, false);
    x.end();

    x.start(kRam, QStringLiteral("ApplicableHeaderTradeDelivery"));
    if (inv.deliveryDate.isValid()) {
        x.start(kRam, QStringLiteral("ActualDeliverySupplyChainEvent"));
        x.date(QStringLiteral("OccurrenceDateTime"), inv.deliveryDate);
        x.end();
    }
    x.end();

    x.start(kRam, QStringLiteral("ApplicableHeaderTradeSettlement"));
    x.ram(QStringLiteral("PaymentReference"), inv.number);
    x.ram(QStringLiteral("InvoiceCurrencyCode"), inv.currency);
    x.start(kRam, QStringLiteral("SpecifiedTradeSettlementPaymentMeans"));
    x.ram(QStringLiteral("TypeCode"), QStringLiteral("58")); // SEPA credit transfer
    x.start(kRam, QStringLiteral("PayeePartyCreditorFinancialAccount"));
    x.ram(QStringLiteral("IBANID"), inv.iban);
    x.ram(QStringLiteral("AccountName"), inv.seller.name);
    x.end();
    if (!inv.bic.isEmpty()) {
        x.start(kRam, QStringLiteral("PayeeSpecifiedCreditorFinancialInstitution"));
        x.ram(QStringLiteral("BICID"), inv.bic);
        x.end();
    }
    x.end();
    for (const TaxBreakdown &t : inv.taxes) {
        x.start(kRam, QStringLiteral("ApplicableTradeTax"));
        x.ram(QStringLiteral("CalculatedAmount"), amount(t.amount));
        x.ram(QStringLiteral("TypeCode"), QStringLiteral("VAT"));
        if (t.category.code != QLatin1String("S") && t.category.code != QLatin1String("Z"))
            x.ram(QStringLiteral("ExemptionReason"), t.category.exemptionReason);
        x.ram(QStringLiteral("BasisAmount"), amount(t.basis));
        x.ram(QStringLiteral("CategoryCode"), t.category.code);
        if (t.category.code != QLatin1String("O"))
            x.ram(QStringLiteral("RateApplicablePercent"), decimal(t.category.rate));
        x.end();
    }
    for (const AllowanceCharge &ac : inv.allowancesCharges) {
        x.start(kRam, QStringLiteral("SpecifiedTradeAllowanceCharge"));
        x.indicator(ac.charge);
        x.ram(QStringLiteral("ActualAmount"), amount(ac.amount));
        x.ram(QStringLiteral("Reason"), ac.reason);
        x.start(kRam, QStringLiteral("CategoryTradeTax"));
        x.category(ac.tax, false);
        x.end();
        x.end();
    }
    if (inv.dueDate.isValid() || !inv.paymentTerms.isEmpty()) {
        x.start(kRam, QStringLiteral("SpecifiedTradePaymentTerms"));
        x.ram(QStringLiteral("Description"), inv.paymentTerms);
        if (inv.dueDate.isValid())
            x.date(QStringLiteral("DueDateDateTime"), inv.dueDate);
        x.end();
    }
    x.start(kRam, QStringLiteral("SpecifiedTradeSettlementHeaderMonetarySummation"));
    x.ram(QStringLiteral("LineTotalAmount"), amount(inv.lineTotal));
    x.ram(QStringLiteral("ChargeTotalAmount"), amount(inv.chargeTotal));
    x.ram(QStringLiteral("AllowanceTotalAmount"), amount(inv.allowanceTotal));
    x.ram(QStringLiteral("TaxBasisTotalAmount"), amount(inv.taxExclusive));
    x.ramAttr(QStringLiteral("TaxTotalAmount"), amount(inv.taxTotal), QStringLiteral("currencyID"), inv.currency);
    if (inv.rounding != 0)
        x.ram(QStringLiteral("RoundingAmount"), amount(inv.rounding));
    x.ram(QStringLiteral("GrandTotalAmount"), amount(inv.taxInclusive));
    x.ram(QStringLiteral("TotalPrepaidAmount"), amount(inv.prepaid));
    x.ram(QStringLiteral("DuePayableAmount"), amount(inv.payable));
    x.end();
    if (!inv.precedingNumber.isEmpty()) {
        x.start(kRam, QStringLiteral("InvoiceReferencedDocument"));
        x.ram(QStringLiteral("IssuerAssignedID"), inv.precedingNumber);
        if (inv.precedingDate.isValid())
            x.date(QStringLiteral("FormattedIssueDateTime"), inv.precedingDate, kQdt);
        x.end();
    }
    x.end(); // settlement
    x.end(); // transaction
    x.end(); // invoice
    w.writeEndDocument();
    return out;
}

} // namespace tabo::einvoice
