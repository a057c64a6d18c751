#include "gui/windows/AccountingExportSheet.h"
#include "gui/main/FileMenu.h"
#include "gui/widgets/GuiInteraction.h"
#include "gui/main/MainWindow.h"
#include "gui/windows/PaymentReviewWindow.h"
#include "gui/windows/PdfPane.h"
#include "gui/windows/ScheduleWindow.h"
#include "TestSupport.h"
#include "WindowFixture.h"

#include "app/AccountingExport.h"
#include "app/AppController.h"
#include "app/FileCommands.h"
#include "app/RecurringCommands.h"
#include "store/Store.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"

#include <QAction>
#include <QComboBox>
#include <QDateEdit>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

#include <memory>

using namespace tabo;

namespace {

struct Fixture : test::WindowFixture
{

    Fixture()
    {
        window = std::make_unique<MainWindow>(app);
        app.prepare();
        app.start();
    }

    // Set behind the editor's back: it must not hold the document meanwhile.
    Record *invoice(const Date &date, int status)
    {
        Record *doc = app.addInvoice();
        app.setCurrentInvoice(nullptr);
        doc->setDate(Invoice::date, date);
        doc->setDate(Invoice::due, date.addDays(14));
        doc->setInt(Invoice::status, status);
        app.documentChanged(doc);
        return doc;
    }
};

} // namespace

class TestFileMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void accountingSheetCountFollowsControls();
    void exportedDocumentImportsAgain();
    void receivedEInvoiceIsShownNotStored();
    void statementIsReviewedAppliedAndUndone();
    void invoiceRepeatsFromItsWindow();
};

void TestFileMenu::accountingSheetCountFollowsControls()
{
    Fixture f;
    f.invoice(test::utc(2024, 1, 10), 3);
    f.invoice(test::utc(2024, 2, 10), 2);
    f.invoice(test::utc(2024, 3, 10), 0);
    Record *quote = f.app.addQuote();
    f.app.setCurrentInvoice(nullptr);
    quote->setDate(Invoice::date, test::utc(2024, 2, 12));
    quote->setInt(Invoice::status, 3);
    f.app.documentChanged(quote);
    f.prefs.setInteger(Preferences::prefsVorluxExportKind, 0);

    FileMenu *menu = f.window->fileMenu();
    menu->sendToVorlux()->trigger();
    AccountingExportSheet *sheet = menu->accountingSheet();
    QVERIFY(sheet->isVisible());
    QCOMPARE(sheet->findChild<QLabel *>(QStringLiteral("sheetLabel"))->text(), QStringLiteral("Send Invoices To Vorlux"));
    // The range covers every invoice shown; created ones and quotes stay out.
    QCOMPARE(sheet->beginDateEdit()->date(), QDate(2024, 1, 10));
    QCOMPARE(sheet->endDateEdit()->date(), QDate(2024, 3, 10));
    QCOMPARE(sheet->countLabel()->text(), QStringLiteral("2 invoices will be sent."));

    sheet->kindCombo()->setCurrentIndex(1);
    QCOMPARE(f.prefs.integer(Preferences::prefsVorluxExportKind), 1);
    QCOMPARE(sheet->countLabel()->text(), QStringLiteral("1 invoice will be sent."));
    QCOMPARE(f.app.accounting().vorluxArray().first()->integer(Invoice::status), 3);
    sheet->kindCombo()->setCurrentIndex(0);
    sheet->beginDateEdit()->setDate(QDate(2024, 2, 1));
    QCOMPARE(sheet->countLabel()->text(), QStringLiteral("1 invoice will be sent."));
    sheet->endDateEdit()->setDate(QDate(2024, 1, 31));
    QCOMPARE(sheet->countLabel()->text(), QStringLiteral("0 invoices will be sent."));
    sheet->itemsKindCombo()->setCurrentIndex(1);
    QCOMPARE(f.prefs.integer(Preferences::prefsVorluxExportItemsKind), 1);
    sheet->reject();
    QVERIFY(!sheet->isVisible());

    // Opening again starts from the shown invoices, for the other program.
    menu->sendToQuandrella()->trigger();
    QCOMPARE(sheet->findChild<QLabel *>(QStringLiteral("sheetLabel"))->text(),
        QStringLiteral("Send Invoices To quandrella"));
    QCOMPARE(sheet->countLabel()->text(), QStringLiteral("2 invoices will be sent."));
    QCOMPARE(sheet->itemsKindCombo()->currentIndex(), 1);
    sheet->reject();
}

void TestFileMenu::exportedDocumentImportsAgain()
{
    Fixture f;
    QAction *exportAction = f.window->fileMenu()->exportDocument();
    Record *doc = f.invoice(test::utc(2024, 5, 2), 1);
    doc->setText(Invoice::customerName, QStringLiteral("Atelier Nord"));
    f.app.documentChanged(doc);
    QVERIFY(!exportAction->isEnabled());
    f.app.setCurrentInvoice(doc);
    QVERIFY(exportAction->isEnabled());
    QCOMPARE(exportAction->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_E));

    f.prefs.setInteger(Preferences::exportFormat, 0);
    const QString path = f.home.path() + QStringLiteral("/one.tabo");
    GuiInteraction::setNextFileName(path);
    exportAction->trigger();
    QVERIFY(QFileInfo(path).isFile());

    const Result<Record *> imported = f.app.files().importInvoiceFile(path);
    QVERIFY2(imported, qPrintable(imported.error().text));
    Record *copy = imported.value();
    QVERIFY(copy != doc);
    QCOMPARE(copy->text(Invoice::customerName), QStringLiteral("Atelier Nord"));
    QCOMPARE(copy->text(Invoice::number), doc->text(Invoice::number));
    QCOMPARE(copy->date(Invoice::date), doc->date(Invoice::date));
    QCOMPARE(f.app.documentList().all().size(), 2);
}

void TestFileMenu::receivedEInvoiceIsShownNotStored()
{
    Fixture f;
    const QString example = QStringLiteral(TABO_SOURCE_DIR "/../shared/einvoice/examples/cii/CII_example1.xml");
    if (!QFile::exists(example))
        QSKIP("The CEN examples (../shared/einvoice) are not here.");
    QAction *open = f.window->findChild<QAction *>(QStringLiteral("actionOpenEInvoice"));
    QVERIFY(open);
    const qsizetype before = f.app.documentList().all().size();
    GuiInteraction::setNextFileName(example);
    open->trigger();
    QWidget *shown = nullptr;
    for (QWidget *w : QApplication::topLevelWidgets())
        if (w->isVisible() && w->windowTitle() == QStringLiteral("Received E-Invoice"))
            shown = w;
    QVERIFY(shown);
    QTRY_VERIFY(shown->findChild<PdfPane *>()->pageCount() >= 1);
    QCOMPARE(f.app.documentList().all().size(), before);
    shown->close();

    // Handed over by the desktop (`tabo FILE`): the same view, without a panel.
    QVERIFY(f.app.openFileFromOutside(example));
    QWidget *again = nullptr;
    for (QWidget *w : QApplication::topLevelWidgets())
        if (w->isVisible() && w->objectName() == QLatin1String("receivedEInvoiceWindow"))
            again = w;
    QVERIFY(again && again != shown);
    QTRY_VERIFY(again->findChild<PdfPane *>()->pageCount() >= 1);
    QCOMPARE(f.app.documentList().all().size(), before);
    again->close();

    // Not an e-invoice: said, nothing shown.
    GuiInteraction::setNextFileName(QStringLiteral(TABO_SOURCE_DIR "/README.md"));
    GuiInteraction::setNextAnswer(0);
    open->trigger();
    QCOMPARE(GuiInteraction::lastAlertTitle(), QStringLiteral("The e-invoice cannot be shown"));
}

void TestFileMenu::statementIsReviewedAppliedAndUndone()
{
    Fixture f;
    const auto priced = [&f](const QString &number, double price) {
        Record *doc = f.invoice(now(), 1);
        doc->setText(Invoice::number, number);
        Record *line = f.app.store()->insert(EntityId::Item);
        line->setToOne(Item::invoice, doc);
        line->setNum(Item::unitCount, 1.0);
        line->setNum(Item::baseAmount, price);
        f.app.documentChanged(doc);
        return doc;
    };
    Record *paid = priced(QStringLiteral("RE-1"), 100.0);
    Record *chosen = priced(QStringLiteral("RE-2"), 80.0);
    const QString day = now().toDateTime().toLocalTime().date().toString(Qt::ISODate);
    const QString path = f.home.path() + QStringLiteral("/statement.csv");
    QFile csv(path);
    QVERIFY(csv.open(QIODevice::WriteOnly));
    csv.write(QStringLiteral("Buchungstag;Verwendungszweck;Betrag\n%1;Rechnung RE-1;%2\n%1;Danke;50,00\n")
                  .arg(day, QString::number(paid->num(Invoice::amount), 'f', 2).replace(u'.', u','))
                  .toUtf8());
    csv.close();

    GuiInteraction::setNextFileName(path);
    f.window->findChild<QAction *>(QStringLiteral("actionImportStatement"))->trigger();
    auto *review = f.window->findChild<PaymentReviewWindow *>();
    QVERIFY(review && review->isVisible());
    QTableWidget *table = review->table();
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(table->item(0, 0)->checkState(), Qt::Checked);
    QCOMPARE(table->item(1, 0)->checkState(), Qt::Unchecked);
    // The second credit is the person's choice: RE-2, partly paid.
    auto *choice = qobject_cast<QComboBox *>(table->cellWidget(1, 5));
    choice->setCurrentIndex(choice->findText(QStringLiteral("RE-2"), Qt::MatchStartsWith));
    QCOMPARE(table->item(1, 0)->checkState(), Qt::Checked);
    review->applyButton()->click();
    QCOMPARE(paid->integer(Invoice::status), 3);
    QCOMPARE(chosen->integer(Invoice::status), 4);
    QCOMPARE(chosen->num(Invoice::paidAmount), 50.0);

    // Edit ▸ Undo takes both back at once.
    f.window->findChild<QAction *>(QStringLiteral("actionUndo"))->trigger();
    QCOMPARE(paid->integer(Invoice::status), 1);
    QCOMPARE(chosen->integer(Invoice::status), 1);
    QCOMPARE(chosen->num(Invoice::paidAmount), 0.0);
}

void TestFileMenu::invoiceRepeatsFromItsWindow()
{
    Fixture f;
    Record *doc = f.invoice(now(), 1);
    f.app.setCurrentInvoice(doc);
    f.window->findChild<QAction *>(QStringLiteral("actionRepeatInvoice"))->trigger();
    auto *schedules = f.window->findChild<ScheduleWindow *>();
    QVERIFY(schedules && schedules->isVisible());
    QCOMPARE(schedules->table()->rowCount(), 0);
    schedules->everyBox()->setValue(2);
    schedules->unitBox()->setCurrentIndex(schedules->unitBox()->findData(QStringLiteral("weeks")));
    schedules->fromEdit()->setDate(QDate::currentDate().addDays(3));
    schedules->countBox()->setValue(5);
    schedules->addButton()->click();
    QCOMPARE(schedules->table()->rowCount(), 1);
    const QList<Schedule> list = f.app.recurring().list().value();
    QCOMPARE(list.size(), 1);
    QCOMPARE(list.first().recurrence.interval(), QStringLiteral("2 weeks"));
    QCOMPARE(list.first().recurrence.count, 5);
    QCOMPARE(list.first().source, doc->text(Invoice::uniqueID));
}

QTEST_MAIN(TestFileMenu)
#include "TestFileMenu.moc"
