#include "app/TemplateCommands.h"

#include "app/Workspace.h"
#include "app/Interaction.h"
#include "app/UndoHistory.h"
#include "base/Clock.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "store/Store.h"

#include <QCoreApplication>
#include <algorithm>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(TemplateCommands)
};
} // namespace

namespace tabo {

namespace {

using P = Preferences;

// Invoice and Template are generated from one attribute list, so an Invoice
// index addresses the same attribute of a Template.
static_assert(int(Invoice::AttrCount) == int(Template::AttrCount));
static_assert(int(Invoice::items) == int(Template::items));

void copyAttributes(Record &to, const Record &from, std::initializer_list<int> attrs)
{
    for (int a : attrs)
        to.setValue(a, from.value(a));
}

void cloneLines(const Record &from, Record *to, int ownerRel)
{
    const QList<Record *> lines = from.toMany(Invoice::items);
    for (const Record *line : lines)
        if (Record *copy = line->clone())
            copy->setToOne(ownerRel, to);
}

void resetReserved(Record &r)
{
    r.setInt(Invoice::misc2, 0);
    r.setSingle(Invoice::misc3, 0.0f);
    r.setBool(Invoice::misc4, false);
    r.setDate(Invoice::misc5, now());
}

} // namespace

Record *TemplateCommands::createNewTemplate(const QString &name, const QString &notes)
{
    const Record *doc = m_current.currentInvoice();
    Store *store = m_store.store();
    if (!doc || !store)
        return nullptr;
    const Preferences &prefs = m_prefs;
    Record *tmpl = store->insert(EntityId::Template);
    tmpl->setText(Invoice::uniqueID, name);
    tmpl->setText(Invoice::notes, notes);
    const QString empty = QStringLiteral("");

    if (prefs.boolean(P::templateIncludeClient)) {
        copyAttributes(*tmpl, *doc, {Invoice::address, Invoice::clientNumber, Invoice::customerTitle,
                                     Invoice::customerName, Invoice::customerVATID});
    } else {
        tmpl->setText(Invoice::address, empty);
        tmpl->setText(Invoice::clientNumber, empty);
    }

    if (prefs.boolean(P::templateIncludeTitle)) {
        copyAttributes(*tmpl, *doc, {Invoice::title, Invoice::subject});
    } else {
        tmpl->setText(Invoice::title, empty);
        tmpl->setText(Invoice::subject, empty);
    }

    if (prefs.boolean(P::templateIncludeItems))
        cloneLines(*doc, tmpl, Item::template_);

    if (prefs.boolean(P::templateIncludeShipping)) {
        copyAttributes(*tmpl, *doc, {Invoice::isShippingEnabled, Invoice::isShippingTax1Enabled,
                                     Invoice::isShippingTax2Enabled, Invoice::isShippingTax3Enabled,
                                     Invoice::hasShippingSubtitle, Invoice::shippingSubtitle, Invoice::shippingTitle,
                                     Invoice::shippingAmount});
    } else {
        for (int a : {Invoice::isShippingEnabled, Invoice::isShippingTax1Enabled, Invoice::isShippingTax2Enabled,
                      Invoice::isShippingTax3Enabled, Invoice::hasShippingSubtitle})
            tmpl->setBool(a, false);
        tmpl->setText(Invoice::shippingSubtitle, empty);
        tmpl->setText(Invoice::shippingTitle, empty);
        tmpl->setNum(Invoice::shippingAmount, 0.0);
    }

    if (prefs.boolean(P::templateIncludeDiscount)) {
        copyAttributes(*tmpl, *doc, {Invoice::isDiscountEnabled, Invoice::hasDiscountSubtitle,
                                     Invoice::discountSubtitle, Invoice::discountTitle, Invoice::discountAmount,
                                     Invoice::discountPercent, Invoice::discountKind});
    } else {
        tmpl->setBool(Invoice::isDiscountEnabled, false);
        tmpl->setBool(Invoice::hasDiscountSubtitle, false);
        tmpl->setText(Invoice::discountSubtitle, empty);
        tmpl->setText(Invoice::discountTitle, empty);
        tmpl->setNum(Invoice::discountAmount, 0.0);
        tmpl->setNum(Invoice::discountPercent, 0.0);
        tmpl->setInt(Invoice::discountKind, 0);
    }

    resetReserved(*tmpl);
    // A template never carries a document number.
    tmpl->setText(Invoice::dispatchNumber, empty);
    tmpl->setText(Invoice::number, empty);
    copyAttributes(*tmpl, *doc,
                   {Invoice::conditions, Invoice::footer, Invoice::misc1, Invoice::currency, Invoice::due,
                    Invoice::date, Invoice::paid, Invoice::sent, Invoice::dispatched, Invoice::kind,
                    Invoice::status, Invoice::tax1Kind, Invoice::tax2Kind, Invoice::tax3Kind, Invoice::isDispatched,
                    Invoice::amount, Invoice::subAmount, Invoice::paidAmount, Invoice::dueAmount,
                    Invoice::tax1Amount, Invoice::tax2Amount, Invoice::tax3Amount, Invoice::tax1Percent,
                    Invoice::tax2Percent, Invoice::tax3Percent, Invoice::miscString1, Invoice::miscString2,
                    Invoice::miscString3});
    m_store.save();
    return tmpl;
}

bool TemplateCommands::selectTemplate(Record *templateRecord)
{
    Record *doc = m_current.currentInvoice();
    Store *store = m_store.store();
    if (!doc || !templateRecord || !store)
        return false;
    if (doc->integer(Invoice::status) != 0) {
        m_ui.alert(Tr::tr("Error!"),
            Tr::tr("The selected invoice is marked as already sent. If you really need to make "
                   "changes, please set its status back to 'Created' first. Then you will also "
                   "be able to resend the modified invoice."),
            { Tr::tr("OK") });
        return false;
    }
    const UndoHistory::Step step(m_undo, doc, Tr::tr("Template"));

    const QList<Record *> oldLines = doc->toMany(Invoice::items);
    for (Record *line : oldLines)
        store->remove(line);
    cloneLines(*templateRecord, doc, Item::invoice);
    resetReserved(*doc);

    const Record &t = *templateRecord;
    copyAttributes(*doc, t, {Invoice::notes, Invoice::address, Invoice::clientNumber, Invoice::title,
                             Invoice::subject, Invoice::isShippingEnabled, Invoice::isShippingTax1Enabled,
                             Invoice::isShippingTax2Enabled, Invoice::isShippingTax3Enabled});
    // The flag, not the text, lands in the subtitle: documents filled this way
    // have always printed it so, and they must keep looking the same.
    doc->setValue(Invoice::shippingSubtitle, t.value(Invoice::hasShippingSubtitle));
    copyAttributes(*doc, t,
                   {Invoice::shippingTitle, Invoice::shippingAmount, Invoice::isDiscountEnabled,
                    Invoice::hasDiscountSubtitle, Invoice::discountSubtitle, Invoice::discountTitle,
                    Invoice::discountAmount, Invoice::discountPercent, Invoice::discountKind, Invoice::conditions,
                    Invoice::footer, Invoice::misc1, Invoice::dispatchNumber, Invoice::currency, Invoice::tax1Kind,
                    Invoice::tax2Kind, Invoice::tax3Kind, Invoice::amount, Invoice::subAmount, Invoice::paidAmount,
                    Invoice::dueAmount, Invoice::tax1Amount, Invoice::tax2Amount, Invoice::tax3Amount,
                    Invoice::tax1Percent, Invoice::tax2Percent, Invoice::tax3Percent});
    m_current.documentChanged(doc);
    return true;
}

void TemplateCommands::deleteTemplate(Record *templateRecord)
{
    Store *store = m_store.store();
    if (!templateRecord || !store)
        return;
    store->remove(templateRecord);
    m_store.save();
}

QList<Record *> TemplateCommands::templates() const
{
    Store *store = m_store.store();
    if (!store)
        return {};
    QList<Record *> list = store->all(EntityId::Template);
    std::stable_sort(list.begin(), list.end(), [](const Record *a, const Record *b) {
        const int c = a->text(Invoice::uniqueID).compare(b->text(Invoice::uniqueID), Qt::CaseInsensitive);
        return c != 0 ? c < 0 : a->id() < b->id();
    });
    return list;
}

Record *TemplateCommands::findTemplate(const QString &name) const
{
    const QList<Record *> list = templates();
    for (Record *t : list)
        if (t->text(Invoice::uniqueID) == name)
            return t;
    for (Record *t : list)
        if (t->text(Invoice::uniqueID).compare(name, Qt::CaseInsensitive) == 0)
            return t;
    return nullptr;
}

} // namespace tabo
