#include "CommandSupport.h"

#include "app/AppController.h"
#include "app/PaymentCommands.h"
#include "app/UndoHistory.h"
#include "base/Clock.h"
#include "domain/DocumentList.h"
#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "payments/Matching.h"
#include "payments/Statement.h"
#include "store/NotificationSchedule.h"
#include "store/Store.h"

#include <QFile>
#include <QUndoStack>
#include <QtTest>

using namespace tabo;
using namespace tabo::payments;

class TestPayments : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsCamtAndMt940();
    void refusesWhatIsNoStatement();
    void matchesCreditsToOpenInvoices();
    void appliesOnceAndOnlyOnce();
    void readsCsvExports();
};

namespace {

const QDate kToday(2026, 11, 26);

// A CAMT.053 entry; `details` goes inside TxDtls.
QByteArray camtEntry(const char *amount, const char *sign, const char *day, const char *ref, const QByteArray &details)
{
    return QByteArray("<Ntry><Amt Ccy=\"EUR\">") + amount + "</Amt><CdtDbtInd>" + sign + "</CdtDbtInd><BookgDt><Dt>"
        + day + "</Dt></BookgDt><AcctSvcrRef>" + ref + "</AcctSvcrRef><NtryDtls><TxDtls>" + details
        + "</TxDtls></NtryDtls></Ntry>";
}

QByteArray camt(const QByteArray &kind, const QByteArray &entries)
{
    const QByteArray message = kind == "053" ? "BkToCstmrStmt" : "BkToCstmrDbtCdtNtfctn";
    const QByteArray report = kind == "053" ? "Stmt" : "Ntfctn";
    return "<?xml version=\"1.0\"?><Document xmlns=\"urn:iso:std:iso:20022:tech:xsd:camt." + kind + ".001.08\"><"
        + message + "><GrpHdr><MsgId>M1</MsgId></GrpHdr><" + report + "><Id>S1</Id>" + entries + "</" + report + "></"
        + message + "></Document>";
}

const QByteArray kMt940 = ":20:STARTUMSE\r\n"
                          ":25:10020030/1234567\r\n"
                          ":28C:00001/001\r\n"
                          ":60F:C261120EUR1000,00\r\n"
                          ":61:2611211121CR238,00NTRFNONREF//BK-7781\r\n"
                          ":86:166?00GUTSCHRIFT?20Rechnung RE-2026-0\r\n"
                          "?2107 vielen Dank?31DE02120300000000202051?32NORDLICHT KG\r\n"
                          ":61:2611221122DR50,00NMSCNONREF//BK-7782\r\n"
                          ":86:Miete November\r\n"
                          ":62F:C261122EUR1188,00\r\n"
                          "-\r\n";

struct Books : test::ControllerFixture
{
    Record *invoice(const QString &number, double amount, const QString &client, int status = 1)
    {
        Record *doc = app.addInvoice();
        doc->setText(Invoice::number, number);
        // A line of that price, so that recalculating keeps the amount.
        Record *line = app.store()->insert(EntityId::Item);
        line->setToOne(Item::invoice, doc);
        line->setNum(Item::unitCount, 1.0);
        line->setNum(Item::baseAmount, amount);
        doc->setNum(Invoice::amount, amount);
        doc->setText(Invoice::company, client);
        doc->setInt(Invoice::status, status);
        doc->setDate(Invoice::due, Date::fromDateTime(QDateTime(kToday.addDays(20), QTime(12, 0))));
        return doc;
    }
    QString statement(const QByteArray &data)
    {
        const QString path = home.path() + QStringLiteral("/statement-%1.xml").arg(++files);
        QFile f(path);
        if (f.open(QIODevice::WriteOnly))
            f.write(data);
        return path;
    }
    int files = 0;
};

} // namespace

void TestPayments::readsCamtAndMt940()
{
    const QByteArray details053
        = "<Refs><EndToEndId>E2E</EndToEndId></Refs><RltdPties><Dbtr><Pty><Nm>Atelier Lumen"
          "</Nm></Pty></Dbtr><DbtrAcct><Id><IBAN>FR76 3000 6000 0112 3456 7890 189</IBAN></Id>"
          "</DbtrAcct></RltdPties><RmtInf><Ustrd>Invoice RE-1</Ustrd><Ustrd>thanks</Ustrd></RmtInf>";
    const Result<Statement> s053
        = readStatement(camt("053",
                            camtEntry("119.00", "CRDT", "2026-11-20", "BANK-1", details053)
                                + camtEntry("20.00", "DBIT", "2026-11-20", "BANK-2", QByteArray())),
            kToday);
    QVERIFY2(s053.ok(), qPrintable(s053.error().message()));
    QCOMPARE(s053.value().format, QStringLiteral("CAMT.053"));
    QCOMPARE(s053.value().debitsSkipped, 1);
    QCOMPARE(s053.value().credits.size(), 1);
    const Credit c = s053.value().credits.first();
    QCOMPARE(c.cents, 11900);
    QCOMPARE(c.currency, QStringLiteral("EUR"));
    QCOMPARE(c.booked, QDate(2026, 11, 20));
    QCOMPARE(c.reference, QStringLiteral("BANK-1"));
    QCOMPARE(c.payer, QStringLiteral("Atelier Lumen"));
    QCOMPARE(c.iban, QStringLiteral("FR7630006000011234567890189"));
    QCOMPARE(c.text, QStringLiteral("Invoice RE-1 thanks"));

    // A notification (older name element), and a batch of two payers in one booking.
    const QByteArray batch
        = "<Ntry><Amt Ccy=\"CHF\">300.5</Amt><CdtDbtInd>CRDT</CdtDbtInd><BookgDt><DtTm>2026-11-21T10:00:00"
          "</DtTm></BookgDt><AcctSvcrRef>B</AcctSvcrRef><NtryDtls><TxDtls><Amt Ccy=\"CHF\">100.5</Amt>"
          "<RltdPties><Dbtr><Nm>One</Nm></Dbtr></RltdPties></TxDtls><TxDtls><Amt Ccy=\"CHF\">200</Amt>"
          "<RltdPties><Dbtr><Nm>Two</Nm></Dbtr></RltdPties></TxDtls></NtryDtls></Ntry>";
    const Result<Statement> s054 = readStatement(camt("054", batch), kToday);
    QVERIFY2(s054.ok(), qPrintable(s054.error().message()));
    QCOMPARE(s054.value().format, QStringLiteral("CAMT.054"));
    QCOMPARE(s054.value().credits.size(), 2);
    QCOMPARE(s054.value().credits.at(0).cents, 10050);
    QCOMPARE(s054.value().credits.at(1).payer, QStringLiteral("Two"));
    QCOMPARE(s054.value().credits.at(1).reference, QStringLiteral("B/2"));
    QCOMPARE(s054.value().credits.at(1).booked, QDate(2026, 11, 21));

    const Result<Statement> mt = readStatement(kMt940, kToday);
    QVERIFY2(mt.ok(), qPrintable(mt.error().message()));
    QCOMPARE(mt.value().debitsSkipped, 1);
    QCOMPARE(mt.value().credits.size(), 1);
    const Credit m = mt.value().credits.first();
    QCOMPARE(m.cents, 23800);
    QCOMPARE(m.booked, QDate(2026, 11, 21));
    QCOMPARE(m.reference, QStringLiteral("BK-7781"));
    QCOMPARE(m.payer, QStringLiteral("NORDLICHT KG"));
    QCOMPARE(m.iban, QStringLiteral("DE02120300000000202051"));
    // Fields cut at 27 characters read as one text again.
    QCOMPARE(m.text, QStringLiteral("Rechnung RE-2026-007 vielen Dank"));
}

void TestPayments::refusesWhatIsNoStatement()
{
    const auto refusal = [](const QByteArray &data) {
        const Result<Statement> s = readStatement(data, kToday);
        return s.ok() ? QString() : s.error().message();
    };
    QVERIFY(
        refusal("<?xml version=\"1.0\"?><!DOCTYPE d [<!ENTITY x \"y\">]><Document/>").contains(QLatin1String("DTD")));
    QVERIFY(refusal("<Invoice xmlns=\"urn:oasis:names:specif" "ication:ubl:schema:xsd:Invoice-2\"/>")
                .contains(QLatin1String("not a bank statement")));
    QVERIFY(refusal(camt("053", camtEntry("10.00", "CRDT", "2026-12-24", "F", QByteArray())))
                .contains(QLatin1String("2026-12-24")));
    QVERIFY(refusal(camt("053", camtEntry("0.00", "CRDT", "2026-11-02", "Z", QByteArray())))
                .contains(QLatin1String("above zero")));
    QVERIFY(!refusal(camt("053", camtEntry("12.345", "CRDT", "2026-11-02", "Z", QByteArray()))).isEmpty());
    QByteArray euro = camt("053", camtEntry("10.00", "CRDT", "2026-11-02", "C", QByteArray()));
    euro.replace("Ccy=\"EUR\"", "Ccy=\"EURO\"");
    QVERIFY(refusal(euro).contains(QLatin1String("EURO")));
    QVERIFY(refusal("date;amount\n2026-11-01;12,00\n").contains(QLatin1String("not a bank statement")));
    QVERIFY(!refusal(camt("053", "<Ntry><Amt Ccy=\"EUR\">1.00</Amt>")).isEmpty()); // truncated
    QVERIFY(refusal(QByteArray(21 * 1024 * 1024, ' ')).contains(QLatin1String("larger")));
    // Ten thousand entries are a busy year, not an attack: read whole.
    QByteArray many;
    for (int i = 0; i < 10000; ++i)
        many += camtEntry("1.00", "CRDT", "2026-11-02", QByteArray::number(i), QByteArray());
    const Result<Statement> busy = readStatement(camt("053", many), kToday);
    QVERIFY(busy.ok() && busy.value().credits.size() == 10000);
    QByteArray deep = "<Document xmlns=\"urn:iso:std:iso:20022:tech:xsd:camt.053.001.02\">";
    for (int i = 0; i < 40; ++i)
        deep += "<a>";
    QVERIFY(refusal(deep).contains(QLatin1String("deeply")));
}

void TestPayments::matchesCreditsToOpenInvoices()
{
    Books f;
    Record *re1 = f.invoice(QStringLiteral("RE-1"), 119.0, QStringLiteral("Atelier Lumen"));
    Record *re12 = f.invoice(QStringLiteral("RE-12"), 119.0, QStringLiteral("Nordlicht KG"));
    Record *re3 = f.invoice(QStringLiteral("RE-3"), 500.0, QStringLiteral("Harbor Books"), 2);
    Record *re4 = f.invoice(QStringLiteral("RE-4"), 80.0, QStringLiteral("Kowalski"));
    Record *credit = f.invoice(QStringLiteral("RE-5"), -80.0, QStringLiteral("Kowalski"));
    credit->setText(Invoice::precedingNumber, QStringLiteral("RE-4"));
    f.invoice(QStringLiteral("RE-6"), 70.0, QStringLiteral("Draft Ltd"), 0); // never sent
    const QList<Record *> open = openInvoices(f.app.documentList().all());
    QCOMPARE(QSet<Record *>(open.begin(), open.end()), (QSet<Record *> { re1, re12, re3 }));
    QVERIFY(!open.contains(re4));

    const auto credit_ = [](qint64 cents, const QString &text, const QString &payer = {}) {
        Credit c;
        c.cents = cents;
        c.text = text;
        c.payer = payer;
        c.reference = text + QString::number(cents);
        c.booked = kToday;
        c.currency = QStringLiteral("EUR");
        return c;
    };
    const QList<Proposal> p = match({ credit_(11900, QStringLiteral("re 1 danke")), // sure, not RE-12
                                        credit_(11900, QStringLiteral("Zahlung")), // two owe this
                                        credit_(25000, QStringLiteral("R E - 3 Teil")), // partly
                                        credit_(60000, QStringLiteral("RE3")), // surplus
                                        credit_(50000, QString(), QStringLiteral("HARBOR BOOKS LTD")),
                                        credit_(8000, QStringLiteral("RE-4")), // cancelled: nothing
                                        credit_(4242, QStringLiteral("RE-99")), credit_(100, QStringLiteral("x")) },
        open, {}, { credit_(100, QStringLiteral("x")).reference });
    using C = Proposal::Confidence;
    QCOMPARE(p.at(0).confidence, C::Sure);
    QCOMPARE(p.at(0).invoice, re1);
    QCOMPARE(p.at(1).confidence, C::Ambiguous);
    QCOMPARE(p.at(1).candidates.size(), 2);
    QCOMPARE(p.at(2).confidence, C::Proposed);
    QCOMPARE(p.at(2).invoice, re3);
    QVERIFY(p.at(2).why.contains(QLatin1String("250.00 of 500.00")));
    QCOMPARE(p.at(3).invoice, re3);
    QCOMPARE(p.at(3).surplusCents, 10000);
    QCOMPARE(p.at(4).confidence, C::Proposed);
    QCOMPARE(p.at(4).invoice, re3);
    QCOMPARE(p.at(5).confidence, C::None);
    QCOMPARE(p.at(6).confidence, C::None);
    QCOMPARE(p.at(7).confidence, C::Imported);
}

void TestPayments::appliesOnceAndOnlyOnce()
{
    FixedClock clock(Date::fromDateTime(QDateTime(kToday, QTime(12, 0))));
    Clock::setInstance(&clock);
    Books f;
    Record *re1 = f.invoice(QStringLiteral("RE-1"), 119.0, QStringLiteral("Atelier Lumen"));
    Record *re3 = f.invoice(QStringLiteral("RE-3"), 500.0, QStringLiteral("Harbor Books"));
    QVERIFY(!f.app.save());
    NotificationSchedule reminders(*f.app.store());
    ScheduledNotification reminder { 0, re1->text(Invoice::uniqueID), QStringLiteral("Due"), {}, {},
        Date::fromDateTime(QDateTime(kToday.addDays(5), QTime(9, 0))), false, {} };
    QVERIFY(!reminders.schedule(reminder));
    const QString path = f.statement(camt("053",
        camtEntry("119.00", "CRDT", "2026-11-20", "A1", "<RmtInf><Ustrd>RE-1</Ustrd></RmtInf>")
            + camtEntry("200.00", "CRDT", "2026-11-21", "A2", "<RmtInf><Ustrd>RE-3</Ustrd></RmtInf>")));
    PaymentCommands &payments = f.app.payments();
    const Result<PaymentCommands::Review> first = payments.review(path);
    QVERIFY2(first.ok(), qPrintable(first.error().message()));
    QCOMPARE(payments.apply(first.value().proposals).value(), 2);
    QCOMPARE(re1->integer(Invoice::status), 3);
    QVERIFY(re1->boolean(Invoice::isPaid));
    QCOMPARE(re1->date(Invoice::paid).toDateTime().toLocalTime().date(), QDate(2026, 11, 20));
    QCOMPARE(re3->integer(Invoice::status), 4);
    QCOMPARE(re3->num(Invoice::paidAmount), 200.0);
    QVERIFY(!f.app.store()->hasChanges());
    QVERIFY(reminders.list(true).isEmpty()); // paid: no reminder any more

    // One undo takes back both payments and their bookings; redo brings them back.
    f.app.undo().stack().undo();
    QCOMPARE(re1->integer(Invoice::status), 1);
    QVERIFY(!re1->boolean(Invoice::isPaid));
    QCOMPARE(re3->integer(Invoice::status), 1);
    QCOMPARE(re3->num(Invoice::paidAmount), 0.0);
    QVERIFY(!f.app.store()->hasChanges());
    QCOMPARE(payments.review(path).value().proposals.at(0).confidence, Proposal::Confidence::Sure);
    f.app.undo().stack().redo();
    QCOMPARE(re1->integer(Invoice::status), 3);
    QCOMPARE(re3->integer(Invoice::status), 4);

    // The same statement again, and one that overlaps it: nothing counts twice.
    const Result<PaymentCommands::Review> again = payments.review(path);
    for (const Proposal &p : again.value().proposals)
        QCOMPARE(p.confidence, Proposal::Confidence::Imported);
    QCOMPARE(payments.apply(first.value().proposals).value(), 0); // stale proposals, too
    QCOMPARE(re3->num(Invoice::paidAmount), 200.0);
    const QString overlap = f.statement(camt("053",
        camtEntry("200.00", "CRDT", "2026-11-21", "A2", "<RmtInf><Ustrd>RE-3</Ustrd></RmtInf>")
            + camtEntry("300.00", "CRDT", "2026-11-22", "A3", "<RmtInf><Ustrd>RE-3</Ustrd></RmtInf>")));
    const Result<PaymentCommands::Review> more = payments.review(overlap);
    QCOMPARE(more.value().proposals.at(0).confidence, Proposal::Confidence::Imported);
    QVERIFY2(more.value().proposals.at(1).confidence == Proposal::Confidence::Sure,
        qPrintable(more.value().proposals.at(1).why));
    QCOMPARE(payments.apply(more.value().proposals).value(), 1);
    QCOMPARE(re3->integer(Invoice::status), 3);
    Clock::setInstance(nullptr);
}

void TestPayments::readsCsvExports()
{
    FixedClock clock(Date::fromDateTime(QDateTime(kToday, QTime(12, 0))));
    Clock::setInstance(&clock);
    Books f;
    Record *re7 = f.invoice(QStringLiteral("RE-7"), 1234.56, QStringLiteral("Müller & Söhne"));
    Record *re8 = f.invoice(QStringLiteral("RE-8"), 99.0, QStringLiteral("Le Petit Atelier"));
    Record *re9 = f.invoice(QStringLiteral("RE-9"), 50.0, QStringLiteral("Ferretería Sol"));
    QVERIFY(!f.app.save());
    PaymentCommands &payments = f.app.payments();
    const auto proposals = [&](const QByteArray &data, const QString &columns = {}) {
        const Result<PaymentCommands::Review> r = payments.review(f.statement(data), columns);
        if (!r)
            qWarning("%s", qPrintable(r.error().message()));
        return r ? r.value().proposals : QList<Proposal> {};
    };
    // A German savings bank: account lines first, Latin-1, ';', decimal comma, one debit.
    const QList<Proposal> de = proposals(QString::fromUtf8(
        "\"Umsätze Girokonto\";\"Zeitraum: 01.11.2026 - 25.11.2026\"\n\n"
        "\"Buchungstag\";\"Valutadatum\";\"Buchungstext\";\"Verwendungszweck\";"
        "\"Beguenstigter/Zahlungspflichtiger\";\"Kontonummer/IBAN\";\"Betrag\";\"Waehrung\"\n"
        "\"24.11.2026\";\"24.11.2026\";\"GUTSCHRIFT\";\"Rechnung RE 7; danke\";\"Müller & Söhne\";"
        "\"DE02 1203 0000 0000 2020 51\";\"1.234,56\";\"EUR\"\n"
        "\"23.11.26\";\"23.11.26\";\"LASTSCHRIFT\";\"Strom\";\"Stadtwerke\";\"\";\"-80,00\";\"EUR\"\n")
                                             .toLatin1());
    QCOMPARE(de.size(), 1);
    QCOMPARE(de.at(0).confidence, Proposal::Confidence::Sure);
    QCOMPARE(de.at(0).invoice, re7);
    QCOMPARE(de.at(0).credit.payer, QStringLiteral("Müller & Söhne"));
    QCOMPARE(de.at(0).credit.iban, QStringLiteral("DE02120300000000202051"));
    // A French bank: UTF-8 with a byte-order mark, separate debit and credit columns.
    const QList<Proposal> fr = proposals("\xEF\xBB\xBF"
                                         "Date opération;Date valeur;Libellé;Débit;Crédit\n"
                                         "20/11/2026;20/11/2026;VIR LE PETIT ATELIER FACT RE8;;99,00\n"
                                         "21/11/2026;21/11/2026;CB BOULANGERIE;-4,20;\n");
    QCOMPARE(fr.size(), 1);
    QCOMPARE(fr.at(0).invoice, re8);
    QCOMPARE(fr.at(0).credit.cents, 9900);
    // A Spanish bank: ',' between fields, quoted amounts, another currency.
    const QList<Proposal> es = proposals("Fecha Operación,Fecha Valor,Concepto,Importe,Divisa,Ordenante\n"
                                         "2026-11-19,2026-11-19,\"Factura RE-9, gracias\",\"50,00\",EUR,Ferretería Sol\n");
    QCOMPARE(es.size(), 1);
    QCOMPARE(es.at(0).invoice, re9);
    QCOMPARE(es.at(0).confidence, Proposal::Confidence::Sure);

    // Headings nobody knows: refused with them named; named once, remembered.
    const QByteArray odd = "Tag;Wert;Notiz;Von\n22.11.2026;99,00;RE-8;Atelier\n";
    const Result<PaymentCommands::Review> unknown = payments.review(f.statement(odd));
    QVERIFY(!unknown.ok());
    QVERIFY(unknown.error().message().contains(QLatin1String("Tag, Wert, Notiz, Von")));
    QVERIFY(!payments.review(f.statement(odd), QStringLiteral("date=1,sum=2")).ok());
    QCOMPARE(proposals(odd, QStringLiteral("date=Tag,amount=2,text=3,payer=4")).at(0).invoice, re8);
    QCOMPARE(proposals(odd).at(0).invoice, re8);
    // Damaged rows are refused, not skipped.
    QVERIFY(!payments.review(f.statement("Datum;Betrag;Verwendungszweck\n32.11.2026;5,00;x\n")).ok());
    QVERIFY(!payments.review(f.statement("Datum;Betrag;Verwendungszweck\n22.11.2026;fünf;x\n")).ok());
    Clock::setInstance(nullptr);
}

QTEST_GUILESS_MAIN(TestPayments)
#include "TestPayments.moc"
