#include "CommandSupport.h"

#include "app/AccountBook.h"
#include "app/AppController.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "render/PrinterDocument.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using namespace tabo;

class TestAccountBook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cutsAndJoins()
    {
        const QString subject(89, QLatin1Char('x'));
        QCOMPARE(AccountBook::cut(subject, 88), QString(88, QLatin1Char('x')) + QStringLiteral(" &hellip;"));
        QCOMPARE(AccountBook::cut(subject.left(88), 88), QString(88, QLatin1Char('x')));
        QCOMPARE(AccountBook::clientLine(QStringLiteral("Kunde GmbH\nWeg 5\n20095 Hamburg"), QStringLiteral("K-7")),
                 QStringLiteral("Kunde GmbH &middot; Weg 5 &middot; 20095 Hamburg | K-7"));
        QVERIFY(AccountBook::clientLine(QString(200, QLatin1Char('a')), QString()).endsWith(QStringLiteral(" &hellip;")));
        QCOMPARE(AccountBook::cut(QStringLiteral("A<B"), 88), QStringLiteral("A&lt;B"));
    }

    void bookOfTheList()
    {
        test::ControllerFixture f;
        f.prefs.setString(Preferences::prefsName, QStringLiteral("Muster GmbH"));
        AccountBook book = f.app.accountBook();
        // Only quotes: the heading and column headings, no rows.
        f.app.addQuote();
        QCOMPARE(book.items(f.app.documentList().shown()).size(), 3);
        for (int i = 0; i < 60; ++i) {
            Record *doc = f.app.addInvoice();
            doc->setText(Invoice::subject, QStringLiteral("Subject %1").arg(i));
            doc->setText(Invoice::address, QStringLiteral("Client %1\nStreet").arg(i));
        }
        const QList<PrinterItem> items = book.items(f.app.documentList().shown());
        QCOMPARE(items.size(), 63);
        QVERIFY(!items.at(3).backgroundColor.isValid() && items.at(4).backgroundColor.isValid()); // every second row

        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext (poppler-utils) is missing");
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("book.pdf"));
        QVERIFY(book.writePdf(path));
        QProcess text;
        text.start(QStringLiteral("pdftotext"), {path, QStringLiteral("-")});
        QVERIFY(text.waitForFinished(10000));
        const QString out = QString::fromUtf8(text.readAllStandardOutput());
        const QString compact = QString(out).remove(QLatin1Char(' '));
        QVERIFY(out.contains(QStringLiteral("Muster GmbH")) && out.contains(QStringLiteral("Subject 59")));
        QVERIFY(out.contains(QStringLiteral("Client 0 · Street")));
        QVERIFY2(compact.contains(QStringLiteral("1/")) && !compact.contains(QStringLiteral("pageCount")),
                 qPrintable(compact.right(100)));
    }
};

QTEST_MAIN(TestAccountBook)
#include "TestAccountBook.moc"
