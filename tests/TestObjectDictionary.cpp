#include "TestSupport.h"

#include "domain/Record.h"
#include "store/ObjectDictionary.h"
#include "store/Store.h"

#include <QtTest>

#include <cstring>

using namespace tabo;
namespace OD = ObjectDictionary;

namespace {

struct Fixture
{
    test::TempHome home;
    Store store{home.path() + QStringLiteral("/t.mbdb")};
    Fixture() { QVERIFY(!store.open()); }

    Record *line(Record *invoice, const QString &title)
    {
        Record *item = store.insert(EntityId::Item);
        item->setText(Item::title, title);
        item->setToOne(Item::invoice, invoice);
        return item;
    }
};

// Distinct values per attribute, awkward ones included ("" and fractions a
// float cannot hold).
QVariant sampleValue(const AttributeDesc &a, int i)
{
    switch (a.type) {
    case AttrType::Text: return i % 4 == 0 ? QStringLiteral("") : QStringLiteral("%1 “ü”\n#%2").arg(a.name).arg(i);
    case AttrType::Int: return i * 7 - 3;
    case AttrType::Bool: return i % 2 == 0;
    case AttrType::Double: return 0.1 * i + 1e-13;
    case AttrType::Float: return 0.3 * i;
    case AttrType::Date: return QVariant::fromValue(Date::fromReferenceSeconds(814000000.123456789 + i));
    }
    return {};
}

} // namespace

class TestObjectDictionary : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void historyStopsCyclesAndSharedPaths();
    void emptyValuesAndStoredTypes();
    void everyAttributeRoundTrips();
    void prefixedDatesAndWrongTypes();
};

void TestObjectDictionary::historyStopsCyclesAndSharedPaths()
{
    Fixture f;
    Record *invoice = f.store.insert(EntityId::Invoice);
    Record *first = f.line(invoice, QStringLiteral("first"));
    f.line(invoice, QStringLiteral("second"));

    const QVariantMap dict = OD::toDictionary(*invoice);
    QCOMPARE(dict.value(QStringLiteral("class")).toString(), QStringLiteral("Invoice"));
    const QVariantList lines = dict.value(QStringLiteral("items")).toList();
    QCOMPARE(lines.size(), 2);
    for (const QVariant &l : lines) {
        QCOMPARE(l.toMap().value(QStringLiteral("class")).toString(), QStringLiteral("Item"));
        QVERIFY(!l.toMap().contains(QStringLiteral("invoice")));
    }
    // A top-level call forgets its walk: the same invoice again has both lines.
    QCOMPARE(OD::toDictionary(*invoice).value(QStringLiteral("items")).toList().size(), 2);

    // Reached first, a line carries its invoice, which then lists only the other line.
    const QVariantMap viaLine = OD::toDictionary(*first).value(QStringLiteral("invoice")).toMap();
    const QVariantList rest = viaLine.value(QStringLiteral("items")).toList();
    QCOMPARE(rest.size(), 1);
    QCOMPARE(rest[0].toMap().value(QStringLiteral("title")).toString(), QStringLiteral("second"));

    // A history passed in is shared and kept.
    QList<const Record *> history{invoice};
    QVERIFY(!OD::toDictionaryWithTraversalHistory(*first, &history).contains(QStringLiteral("invoice")));
    QCOMPARE(history.size(), 2);

    const QVariantMap empty = OD::toDictionary(*f.store.insert(EntityId::Invoice));
    QVERIFY(empty.contains(QStringLiteral("items")));
    QVERIFY(empty.value(QStringLiteral("items")).toList().isEmpty());
    QCOMPARE(OD::toDictionary(*f.store.insert(EntityId::Template)).value(QStringLiteral("class")).toString(),
             QStringLiteral("NSManagedObject"));
}

void TestObjectDictionary::emptyValuesAndStoredTypes()
{
    Fixture f;
    Record *r = f.store.insert(EntityId::Invoice);
    r->setDate(Invoice::date, Date::fromReferenceSeconds(1.25));
    r->setText(Invoice::title, QStringLiteral(""));
    r->setInt(Invoice::kind, 1);
    r->setBool(Invoice::isPaid, false);
    r->setSingle(Invoice::misc3, 0.3f);
    const QVariantMap d = OD::toDictionary(*r);

    QVERIFY(!d.contains(QStringLiteral("due")) && !d.contains(QStringLiteral("dAtEaTtr:due")));
    QVERIFY(!d.contains(QStringLiteral("date")));
    QCOMPARE(d.value(QStringLiteral("dAtEaTtr:date")), QVariant(1.25));
    QCOMPARE(d.value(QStringLiteral("title")), QVariant(QStringLiteral("")));
    QVERIFY(!d.contains(QStringLiteral("subject")));
    QCOMPARE(d.value(QStringLiteral("kind")), QVariant(qint64(1)));
    QCOMPARE(d.value(QStringLiteral("isPaid")), QVariant(false));
    QCOMPARE(d.value(QStringLiteral("misc3")), QVariant(double(0.3f)));
    QCOMPARE(d.size(), 7); // class, items and the five values set
    for (const auto &[key, type] : {std::pair{"kind", QMetaType::LongLong}, {"isPaid", QMetaType::Bool},
                                    {"misc3", QMetaType::Double}, {"dAtEaTtr:date", QMetaType::Double}})
        QVERIFY2(d.value(QLatin1String(key)).metaType().id() == type, key);
}

void TestObjectDictionary::everyAttributeRoundTrips()
{
    Fixture f;
    for (int e = 0; e < kEntityCount; ++e) {
        Record *source = f.store.insert(EntityId(e));
        const auto &attrs = source->desc().attributes;
        for (int i = 0; i < int(attrs.size()); ++i)
            QVERIFY(source->setValue(i, sampleValue(attrs[i], i + e)));
        QVariantMap dict = OD::toDictionary(*source);
        dict.insert(OD::kClassKey, source->desc().name); // what readers of templates do
        Record *copy = OD::createManagedObjectFromDictionary(dict, f.store);
        QVERIFY(copy);
        QCOMPARE(copy->entityId(), EntityId(e));
        for (int i = 0; i < int(attrs.size()); ++i) {
            const QString what = source->desc().name + QLatin1Char('.') + attrs[i].name;
            // What the store alone keeps never reaches a dictionary: other
            // readers take every key they find for an attribute of theirs.
            const bool inDictionary = dict.contains(attrs[i].name) || dict.contains(OD::kDatePrefix + attrs[i].name);
            QVERIFY2(inDictionary == attrs[i].exchanged, qPrintable(what));
            QCOMPARE(copy->isNull(i), !attrs[i].exchanged);
            if (!attrs[i].exchanged)
                continue;
            if (attrs[i].isText()) {
                QVERIFY2(copy->text(i) == source->text(i), qPrintable(what));
            } else {
                const double a = copy->num(i), b = source->num(i);
                QVERIFY2(std::memcmp(&a, &b, sizeof a) == 0, qPrintable(what));
            }
        }
    }

    Record *invoice = f.store.insert(EntityId::Invoice);
    f.line(invoice, QStringLiteral("a"));
    f.line(invoice, QStringLiteral("b"));
    Record *copy = OD::createManagedObjectFromDictionary(OD::toDictionary(*invoice), f.store);
    QCOMPARE(copy->toMany(Invoice::items).size(), 2);
    for (const Record *l : copy->toMany(Invoice::items))
        QCOMPARE(l->toOne(Item::invoice), copy);
}

void TestObjectDictionary::prefixedDatesAndWrongTypes()
{
    Fixture f;
    QCOMPARE(OD::decodedValueFrom(5, QStringLiteral("dAtEaTtr:due")).value<Date>(), Date::fromReferenceSeconds(5));
    QCOMPARE(OD::decodedValueFrom(5, QStringLiteral("due")), QVariant(5));

    const qsizetype addresses = f.store.all(EntityId::Address).size();
    const QVariantMap dict = {
        {QStringLiteral("class"), QStringLiteral("Invoice")},
        {QStringLiteral("dAtEaTtr:due"), 123.5},
        {QStringLiteral("amount"), QStringLiteral("much")},
        {QStringLiteral("title"), QVariantList{1, 2}},
        {QStringLiteral("subject"), QStringLiteral("kept")},
        {QStringLiteral("number"), QVariantMap{{QStringLiteral("class"), QStringLiteral("Item")}}},
        {QStringLiteral("items"), QVariantList{QVariantMap{{QStringLiteral("class"), QStringLiteral("Address")}}, 7}},
        {QStringLiteral("nonsense"), 3},
    };
    Record *r = OD::createManagedObjectFromDictionary(dict, f.store);
    QVERIFY(r);
    QCOMPARE(r->date(Invoice::due), Date::fromReferenceSeconds(123.5));
    QVERIFY(r->isNull(Invoice::amount));
    QVERIFY(r->isNull(Invoice::title));
    QVERIFY(r->isNull(Invoice::number));
    QCOMPARE(r->text(Invoice::subject), QStringLiteral("kept"));
    QVERIFY(r->toMany(Invoice::items).isEmpty());
    QCOMPARE(f.store.all(EntityId::Address).size(), addresses);

    for (const QString &cls : {QStringLiteral("NSManagedObject"), QStringLiteral("Nope"), QString()})
        QVERIFY(!OD::createManagedObjectFromDictionary({{QStringLiteral("class"), cls}}, f.store));
}

QTEST_GUILESS_MAIN(TestObjectDictionary)
#include "TestObjectDictionary.moc"
