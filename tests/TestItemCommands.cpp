#include "CommandSupport.h"

#include "app/AppController.h"
#include "app/ItemCommands.h"
#include "app/UndoHistory.h"
#include "app/Workspace.h"
#include "domain/Calculator.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "store/Store.h"

#include <QUndoStack>
#include <QtTest>

using namespace tabo;
using P = Preferences;

namespace {

struct Fixture : test::ControllerFixture
{
    ItemCommands &items = app.items();
    Record *doc = nullptr;
    QString error;

    Fixture()
    {
        prefs.setReal(P::tax1Rate, 0.19);
        prefs.setBool(P::tax1Enabled, true);
        doc = app.addInvoice();
    }
    Record *add(const QString &title, const QString &price, const QString &sku = {}, bool tax2 = false)
    {
        const Result<Record *> added = items.addItem({title, {}, {}, sku, {}, price, QStringLiteral("1"), true, tax2, false});
        error = added.error().text;
        return added.value();
    }
    const QList<Record *> &all(EntityId e) { return app.store()->all(e); }
};

} // namespace

class TestItemCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newLinesAndCatalogue();
    void badNumbersAreRefused();
    void taxesOfNewLines();
    void catalogueUpkeep();
    void deleteAndEditLines();
    void shippingAndDiscount();
    void sortOrders();
    void worksWithoutTheController();
};

void TestItemCommands::newLinesAndCatalogue()
{
    Fixture f;
    Record *line = f.add(QStringLiteral("Consulting"), QStringLiteral("100.1"), {}, true);
    QCOMPARE(line->toOne(Item::invoice), f.doc);
    QCOMPARE(line->num(Item::baseAmount), double(100.1f));
    QCOMPARE(line->num(Item::tax1Percent), double(0.19f));
    QCOMPARE(f.doc->num(Invoice::amount), 119.12); // recalculated and saved
    QVERIFY(!f.app.store()->hasChanges());
    // The catalogue entry takes the enabled taxes, not the line's boxes.
    const Record *entry = f.all(EntityId::RecentItem).value(0);
    QVERIFY(entry->boolean(RecentItem::isTax1Applied) && !entry->boolean(RecentItem::isTax2Applied));

    f.add(QStringLiteral("Consulting"), QStringLiteral("100.1"));
    QCOMPARE(f.all(EntityId::RecentItem).size(), 1);
    f.add(QStringLiteral("Consulting"), QStringLiteral("120"));
    f.add(QStringLiteral("Cable"), QStringLiteral("5"), QStringLiteral("A-1"));
    f.add(QStringLiteral("Cable, blue"), QStringLiteral("6"), QStringLiteral("A-1"));
    QCOMPARE(f.all(EntityId::RecentItem).size(), 3);

    // Back into the popover: a box needs the entry's flag and the preference.
    f.prefs.setBool(P::tax1Enabled, false);
    const ItemFields fields = f.items.addItemRecent(*entry);
    QCOMPARE(fields.price, QStringLiteral("100.1"));
    QVERIFY(!fields.tax1);
}

void TestItemCommands::badNumbersAreRefused()
{
    Fixture f;
    QVERIFY(!f.add(QStringLiteral("Consulting"), QStringLiteral("abc")));
    QCOMPARE(f.error, QStringLiteral("The price “abc” is not a number."));
    QVERIFY(!f.add(QStringLiteral("Consulting"), QString()));
    QVERIFY(f.doc->toMany(Invoice::items).isEmpty() && f.all(EntityId::RecentItem).isEmpty());
    QCOMPARE(f.app.store()->count(EntityId::Item), 0);

    double v = 0;
    QLocale::setDefault(QLocale::c());
    for (const char *bad : {"", "nan", "inf", "1e400", "12abc", "12,5"})
        QVERIFY2(!ItemCommands::parseNumber(QString::fromLatin1(bad), &v), bad);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    QVERIFY(ItemCommands::parseNumber(QStringLiteral(" 12.5 "), &v) && v == 12.5);
    QVERIFY(ItemCommands::parseNumber(QStringLiteral("1.234,5"), &v) && v == 1234.5);
    QLocale::setDefault(QLocale::c());

    // The documents' region reads a German price on an English desktop; the
    // message names the field as the person knows it.
    f.prefs.setString(P::prefsRegion, QStringLiteral("de_DE"));
    Record *line = f.add(QStringLiteral("Consulting"), QStringLiteral("12,50"));
    QVERIFY(line);
    QCOMPARE(line->num(Item::baseAmount), 12.5);
    QCOMPARE(f.items.editItem(line, QStringLiteral("baseAmount"), QStringLiteral("zwölf")).text,
             QStringLiteral("The price “zwölf” is not a number."));
}

void TestItemCommands::taxesOfNewLines()
{
    Fixture f;
    QVERIFY(f.app.firstAssiTabAction(1)); // German: 19 % and 7 % both charged
    QVERIFY(f.prefs.boolean(P::tax1Enabled) && f.prefs.boolean(P::tax2Enabled));
    ItemFields fields = f.items.newItemFields();
    QVERIFY(fields.tax1 && !fields.tax2 && !fields.tax3);
    QCOMPARE(fields.quantity, QStringLiteral("1"));

    // The last line's taxes carry over, and so does a line without tax.
    fields.title = QStringLiteral("Book");
    fields.price = QStringLiteral("10");
    fields.tax1 = false;
    fields.tax2 = true;
    QVERIFY(f.items.addItem(fields).value());
    fields = f.items.newItemFields();
    QVERIFY(!fields.tax1 && fields.tax2);
    fields.title = QStringLiteral("Export");
    fields.price = QStringLiteral("10");
    fields.tax2 = false;
    QVERIFY(f.items.addItem(fields).value());
    fields = f.items.newItemFields();
    QVERIFY(!fields.tax1 && !fields.tax2 && !fields.tax3);

    // A tax no longer charged is not ticked; the first charged one is.
    f.prefs.setBool(P::tax1Enabled, false);
    ItemCommands fresh(f.app, f.app, f.app.undo(), f.prefs, f.ui);
    fields = fresh.newItemFields(); // the newest line of the document stands in
    QVERIFY(!fields.tax1 && !fields.tax2);
    f.items.addItem({QStringLiteral("Tea"), {}, {}, {}, {}, QStringLiteral("3"), QStringLiteral("1"), true, false, false}).value();
    fields = f.items.newItemFields();
    QVERIFY(!fields.tax1 && fields.tax2);
}

void TestItemCommands::deleteAndEditLines()
{
    Fixture f;
    Record *keep = f.add(QStringLiteral("Design"), QStringLiteral("50"));
    Record *line = f.add(QStringLiteral("Consulting"), QStringLiteral("100"));
    f.doc->setInt(Invoice::status, 1);
    QVERIFY(!f.items.deleteItem(line));
    QVERIFY(f.items.editItem(line, QStringLiteral("unitCount"), 3));
    QCOMPARE(f.ui.alerts.size(), 2);
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Error!"));
    QVERIFY(f.ui.lastAlertText().endsWith(QStringLiteral("resend the modified invoice.")));

    f.doc->setInt(Invoice::status, 0);
    QVERIFY(f.items.editItem(line, QStringLiteral("colour"), 3));
    QVERIFY(f.items.editItem(line, QStringLiteral("unitCount"), QStringLiteral("nan")));
    QCOMPARE(line->num(Item::unitCount), 1.0);
    QVERIFY(!f.items.editItem(line, QStringLiteral("unitCount"), QStringLiteral("3")));
    QCOMPARE(f.doc->num(Invoice::subAmount), 350.0);

    f.ui.answers = {1};
    QVERIFY(!f.items.deleteItem(line));
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Delete Item"));
    QCOMPARE(f.ui.alerts.last().buttons, QStringList({QStringLiteral("Delete"), QStringLiteral("Cancel")}));
    QVERIFY(f.items.deleteItem(line));
    QCOMPARE(f.doc->toMany(Invoice::items), QList<Record *>{keep});
    QCOMPARE(f.doc->num(Invoice::subAmount), 50.0);
}

void TestItemCommands::shippingAndDiscount()
{
    Fixture f;
    ShippingFields ship{true, QStringLiteral("Courier"), QStringLiteral("next day"), true, QStringLiteral("12.5"),
                        true, false, false, {}};
    QVERIFY(!f.items.closeShippingPopover(ship));
    QCOMPARE(f.doc->num(Invoice::amount), 14.88); // 12.5 plus 19 %, rounded
    ship.subtitle = QStringLiteral("changed"); // not a new remembered line
    QVERIFY(!f.items.closeShippingPopover(ship));
    QCOMPARE(f.all(EntityId::RecentShipping).size(), 1);
    ship.amount = QStringLiteral("15");
    QVERIFY(!f.items.closeShippingPopover(ship));
    QCOMPARE(f.all(EntityId::RecentShipping).size(), 2);
    ship.amount = QStringLiteral("free");
    QVERIFY(f.items.closeShippingPopover(ship));
    QCOMPARE(f.items.shippingFields().amount, QStringLiteral("15"));

    Record *other = f.app.addInvoice();
    f.items.selectRecentShipping(*f.all(EntityId::RecentShipping).first());
    QVERIFY(other->boolean(Invoice::isShippingEnabled) && other->boolean(Invoice::hasShippingSubtitle));
    QCOMPARE(other->text(Invoice::shippingSubtitle), QStringLiteral("next day"));
    QCOMPARE(other->num(Invoice::amount), 14.88);

    DiscountFields disc{true, 1, {}, QStringLiteral("10"), QStringLiteral("Loyalty"), {}, false};
    QVERIFY(!f.items.closeDiscountPopover(disc));
    QCOMPARE(other->num(Invoice::discountPercent), 0.1);
    QCOMPARE(f.items.discountFields().percent, QStringLiteral("10"));
    QVERIFY(other->num(Invoice::amount) < 14.88);
    disc.kind = 0; // a fixed discount needs its amount
    QVERIFY(f.items.closeDiscountPopover(disc));
    QCOMPARE(other->integer(Invoice::discountKind), 1);
}

void TestItemCommands::sortOrders()
{
    Fixture f;
    Record *b = f.add(QStringLiteral("beta"), QStringLiteral("30"));
    Record *a = f.add(QStringLiteral("Alpha"), QStringLiteral("10"));
    Record *c = f.add(QStringLiteral("Gamma"), QStringLiteral("20"));
    const QList<QList<Record *>> expected = {{a, b, c}, {b, a, c}, {c, a, b}, {b, c, a}, {b, a, c}};
    for (int order = 0; order < 5; ++order) {
        f.prefs.setInteger(P::itemSortOrder, order);
        QCOMPARE(f.items.sortedItems(*f.doc), expected[order]);
    }
}

void TestItemCommands::catalogueUpkeep()
{
    Fixture f;
    Record *line = f.add(QStringLiteral("Consulting"), QStringLiteral("100"), QStringLiteral("C-1"));
    f.add(QStringLiteral("Cable"), QStringLiteral("5"));
    f.add(QStringLiteral("adapter"), QStringLiteral("7"));
    QCOMPARE(f.items.catalogue().size(), 3);
    QCOMPARE(f.items.catalogue().first()->text(RecentItem::title), QStringLiteral("adapter")); // by title, case aside
    QCOMPARE(f.items.catalogue(QStringLiteral("c-1")).size(), 1);
    Record *entry = f.items.catalogue(QStringLiteral("consult")).value(0);
    QVERIFY(entry);

    // Edits are checked and saved; the line made from the entry stays.
    f.prefs.setString(P::prefsRegion, QStringLiteral("de_DE"));
    QVERIFY(!f.items.editCatalogueEntry(entry, QStringLiteral("baseAmount"), QStringLiteral("120,50")));
    QCOMPARE(entry->num(RecentItem::baseAmount), 120.5);
    QCOMPARE(f.items.editCatalogueEntry(entry, QStringLiteral("baseAmount"), QStringLiteral("viel")).text,
             QStringLiteral("The price “viel” is not a number."));
    QVERIFY(f.items.editCatalogueEntry(entry, QStringLiteral("uniqueID"), QStringLiteral("x")));
    QVERIFY(!f.items.editCatalogueEntry(entry, QStringLiteral("isTax2Applied"), true));
    QVERIFY(!f.items.editCatalogueEntry(entry, QStringLiteral("unit"), QStringLiteral("h")));
    QVERIFY(!f.app.store()->hasChanges());
    QCOMPARE(line->num(Item::baseAmount), 100.0);

    // Deleting asks, with Cancel the default.
    f.ui.answers = {1};
    QVERIFY(!f.items.deleteCatalogueEntries({entry}));
    QCOMPARE(f.ui.alerts.last().defaultButton, 1);
    QCOMPARE(f.items.catalogue(QStringLiteral("A")).size(), 2); // "Cable", "adapter"
    QVERIFY(f.items.deleteCatalogueEntries(f.items.catalogue()));
    QVERIFY(f.items.catalogue().isEmpty());
    QCOMPARE(f.doc->toMany(Invoice::items).size(), 3);
}

QTEST_GUILESS_MAIN(TestItemCommands)
// A store and a fake person are all a command needs.
struct BareWorkspace : StoreAccess, CurrentDocument
{
    explicit BareWorkspace(const QString &path) : file(path) { QVERIFY(!file.open()); }
    Store *store() override { return &file; }
    bool hasStore() const override { return true; }
    Error save() override { return file.save(); }
    void syncWithStore() override {}
    Error closeStore() override { return {}; }
    bool reopenStore() override { return true; }
    Record *currentInvoice() const override { return current; }
    void setCurrentInvoice(Record *document) override { current = document; }
    void documentChanged(Record *document) override
    {
        Calculator::calculateInvoice(*document, {});
        ++changes;
        QVERIFY(!save());
    }
    void documentCreated(Record *document) override { current = document; }
    void calculateInvoice(Record *document) override { Calculator::calculateInvoice(*document, {}); }
    bool setDocumentValue(Record *document, int attr, const QVariant &value, const QVariant &) override
    {
        document->setValue(attr, value);
        documentChanged(document);
        return true;
    }
    Store file;
    Record *current = nullptr;
    int changes = 0;
};

void TestItemCommands::worksWithoutTheController()
{
    test::TempHome home;
    const QString path = home.path() + QStringLiteral("/bare.mbdb");
    {
        BareWorkspace work(path);
        test::FakeInteraction ui;
        Preferences prefs(home.configFile());
        UndoHistory undo(work, work);
        ItemCommands items(work, work, undo, prefs, ui);
        const Result<Record *> refused = items.addItem(
            {QStringLiteral("Tea"), {}, {}, {}, {}, QStringLiteral("3"), QStringLiteral("2"), false, false, false});
        QVERIFY(!refused && !refused.error().text.isEmpty()); // no document yet
        work.current = work.file.insert(EntityId::Invoice);
        const Result<Record *> line = items.addItem(
            {QStringLiteral("Tea"), {}, {}, {}, {}, QStringLiteral("3"), QStringLiteral("2"), false, false, false});
        QVERIFY2(line, qPrintable(line.error().text));
        QCOMPARE(work.changes, 1);
        QCOMPARE(work.current->num(Invoice::amount), 6.0);
        QCOMPARE(items.catalogue().size(), 1);
        undo.stack().undo();
        QCOMPARE(work.current->toMany(Invoice::items).size(), 0);
    }
    // What the commands saved is in the file.
    Store reopened(path);
    QVERIFY(!reopened.open());
    QCOMPARE(reopened.count(EntityId::RecentItem), 1);
    QCOMPARE(reopened.all(EntityId::Invoice).value(0)->num(Invoice::amount), 0.0);
}

#include "TestItemCommands.moc"
