#include "PaymentsBench.h"

#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "payments/Matching.h"
#include "payments/Statement.h"
#include "store/Store.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>

namespace tabo::bench {

namespace {

constexpr int kDocuments = 100'000;
constexpr int kCredits = 10'000;

// A statement as banks write it: one CAMT.053 entry per credit, most naming
// their invoice, some only paying its amount.
QByteArray statement(const QList<Record *> &documents)
{
    QByteArray xml = "<?xml version=\"1.0\"?><Document xmlns=\"urn:iso:std:iso:20022:tech:xsd:camt.053.001.08\">"
                     "<BkToCstmrStmt><Stmt><Id>B</Id>";
    for (int i = 0; i < kCredits; ++i) {
        const Record *doc = documents.at((i * 7919) % documents.size());
        const QByteArray amount = QByteArray::number(doc->num(Invoice::amount), 'f', 2);
        const QByteArray text = i % 4 == 0 ? QByteArray("Zahlung") : "Rechnung " + doc->text(Invoice::number).toUtf8();
        xml += "<Ntry><Amt Ccy=\"EUR\">" + amount
            + "</Amt><CdtDbtInd>CRDT</CdtDbtInd><BookgDt><Dt>2026-11-20</Dt>"
              "</BookgDt><AcctSvcrRef>R"
            + QByteArray::number(i)
            + "</AcctSvcrRef><NtryDtls><TxDtls><RltdPties><Dbtr>"
              "<Pty><Nm>"
            + doc->text(Invoice::company).toUtf8() + " GmbH</Nm></Pty></Dbtr></RltdPties><RmtInf><Ustrd>" + text
            + "</Ustrd></RmtInf></TxDtls></NtryDtls></Ntry>";
    }
    return xml + "</Stmt></BkToCstmrStmt></Document>";
}

void row(const char *what, const char *target, double ms, bool ok)
{
    std::printf("| %-52s | %-8s | %9.1f ms | %-4s |\n", what, target, ms, ok ? "ok" : "MISS");
}

} // namespace

int runPaymentsBench()
{
    QTemporaryDir dir;
    Store store(dir.filePath(QStringLiteral("payments.mbdb")));
    if (store.open())
        return 1;
    QList<Record *> documents;
    documents.reserve(kDocuments);
    for (int i = 0; i < kDocuments; ++i) {
        Record *doc = store.insert(EntityId::Invoice);
        doc->setInt(Invoice::kind, 1);
        doc->setInt(Invoice::status, i % 5 == 0 ? 3 : 1);
        doc->setText(Invoice::number, QStringLiteral("RE-2026-%1").arg(i, 6, 10, QLatin1Char('0')));
        doc->setNum(Invoice::amount, 50.0 + (i % 2000) * 1.25);
        doc->setText(Invoice::company, QStringLiteral("Client %1").arg(i % 3000));
        documents << doc;
    }
    const QByteArray data = statement(documents);

    QElapsedTimer timer;
    timer.start();
    const Result<payments::Statement> read = payments::readStatement(data, QDate(2026, 11, 26));
    const double readMs = double(timer.nsecsElapsed()) / 1e6;
    if (!read) {
        std::fprintf(stderr, "the statement: %s\n", qPrintable(read.error().message()));
        return 1;
    }
    timer.restart();
    const QList<Record *> open = payments::openInvoices(documents);
    const QList<payments::Proposal> proposals = payments::match(read.value().credits, open, {}, {});
    const double matchMs = double(timer.nsecsElapsed()) / 1e6;
    int sure = 0;
    for (const payments::Proposal &p : proposals)
        sure += p.confidence == payments::Proposal::Confidence::Sure;

    std::printf("Payments: a CAMT.053 statement of %d credits (%.1f MB) against %d documents\n\n", kCredits,
        double(data.size()) / (1024 * 1024), kDocuments);
    std::printf("| %-52s | %-8s | %12s | %-4s |\n", "what", "target", "measured", "");
    std::printf("|%s|%s|%s|%s|\n", "------------------------------------------------------", "----------",
        "--------------", "------");
    row("read the statement", "-", readMs, true);
    row("find the open invoices and match every credit", "-", matchMs, true);
    row("import and match together", "< 1000", readMs + matchMs, readMs + matchMs < 1000);
    std::printf("\n%d of %d credits matched surely.\n", sure, kCredits);
    return sure > 0 ? 0 : 1;
}

} // namespace tabo::bench
