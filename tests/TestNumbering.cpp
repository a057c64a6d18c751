#include "TestSupport.h"

#include "domain/Calculator.h"
#include "domain/Numbering.h"
#include "prefs/Preferences.h"

#include <QTest>

#include <limits>

#include <unicode/locid.h>
#include <unicode/timezone.h>

#include <ctime>

using namespace tabo;

class TestNumbering : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersFromCounts();
    void calendarFields();
    void dateInLocale_data();
    void dateInLocale();
    void dateFollowsZone();
};

namespace {

void setIcuDefaults(const char *locale, const char *zone)
{
    UErrorCode status = U_ZERO_ERROR;
    icu::Locale::setDefault(icu::Locale(locale), status);
    QVERIFY(U_SUCCESS(status));
    icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(zone));
}

} // namespace

void TestNumbering::numbersFromCounts()
{
    test::TempHome home;
    Preferences prefs(home.path() + QStringLiteral("/prefs.conf"));
    FixedClock clock(test::utc(2026, 3, 5));
    Clock::setInstance(&clock);
    prefs.setString(Preferences::invPattern, QStringLiteral("RE-%YEAR%-%COUNT%"));
    prefs.setString(Preferences::quotPattern, QStringLiteral("AN-%COUNT%"));
    prefs.setInteger(Preferences::quotCount, 7);
    prefs.setString(Preferences::clientPattern, QStringLiteral("K%COUNT%/%COUNT%"));
    prefs.setInteger(Preferences::clientCount, 1000);
    Summary summary;
    summary.invoiceCountForNumber = 4;
    summary.quoteCount = 2;

    QCOMPARE(Numbering::invoiceNumberString(prefs, summary, now()), QStringLiteral("RE-2026-5"));
    QCOMPARE(Numbering::convertedInvoiceNumberString(prefs, summary, now()), QStringLiteral("RE-2026-4"));
    prefs.setInteger(Preferences::invCount, 100);
    QCOMPARE(Numbering::invoiceNumberString(prefs, summary, now()), QStringLiteral("RE-2026-105"));
    QCOMPARE(Numbering::convertedInvoiceNumberString(prefs, summary, now()), QStringLiteral("RE-2026-104"));
    QCOMPARE(Numbering::quoteNumberString(prefs, summary, now()), QStringLiteral("AN-10"));
    QCOMPARE(Numbering::clientNumberString(prefs, 2, now()), QStringLiteral("K1003/1003"));
    // A counter at the 64-bit end stops there rather than turning negative.
    prefs.setInteger(Preferences::quotCount, std::numeric_limits<qint64>::max() - 1);
    QCOMPARE(Numbering::quoteNumberString(prefs, summary, now()), QStringLiteral("AN-9223372036854775807"));

    // Without "%COUNT%" every document gets the same number.
    prefs.setString(Preferences::invPattern, QStringLiteral("INV-%YEAR%"));
    summary.invoiceCountForNumber = 9;
    QCOMPARE(Numbering::invoiceNumberString(prefs, summary, now()), QStringLiteral("INV-2026"));
    Clock::setInstance(nullptr);
}

void TestNumbering::calendarFields()
{
    // The local calendar, not UTC's.
    qputenv("TZ", "Europe/Berlin");
    tzset();
    QCOMPARE(Numbering::build(QStringLiteral("%DAY%.%MONTH%."), 0, test::utc(2026, 3, 5, 23, 30)),
             QStringLiteral("6.3."));
    QCOMPARE(Numbering::build(QStringLiteral("%DAY%.%MONTH%.%YEAR% #%COUNT%"), 7, test::utc(2026, 3, 5)),
             QStringLiteral("5.3.2026 #7"));
    QCOMPARE(Numbering::build(QStringLiteral("%YEAR%%MONTH%%DAY%"), 0, test::utc(2026, 11, 22)),
             QStringLiteral("20261122"));
}

void TestNumbering::dateInLocale_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("expected");
    QTest::newRow("en numeric") << QByteArray("en_US") << "%DAY%.%MONTHSHORT%.%YEARLONG%" << "05.03.2026";
    QTest::newRow("de numeric") << QByteArray("de_DE") << "%DAY%.%MONTHSHORT%.%YEARLONG%" << "05.03.2026";
    QTest::newRow("en long") << QByteArray("en_US") << "%DAY%. %MONTHLONG% %YEARLONG%" << "05. March 2026";
    QTest::newRow("de long") << QByteArray("de_DE") << "%DAY%. %MONTHLONG% %YEARLONG%" << "05. März 2026";
    // Other letters are the formatter's own symbols.
    QTest::newRow("de weekday") << QByteArray("de_DE") << "EEEE %MONTHSHORT%/%YEARSHORT%" << "Donnerstag 03/26";
}

void TestNumbering::dateInLocale()
{
    QFETCH(QByteArray, locale);
    QFETCH(QString, pattern);
    QFETCH(QString, expected);
    // The documents' region names the months, whatever the desktop's locale.
    setIcuDefaults("ja_JP", "UTC");
    test::TempHome home;
    Preferences prefs(home.path() + QStringLiteral("/prefs.conf"));
    prefs.setString(Preferences::prefsDatePattern, pattern);
    prefs.setString(Preferences::prefsRegion, QString::fromLatin1(locale));
    QCOMPARE(Numbering::getPatternDateStringFromDate(prefs, test::utc(2026, 3, 5)), expected);

    // A store from before the region: the installed language decides.
    prefs.remove(Preferences::prefsRegion);
    prefs.setInteger(Preferences::languageDefaults, 2);
    prefs.setString(Preferences::prefsDatePattern, QStringLiteral("%MONTHLONG%"));
    QCOMPARE(Numbering::getPatternDateStringFromDate(prefs, test::utc(2026, 3, 5)), QStringLiteral("mars"));
}

void TestNumbering::dateFollowsZone()
{
    const QString pattern = QStringLiteral("%DAY%.%MONTHSHORT%.%YEARLONG%");
    const Date lateEvening = test::utc(2026, 3, 5, 23, 30);
    setIcuDefaults("en_US", "UTC");
    QCOMPARE(Numbering::patternDateString(pattern, lateEvening), QStringLiteral("05.03.2026"));
    setIcuDefaults("en_US", "Europe/Berlin");
    QCOMPARE(Numbering::patternDateString(pattern, lateEvening), QStringLiteral("06.03.2026"));
    QCOMPARE(Numbering::patternDateString(pattern, Date()), QString());
}

QTEST_GUILESS_MAIN(TestNumbering)
#include "TestNumbering.moc"
