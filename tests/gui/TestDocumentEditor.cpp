#include "gui/editor/AddressPopover.h"
#include "gui/editor/DatesPage.h"
#include "gui/main/DocumentActions.h"
#include "gui/editor/DocumentEditor.h"
#include "gui/main/DocumentListPane.h"
#include "gui/main/DocumentTableModel.h"
#include "gui/widgets/GuiInteraction.h"
#include "app/ItemCommands.h"
#include "gui/editor/ItemPopover.h"
#include "gui/editor/ItemsPage.h"
#include "gui/editor/ItemTableModel.h"
#include "gui/main/MainWindow.h"
#include "gui/widgets/PlainTextField.h"
#include "gui/editor/ShippingPopover.h"
#include "gui/editor/TemplatePopover.h"
#include "TestSupport.h"
#include "WindowFixture.h"

#include "app/AppController.h"
#include "app/TemplateCommands.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "store/Store.h"

#include <QAction>
#include <QCheckBox>
#include <QRadioButton>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableView>
#include <QtTest>

#include <memory>

using namespace tabo;

namespace {

struct Fixture : test::WindowFixture
{

    Fixture()
    {
        prefs.setReal(Preferences::tax1Rate, 0.19);
        prefs.setBool(Preferences::tax1Enabled, true);
        prefs.setString(Preferences::tax1Title, QStringLiteral("VAT"));
        prefs.setString(Preferences::prefsCurrency, QStringLiteral("EUR"));
        window = std::make_unique<MainWindow>(app);
        app.prepare();
        window->show();
        app.start(); // switches beforeTaxesBool on
    }
    template <class T> T *find(const QString &name) const { return window->findChild<T *>(name); }
    ItemsPage *items() const { return window->editor()->itemsPage(); }
    QString listTotal() const
    {
        DocumentTableModel *m = window->documentList()->model();
        return m->index(m->rowOf(app.currentInvoice()), DocumentTableModel::Total).data().toString();
    }
    QString gross() const { return find<QLabel>(QStringLiteral("totalGross"))->text(); }

    // Through the popover's own widgets, as a person types.
    void addLine(const QString &title, const QString &price, const QString &quantity)
    {
        window->documentActions()->addItem()->trigger();
        ItemPopover *popover = items()->itemPopover();
        QVERIFY(popover->isVisible());
        QTest::keyClicks(find<QLineEdit>(QStringLiteral("itemTitle")), title);
        QTest::keyClicks(find<QLineEdit>(QStringLiteral("itemPrice")), price);
        auto *count = find<QLineEdit>(QStringLiteral("itemQuantity"));
        count->clear();
        QTest::keyClicks(count, quantity);
        QTest::mouseClick(find<QPushButton>(QStringLiteral("addItemButton")), Qt::LeftButton);
    }
};

} // namespace

class TestDocumentEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void linesTotalsAndFields();
    void shippingDiscountAndTemplates();
    void documentCommandsFollowTheSelection();
    void addressFromContactsAndRecents();
};

void TestDocumentEditor::linesTotalsAndFields()
{
    Fixture f;
    QVERIFY(!f.window->documentActions()->addItem()->isEnabled());
    f.window->newInvoiceAction()->trigger();
    Record *doc = f.app.currentInvoice();
    QVERIFY(doc);
    QCOMPARE(f.window->editor()->pages()->currentIndex(), int(DocumentEditor::Client));

    f.addLine(QStringLiteral("Consulting"), QStringLiteral("100"), QStringLiteral("2"));
    // The unit code follows the unit typed until one is given; it keeps 3 letters or digits.
    f.window->documentActions()->addItem()->trigger();
    auto *unitCode = f.find<QLineEdit>(QStringLiteral("itemUnitCode"));
    QTest::keyClicks(f.find<QLineEdit>(QStringLiteral("itemUnit")), QStringLiteral("km"));
    QCOMPARE(unitCode->placeholderText(), QStringLiteral("KMT"));
    QTest::keyClicks(unitCode, QStringLiteral("lt-rx"));
    QCOMPARE(unitCode->text(), QStringLiteral("ltr"));
    QTest::keyClicks(f.find<QLineEdit>(QStringLiteral("itemTitle")), QStringLiteral("Travel"));
    QTest::keyClicks(f.find<QLineEdit>(QStringLiteral("itemPrice")), QStringLiteral("50"));
    QTest::mouseClick(f.find<QPushButton>(QStringLiteral("addItemButton")), Qt::LeftButton);
    QVERIFY(!f.items()->itemPopover()->isVisible());
    QCOMPARE(f.app.items().sortedItems(*doc).constLast()->text(Item::unitCode), QStringLiteral("LTR"));
    QCOMPARE(f.items()->model()->rowCount(), 2);
    QCOMPARE(f.items()->model()->index(0, ItemTableModel::Amount).data().toString(), QStringLiteral("238.00 EUR"));
    QCOMPARE(f.items()->model()->index(0, ItemTableModel::Taxes).data().toString(), QStringLiteral("19 %"));
    // 250 net plus 19 % on the standard path.
    QCOMPARE(f.listTotal(), QStringLiteral("297.50 EUR"));
    QCOMPARE(f.gross(), QStringLiteral("297.50 EUR"));
    QCOMPARE(f.find<QLabel>(QStringLiteral("totalTax1"))->text(), QStringLiteral("47.50 EUR"));

    // Refused entries leave the document as it was and say why, in place.
    f.addLine(QStringLiteral("Bad"), QStringLiteral("abc"), QStringLiteral("1"));
    QVERIFY(f.items()->itemPopover()->isVisible());
    QVERIFY(f.find<QLabel>(QStringLiteral("itemHint"))->isVisibleTo(f.items()->itemPopover()));
    QCOMPARE(doc->num(Invoice::amount), 297.5);
    f.window->documentActions()->addItem()->trigger(); // the same command closes it
    QVERIFY(!f.items()->itemPopover()->isVisible());
    ItemTableModel *lines = f.items()->model();
    QVERIFY(!lines->setData(lines->index(0, ItemTableModel::Quantity), QStringLiteral("two")));
    QVERIFY(f.find<QLabel>(QStringLiteral("itemEditHint"))->isVisibleTo(f.window.get()));
    QCOMPARE(f.gross(), QStringLiteral("297.50 EUR"));

    // An edit in place recalculates; the list and the totals follow at once.
    QVERIFY(lines->setData(lines->index(1, ItemTableModel::UnitPrice), QStringLiteral("60")));
    QCOMPARE(f.gross(), QStringLiteral("309.40 EUR"));
    QCOMPARE(f.listTotal(), QStringLiteral("309.40 EUR"));

    f.items()->table()->selectRow(0);
    QVERIFY(f.window->documentActions()->deleteItem()->isEnabled());
    GuiInteraction::setNextAnswer(0); // "Delete"
    f.window->documentActions()->deleteItem()->trigger();
    QCOMPARE(lines->rowCount(), 1);
    QCOMPARE(lines->index(0, ItemTableModel::Title).data().toString(), QStringLiteral("Travel"));
    QCOMPARE(f.listTotal(), QStringLiteral("71.40 EUR"));

    auto *name = f.find<QLineEdit>(QStringLiteral("customerName"));
    QTest::keyClicks(name, QStringLiteral("Ada Lovelace"));
    QTest::keyClick(name, Qt::Key_Return);
    QCOMPARE(doc->text(Invoice::customerName), QStringLiteral("Ada Lovelace"));
    DocumentTableModel *list = f.window->documentList()->model();
    QCOMPARE(list->index(list->rowOf(doc), DocumentTableModel::Client).data().toString(), QStringLiteral("Ada Lovelace"));

    // A text block is saved when the person leaves it.
    f.window->editor()->showPage(DocumentEditor::Texts);
    f.window->activateWindow(); // the offscreen platform leaves a closed popover active
    QVERIFY(QTest::qWaitForWindowActive(f.window.get()));
    auto *notes = f.find<PlainTextField>(QStringLiteral("notes"));
    notes->setFocus();
    QTest::keyClicks(notes, QStringLiteral("Thank you"));
    QCOMPARE(doc->text(Invoice::notes), QString());
    f.find<PlainTextField>(QStringLiteral("footer"))->setFocus();
    QCOMPARE(doc->text(Invoice::notes), QStringLiteral("Thank you"));

    // Partly paid takes an amount; what is not a number is refused.
    f.window->editor()->showPage(DocumentEditor::Dates);
    auto *status = f.find<QComboBox>(QStringLiteral("status"));
    auto *paid = f.find<QLineEdit>(QStringLiteral("paidAmount"));
    QVERIFY(!paid->isEnabled());
    status->setCurrentIndex(4);
    Q_EMIT status->activated(4);
    QCOMPARE(doc->integer(Invoice::status), 4);
    QVERIFY(paid->isEnabled());
    paid->clear();
    QTest::keyClicks(paid, QStringLiteral("lots"));
    QTest::keyClick(paid, Qt::Key_Return);
    QVERIFY(f.find<QLabel>(QStringLiteral("paidAmountHint"))->isVisibleTo(f.window.get()));
    QCOMPARE(doc->num(Invoice::paidAmount), 0.0);
    paid->clear();
    QTest::keyClicks(paid, QStringLiteral("20"));
    QTest::keyClick(paid, Qt::Key_Return);
    QCOMPARE(doc->num(Invoice::paidAmount), 20.0);
    QCOMPARE(float(doc->num(Invoice::dueAmount)), 51.4f);
}

void TestDocumentEditor::shippingDiscountAndTemplates()
{
    Fixture f;
    f.window->newInvoiceAction()->trigger();
    f.addLine(QStringLiteral("Consulting"), QStringLiteral("100"), QStringLiteral("1"));
    const auto click = [&](const char *name) { f.find<QAbstractButton>(QLatin1String(name))->click(); };
    const auto type = [&](const char *name, const QString &text) {
        auto *edit = f.find<QLineEdit>(QLatin1String(name));
        edit->clear();
        QTest::keyClicks(edit, text);
    };

    click("shippingButton");
    QVERIFY(f.items()->shippingPopover()->isVisible());
    click("shippingEnabled");
    type("shippingTitle", QStringLiteral("Courier"));
    type("shippingAmount", QStringLiteral("10"));
    click("shippingTax1");
    click("shippingOkButton");
    QVERIFY(!f.items()->shippingPopover()->isVisible());
    QCOMPARE(f.find<QLabel>(QStringLiteral("totalShipping"))->text(), QStringLiteral("10.00 EUR"));
    QCOMPARE(f.gross(), QStringLiteral("130.90 EUR"));

    // Discount before taxes: 10 % off 110, the taxes stay on the full bases.
    click("discountButton");
    click("discountEnabled");
    click("discountByPercent");
    type("discountPercent", QStringLiteral("ten"));
    click("discountOkButton");
    QVERIFY(f.find<QWidget>(QStringLiteral("discountPopover"))->isVisible());
    QCOMPARE(f.gross(), QStringLiteral("130.90 EUR"));
    type("discountPercent", QStringLiteral("10"));
    click("discountOkButton");
    QCOMPARE(f.gross(), QStringLiteral("119.90 EUR"));
    QCOMPARE(f.find<QLabel>(QStringLiteral("totalDiscount"))->text(), QStringLiteral("− 10 %"));

    click("templatesButton");
    QCheckBox *withItems = f.find<QCheckBox>(QStringLiteral("templateIncludeItems"));
    withItems->click();
    QVERIFY(f.prefs.boolean(Preferences::templateIncludeItems));
    type("templateName", QStringLiteral("Monthly"));
    click("saveTemplateButton");
    QVERIFY(!f.items()->templatePopover()->isVisible());
    QCOMPARE(f.app.templates().templates().size(), 1);

    // A fresh invoice filled from the template and the remembered shipping.
    f.window->newInvoiceAction()->trigger();
    click("templatesButton");
    f.items()->templatePopover()->tabs()->setCurrentIndex(TemplatePopover::TemplatesTab);
    click("applyTemplateButton");
    QCOMPARE(f.items()->model()->rowCount(), 1);
    QCOMPARE(f.gross(), QStringLiteral("119.00 EUR")); // without the shipping and discount groups
    click("shippingButton");
    f.items()->shippingPopover()->tabs()->setCurrentIndex(ShippingPopover::RememberedTab);
    click("useShippingButton");
    QCOMPARE(f.app.currentInvoice()->text(Invoice::shippingTitle), QStringLiteral("Courier"));
}

void TestDocumentEditor::documentCommandsFollowTheSelection()
{
    Fixture f;
    DocumentActions *actions = f.window->documentActions();
    for (QAction *a : { actions->duplicate(), actions->convert(), actions->remove(), actions->deleteItem() })
        QVERIFY(!a->isEnabled());

    f.window->newQuoteAction()->trigger();
    QVERIFY(actions->convert()->isEnabled());
    DatesPage *dates = f.window->editor()->datesPage();
    QVERIFY(!f.find<QComboBox>(QStringLiteral("status"))->isVisibleTo(dates));
    GuiInteraction::setNextAnswer(0); // "Convert"
    actions->convert()->trigger();
    QCOMPARE(f.app.currentInvoice()->integer(Invoice::kind), 1);
    QVERIFY(!actions->convert()->isEnabled());
    QVERIFY(f.find<QComboBox>(QStringLiteral("status"))->isVisibleTo(dates));

    actions->duplicate()->trigger();
    DocumentTableModel *list = f.window->documentList()->model();
    QCOMPARE(list->rowCount(), 2);

    // The Delete key on the list deletes the selection, and nothing without one.
    QTableView *view = f.window->documentList()->view();
    QVERIFY(QTest::qWaitForWindowActive(f.window.get()));
    view->setFocus();
    GuiInteraction::setNextAnswer(0); // "Delete"
    GuiInteraction::setNextAnswer(1); // no counter adjustment
    QTest::keyClick(view, Qt::Key_Delete);
    QCOMPARE(list->rowCount(), 1);
    QVERIFY(!f.app.currentInvoice());
    QVERIFY(!actions->remove()->isEnabled());
    QTest::keyClick(view, Qt::Key_Delete);
    QCOMPARE(list->rowCount(), 1);

    // A date changed outside the editor is shown, never written back stale
    // when the selection moves on.
    Record *first = list->recordAt(0);
    f.app.setCurrentInvoice(first);
    const Date moved = first->date(Invoice::date).addDays(-40);
    first->setDate(Invoice::date, moved);
    f.app.documentChanged(first);
    f.window->newInvoiceAction()->trigger();
    QCOMPARE(first->date(Invoice::date), moved);
}

void TestDocumentEditor::addressFromContactsAndRecents()
{
    Fixture f;
    f.prefs.setString(Preferences::prefsAddressPattern, QStringLiteral("%FIRSTNAME% %LASTNAME%\n%CITY%"));
    f.prefs.setInteger(Preferences::clientNamePatternTag, 1);
    f.window->newInvoiceAction()->trigger();
    Record *doc = f.app.currentInvoice();
    QVERIFY(QTest::qWaitForWindowActive(f.window.get()));

    const QString bad = f.home.path() + QStringLiteral("/bad.vcf");
    const QString good = f.home.path() + QStringLiteral("/people.vcf");
    for (const auto &[path, text] : { std::pair(bad, QByteArray("no cards here")),
             std::pair(good, QByteArray("BEGIN:VCARD\r\nVERSION:3.0\r\nN:Hopper;Grace;;;\r\nFN:Grace Hopper\r\n"
                                        "EMAIL;TYPE=INTERNET:grace@navy.example\r\n"
                                        "ADR;TYPE=WORK:;;1 Main St;Arlington;VA;22201;USA\r\nEND:VCARD\r\n")) }) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }

    f.find<QPushButton>(QStringLiteral("addressButton"))->click();
    AddressPopover *popover = f.find<AddressPopover>(QStringLiteral("addressPopover"));
    QVERIFY(popover->isVisible());
    auto *choose = f.find<QPushButton>(QStringLiteral("chooseVCardButton"));
    GuiInteraction::setNextFileName(bad);
    GuiInteraction::setNextAnswer(0); // the "Error!" alert
    choose->click();
    QVERIFY(f.prefs.string(Preferences::contactsVCardFile).isEmpty());
    QVERIFY(popover->isVisible());

    GuiInteraction::setNextFileName(good);
    choose->click();
    QCOMPARE(f.prefs.string(Preferences::contactsVCardFile), good);
    f.find<QPushButton>(QStringLiteral("useContactButton"))->click();
    QCOMPARE(popover->tabs()->currentIndex(), int(AddressPopover::AddressTab));
    QCOMPARE(f.find<PlainTextField>(QStringLiteral("popoverAddress"))->toPlainText(),
        QStringLiteral("Grace Hopper\nArlington"));
    QTest::keyClicks(f.find<QLineEdit>(QStringLiteral("popoverVATID")), QStringLiteral("US123"));
    f.find<QPushButton>(QStringLiteral("useAddressButton"))->click();
    QVERIFY(!popover->isVisible());
    QCOMPARE(doc->text(Invoice::customerName), QStringLiteral("Grace Hopper"));
    QCOMPARE(doc->text(Invoice::emailAddress), QStringLiteral("grace@navy.example"));
    QCOMPARE(doc->text(Invoice::customerVATID), QStringLiteral("US123"));
    QCOMPARE(f.find<QLineEdit>(QStringLiteral("customerVATID"))->text(), QStringLiteral("US123"));
    QCOMPARE(QApplication::focusWidget(), f.find<QWidget>(QStringLiteral("subject")));

    // The next document takes the remembered client back with the same name.
    f.window->newInvoiceAction()->trigger();
    f.find<QPushButton>(QStringLiteral("addressButton"))->click();
    popover->tabs()->setCurrentIndex(AddressPopover::RecentTab);
    f.find<QPushButton>(QStringLiteral("useRecentAddressButton"))->click();
    QCOMPARE(f.find<QLineEdit>(QStringLiteral("popoverFirstName"))->text(), QStringLiteral("Grace"));
    f.find<QPushButton>(QStringLiteral("useAddressButton"))->click();
    QCOMPARE(f.app.currentInvoice()->text(Invoice::customerName), QStringLiteral("Grace Hopper"));
    QCOMPARE(f.app.store()->count(EntityId::Address), 1);
}

QTEST_MAIN(TestDocumentEditor)
#include "TestDocumentEditor.moc"
