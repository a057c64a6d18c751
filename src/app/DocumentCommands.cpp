#include "app/DocumentCommands.h"

#include "app/Interaction.h"
#include "app/UndoHistory.h"
#include "app/Workspace.h"
#include "base/Clock.h"
#include "domain/Contacts.h"
#include "domain/DocumentList.h"
#include "domain/Numbering.h"
#include "domain/Record.h"
#include "domain/UniqueId.h"
#include "prefs/Preferences.h"
#include "render/Formatters.h"
#include "store/Store.h"
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(DocumentCommands)
};
} // namespace

namespace tabo {

namespace {

using P = Preferences;

QString kOk()
{
    return Tr::tr("OK");
}
QString kCancel()
{
    return Tr::tr("Cancel");
}

QString prefText(const Preferences &prefs, P::Key key)
{
    return prefs.contains(key) ? prefs.string(key) : QStringLiteral("");
}

} // namespace

Record *DocumentCommands::duplicateInvoice(bool toTheCent)
{
    Record *source = m_current.currentInvoice();
    if (!source || !m_access.store())
        return nullptr;
    Preferences &prefs = m_prefs;
    m_access.syncWithStore();
    m_list.setFilterTag(0);

    static const QStringList kNotCopied = {
        QStringLiteral("dueAmount"), QStringLiteral("paidAmount"),     QStringLiteral("dispatched"),
        QStringLiteral("sent"),      QStringLiteral("paid"),           QStringLiteral("due"),
        QStringLiteral("date"),      QStringLiteral("isDispatched"),   QStringLiteral("number"),
        QStringLiteral("dispatchNumber"), QStringLiteral("uniqueID"),  QStringLiteral("status")};
    Record *copy = source->cloneBySkippingAttributes(kNotCopied);
    if (!copy)
        return nullptr;
    const QList<Record *> lines = source->toMany(Invoice::items);
    for (const Record *line : lines)
        if (Record *lineCopy = line->clone())
            lineCopy->setToOne(Item::invoice, copy);

    copy->setText(Invoice::uniqueID, newUniqueId());
    // Quotes too are numbered by the invoice pattern; their kind stays.
    copy->setText(Invoice::number,
                  prefs.boolean(P::invHaveNumber) ? m_numbers.nextNumber(DocumentNumbers::Kind::Invoice) : QStringLiteral(""));
    if (prefs.boolean(P::invHaveNumber))
        m_numbers.numberInSave(copy, DocumentNumbers::Kind::Invoice);
    const Date created = now();
    // Without due dates the copy gets today, like a new document, rather than
    // no due date at all.
    copy->setDate(Invoice::due, prefs.boolean(P::invHaveDueDate)
                                    ? futureDateFromTodayWithDays(prefs.integer(P::invDefaultDueDate))
                                    : created);
    copy->setText(Invoice::dispatchNumber, QStringLiteral(""));
    for (int a : {Invoice::date, Invoice::paid, Invoice::sent, Invoice::dispatched})
        copy->setDate(a, created);
    copy->setInt(Invoice::status, 0);
    copy->setNum(Invoice::paidAmount, 0.0);
    copy->setNum(Invoice::dueAmount, 0.0);
    copy->setBool(Invoice::isDispatched, false);
    if (toTheCent) {
        copy->setBool(Invoice::centExactTotals, true);
        m_current.calculateInvoice(copy);
    }

    m_current.documentCreated(copy);
    return copy;
}

Record *DocumentCommands::cancelInvoice()
{
    Record *original = m_current.currentInvoice();
    if (!original)
        return nullptr;
    Interaction &ui = m_ui;
    if (original->integer(Invoice::kind) != 1) {
        ui.alert(Tr::tr("Sorry!"),
            Tr::tr("A quote is not cancelled by a credit note: nothing was charged. Change or delete "
                   "the quote instead."),
            { kOk() });
        return nullptr;
    }
    if (!isCurrentInvoiceSent() || !original->text(Invoice::precedingNumber).isEmpty()) {
        ui.alert(Tr::tr("Sorry!"),
            Tr::tr("Only an invoice marked as sent or paid is cancelled by a credit note. An invoice "
                   "still marked as created can be changed or deleted instead."),
            { kOk() });
        return nullptr;
    }
    const QString number = original->text(Invoice::number).trimmed();
    const int answer = ui.ask(Tr::tr("Cancel Invoice"),
        Tr::tr("A credit note with the same lines, negated, cancels this invoice; the "
               "invoice itself stays as it is.\n\n")
            + describe(*original),
        { Tr::tr("Create Credit Note"), kCancel() }, 1);
    if (answer != 0)
        return nullptr;
    const QDate day = original->date(Invoice::date).toDateTime().toLocalTime().date();
    Record *note = duplicateInvoice();
    if (!note)
        return nullptr;
    const Preferences &prefs = m_prefs;
    note->setText(Invoice::precedingNumber, number);
    note->setText(Invoice::precedingDate, day.toString(Qt::ISODate));
    note->setText(Invoice::title, prefs.string(P::locCreditNote));
    QString pattern = prefs.string(P::locCreditNoteFor);
    if (!pattern.contains(QLatin1String("%1")))
        pattern = Tr::tr("Cancels invoice %1 of %2");
    note->setText(Invoice::subject,
                  pattern.arg(number, Numbering::getPatternDateStringFromDate(prefs, original->date(Invoice::date))));
    for (Record *line : note->toMany(Invoice::items))
        line->setSingle(Item::unitCount, -line->single(Item::unitCount));
    if (note->boolean(Invoice::isShippingEnabled))
        note->setNum(Invoice::shippingAmount, -note->num(Invoice::shippingAmount));
    if (note->boolean(Invoice::isDiscountEnabled))
        note->setNum(Invoice::discountAmount, -note->num(Invoice::discountAmount));
    m_current.documentChanged(note);
    return note;
}

bool DocumentCommands::convertQuoteToInvoice()
{
    Record *doc = m_current.currentInvoice();
    if (!doc)
        return false;
    Interaction &ui = m_ui;
    if (doc->integer(Invoice::kind) != 0) {
        ui.alert(Tr::tr("Sorry!"), Tr::tr("You can't convert an invoice into a quote."), { kOk() });
        return false;
    }
    const int answer = ui.alert(Tr::tr("Convert Into Invoice"),
        Tr::tr("Do you really want to convert the selected quote into an invoice? This will also change the "
               "title, the boilerplate text, the counter for your invoice numbering, and you can't undo this "
               "action."),
        { Tr::tr("Convert"), kCancel() });
    if (answer != 0)
        return false;

    Preferences &prefs = m_prefs;
    doc->setInt(Invoice::kind, 1);
    // The change observer counts the new invoice before it is numbered, which
    // is why the converted number carries no "+ 1".
    m_list.calculateDatabase();
    if (prefs.boolean(P::invHaveDueDate))
        doc->setDate(Invoice::due, futureDateFromTodayWithDays(prefs.integer(P::invDefaultDueDate)));
    doc->setText(Invoice::number,
                 prefs.boolean(P::invHaveNumber) ? m_numbers.nextNumber(DocumentNumbers::Kind::ConvertedInvoice) : QStringLiteral(""));
    if (prefs.boolean(P::invHaveNumber))
        m_numbers.numberInSave(doc, DocumentNumbers::Kind::ConvertedInvoice);
    doc->setText(Invoice::title, prefText(prefs, P::locInvoice));
    doc->setText(Invoice::conditions, prefText(prefs, P::tempInvConditions));
    doc->setText(Invoice::footer, prefText(prefs, P::tempInvFooter));
    doc->setText(Invoice::misc1, prefText(prefs, P::tempInvMisc));

    m_list.setFilterTag(0);
    m_current.documentChanged(doc);
    return true;
}

bool DocumentCommands::deleteInvoice()
{
    Record *doc = m_current.currentInvoice();
    Store *store = m_access.store();
    if (!doc || !store)
        return false;
    Interaction &ui = m_ui;
    const bool invoice = doc->integer(Invoice::kind) == 1;
    if (invoice && isCurrentInvoiceSent()) {
        ui.alert(Tr::tr("Error!"),
            Tr::tr("The selected invoice is marked as already sent. If you really need to delete it, "
                   "please set its status back to 'Created' first."),
            { kOk() });
        return false;
    }
    // The question names the document, so the wrong one is not deleted
    // after a slip of the selection; Return keeps it.
    const QString which = QStringLiteral("\n\n") + describe(*doc);
    const int answer = invoice
        ? ui.ask(Tr::tr("Delete Invoice"),
            Tr::tr("Deleting invoices is permanent and cannot be undone. Do you really want to "
                   "delete the selected invoice?")
                + which,
            { Tr::tr("Delete"), kCancel() }, 1)
        : ui.ask(Tr::tr("Delete Quote"),
            Tr::tr("Deleting quotes is permanent and cannot be undone. Do you really want to delete "
                   "the selected quote?")
                + which,
            { Tr::tr("Delete"), kCancel() }, 1);
    if (answer != 0)
        return false;

    // What the history holds may refer to the document: it goes with it.
    m_undo.clear();
    m_list.setFilterTag(0);
    store->remove(doc);
    m_list.documentRemoved(doc);
    m_access.save();

    // Numbers come from the count of documents, which the deletion lowered:
    // the two next numbers say what each answer means.
    Preferences &prefs = m_prefs;
    const P::Key counter = invoice ? P::invCount : P::quotCount;
    const QString counterName = Preferences::info(counter).name;
    const QVariant counted = prefs.raw(counterName);
    const auto nextNumber = [&] { return invoice ? m_numbers.nextNumber(DocumentNumbers::Kind::Invoice) : m_numbers.nextNumber(DocumentNumbers::Kind::Quote); };
    const QString unchanged = nextNumber();
    prefs.setString(counter, QString::number(prefs.integer(counter) + 1));
    const QString adjusted = nextNumber();
    if (counted.isValid())
        prefs.setRaw(counterName, counted);
    else
        prefs.remove(counter);
    const QString kind = invoice ? QStringLiteral("invoice") : QStringLiteral("quote");
    const QString consequences = unchanged == adjusted || adjusted.isEmpty()
        ? QString()
        : Tr::tr("\n\nAdjust Counter: the next %1 will be numbered %2.\nCancel: the next %1 will be "
                 "numbered %3.")
              .arg(kind, adjusted, unchanged);
    const int adjust = ui.alert(Tr::tr("Adjust Counter"),
        (invoice ? Tr::tr("Do you want Tabo to automatically adjust your invoice counter so that you won't use "
                          "the same invoice number twice?")
                 : Tr::tr("Do you want Tabo to automatically adjust your quote counter so that you won't use "
                          "the same quote number twice?"))
            + consequences,
        { Tr::tr("Adjust Counter"), kCancel() });
    if (adjust == 0)
        if (const Error e = m_numbers.raiseNumberCounter(counter))
            ui.presentError(e);
    return true;
}

QString DocumentCommands::describe(const Record &document) const
{
    const bool invoice = document.integer(Invoice::kind) == 1;
    QString text = invoice ? Tr::tr("Invoice") : Tr::tr("Quote");
    const QString number = document.text(Invoice::number).trimmed();
    if (!number.isEmpty())
        text += QLatin1Char(' ') + number;
    const QString client = Contacts::clientOf(document);
    if (!client.isEmpty())
        text += QStringLiteral(" for ") + client;
    if (!document.isNull(Invoice::amount))
        text += QStringLiteral(", ") + m_formatters.stringFromNumber(document.num(Invoice::amount));
    return text;
}

bool DocumentCommands::isCurrentInvoiceSent() const
{
    const Record *doc = m_current.currentInvoice();
    return doc && doc->integer(Invoice::status) != 0;
}

QList<Record *> DocumentCommands::addressBook() const
{
    Store *store = m_access.store();
    if (!store)
        return {};
    QList<Record *> entries = store->all(EntityId::Address);
    std::stable_sort(entries.begin(), entries.end(), [](const Record *a, const Record *b) {
        return b->date(Address::date) < a->date(Address::date);
    });
    return entries;
}

void DocumentCommands::useAddress(Record &document, AddressFields fields)
{
    Store *store = m_access.store();
    if (!store)
        return;
    const Preferences &prefs = m_prefs;
    Contacts::completeAddress(fields, Contacts::countryCode(prefs.string(Preferences::prefsCountryCode)));
    Contacts::selectAddress(*store, document, fields, prefs.integer(Preferences::clientNamePatternTag));
    m_current.documentChanged(&document);
}

void DocumentCommands::loadFully(const QList<Record *> &records)
{
    if (Store *store = m_access.store())
        store->loadFully(records);
}

} // namespace tabo
