#include "CommandSupport.h"

#include "app/AppController.h"
#include "app/FileCommands.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "store/DesignFile.h"
#include "store/KeyedArchive.h"
#include "store/ObjectDictionary.h"
#include "store/PropertyList.h"
#include "store/Store.h"

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QtTest>

using namespace tabo;
namespace OD = ObjectDictionary;

namespace {

struct Fixture : test::ControllerFixture
{
    FileCommands &files = app.files();
    Store &store = *app.store();

    QString file(const QString &name) const { return home.path() + QLatin1Char('/') + name; }

    Record *invoice(const QString &title, int lines)
    {
        Record *doc = app.addInvoice();
        doc->setText(Invoice::title, title);
        doc->setText(Invoice::number, QStringLiteral("2026/7"));
        doc->setDate(Invoice::due, Date::fromReferenceSeconds(812345678.987654321));
        doc->setNum(Invoice::amount, 1234.5);
        for (int i = 0; i < lines; ++i) {
            Record *line = store.insert(EntityId::Item);
            line->setText(Item::title, QStringLiteral("line %1").arg(i));
            line->setNum(Item::baseAmount, 10.0 + i);
            line->setToOne(Item::invoice, doc);
        }
        return doc;
    }
};

QByteArray fileStart(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.read(64) : QByteArray();
}

QVariantMap unarchived(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? KeyedArchive::unarchive(f.readAll()).value().toMap() : QVariantMap();
}

// Stands for a path where no file is.
const QByteArray kNoFile("\0", 1);

// Lines come in no particular order.
QVariantMap sortedLines(QVariantMap dict)
{
    QVariantList lines = dict.value(QStringLiteral("items")).toList();
    std::sort(lines.begin(), lines.end(), [](const QVariant &a, const QVariant &b) {
        return a.toMap().value(QStringLiteral("title")).toString() < b.toMap().value(QStringLiteral("title")).toString();
    });
    dict.insert(QStringLiteral("items"), lines);
    return dict;
}

void verifyPythonReads(const QString &path)
{
    const QString python = QStandardPaths::findExecutable(QStringLiteral("python3"));
    if (python.isEmpty())
        QSKIP("python3 is not installed");
    QProcess p;
    p.start(python, {QStringLiteral("-c"), QStringLiteral("import plistlib,sys; plistlib.load(open(sys.argv[1],\"rb\"))"), path});
    QVERIFY(p.waitForFinished(30000));
    QVERIFY2(p.exitCode() == 0, p.readAllStandardError().constData());
}

} // namespace

class TestFileCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void exportAndImportDocument();
    void collectionsAndDump();
    void importRefusals_data();
    void importRefusals();
    void designFile();
};

void TestFileCommands::exportAndImportDocument()
{
    Fixture f;
    f.prefs.setString(Preferences::prefsName, QStringLiteral("ACME"));
    Record *source = f.invoice(QStringLiteral("Rechnung"), 2);

    f.ui.files = {f.file(QStringLiteral("doc.tabo"))};
    QVERIFY(f.files.exportInvoice(0));
    const auto panel = f.ui.fileRequests.last();
    QCOMPARE(panel.title, QStringLiteral("Export As Tabo Document"));
    QCOMPARE(panel.extensions, QStringList{QStringLiteral("tabo")});
    QCOMPARE(panel.suggestedName, QStringLiteral("ACME | Rechnung | 2026-7"));
    QVERIFY(panel.canCreateFolders);
    verifyPythonReads(f.file(QStringLiteral("doc.tabo")));

    f.ui.files = {f.file(QStringLiteral("doc.xml"))};
    QVERIFY(f.files.exportInvoice(1));
    QCOMPARE(f.ui.fileRequests.last().title, QStringLiteral("Export As XML Document"));
    QVERIFY(fileStart(f.file(QStringLiteral("doc.xml"))).startsWith("<?xml"));
    verifyPythonReads(f.file(QStringLiteral("doc.xml")));

    const qsizetype asked = f.ui.fileRequests.size();
    QVERIFY(!f.files.exportInvoice(2));
    QCOMPARE(f.ui.fileRequests.size(), asked);

    f.ui.answers = {1};
    QVERIFY(!f.files.importInvoice());
    QCOMPARE(f.ui.alerts.last().buttons, QStringList({QStringLiteral("Import…"), QStringLiteral("Cancel")}));
    QCOMPARE(f.ui.fileRequests.size(), asked);

    f.ui.files = {f.file(QStringLiteral("doc.tabo"))};
    Record *imported = f.files.importInvoice();
    QVERIFY(imported && imported != source);
    QCOMPARE(f.ui.fileRequests.last().title, QStringLiteral("Import Tabo Document"));
    QCOMPARE(f.app.currentInvoice(), imported);
    QCOMPARE(f.app.documentList().all().size(), 2);
    // Imported beside its source, the copy gets an ID of its own and is otherwise the same.
    QVERIFY(imported->text(Invoice::uniqueID) != source->text(Invoice::uniqueID));
    QCOMPARE(f.app.findDocuments(source->text(Invoice::uniqueID)), QList<Record *>{source});
    QVariantMap copy = OD::toDictionary(*imported);
    copy.insert(QStringLiteral("uniqueID"), source->text(Invoice::uniqueID));
    QCOMPARE(sortedLines(copy), sortedLines(OD::toDictionary(*source)));
    QVERIFY(!f.store.hasChanges());
}

void TestFileCommands::collectionsAndDump()
{
    Fixture f;
    Record *shown = f.invoice(QStringLiteral("shown"), 1);
    f.invoice(QStringLiteral("hidden"), 1);
    f.store.insert(EntityId::Template);
    f.app.documentList().setPredicate(ListFilter::uniqueIdLike(shown->text(Invoice::uniqueID)));

    const QString xml = f.file(QStringLiteral("list.xml"));
    f.ui.files = {xml};
    QVERIFY(f.files.exportItems());
    QVERIFY(f.ui.fileRequests.last().suggestedName.isEmpty());
    QVERIFY(fileStart(xml).startsWith("<?xml"));
    QVariantList list = plist::readFile(xml).value().toList();
    QCOMPARE(list.size(), 1);
    QCOMPARE(list[0].toMap().value(QStringLiteral("title")).toString(), QStringLiteral("shown"));
    QCOMPARE(list[0].toMap().value(QStringLiteral("items")).toList().size(), 1);
    verifyPythonReads(xml);

    f.ui.files = {xml};
    QVERIFY(f.files.exportTaboDataXML());
    QCOMPARE(f.ui.fileRequests.last().suggestedName, QStringLiteral("Tabo Database"));
    QCOMPARE(plist::readFile(xml).value().toList().size(), 2);

    const QString dump = f.file(QStringLiteral("all.invdump"));
    f.ui.files = {dump};
    QVERIFY(f.files.exportAsInvoiceFile());
    QVERIFY(!f.store.hasChanges()); // saved first
    QCOMPARE(f.ui.fileRequests.last().extensions, QStringList{QStringLiteral("invdump")});
    const QVariantMap root = unarchived(dump);
    QCOMPARE(root.keys(), QStringList({QStringLiteral("addresses"), QStringLiteral("designs"), QStringLiteral("invoices"),
                                       QStringLiteral("items"), QStringLiteral("shippings"), QStringLiteral("templates")}));
    QCOMPARE(root.value(QStringLiteral("invoices")).toList().size(), 2);
    QCOMPARE(root.value(QStringLiteral("templates")).toList().size(), 1);
    verifyPythonReads(dump);
}

void TestFileCommands::importRefusals_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << kNoFile;
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("text") << QByteArray("just some notes\n");
    QTest::newRow("no taboDic") << KeyedArchive::archive(QVariantMap{{QStringLiteral("designDic"), QVariantMap{{QStringLiteral("title"), 1}}}}).value();
    QTest::newRow("empty taboDic") << KeyedArchive::archive(QVariantMap{{QStringLiteral("taboDic"), QVariantMap()}}).value();
    QTest::newRow("taboDic not a dictionary") << KeyedArchive::archive(QVariantMap{{QStringLiteral("taboDic"), QStringLiteral("x")}}).value();
}

void TestFileCommands::importRefusals()
{
    QFETCH(QByteArray, content);
    Fixture f;
    const QString path = f.file(QStringLiteral("bad.tabo"));
    if (content != kNoFile) {
        QFile out(path);
        QVERIFY(out.open(QIODevice::WriteOnly));
        out.write(content);
    }

    const qsizetype before = f.store.all(EntityId::Invoice).size();
    f.ui.files = {path};
    QVERIFY(!f.files.importInvoice());
    QCOMPARE(f.ui.lastAlertTitle(), QStringLiteral("Error!"));
    QCOMPARE(f.ui.lastAlertText(), QStringLiteral("The file “bad.tabo” is not a Tabo document."));
    QCOMPARE(f.store.all(EntityId::Invoice).size(), before);
    QVERIFY(f.app.documentList().all().isEmpty());
}

void TestFileCommands::designFile()
{
    Fixture f;
    Record *design = f.store.insert(EntityId::Design);
    design->setText(Design::title, QStringLiteral("Plain"));
    design->setText(Design::css, QStringLiteral("body { margin: 0 }"));
    design->setBool(Design::isDefault, true);

    const Result<QVariantMap> read = readDesignFile(designFileData(*design).value());
    QVERIFY2(read.ok(), qPrintable(read.error().message()));
    QCOMPARE(read.value(), OD::toDictionary(*design));

    const Result<QVariantMap> refused = readDesignFile("not an archive");
    QVERIFY(refused.value().isEmpty());
    QVERIFY(!refused.error().message().isEmpty());
}

QTEST_GUILESS_MAIN(TestFileCommands)
#include "TestFileCommands.moc"
