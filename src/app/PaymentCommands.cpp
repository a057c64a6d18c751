#include "app/PaymentCommands.h"

#include "app/Interaction.h"
#include "app/UndoHistory.h"
#include "app/Workspace.h"
#include "base/Clock.h"
#include "domain/DocumentList.h"
#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "payments/CsvStatement.h"
#include "store/NotificationSchedule.h"
#include "store/PaymentLedger.h"
#include "store/ScheduleTable.h"
#include "store/Store.h"

#include <QCoreApplication>
#include <QFile>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(PaymentCommands)
};
} // namespace

namespace tabo {

namespace {

Error noDatabase()
{
    return Error::file(Tr::tr("No database is open."));
}

} // namespace

QString PaymentCommands::chooseStatement()
{
    Interaction::FileRequest request;
    request.title = Tr::tr("Import Bank Statement");
    request.extensions = { QStringLiteral("xml"), QStringLiteral("sta"), QStringLiteral("mt940"),
        QStringLiteral("940"), QStringLiteral("csv"), QStringLiteral("txt") };
    return m_ui.openFile(request);
}

QStringList PaymentCommands::csvHeadings(const QString &path) const
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const Result<payments::CsvTable> table = payments::splitCsv(file.read(1024 * 1024));
    return table ? table.value().header : QStringList();
}

Result<PaymentCommands::Review> PaymentCommands::review(const QString &path, const QString &columns)
{
    Store *store = m_store.store();
    if (!store)
        return noDatabase();
    const Result<QHash<QString, QString>> layouts = ScheduleTable::statementLayouts(store->handle());
    if (!layouts)
        return layouts.error();
    Result<payments::Statement> statement
        = payments::readStatementFile(path, now().toDateTime().date(), { columns, layouts.value() });
    if (!statement)
        return statement.error();
    if (!columns.isEmpty() && !statement.value().layoutKey.isEmpty()) {
        const payments::Statement &read = statement.value();
        if (const Error e = store->write([&read](sqlite3 *db) {
                return ScheduleTable::rememberStatementLayout(db, read.layoutKey, read.columns);
            }))
            return e;
    }
    m_store.syncWithStore();
    const QList<Record *> &all = m_list.documentList().all();
    QHash<QString, QString> clientOfInvoice;
    for (const Record *d : all)
        clientOfInvoice.insert(d->text(Invoice::uniqueID), payments::clientName(*d));
    const Result<QSet<QString>> imported = PaymentLedger::references(store->handle());
    if (!imported)
        return imported.error();
    const Result<QHash<QString, QString>> payers = PaymentLedger::payersByIban(store->handle(), clientOfInvoice);
    if (!payers)
        return payers.error();
    Review review;
    review.statement = statement.value();
    review.proposals
        = payments::match(review.statement.credits, payments::openInvoices(all), payers.value(), imported.value());
    return review;
}

Result<int> PaymentCommands::apply(const QList<payments::Proposal> &accepted)
{
    Store *store = m_store.store();
    if (!store)
        return noDatabase();
    int applied = 0;
    QList<Record *> invoices;
    for (const payments::Proposal &p : accepted)
        invoices << p.invoice;
    UndoHistory::Batch step(m_undo, invoices, Tr::tr("Payments"));
    QList<PaymentLedger::Entry> written;
    const Error e = store->saveWith([&](sqlite3 *db) -> Error {
        written.clear();
        for (const payments::Proposal &p : accepted) {
            if (!p.invoice || p.confidence == payments::Proposal::Confidence::Imported)
                continue;
            const Result<bool> known = PaymentLedger::contains(db, p.credit.reference);
            if (!known)
                return known.error();
            if (known.value())
                continue;
            Record &invoice = *p.invoice;
            const double paid = invoice.num(Invoice::paidAmount) + double(p.credit.cents) / 100.0;
            invoice.setNum(Invoice::paidAmount, paid);
            const bool full = payments::dueCentsOf(invoice) <= 0;
            invoice.setInt(Invoice::status, full ? 3 : 4);
            if (full) {
                invoice.setBool(Invoice::isPaid, true);
                invoice.setDate(Invoice::paid, noonOf(p.credit.booked));
                if (const Error cancelled = NotificationSchedule::cancelPendingOf(db, invoice.text(Invoice::uniqueID)))
                    return cancelled;
            }
            const PaymentLedger::Entry entry { p.credit.reference, invoice.text(Invoice::uniqueID), p.credit.cents,
                p.credit.booked, p.credit.payer, p.credit.iban };
            if (const Error added = PaymentLedger::add(db, entry))
                return added;
            written << entry;
            ++applied;
        }
        return {};
    });
    if (e)
        return e;
    step.setRows(
        [written](sqlite3 *db) -> Error {
            for (const PaymentLedger::Entry &entry : written)
                if (const Error removed = PaymentLedger::remove(db, entry.reference))
                    return removed;
            return {};
        },
        [written](sqlite3 *db) -> Error {
            for (const PaymentLedger::Entry &entry : written)
                if (const Error added = PaymentLedger::add(db, entry))
                    return added;
            return {};
        });
    // The summary pass settles what follows from a paid status (the paid
    // flag of a partly paid invoice); that is saved at once, too.
    m_list.calculateDatabase();
    if (const Error settled = m_store.save())
        return settled;
    return applied;
}

} // namespace tabo
