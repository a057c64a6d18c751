#include "einvoice/Reader.h"

#include "base/XmlTree.h"

#include "domain/UnitCodes.h"
#include "einvoice/CiiWriter.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QScopeGuard>

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFEmbeddedFileDocumentHelper.hh>
#include <qpdf/Pipeline.hh>

#include <QCoreApplication>
#include <cmath>
#include <memory>
#include <stdexcept>
#include <vector>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Reader)
};
} // namespace

namespace tabo::einvoice {

namespace {


// Amounts a received file states that cannot be numbers of money (NaN,
// infinities, 1e308, words): collected while reading, so the file is
// refused instead of showing them as 0.00 or an overflowed integer.
thread_local QStringList *t_unreadable = nullptr;
// Far above any invoice, and low enough that cents stay exact in a double.
constexpr double kMaxAmount = 1e13;

double readAmount(const QString &text, QStringView where)
{
    if (text.isEmpty())
        return 0.0;
    bool ok = false;
    const double v = text.toDouble(&ok);
    if (ok && std::isfinite(v) && std::fabs(v) <= kMaxAmount)
        return v;
    if (t_unreadable)
        *t_unreadable << QStringLiteral("%1 “%2”").arg(where.toString(), text.left(40));
    return 0.0;
}

using xml::Node;

double number(const Node &node, QStringView path, bool *present = nullptr)
{
    const QString text = node.value(path);
    if (present)
        *present = !text.isEmpty();
    return readAmount(text, path.mid(path.lastIndexOf(u'/') + 1));
}

// The tree of `xml`; its root's namespace goes to `rootNamespace`. The two
// syntaxes' names do not clash within a document, and the root's namespace
// is checked, so local names suffice.
Result<std::shared_ptr<Node>> parse(const QByteArray &xml, QString *rootNamespace)
{
    // Entities are how an XML file makes a reader expand or fetch more than
    // it holds; no e-invoice needs one.
    const Result<xml::Tree> tree = xml::parse(xml, 64,
        { Tr::tr("The file declares a DTD; e-invoices never do, so it is not read."),
            Tr::tr("The file nests its elements more deeply than any e-invoice does.") });
    if (!tree)
        return tree.error();
    *rootNamespace = tree.value().rootNamespace;
    return tree.value().root;
}

QDate day(const QString &text)
{
    QDate d = QDate::fromString(text.left(8), QStringLiteral("yyyyMMdd"));
    if (!d.isValid())
        d = QDate::fromString(text.left(10), Qt::ISODate);
    return d;
}

// A VAT category under the names of either syntax.
TaxCategory category(const Node *tax, QStringView code, QStringView rate, QStringView reason)
{
    TaxCategory c;
    if (!tax)
        return c;
    c.code = tax->value(code);
    c.rate = number(*tax, rate);
    c.exemptionReason = tax->value(reason);
    return c;
}

TaxCategory ciiCategory(const Node *tax)
{
    return category(tax, u"CategoryCode", u"RateApplicablePercent", u"ExemptionReason");
}

// An address and an electronic address under the names of either syntax.
struct AddressNames
{
    QStringView street, postcode, city, country;
};

void readAddress(const Node *address, const AddressNames &names, Party &party)
{
    if (!address)
        return;
    party.street = address->value(names.street);
    party.postcode = address->value(names.postcode);
    party.city = address->value(names.city);
    party.countryCode = address->value(names.country);
}

void readEndpoint(const Node *endpoint, Party &party)
{
    if (!endpoint)
        return;
    party.electronicAddress = endpoint->text.trimmed();
    party.electronicScheme = endpoint->attributes.value(QStringLiteral("schemeID"));
}

Party ciiParty(const Node *p)
{
    Party party;
    if (!p)
        return party;
    party.name = p->value(u"Name");
    readAddress(p->child(u"PostalTradeAddress"), {u"LineOne", u"PostcodeCode", u"CityName", u"CountryID"}, party);
    readEndpoint(p->at(u"URIUniversalCommunication/URIID"), party);
    for (const Node *reg : p->all(u"SpecifiedTaxRegistration")) {
        const Node *id = reg->child(u"ID");
        if (!id)
            continue;
        (id->attributes.value(QStringLiteral("schemeID")) == QLatin1String("VA") ? party.vatId : party.taxNumber) =
            id->text.trimmed();
    }
    party.contactName = p->value(u"DefinedTradeContact/PersonName");
    party.contactPhone = p->value(u"DefinedTradeContact/TelephoneUniversalCommunication/CompleteNumber");
    party.contactEmail = p->value(u"DefinedTradeContact/EmailURIUniversalCommunication/URIID");
    return party;
}

Line ciiLine(const Node *item)
{
    Line line;
    line.id = item->value(u"AssociatedDocumentLineDocument/LineID");
    line.name = item->value(u"SpecifiedTradeProduct/Name");
    line.description = item->value(u"SpecifiedTradeProduct/Description");
    line.sellerId = item->value(u"SpecifiedTradeProduct/SellerAssignedID");
    line.price = number(*item, u"SpecifiedLineTradeAgreement/NetPriceProductTradePrice/ChargeAmount");
    if (const Node *base = item->at(u"SpecifiedLineTradeAgreement/NetPriceProductTradePrice/BasisQuantity"))
        line.baseQuantity = readAmount(base->text.trimmed(), u"BasisQuantity");
    if (const Node *settlement = item->child(u"SpecifiedLineTradeSettlement"))
        for (const Node *ac : settlement->all(u"SpecifiedTradeAllowanceCharge")) {
            const double amount = number(*ac, u"ActualAmount");
            line.adjustment += ac->value(u"ChargeIndicator/Indicator") == QLatin1String("true") ? amount : -amount;
        }
    if (const Node *q = item->at(u"SpecifiedLineTradeDelivery/BilledQuantity")) {
        line.quantity = readAmount(q->text.trimmed(), u"BilledQuantity");
        line.unitCode = q->attributes.value(QStringLiteral("unitCode"));
    }
    line.net
        = number(*item, u"SpecifiedLineTradeSettlement/SpecifiedTradeSettlementLineMonetarySummation/LineTotalAmount");
    line.tax = ciiCategory(item->at(u"SpecifiedLineTradeSettlement/ApplicableTradeTax"));
    return line;
}

// False when the grand total or the amount due is not stated.
bool readCiiTotals(const Node *sum, Model &m)
{
    bool grand = false, due = false;
    if (!sum)
        return false;
    m.lineTotal = number(*sum, u"LineTotalAmount");
    m.chargeTotal = number(*sum, u"ChargeTotalAmount");
    m.allowanceTotal = number(*sum, u"AllowanceTotalAmount");
    m.taxExclusive = number(*sum, u"TaxBasisTotalAmount");
    // The tax total may be stated twice, once in a tax currency.
    for (const Node *t : sum->all(u"TaxTotalAmount"))
        if (t->attributes.value(QStringLiteral("currencyID"), m.currency) == m.currency)
            m.taxTotal = readAmount(t->text.trimmed(), u"TaxTotalAmount");
    m.rounding = number(*sum, u"RoundingAmount");
    m.taxInclusive = number(*sum, u"GrandTotalAmount", &grand);
    m.prepaid = number(*sum, u"TotalPrepaidAmount");
    m.payable = number(*sum, u"DuePayableAmount", &due);
    return grand && due;
}

Error readCii(const Node &root, Received *out)
{
    Model &m = out->invoice;
    out->guideline = root.value(u"ExchangedDocumentContext/GuidelineSpecifiedDocumentContextParameter/ID");
    m.number = root.value(u"ExchangedDocument/ID");
    m.typeCode = root.value(u"ExchangedDocument/TypeCode");
    m.issueDate = day(root.value(u"ExchangedDocument/IssueDateTime/DateTimeString"));
    if (const Node *doc = root.child(u"ExchangedDocument"))
        for (const Node *note : doc->all(u"IncludedNote"))
            m.notes << note->value(u"Content");
    const Node *tx = root.child(u"SupplyChainTradeTransaction");
    if (!tx) {
        return Error::file(Tr::tr("The CII file has no trade transaction: it holds no invoice."));
    }
    for (const Node *item : tx->all(u"IncludedSupplyChainTradeLineItem"))
        m.lines << ciiLine(item);
    const Node *agreement = tx->child(u"ApplicableHeaderTradeAgreement");
    if (agreement) {
        m.buyerReference = agreement->value(u"BuyerReference");
        m.seller = ciiParty(agreement->child(u"SellerTradeParty"));
        m.buyer = ciiParty(agreement->child(u"BuyerTradeParty"));
    }
    m.deliveryDate = day(tx->value(u"ApplicableHeaderTradeDelivery/ActualDeliverySupplyChainEvent/OccurrenceDateTime/DateTimeString"));
    const Node *settlement = tx->child(u"ApplicableHeaderTradeSettlement");
    if (!settlement) {
        return Error::file(Tr::tr("The CII file has no settlement: its totals are missing."));
    }
    m.currency = settlement->value(u"InvoiceCurrencyCode");
    if (const Node *means = settlement->child(u"SpecifiedTradeSettlementPaymentMeans")) {
        m.iban = means->value(u"PayeePartyCreditorFinancialAccount/IBANID");
        m.bic = means->value(u"PayeeSpecifiedCreditorFinancialInstitution/BICID");
    }
    for (const Node *t : settlement->all(u"ApplicableTradeTax"))
        m.taxes << TaxBreakdown { ciiCategory(t), number(*t, u"BasisAmount"), number(*t, u"CalculatedAmount") };
    for (const Node *ac : settlement->all(u"SpecifiedTradeAllowanceCharge")) {
        AllowanceCharge a;
        a.charge = ac->value(u"ChargeIndicator/Indicator") == QLatin1String("true");
        a.amount = number(*ac, u"ActualAmount");
        a.reason = ac->value(u"Reason");
        a.tax = ciiCategory(ac->child(u"CategoryTradeTax"));
        m.allowancesCharges << a;
    }
    if (const Node *terms = settlement->child(u"SpecifiedTradePaymentTerms")) {
        m.paymentTerms = terms->value(u"Description");
        m.dueDate = day(terms->value(u"DueDateDateTime/DateTimeString"));
    }
    if (!readCiiTotals(settlement->child(u"SpecifiedTradeSettlementHeaderMonetarySummation"), m))
        return Error::file(Tr::tr("The invoice states no grand total or amount due: its totals are missing."));
    m.precedingNumber = settlement->value(u"InvoiceReferencedDocument/IssuerAssignedID");
    m.precedingDate = day(settlement->value(u"InvoiceReferencedDocument/FormattedIssueDateTime/DateTimeString"));
    return {};
}

TaxCategory ublCategory(const Node *c)
{
    return category(c, u"ID", u"Percent", u"TaxExemptionReason");
}

Party ublParty(const Node *outer)
{
    Party party;
    const Node *p = outer ? outer->child(u"Party") : nullptr;
    if (!p)
        return party;
    party.name = p->value(u"PartyLegalEntity/RegistrationName");
    if (party.name.isEmpty())
        party.name = p->value(u"PartyName/Name");
    readAddress(p->child(u"PostalAddress"), {u"StreetName", u"PostalZone", u"CityName", u"Country/IdentificationCode"},
                party);
    readEndpoint(p->child(u"EndpointID"), party);
    for (const Node *scheme : p->all(u"PartyTaxScheme"))
        (scheme->value(u"TaxScheme/ID") == QLatin1String("VAT") ? party.vatId : party.taxNumber) =
            scheme->value(u"CompanyID");
    party.contactName = p->value(u"Contact/Name");
    party.contactPhone = p->value(u"Contact/Telephone");
    party.contactEmail = p->value(u"Contact/ElectronicMail");
    return party;
}

Line ublLine(const Node *item, bool credit)
{
    Line line;
    line.id = item->value(u"ID");
    line.name = item->value(u"Item/Name");
    line.description = item->value(u"Item/Description");
    line.sellerId = item->value(u"Item/SellersItemIdentification/ID");
    if (const Node *base = item->at(u"Price/BaseQuantity"))
        line.baseQuantity = readAmount(base->text.trimmed(), u"BaseQuantity");
    for (const Node *ac : item->all(u"AllowanceCharge")) {
        const double amount = number(*ac, u"Amount");
        line.adjustment += ac->value(u"ChargeIndicator") == QLatin1String("true") ? amount : -amount;
    }
    if (const Node *q = item->child(credit ? u"CreditedQuantity" : u"InvoicedQuantity")) {
        line.quantity = readAmount(q->text.trimmed(), credit ? u"CreditedQuantity" : u"InvoicedQuantity");
        line.unitCode = q->attributes.value(QStringLiteral("unitCode"));
    }
    line.net = number(*item, u"LineExtensionAmount");
    line.price = number(*item, u"Price/PriceAmount");
    line.tax = ublCategory(item->at(u"Item/ClassifiedTaxCategory"));
    return line;
}

Error readUbl(const Node &root, bool credit, Received *out)
{
    Model &m = out->invoice;
    out->guideline = root.value(u"CustomizationID");
    m.number = root.value(u"ID");
    m.typeCode = root.value(credit ? u"CreditNoteTypeCode" : u"InvoiceTypeCode");
    m.issueDate = day(root.value(u"IssueDate"));
    m.dueDate = day(root.value(u"DueDate"));
    for (const Node *note : root.all(u"Note"))
        m.notes << note->text.trimmed();
    m.currency = root.value(u"DocumentCurrencyCode");
    m.buyerReference = root.value(u"BuyerReference");
    m.precedingNumber = root.value(u"BillingReference/InvoiceDocumentReference/ID");
    m.precedingDate = day(root.value(u"BillingReference/InvoiceDocumentReference/IssueDate"));
    m.seller = ublParty(root.child(u"AccountingSupplierParty"));
    m.buyer = ublParty(root.child(u"AccountingCustomerParty"));
    m.deliveryDate = day(root.value(u"Delivery/ActualDeliveryDate"));
    if (const Node *means = root.child(u"PaymentMeans")) {
        m.iban = means->value(u"PayeeFinancialAccount/ID");
        m.bic = means->value(u"PayeeFinancialAccount/FinancialInstitutionBranch/ID");
        if (!m.dueDate.isValid())
            m.dueDate = day(means->value(u"PaymentDueDate"));
    }
    m.paymentTerms = root.value(u"PaymentTerms/Note");
    for (const Node *ac : root.all(u"AllowanceCharge")) {
        AllowanceCharge a;
        a.charge = ac->value(u"ChargeIndicator") == QLatin1String("true");
        a.amount = number(*ac, u"Amount");
        a.reason = ac->value(u"AllowanceChargeReason");
        a.tax = ublCategory(ac->child(u"TaxCategory"));
        m.allowancesCharges << a;
    }
    for (const Node *total : root.all(u"TaxTotal")) {
        if (total->all(u"TaxSubtotal").isEmpty())
            continue; // the total in a tax currency
        m.taxTotal = number(*total, u"TaxAmount");
        for (const Node *t : total->all(u"TaxSubtotal"))
            m.taxes << TaxBreakdown { ublCategory(t->child(u"TaxCategory")), number(*t, u"TaxableAmount"),
                number(*t, u"TaxAmount") };
    }
    const Node *sum = root.child(u"LegalMonetaryTotal");
    bool grand = false, due = false;
    if (sum) {
        m.lineTotal = number(*sum, u"LineExtensionAmount");
        m.taxExclusive = number(*sum, u"TaxExclusiveAmount");
        m.taxInclusive = number(*sum, u"TaxInclusiveAmount", &grand);
        m.allowanceTotal = number(*sum, u"AllowanceTotalAmount");
        m.chargeTotal = number(*sum, u"ChargeTotalAmount");
        m.prepaid = number(*sum, u"PrepaidAmount");
        m.rounding = number(*sum, u"PayableRoundingAmount");
        m.payable = number(*sum, u"PayableAmount", &due);
    }
    for (const Node *payment : root.all(u"PrepaidPayment"))
        m.thirdParty += number(*payment, u"PaidAmount");
    if (!grand || !due) {
        return Error::file(Tr::tr("The invoice states no total with VAT or amount due: its totals are missing."));
    }
    for (const Node *item : root.all(credit ? u"CreditNoteLine" : u"InvoiceLine"))
        m.lines << ublLine(item, credit);
    return {};
}

// Collects a stream's decoded bytes up to the limit the XML path has, and
// stops the decoder there: a few hundred kilobytes of PDF can inflate to
// gigabytes.
class BoundedSink : public Pipeline
{
public:
    BoundedSink()
        : Pipeline("bounded", nullptr)
    {
    }
    void write(unsigned char const *data, size_t len) override
    {
        if (m_bytes.size() + qint64(len) > kMaxReceivedBytes) {
            m_overflow = true;
            throw std::length_error("attachment larger than the limit");
        }
        m_bytes.append(reinterpret_cast<const char *>(data), qsizetype(len));
    }
    void finish() override {}
    bool overflow() const { return m_overflow; }
    const QByteArray &bytes() const { return m_bytes; }

private:
    QByteArray m_bytes;
    bool m_overflow = false;
};

// The XML a PDF carries: Factur-X's and ZUGFeRD's names first, then any XML.
Result<QByteArray> attachedXml(const QByteArray &pdf)
{
    try {
        QPDF doc;
        doc.setSuppressWarnings(true);
        doc.processMemoryFile("received", pdf.constData(), size_t(pdf.size()));
        QPDFEmbeddedFileDocumentHelper files(doc);
        std::shared_ptr<QPDFFileSpecObjectHelper> chosen;
        for (const char *name : {"factur-x.xml", "zugferd-invoice.xml", "ZUGFeRD-invoice.xml", "xrechnung.xml"})
            if ((chosen = files.getEmbeddedFile(name)))
                break;
        if (!chosen)
            for (const auto &[name, attachment] : files.getEmbeddedFiles())
                if (QString::fromStdString(name).endsWith(QLatin1String(".xml"), Qt::CaseInsensitive)) {
                    chosen = attachment;
                    break;
                }
        if (!chosen) {
            return Error::file(Tr::tr("The PDF carries no e-invoice: it has no XML attachment."));
        }
        BoundedSink sink;
        bool filtered = false;
        bool ok = false;
        try {
            ok = chosen->getEmbeddedFileStream().pipeStreamData(&sink, &filtered, 0, qpdf_dl_generalized, true);
        } catch (const std::length_error &) {
        }
        if (sink.overflow()) {
            return Error::file(Tr::tr("The PDF's e-invoice unpacks to more than %1 MB; e-invoices are far "
                                      "smaller, so it is not read.")
                                   .arg(kMaxReceivedBytes / (1024 * 1024)));
        }
        if (!ok) {
            return Error::file(Tr::tr("The PDF's e-invoice attachment cannot be unpacked."));
        }
        return sink.bytes();
    } catch (const std::bad_alloc &) {
        return Error::file(Tr::tr("The PDF is too large to be read."));
    } catch (const std::exception &e) {
        return Error::file(Tr::tr("The PDF cannot be read: %1").arg(QString::fromUtf8(e.what())));
    }
}

} // namespace

Result<Received> readReceived(const QByteArray &data)
{
    Received out;
    QStringList unreadable;
    t_unreadable = &unreadable;
    const auto stopCollecting = qScopeGuard([] { t_unreadable = nullptr; });
    QByteArray xml = data;
    if (data.startsWith("%PDF")) {
        Result<QByteArray> attached = attachedXml(data);
        if (!attached)
            return attached.error();
        xml = attached.value();
        out.fromPdf = true;
    }
    QString ns;
    const Result<std::shared_ptr<Node>> parsed = parse(xml, &ns);
    if (!parsed)
        return parsed.error();
    const Node &root = *parsed.value();
    Error e;
    if (root.name == QLatin1String("CrossIndustryInvoice") && ns == kCiiNamespace) {
        out.syntax = Received::Syntax::CII;
        e = readCii(root, &out);
    } else if ((root.name == QLatin1String("Invoice") && ns == kUblInvoiceNamespace)
               || (root.name == QLatin1String("CreditNote") && ns == kUblCreditNoteNamespace)) {
        out.syntax = Received::Syntax::UBL;
        e = readUbl(root, root.name == QLatin1String("CreditNote"), &out);
    } else {
        e = Error::file(Tr::tr("This is not an e-invoice: its root is “%1” in the namespace “%2”, not a CII "
                               "or UBL invoice.")
                            .arg(root.name, ns));
    }
    if (!e && !unreadable.isEmpty())
        e = Error::file(Tr::tr("The e-invoice states amounts that are no readable amounts of money: %1.")
                            .arg(unreadable.join(QStringLiteral(", "))));
    if (e)
        return e;
    return out;
}

Result<Received> readReceivedFile(const QString &path)
{
    const QFileInfo info(path);
    if (!info.isFile())
        return Error::file(Tr::tr("There is no file “%1”.").arg(path));
    if (info.size() > kMaxReceivedBytes)
        return Error::file(Tr::tr("“%1” is %2 MB large; e-invoices are far smaller, so it is not read.")
                               .arg(info.fileName())
                               .arg(info.size() / (1024 * 1024)));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Error::file(Tr::tr("“%1” cannot be read: %2").arg(path, file.errorString()));
    return readReceived(file.readAll());
}

QStringList checkTotals(const Model &m)
{
    QStringList problems;
    const auto c = [](double v) { return std::llround(v * 100.0); };
    const auto expect = [&](const QString &what, double stated, qint64 computed) {
        if (c(stated) != computed)
            problems
                << Tr::tr("%1 is %2, but its parts add up to %3.").arg(what, amount(stated), amount(computed / 100.0));
    };
    qint64 lines = 0;
    for (const Line &l : m.lines) {
        lines += c(l.net);
        // Quantity × price (per base quantity) and the line's own allowances
        // and charges make its total; the standard rounds that to the cent
        // once, so half a cent each way of the exact product is its tolerance.
        const double base = l.baseQuantity > 0 ? l.baseQuantity : 1.0;
        const double exact = l.quantity * l.price / base + l.adjustment;
        if (std::fabs(exact - l.net) > 0.005 + 1e-9 * std::fabs(exact))
            problems << Tr::tr("Line %1 (%2) is %3, but its quantity %4 × price %5 makes %6.")
                            .arg(l.id, l.name, amount(l.net), QString::number(l.quantity, 'g', 12),
                                QString::number(l.price, 'g', 12), amount(exact));
    }
    expect(Tr::tr("The sum of the lines"), m.lineTotal, lines);
    qint64 allowances = 0, charges = 0;
    for (const AllowanceCharge &a : m.allowancesCharges)
        (a.charge ? charges : allowances) += c(a.amount);
    expect(Tr::tr("The allowances"), m.allowanceTotal, allowances);
    expect(Tr::tr("The charges"), m.chargeTotal, charges);
    expect(Tr::tr("The total without VAT"), m.taxExclusive, c(m.lineTotal) - c(m.allowanceTotal) + c(m.chargeTotal));
    qint64 tax = 0;
    for (const TaxBreakdown &t : m.taxes)
        tax += c(t.amount);
    expect(Tr::tr("The VAT"), m.taxTotal, tax);
    expect(Tr::tr("The total with VAT"), m.taxInclusive, c(m.taxExclusive) + c(m.taxTotal));
    expect(Tr::tr("The amount due"), m.payable, c(m.taxInclusive) - c(m.prepaid) + c(m.rounding) + c(m.thirdParty));
    return problems;
}

} // namespace tabo::einvoice

namespace tabo::einvoice {

namespace {

QString esc(const QString &text)
{
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>"));
}

QString partyBlock(const QString &heading, const Party &p)
{
    QStringList lines{QStringLiteral("<b>%1</b>").arg(esc(p.name))};
    for (const QString &line : {p.street, QString(p.postcode + QLatin1Char(' ') + p.city).trimmed(), p.countryCode})
        if (!line.isEmpty())
            lines << esc(line);
    if (!p.vatId.isEmpty())
        lines << Tr::tr("VAT ID %1").arg(esc(p.vatId));
    if (!p.taxNumber.isEmpty())
        lines << Tr::tr("Tax number %1").arg(esc(p.taxNumber));
    if (!p.electronicAddress.isEmpty())
        lines << Tr::tr("E-invoices: %1")
                     .arg(esc(p.electronicAddress)
                         + QStringLiteral(" <span class=\"muted\">(%1)</span>").arg(esc(p.electronicScheme)));
    const QStringList contact{p.contactName, p.contactPhone, p.contactEmail};
    if (!QString(contact.join(QString())).trimmed().isEmpty())
        lines << Tr::tr("Contact: %1")
                     .arg(esc(QStringList(contact)
                                  .filter(QRegularExpression(QStringLiteral("\\S")))
                                  .join(QStringLiteral(" · "))));
    return QStringLiteral("<div class=\"party\"><h3>%1</h3>%2</div>").arg(heading, lines.join(QStringLiteral("<br>")));
}

QString category(const TaxCategory &c)
{
    return c.code == QLatin1String("O") ? QStringLiteral("O") : QStringLiteral("%1 %2 %").arg(esc(c.code), decimal(c.rate));
}

} // namespace

namespace {

QString moneyIn(const Model &m, double v)
{
    return amount(v) + QLatin1Char(' ') + esc(m.currency);
}

QString viewHead(const Received &r)
{
    const Model &m = r.invoice;
    const bool credit = m.typeCode == QLatin1String("381");
    QString html = QStringLiteral(
        "<!DOCTYPE html><html><head><meta charset=\"utf-8\"><title>%1</title><style>"
        "body{font-family:'DejaVu Sans','Liberation Sans',sans-serif;font-size:9pt;color:#222;margin:0}"
        "h1{font-size:16pt;font-weight:normal;margin:0 0 1mm}h3{font-size:8pt;text-transform:uppercase;"
        "letter-spacing:.05em;color:#666;margin:0 0 1mm}.muted{color:#777}.meta{margin-bottom:6mm}"
        ".parties{display:flex;gap:10mm;margin-bottom:6mm}.party{flex:1}"
        "table{border-collapse:collapse;width:100%;margin-bottom:5mm}th{text-align:left;font-weight:normal;"
        "color:#666;border-bottom:.75pt solid #999;padding:1mm}td{padding:1mm;vertical-align:top;"
        "border-bottom:.25pt solid #ddd}td.n,th.n{text-align:right;white-space:nowrap}"
        "table.totals{width:auto;margin-left:auto}table.totals td{border:none}tr.grand td{font-weight:bold;"
        "border-top:.75pt solid #222}.box{border:.5pt solid #bbb;padding:2mm 3mm;margin-bottom:4mm}"
        "</style></head><body>")
                       .arg(esc(m.number));
    const QString received = Tr::tr("Received e-invoice · %1%2 · %3")
                                 .arg(r.syntaxName(), r.fromPdf ? Tr::tr(" in a PDF") : QString(), esc(r.guideline));
    html += QStringLiteral("<div class=\"meta\"><h1>%1 %2</h1><span class=\"muted\">%3</span><br>")
                .arg(credit ? Tr::tr("Credit note") : Tr::tr("Invoice"), esc(m.number), received);
    QStringList dates { Tr::tr("Date %1").arg(m.issueDate.toString(Qt::ISODate)) };
    if (m.dueDate.isValid())
        dates << Tr::tr("due %1").arg(m.dueDate.toString(Qt::ISODate));
    if (m.deliveryDate.isValid())
        dates << Tr::tr("delivered %1").arg(m.deliveryDate.toString(Qt::ISODate));
    if (!m.buyerReference.isEmpty())
        dates << Tr::tr("buyer reference %1").arg(esc(m.buyerReference));
    if (!m.precedingNumber.isEmpty())
        dates << Tr::tr("for invoice %1 %2").arg(esc(m.precedingNumber), m.precedingDate.toString(Qt::ISODate));
    html += dates.join(QStringLiteral(" · ")) + QStringLiteral("</div>");
    html += QStringLiteral("<div class=\"parties\">%1%2</div>")
                .arg(partyBlock(Tr::tr("Seller"), m.seller), partyBlock(Tr::tr("Buyer"), m.buyer));
    return html;
}

QString viewLines(const Model &m)
{
    QString html = QStringLiteral("<table><tr><th>#</th><th>%1</th><th class=\"n\">%2</th><th class=\"n\">%3</th>"
                                  "<th class=\"n\">%4</th><th class=\"n\">%5</th></tr>")
                       .arg(Tr::tr("Item"), Tr::tr("Quantity"), Tr::tr("Price"), Tr::tr("VAT"), Tr::tr("Net"));
    for (const Line &l : m.lines)
        html += QStringLiteral("<tr><td>%1</td><td>%2%3%4</td><td class=\"n\">%5 %6</td><td class=\"n\">%7</td>"
                               "<td class=\"n\">%8</td><td class=\"n\">%9</td></tr>")
                    .arg(esc(l.id), esc(l.name),
                         l.description.isEmpty() ? QString() : QStringLiteral("<br><span class=\"muted\">%1</span>").arg(esc(l.description)),
                         l.sellerId.isEmpty() ? QString() : QStringLiteral(" <span class=\"muted\">(%1)</span>").arg(esc(l.sellerId)),
                         decimal(l.quantity), esc(UnitCodes::displayName(l.unitCode)), decimal(l.price), category(l.tax),
                         moneyIn(m, l.net));
    return html + QStringLiteral("</table>");
}

QString viewTotals(const Model &m)
{
    const auto money = [&m](double v) { return moneyIn(m, v); };
    QString html = QStringLiteral("<table class=\"totals\">");
    const auto row = [&html](const QString &label, const QString &value, const char *cls = "") {
        html += QStringLiteral("<tr class=\"%3\"><td>%1</td><td class=\"n\">%2</td></tr>").arg(label, value, QLatin1String(cls));
    };
    row(Tr::tr("Sum of lines"), money(m.lineTotal));
    for (const AllowanceCharge &a : m.allowancesCharges)
        row(QStringLiteral("%1 %2 <span class=\"muted\">(%3)</span>")
                .arg(a.charge ? Tr::tr("Charge") : Tr::tr("Allowance"), esc(a.reason), category(a.tax)),
            (a.charge ? QString() : QStringLiteral("−")) + money(a.amount));
    row(Tr::tr("Total without VAT"), money(m.taxExclusive));
    for (const TaxBreakdown &t : m.taxes)
        row(Tr::tr("VAT %1 on %2%3")
                .arg(category(t.category), money(t.basis),
                    t.category.exemptionReason.isEmpty()
                        ? QString()
                        : QStringLiteral("<br><span class=\"muted\">%1</span>").arg(esc(t.category.exemptionReason))),
            money(t.amount));
    row(Tr::tr("Total with VAT"), money(m.taxInclusive));
    if (m.prepaid != 0)
        row(Tr::tr("Paid in advance"), money(m.prepaid));
    if (m.thirdParty != 0)
        row(Tr::tr("Paid by third parties"), money(m.thirdParty));
    if (m.rounding != 0)
        row(Tr::tr("Rounding"), money(m.rounding));
    row(Tr::tr("Amount due"), money(m.payable), "grand");
    return html + QStringLiteral("</table>");
}

QString viewBoxes(const Model &m)
{
    QString html;
    QStringList payment;
    if (!m.iban.isEmpty())
        payment << QStringLiteral("IBAN %1").arg(esc(m.iban));
    if (!m.bic.isEmpty())
        payment << QStringLiteral("BIC %1").arg(esc(m.bic));
    if (!m.paymentTerms.isEmpty())
        payment << esc(m.paymentTerms);
    if (!payment.isEmpty())
        html += QStringLiteral("<div class=\"box\"><h3>%1</h3>%2</div>")
                    .arg(Tr::tr("Payment"), payment.join(QStringLiteral("<br>")));
    if (!m.notes.isEmpty())
        html += QStringLiteral("<div class=\"box\"><h3>%1</h3>%2</div>")
                    .arg(Tr::tr("Notes"), esc(m.notes.join(QLatin1Char('\n'))));
    const QStringList problems = checkTotals(m);
    if (!problems.isEmpty())
        html += QStringLiteral("<div class=\"box\"><h3>%1</h3>%2</div>")
                    .arg(Tr::tr("Its sums do not add up"), esc(problems.join(QLatin1Char('\n'))));
    return html;
}

} // namespace

QString viewPage(const Received &r)
{
    return viewHead(r) + viewLines(r.invoice) + viewTotals(r.invoice) + viewBoxes(r.invoice)
           + QStringLiteral("</body></html>");
}

} // namespace tabo::einvoice
