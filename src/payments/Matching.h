#pragma once

#include "payments/Statement.h"

#include <QList>
#include <QString>

namespace tabo {
class Record;
}

namespace tabo::payments {

// What a credit pays, and how sure that is.
struct Proposal
{
    enum class Confidence {
        Sure, // the invoice's number in the text and its due amount paid exactly
        Proposed, // one candidate by amount or payer; the person confirms
        Ambiguous, // several candidates; the person chooses
        None, // nothing open fits
        Imported, // this booking was taken in before
    };
    Credit credit;
    Confidence confidence = Confidence::None;
    Record *invoice = nullptr; // the match or proposal
    QList<Record *> candidates; // when ambiguous
    qint64 dueCents = 0; // what the invoice still wanted
    qint64 surplusCents = 0; // paid beyond that
    QString why; // one sentence for the review
};

// An invoice that can receive a payment: sent, overdue or partly paid, not
// a credit note and not cancelled by one.
QList<Record *> openInvoices(const QList<Record *> &documents);

// The invoice's due amount in cents (amount less what was paid).
qint64 dueCentsOf(const Record &invoice);

// Who the invoice is for: the client's company, else the address's first line.
QString clientName(const Record &invoice);

// Proposals for the credits against `open` invoices. `knownPayers` maps an
// IBAN to the uniqueID of a client's earlier invoice (payments matched
// before); `imported` holds the bank references taken in before.
QList<Proposal> match(const QList<Credit> &credits, const QList<Record *> &open,
    const QHash<QString, QString> &payerOfIban, const QSet<QString> &imported);

} // namespace tabo::payments
