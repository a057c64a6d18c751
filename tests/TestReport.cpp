#include "TestSupport.h"

#include "domain/Record.h"
#include "reports/Report.h"

#include <QRegularExpression>
#include <QTest>

#include <memory>
#include <vector>

using namespace tabo;

class TestReport : public QObject
{
    Q_OBJECT

    std::vector<std::unique_ptr<Record>> m_docs; // detached: the report needs no store
    QList<Record *> m_list;

    Record *doc(int kind, int status, double amount, Date date, const QString &client = {})
    {
        m_docs.push_back(std::make_unique<Record>(nullptr, EntityId::Invoice, qint64(m_docs.size() + 1)));
        Record *r = m_docs.back().get();
        r->setInt(Invoice::kind, kind);
        r->setInt(Invoice::status, status);
        r->setNum(Invoice::amount, amount);
        r->setNum(Invoice::subAmount, amount / 1.19);
        r->setDate(Invoice::date, date);
        r->setText(Invoice::customerName, client);
        m_list << r;
        return r;
    }
    static QVariant value(const ReportFigures &f, const char *name)
    {
        for (const auto &[key, v] : Report::placeholderValues(f))
            if (key == QLatin1String(name))
                return v;
        return {};
    }

private Q_SLOTS:
    void cleanup()
    {
        m_list.clear();
        m_docs.clear();
    }

    void countsSumsAndAverages()
    {
        const Date day = test::utc(2026, 3, 10, 12);
        // Quotes and created invoices give zeros, never a division by zero.
        doc(0, 0, 500, day);
        doc(1, 0, 70, day);
        ReportFigures f = Report::compute(m_list, {});
        QCOMPARE(f.invoices(), 0);
        QCOMPARE(f.created, 1);
        QCOMPARE(f.average, 0.0f);
        QCOMPARE(value(f, "FLOATAVERAGE").toLongLong(), 0);

        doc(1, 1, 99.99, day, QStringLiteral("Kunde GmbH"));
        Record *due = doc(1, 2, 200, day, QStringLiteral("Kunde GmbH"));
        due->setNum(Invoice::dueAmount, 200);
        Record *paid = doc(1, 3, 280, day.addDays(40), QStringLiteral("Atelier"));
        paid->setNum(Invoice::paidAmount, 280);
        Record *part = doc(1, 4, 100, day.addDays(100), QStringLiteral("Nord"));
        part->setNum(Invoice::paidAmount, 30);
        part->setNum(Invoice::dueAmount, 70);
        f = Report::compute(m_list, {});
        // A part payment has no count of its own: only the number and the sums.
        QCOMPARE(f.invoices(), 4);
        QCOMPARE(value(f, "SENT").toLongLong(), 1);
        QCOMPARE(value(f, "DUE").toLongLong(), 1);
        QCOMPARE(value(f, "PAID").toLongLong(), 1);
        QCOMPARE(value(f, "FLOATDUE").toLongLong(), 270);
        QCOMPARE(value(f, "FLOATPAID").toLongLong(), 310);
        QCOMPARE(value(f, "FLOATTOTAL").toLongLong(), 679); // 679.99 truncates
        QCOMPARE(value(f, "FLOATAVERAGE").toLongLong(), 169);
        QCOMPARE(Report::wholeNumber(99.99f), QStringLiteral("99"));

        // Every month of the span, quiet ones included; clients by revenue.
        QCOMPARE(f.months.size(), 4);
        QCOMPARE(f.months.first().month, 3);
        QCOMPARE(f.months.at(1).gross, 280.0f);
        QCOMPARE(f.months.at(2).gross, 0.0f); // May
        QCOMPARE(f.months.last().month, 6);
        QCOMPARE(f.months.last().paid, 30.0f);
        QCOMPARE(f.months.last().open, 70.0f);
        QCOMPARE(f.topClients.first().name, QStringLiteral("Kunde GmbH"));
        QCOMPARE(f.topClients.first().invoices, 2);
    }

    void rangeIncludesBothBounds()
    {
        const Date from = test::utc(2026, 1, 1, 0);
        const Date to = test::utc(2026, 1, 31, 23, 59);
        doc(1, 1, 10, from);
        doc(1, 1, 20, to);
        doc(1, 1, 40, to.addDays(1));
        doc(1, 1, 80, from.addDays(-1));
        const ReportFigures f = Report::compute(m_list, std::pair(from, to));
        QCOMPARE(f.sent, 2);
        QCOMPARE(f.total, 30.0f);
        for (int i = 0; i < 7; ++i)
            doc(1, 1, 10 + i, from, QStringLiteral("Client %1").arg(i));
        QCOMPARE(Report::compute(m_list, {}).topClients.size(), 5);
    }

    void pageFillsEveryPlaceholder()
    {
        Record *d = doc(1, 3, 1234.5, test::utc(2026, 2, 3), QStringLiteral("A & B <GmbH>"));
        d->setNum(Invoice::paidAmount, 1234.5);
        const ReportFigures f = Report::compute(m_list, {});
        const QString page = Report::page(Report::chartTemplate(), f, Report::chartScript(),
                                          QStringLiteral("Report | Müller & Co | 03.02.2026"),
                                          QLocale(QLocale::German, QLocale::Germany));
        QVERIFY(!page.isEmpty());
        QRegularExpression left(QStringLiteral("%[A-Z]+%"));
        QVERIFY2(!left.match(page).hasMatch(), qPrintable(left.match(page).captured()));
        QVERIFY(page.contains(QStringLiteral("1.234,50")));
        QVERIFY(page.contains(QStringLiteral("Müller &amp; Co")));
        QVERIFY(page.contains(QStringLiteral("A &amp; B &lt;GmbH&gt;")));
        // The whole-number and net placeholders stay apart.
        const QString small = Report::page(QStringLiteral("%FLOATTOTAL%|%FLOATTOTALNET%|%FLOATTOTALCOMMA%"), f, {}, {},
                                           QLocale::c());
        QCOMPARE(small, QStringLiteral("1234|%1|1234.50").arg(Report::wholeNumber(f.totalNet)));
        QCOMPARE(Report::page(QString(), f, {}, {}, QLocale::c()), QString());
    }
};

QTEST_GUILESS_MAIN(TestReport)
#include "TestReport.moc"
