#include "plist/PlistTestUtil.h"
#include "store/KeyedArchive.h"
#include "store/PropertyList.h"

#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtTest>

using namespace tabo;
using plist::Format;
using plist::Uid;
using test::identical;

namespace {

QVariant uid(quint64 n)
{
    return QVariant::fromValue(Uid { n });
}

QVariant date(double seconds)
{
    return QVariant::fromValue(Date::fromReferenceSeconds(seconds));
}

QVariantMap classEntry(const QString &name, const QStringList &chain = {})
{
    return { { "$classname", name }, { "$classes", chain.isEmpty() ? QStringList { name, "NSObject" } : chain } };
}

// A keyed archive around hand-made objects; objects[0] is "$null".
QByteArray archiveOf(
    const QVariantList &objects, const QVariantMap &top = { { "root", uid(1) } }, Format format = Format::Binary)
{
    return plist::write(QVariantMap { { "$version", 100000 }, { "$archiver", "NSKeyedArchiver" }, { "$top", top },
                            { "$objects", QVariantList { "$null" } + objects } },
        format)
        .value();
}

QVariantMap document()
{
    return { { "taboDic",
        QVariantMap { { "class", "Invoice" }, { "number", "2024-001" },
            { "customerName", QStringLiteral("M\u00fcller & S\u00f6hne") }, { "kind", qint64(1) },
            { "amount", 0.1 + 0.2 }, { "tiny", 1e-310 }, { "negativeZero", -0.0 }, { "nan", qQNaN() },
            { "big", std::numeric_limits<qint64>::min() }, { "isPaid", true }, { "dAtEaTtr:date", 814000000.123456789 },
            { "misc5", date(814000000.123456789) }, { "logo", QByteArray("\x89PNG\0", 5) },
            { "items", QVariantList { QVariantMap { { "title", "Work" }, { "unit", "Work" } }, QVariantMap {} } } } } };
}

} // namespace

class TestKeyedArchive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTripIsExact();
    void layoutIsTheArchiversOwn();
    void plistlibReadsOurArchives();
    void realArchivesAreRead();
    void foreignFormsAreUnderstood();
    void malformedArchivesAreRejected_data();
    void malformedArchivesAreRejected();
};

void TestKeyedArchive::roundTripIsExact()
{
    const Result<QByteArray> archived = KeyedArchive::archive(document());
    QVERIFY2(archived, qPrintable(archived.error().text));
    const QByteArray &data = archived.value();
    QVERIFY(identical(KeyedArchive::unarchive(data).value(), document()));
    QVERIFY(identical(KeyedArchive::unarchive(KeyedArchive::archive("solo").value()).value(), "solo"));

    for (qsizetype length = 0; length < data.size(); length += 7)
        QVERIFY(!KeyedArchive::unarchive(data.left(length)));
    const Result<QByteArray> point = KeyedArchive::archive(QVariantMap { { "bad", QPoint() } });
    QVERIFY(!point && point.value().isEmpty() && point.error().text.contains("QPoint"));
}

void TestKeyedArchive::layoutIsTheArchiversOwn()
{
    const QVariantMap archive
        = plist::read(KeyedArchive::archive(QVariantMap { { "a", "x" }, { "b", "x" }, { "d", date(1.5) } }).value())
              .value()
              .toMap();
    QCOMPARE(archive.value("$version").toLongLong(), 100000);
    QCOMPARE(archive.value("$archiver").toString(), "NSKeyedArchiver");
    QVERIFY(identical(archive.value("$top"), QVariantMap { { "root", uid(1) } }));
    const QVariantList objects = archive.value("$objects").toList();
    QCOMPARE(objects.value(0).toString(), "$null");
    const QVariantMap root = objects.value(1).toMap();
    QCOMPARE(root.value("NS.keys").toList().size(), 3);
    QVERIFY(identical(objects.value(int(root.value("$class").value<Uid>().value)), classEntry("NSDictionary")));
    // "x" is stored once and both keys refer to it.
    const QVariantList values = root.value("NS.objects").toList();
    QVERIFY(identical(values.value(0), values.value(1)));
    QCOMPARE(objects.count(QVariant("x")), 1);
    const QVariantMap dateObject = objects.value(int(values.value(2).value<Uid>().value)).toMap();
    QVERIFY(identical(dateObject.value("NS.time"), 1.5));
    QVERIFY(identical(objects.value(int(dateObject.value("$class").value<Uid>().value)), classEntry("NSDate")));
}

void TestKeyedArchive::plistlibReadsOurArchives()
{
    if (!test::havePython())
        QSKIP("python3 is not installed");
    QTemporaryDir dir;
    QFile archive(dir.filePath("doc.tabo")), json(dir.filePath("expected.json"));
    QVERIFY(archive.open(QIODevice::WriteOnly) && json.open(QIODevice::WriteOnly));
    archive.write(KeyedArchive::archive(
        QVariantMap { { "list", QVariantList { "a", "a", qint64(-5), true } }, { "when", date(814000000.5) } })
                      .value());
    json.write(R"({"list": ["a", "a", -5, true], "when": {"$date": 814000000.5}})");
    archive.close();
    json.close();
    bool ok = false;
    const QString output = test::runCheckPlist({ "--keyed", archive.fileName(), json.fileName() }, &ok);
    QVERIFY2(ok, qPrintable(output));
}

void TestKeyedArchive::realArchivesAreRead()
{
    const QString dir = test::fixturesDir() + "/keyed-archives";
    if (!QFileInfo::exists(dir))
        QSKIP(qPrintable("the shared fixtures are not at " + dir + " (set TABO_FIXTURES)"));
    QFile arrayTest(dir + "/NSKeyedUnarchiver-ArrayTest.plist");
    QVERIFY(arrayTest.open(QIODevice::ReadOnly));
    const Result<QVariant> array = KeyedArchive::unarchive(arrayTest.readAll());
    QVERIFY2(identical(array.value(), QVariantList { "baa", "baa", "black", "sheep" }), qPrintable(array.error().text));

    QFile complex(dir + "/NSKeyedUnarchiver-ComplexTest.plist");
    QVERIFY(complex.open(QIODevice::ReadOnly));
    // The URL and UUID are of classes we do not read, and NSNull has no
    // property-list form: all three are left out.
    const QVariantMap expected { { "string", "hello" },
        { "array", QVariantList { "hello", qint64(34545), QVariantMap { { "key", "val" } } } } };
    const Result<QVariant> value = KeyedArchive::unarchive(complex.readAll());
    QVERIFY2(identical(value.value(), expected), qPrintable(value.error().text));
}

void TestKeyedArchive::foreignFormsAreUnderstood()
{
    // Mutable classes, boxed strings and data, sets, an unknown subclass of a
    // known class, and key-by-key top entries, in an XML archive.
    const QVariantList objects {
        QVariantMap { { "NS.keys", QVariantList { uid(2), uid(3), uid(4) } },
            { "NS.objects", QVariantList { uid(5), uid(6), uid(7) } }, { "$class", uid(8) } },
        "s",
        "d",
        "set",
        QVariantMap { { "NS.string", "boxed" }, { "$class", uid(9) } },
        QVariantMap { { "NS.data", QByteArray("\1\2") }, { "$class", uid(10) } },
        QVariantMap { { "NS.objects", QVariantList { uid(2), uid(0) } }, { "$class", uid(11) } },
        classEntry("NSMutableDictionary"),
        classEntry("NSMutableString"),
        classEntry("NSMutableData"),
        classEntry("MySet", { "MySet", "NSSet", "NSObject" }),
    };
    const QVariantMap expected { { "s", "boxed" }, { "d", QByteArray("\1\2") }, { "set", QVariantList { "s" } } };
    for (Format format : { Format::Binary, Format::Xml })
        QVERIFY(identical(KeyedArchive::unarchive(archiveOf(objects, { { "root", uid(1) } }, format)).value(), expected));
    QVERIFY(identical(KeyedArchive::unarchive(archiveOf(objects, { { "taboDic", uid(1) }, { "none", uid(0) } })).value(),
        QVariantMap { { "taboDic", expected } }));
}

void TestKeyedArchive::malformedArchivesAreRejected_data()
{
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QByteArray>("data");
    const QVariant array = classEntry("NSArray");
    QTest::newRow("plain property list") << "not a keyed archive" << plist::write(QVariantList { 1 }, Format::Binary).value();
    QTest::newRow("dangling reference")
        << "missing object"
        << archiveOf({ QVariantMap { { "NS.objects", QVariantList { uid(9) } }, { "$class", uid(2) } }, array });
    QTest::newRow("cycle") << "cyclic"
                           << archiveOf(
                                  { QVariantMap { { "NS.objects", QVariantList { uid(1) } }, { "$class", uid(2) } },
                                      array });
    QTest::newRow("no class") << "without a class" << archiveOf({ QVariantMap { { "NS.objects", QVariantList {} } } });
    QTest::newRow("unknown root") << "unknown class"
                                  << archiveOf({ QVariantMap { { "$class", uid(2) } }, classEntry("NSURL") });
    QTest::newRow("damaged date") << "damaged date"
                                  << archiveOf({ QVariantMap { { "NS.time", "soon" }, { "$class", uid(2) } },
                                         classEntry("NSDate") });
    QTest::newRow("unequal keys") << "unequal"
                                  << archiveOf(
                                         { QVariantMap { { "NS.keys", QVariantList { uid(0) } }, { "$class", uid(2) } },
                                             classEntry("NSDictionary") });

    QVariantList chain;
    for (int i = 1; i <= 10000; ++i)
        chain << QVariantMap { { "NS.objects", QVariantList { uid(quint64(i + 1)) } }, { "$class", uid(10002) } };
    chain << "end" << array;
    QTest::newRow("10000 nested arrays") << "nested deeper" << archiveOf(chain);

    QVariantList shared;
    for (int i = 1; i <= 64; ++i)
        shared << QVariantMap { { "NS.objects", QVariantList { uid(quint64(i + 1)), uid(quint64(i + 1)) } },
            { "$class", uid(66) } };
    shared << "leaf" << array;
    QTest::newRow("shared subtrees") << "too many values" << archiveOf(shared);
}

void TestKeyedArchive::malformedArchivesAreRejected()
{
    QFETCH(QString, reason);
    QFETCH(QByteArray, data);
    QVERIFY(!data.isEmpty());
    const Result<QVariant> read = KeyedArchive::unarchive(data);
    QVERIFY(!read);
    QVERIFY2(read.error().text.contains(reason), qPrintable(read.error().text));
}

QTEST_GUILESS_MAIN(TestKeyedArchive)
#include "TestKeyedArchive.moc"
