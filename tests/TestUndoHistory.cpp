#include "CommandSupport.h"

#include "app/AppController.h"
#include "app/DocumentCommands.h"
#include "app/ItemCommands.h"
#include "app/TemplateCommands.h"
#include "app/UndoHistory.h"
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
    QUndoStack &stack = app.undo().stack();
    ItemCommands &items = app.items();
    Record *doc = nullptr;

    Fixture()
    {
        prefs.setReal(P::tax1Rate, 0.19);
        prefs.setBool(P::tax1Enabled, true);
        doc = app.addInvoice();
        stack.clear();
    }
    ItemFields line(const QString &title, const QString &price)
    {
        return {title, {}, {}, {}, {}, price, QStringLiteral("1"), true, false, false};
    }
    // Undo, then redo, of the last step must give the document back as it was
    // before it and after it, saved both times.
    void undoRedo(const std::function<QString()> &state, const QString &before, const QString &after)
    {
        QCOMPARE(state(), after);
        stack.undo();
        QCOMPARE(state(), before);
        QVERIFY(!app.store()->hasChanges());
        stack.redo();
        QCOMPARE(state(), after);
        QVERIFY(!app.store()->hasChanges());
    }
    QString lines()
    {
        QStringList out;
        for (const Record *l : app.items().sortedItems(*doc))
            out << l->text(Item::title) + QLatin1Char('=') + QString::number(l->num(Item::amount));
        return out.join(QLatin1Char(',')) + QStringLiteral(" total ") + QString::number(doc->num(Invoice::amount));
    }
};

} // namespace

class TestUndoHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKindOfChange();
    void deletionIsFinal();
};

void TestUndoHistory::everyKindOfChange()
{
    Fixture f;
    const auto subject = [&] { return f.doc->text(Invoice::subject); };
    QVERIFY(f.app.setDocumentValue(f.doc, Invoice::subject, QStringLiteral("Website")));
    f.undoRedo(subject, QString(), QStringLiteral("Website"));
    QCOMPARE(f.stack.undoText(), QStringLiteral("Typing"));

    const auto lines = [&] { return f.lines(); };
    const QString none = f.lines();
    Record *alpha = f.items.addItem(f.line(QStringLiteral("Alpha"), QStringLiteral("100"))).value();
    QVERIFY(alpha);
    f.undoRedo(lines, none, QStringLiteral("Alpha=119 total 119"));
    alpha = f.doc->toMany(Invoice::items).value(0); // redone: the line is made anew
    QVERIFY(!f.items.editItem(alpha, QStringLiteral("unitCount"), QStringLiteral("2")));
    f.undoRedo(lines, QStringLiteral("Alpha=119 total 119"), QStringLiteral("Alpha=238 total 238"));

    ShippingFields shipping = f.items.shippingFields();
    shipping.enabled = true;
    shipping.title = QStringLiteral("Parcel");
    shipping.amount = QStringLiteral("10");
    QVERIFY(!f.items.closeShippingPopover(shipping));
    f.undoRedo(lines, QStringLiteral("Alpha=238 total 238"), QStringLiteral("Alpha=238 total 248"));

    DiscountFields discount = f.items.discountFields();
    discount.enabled = true;
    discount.amount = QStringLiteral("8");
    QVERIFY(!f.items.closeDiscountPopover(discount));
    QCOMPARE(f.stack.undoText(), QStringLiteral("Discount"));
    const QString discounted = f.lines();
    QVERIFY(discounted != QStringLiteral("Alpha=238 total 248"));
    f.undoRedo(lines, QStringLiteral("Alpha=238 total 248"), discounted);

    // A template replaces lines and texts; undone, the document is as it was.
    f.prefs.setBool(P::templateIncludeItems, true);
    Record *tpl = f.app.templates().createNewTemplate(QStringLiteral("Retainer"), QString());
    QVERIFY(tpl);
    f.app.addInvoice();
    Record *other = f.app.currentInvoice();
    QVERIFY(f.app.templates().selectTemplate(tpl));
    QCOMPARE(f.stack.undoText(), QStringLiteral("Template"));
    QCOMPARE(other->toMany(Invoice::items).size(), 1);
    f.stack.undo();
    QCOMPARE(other->toMany(Invoice::items).size(), 0);
    QCOMPARE(f.app.currentInvoice(), other);

    // Status, deleting a line; and undo works across a reopened store.
    f.app.setCurrentInvoice(f.doc);
    QVERIFY(f.app.setDocumentValue(f.doc, Invoice::status, 3));
    f.undoRedo([&] { return QString::number(f.doc->integer(Invoice::status)); }, QStringLiteral("0"),
               QStringLiteral("3"));
    f.stack.undo();
    f.ui.answers = {0};
    QVERIFY(f.items.deleteItem(f.doc->toMany(Invoice::items).value(0)));
    f.stack.undo();
    QCOMPARE(f.lines(), discounted);
    f.stack.redo();
    QVERIFY(f.doc->toMany(Invoice::items).isEmpty());
}

void TestUndoHistory::deletionIsFinal()
{
    Fixture f;
    QVERIFY(f.app.setDocumentValue(f.doc, Invoice::subject, QStringLiteral("Gone soon")));
    QVERIFY(f.stack.canUndo());
    f.ui.answers = {0, 1};
    QVERIFY(f.app.documents().deleteInvoice());
    QVERIFY(!f.stack.canUndo());
    QVERIFY(f.app.documentList().all().isEmpty());
    // Nothing recorded for a change that changes nothing.
    Record *doc = f.app.addInvoice();
    QVERIFY(f.app.setDocumentValue(doc, Invoice::subject, doc->text(Invoice::subject)));
    QVERIFY(!f.stack.canUndo());
}

QTEST_MAIN(TestUndoHistory)
#include "TestUndoHistory.moc"
