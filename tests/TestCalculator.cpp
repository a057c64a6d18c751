#include "TestSupport.h"

#include "domain/Calculator.h"
#include "domain/Record.h"
#include "store/Store.h"

#include <QTest>

#include <clocale>
#include <cmath>

using namespace tabo;

namespace {

// One line of a document; bit k of `applied` and `compound` stands for tax k+1.
struct Line
{
    double base = 100, count = 1;
    unsigned applied = 0, compound = 0;
    double rate[3] = {};
};

// `settings`: bits for beforeTaxesBool, tax2IsCompound, tax3IsCompound.
struct Total
{
    Line line;
    int ship = -1, discountKind = -1;
    double discount = 0;
    int settings = 0;
    double amount = 0;
};

// 10 of shipping taxed by the bits of `ship` (none when -1); discount kind 0
// is a fixed amount, any other a percentage (none when -1).
void configure(Record *doc, int ship, int discountKind = -1, double discount = 0)
{
    doc->setBool(Invoice::isShippingEnabled, ship >= 0);
    doc->setNum(Invoice::shippingAmount, 10.0);
    doc->setBool(Invoice::isShippingTax1Enabled, ship >= 0 && (ship & 1));
    doc->setBool(Invoice::isShippingTax2Enabled, ship >= 0 && (ship & 2));
    doc->setBool(Invoice::isShippingTax3Enabled, ship >= 0 && (ship & 4));
    doc->setBool(Invoice::isDiscountEnabled, discountKind >= 0);
    doc->setInt(Invoice::discountKind, discountKind);
    doc->setNum(discountKind ? Invoice::discountPercent : Invoice::discountAmount, discount);
}

} // namespace

Q_DECLARE_METATYPE(Total)

class TestCalculator : public QObject
{
    Q_OBJECT

    test::TempHome m_home;
    Store m_store{m_home.path() + QStringLiteral("/t.mbdb")};

    static double f(double x) { return double(float(x)); }
    static Record *item(const Record *doc, int i) { return doc->toMany(Invoice::items).at(i); }

    // Document rates are always 0.19, 0.07 and 0.13.
    Record *document(std::initializer_list<Line> lines)
    {
        static constexpr int applied[3] = {Item::isTax1Applied, Item::isTax2Applied, Item::isTax3Applied};
        static constexpr int percent[3] = {Item::tax1Percent, Item::tax2Percent, Item::tax3Percent};
        Record *doc = m_store.insert(EntityId::Invoice);
        doc->setInt(Invoice::kind, 1);
        doc->setNum(Invoice::tax1Percent, 0.19);
        doc->setNum(Invoice::tax2Percent, 0.07);
        doc->setNum(Invoice::tax3Percent, 0.13);
        for (const Line &l : lines) {
            Record *it = m_store.insert(EntityId::Item);
            it->setToOne(Item::invoice, doc);
            it->setNum(Item::baseAmount, l.base);
            it->setNum(Item::unitCount, l.count);
            for (int t = 0; t < 3; ++t) {
                it->setBool(applied[t], l.applied & (1u << t));
                it->setNum(percent[t], l.rate[t]);
            }
            it->setBool(Item::isTax2Compound, l.compound & 2u);
            it->setBool(Item::isTax3Compound, l.compound & 4u);
        }
        return doc;
    }

    Record *invoice(int status, double amount, Date due = Date())
    {
        Record *doc = document({});
        doc->setInt(Invoice::status, status);
        doc->setNum(Invoice::amount, amount);
        if (due.isValid())
            doc->setDate(Invoice::due, due);
        return doc;
    }

private Q_SLOTS:
    void initTestCase() { QVERIFY(!m_store.open()); }

    void rounding_data()
    {
        QTest::addColumn<int>("decimals");
        QTest::addColumn<double>("input");
        QTest::addColumn<double>("expected");
        // Ties of exact binary values go to the even digit; the others follow
        // the stored value, not the decimal text.
        QTest::newRow("0.125 tie") << 2 << 0.125 << 0.12;
        QTest::newRow("0.375 tie") << 2 << 0.375 << 0.38;
        QTest::newRow("0.135 above") << 2 << 0.135 << 0.14;
        QTest::newRow("2.675 below") << 2 << 2.675 << 2.67;
        QTest::newRow("19.456") << 2 << 19.456 << 19.46;
        QTest::newRow("r3 0.1875 tie") << 3 << 0.1875 << 0.188;
        QTest::newRow("r3 0.0705 below") << 3 << 0.0705 << 0.07;
        QTest::newRow("r4 0.03125 tie") << 4 << 0.03125 << 0.0312;
    }

    void rounding()
    {
        QFETCH(int, decimals);
        QFETCH(double, input);
        // Under a comma locale, where the C library would read "19,46" as 19.
        const char *old = std::setlocale(LC_NUMERIC, nullptr);
        const QByteArray saved = old ? old : "C";
        std::setlocale(LC_NUMERIC, "de_DE.UTF-8");
        const double got = decimals == 2 ? Calculator::r2(input) : decimals == 3 ? Calculator::r3(input)
                                                                                 : Calculator::r4(input);
        std::setlocale(LC_NUMERIC, saved.constData());
        QTEST(got, "expected");
    }

    // The cent-exact calculation: VAT after the discount, each line and each
    // rate's tax rounded once, and a total that is the sum of its parts.
    void toTheCent()
    {
        const auto exact = [this](std::initializer_list<Line> lines, int ship = -1, int kind = -1, double d = 0) {
            Record *doc = document(lines);
            doc->setBool(Invoice::centExactTotals, true);
            configure(doc, ship, kind, d);
            Calculator::calculateInvoice(*doc, {true, false, false});
            return doc;
        };
        // 100 at 19 % less 10 %: the tax is taken on 90.
        Record *doc = exact({{100, 1, 1u}}, -1, 1, 0.10);
        QCOMPARE(doc->num(Invoice::subAmount), 100.0);
        QCOMPARE(doc->num(Invoice::tax1Amount), 17.10);
        QCOMPARE(doc->num(Invoice::amount), 107.10);
        QCOMPARE(Calculator::discountShown(*doc, {}), 10.0);

        // Halves round up as they read, on the decimal product: 2 × 0.125.
        doc = exact({{0.125, 1, 0u}, {0.125, 1, 0u}});
        QCOMPARE(item(doc, 0)->num(Item::subAmount), 0.13);
        QCOMPARE(doc->num(Invoice::amount), 0.26);
        doc = exact({{1.0005, 3, 0u}, {-0.125, 1, 0u}}); // 3.0015 → 3.00; −0.125 → −0.13
        QCOMPARE(doc->num(Invoice::subAmount), 2.87);

        // A fixed discount split by the rates' nets (1:2), the odd cent to the
        // larger; shipping taxed at its own rate and never discounted.
        doc = exact({{10, 1, 1u}, {20, 1, 2u}}, 2, 0, 0.10);
        const CentExactTotals t = Calculator::centExactTotals(*doc);
        QCOMPARE(t.rate(0)->discount + t.rate(1)->discount, 10);
        QCOMPARE(t.rate(1)->discount, 7);
        QCOMPARE(t.rate(1)->taxable(), 2000 - 7 + 1000);
        QCOMPARE(t.rate(1)->taxAmount, 210); // 29.93 × 7 % = 2.0951
        QCOMPARE(t.rate(0)->taxAmount, 189); // 9.97 × 19 % = 1.8943
        QCOMPARE(doc->num(Invoice::amount), (3000 - 10 + 1000 + 210 + 189) / 100.0);

        // Beyond it: two taxes on a line or a compound one take the classic paths.
        doc = exact({{100, 1, 3u}}, -1, 1, 0.10);
        QVERIFY(!Calculator::canCalculateToTheCent(*doc, {}));
        QCOMPARE(doc->num(Invoice::amount), 116.0); // standard path, discount before taxes
        QVERIFY(!Calculator::canCalculateToTheCent(*exact({{100, 1, 2u, 2u}}), {}));

        // Unmarked documents keep the classic figures: 100 − 10 + 19.
        doc = document({{100, 1, 1u}});
        configure(doc, -1, 1, 0.10);
        Calculator::calculateInvoice(*doc, {true, false, false});
        QCOMPARE(doc->num(Invoice::amount), 109.0);
    }

    void lineNetRoundedOnEveryPath()
    {
        for (unsigned applied : {0u, 1u, 3u}) { // tax-free, standard, compound through tax 2
            Record *doc = document({{10.0004, 3, applied, applied & 2u, {0.1}}});
            Calculator::calculateInvoice(*doc, {});
            QCOMPARE(item(doc, 0)->num(Item::subAmount), 30.0);
            QCOMPARE(doc->num(Invoice::subAmount), 30.0);
        }
    }

    void totals_data()
    {
        // Standard taxes at the document's rates; compound sums line taxes and shipping in floats.
        QTest::addColumn<Total>("t");
        const auto path = [](const char *name, unsigned applied, unsigned compound, int ship, int settings,
                             double amount) {
            QTest::newRow(name) << Total{{100, 1, applied, compound, {0.1, 0.1, 0.1}}, ship, -1, 0, settings, amount};
        };
        path("no tax", 0, 0, -1, 0, 100.0);
        path("line tax 1", 1, 0, -1, 0, 119.0);
        path("compound flag, tax 2 off", 1, 2, -1, 0, 119.0);
        path("tax 2 plain", 2, 0, -1, 0, 107.0);
        path("tax 2 compound", 2, 2, -1, 0, 111.0);
        path("tax 3 compound", 4, 4, -1, 0, 112.1);
        path("shipping tax 2", 0, 0, 2, 0, 110.7);
        path("shipping tax 2, tax2IsCompound", 0, 0, 2, 2, 110 + f(f(10 + f(10 * 0.19)) * 0.07));
        path("shipping tax 3, tax3IsCompound", 0, 0, 4, 4, 111.3);
        // Tax 2's preference picks the path; tax 3's decides the compounding.
        path("shipping tax 3, tax2IsCompound", 0, 0, 4, 2, 110 + f(10 * 0.13));
        path("line compound, shipping tax 2 plain", 2, 2, 2, 0, 121 + f(10 * 0.07));

        const Line s{100, 1, 1, 0, {0.19}};
        QTest::newRow("standard") << Total{s, -1, -1, 0, 0, 119.0};
        QTest::newRow("before, 10%") << Total{s, -1, 1, 0.10, 1, 109.0};
        QTest::newRow("before, fixed 10.004") << Total{s, -1, 0, 10.004, 1, 109.0};
        QTest::newRow("before, shipping taxed") << Total{s, 3, 1, 0.10, 1, 120.6}; // 110 − 11 + 20.9 + 0.7
        QTest::newRow("after, fixed 10") << Total{s, -1, 0, 10.0, 0, 109.0};
        QTest::newRow("after, fixed unrounded") << Total{s, -1, 0, 10.006, 0, 108.99};
        QTest::newRow("after, 10% single") << Total{s, -1, 1, 0.10, 0, 107.1};
        // Unrounded 0.12345 gives 104.30945; rounded to 0.1235 it would be 104.30.
        QTest::newRow("after, 0.12345 unrounded") << Total{s, -1, 1, 0.12345, 0, 104.31};

        const Line c{100, 1, 2, 2, {0, 0.1}};
        QTest::newRow("compound, before, 50% ignored") << Total{c, -1, 1, 0.5, 1, 110.0};
        QTest::newRow("compound, before, fixed ignored") << Total{c, -1, 0, 30.0, 1, 110.0};
        QTest::newRow("compound, after, fixed 30") << Total{c, -1, 0, 30.0, 0, 80.0};
        // Rates to three decimals (0.188, not 0.1875); r1 applies even without tax 1.
        QTest::newRow("compound, r1 to 3 decimals") << Total{{100, 1, 5, 4, {0.1875}}, -1, -1, 0, 0, 118.8};
        QTest::newRow("compound, r1 without tax 1") << Total{{100, 1, 4, 4, {0.1875, 0, 0.1}}, -1, -1, 0, 0, 111.88};

        // The percentage acts on the items only, at four decimals: 100 + 10 − 10.
        QTest::newRow("tax-free, percentage") << Total{{}, 0, 2, 0.10004, 0, 100.0};
        QTest::newRow("tax-free, net rounded") << Total{{0.333, 3}, -1, -1, 0, 0, 1.0};
    }

    void totals()
    {
        QFETCH(Total, t);
        Record *doc = document({t.line});
        configure(doc, t.ship, t.discountKind, t.discount);
        Calculator::calculateInvoice(*doc, {bool(t.settings & 1), bool(t.settings & 2), bool(t.settings & 4)});
        QCOMPARE(doc->num(Invoice::amount), t.amount);
    }

    void documentTaxAmounts()
    {
        // Tax-free: a rate without its flag is no tax, nor are shipping taxes
        // without shipping; the document's tax amounts stay as they were.
        Record *doc = document({{12.5, 2, 0, 0, {0.19}}});
        item(doc, 0)->setNum(Item::tax1Amount, 3.0);
        doc->setNum(Invoice::tax1Amount, 7.0);
        doc->setNum(Invoice::tax3Amount, 9.0);
        doc->setBool(Invoice::isShippingTax2Enabled, true);
        Calculator::calculateInvoice(*doc, {false, true, true});
        QCOMPARE(item(doc, 0)->num(Item::tax1Amount), 0.0);
        QCOMPARE(doc->num(Invoice::amount), 25.0);
        QCOMPARE(doc->num(Invoice::tax1Amount), 7.0);
        QCOMPARE(doc->num(Invoice::tax3Amount), 9.0);

        // A fixed discount goes through its percentage of a zero net.
        doc = document({});
        configure(doc, -1, 0, 10.0);
        Calculator::calculateInvoice(*doc, {});
        QVERIFY(std::isnan(doc->num(Invoice::amount)));

        // Standard lines round their tax; the document taxes the unrounded base.
        doc = document({{0.333, 3, 1, 0, {0.19}}, {0.333, 3, 1, 0, {0.19}}});
        Calculator::calculateInvoice(*doc, {});
        QCOMPARE(item(doc, 1)->num(Item::tax1Amount), 0.19);
        QCOMPARE(item(doc, 1)->num(Item::amount), 1.19);
        QCOMPARE(doc->num(Invoice::tax1Amount), (0.333 * 3.0 + 0.333 * 3.0) * 0.19);
        QCOMPARE(doc->num(Invoice::amount), 2.38);

        // A tax without a base keeps the document's amount only after taxes.
        doc = document({{100, 1, 1, 0, {0.19}}});
        doc->setNum(Invoice::tax2Amount, 4.0);
        Calculator::calculateInvoice(*doc, {});
        QCOMPARE(item(doc, 0)->num(Item::tax1Amount), 19.0);
        QCOMPARE(doc->num(Invoice::tax1Amount), 19.0);
        QCOMPARE(doc->num(Invoice::tax2Amount), 4.0);
        Calculator::calculateInvoice(*doc, {true});
        QCOMPARE(doc->num(Invoice::tax2Amount), 0.0);
    }

    void compoundByHand()
    {
        Record *doc = document({{100, 1, 7, 6, {0.1875, 0.07, 0.1}}});
        configure(doc, 7);
        const TaxSettings settings{false, true, true};
        Calculator::calculateInvoice(*doc, settings);

        // t1 = R2(0.188 × 100) = 18.80; X = 118.80, t2 = R2(8.316) = 8.32;
        // Y = R2(118.8 + 8.316) = 127.12, t3 = R2(12.712) = 12.71.
        const Record *it = item(doc, 0);
        QCOMPARE(it->num(Item::tax1Amount), 18.8);
        QCOMPARE(it->num(Item::tax2Amount), 8.32);
        QCOMPARE(it->num(Item::tax3Amount), 12.71);
        QCOMPARE(it->num(Item::amount), 139.83);

        // Shipping in floats at the document's rates: 1.9, 0.833, 1.65529.
        const float sp = 10.0f, sh1 = float(sp * 0.19), x = sp + sh1;
        const float sh2 = float(x * 0.07), sh3 = float((x + sh2) * 0.13);
        QCOMPARE(doc->num(Invoice::tax1Amount), 18.8 + double(sh1));
        QCOMPARE(doc->num(Invoice::tax2Amount), 8.32 + double(sh2));
        QCOMPARE(doc->num(Invoice::tax3Amount), 12.71 + double(sh3));
        const double total = 100.0 + 18.8 + double(sh1) + 8.32 + double(sh2) + 12.71 + double(sh3) + 10.0;
        QCOMPARE(doc->num(Invoice::amount), total); // not rounded

        configure(doc, 7, 1, 0.1);
        Calculator::calculateInvoice(*doc, settings);
        QCOMPARE(doc->num(Invoice::amount), total - total * double(0.1f));
    }

    void summaryStatuses()
    {
        Record *doc = invoice(1, 119.0, test::utc(2026, 3, 1));
        doc->setNum(Invoice::paidAmount, 5.0);
        QCOMPARE(Calculator::calculateDatabase({doc}, test::utc(2026, 3, 10)), (Summary{1, 0, 1, 119, 0, 119}));
        QCOMPARE(doc->integer(Invoice::status), 2);
        QCOMPARE(doc->num(Invoice::paidAmount), 0.0);

        // Back to open when the due date moves; exactly at the due moment still open.
        doc->setDate(Invoice::due, test::utc(2026, 4, 1));
        QCOMPARE(Calculator::calculateDatabase({doc}, test::utc(2026, 4, 1)), (Summary{1, 0, 1, 119, 0, 0}));
        QCOMPARE(doc->integer(Invoice::status), 1);
        QCOMPARE(doc->num(Invoice::dueAmount), 0.0);
        Calculator::calculateDatabase({doc}, test::utc(2026, 4, 1).addSeconds(0.001));
        QCOMPARE(doc->integer(Invoice::status), 2);

        // An empty due reads as 2001-01-01.
        doc = invoice(1, 50.0);
        Calculator::calculateDatabase({doc}, test::utc(2026, 1, 1));
        QCOMPARE(doc->integer(Invoice::status), 2);
        Calculator::calculateDatabase({doc}, test::utc(2000, 12, 31));
        QCOMPARE(doc->integer(Invoice::status), 1);

        const Date stamp = test::utc(2026, 5, 1, 9);
        Record *paid = invoice(3, 200.0, test::utc(2026, 1, 1));
        paid->setNum(Invoice::dueAmount, 200.0);
        QCOMPARE(Calculator::calculateDatabase({paid}, stamp), (Summary{1, 0, 1, 200, 200, 0}));
        QCOMPARE(paid->num(Invoice::dueAmount), 0.0);
        QVERIFY(paid->boolean(Invoice::isPaid));
        QCOMPARE(paid->date(Invoice::paid), stamp);

        // Stamped once; the paid amount follows the amount.
        paid->setNum(Invoice::amount, 210.0);
        QCOMPARE(Calculator::calculateDatabase({paid}, stamp.addDays(1)), (Summary{1, 0, 1, 210, 210, 0}));
        QCOMPARE(paid->date(Invoice::paid), stamp);

        // Partly paid: due in single precision, the entered paid amount kept.
        Record *partly = invoice(4, 100.0);
        partly->setNum(Invoice::paidAmount, 30.3);
        QCOMPARE(Calculator::calculateDatabase({partly}, stamp), (Summary{1, 0, 1, 100, 30.3f, 100.0f - 30.3f}));
        QCOMPARE(partly->num(Invoice::dueAmount), double(100.0f - 30.3f));
        QCOMPARE(partly->date(Invoice::paid), stamp);
    }

    void summaryCountsAndSecondPass()
    {
        const Date now = test::utc(2026, 6, 1);
        Record *created = invoice(0, 1000.0);
        created->setNum(Invoice::dueAmount, 7.0);
        Record *quote = invoice(1, 0, test::utc(2020, 1, 1));
        quote->setInt(Invoice::kind, 0);
        Record *kind2 = invoice(3, 0);
        kind2->setInt(Invoice::kind, 2);
        Record *partly = invoice(4, 40.0);
        partly->setNum(Invoice::paidAmount, 1.5);
        const QList<Record *> docs{created, quote, kind2, partly, invoice(1, 10.25, test::utc(2027, 1, 1)),
                                   invoice(2, 20.5, test::utc(2026, 1, 1)), invoice(3, 8.0),
                                   m_store.insert(EntityId::Invoice)}; // no kind: a quote

        const Summary s = Calculator::calculateDatabase(docs, now);
        QCOMPARE(s, (Summary{4, 3, 5, 78.75f, 9.5f, 59.0f}));
        // Quotes and created invoices are left alone.
        QCOMPARE(quote->integer(Invoice::status), 1);
        QCOMPARE(created->num(Invoice::dueAmount), 7.0);

        // Once settled, later passes write nothing and stamp nothing again.
        QVERIFY(!m_store.save());
        QCOMPARE(Calculator::calculateDatabase(docs, now.addDays(1)), s);
        for (const Record *r : docs)
            QVERIFY(!r->hasChanges());
    }
};

QTEST_GUILESS_MAIN(TestCalculator)
#include "TestCalculator.moc"
