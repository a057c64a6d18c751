#include "CommandSupport.h"

#include "app/AppController.h"
#include "app/DocumentCommands.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "store/Store.h"

#include <QtTest>

using namespace tabo;
using P = Preferences;

namespace {

struct Fixture : test::ControllerFixture
{
    FixedClock clock{test::utc(2026, 3, 5, 9)};
    DocumentCommands &docs = app.documents();

    Fixture()
    {
        Clock::setInstance(&clock);
        prefs.setString(P::invPattern, QStringLiteral("RE-%COUNT%"));
        prefs.setString(P::quotPattern, QStringLiteral("AN-%COUNT%"));
        prefs.setInteger(P::invCount, 10);
        prefs.setInteger(P::invDefaultDueDate, 14);
        for (P::Key k : {P::invHaveNumber, P::quotHaveNumber, P::invHaveDueDate})
            prefs.setBool(k, true);
    }
    ~Fixture() { Clock::setInstance(nullptr); }

    Record *line(Record *doc, double price)
    {
        Record *item = app.store()->insert(EntityId::Item);
        item->setNum(Item::baseAmount, price);
        item->setNum(Item::unitCount, 1);
        item->setToOne(Item::invoice, doc);
        app.documentChanged(doc);
        return item;
    }
};

} // namespace

class TestDocumentCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deleteRefusalsConfirmationsAndCounter();
    void numbersAreNeverGivenTwice();
    void convertQuote();
    void duplicate();
    void calculationIsFixedAtCreation();
    void dueDateBeforeDateAsksOnce();
    void cancelByCreditNote();
};

void TestDocumentCommands::deleteRefusalsConfirmationsAndCounter()
{
    Fixture f;
    QVERIFY(!f.docs.deleteInvoice()); // nothing selected: nothing asked
    for (int i = 0; i < 3; ++i)
        f.app.addInvoice();
    Record *invoice = f.app.currentInvoice();
    QCOMPARE(invoice->text(Invoice::number), QStringLiteral("RE-13"));
    invoice->setInt(Invoice::status, 1);
    QVERIFY(!f.docs.deleteInvoice());
    QCOMPARE(f.ui.lastAlertText(), QStringLiteral("The selected invoice is marked as already sent. If you really need "
                                                  "to delete it, please set its status back to 'Created' first."));

    invoice->setInt(Invoice::status, 0);
    f.ui.answers = {1};
    QVERIFY(!f.docs.deleteInvoice());
    QCOMPARE(f.ui.alerts.last().buttons, QStringList({QStringLiteral("Delete"), QStringLiteral("Cancel")}));
    QCOMPARE(f.app.documentList().all().size(), 3);

    f.ui.answers = {0, 0};
    QVERIFY(f.docs.deleteInvoice());
    QCOMPARE(f.ui.alerts[2].title, QStringLiteral("Delete Invoice"));
    // The question names the document and Return keeps it; the counter's
    // question says what each answer does to the next number.
    QVERIFY2(f.ui.alerts[2].text.endsWith(QStringLiteral("\n\nInvoice RE-13, 0.00")), qPrintable(f.ui.alerts[2].text));
    QCOMPARE(f.ui.alerts[2].defaultButton, 1);
    QCOMPARE(f.ui.alerts.last().buttons, QStringList({QStringLiteral("Adjust Counter"), QStringLiteral("Cancel")}));
    QVERIFY2(f.ui.lastAlertText().endsWith(QStringLiteral("Adjust Counter: the next invoice will be numbered RE-14.\n"
                                                          "Cancel: the next invoice will be numbered RE-13.")),
             qPrintable(f.ui.lastAlertText()));
    QVERIFY(!f.app.currentInvoice());
    QCOMPARE(f.app.store()->count(EntityId::Invoice), 2);
    QCOMPARE(f.prefs.raw(QStringLiteral("invCount")), QVariant(QStringLiteral("11")));
    // The next invoice gets the number it would have had before the deletion.
    QCOMPARE(f.app.addInvoice()->text(Invoice::number), QStringLiteral("RE-14"));

    // Quotes are never refused by the sent mark; declining the counter keeps it.
    f.app.addQuote()->setInt(Invoice::status, 1);
    f.ui.answers = {0, 1};
    QVERIFY(f.docs.deleteInvoice());
    QCOMPARE(f.ui.alerts[4].title, QStringLiteral("Delete Quote"));
    QVERIFY(f.ui.lastAlertText().contains(QStringLiteral("your quote counter")));
    QVERIFY(!f.prefs.contains(P::quotCount));
}

QStringList repeatedNumbers(AppController &app)
{
    QStringList seen, repeated;
    for (const Record *doc : app.documentList().all()) {
        const QString n = doc->text(Invoice::number);
        if (!n.isEmpty() && seen.contains(n))
            repeated << n;
        seen << n;
    }
    return repeated;
}

void TestDocumentCommands::numbersAreNeverGivenTwice()
{
    Fixture f;
    // A duplicated quote takes an invoice number; the next invoice skips it
    // and the counter, kept in the store, moves past it.
    Record *quote = f.app.addQuote();
    f.app.setCurrentInvoice(quote);
    QCOMPARE(f.docs.duplicateInvoice()->text(Invoice::number), QStringLiteral("RE-11"));
    QCOMPARE(f.app.addInvoice()->text(Invoice::number), QStringLiteral("RE-12"));
    QCOMPARE(f.prefs.integer(P::invCount), 11);
    Record *middle = f.app.addInvoice();
    QCOMPARE(middle->text(Invoice::number), QStringLiteral("RE-13"));
    QCOMPARE(f.app.addInvoice()->text(Invoice::number), QStringLiteral("RE-14"));
    // A deletion without adjusting would hand out the last number again.
    f.app.setCurrentInvoice(middle);
    f.ui.answers = {0, 1};
    QVERIFY(f.docs.deleteInvoice());
    QCOMPARE(f.app.addInvoice()->text(Invoice::number), QStringLiteral("RE-15"));
    QVERIFY2(repeatedNumbers(f.app).isEmpty(), qPrintable(repeatedNumbers(f.app).join(u' ')));

    // Another process raised the counter in the store: this one's settings
    // are behind, and the number follows the store.
    {
        Preferences otherPrefs(f.home.configFile());
        test::FakeInteraction otherUi;
        AppController other(otherPrefs, otherUi);
        QVERIFY(!other.raiseNumberCounter(P::invCount));
        QVERIFY(!other.raiseNumberCounter(P::invCount));
    }
    QCOMPARE(f.app.addInvoice()->text(Invoice::number), QStringLiteral("RE-18"));
    QCOMPARE(f.prefs.integer(P::invCount), 14);
    // The person's own choice goes to the store; set back below the numbers
    // in use, it still gives only free ones.
    QVERIFY(!f.app.setNumberCounter(P::invCount, 0));
    QCOMPARE(f.app.addInvoice()->text(Invoice::number), QStringLiteral("RE-5"));
    QVERIFY(!f.app.setNumberCounter(P::invCount, 9));
    QCOMPARE(f.app.addInvoice()->text(Invoice::number), QStringLiteral("RE-16"));
    QVERIFY(repeatedNumbers(f.app).isEmpty());
    // A pattern that cannot count gives its one number without hanging.
    f.prefs.setString(P::invPattern, QStringLiteral("RE"));
    QCOMPARE(f.app.addInvoice()->text(Invoice::number), QStringLiteral("RE"));
    QCOMPARE(f.app.addInvoice()->text(Invoice::number), QStringLiteral("RE"));
}

void TestDocumentCommands::convertQuote()
{
    Fixture f;
    f.prefs.setString(P::locInvoice, QStringLiteral("Invoice"));
    f.prefs.setString(P::tempQuotFooter, QStringLiteral("Quote footer"));
    f.app.addInvoice();
    QVERIFY(!f.docs.convertQuoteToInvoice());
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Sorry!"));

    f.app.addInvoice();
    Record *quote = f.app.addQuote();
    f.ui.answers = {1};
    QVERIFY(!f.docs.convertQuoteToInvoice());
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Convert Into Invoice"));
    QCOMPARE(quote->integer(Invoice::kind), 0);

    f.clock.advance(3600);
    QVERIFY(f.docs.convertQuoteToInvoice());
    QCOMPARE(quote->integer(Invoice::kind), 1);
    QCOMPARE(quote->text(Invoice::number), QStringLiteral("RE-13")); // counts itself once, no second + 1
    QCOMPARE(quote->date(Invoice::due), f.clock.now().addDays(14));
    QCOMPARE(quote->text(Invoice::title), QStringLiteral("Invoice"));
    QCOMPARE(quote->text(Invoice::footer), QString());
    QVERIFY(!f.app.store()->hasChanges());
}

void TestDocumentCommands::duplicate()
{
    Fixture f;
    Record *source = f.app.addInvoice();
    Record *srcLine = f.line(source, 100);
    source->setInt(Invoice::status, 3);
    source->setText(Invoice::dispatchNumber, QStringLiteral("LS-1"));
    f.app.documentChanged(source);
    f.clock.advance(86400);
    Record *copy = f.docs.duplicateInvoice();
    QCOMPARE(f.app.currentInvoice(), copy);
    QVERIFY(copy->text(Invoice::uniqueID) != source->text(Invoice::uniqueID));
    QCOMPARE(copy->text(Invoice::number), QStringLiteral("RE-12"));
    QCOMPARE(copy->integer(Invoice::status), 0);
    QCOMPARE(copy->text(Invoice::dispatchNumber), QString());
    QCOMPARE(copy->date(Invoice::sent), f.clock.now());
    QCOMPARE(copy->date(Invoice::due), f.clock.now().addDays(14));

    // Lines are copies: changing one side leaves the other alone.
    Record *copyLine = copy->toMany(Invoice::items).value(0);
    QVERIFY(copyLine && copyLine != srcLine);
    copyLine->setNum(Item::baseAmount, 80);
    f.app.documentChanged(copy);
    QCOMPARE(source->num(Invoice::amount), 100.0);
    QCOMPARE(copy->num(Invoice::amount), 80.0);

    // A quote stays a quote but takes the invoice numbering.
    f.app.addQuote();
    Record *quoteCopy = f.docs.duplicateInvoice();
    QCOMPARE(quoteCopy->integer(Invoice::kind), 0);
    QCOMPARE(quoteCopy->text(Invoice::number), QStringLiteral("RE-13"));
}

void TestDocumentCommands::calculationIsFixedAtCreation()
{
    Fixture f;
    // 100 at 19 % less 10 %: classic 109.00, to the cent 107.10.
    const auto discounted = [&f](Record *doc) {
        Record *item = f.line(doc, 100);
        item->setBool(Item::isTax1Applied, true);
        item->setNum(Item::tax1Percent, 0.19);
        doc->setNum(Invoice::tax1Percent, 0.19);
        doc->setBool(Invoice::isDiscountEnabled, true);
        doc->setInt(Invoice::discountKind, 1);
        doc->setNum(Invoice::discountPercent, 0.10);
        f.app.documentChanged(doc);
        return doc;
    };
    f.prefs.setBool(P::beforeTaxesBool, true);
    Record *classic = discounted(f.app.addInvoice());
    QCOMPARE(classic->num(Invoice::amount), 109.0);
    // Switching the setting changes new documents only, also after a reopen.
    f.prefs.setBool(P::centExactTotals, true);
    f.app.documentChanged(classic);
    QCOMPARE(classic->num(Invoice::amount), 109.0);
    Record *exact = discounted(f.app.addInvoice());
    QCOMPARE(exact->num(Invoice::amount), 107.10);
    f.prefs.setBool(P::centExactTotals, false);
    const QString exactId = exact->text(Invoice::uniqueID);
    const QString classicId = classic->text(Invoice::uniqueID);
    f.app.reopenStore();
    Record *reread = f.app.findDocument(exactId);
    QVERIFY(reread);
    f.app.documentChanged(reread);
    QCOMPARE(reread->num(Invoice::amount), 107.10);

    // A copy made to the cent from a classic invoice; the original stays.
    f.app.setCurrentInvoice(f.app.findDocument(classicId));
    Record *copy = f.docs.duplicateInvoice(true);
    QVERIFY(copy->boolean(Invoice::centExactTotals));
    QCOMPARE(copy->num(Invoice::amount), 107.10);
    QCOMPARE(f.app.findDocument(classicId)->num(Invoice::amount), 109.0);
}

void TestDocumentCommands::cancelByCreditNote()
{
    Fixture f;
    f.prefs.setString(P::locCreditNote, QStringLiteral("Stornorechnung"));
    f.prefs.setString(P::locCreditNoteFor, QStringLiteral("Storno der Rechnung %1 vom %2"));
    f.prefs.setString(P::prefsDatePattern, QStringLiteral("dd.MM.yyyy"));
    Record *invoice = f.app.addInvoice();
    Record *taxed = f.line(invoice, 100);
    taxed->setBool(Item::isTax1Applied, true);
    taxed->setNum(Item::tax1Percent, 0.19);
    invoice->setNum(Invoice::tax1Percent, 0.19);
    f.line(invoice, 20.5)->setNum(Item::unitCount, 3);
    invoice->setBool(Invoice::isShippingEnabled, true);
    invoice->setNum(Invoice::shippingAmount, 4.9);
    f.app.documentChanged(invoice);
    const double total = invoice->num(Invoice::amount);
    QCOMPARE(total, 100 * 1.19 + 61.5 + 4.9);

    // A created invoice is changed or deleted instead.
    QVERIFY(!f.docs.cancelInvoice());
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Sorry!"));
    f.app.setDocumentValue(invoice, Invoice::status, 1);
    f.ui.answers = {1};
    QVERIFY(!f.docs.cancelInvoice());
    QCOMPARE(f.ui.alerts.last().defaultButton, 1); // Return keeps the invoice alone
    QCOMPARE(f.app.documentList().all().size(), 1);

    f.ui.answers = {0};
    Record *note = f.docs.cancelInvoice();
    QVERIFY(note && note != invoice);
    QCOMPARE(f.app.currentInvoice(), note);
    QCOMPARE(note->integer(Invoice::kind), 1);
    QCOMPARE(note->text(Invoice::number), QStringLiteral("RE-12"));
    QCOMPARE(note->text(Invoice::title), QStringLiteral("Stornorechnung"));
    QCOMPARE(note->text(Invoice::subject), QStringLiteral("Storno der Rechnung RE-11 vom 05.03.2026"));
    QCOMPARE(note->text(Invoice::precedingDate), QStringLiteral("2026-03-05"));
    // Taxes included: a credit note of the net alone would leave VAT owed.
    QCOMPARE(note->num(Invoice::amount), -total);
    QCOMPARE(note->num(Invoice::tax1Amount), -19.0);
    QCOMPARE(invoice->num(Invoice::amount), total); // the invoice stays as it was
    // Sent, it takes its amount back out of the summary.
    f.app.setDocumentValue(note, Invoice::status, 1);
    QCOMPARE(f.app.summary().totalAmount, 0.0f);
    // A credit note is not cancelled in turn.
    QVERIFY(!f.docs.cancelInvoice());
}

QTEST_GUILESS_MAIN(TestDocumentCommands)
void TestDocumentCommands::dueDateBeforeDateAsksOnce()
{
    Fixture f;
    Record *invoice = f.app.addInvoice();
    const Date date = invoice->date(Invoice::date);
    const Date due = invoice->date(Invoice::due);
    const QVariant early = QVariant::fromValue(date.addDays(-2));

    f.ui.answers = {1}; // Cancel, the default
    QVERIFY(!f.app.setDocumentValue(invoice, Invoice::due, early));
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Due Date Before Invoice Date"));
    QCOMPARE(f.ui.alerts.last().defaultButton, 1);
    QCOMPARE(invoice->date(Invoice::due).referenceSeconds(), due.referenceSeconds());
    // Asked once: the second time the date is taken as meant.
    QVERIFY(f.app.setDocumentValue(invoice, Invoice::due, early));
    QCOMPARE(f.ui.alerts.size(), 1);
    QCOMPARE(invoice->date(Invoice::due).referenceSeconds(), date.addDays(-2).referenceSeconds());
    // A due date on or after the invoice's date, or a quote's, is never asked about.
    Record *other = f.app.addInvoice();
    QVERIFY(f.app.setDocumentValue(other, Invoice::due, QVariant::fromValue(date.addDays(3))));
    Record *quote = f.app.addQuote();
    QVERIFY(f.app.setDocumentValue(quote, Invoice::due, early));
    QCOMPARE(f.ui.alerts.size(), 1);
}

#include "TestDocumentCommands.moc"
