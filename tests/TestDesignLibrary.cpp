#include "CommandSupport.h"

#include "app/AppController.h"
#include "app/DesignLibrary.h"
#include "app/FileCommands.h"
#include "domain/Calculator.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "render/SampleDocument.h"
#include "store/DesignFile.h"
#include "store/Store.h"

#include <QFile>
#include <QtTest>

using namespace tabo;
using P = Preferences;

namespace {

struct Fixture : test::ControllerFixture
{
    DesignLibrary &lib = app.designs();
    Store &store = *app.store();

    QString file(const QString &name) const { return home.path() + QLatin1Char('/') + name; }
    QList<Record *> defaults() const
    {
        QList<Record *> found;
        for (Record *d : lib.designs())
            if (d->boolean(Design::isDefault))
                found << d;
        return found;
    }
};

QString resourceTitle(const QString &name)
{
    QFile f(QStringLiteral(":/designs/%1.design").arg(name));
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return readDesignFile(f.readAll()).value().value(QStringLiteral("title")).toString();
}

QList<Record *> byCreation(QList<Record *> list)
{
    std::sort(list.begin(), list.end(), [](Record *a, Record *b) { return a->id() < b->id(); });
    return list;
}

} // namespace

class TestDesignLibrary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void builtInDesigns()
    {
        Fixture f;
        QVERIFY(!f.lib.currentDesign());
        // The first-start assistant installs them once, however often it runs.
        f.app.firstAssiTabAction(1);
        f.app.firstAssiTabAction(1);
        const QList<Record *> made = byCreation(f.lib.designs());
        QCOMPARE(made.size(), 12);
        QVERIFY(!f.store.hasChanges());
        for (int i = 0; i < 12; ++i)
            QCOMPARE(made.at(i)->text(Design::title), resourceTitle(DesignLibrary::firstBuiltInNames().at(i)));
        QCOMPARE(f.defaults(), QList<Record *>{made.first()});

        f.lib.loadTabo2Template();
        QCOMPARE(f.defaults().size(), 2);
        QCOMPARE(f.lib.currentDesign(), made.first());
        QCOMPARE(byCreation(f.lib.designs()).last()->text(Design::title), resourceTitle(QStringLiteral("Temp14")));

        f.lib.makeDefaultDesign(made.at(5));
        QCOMPARE(f.defaults(), QList<Record *>{made.at(5)});
        QCOMPARE(f.lib.currentDesign(), made.at(5));
    }

    void laterDesignSurvivesQuickExit()
    {
        test::TempHome home;
        test::FakeInteraction ui;
        {
            Preferences prefs(home.configFile());
            AppController app(prefs, ui);
            QVERIFY(app.store());
        }
        Preferences prefs(home.configFile());
        AppController app(prefs, ui);
        const QList<Record *> all = app.designs().designs();
        QCOMPARE(all.size(), 1);
        QCOMPARE(all.first()->text(Design::title), resourceTitle(QStringLiteral("Temp14")));
        QCOMPARE(app.designs().currentDesign(), all.first());
        QVERIFY(prefs.boolean(P::isTabo2TemplateLoadingDone));
    }

    void addSortAndDelete()
    {
        Fixture f;
        Record *added = f.lib.addDesign();
        QVERIFY(added);
        QCOMPARE(added->text(Design::title), QStringLiteral("New Design"));
        QVERIFY(!added->text(Design::invoice).isEmpty() && !added->text(Design::item).isEmpty());
        QVERIFY(!f.store.hasChanges() && !f.lib.currentDesign());

        Record *b = f.lib.addDesign();
        Record *a = f.lib.addDesign();
        b->setText(Design::title, QStringLiteral("b"));
        a->setText(Design::title, QStringLiteral("A"));
        added->setText(Design::title, QStringLiteral("a"));
        QCOMPARE(f.lib.designs(), (QList<Record *>{added, a, b})); // ties keep creation order
        QVERIFY(added->text(Design::uniqueID) != a->text(Design::uniqueID));

        f.lib.makeDefaultDesign(a);
        f.ui.answers = {1};
        QVERIFY(!f.lib.deleteDesign(a));
        QCOMPARE(f.ui.alerts.last().buttons, (QStringList{QStringLiteral("Delete"), QStringLiteral("Cancel")}));
        QCOMPARE(f.lib.designs().size(), 3);

        f.ui.answers = {0};
        QVERIFY(f.lib.deleteDesign(a));
        QCOMPARE(f.lib.designs(), (QList<Record *>{added, b}));
        QVERIFY(!f.store.hasChanges() && !f.lib.currentDesign());
        QCOMPARE(f.lib.selectedDesignIndex(), 1);
    }

    void exportAndImport()
    {
        Fixture f;
        Record *d = f.lib.addDesign();
        d->setText(Design::title, QStringLiteral("Blue/Green"));
        d->setText(Design::item, QStringLiteral("<tr><td>%ITEMTITLE% ü</td></tr>"));
        f.lib.makeDefaultDesign(d);

        QVERIFY(!f.lib.exportDesign(d)); // cancelled
        QCOMPARE(f.ui.fileRequests.last().suggestedName, QStringLiteral("Blue-Green"));
        f.ui.files = {f.file(QStringLiteral("blue"))};
        QVERIFY(f.lib.exportDesign(d));
        const QString path = f.file(QStringLiteral("blue.design"));
        QVERIFY(QFile::exists(path));

        QVERIFY(!f.lib.importDesign()); // cancelled
        QCOMPARE(f.lib.designs().size(), 1);
        f.ui.files = {path, path};
        Record *first = f.lib.importDesign();
        Record *second = f.lib.importDesign();
        QVERIFY(first && second && first != second);
        for (Record *copy : {first, second}) {
            for (int attr : {Design::title, Design::invoice, Design::item, Design::css})
                QCOMPARE(copy->text(attr), d->text(attr));
            QVERIFY(!copy->boolean(Design::isDefault));
        }
        // One ID, one design: the copies of a design already here get IDs of their own.
        QSet<QString> ids;
        for (Record *r : f.lib.designs())
            ids.insert(r->text(Design::uniqueID));
        QCOMPARE(ids.size(), 3);
        QCOMPARE(f.defaults(), QList<Record *>{d});
        QVERIFY(f.ui.errors.isEmpty());
    }

    void unreadableImportCreatesNothing()
    {
        Fixture f;
        const QString garbage = f.file(QStringLiteral("garbage.design"));
        QFile out(garbage);
        QVERIFY(out.open(QIODevice::WriteOnly));
        out.write("this is not an archive");
        out.close();
        f.ui.files = {garbage, f.file(QStringLiteral("missing.design"))};
        QVERIFY(!f.lib.importDesign());
        QVERIFY(!f.lib.importDesign());
        QCOMPARE(f.ui.errors.size(), 2);
        QVERIFY(f.ui.errors.first().text.contains(QStringLiteral("garbage.design")));
        QVERIFY(f.lib.designs().isEmpty());
        QVERIFY(!f.store.hasChanges());
    }

    void sampleDocument()
    {
        test::TempHome home;
        Preferences prefs(home.configFile());
        FixedClock clock(test::utc(2026, 3, 10));
        Clock::setInstance(&clock);
        prefs.setString(P::prefsCurrency, QStringLiteral("CHF"));
        prefs.setString(P::locInvoice, QStringLiteral("Rechnung"));
        prefs.setString(P::tempInvConditions, QStringLiteral("Net 30"));
        prefs.setString(P::tax1Title, QString());
        prefs.setString(P::tax3Title, QStringLiteral("Levy"));
        prefs.setBool(P::tax1Enabled, true);
        prefs.setBool(P::tax2Enabled, false);
        prefs.setBool(P::tax3Enabled, true);

        const QList<QVariantMap> lines = SampleDocument::previewItems();
        QVERIFY(!lines.isEmpty());
        double net = 0;
        for (const QVariantMap &line : lines) {
            QVERIFY(!line.value(QStringLiteral("title")).toString().isEmpty());
            net += line.value(QStringLiteral("baseAmount")).toDouble() * line.value(QStringLiteral("unitCount")).toDouble();
        }

        const SampleDocument sample(prefs);
        const Record &doc = sample.invoice();
        QCOMPARE(doc.integer(Invoice::kind), 1);
        QCOMPARE(doc.text(Invoice::address), QStringLiteral("Mara Lindqvist\nOrchard Lane 7\nMillbrook CA\nUnited States"));
        QCOMPARE(doc.text(Invoice::clientNumber), QStringLiteral("1234"));
        QCOMPARE(doc.text(Invoice::currency), QStringLiteral("CHF"));
        QCOMPARE(doc.text(Invoice::title), QStringLiteral("Rechnung"));
        QCOMPARE(doc.text(Invoice::conditions), QStringLiteral("Net 30"));
        QCOMPARE(doc.date(Invoice::date), clock.now());
        QCOMPARE(doc.num(Invoice::tax1Percent), 0.10);
        QCOMPARE(doc.num(Invoice::tax2Percent), 0.0);
        QCOMPARE(doc.num(Invoice::tax3Percent), 0.01);

        QCOMPARE(sample.items().size(), lines.size());
        double taxed1 = 0;
        for (const Record *item : sample.items()) {
            QVERIFY(!item->boolean(Item::isTax2Applied));
            QCOMPARE(item->text(Item::tax1Title), QStringLiteral("Federal Tax"));
            QCOMPARE(item->text(Item::tax3Title), QStringLiteral("Levy"));
            if (item->boolean(Item::isTax1Applied))
                taxed1 += item->num(Item::subAmount);
        }
        QVERIFY(taxed1 > 0);
        QVERIFY(qAbs(doc.num(Invoice::subAmount) - net) < 0.01);
        QVERIFY(qAbs(doc.num(Invoice::tax1Amount) - 0.10 * taxed1) < 0.01);
        QCOMPARE(doc.num(Invoice::amount), Calculator::r2(doc.num(Invoice::subAmount) + doc.num(Invoice::tax1Amount)
                                                          + doc.num(Invoice::tax2Amount) + doc.num(Invoice::tax3Amount)));

        prefs.setBool(P::tax1Enabled, false);
        prefs.setBool(P::tax3Enabled, false);
        const SampleDocument untaxed(prefs);
        QCOMPARE(untaxed.invoice().num(Invoice::tax1Percent), 0.0);
        QVERIFY(qAbs(untaxed.invoice().num(Invoice::amount) - net) < 0.01);
        Clock::setInstance(nullptr);
    }
};

QTEST_GUILESS_MAIN(TestDesignLibrary)
#include "TestDesignLibrary.moc"
