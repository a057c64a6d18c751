#include "app/RecurringCommands.h"

#include "app/Workspace.h"
#include "domain/Calculator.h"
#include "domain/DocumentList.h"
#include "domain/Record.h"
#include "domain/UniqueId.h"
#include "payments/Matching.h"
#include "prefs/Preferences.h"
#include "store/Store.h"

#include <QCoreApplication>
#include <QTime>

#include <optional>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(RecurringCommands)
};
} // namespace

namespace tabo {

namespace {

using P = Preferences;

Error noDatabase()
{
    return Error::file(Tr::tr("No database is open."));
}

Error noSchedule(qint64 id)
{
    return Error::input(Tr::tr("There is no repeated invoice %1.").arg(id));
}

// The texts of a document and its lines in which %PERIOD% is filled.
constexpr int kDocumentTexts[] = { Invoice::title, Invoice::subject, Invoice::notes, Invoice::conditions,
    Invoice::footer, Invoice::misc1 };
constexpr int kLineTexts[] = { Item::title, Item::subtitle, Item::note };

const QString &periodPlaceholder()
{
    static const QString placeholder = QStringLiteral("%PERIOD%");
    return placeholder;
}

void fillPeriod(Record &record, const int *texts, size_t count, const QString &period)
{
    for (size_t i = 0; i < count; ++i) {
        const QString text = record.text(texts[i]);
        if (text.contains(periodPlaceholder()))
            record.setText(texts[i], QString(text).replace(periodPlaceholder(), period));
    }
}

} // namespace

RecurringCommands::Sources RecurringCommands::sources()
{
    Sources found;
    Store *store = m_store.store();
    if (!store)
        return found;
    // The first of equal keys wins, as a search in list order would find it.
    for (Record *t : store->all(EntityId::Template))
        if (!t->isDeleted() && !found.templates.contains(t->text(Invoice::uniqueID)))
            found.templates.insert(t->text(Invoice::uniqueID), t);
    for (Record *d : m_list.documentList().all())
        if (!found.invoices.contains(d->text(Invoice::uniqueID)))
            found.invoices.insert(d->text(Invoice::uniqueID), d);
    return found;
}

Record *RecurringCommands::findSource(const Schedule &schedule, const Sources &sources)
{
    return (schedule.fromTemplate ? sources.templates : sources.invoices).value(schedule.source);
}

QString RecurringCommands::sourceName(const Schedule &schedule)
{
    const Record *source = findSource(schedule);
    if (!source)
        return Tr::tr("“%1” (no longer there)").arg(schedule.source);
    if (schedule.fromTemplate)
        return Tr::tr("Template “%1”").arg(schedule.source);
    const QString client = payments::clientName(*source);
    const QString number = source->text(Invoice::number);
    return client.isEmpty() ? Tr::tr("Invoice %1").arg(number) : Tr::tr("Invoice %1 (%2)").arg(number, client);
}

QString RecurringCommands::periodLabel(const Schedule &schedule, QDate day) const
{
    return schedule.recurrence.periodLabel(day, QLocale(m_prefs.documentRegion()));
}

Result<Schedule> RecurringCommands::add(const QString &source, const Recurrence &recurrence, bool send)
{
    Store *store = m_store.store();
    if (!store)
        return noDatabase();
    if (const Error e = recurrence.check())
        return e;
    m_store.syncWithStore();
    Schedule schedule;
    schedule.recurrence = recurrence;
    schedule.send = send;
    QList<const Record *> invoices;
    for (const Record *d : m_list.documentList().all())
        if (d->text(Invoice::uniqueID) == source || d->text(Invoice::number) == source)
            invoices << d;
    if (invoices.size() > 1)
        return Error::input(Tr::tr("“%1” names %2 documents; give the document's ID instead.")
                                .arg(source)
                                .arg(invoices.size()));
    if (invoices.size() == 1) {
        if (invoices.first()->integer(Invoice::kind) != 1)
            return Error::input(Tr::tr("“%1” is a quote; only an invoice or a template repeats.").arg(source));
        schedule.source = invoices.first()->text(Invoice::uniqueID);
    } else {
        schedule.fromTemplate = true;
        schedule.source = source;
        if (!findSource(schedule))
            return Error::input(Tr::tr("There is no invoice or template “%1”.").arg(source));
    }
    if (const Error e = store->write([&](sqlite3 *db) { return ScheduleTable::add(db, schedule); }))
        return e;
    return schedule;
}

Result<QList<Schedule>> RecurringCommands::list()
{
    Store *store = m_store.store();
    if (!store)
        return noDatabase();
    return ScheduleTable::list(store->handle());
}

Error RecurringCommands::setPaused(qint64 id, bool paused)
{
    Store *store = m_store.store();
    if (!store)
        return noDatabase();
    bool found = false;
    if (const Error e = store->write([&](sqlite3 *db) -> Error {
            const Result<bool> changed = ScheduleTable::setPaused(db, id, paused);
            found = changed && changed.value();
            return changed ? Error {} : changed.error();
        }))
        return e;
    return found ? Error {} : noSchedule(id);
}

Error RecurringCommands::remove(qint64 id)
{
    Store *store = m_store.store();
    if (!store)
        return noDatabase();
    bool found = false;
    if (const Error e = store->write([&](sqlite3 *db) -> Error {
            const Result<bool> removed = ScheduleTable::remove(db, id);
            found = removed && removed.value();
            return removed ? Error {} : removed.error();
        }))
        return e;
    return found ? Error {} : noSchedule(id);
}

Record *RecurringCommands::makeInvoice(const Record &source, const Schedule &schedule, QDate day)
{
    Store *store = m_store.store();
    // Invoices and templates share one attribute list; what a new invoice
    // must not inherit is set below.
    Record *doc = store->insert(EntityId::Invoice);
    for (int a = 0; a < int(Invoice::AttrCount); ++a)
        doc->setValue(a, source.value(a));
    const int ownerOfLine = source.entityId() == EntityId::Template ? Item::template_ : Item::invoice;
    for (const Record *line : source.toMany(Invoice::items)) {
        if (Record *copy = line->clone()) {
            copy->setToOne(ownerOfLine, nullptr);
            copy->setToOne(Item::invoice, doc);
            copy->setText(Item::uniqueID, newUniqueId());
            fillPeriod(*copy, kLineTexts, std::size(kLineTexts), periodLabel(schedule, day));
        }
    }
    doc->setText(Invoice::uniqueID, newUniqueId());
    doc->setInt(Invoice::kind, 1);
    doc->setInt(Invoice::status, 0);
    if (doc->text(Invoice::title).isEmpty() && m_prefs.contains(P::locInvoice))
        doc->setText(Invoice::title, m_prefs.string(P::locInvoice));
    fillPeriod(*doc, kDocumentTexts, std::size(kDocumentTexts), periodLabel(schedule, day));
    const Date date = noonOf(day);
    for (int a : { Invoice::date, Invoice::paid, Invoice::sent, Invoice::dispatched, Invoice::misc5 })
        doc->setDate(a, date);
    doc->setDate(Invoice::due,
        m_prefs.boolean(P::invHaveDueDate) ? date.addSeconds(86400.0 * double(m_prefs.integer(P::invDefaultDueDate)))
                                           : date);
    doc->setNum(Invoice::paidAmount, 0.0);
    doc->setBool(Invoice::isPaid, false);
    doc->setBool(Invoice::isDispatched, false);
    doc->setBool(Invoice::isReminderSent, false);
    for (int a : { Invoice::dispatchNumber, Invoice::precedingNumber, Invoice::precedingDate })
        doc->setText(a, QString());
    Calculator::calculateInvoice(*doc, TaxSettings::from(m_prefs));
    return doc;
}

Result<RecurringCommands::Run> RecurringCommands::run(QDate today, bool dryRun)
{
    Store *store = m_store.store();
    if (!store)
        return noDatabase();
    m_store.syncWithStore();
    Run result;
    const auto due = [&](sqlite3 *db, bool write) -> Error {
        result = {};
        const Result<QList<Schedule>> schedules = ScheduleTable::list(db);
        if (!schedules)
            return schedules.error();
        std::optional<Sources> known; // read at the first schedule that is due
        for (const Schedule &schedule : schedules.value()) {
            if (schedule.paused || !schedule.next().isValid() || schedule.next() > today)
                continue;
            if (!known)
                known = sources();
            const Record *source = findSource(schedule, *known);
            if (!source) {
                result.problems << Tr::tr("Repeated invoice %1 is not written: its invoice or template “%2” is "
                                          "no longer there.")
                                       .arg(schedule.id)
                                       .arg(schedule.source);
                continue;
            }
            int made = schedule.made;
            QString last = schedule.last;
            for (QDate day = schedule.next(); day.isValid() && day <= today;
                 day = schedule.recurrence.occurrence(++made)) {
                Record *invoice = nullptr;
                if (write) {
                    invoice = makeInvoice(*source, schedule, day);
                    // Numbered in order: each new invoice counts for the next.
                    if (m_prefs.boolean(P::invHaveNumber)) {
                        invoice->setText(Invoice::number, m_numbers.nextNumber(DocumentNumbers::Kind::Invoice));
                        m_numbers.numberInSave(invoice, DocumentNumbers::Kind::Invoice);
                    }
                    m_list.documentList().add(invoice);
                    m_list.calculateDatabase();
                    last = invoice->text(Invoice::uniqueID);
                }
                result.made << Made { schedule.id, day, invoice, schedule.send };
            }
            if (write)
                if (const Error e = ScheduleTable::setMade(db, schedule.id, made, last))
                    return e;
        }
        if (write)
            m_numbers.numberPendingNow();
        return {};
    };
    if (dryRun) {
        if (const Error e = due(store->handle(), false))
            return e;
        return result;
    }
    const Error e = store->saveWith([&](sqlite3 *db) { return due(db, true); });
    if (e) {
        for (const Made &m : std::as_const(result.made)) {
            if (m.invoice) {
                m_list.documentList().remove(m.invoice);
                store->remove(m.invoice);
            }
        }
        m_list.calculateDatabase();
        return e;
    }
    if (!result.made.isEmpty()) {
        // Nothing is left to write; this clears what waited for a number.
        m_store.save();
        m_list.documentsAdded();
    }
    return result;
}

} // namespace tabo
