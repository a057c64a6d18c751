#include "app/PaymentCommands.h"

#include "app/Workspace.h"
#include "base/Clock.h"
#include "domain/DocumentList.h"
#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "store/PaymentLedger.h"
#include "store/Store.h"

#include <QCoreApplication>

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

Result<PaymentCommands::Review> PaymentCommands::review(const QString &path)
{
    Store *store = m_store.store();
    if (!store)
        return noDatabase();
    Result<payments::Statement> statement = payments::readStatementFile(path, now().toDateTime().date());
    if (!statement)
        return statement.error();
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
    const Error e = store->saveWith([&](sqlite3 *db) -> Error {
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
                invoice.setDate(Invoice::paid, Date::fromDateTime(p.credit.booked.startOfDay()));
            }
            if (const Error added = PaymentLedger::add(db,
                    { p.credit.reference, invoice.text(Invoice::uniqueID), p.credit.cents, p.credit.booked,
                        p.credit.payer, p.credit.iban }))
                return added;
            ++applied;
        }
        return {};
    });
    if (e)
        return e;
    // The summary pass settles what follows from a paid status (the paid
    // flag of a partly paid invoice); that is saved at once, too.
    m_list.calculateDatabase();
    if (const Error settled = m_store.save())
        return settled;
    return applied;
}

} // namespace tabo
