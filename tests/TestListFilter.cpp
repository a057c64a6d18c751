#include "TestSupport.h"

#include "domain/DocumentList.h"
#include "domain/ListFilter.h"
#include "domain/Record.h"

#include <QTest>

#include <memory>
#include <vector>

using namespace tabo;

class TestListFilter : public QObject
{
    Q_OBJECT

    const Date m_now = test::utc(2026, 6, 15, 12);
    std::vector<std::unique_ptr<Record>> m_docs; // detached: the list needs no store

    Record *doc(int kind, int status, double amount = 0)
    {
        m_docs.push_back(std::make_unique<Record>(nullptr, EntityId::Invoice, qint64(m_docs.size() + 1)));
        Record *r = m_docs.back().get();
        r->setInt(Invoice::kind, kind);
        r->setInt(Invoice::status, status);
        r->setNum(Invoice::amount, amount);
        r->setDate(Invoice::date, m_now);
        return r;
    }

    DocumentList listOfAll(unsigned tag)
    {
        DocumentList list;
        for (const auto &r : m_docs)
            list.add(r.get());
        list.setFilterTag(tag);
        list.applyFilter(m_now);
        return list;
    }

private Q_SLOTS:
    void cleanup() { m_docs.clear(); }

    void tags_data()
    {
        QTest::addColumn<unsigned>("tag");
        QTest::addColumn<int>("kind");
        QTest::addColumn<int>("status");
        QTest::addColumn<bool>("shown");
        QTest::newRow("0 anything") << 0u << 7 << 7 << true;
        QTest::newRow("1 open") << 1u << 1 << 1 << true;
        QTest::newRow("1 open quote") << 1u << 0 << 1 << false;
        QTest::newRow("9 as 1") << 9u << 1 << 1 << true;
        QTest::newRow("42 as 1, overdue") << 42u << 1 << 2 << false;
        QTest::newRow("2 overdue") << 2u << 1 << 2 << true;
        // AND binds tighter than OR: status 4 alone suffices.
        QTest::newRow("2 partly paid quote") << 2u << 0 << 4 << true;
        QTest::newRow("2 overdue quote") << 2u << 0 << 2 << false;
        QTest::newRow("3 paid") << 3u << 1 << 3 << true;
        QTest::newRow("3 paid quote") << 3u << 0 << 3 << false;
        QTest::newRow("4 quote") << 4u << 0 << 4 << true;
        QTest::newRow("4 kind 2") << 4u << 2 << 0 << false; // a quote to the summary, not to "kind == 0"
        // An empty attribute equals no number, though it reads as 0.
        QTest::newRow("4 empty kind") << 4u << -1 << 0 << false;
    }

    void tags()
    {
        QFETCH(unsigned, tag);
        QFETCH(int, kind);
        QFETCH(int, status);
        Record *r = doc(kind, status);
        if (kind < 0)
            r->setNull(Invoice::kind);
        QTEST(ListFilter::forTag(tag, m_now).matches(*r), "shown");
    }

    void timeFilters_data()
    {
        QTest::addColumn<double>("age"); // seconds before now
        QTest::addColumn<int>("shownBy5to8"); // leftmost bit: filter 5
        // Half a day, week, 31-day month and 365-day year, bounds included.
        QTest::newRow("now") << 0.0 << 0b1111;
        QTest::newRow("12 h") << 43200.0 << 0b1111;
        QTest::newRow("12 h + 1 s") << 43201.0 << 0b0111;
        QTest::newRow("13 h") << 13 * 3600.0 << 0b0111;
        QTest::newRow("3.5 d + 1 s") << 302401.0 << 0b0011;
        QTest::newRow("15.5 d") << 1339200.0 << 0b0011;
        QTest::newRow("16 d") << 16 * 86400.0 << 0b0001;
        QTest::newRow("182.5 d") << 15768000.0 << 0b0001;
        QTest::newRow("183 d") << 183 * 86400.0 << 0b0000;
        QTest::newRow("1 s ahead") << -1.0 << 0b0000;
    }

    void timeFilters()
    {
        QFETCH(double, age);
        QFETCH(int, shownBy5to8);
        Record *r = doc(1, 1);
        r->setDate(Invoice::date, m_now.addSeconds(-age));
        for (unsigned tag = 5; tag <= 8; ++tag)
            QVERIFY2(ListFilter::forTag(tag, m_now).matches(*r) == bool((shownBy5to8 >> (8 - tag)) & 1),
                     qPrintable(QStringLiteral("filter %1").arg(tag)));
    }

    void uniqueIdLike()
    {
        struct Case
        {
            const char *id, *pattern;
            bool matches;
        };
        const Case cases[] = {
            {"A1B2-C3D4-e5f6", "a1b2-c3d4-E5F6", true}, // case-insensitive
            {"A1B2-C3D4-e5f6", "A1B2", false},          // the whole text
            {"A1B2-C3D4-e5f6", "A1*D4*6", true},
            {"A1B2-C3D4-e5f6", "*X*", false},
            {"A1B2-C3D4-e5f6", "?1B?-C3D4-e5f?", true},
            {"axb", "a.b", false}, // no regular expression
            {"aaab", "*a*ab", true},
            {nullptr, "*", false}, // no ID at all
        };
        Record *r = doc(1, 1);
        for (const auto &c : cases) {
            c.id ? r->setText(Invoice::uniqueID, QString::fromLatin1(c.id)) : r->setNull(Invoice::uniqueID);
            QVERIFY2(ListFilter::uniqueIdLike(QString::fromLatin1(c.pattern)).matches(*r) == c.matches, c.pattern);
        }
    }

    void summaryFollowsFilter()
    {
        for (int i = 0; i < 3; ++i)
            doc(0, 0, 100.0);
        doc(2, 0, 50.0);
        doc(1, 3, 30.0);
        Record *overdue = doc(1, 1, 70.0);
        overdue->setDate(Invoice::due, m_now.addDays(-1));

        DocumentList list = listOfAll(4);
        QCOMPARE(list.calculateDatabase(m_now), (Summary{0, 3, 0, 0, 0, 0}));
        QCOMPARE(list.summary(), (Summary{0, 3, 0, 0, 0, 0}));

        // An invoice the filter hides is not refreshed.
        list = listOfAll(3);
        QCOMPARE(list.calculateDatabase(m_now), (Summary{1, 0, 1, 30, 30, 0}));
        QCOMPARE(overdue->integer(Invoice::status), 1);

        // It stays listed after turning overdue until the list is arranged again.
        list = listOfAll(1);
        QCOMPARE(list.calculateDatabase(m_now), (Summary{1, 0, 1, 70, 0, 70}));
        QVERIFY(list.shown().contains(overdue));
        list.rearrange();
        QVERIFY(!list.shown().contains(overdue));
    }

    void setFilterTagKeepsPredicate()
    {
        // A new invoice under filter 3: the tag goes to 0 but the predicate
        // stays until it is rebuilt, so the new invoice is not listed yet.
        Record *r = doc(1, 3);
        DocumentList list = listOfAll(3);
        list.setFilterTag(0);
        Record *fresh = doc(1, 0);
        list.add(fresh);
        QCOMPARE(list.shown(), QList<Record *>{r});
        list.applyFilter(m_now);
        QCOMPARE(list.shown().size(), 2);
    }

    void searchWithEveryTag()
    {
        Record *kunde = doc(1, 3, 238.0);
        kunde->setText(Invoice::number, QStringLiteral("RE-2026-3"));
        kunde->setText(Invoice::customerName, QStringLiteral("Kunde GmbH"));
        Record *quote = doc(0, 0, 119.0);
        quote->setText(Invoice::address, QStringLiteral("Atelier Lumen\nParis"));
        quote->setText(Invoice::subject, QStringLiteral("Website relaunch"));
        Record *open = doc(1, 1, 1234.5);
        open->setText(Invoice::customerName, QStringLiteral("Kunde AG"));
        open->setNum(Invoice::subAmount, 1037.39);
        open->setDate(Invoice::due, m_now.addDays(10));

        const auto shown = [&](unsigned tag, const QString &text, std::optional<double> amount = {}) {
            DocumentList list = listOfAll(tag);
            list.setSearch({text, amount});
            list.calculateDatabase(m_now);
            return list;
        };
        // Every tag narrows what the search finds, and the summary follows.
        QCOMPARE(shown(0, QStringLiteral("kunde")).shown(), (QList<Record *>{open, kunde})); // newest first
        QCOMPARE(shown(3, QStringLiteral("kunde")).shown(), QList<Record *>{kunde});
        QCOMPARE(shown(3, QStringLiteral("kunde")).summary().totalAmount, 238.0f);
        QCOMPARE(shown(1, QStringLiteral("kunde")).shown(), QList<Record *>{open});
        QCOMPARE(shown(4, QStringLiteral("kunde")).shown(), QList<Record *>{});
        QCOMPARE(shown(4, QStringLiteral("PARIS")).shown(), QList<Record *>{quote});
        QCOMPARE(shown(4, QStringLiteral("relaunch")).summary().quoteCount, 1u);
        for (unsigned tag : {2u, 5u, 6u, 7u, 8u})
            QCOMPARE(shown(tag, QStringLiteral("RE-2026")).shown(), tag < 5 ? QList<Record *>{} : QList<Record *>{kunde});
        // Amounts as typed: the total or the net total, to the cent.
        QCOMPARE(shown(0, QStringLiteral("1234,50"), 1234.5).shown(), QList<Record *>{open});
        QCOMPARE(shown(0, QStringLiteral("1037.39"), 1037.39).shown(), QList<Record *>{open});
        QCOMPARE(shown(0, QStringLiteral("1234.6"), 1234.6).shown(), QList<Record *>{});
        // A search of blanks is none; the list knows what it shows.
        DocumentList list = shown(0, QStringLiteral("  "));
        QCOMPARE(list.shown().size(), 3);
        list.setSearch({QStringLiteral("Lumen"), {}});
        QVERIFY(list.shows(quote) && !list.shows(kunde));
        // Typing on narrows, deleting widens again; an amount starts over.
        list.setSearch({QStringLiteral("kun"), {}});
        list.setSearch({QStringLiteral("Kunde a"), {}});
        QCOMPARE(list.shown(), QList<Record *>{open});
        list.setSearch({QStringLiteral("k"), {}});
        QCOMPARE(list.shown().size(), 2);
        list.setSearch({QStringLiteral("119"), 119.0});
        QCOMPARE(list.shown(), QList<Record *>{quote});
    }
};

QTEST_GUILESS_MAIN(TestListFilter)
#include "TestListFilter.moc"
