#include "plist/PlistTestUtil.h"
#include "store/KeyedArchive.h"
#include "store/PropertyList.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

using namespace tabo;
using plist::Format;
using test::identical;

namespace {

QVariant date(double seconds)
{
    return QVariant::fromValue(Date::fromReferenceSeconds(seconds));
}

void appendBigEndian(QByteArray &out, quint64 v, int size)
{
    for (int i = size - 1; i >= 0; --i)
        out.append(char(v >> (8 * i)));
}

// A binary property list from encoded objects; the first is the root.
QByteArray bplist(const QList<QByteArray> &objects, int refSize = 1)
{
    QByteArray out("bplist00");
    QList<quint64> offsets;
    for (const QByteArray &object : objects) {
        offsets << quint64(out.size());
        out += object;
    }
    const quint64 table = quint64(out.size());
    const int offsetSize = table <= 0xFF ? 1 : table <= 0xFFFF ? 2 : 4;
    for (quint64 offset : offsets)
        appendBigEndian(out, offset, offsetSize);
    out += QByteArray(6, '\0');
    out += char(offsetSize);
    out += char(refSize);
    appendBigEndian(out, quint64(objects.size()), 8);
    appendBigEndian(out, 0, 8);
    appendBigEndian(out, table, 8);
    return out;
}

// Every value type at the edges of its encodings (count nibble, reference and
// offset widths, integer widths, special doubles, non-ASCII text).
QVariantMap sample()
{
    QVariantList twenty, many;
    QVariantMap wide;
    for (int i = 0; i < 20; ++i) {
        twenty << qint64(i);
        wide.insert(QStringLiteral("k%1").arg(i), QStringLiteral("v%1").arg(i));
    }
    for (int i = 0; i < 300; ++i)
        many << QStringLiteral("s%1").arg(i);
    return {
        { "ascii", "plain" },
        { "unicode", QStringLiteral("h\u00e9llo \u20ac \U0001F600") },
        { "markup", "<a & b> ]]>\r\n\t" },
        { "emptyString", QString() },
        { "longString", QString(300, QChar(0xe9)) },
        { "byte", qint64(255) },
        { "short", qint64(256) },
        { "word", qint64(4294967295) },
        { "wide", qint64(4294967296) },
        { "negative", qint64(-1) },
        { "min", std::numeric_limits<qint64>::min() },
        { "max", std::numeric_limits<qint64>::max() },
        { "sum", 0.1 + 0.2 },
        { "subnormal", 1e-310 },
        { "negativeZero", -0.0 },
        { "largest", std::numeric_limits<double>::max() },
        { "nan", qQNaN() },
        { "infinity", qInf() },
        { "minusInfinity", -qInf() },
        { "yes", true },
        { "no", false },
        { "data", QByteArray("\0\1\xfe\xff", 4) },
        { "emptyData", QByteArray() },
        { "longData", QByteArray(70000, 'x') },
        { "twenty", twenty },
        { "many", many },
        { "emptyArray", QVariantList() },
        { "wideDict", wide },
        { "emptyDict", QVariantMap() },
        { "nested", QVariantMap { { "list", QVariantList { QVariantList { QVariantMap { { "deep", "yes" } } } } } } },
    };
}

// Written and read again; invalid when either step failed.
QVariant readBack(const QVariant &value, Format format)
{
    const Result<QByteArray> data = plist::write(value, format);
    return data ? plist::read(data.value()).value() : QVariant();
}

// The tagged JSON that tests/plist/check_plist.py compares with.
QJsonValue tagged(const QVariant &value)
{
    using plist::Kind;
    switch (plist::kindOf(value)) {
    case Kind::Real:
        return QJsonObject { { "$real",
            QString::number(std::bit_cast<quint64>(value.toDouble()), 16).rightJustified(16, '0') } };
    case Kind::Date:
        return QJsonObject { { "$date", value.value<Date>().referenceSeconds() } };
    case Kind::Data:
        return QJsonObject { { "$data", QString::fromLatin1(value.toByteArray().toBase64()) } };
    case Kind::Integer:
        return value.toLongLong();
    case Kind::Array: {
        QJsonArray array;
        for (const QVariant &item : value.toList())
            array.append(tagged(item));
        return array;
    }
    case Kind::Dictionary: {
        QJsonObject object;
        const QVariantMap map = value.toMap();
        for (auto it = map.begin(); it != map.end(); ++it)
            object.insert(it.key(), tagged(it.value()));
        return object;
    }
    default:
        return QJsonValue::fromVariant(value);
    }
}

} // namespace

class TestPropertyList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTrip_data();
    void roundTrip();
    void datesAreExactInBinaryAndWholeSecondsInXml();
    void uidsAndQtRelatives();
    void plistlibReadsOurFiles_data();
    void plistlibReadsOurFiles();
    void weReadPlistlibFiles_data();
    void weReadPlistlibFiles();
    void hostileInputIsRejected_data();
    void hostileInputIsRejected();
    void truncatedAndRandomInputIsRejected();
    void regressionInputs();
    void filesAreWrittenAtomically();
};

void TestPropertyList::roundTrip_data()
{
    QTest::addColumn<Format>("format");
    QTest::newRow("binary") << Format::Binary;
    QTest::newRow("xml") << Format::Xml;
}

void TestPropertyList::roundTrip()
{
    QFETCH(Format, format);
    const Result<QByteArray> data = plist::write(sample(), format);
    QVERIFY2(data, qPrintable(data.error().text));
    const Result<QVariant> back = plist::read(data.value());
    QVERIFY2(back, qPrintable(back.error().text));
    const QVariantMap expected = sample(), actual = back.value().toMap();
    QCOMPARE(actual.keys(), expected.keys());
    for (auto it = expected.begin(); it != expected.end(); ++it)
        QVERIFY2(identical(actual.value(it.key()), it.value()), qPrintable(it.key()));
    // Any value may be the root, not only containers.
    QVERIFY(identical(readBack(-0.0, format), -0.0));
    QVERIFY(identical(readBack(QStringLiteral("solo"), format), QStringLiteral("solo")));
    // Control characters are not XML 1.0, yet our own files must give them back.
    QVERIFY(identical(readBack(QStringLiteral("a\x01b"), format), QStringLiteral("a\x01b")));
}

void TestPropertyList::datesAreExactInBinaryAndWholeSecondsInXml()
{
    const QVariantList dates { date(814000000.123456789), date(-999999999.5), date(0) };
    const QVariantList later = dates + QVariantList { date(4e9 + 0.25) };
    QVERIFY(identical(readBack(later, Format::Binary), later));

    const QVariant xml = readBack(dates, Format::Xml);
    QVERIFY(identical(xml, QVariantList { date(814000000), date(-1000000000), date(0) }));
    // libplist holds XML dates in 32 bits; later ones are refused, not wrapped.
    QVERIFY(!readBack(later, Format::Xml).isValid());
    const Result<QByteArray> invalidDate = plist::write(QVariant::fromValue(Date()), Format::Binary);
    QVERIFY(!invalidDate && invalidDate.value().isEmpty() && !invalidDate.error().text.isEmpty());
}

void TestPropertyList::uidsAndQtRelatives()
{
    const QVariant uid = QVariant::fromValue(plist::Uid { 70000 });
    QVERIFY(identical(readBack(uid, Format::Binary), uid));
    // libplist reads an XML UID as the dictionary that spells it.
    QVERIFY(identical(readBack(uid, Format::Xml), QVariantMap { { "CF$UID", qint64(70000) } }));

    const QVariantMap relatives { { "list", QStringList { "a", "b" } }, { "hash", QVariantHash { { "k", 1 } } },
        { "int", int(-3) }, { "uint", 7u }, { "float", 0.5f },
        { "time", QDateTime(QDate(2001, 1, 1), QTime(0, 0, 1, 500), Qt::UTC) } };
    const QVariantMap canonical { { "list", QVariantList { "a", "b" } }, { "hash", QVariantMap { { "k", qint64(1) } } },
        { "int", qint64(-3) }, { "uint", qint64(7) }, { "float", 0.5 }, { "time", date(1.5) } };
    QVERIFY(identical(readBack(relatives, Format::Binary), canonical));

    for (Format format : { Format::Binary, Format::Xml }) {
        const Result<QByteArray> point = plist::write(QVariantMap { { "bad", QPoint(1, 2) } }, format);
        QVERIFY(!point && point.error().text.contains("QPoint"));
        QVERIFY(!plist::write(QVariantList { QVariant() }, format));
    }
}

void TestPropertyList::plistlibReadsOurFiles_data()
{
    roundTrip_data();
}

void TestPropertyList::plistlibReadsOurFiles()
{
    if (!test::havePython())
        QSKIP("python3 is not installed");
    QFETCH(Format, format);
    QVariantMap value = sample();
    value.insert("date", date(741529845));
    if (format == Format::Binary)
        value.insert("fractionalDate", date(814000000.123456));
    QTemporaryDir dir;
    const QString file = dir.filePath("ours.plist"), json = dir.filePath("expected.json");
    QVERIFY(!plist::writeFile(file, value, format));
    QFile out(json);
    QVERIFY(out.open(QIODevice::WriteOnly));
    out.write(QJsonDocument(tagged(value).toObject()).toJson());
    out.close();
    bool ok = false;
    const QString output = test::runCheckPlist({ file, json }, &ok);
    QVERIFY2(ok, qPrintable(output));
}

void TestPropertyList::weReadPlistlibFiles_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("binary") << "binary";
    QTest::newRow("xml") << "xml";
}

void TestPropertyList::weReadPlistlibFiles()
{
    if (!test::havePython())
        QSKIP("python3 is not installed");
    QFETCH(QString, format);
    QTemporaryDir dir;
    const QString file = dir.filePath("theirs.plist");
    bool ok = false;
    const QString output = test::runCheckPlist({ "--write", file, "--format", format }, &ok);
    QVERIFY2(ok, qPrintable(output));
    QVariantList twenty;
    for (int i = 0; i < 20; ++i)
        twenty << qint64(i);
    const QVariantMap expected {
        { "string", QStringLiteral("h\u00e9llo \u20ac \U0001F600 <&>") },
        { "empty", QString() },
        { "int", qint64(42) },
        { "negative", qint64(-7) },
        { "big", qint64(1) << 62 },
        { "real", 0.1 + 0.2 },
        { "tiny", 1e-310 },
        { "negativeZero", -0.0 },
        { "yes", true },
        { "no", false },
        { "data", QByteArray("\0\1\xfe\xff", 4) },
        { "date", date(741529845) },
        { "array", QVariantList { qint64(1), "two", 3.5, QVariantList(), QVariantMap() } },
        { "nested", QVariantMap { { "list", twenty }, { "key with space", QVariantMap { { "x", "y" } } } } },
    };
    const Result<QVariant> actual = plist::readFile(file);
    QVERIFY2(actual, qPrintable(actual.error().text));
    QVERIFY(identical(actual.value(), expected));
}

void TestPropertyList::hostileInputIsRejected_data()
{
    QTest::addColumn<QString>("reason");
    QTest::addColumn<QByteArray>("data");
    const QByteArray array1 = QByteArray("\xA1\x00", 2);
    QTest::newRow("empty") << "empty" << QByteArray();
    QTest::newRow("text") << "not a property list" << QByteArray("hello");
    QTest::newRow("other binary version") << "version" << QByteArray("bplist15").append(40, '\0');
    QTest::newRow("cycle") << "cyclic" << bplist({ array1 });
    QTest::newRow("cycle through a dictionary") << "cyclic" << bplist({ QByteArray("\xD1\x01\x00", 3), "\x51k" });
    QTest::newRow("reference out of range") << "reference out of range" << bplist({ QByteArray("\xA1\x05", 2) });
    QTest::newRow("non-string key") << "key is not a string" << bplist({ QByteArray("\xD1\x01\x01", 3), "\x10\x07" });
    QTest::newRow("unknown marker") << "unknown object type" << bplist({ "\xF0" });
    QTest::newRow("null object") << "unknown object type" << bplist({ QByteArray(1, '\0') });
    // An array claiming 2^60 elements.
    QTest::newRow("huge count") << "count larger"
                                << bplist({ QByteArray("\xAF\x13\x10\x00\x00\x00\x00\x00\x00\x00\x00", 11) });
    QTest::newRow("string past the end") << "past the data"
                                         << bplist({ QByteArray("\x5F\x12\x7F\xFF\xFF\xFF") + "ab" });

    QList<QByteArray> deep;
    for (int i = 1; i <= 10000; ++i) {
        QByteArray object("\xA1");
        appendBigEndian(object, quint64(i), 2);
        deep << object;
    }
    deep << "\x10\x01";
    QTest::newRow("10000 nested arrays") << "nested deeper" << bplist(deep, 2);
    QTest::newRow("10000 nested XML arrays") << "nested deeper"
                                             << QByteArray("<plist>") + QByteArray("<array>").repeated(10000)
            + QByteArray("</array>").repeated(10000) + "</plist>";

    // Each array holds the next one twice: a few hundred bytes, 2^64 values.
    QList<QByteArray> shared;
    for (int i = 1; i <= 64; ++i)
        shared << QByteArray(1, '\xA2') + char(i) + char(i);
    shared << "\x10\x01";
    QTest::newRow("shared subtrees") << "too many values" << bplist(shared);

    QByteArray badTrailer = plist::write(QVariantList { 1, 2 }, Format::Binary).value();
    badTrailer[badTrailer.size() - 1] = '\x7F'; // offset table beyond the data
    QTest::newRow("offset table out of range") << "trailer" << badTrailer;
    QTest::newRow("unclosed XML") << "not a valid XML" << QByteArray("<plist><array><string>a");
    QTest::newRow("XML with wrong element")
        << "not a valid XML" << QByteArray("<plist><array><banana/></array></plist>");
}

void TestPropertyList::hostileInputIsRejected()
{
    QFETCH(QString, reason);
    QFETCH(QByteArray, data);
    const Result<QVariant> read = plist::read(data);
    QVERIFY(!read && !read.value().isValid());
    QVERIFY2(read.error().text.contains(reason), qPrintable(read.error().text));
}

void TestPropertyList::truncatedAndRandomInputIsRejected()
{
    const QVariantMap value { { "a", QVariantList { 1, 2.5, "three" } }, { "b", date(1.25) },
        { "c", QByteArray("xyz") } };
    const QByteArray binary = plist::write(value, Format::Binary).value();
    const QByteArray xml = plist::write(value, Format::Xml).value();
    const qsizetype rootEnd = xml.lastIndexOf("</dict>") + 7;
    for (qsizetype length = 0; length < binary.size(); ++length)
        QVERIFY2(!plist::read(binary.left(length)), qPrintable(QString::number(length)));
    for (qsizetype length = 0; length < rootEnd; ++length)
        QVERIFY2(!plist::read(xml.left(length)), qPrintable(QString::number(length)));

    // Random and mutated input: every result is a value or has a reason.
    QRandomGenerator random(20240701);
    for (int round = 0; round < 3000; ++round) {
        QByteArray data = round % 3 == 0 ? binary : round % 3 == 1 ? xml : QByteArray("bplist00");
        const int changes = 1 + random.bounded(8);
        for (int i = 0; i < changes; ++i) {
            if (data.size() < 300)
                data.append(char(random.bounded(256)));
            data[random.bounded(int(data.size()))] = char(random.bounded(256));
        }
        const Result<QVariant> result = plist::read(data);
        QVERIFY(result ? result.value().isValid() : !result.error().text.isEmpty());
    }
}

void TestPropertyList::regressionInputs()
{
    QDirIterator it(test::sourceDir() + "/tests/plist/regressions", {"*.bin", "*.xml"}, QDir::Files);
    int count = 0;
    while (it.hasNext()) {
        QFile file(it.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray data = file.readAll();
        const Result<QVariant> value = plist::read(data);
        QVERIFY2(value ? value.value().isValid() : !value.error().text.isEmpty(), qPrintable(it.fileName()));
        const Result<QVariant> archived = KeyedArchive::unarchive(data);
        QVERIFY2(archived || !archived.error().text.isEmpty(), qPrintable(it.fileName()));
        ++count;
    }
    QVERIFY2(count > 0, "tests/plist/regressions holds no inputs");
}

void TestPropertyList::filesAreWrittenAtomically()
{
    QTemporaryDir dir;
    const QString path = dir.filePath("doc.plist");
    QVERIFY(!plist::writeFile(path, QVariantMap { { "keep", "me" } }, Format::Xml));
    QVERIFY(!plist::writeFile(path, QVariantMap { { "bad", QVariant() } }, Format::Xml).text.isEmpty());
    QVERIFY(identical(plist::readFile(path).value(), QVariantMap { { "keep", "me" } }));
    QCOMPARE(QDir(dir.path()).entryList(QDir::Files), QStringList { "doc.plist" });

    QVERIFY(plist::writeFile(dir.filePath("missing/doc.plist"), 1, Format::Binary));
    const Result<QVariant> none = plist::readFile(dir.filePath("none.plist"));
    QVERIFY(!none && none.error().text.contains("none.plist"));
}

QTEST_GUILESS_MAIN(TestPropertyList)
#include "TestPropertyList.moc"
