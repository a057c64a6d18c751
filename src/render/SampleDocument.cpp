#include "render/SampleDocument.h"

#include "base/Clock.h"
#include "domain/Calculator.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "store/KeyedArchive.h"
#include "store/ObjectDictionary.h"

#include <QCoreApplication>
#include <QFile>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(SampleDocument)
};
} // namespace

namespace tabo {

namespace {

using P = Preferences;

struct SampleTax
{
    P::Key enabled;
    P::Key title;
    double rate;
    const char *fallbackTitle;
    int docPercent;
    int itemApplied;
    int itemPercent;
    int itemTitle;
};

const SampleTax kTaxes[3] = {
    {P::tax1Enabled, P::tax1Title, 0.10, "Federal Tax", Invoice::tax1Percent, Item::isTax1Applied, Item::tax1Percent,
     Item::tax1Title},
    {P::tax2Enabled, P::tax2Title, 0.05, "State Tax", Invoice::tax2Percent, Item::isTax2Applied, Item::tax2Percent,
     Item::tax2Title},
    {P::tax3Enabled, P::tax3Title, 0.01, "Third Tax", Invoice::tax3Percent, Item::isTax3Applied, Item::tax3Percent,
     Item::tax3Title},
};

} // namespace

SampleDocument::SampleDocument(const Preferences &prefs)
    : m_invoice(std::make_unique<Record>(nullptr, EntityId::Invoice, 0))
{
    Record &doc = *m_invoice;
    doc.setInt(Invoice::kind, 1);
    doc.setInt(Invoice::status, 0);
    doc.setText(Invoice::title, prefs.string(P::locInvoice));
    doc.setText(Invoice::currency, prefs.string(P::prefsCurrency));
    doc.setText(Invoice::address, Tr::tr("Mara Lindqvist\nOrchard Lane 7\nMillbrook CA\nUnited States"));
    doc.setText(Invoice::customerName, Tr::tr("Dear Mara Lindqvist"));
    doc.setText(Invoice::customerVATID, QStringLiteral("ATU99999999"));
    doc.setText(Invoice::clientNumber, QStringLiteral("1234"));
    doc.setText(Invoice::number, QStringLiteral("1234"));
    doc.setText(Invoice::subject, Tr::tr("A Lot of Things"));
    doc.setText(Invoice::dispatchNumber, QStringLiteral("DHL 123.45.6.789"));
    doc.setText(Invoice::conditions, prefs.string(P::tempInvConditions));
    doc.setText(Invoice::footer, prefs.string(P::tempInvFooter));
    doc.setText(Invoice::misc1, prefs.string(P::tempInvMisc));

    const Date today = now();
    doc.setDate(Invoice::date, today);
    doc.setDate(Invoice::dispatched, today);
    doc.setDate(Invoice::due, prefs.boolean(P::invHaveDueDate) ? today.addDays(int(prefs.integer(P::invDefaultDueDate)))
                                                               : today);

    for (const SampleTax &tax : kTaxes)
        doc.setNum(tax.docPercent, prefs.boolean(tax.enabled) ? tax.rate : 0.0);

    // Loading the (empty) relation first lets setToOne keep it in step, so
    // the calculation walks the sample lines like a stored document's.
    doc.toMany(Invoice::items);
    const QList<QVariantMap> lines = previewItems();
    for (qsizetype i = 0; i < lines.size(); ++i) {
        auto *item = new Record(nullptr, EntityId::Item, i + 1);
        m_items.append(item);
        ObjectDictionary::populateFromDictionary(*item, lines.at(i));
        for (const SampleTax &tax : kTaxes) {
            // A disabled tax must not show up in the lines either.
            const bool applied = item->boolean(tax.itemApplied) && prefs.boolean(tax.enabled);
            item->setBool(tax.itemApplied, applied);
            item->setNum(tax.itemPercent, applied ? doc.num(tax.docPercent) : 0.0);
            if (item->text(tax.itemTitle).isEmpty()) {
                const QString title = prefs.string(tax.title);
                item->setText(tax.itemTitle, title.isEmpty() ? QString::fromLatin1(tax.fallbackTitle) : title);
            }
        }
        item->setToOne(Item::invoice, &doc);
        Calculator::calculateItem(*item);
    }
    Calculator::calculateInvoice(doc, TaxSettings::from(prefs));
}

SampleDocument::~SampleDocument()
{
    qDeleteAll(m_items);
}

QList<QVariantMap> SampleDocument::previewItems()
{
    QFile file(QStringLiteral(":/designs/PreviewItems.plist"));
    const Result<QVariant> read = file.open(QIODevice::ReadOnly) ? KeyedArchive::unarchive(file.readAll())
                                                                  : Result<QVariant>(Error::file(file.errorString()));
    if (!read)
        qWarning("Unable to read the preview items: %s", qPrintable(read.error().message()));
    const QVariant &root = read.value();
    QList<QVariantMap> items;
    for (const QVariant &element : root.toMap().value(QStringLiteral("array")).toList()) {
        if (element.metaType() == QMetaType::fromType<QVariantMap>())
            items.append(element.toMap());
    }
    return items;
}

} // namespace tabo
