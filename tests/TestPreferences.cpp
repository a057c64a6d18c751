#include "prefs/Preferences.h"
#include "TestSupport.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QLockFile>
#include <QSaveFile>
#include <QTest>

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tabo;
using P = Preferences;

namespace {

QByteArray fileText(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

class TestPreferences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void languageDefaultsHoldEveryKey();
    void installChoosesFileAndOverwrites();
    void wrongTypeReadsEmpty();
    void syntaxColourFallback();
    void setFromTextParsesByType();
    void valuesPersist();
    void migrationsRunOnceEach();
    void staleLockIsClearedLiveLockKept();
    void damagedFileIsLeftAndRestored();
};

void TestPreferences::languageDefaultsHoldEveryKey()
{
    static const P::Key required[] = {
        P::locInvoice, P::locQuote, P::locReminder, P::locSlip, P::locInvoiceNumber,
        P::locQuoteNumber, P::locClientNumber, P::locNumber, P::locNo, P::locDate, P::locDue,
        P::locOverdue, P::locExpiration, P::locDispatched, P::locDescription, P::locQuantity,
        P::locUnit, P::locUnitPrice, P::locSKUNumber, P::locNet, P::locSubtotal, P::locTaxes,
        P::locDiscount, P::locShipping, P::locTotal, P::locPageOf, P::locAmount, P::locVATID, P::tempInvConditions,
        P::tempFooterPattern, P::tempInvMisc, P::tempQuotConditions,
        P::tempQuotMisc, P::tempRemConditions, P::tempRemMisc,
        P::tempSlipConditions, P::tempSlipMisc, P::tempEmailBody,
        P::invPattern, P::quotPattern, P::clientPattern, P::invCount, P::quotCount,
        P::clientCount, P::invDefaultDueDate, P::quotDefaultValidity, P::prefsDatePattern,
        P::prefsAddressPattern, P::prefsCurrency, P::tax1Title, P::tax2Title, P::tax3Title,
        P::tax1Rate, P::tax2Rate, P::tax3Rate, P::tempPaperSize, P::invHaveNumber,
        P::quotHaveNumber, P::invHaveDueDate, P::quotHaveValidity, P::tax1Enabled,
        P::tax2Enabled, P::tax3Enabled, P::beforeTaxesBool, P::markInvoiceAsSent};
    const QString invoiceWord[] = {"Invoice", "Rechnung", "Facture", "Factura"};
    const QString currency[] = {"$", "€", "€", "€"};

    for (int lang = 0; lang < 4; ++lang) {
        test::TempHome home;
        {
            P prefs(home.configFile());
            prefs.setInteger(P::languageDefaults, lang);
            QVERIFY(prefs.installLanguageDefaults());
        }
        // A fresh instance proves the install was flushed to the file.
        P prefs(home.configFile());
        for (P::Key key : required) {
            const QString name = P::info(key).name;
            QVERIFY2(prefs.contains(key), qPrintable(QString::number(lang) + ' ' + name));
            if (P::info(key).type == P::Type::String)
                QVERIFY2(!prefs.string(key).trimmed().isEmpty(), qPrintable(name));
        }
        // Nothing on a customer's document asks to be filled in by hand.
        for (int k = 0; k < P::KeyCount; ++k) {
            const auto key = P::Key(k);
            if (P::info(key).type == P::Type::String)
                QVERIFY2(!prefs.string(key).contains(QLatin1Char('[')), qPrintable(P::info(key).name));
        }
        QCOMPARE(prefs.string(P::locInvoice), invoiceWord[lang]);
        QCOMPARE(prefs.string(P::prefsCurrency), currency[lang]);
        QCOMPARE(prefs.integer(P::tempPaperSize), qint64(lang == 0 ? 0 : 2));
        QVERIFY(prefs.boolean(P::tax1Enabled));
        QVERIFY(prefs.real(P::tax1Rate) > 0 && prefs.real(P::tax1Rate) < 1);
        for (P::Key k : {P::tax2Rate, P::tax3Rate})
            QVERIFY(prefs.real(k) >= 0 && prefs.real(k) < 1);

        const qint64 due = prefs.integer(P::invDefaultDueDate);
        QVERIFY(due > 0);
        QVERIFY(prefs.integer(P::quotDefaultValidity) > 0);
        // The printed terms must name the same period that new invoices get.
        QVERIFY2(prefs.string(P::tempInvConditions).contains(QString::number(due)),
                 qPrintable(prefs.string(P::tempInvConditions)));
        for (P::Key k : {P::invPattern, P::quotPattern, P::clientPattern})
            QVERIFY(prefs.string(k).contains(QLatin1String("%COUNT%")));
        QVERIFY(prefs.string(P::invPattern) != prefs.string(P::quotPattern));

        // Whatever is left after the placeholders goes to ICU: stray letters
        // would be read as date fields.
        QString date = prefs.string(P::prefsDatePattern);
        QVERIFY(date.contains(QLatin1String("%DAY%")) && date.contains(QLatin1String("%YEAR")));
        date.remove(QRegularExpression(QStringLiteral("%[A-Z]+%|'[^']*'")));
        QVERIFY2(!date.contains(QRegularExpression(QStringLiteral("[A-Za-z]"))), qPrintable(date));

        const QString address = prefs.string(P::prefsAddressPattern);
        QVERIFY(address.contains('\n'));
        QVERIFY(address.contains(lang == 0 ? QLatin1String("%CITY%, %STATE% %ZIP%")
                                           : QLatin1String("%ZIP% %CITY%")));
    }
}

void TestPreferences::installChoosesFileAndOverwrites()
{
    test::TempHome home;
    P prefs(home.configFile());
    for (qint64 lang : {4, -1}) {
        prefs.setInteger(P::languageDefaults, lang);
        QVERIFY(!prefs.installLanguageDefaults());
        QVERIFY(!prefs.contains(P::locInvoice));
        QVERIFY(!prefs.contains(P::tax1Rate));
    }

    prefs.setString(P::locInvoice, "Bill");
    prefs.setReal(P::tax1Rate, 0.5);
    prefs.setString(P::prefsName, "Acme");
    prefs.setInteger(P::languageDefaults, 1);
    QVERIFY(prefs.installLanguageDefaults());
    QCOMPARE(prefs.string(P::locInvoice), QStringLiteral("Rechnung"));
    QCOMPARE(prefs.real(P::tax1Rate), 0.19);
    QCOMPARE(prefs.string(P::prefsName), QStringLiteral("Acme")); // not in the file: kept

    // A later version's new labels arrive in the language installed; what the
    // person changed stays, and earlier names of the seller's details move over.
    prefs.remove(P::locCreditNote);
    prefs.setString(P::locInvoice, "Faktura");
    QCOMPARE(prefs.completeFromLanguageDefaults(), 1);
    QCOMPARE(prefs.string(P::locCreditNote), QStringLiteral("Stornorechnung"));
    QCOMPARE(prefs.string(P::locInvoice), QStringLiteral("Faktura"));
    QCOMPARE(prefs.completeFromLanguageDefaults(), 0);
    prefs.setRaw(QStringLiteral("prefsPhone"), QStringLiteral("030 1"));
    prefs.sync();
    P reopened(home.configFile());
    QCOMPARE(reopened.string(P::prefsContactPhone), QStringLiteral("030 1"));
    QVERIFY(!reopened.raw(QStringLiteral("prefsPhone")).isValid());
}

void TestPreferences::wrongTypeReadsEmpty()
{
    test::TempHome home;
    {
        QVERIFY(QDir().mkpath(QFileInfo(home.configFile()).path()));
        QSaveFile f(home.configFile());
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write("[General]\ninvCount=abc\ntax1Enabled=abc\ntax1Rate=abc\nreportDateL=junk\n"
                "quotCount=12\nprefsLogo=text\n");
        QVERIFY(f.commit());
    }
    P prefs(home.configFile());
    QCOMPARE(prefs.integer(P::invCount), qint64(0));
    QCOMPARE(prefs.integer(P::quotCount), qint64(12));
    QCOMPARE(prefs.boolean(P::tax1Enabled), false);
    QCOMPARE(prefs.real(P::tax1Rate), 0.0);
    QVERIFY(!prefs.date(P::reportDateL).isValid());
    QVERIFY(prefs.data(P::prefsLogo).isEmpty());

    // The same through the raw writer.
    prefs.setRaw(QStringLiteral("clientCount"), QStringLiteral("abc"));
    prefs.setRaw(QStringLiteral("tax2Enabled"), QStringLiteral("abc"));
    prefs.setRaw(QStringLiteral("tax2Rate"), QStringLiteral("abc"));
    QCOMPARE(prefs.integer(P::clientCount), qint64(0));
    QCOMPARE(prefs.boolean(P::tax2Enabled), false);
    QCOMPARE(prefs.real(P::tax2Rate), 0.0);
}

void TestPreferences::syntaxColourFallback()
{
    test::TempHome home;
    P prefs(home.configFile());
    QCOMPARE(prefs.string(P::syntaxTags), QString());
    prefs.registerDefaults({{QStringLiteral("SyntaxColoring:Color:Tags"), QStringLiteral("#2471a3")},
                            {QStringLiteral("SyntaxColoring:Color:Strings"), QStringLiteral("#c0392b")}});
    QCOMPARE(prefs.string(P::syntaxTags), QStringLiteral("#2471a3"));
    QVERIFY(!prefs.contains(P::syntaxTags));

    prefs.setString(P::locTotal, "Total");
    prefs.sync();
    QVERIFY(fileText(home.configFile()).contains("locTotal"));
    QVERIFY(!fileText(home.configFile()).contains("SyntaxColoring"));

    prefs.setString(P::syntaxTags, "#000000");
    QCOMPARE(prefs.string(P::syntaxTags), QStringLiteral("#000000"));
    QCOMPARE(prefs.string(P::syntaxStrings), QStringLiteral("#c0392b"));
    prefs.remove(P::syntaxTags);
    QCOMPARE(prefs.string(P::syntaxTags), QStringLiteral("#2471a3"));
}

void TestPreferences::setFromTextParsesByType()
{
    test::TempHome home;
    P prefs(home.configFile());
    QVERIFY(!prefs.setFromText("invCount", " 42 "));
    QCOMPARE(prefs.integer(P::invCount), qint64(42));
    QVERIFY(!prefs.setFromText("tax1Enabled", "yes"));
    QVERIFY(prefs.boolean(P::tax1Enabled));
    QVERIFY(!prefs.setFromText("tax1Rate", "0.19"));
    QCOMPARE(prefs.real(P::tax1Rate), 0.19);
    QVERIFY(!prefs.setFromText("reportDateL", "2024-03-05T12:00:00Z"));
    QCOMPARE(prefs.date(P::reportDateL), test::utc(2024, 3, 5));
    QVERIFY(!prefs.setFromText("update_1.3", "true"));
    QVERIFY(prefs.boolean(P::update_1_3));

    const struct { const char *name, *text; } bad[] = {
        {"invCount", "4x"}, {"tax1Enabled", "maybe"}, {"tax1Rate", "19 %"},
        {"reportDateL", "junk"}, {"prefsLogo", "/no/such/file"}, {"noSuchKey", "1"}};
    for (const auto &b : bad) {
        const Error e = prefs.setFromText(b.name, b.text);
        QVERIFY2(e && e.text.contains(b.name), qPrintable(b.name + QStringLiteral(": ") + e.text));
    }
    // Rejected text leaves the stored value alone.
    QCOMPARE(prefs.integer(P::invCount), qint64(42));
    QCOMPARE(prefs.real(P::tax1Rate), 0.19);
    QCOMPARE(prefs.toText(P::tax1Enabled), QStringLiteral("true"));
}

void TestPreferences::valuesPersist()
{
    test::TempHome home;
    const QString address = QStringLiteral("%FIRSTNAME% %LASTNAME%\n%CITY%, %STATE% %ZIP%");
    const Date when = test::utc(2023, 12, 31, 23, 59, 58);
    {
        P prefs(home.configFile());
        prefs.setString(P::prefsAddressPattern, address);
        prefs.setInteger(P::invDefaultDueDate, 21);
        prefs.setBool(P::markInvoiceAsSent, true);
        prefs.setReal(P::tax1Rate, 0.0725);
        prefs.setDate(P::reportDateR, when);
        prefs.setData(P::prefsLogo, QByteArray("\x89PNG\0\1", 6));
    }
    P prefs(home.configFile());
    QCOMPARE(prefs.string(P::prefsAddressPattern), address);
    QCOMPARE(prefs.integer(P::invDefaultDueDate), qint64(21));
    QVERIFY(prefs.boolean(P::markInvoiceAsSent));
    QCOMPARE(prefs.real(P::tax1Rate), 0.0725);
    QCOMPARE(prefs.date(P::reportDateR), when);
    QCOMPARE(prefs.data(P::prefsLogo), QByteArray("\x89PNG\0\1", 6));
}

void TestPreferences::migrationsRunOnceEach()
{
    test::TempHome home;
    {
        // Settings an earlier version wrote: the cloud flags beside real ones.
        P prefs(home.configFile());
        for (const char *name : {"isiCloudAvailable", "ubiquityStoreManagerALLOWED", "USMCloudEnabledKey"})
            prefs.setRaw(QLatin1String(name), true);
        prefs.setInteger(P::invDefaultDueDate, 21);
    }
    {
        P prefs(home.configFile());
        QCOMPARE(prefs.migrate(), 1);
        QCOMPARE(prefs.integer(P::settingsVersion), qint64(1));
    }
    P prefs(home.configFile());
    for (const char *name : {"isiCloudAvailable", "ubiquityStoreManagerALLOWED", "USMCloudEnabledKey"})
        QVERIFY2(!prefs.raw(QLatin1String(name)).isValid(), name);
    QCOMPARE(prefs.integer(P::invDefaultDueDate), qint64(21));
    // Done once: a key of the same name written later stays.
    prefs.setRaw(QStringLiteral("isiCloudAvailable"), false);
    QCOMPARE(prefs.migrate(), 0);
    QVERIFY(prefs.raw(QStringLiteral("isiCloudAvailable")).isValid());
}

void TestPreferences::staleLockIsClearedLiveLockKept()
{
    test::TempHome home;
    const QString lock = home.configFile() + QStringLiteral(".lock");
    QDir().mkpath(QFileInfo(lock).absolutePath());
    const auto child = [&lock](bool stay) {
        const pid_t pid = ::fork();
        if (pid == 0) {
            QLockFile file(lock);
            file.lock();
            if (stay)
                ::pause();
            ::_exit(0); // dies holding the lock
        }
        return pid;
    };

    // Left by a process that died: gone before the settings are touched, so
    // nothing waits for it.
    pid_t pid = child(false);
    ::waitpid(pid, nullptr, 0);
    QVERIFY(QFile::exists(lock));
    {
        QElapsedTimer timer;
        timer.start();
        P prefs(home.configFile());
        prefs.setString(P::prefsName, QStringLiteral("After a crash"));
        prefs.sync();
        QVERIFY(timer.elapsed() < 5000);
    }
    QVERIFY(!QFile::exists(lock));
    // An empty lock file (a kill between creating and writing it) that
    // nobody holds goes at once.
    QFile empty(lock);
    QVERIFY(empty.open(QIODevice::WriteOnly));
    empty.close();
    QVERIFY(P::clearStaleLock(lock));

    // A live owner keeps its lock; the settings wait a moment for it, then
    // say who holds it and leave the file alone.
    pid = child(true);
    QTRY_VERIFY(QFile::exists(lock) && QFileInfo(lock).size() > 0);
    QVERIFY(!P::clearStaleLock(lock));
    QVERIFY(QFile::exists(lock));
    {
        QElapsedTimer timer;
        timer.start();
        P held(home.configFile());
        QVERIFY(held.loadError());
        QVERIFY2(held.loadError().text.contains(QString::number(pid)), qPrintable(held.loadError().text));
        QVERIFY(timer.elapsed() < 10000);
        held.setString(P::prefsName, QStringLiteral("Not stored"));
        QVERIFY(held.syncChecked());
    }
    ::kill(pid, SIGKILL);
    ::waitpid(pid, nullptr, 0);
    QVERIFY(P::clearStaleLock(lock));
}

void TestPreferences::damagedFileIsLeftAndRestored()
{
    test::TempHome home;
    {
        P prefs(home.configFile());
        prefs.setString(P::prefsName, QStringLiteral("Good GmbH"));
        QVERIFY(!prefs.syncChecked());
    }
    { P again(home.configFile()); } // read and found good: kept as .bak
    QVERIFY(QFileInfo(home.configFile() + QStringLiteral(".bak")).isFile());
    QByteArray noise(3000, '\0');
    for (int i = 0; i < noise.size(); ++i)
        noise[i] = char((i * 7919 + 13) % 251);
    QFile file(home.configFile());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(noise);
    file.close();
    {
        P damaged(home.configFile());
        QVERIFY(damaged.loadError());
        QVERIFY(damaged.loadError().text.contains(QStringLiteral("damaged")));
        damaged.setInteger(P::invCount, 5); // in memory only
        QVERIFY(damaged.syncChecked());
    }
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), noise);
    file.close();
    {
        P damaged(home.configFile());
        QVERIFY(!damaged.restoreBackup());
    }
    P restored(home.configFile());
    QVERIFY(!restored.loadError());
    QCOMPARE(restored.string(P::prefsName), QStringLiteral("Good GmbH"));

    // A folder where the file should be is reported, not written into.
    const QString other = home.path() + QStringLiteral("/folder.conf");
    QDir().mkpath(other);
    P folder(other);
    QVERIFY(folder.loadError());
    folder.setString(P::prefsName, QStringLiteral("X"));
    QVERIFY(folder.syncChecked());
    QVERIFY(QFileInfo(other).isDir());
}

QTEST_GUILESS_MAIN(TestPreferences)
#include "TestPreferences.moc"
