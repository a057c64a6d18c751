#include "render/PrinterDocument.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using namespace tabo;

namespace {

PrinterItem block(int lines, bool breakBefore = false)
{
    PrinterItem item;
    QStringList text;
    for (int i = 0; i < lines; ++i)
        text << QStringLiteral("Line %1").arg(i + 1);
    item.html = QStringLiteral("<p style=\"font-size: 12pt\">%1</p>").arg(text.join(QStringLiteral("<br>")));
    item.leftMargin = item.rightMargin = 40;
    item.verticalInset = 3;
    item.pageBreakBefore = breakBefore;
    return item;
}

PrinterTextView footer()
{
    return PrinterTextView(QRectF(40, 0, 515, 40), QStringLiteral("&lt;pageNumber/&gt; / &lt;pageCount/&gt;"));
}

} // namespace

class TestPrinterDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void variablesAndRecursion()
    {
        PrinterTextView view(QRectF(0, 0, 300, 40), QStringLiteral("<b>&lt;pageCount/&gt;</b> and &lt;x/&gt;"));
        view.substituteVariables({{QStringLiteral("pageCount"), QStringLiteral("a <pageCount/> b")},
                                  {QStringLiteral("x"), QStringLiteral("7")}});
        QCOMPARE(view.plainText(), QStringLiteral("Error: Recursion and 7"));
    }

    void pagesBreakWhereTheyMust()
    {
        // Blocks flow on while they fit; the footer's space is kept free.
        QList<PrinterItem> items;
        for (int i = 0; i < 30; ++i)
            items << block(3);
        PrinterDocument doc(items);
        doc.topMargin = 60;
        doc.bottomMargin = 40;
        doc.footerView = footer();
        const auto &pages = doc.pages();
        QVERIFY(pages.size() >= 2);
        for (const PrinterPage &page : pages)
            for (const PrinterTextView &view : page.views())
                QVERIFY(view.frame().bottom() <= 842.0 + 0.01);
        QCOMPARE(pages.front().views().front().plainText(), QStringLiteral("1 / %1").arg(pages.size()));

        // A break before the first block leaves an empty first page; the
        // block then starts the next one and does not break again.
        PrinterDocument breaking({block(1, true), block(1), block(1, true)});
        QCOMPARE(breaking.pages().size(), std::size_t(3));
        QVERIFY(breaking.pages()[0].views().empty());
        QCOMPARE(breaking.pages()[1].views().size(), std::size_t(2));

        // A block taller than any page stands alone, cut, and building ends.
        PrinterDocument tall({block(1), block(200), block(1)});
        QCOMPARE(tall.pages().size(), std::size_t(3));
        QCOMPARE(tall.pages()[1].clippedBlocks(), 1);
        QCOMPARE(tall.pages()[2].views().size(), std::size_t(1));
    }

    void writesPdf()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
            QSKIP("pdftotext (poppler-utils) is missing");
        QList<PrinterItem> items;
        for (int i = 0; i < 40; ++i)
            items << block(2);
        PrinterDocument doc(items);
        doc.topMargin = 60;
        doc.bottomMargin = 40;
        doc.footerView = footer();
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("book.pdf"));
        QVERIFY(doc.writePdf(path, QStringLiteral("Account book")));
        QProcess text;
        text.start(QStringLiteral("pdftotext"), {path, QStringLiteral("-")});
        QVERIFY(text.waitForFinished(10000));
        const QString out = QString::fromUtf8(text.readAllStandardOutput());
        const QString count = QString::number(doc.pages().size());
        // pdftotext may close up the blanks of small type.
        const QString compact = QString(out).remove(QLatin1Char(' '));
        QVERIFY2(compact.contains(QStringLiteral("1/") + count) && compact.contains(count + QLatin1Char('/') + count),
                 qPrintable(compact.right(200)));
        QVERIFY(out.contains(QStringLiteral("Line 2")));
    }
};

QTEST_MAIN(TestPrinterDocument)
#include "TestPrinterDocument.moc"
