#include "cli/PaymentsCommand.h"

#include "app/AppController.h"
#include "app/PaymentCommands.h"
#include "cli/Console.h"
#include "cli/Session.h"
#include "domain/EntityModel.h"
#include "domain/Record.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(PaymentsCommand)
};
} // namespace

namespace tabo::cli {

namespace {

using payments::Proposal;

// Stable words for scripts, whatever language the messages speak.
QString confidenceName(Proposal::Confidence c)
{
    switch (c) {
    case Proposal::Confidence::Sure:
        return QStringLiteral("sure");
    case Proposal::Confidence::Proposed:
        return QStringLiteral("proposed");
    case Proposal::Confidence::Ambiguous:
        return QStringLiteral("ambiguous");
    case Proposal::Confidence::Imported:
        return QStringLiteral("imported");
    case Proposal::Confidence::None:
        break;
    }
    return QStringLiteral("none");
}

QString money(qint64 cents)
{
    return QString::number(double(cents) / 100.0, 'f', 2);
}

QJsonObject toJson(const Proposal &p)
{
    QJsonObject o {
        { QStringLiteral("reference"), p.credit.reference },
        { QStringLiteral("booked"), p.credit.booked.toString(Qt::ISODate) },
        { QStringLiteral("amount"), money(p.credit.cents) },
        { QStringLiteral("currency"), p.credit.currency },
        { QStringLiteral("payer"), p.credit.payer },
        { QStringLiteral("iban"), p.credit.iban },
        { QStringLiteral("text"), p.credit.text },
        { QStringLiteral("confidence"), confidenceName(p.confidence) },
        { QStringLiteral("why"), p.why },
    };
    if (p.invoice) {
        o.insert(QStringLiteral("invoice"), p.invoice->text(Invoice::uniqueID));
        o.insert(QStringLiteral("number"), p.invoice->text(Invoice::number));
        o.insert(QStringLiteral("due"), money(p.dueCents));
        o.insert(QStringLiteral("surplus"), money(p.surplusCents));
    }
    QJsonArray candidates;
    for (const Record *c : p.candidates)
        candidates << c->text(Invoice::number);
    if (!candidates.isEmpty())
        o.insert(QStringLiteral("candidates"), candidates);
    return o;
}

} // namespace

PaymentsCommand::PaymentsCommand(Session &session)
    : Command(session, QStringLiteral("payments"), QStringLiteral("import FILE [--json] [--apply] [--columns date=N,amount=N,...]"),
        Tr::tr("Read a bank statement (CAMT.053, CAMT.054, MT940 or CSV) and match its credits against the open "
               "invoices: sure (the text names the invoice and the amount is what it owes), proposed, "
               "ambiguous, none, or imported before. --apply takes in the sure matches: the invoice is paid "
               "or partly paid. A booking is never taken in twice. --columns names the columns of a CSV "
               "export whose headings are not recognised (date, amount or credit and debit, currency, payer, "
               "iban, text, reference; by number or heading); they are remembered for files laid out like it."))
{
}

int PaymentsCommand::execute(const QStringList &args)
{
    QCommandLineParser parser;
    const QCommandLineOption json(QStringLiteral("json"), Tr::tr("Print JSON."));
    const QCommandLineOption apply(QStringLiteral("apply"), Tr::tr("Take in the sure matches."));
    const QCommandLineOption columns(
        QStringLiteral("columns"), Tr::tr("The columns of a CSV statement."), QStringLiteral("COLUMNS"));
    parser.addOptions({ json, apply, columns });
    int code = kExitOk;
    if (!parse(parser, args, 2, 2, &code))
        return code;
    const QStringList pos = parser.positionalArguments();
    if (pos.first() != QLatin1String("import"))
        return usageError(Tr::tr("Unknown “%1”: import.").arg(pos.first()));
    if (!m_session.store())
        return kExitFailure;
    PaymentCommands &payments = m_session.controller().payments();
    const Result<PaymentCommands::Review> review = payments.review(pos.at(1), parser.value(columns));
    if (!review)
        return failure(review.error());
    int applied = 0;
    if (parser.isSet(apply)) {
        QList<Proposal> sure;
        for (const Proposal &p : review.value().proposals)
            if (p.confidence == Proposal::Confidence::Sure)
                sure << p;
        const Result<int> done = payments.apply(sure);
        if (!done)
            return failure(done.error());
        applied = done.value();
    }
    if (parser.isSet(json)) {
        QJsonArray entries;
        for (const Proposal &p : review.value().proposals)
            entries << toJson(p);
        const QJsonObject out { { QStringLiteral("format"), review.value().statement.format },
            { QStringLiteral("debitsSkipped"), review.value().statement.debitsSkipped },
            { QStringLiteral("applied"), applied }, { QStringLiteral("credits"), entries } };
        printOut(QString::fromUtf8(QJsonDocument(out).toJson(QJsonDocument::Indented)).trimmed());
        return kExitOk;
    }
    QStringList lines;
    for (const Proposal &p : review.value().proposals) {
        lines << QStringLiteral("%1\t%2 %3\t%4\t%5\t%6\t%7")
                     .arg(p.credit.booked.toString(Qt::ISODate), money(p.credit.cents), p.credit.currency,
                         p.credit.payer, confidenceName(p.confidence),
                         p.invoice ? p.invoice->text(Invoice::number) : QStringLiteral("-"), p.why);
    }
    if (parser.isSet(apply))
        lines << Tr::tr("Payments taken in: %1.").arg(applied);
    printOut(lines.join(QLatin1Char('\n')));
    return kExitOk;
}

} // namespace tabo::cli
