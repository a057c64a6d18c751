#include "TestSupport.h"

#include "domain/Record.h"
#include "store/Store.h"

#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <sqlite3.h>

#include <cmath>
#include <cstring>

using namespace tabo;

namespace {

// A distinct, non-trivial value for every attribute, derived from its index so
// that a column mix-up shows.
QVariant sampleValue(const AttributeDesc &a, int i)
{
    switch (a.type) {
    case AttrType::Text: return i % 5 == 0 ? QStringLiteral("") : QStringLiteral("%1 “ü” #%2\nline").arg(a.name).arg(i);
    case AttrType::Int: return i * 7 - 3;
    case AttrType::Bool: return i % 2 == 0;
    case AttrType::Double: return i % 4 == 0 ? std::nan("") : 0.1 * i + 1e-13;
    case AttrType::Float: return float(0.3 * i);
    case AttrType::Date: return QVariant::fromValue(Date::fromReferenceSeconds(814000000.123456789 + i));
    }
    return {};
}

bool sameValue(const QVariant &a, const QVariant &b)
{
    if (a.metaType() != b.metaType())
        return false;
    if (a.metaType() == QMetaType::fromType<double>()) {
        const double x = a.toDouble(), y = b.toDouble();
        return std::memcmp(&x, &y, sizeof x) == 0;
    }
    if (a.metaType() == QMetaType::fromType<Date>())
        return a.value<Date>() == b.value<Date>();
    if (a.metaType() == QMetaType::fromType<QString>())
        return a.toString() == b.toString() && a.toString().isNull() == b.toString().isNull();
    return a == b;
}

QByteArray fileBytes(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void execOn(const QString &path, const char *sql)
{
    sqlite3 *db = nullptr;
    QCOMPARE(sqlite3_open(path.toUtf8().constData(), &db), SQLITE_OK);
    QCOMPARE(sqlite3_exec(db, sql, nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(db);
}

} // namespace

class TestStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyAttributeRoundTrips();
    void savesOnlyWhatChanged();
    void linesAndCascade();
    void refusesForeignAndDamagedFiles_data();
    void refusesForeignAndDamagedFiles();
    void addsColumnsOfNewerDescription();
};

void TestStore::everyAttributeRoundTrips()
{
    test::TempHome home;
    const QString path = home.path() + QStringLiteral("/t.mbdb");
    QList<qint64> ids;
    {
        Store store(path);
        QVERIFY(!store.open());
        QVERIFY(QFileInfo::exists(path + QStringLiteral("-wal")));
        QVERIFY(QFileInfo::exists(path + QStringLiteral("-shm")));
        for (int e = 0; e < kEntityCount; ++e) {
            Record *r = store.insert(EntityId(e));
            const auto &attrs = r->desc().attributes;
            for (int i = 0; i < int(attrs.size()); ++i)
                QVERIFY(r->setValue(i, sampleValue(attrs[i], i + e)));
            // One attribute left empty must come back empty, not 0 or "".
            r->setNull(int(attrs.size()) - 1);
            ids << r->id();
        }
        QVERIFY(!store.save());
        QVERIFY(!store.hasChanges());
    }
    Store store(path);
    QVERIFY(!store.open());
    QCOMPARE(store.schemaVersion(), Store::kSchemaVersion);
    for (int e = 0; e < kEntityCount; ++e) {
        Record *r = store.byId(EntityId(e), ids[e]);
        QVERIFY2(r, qPrintable(entityDesc(EntityId(e)).name));
        const auto &attrs = r->desc().attributes;
        for (int i = 0; i < int(attrs.size()) - 1; ++i) {
            QVariant expected = sampleValue(attrs[i], i + e);
            if (attrs[i].type == AttrType::Float)
                expected = float(expected.toFloat());
            QVERIFY2(sameValue(r->value(i), expected),
                     qPrintable(r->desc().name + QLatin1Char('.') + attrs[i].name));
        }
        QVERIFY(r->isNull(int(attrs.size()) - 1));
    }
    // Empty reads as 0, false, "" through every typed accessor and by key.
    Record *inv = store.insert(EntityId::Invoice);
    QCOMPARE(inv->num(Invoice::amount), 0.0);
    QCOMPARE(inv->boolean(Invoice::isPaid), false);
    QCOMPARE(inv->text(Invoice::title), QString());
    QVERIFY(!inv->value(QStringLiteral("due")).isValid());
    QVERIFY(!inv->setValue(QStringLiteral("noSuchKey"), 1));
    QVERIFY(!inv->setValue(QStringLiteral("amount"), QStringLiteral("twelve")));
    QVERIFY(inv->setValue(QStringLiteral("date"), QStringLiteral("2026-03-05T10:00:00Z")));
    QCOMPARE(inv->date(Invoice::date).toIso8601(), QStringLiteral("2026-03-05T10:00:00.000Z"));
}

void TestStore::savesOnlyWhatChanged()
{
    test::TempHome home;
    const QString path = home.path() + QStringLiteral("/t.mbdb");
    Store store(path);
    QVERIFY(!store.open());
    Record *inv = store.insert(EntityId::Invoice);
    inv->setText(Invoice::title, QStringLiteral("A"));
    inv->setText(Invoice::subject, QStringLiteral("S"));
    inv->setNum(Invoice::amount, 5);
    QVERIFY(!store.save());

    // Writing the value already held is no change at all.
    inv->setNum(Invoice::amount, 5);
    inv->setText(Invoice::title, QStringLiteral("A"));
    QVERIFY(!store.hasChanges());

    // Another writer changes a column we did not touch: our save must keep it.
    execOn(path, "UPDATE \"Invoice\" SET \"subject\" = 'other'");
    inv->setText(Invoice::title, QStringLiteral("B"));
    QVERIFY(store.hasChanges());
    QVERIFY(!store.save());

    Store again(path);
    QVERIFY(!again.open());
    Record *r = again.all(EntityId::Invoice).first();
    QCOMPARE(r->text(Invoice::title), QStringLiteral("B"));
    QCOMPARE(r->text(Invoice::subject), QStringLiteral("other"));
}

void TestStore::linesAndCascade()
{
    test::TempHome home;
    const QString path = home.path() + QStringLiteral("/t.mbdb");
    qint64 keepId = 0;
    {
        Store store(path);
        QVERIFY(!store.open());
        Record *a = store.insert(EntityId::Invoice);
        Record *b = store.insert(EntityId::Invoice);
        keepId = b->id();
        for (int i = 0; i < 3; ++i)
            store.insert(EntityId::Item)->setToOne(Item::invoice, i < 2 ? a : b);
        QCOMPARE(a->toMany(Invoice::items).size(), 2);
        QVERIFY(!store.save());
        store.remove(a);
        QCOMPARE(store.all(EntityId::Invoice).size(), 1);
        QVERIFY(!store.save());
    }
    Store store(path);
    QVERIFY(!store.open());
    QCOMPARE(store.count(EntityId::Item), 1);
    Record *b = store.byId(EntityId::Invoice, keepId);
    QCOMPARE(b->toMany(Invoice::items).size(), 1);
    Record *line = b->toMany(Invoice::items).first();
    QCOMPARE(line->toOne(Item::invoice), b);

    // Moving a line and adding an unsaved one show at once, before any save.
    Record *c = store.insert(EntityId::Invoice);
    line->setToOne(Item::invoice, c);
    store.insert(EntityId::Item)->setToOne(Item::invoice, c);
    QCOMPARE(b->toMany(Invoice::items).size(), 0);
    QCOMPARE(c->toMany(Invoice::items).size(), 2);
    QVERIFY(!store.save());
}

void TestStore::refusesForeignAndDamagedFiles_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("text file") << "text";
    QTest::newRow("other program's database") << "foreign";
    QTest::newRow("newer version") << "newer";
    QTest::newRow("damaged pages") << "damaged";
    QTest::newRow("truncated") << "truncated";
}

void TestStore::refusesForeignAndDamagedFiles()
{
    QFETCH(QString, kind);
    test::TempHome home;
    const QString path = home.path() + QStringLiteral("/t.mbdb");
    if (kind == QLatin1String("text")) {
        QFile f(path);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("these are my notes, not a database\n");
    } else if (kind == QLatin1String("foreign")) {
        execOn(path, "CREATE TABLE photos(id INTEGER, name TEXT); INSERT INTO photos VALUES (1, 'x');");
    } else if (kind == QLatin1String("newer")) {
        execOn(path, "CREATE TABLE \"Invoice\"(id INTEGER); PRAGMA user_version = 99;");
    } else {
        {
            Store store(path);
            QVERIFY(!store.open());
            for (int i = 0; i < 400; ++i)
                store.insert(EntityId::Invoice)->setText(Invoice::notes, QString(500, QLatin1Char('n')));
            QVERIFY(!store.save());
        }
        QVERIFY(!QFileInfo::exists(path + QStringLiteral("-wal"))); // checkpointed on close
        QFile f(path);
        QVERIFY(f.open(QIODevice::ReadWrite));
        if (kind == QLatin1String("damaged")) {
            f.seek(3 * 4096);
            f.write(QByteArray(8 * 4096, '\xA5'));
        } else {
            f.resize(f.size() / 3);
        }
    }
    const QByteArray before = fileBytes(path);
    Store store(path);
    const Error e = store.open();
    QVERIFY2(e.isError(), qPrintable(kind));
    QVERIFY(!store.isOpen());
    QVERIFY(!e.text.isEmpty());
    QCOMPARE(fileBytes(path), before);
}

void TestStore::addsColumnsOfNewerDescription()
{
    test::TempHome home;
    const QString path = home.path() + QStringLiteral("/t.mbdb");
    {
        Store store(path);
        QVERIFY(!store.open());
        store.insert(EntityId::Invoice)->setText(Invoice::title, QStringLiteral("kept"));
        QVERIFY(!store.save());
    }
    // A store written before `miscString3` existed.
    execOn(path, "ALTER TABLE \"Invoice\" DROP COLUMN \"miscString3\"; PRAGMA user_version = 0;");
    execOn(path, "PRAGMA user_version = 1;");
    Store store(path);
    QVERIFY(!store.open());
    Record *r = store.all(EntityId::Invoice).first();
    QCOMPARE(r->text(Invoice::title), QStringLiteral("kept"));
    QVERIFY(r->isNull(Invoice::miscString3));
    r->setText(Invoice::miscString3, QStringLiteral("new"));
    QVERIFY(!store.save());
}

QTEST_GUILESS_MAIN(TestStore)
#include "TestStore.moc"
