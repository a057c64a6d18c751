#include "CommandSupport.h"

#include "app/AccountingExport.h"
#include "app/AppController.h"
#include "domain/ListFilter.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "store/PropertyList.h"
#include "store/Store.h"

#include <QDir>
#include <QFile>
#include <QtTest>

using namespace tabo;
using P = Preferences;

namespace {

struct Fixture : test::ControllerFixture
{
    AccountingExport &exp = app.accounting();

    Record *document(const QString &number, int kind, int status, Date date)
    {
        Store *store = app.store();
        Record *doc = store->insert(EntityId::Invoice);
        doc->setText(Invoice::number, number);
        doc->setInt(Invoice::kind, kind);
        doc->setInt(Invoice::status, status);
        doc->setDate(Invoice::date, date);
        app.documentList().add(doc);
        return doc;
    }
    Record *line(Record *doc, const QString &title, int taxApplied)
    {
        Record *item = app.store()->insert(EntityId::Item);
        item->setText(Item::title, title);
        item->setBool(Item::isTax1Applied, taxApplied == 1);
        item->setBool(Item::isTax2Applied, taxApplied == 2);
        item->setBool(Item::isTax3Applied, taxApplied == 3);
        item->setToOne(Item::invoice, doc);
        return item;
    }
    QStringList selected() const
    {
        QStringList numbers;
        for (const Record *r : exp.vorluxArray())
            numbers << r->text(Invoice::number);
        return numbers;
    }
    QStringList select(qint64 kind)
    {
        prefs.setInteger(P::prefsVorluxExportKind, kind);
        exp.doTheFilter();
        return selected();
    }
};

} // namespace

class TestAccountingExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectionByRangeAndState();
    void summaryLineInsteadOfItems();
    void exchangeFileAndItsFailures();
};

void TestAccountingExport::selectionByRangeAndState()
{
    Fixture f;
    // Fractions of a millisecond: the range preferences keep milliseconds only.
    const Date day = test::utc(2024, 3, 1).addSeconds(0.0006);
    f.document(QStringLiteral("created"), 1, 0, day);
    f.document(QStringLiteral("sent"), 1, 1, day.addDays(1));
    f.document(QStringLiteral("overdue"), 1, 2, day.addDays(2));
    f.document(QStringLiteral("paid"), 1, 3, day.addDays(3));
    f.document(QStringLiteral("quote"), 0, 3, day.addDays(4));
    f.document(QStringLiteral("hidden"), 1, 3, day.addDays(30));
    f.app.documentList().setPredicate(ListFilter::dateRange(day.addDays(-1), day.addDays(10)));

    f.prefs.setInteger(P::prefsVorluxExportKind, 0);
    f.exp.sendToVorlux(0);
    // The range covers the invoices shown, not the newer quote or the hidden invoice.
    QCOMPARE(f.prefs.date(P::prefsVorluxExportBeginDate).toIso8601(), day.toIso8601());
    QCOMPARE(f.prefs.date(P::prefsVorluxExportEndDate).toIso8601(), day.addDays(3).toIso8601());
    QCOMPARE(f.selected(), (QStringList{"paid", "overdue", "sent"}));
    QCOMPARE(f.prefs.integer(P::prefsVorluxExportCount), 3);
    QCOMPARE(f.select(1), QStringList{"paid"});
    QCOMPARE(f.select(2), QStringList{"overdue"});
    QCOMPARE(f.select(3), QStringList());
    QCOMPARE(f.prefs.integer(P::prefsVorluxExportCount), 0);

    // Both ends are inclusive; the list's own filter still hides its invoice.
    f.prefs.setDate(P::prefsVorluxExportBeginDate, day.addDays(1));
    f.prefs.setDate(P::prefsVorluxExportEndDate, day.addDays(40));
    QCOMPARE(f.select(0), (QStringList{"paid", "overdue", "sent"}));
    f.prefs.setDate(P::prefsVorluxExportBeginDate, day.addDays(1).addSeconds(0.002));
    f.prefs.setDate(P::prefsVorluxExportEndDate, day.addDays(2));
    QCOMPARE(f.select(0), QStringList{"overdue"});
}

void TestAccountingExport::summaryLineInsteadOfItems()
{
    Fixture f;
    Record *doc = f.document(QStringLiteral("R-7"), 1, 3, test::utc(2024, 5, 1));
    doc->setNum(Invoice::amount, 119.0);
    doc->setNum(Invoice::subAmount, 100.0);
    doc->setNum(Invoice::tax1Amount, 19.0);
    doc->setNum(Invoice::tax1Percent, 0.19);
    doc->setDate(Invoice::paid, test::utc(2024, 5, 9));
    f.line(doc, QStringLiteral("Design"), 1);
    f.line(doc, QStringLiteral("Print"), 3);
    f.document(QStringLiteral("R-8"), 1, 3, test::utc(2024, 5, 2));
    f.prefs.setInteger(P::prefsVorluxExportKind, 1);

    f.prefs.setInteger(P::prefsVorluxExportItemsKind, 0);
    f.exp.sendToVorlux(0);
    QVariantList entries = f.exp.entries();
    QCOMPARE(entries.size(), 2);
    const QVariantMap entry = entries[1].toMap();
    QVERIFY(entry.contains(QStringLiteral("dAtEaTtr:paid")));
    const QVariantList lines = entry.value(QStringLiteral("items")).toList();
    QCOMPARE(lines.size(), 1);
    const QVariantMap line = lines[0].toMap();
    // No unprefixed date keys in a dictionary: the date fields stay absent.
    QCOMPARE(line.keys(), (QStringList{"amount", "isTax1Applied", "isTax2Applied", "isTax3Applied", "subAmount",
                                       "tax1Amount", "tax1Percent", "title"}));
    QCOMPARE(line.value(QStringLiteral("title")).toString(), QStringLiteral("R-7"));
    QCOMPARE(line.value(QStringLiteral("amount")).toDouble(), 119.0);
    QCOMPARE(line.value(QStringLiteral("tax1Percent")).toDouble(), 0.19);
    QCOMPARE(line.value(QStringLiteral("isTax1Applied")).toBool(), true);
    QCOMPARE(line.value(QStringLiteral("isTax2Applied")).toBool(), false);
    QCOMPARE(line.value(QStringLiteral("isTax3Applied")).toBool(), true);
    const QVariantMap bare = entries[0].toMap().value(QStringLiteral("items")).toList().value(0).toMap();
    QCOMPARE(bare.value(QStringLiteral("title")).toString(), QStringLiteral("R-8"));
    QCOMPARE(bare.value(QStringLiteral("isTax1Applied")).toBool(), false);

    f.prefs.setInteger(P::prefsVorluxExportItemsKind, 1);
    entries = f.exp.entries();
    QStringList titles;
    for (const QVariant &item : entries[1].toMap().value(QStringLiteral("items")).toList())
        titles << item.toMap().value(QStringLiteral("title")).toString();
    titles.sort();
    QCOMPARE(titles, (QStringList{"Design", "Print"}));
}

void TestAccountingExport::exchangeFileAndItsFailures()
{
    Fixture f;
    f.document(QStringLiteral("R-1"), 1, 1, test::utc(2024, 5, 1));
    f.prefs.setInteger(P::prefsVorluxExportKind, 1); // nothing paid: an empty selection
    f.exp.sendToVorlux(0);
    QCOMPARE(f.exp.sheetLabel(), QStringLiteral("Send Invoices To Vorlux"));
    const QString vorlux = f.home.dataDir() + QStringLiteral("/quandrellaExport.vortabo");
    QCOMPARE(f.exp.exportFilePath(), vorlux);
    QVERIFY(f.exp.closeVorluxSheet());
    const QVariant written = plist::readFile(vorlux).value();
    QCOMPARE(written.typeId(), QMetaType::QVariantList);
    QVERIFY(written.toList().isEmpty());
    QCOMPARE(f.ui.opened, QStringList{vorlux});

    f.exp.sendToVorlux(2);
    QCOMPARE(f.exp.sheetLabel(), QStringLiteral("Send Invoices To quandrella"));
    const QString quandrella = f.home.dataDir() + QStringLiteral("/quandrellaExport.quandrtabo");
    QCOMPARE(f.exp.exportFilePath(), quandrella);
    f.ui.openSucceeds = false;
    QVERIFY(!f.exp.closeVorluxSheet());
    QVERIFY(QFile::exists(quandrella));
    QCOMPARE(f.ui.lastAlertText(), QStringLiteral("Vorlux/quandrella export file couldn't be opened. Please ensure "
                                                  "that Vorlux or quandrella is installed on your Mac and running."));

    QVERIFY(QFile::remove(quandrella));
    QVERIFY(QDir().mkpath(quandrella)); // a folder where the file belongs: the write fails
    QVERIFY(!f.exp.closeVorluxSheet());
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Error!"));
    QCOMPARE(f.ui.lastAlertText(), QStringLiteral("Could not write Vorlux/quandrella export data."));
    QCOMPARE(f.ui.opened.size(), 2);
}

QTEST_GUILESS_MAIN(TestAccountingExport)
#include "TestAccountingExport.moc"
