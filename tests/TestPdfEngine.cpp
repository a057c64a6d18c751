// Renders real pages to PDF and reads the files back with poppler-utils.

#include "render/PageGuard.h"
#include "render/PdfEngine.h"

#include <QGuiApplication>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace tabo;

namespace {

QString run(const QString &tool, const QStringList &args)
{
    QProcess p;
    p.start(tool, args);
    if (!p.waitForFinished(30000) || p.exitCode() != 0)
        return QStringLiteral("<%1 failed: %2>").arg(tool, QString::fromLocal8Bit(p.readAllStandardError()));
    return QString::fromUtf8(p.readAllStandardOutput());
}

QString text(const QString &pdf, int page = 0)
{
    QStringList args;
    if (page > 0)
        args << QStringLiteral("-f") << QString::number(page) << QStringLiteral("-l") << QString::number(page);
    return run(QStringLiteral("pdftotext"), args << QStringLiteral("-layout") << pdf << QStringLiteral("-"));
}

QString info(const QString &pdf, const QString &field)
{
    const QRegularExpression re(QStringLiteral("^%1:\\s*(.*)$").arg(field), QRegularExpression::MultilineOption);
    return re.match(run(QStringLiteral("pdfinfo"), {pdf})).captured(1).trimmed();
}

// The bounding boxes of every word on page 1, as "word" -> (xMin, yMin, xMax, yMax).
QList<QPair<QString, QRectF>> words(const QString &pdf)
{
    QList<QPair<QString, QRectF>> result;
    const QString html = run(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), QStringLiteral("-f"), QStringLiteral("1"),
                                                          QStringLiteral("-l"), QStringLiteral("1"), pdf, QStringLiteral("-")});
    const QRegularExpression re(QStringLiteral(
        "<word xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\">([^<]*)</word>"));
    for (auto it = re.globalMatch(html); it.hasNext();) {
        const auto m = it.next();
        result.append({m.captured(5), QRectF(QPointF(m.captured(1).toDouble(), m.captured(2).toDouble()),
                                             QPointF(m.captured(3).toDouble(), m.captured(4).toDouble()))});
    }
    return result;
}

QString page(const QString &body, const QString &style = QString())
{
    return QStringLiteral("<!DOCTYPE html><html><head><meta charset=\"utf-8\"><style>body{margin:0;font:12pt sans-serif}%1"
                          "</style></head><body>%2</body></html>")
        .arg(style, body);
}

QString tableRows(int count)
{
    QString rows;
    for (int i = 1; i <= count; ++i)
        rows += QStringLiteral("<tr><td>Line%1</td><td>%2.00</td></tr>").arg(i).arg(i * 3);
    return QStringLiteral("<table><thead><tr><th>Designation</th><th>Amount</th></tr></thead><tbody>%1</tbody></table>")
        .arg(rows);
}

PageSetup setup(const QString &paper, bool borderless = false)
{
    PageSetup s;
    s.paperName = paper;
    s.margins = PageSetup::marginsFor(borderless);
    return s;
}

} // namespace

class TestPdfEngine : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dir;
    std::unique_ptr<PdfEngine> m_engine;
    QString path(const QString &name) const { return m_dir.filePath(name); }

private Q_SLOTS:
    void initTestCase()
    {
        if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty()
            || QStandardPaths::findExecutable(QStringLiteral("pdfimages")).isEmpty())
            QSKIP("poppler-utils are not installed");
        m_engine = std::make_unique<PdfEngine>();
    }

    void paperSizesAndText_data()
    {
        QTest::addColumn<int>("tempPaperSize");
        QTest::addColumn<double>("width");
        QTest::addColumn<double>("height");
        QTest::newRow("letter") << 0 << 612.0 << 792.0;
        QTest::newRow("legal") << 1 << 612.0 << 1008.0;
        QTest::newRow("a4") << 2 << 595.3 << 841.9;
        QTest::newRow("jis-b4") << 3 << 728.5 << 1031.8;
        QTest::newRow("jis-b5") << 4 << 515.9 << 728.5;
        QTest::newRow("unknown is letter") << 7 << 612.0 << 792.0;
    }
    void paperSizesAndText()
    {
        QFETCH(int, tempPaperSize);
        QFETCH(double, width);
        QFETCH(double, height);
        const QString file = path(QStringLiteral("size.pdf"));
        const PageSetup s = setup(PageSetup::paperNameForSize(tempPaperSize));
        QVERIFY(m_engine->renderAndWait(page(QStringLiteral("<p>Grüße 12,50 € Invoice</p>")), s, file));
        QVERIFY(text(file).contains(QStringLiteral("Grüße 12,50 € Invoice")));
        // "W x H pts"; the engine rounds to its own units, hence the tolerance.
        const QStringList size = info(file, QStringLiteral("Page size")).split(QLatin1Char(' '));
        QVERIFY2(size.size() >= 4 && size[3] == QLatin1String("pts"), qPrintable(size.join(u' ')));
        QVERIFY2(qAbs(size[0].toDouble() - width) < 1 && qAbs(size[2].toDouble() - height) < 1, qPrintable(size.join(u' ')));
    }

    void marginsAndBreaks()
    {
        // Top-left word at the margin, and the bottom margin leaves 60 points free.
        const QString html = page(QStringLiteral("<p style=\"margin:0\">Corner</p>") + tableRows(120));
        for (bool borderless : {false, true}) {
            const QString file = path(borderless ? QStringLiteral("borderless.pdf") : QStringLiteral("long.pdf"));
            QVERIFY(m_engine->renderAndWait(html, setup(QStringLiteral("na-letter"), borderless), file));
            const auto all = words(file);
            QVERIFY(!all.isEmpty());
            QCOMPARE(all.first().first, QStringLiteral("Corner"));
            const QRectF corner = all.first().second;
            const double edge = borderless ? 0 : 40;
            QVERIFY2(qAbs(corner.left() - edge) < 3 && corner.top() >= edge && corner.top() < edge + 8,
                     qPrintable(QStringLiteral("%1,%2").arg(corner.left()).arg(corner.top())));
            double lowest = 0;
            for (const auto &w : all)
                lowest = qMax(lowest, w.second.bottom());
            const double bottom = 792 - (borderless ? 0 : 60);
            QVERIFY2(lowest <= bottom && lowest > bottom - 30, qPrintable(QString::number(lowest)));
        }
        // The table's head is repeated on the next page.
        const QString file = path(QStringLiteral("long.pdf"));
        const int pages = info(file, QStringLiteral("Pages")).toInt();
        QVERIFY(pages >= 2);
        const QString second = text(file, 2);
        QVERIFY(second.contains(QStringLiteral("Designation")));
        QVERIFY(!second.contains(QStringLiteral("Line1 ")));
        QVERIFY(text(file, pages).contains(QStringLiteral("Line120")));
    }

    void refreshRedirectsNeverLeaveThePage()
    {
        // However it is written, a refresh goes; the rest of the page stays.
        QCOMPARE(PageGuard::withoutRefresh("<head><META HTTP-EQUIV = 'refresh' CONTENT='0;url=file:///etc/passwd'>"
                                           "<meta charset=\"utf-8\"></head><p>x</p>"),
                 QByteArray("<head><meta charset=\"utf-8\"></head><p>x</p>"));
        QCOMPARE(PageGuard::withoutRefresh("<meta http-equiv=refresh content=1><p>Refresh me</p>"),
                 QByteArray("<p>Refresh me</p>"));
        // Fifty times through one engine, with and without a delay, as the
        // command line renders documents of such a design.
        for (int i = 0; i < 50; ++i) {
            const QString html = page(QStringLiteral("<meta http-equiv=\"refresh\" content=\"%1; url=file:///etc/passwd\">"
                                                     "<p>Stays %2</p>")
                                          .arg(i % 3)
                                          .arg(i));
            const QString file = path(QStringLiteral("refresh.pdf"));
            QVERIFY(m_engine->renderAndWait(html, setup(QStringLiteral("iso-a4")), file));
            QVERIFY(text(file).contains(QStringLiteral("Stays %1").arg(i)));
        }
    }

    void untrustedPageIsContained()
    {
        const QString logo = path(QStringLiteral("Logo.png"));
        const QString other = path(QStringLiteral("Other.png"));
        QImage logoImage(40, 20, QImage::Format_RGB32);
        logoImage.fill(Qt::red);
        QVERIFY(logoImage.save(logo));
        QImage otherImage(30, 30, QImage::Format_RGB32);
        otherImage.fill(Qt::blue);
        QVERIFY(otherImage.save(other));
        m_engine->setAllowedLocalFile(logo);

        const QString logoUrl = QUrl::fromLocalFile(logo).toString();
        const QString otherUrl = QUrl::fromLocalFile(other).toString();
        const QString html = page(
            QStringLiteral("<p>Visible</p><script>document.write('ScriptRan')</script>"
                           "<img src=\"%1\"><img src=\"%2\"><img src=\"https://example.com/x.png\">"
                           "<iframe src=\"file:///etc/passwd\"></iframe><div class=\"b\">Boxed</div>"
                           "<link rel=\"stylesheet\" href=\"http://example.com/style.css\">")
                .arg(logoUrl, otherUrl),
            QStringLiteral("@import url(\"https://example.com/imported.css\");"
                           ".b{width:50px;height:50px;background:url(\"file:///etc/hostname\")}"));
        const QString file = path(QStringLiteral("untrusted.pdf"));
        QVERIFY(m_engine->renderAndWait(html, setup(QStringLiteral("iso-a4")), file));

        const QString content = text(file);
        QVERIFY(content.contains(QStringLiteral("Visible")));
        QVERIFY(content.contains(QStringLiteral("Boxed")));
        QVERIFY(!content.contains(QStringLiteral("ScriptRan")));
        QVERIFY(!content.contains(QStringLiteral("root:")));

        const QStringList blocked = m_engine->blockedRequests();
        for (const QString &url : {QStringLiteral("https://example.com/x.png"), QStringLiteral("file:///etc/passwd"),
                                   QStringLiteral("http://example.com/style.css"), otherUrl})
            QVERIFY2(blocked.contains(url), qPrintable(url + QStringLiteral(" not in ") + blocked.join(u' ')));
        QVERIFY(!blocked.contains(logoUrl));

        // The logo (40 x 20) made it into the file, the other picture (30 x 30)
        // did not; refused pictures leave the engine's small placeholder.
        QStringList sizes;
        const QString list = run(QStringLiteral("pdfimages"), {QStringLiteral("-list"), file});
        for (const QString &line : list.split(QLatin1Char('\n'), Qt::SkipEmptyParts).mid(2)) {
            const QStringList columns = line.simplified().split(QLatin1Char(' '));
            if (columns.value(2) == QLatin1String("image"))
                sizes << columns.value(3) + QLatin1Char('x') + columns.value(4);
        }
        QVERIFY2(sizes.contains(QStringLiteral("40x20")), qPrintable(list));
        QVERIFY2(!sizes.contains(QStringLiteral("30x30")), qPrintable(list));
    }

    void largePageAndQueue()
    {
        // Over the 2 MB that a data: URL could carry.
        const QString filler = QStringLiteral("<!--%1-->").arg(QString(3 * 1024 * 1024, QLatin1Char('x')));
        const QString big = page(QStringLiteral("<p>StartOfBig</p>") + filler + QStringLiteral("<p>EndOfBig</p>"));
        QVERIFY(big.size() > 3 * 1024 * 1024);
        QVERIFY(m_engine->renderAndWait(big, setup(QStringLiteral("iso-a4")), path(QStringLiteral("big.pdf"))));
        QVERIFY(text(path(QStringLiteral("big.pdf"))).contains(QStringLiteral("EndOfBig")));

        // Requests made while one runs are queued (and may run side by side);
        // each file has its own page.
        QStringList finished;
        const QString first = path(QStringLiteral("first.pdf")), second = path(QStringLiteral("second.pdf"));
        QFile stale(second);
        QVERIFY(stale.open(QIODevice::WriteOnly));
        stale.write("stale");
        stale.close();
        m_engine->render(page(QStringLiteral("<p>FirstDocument</p>")), setup(QStringLiteral("na-letter")), first,
                         [&](bool ok) { finished << QStringLiteral("first %1").arg(ok); });
        m_engine->render(page(QStringLiteral("<p>SecondDocument</p>")), setup(QStringLiteral("na-legal")), second,
                         [&](bool ok) { finished << QStringLiteral("second %1").arg(ok); });
        QTRY_COMPARE_WITH_TIMEOUT(finished.size(), 2, 60000);
        finished.sort();
        QCOMPARE(finished, (QStringList{QStringLiteral("first 1"), QStringLiteral("second 1")}));
        QVERIFY(text(first).contains(QStringLiteral("FirstDocument")));
        QVERIFY(!text(first).contains(QStringLiteral("SecondDocument")));
        QVERIFY(text(second).contains(QStringLiteral("SecondDocument")));
        QVERIFY(info(second, QStringLiteral("Page size")).startsWith(QStringLiteral("612 x 1008")));

        // A file that cannot be written is a failure, and the engine goes on.
        QVERIFY(!m_engine->renderAndWait(page(QStringLiteral("<p>x</p>")), setup(QStringLiteral("na-letter")),
                                         path(QStringLiteral("missing/folder/x.pdf"))));
        QVERIFY(m_engine->renderAndWait(page(QStringLiteral("<p>AfterFailure</p>")), setup(QStringLiteral("na-letter")),
                                        first));
        QVERIFY(text(first).contains(QStringLiteral("AfterFailure")));

        // A document that takes too long is given up, and its page replaced:
        // the next document renders.
        m_engine->setTimeout(1);
        QVERIFY(!m_engine->renderAndWait(page(QStringLiteral("<p>TooSlow</p>")), setup(QStringLiteral("na-letter")),
                                         second));
        QVERIFY(!QFile::exists(second));
        m_engine->setTimeout(60000);
        QVERIFY(m_engine->renderAndWait(page(QStringLiteral("<p>AfterTimeout</p>")), setup(QStringLiteral("na-letter")),
                                        second));
        QVERIFY(text(second).contains(QStringLiteral("AfterTimeout")));
    }
};

int main(int argc, char **argv)
{
    PdfEngine::prepareApplication();
    QGuiApplication app(argc, argv);
    TestPdfEngine test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestPdfEngine.moc"
