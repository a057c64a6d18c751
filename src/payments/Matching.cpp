#include "payments/Matching.h"

#include "domain/EntityModel.h"
#include "domain/Record.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <cmath>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Matching)
};
} // namespace

namespace tabo::payments {

namespace {

using Confidence = Proposal::Confidence;

// "re 2026-0042", "RE2026/42"…: compared without case, spaces and dashes.
QString squeezed(const QString &text)
{
    QString out;
    out.reserve(text.size());
    for (const QChar c : text)
        if (c.isLetterOrNumber())
            out += c.toUpper();
    return out;
}

// Whether `number` stands in `text` as a whole: "RE-1" is not in "RE-12".
bool mentions(const QString &squeezedText, const QString &squeezedNumber)
{
    if (squeezedNumber.isEmpty())
        return false;
    for (qsizetype at = squeezedText.indexOf(squeezedNumber); at >= 0;
         at = squeezedText.indexOf(squeezedNumber, at + 1)) {
        const qsizetype end = at + squeezedNumber.size();
        const bool digitAfter
            = end < squeezedText.size() && squeezedText.at(end).isDigit() && squeezedNumber.back().isDigit();
        const bool digitBefore = at > 0 && squeezedText.at(at - 1).isDigit() && squeezedNumber.front().isDigit();
        if (!digitAfter && !digitBefore)
            return true;
    }
    return false;
}

QString money(qint64 cents)
{
    return QString::number(double(cents) / 100.0, 'f', 2);
}

void settle(Proposal &p, Record *invoice, Confidence confidence, const QString &why)
{
    p.invoice = invoice;
    p.confidence = confidence;
    p.dueCents = dueCentsOf(*invoice);
    p.surplusCents = std::max<qint64>(0, p.credit.cents - p.dueCents);
    p.why = why;
    if (p.surplusCents > 0)
        p.why += QLatin1Char(' ') + Tr::tr("%1 more than is due.").arg(money(p.surplusCents));
    else if (p.credit.cents < p.dueCents)
        p.why += QLatin1Char(' ') + Tr::tr("Partly paid: %1 of %2.").arg(money(p.credit.cents), money(p.dueCents));
}

void ambiguous(Proposal &p, const QList<Record *> &candidates, const QString &why)
{
    p.confidence = Confidence::Ambiguous;
    p.candidates = candidates;
    p.why = why;
}

} // namespace

QString clientName(const Record &invoice)
{
    const QString company = invoice.text(Invoice::company).trimmed();
    return company.isEmpty() ? invoice.text(Invoice::address).section(QLatin1Char('\n'), 0, 0).trimmed() : company;
}

qint64 dueCentsOf(const Record &invoice)
{
    const double due = invoice.num(Invoice::amount) - invoice.num(Invoice::paidAmount);
    return std::llround(due * 100.0);
}

QList<Record *> openInvoices(const QList<Record *> &documents)
{
    QSet<QString> cancelled;
    for (const Record *d : documents)
        if (!d->text(Invoice::precedingNumber).isEmpty())
            cancelled << d->text(Invoice::precedingNumber);
    QList<Record *> open;
    for (Record *d : documents) {
        const qint64 status = d->integer(Invoice::status);
        if (d->integer(Invoice::kind) == 1 && (status == 1 || status == 2 || status == 4)
            && d->text(Invoice::precedingNumber).isEmpty() && !cancelled.contains(d->text(Invoice::number))
            && dueCentsOf(*d) > 0)
            open << d;
    }
    return open;
}

QList<Proposal> match(const QList<Credit> &credits, const QList<Record *> &open,
                      const QHash<QString, QString> &payerOfIban, const QSet<QString> &imported)
{
    // Looked up, not compared one by one: a statement of thousands of
    // entries meets a list of many thousands of invoices.
    QHash<qint64, QList<Record *>> byDue;
    QHash<QString, QList<Record *>> byNumber;
    QSet<qsizetype> numberLengths;
    QHash<QString, QList<Record *>> byClient;
    for (Record *invoice : open) {
        byDue[dueCentsOf(*invoice)] << invoice;
        const QString number = squeezed(invoice->text(Invoice::number));
        if (!number.isEmpty()) {
            byNumber[number] << invoice;
            numberLengths << number.size();
        }
        const QString client = squeezed(clientName(*invoice));
        if (client.size() >= 4)
            byClient[client] << invoice;
    }
    // The invoices named in `text`: each stretch of the length of some
    // number, looked up, and kept when it stands whole ("RE1" is not in "RE12").
    const auto namedIn = [&](const QString &text) {
        QList<Record *> named;
        for (const qsizetype length : numberLengths) {
            for (qsizetype at = 0; at + length <= text.size(); ++at) {
                const auto found = byNumber.constFind(text.mid(at, length));
                if (found == byNumber.cend() || !mentions(text.mid(at > 0 ? at - 1 : at, length + (at > 0) + 1),
                                                          found.key()))
                    continue;
                for (Record *invoice : *found)
                    if (!named.contains(invoice))
                        named << invoice;
            }
        }
        return named;
    };
    // The open invoices of the payer: a client name within the payer's
    // name, or the client an IBAN paid for before.
    const auto ofPayer = [&](const Credit &credit) {
        QList<Record *> theirs;
        const QString payer = squeezed(credit.payer);
        for (qsizetype length = 4; length <= payer.size(); ++length)
            for (qsizetype at = 0; at + length <= payer.size(); ++at)
                for (Record *invoice : byClient.value(payer.mid(at, length)))
                    if (!theirs.contains(invoice))
                        theirs << invoice;
        if (!credit.iban.isEmpty() && payerOfIban.contains(credit.iban))
            for (Record *invoice : byClient.value(squeezed(payerOfIban.value(credit.iban))))
                if (!theirs.contains(invoice))
                    theirs << invoice;
        return theirs;
    };
    QList<Proposal> out;
    out.reserve(credits.size());
    for (const Credit &credit : credits) {
        Proposal p;
        p.credit = credit;
        if (imported.contains(credit.reference)) {
            p.confidence = Confidence::Imported;
            p.why = Tr::tr("Taken in from an earlier statement.");
            out << p;
            continue;
        }
        const QList<Record *> named = namedIn(squeezed(credit.text));
        QList<Record *> namedExactly;
        for (Record *invoice : named)
            if (dueCentsOf(*invoice) == credit.cents)
                namedExactly << invoice;
        const QList<Record *> sameAmount = byDue.value(credit.cents);

        if (namedExactly.size() == 1) {
            settle(p, namedExactly.first(), Confidence::Sure,
                   Tr::tr("The text names invoice %1 and the amount is what it owes.")
                       .arg(namedExactly.first()->text(Invoice::number)));
        } else if (named.size() == 1) {
            settle(p, named.first(), Confidence::Proposed,
                   Tr::tr("The text names invoice %1.").arg(named.first()->text(Invoice::number)));
        } else if (named.size() > 1) {
            ambiguous(p, named, Tr::tr("The text names %1 open invoices.").arg(named.size()));
        } else if (sameAmount.size() == 1) {
            settle(p, sameAmount.first(), Confidence::Proposed, Tr::tr("The only open invoice of exactly this amount."));
        } else if (sameAmount.size() > 1) {
            const QList<Record *> payers = ofPayer(credit);
            QList<Record *> theirs;
            for (Record *invoice : sameAmount)
                if (payers.contains(invoice))
                    theirs << invoice;
            if (theirs.size() == 1)
                settle(p, theirs.first(), Confidence::Proposed, Tr::tr("This amount, from this client."));
            else
                ambiguous(p, theirs.isEmpty() ? sameAmount : theirs,
                          Tr::tr("%1 open invoices owe exactly this amount.")
                              .arg((theirs.isEmpty() ? sameAmount : theirs).size()));
        } else if (const QList<Record *> payers = ofPayer(credit); payers.size() == 1) {
            settle(p, payers.first(), Confidence::Proposed, Tr::tr("The only open invoice of this client."));
        } else if (payers.size() > 1) {
            ambiguous(p, payers, Tr::tr("This client has %1 open invoices, none of this amount.").arg(payers.size()));
        } else {
            p.why = Tr::tr("No open invoice fits.");
        }
        out << p;
    }
    return out;
}

} // namespace tabo::payments
