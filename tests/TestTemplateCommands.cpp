#include "CommandSupport.h"

#include "app/AppController.h"
#include "app/TemplateCommands.h"
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
    TemplateCommands &templates = app.templates();

    Fixture() { Clock::setInstance(&clock); }
    ~Fixture() { Clock::setInstance(nullptr); }

    void include(bool on)
    {
        for (P::Key k : {P::templateIncludeClient, P::templateIncludeTitle, P::templateIncludeItems,
                         P::templateIncludeShipping, P::templateIncludeDiscount})
            prefs.setBool(k, on);
    }
    // An invoice with one line and every group filled in.
    Record *source()
    {
        Record *doc = app.addInvoice();
        const QVariantMap values = {{"address", "Ada Lovelace"}, {"title", "Invoice"}, {"conditions", "14 days"},
                                    {"footer", "Thank you"}, {"miscString2", "PO 42"}, {"currency", "€"},
                                    {"dispatchNumber", "LS-1"}, {"tax1Percent", 0.19}, {"isShippingEnabled", true},
                                    {"hasShippingSubtitle", true}, {"shippingSubtitle", "by noon"},
                                    {"shippingAmount", 10}, {"discountKind", 1}, {"discountPercent", 0.05}};
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            doc->setValue(it.key(), it.value());
        Record *item = app.store()->insert(EntityId::Item);
        item->setText(Item::title, QStringLiteral("Support"));
        item->setNum(Item::baseAmount, 200);
        item->setNum(Item::unitCount, 1);
        item->setToOne(Item::invoice, doc);
        app.documentChanged(doc);
        return doc;
    }
};

} // namespace

class TestTemplateCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void groupsOffKeepTheRest();
    void fillingFromTemplate();
    void refusalsAndList();
};

void TestTemplateCommands::groupsOffKeepTheRest()
{
    Fixture f;
    f.include(false);
    Record *doc = f.source();
    Record *t = f.templates.createNewTemplate(QStringLiteral("Monthly"), QStringLiteral("for Ada"));
    QCOMPARE(t->text(Template::notes), QStringLiteral("for Ada"));
    for (int a : {Template::address, Template::title, Template::number, Template::dispatchNumber,
                  Template::shippingSubtitle})
        QVERIFY2(t->text(a).isEmpty(), qPrintable(t->desc().attributes[a].name));
    QVERIFY(!t->boolean(Template::isShippingEnabled) && !t->boolean(Template::hasShippingSubtitle));
    QCOMPARE(t->num(Template::discountPercent), 0.0);
    QVERIFY(t->toMany(Template::items).isEmpty());
    for (int a : {Template::conditions, Template::footer, Template::miscString2, Template::currency,
                  Template::tax1Percent, Template::amount, Template::subAmount, Template::kind, Template::due})
        QVERIFY2(t->value(a) == doc->value(a) && t->value(a).isValid(), qPrintable(t->desc().attributes[a].name));
}

void TestTemplateCommands::fillingFromTemplate()
{
    Fixture f;
    f.include(true);
    Record *a = f.source();
    Record *t = f.templates.createNewTemplate(QStringLiteral("Full"), {});
    Record *tLine = t->toMany(Template::items).value(0);
    Record *aLine = a->toMany(Invoice::items).value(0);
    QVERIFY(tLine && tLine != aLine);
    tLine->setText(Item::title, QStringLiteral("Support plus"));
    QCOMPARE(aLine->text(Item::title), QStringLiteral("Support"));

    f.clock.advance(7 * 86400);
    Record *b = f.app.addInvoice();
    b->setText(Invoice::customerName, QStringLiteral("Bob"));
    const Date date = b->date(Invoice::date);
    QVERIFY(f.templates.selectTemplate(t));
    QVERIFY(!f.app.store()->hasChanges());
    Record *bLine = b->toMany(Invoice::items).value(0);
    QVERIFY(bLine && bLine != tLine);
    QCOMPARE(bLine->text(Item::title), QStringLiteral("Support plus"));
    QCOMPARE(b->num(Invoice::subAmount), 200.0);
    bLine->setNum(Item::baseAmount, 1);
    QCOMPARE(tLine->num(Item::baseAmount), 200.0);
    // The template's flag, not its text, lands in the subtitle.
    QCOMPARE(b->text(Invoice::shippingSubtitle), QStringLiteral("true"));
    QVERIFY(!b->boolean(Invoice::hasShippingSubtitle));
    QCOMPARE(b->text(Invoice::address), QStringLiteral("Ada Lovelace"));
    QCOMPARE(b->date(Invoice::misc5), f.clock.now());
    QCOMPARE(b->date(Invoice::date), date); // dates never come back
    QCOMPARE(b->text(Invoice::customerName), QStringLiteral("Bob"));

    // Without the client group the address is cleared; the old lines go.
    f.include(false);
    QVERIFY(f.templates.selectTemplate(f.templates.createNewTemplate(QStringLiteral("Bare"), {})));
    QCOMPARE(b->text(Invoice::address), QString());
    QVERIFY(b->toMany(Invoice::items).isEmpty() && bLine->isDeleted());

    // Read back from the file, each side still holds its own lines.
    AppController again(f.prefs, f.ui);
    const Record *saved = again.templates().findTemplate(QStringLiteral("full"));
    QCOMPARE(saved->toMany(Template::items).value(0)->text(Item::title), QStringLiteral("Support plus"));
    const Record *savedA = again.findDocument(a->text(Invoice::uniqueID));
    QCOMPARE(savedA->toMany(Invoice::items).value(0)->text(Item::title), QStringLiteral("Support"));
}

void TestTemplateCommands::refusalsAndList()
{
    Fixture f;
    f.include(true);
    Record *doc = f.source();
    for (const char *name : {"monthly", "Annual", "Weekly"})
        f.templates.createNewTemplate(QString::fromLatin1(name), {});
    QStringList names;
    for (const Record *r : f.templates.templates())
        names << r->text(Template::uniqueID);
    QCOMPARE(names, QStringList({"Annual", "monthly", "Weekly"}));

    doc->setInt(Invoice::status, 1);
    doc->setText(Invoice::title, QStringLiteral("Changed"));
    QVERIFY(!f.templates.selectTemplate(f.templates.findTemplate(QStringLiteral("Annual"))));
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Error!"));
    QCOMPARE(doc->text(Invoice::title), QStringLiteral("Changed"));

    // Deleting takes the template's own lines along, not the document's.
    f.templates.deleteTemplate(f.templates.findTemplate(QStringLiteral("monthly")));
    QCOMPARE(f.templates.templates().size(), 2);
    QCOMPARE(f.app.store()->count(EntityId::Item), 3);
    QCOMPARE(doc->toMany(Invoice::items).size(), 1);
}

QTEST_GUILESS_MAIN(TestTemplateCommands)
#include "TestTemplateCommands.moc"
