#include "TestSupport.h"
#include "WindowFixture.h"
#include "gui/editor/DocumentEditor.h"
#include "gui/editor/ItemPopover.h"
#include "gui/editor/ItemsPage.h"
#include "gui/main/DocumentListPane.h"
#include "gui/main/DocumentTableModel.h"
#include "gui/main/FilterButton.h"
#include "gui/main/FilterPopover.h"
#include "gui/main/MainWindow.h"
#include "gui/preferences/FirstStartAssistant.h"
#include "gui/widgets/GuiInteraction.h"
#include "gui/widgets/PlainTextField.h"
#include "gui/windows/CatalogueWindow.h"
#include "gui/windows/HelpWindows.h"
#include "gui/windows/NotificationSheet.h"
#include "gui/windows/PdfPane.h"
#include "gui/windows/ReportWindow.h"

#include "app/AppController.h"
#include "app/ItemCommands.h"
#include "app/NotificationCommands.h"
#include "app/ReportCommands.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QSplitter>
#include <QTableView>
#include <QTableWidget>
#include <QTextBrowser>
#include <QTimer>
#include <QToolBar>
#include <QTreeWidget>
#include <QtTest>

#include <sqlite3.h>

#include <algorithm>
#include <memory>

using namespace tabo;

namespace {

// Answers each message box that comes up, however deep inside a command it
// runs its own event loop, and keeps what it showed.
class BoxAnswerer
{
public:
    struct Seen
    {
        QString text;
        QString informativeText;
        QStringList buttonsLeftToRight;
        QString defaultButton;
    };
    QList<Seen> seen;
    int answer = 0; // index into the buttons as shown

    BoxAnswerer()
    {
        m_timer.callOnTimeout([this] { answerBox(); });
        m_timer.start(10);
    }

private:
    void answerBox()
    {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (!box || !box->isVisible())
            return;
        QList<QAbstractButton *> buttons = box->buttons();
        std::sort(buttons.begin(), buttons.end(), [](auto *a, auto *b) { return a->x() < b->x(); });
        Seen s { box->text(), box->informativeText(), {},
            box->defaultButton() ? box->defaultButton()->text() : QString() };
        for (auto *b : buttons)
            s.buttonsLeftToRight << b->text();
        seen << s;
        buttons.value(answer, buttons.first())->click();
    }

    QTimer m_timer;
};

struct Fixture : test::WindowFixture
{

    void start()
    {
        window = std::make_unique<MainWindow>(app);
        app.prepare();
        window->show();
        app.start();
        QVERIFY(QTest::qWaitForWindowExposed(window.get()));
    }
    DocumentTableModel *model() const { return window->documentList()->model(); }
    QString figure(const char *name) const { return window->findChild<QLabel *>(QLatin1String(name))->text(); }
    bool hintShown() const { return window->findChild<QLabel *>(QStringLiteral("emptyHint"))->isVisible(); }
};

} // namespace

class TestMainWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void dialogsAndTestHooks();
    void newDocumentsAndFilter();
    void foreignFileLeavesWindowUsable();
    void firstStartAssistantInstallsLanguage();
    void showsWhatTheCommandLineWrote();
    void pendingEditMeetsAChangeFromTheCommandLine();
    void catalogueWindow();
    void layoutAndTitle();
    void reportFollowsTheList();
    void reminderSheet();
    void helpMenu();
};

void TestMainWindow::dialogsAndTestHooks()
{
    GuiInteraction ui;
    BoxAnswerer boxes;
    boxes.answer = 2;
    QCOMPARE(ui.alert(QStringLiteral("Warning!"), QStringLiteral("Really?"),
                 { QStringLiteral("First"), QStringLiteral("Second"), QStringLiteral("Cancel") }),
        2);
    ui.presentError(Error { Error::Tabo, 9999, QStringLiteral("Failed"), QStringLiteral("Because.") });
    QCOMPARE(boxes.seen.size(), 2);
    QCOMPARE(boxes.seen[0].text, QStringLiteral("Warning!"));
    QCOMPARE(boxes.seen[0].informativeText, QStringLiteral("Really?"));
    QCOMPARE(boxes.seen[0].buttonsLeftToRight,
        QStringList({ QStringLiteral("First"), QStringLiteral("Second"), QStringLiteral("Cancel") }));
    QCOMPARE(boxes.seen[0].defaultButton, QStringLiteral("First"));
    QCOMPARE(boxes.seen[1].text, QStringLiteral("Failed"));
    QCOMPARE(boxes.seen[1].informativeText, QStringLiteral("Because."));

    // Queued answers stand in for the dialogs, in order.
    GuiInteraction::setNextAnswer(1);
    GuiInteraction::setNextFileName(QStringLiteral("/tmp/a.tabo"));
    GuiInteraction::setNextFileName(QString());
    QCOMPARE(ui.alert(QStringLiteral("Sorry!"), QString(), { QStringLiteral("A"), QStringLiteral("B") }), 1);
    QCOMPARE(ui.openFile({}), QStringLiteral("/tmp/a.tabo"));
    QCOMPARE(ui.saveFile({}), QString());
    QCOMPARE(boxes.seen.size(), 2);
}

void TestMainWindow::newDocumentsAndFilter()
{
    Fixture f;
    f.start();
    QCOMPARE(f.model()->rowCount(), 0);
    QVERIFY(f.hintShown());

    f.window->newInvoiceAction()->trigger();
    f.window->newInvoiceAction()->trigger();
    f.window->newQuoteAction()->trigger();
    QCOMPARE(f.model()->rowCount(), 3);
    QVERIFY(!f.hintShown());
    // The new document is current and selected.
    QVERIFY(f.app.currentInvoice());
    QCOMPARE(f.app.currentInvoice()->integer(Invoice::kind), 0);
    const QModelIndex selected = f.window->documentList()->view()->selectionModel()->currentIndex();
    QCOMPARE(f.model()->recordAt(selected.row()), f.app.currentInvoice());
    QCOMPARE(f.model()->index(selected.row(), DocumentTableModel::Status).data().toString(), QStringLiteral("Quote"));

    // Only invoices that went out count; the bar and the row follow the summary pass.
    Record *sent = f.app.documentList().all().last();
    QCOMPARE(sent->integer(Invoice::kind), 1);
    sent->setInt(Invoice::status, 1);
    sent->setNum(Invoice::amount, 120.5);
    sent->setDate(Invoice::due, sent->date(Invoice::date).addDays(30));
    f.app.calculateDatabase();
    QCOMPARE(f.figure("invoiceCount"), QStringLiteral("1"));
    QCOMPARE(f.figure("quoteCount"), QStringLiteral("1"));
    QCOMPARE(f.figure("totalAmount"), QStringLiteral("120.50"));
    QCOMPARE(f.figure("dueAmount"), QStringLiteral("0.00"));
    const int sentRow = f.model()->rowOf(sent);
    QCOMPARE(f.model()->index(sentRow, DocumentTableModel::Total).data().toString(), QStringLiteral("120.50"));
    QCOMPARE(f.model()->index(sentRow, DocumentTableModel::Status).data().toString(), QStringLiteral("Sent"));

    // The sent invoice is selected when the quotes filter hides it: the
    // editor lets go of it, so nothing acts on a document out of sight.
    QTableView *table = f.window->documentList()->view();
    table->selectRow(sentRow);
    QCOMPARE(f.app.currentInvoice(), sent);
    FilterButton *button = f.window->filterButton();
    const qint64 plainIcon = button->icon().cacheKey();
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(button->popover()->isVisible());
    QTest::mouseClick(button->popover()->findChild<QPushButton *>(QStringLiteral("filterChoice4")), Qt::LeftButton);
    QVERIFY(!button->popover()->isVisible());
    QCOMPARE(f.app.currentInvoice(), nullptr);
    QVERIFY(!table->selectionModel()->hasSelection());
    QCOMPARE(button->text(), QStringLiteral("Filter: Quotes"));
    QCOMPARE(f.model()->rowCount(), 1);
    QCOMPARE(f.model()->recordAt(0)->integer(Invoice::kind), 0);
    QVERIFY(button->property("glowing").toBool());
    QVERIFY(button->icon().cacheKey() != plainIcon);
    QCOMPARE(f.figure("invoiceCount"), QStringLiteral("0"));
    QCOMPARE(f.figure("quoteCount"), QStringLiteral("1"));
    QCOMPARE(f.figure("totalAmount"), QStringLiteral("0.00"));

    // With a filter on, the button clears it instead of opening the popover.
    const qint64 glowIcon = button->icon().cacheKey();
    QTest::mouseClick(button, Qt::LeftButton);
    QVERIFY(!button->popover()->isVisible());
    QCOMPARE(f.model()->rowCount(), 3);
    QVERIFY(!button->property("glowing").toBool());
    QVERIFY(button->icon().cacheKey() != glowIcon);
    QCOMPARE(f.figure("invoiceCount"), QStringLiteral("1"));
    QCOMPARE(button->text(), QStringLiteral("Filter"));

    // The search narrows the list and the summary with it; the subject is
    // the list's column where there is one.
    sent->setText(Invoice::subject, QStringLiteral("Website relaunch"));
    QLineEdit *search = f.window->searchField();
    QTest::keyClicks(search, QStringLiteral("RELAUNCH"));
    QCOMPARE(f.model()->rowCount(), 1);
    QCOMPARE(f.model()->index(0, DocumentTableModel::Subject).data().toString(), QStringLiteral("Website relaunch"));
    QCOMPARE(f.figure("quoteCount"), QStringLiteral("0"));
    search->clear();
    QCOMPARE(f.model()->rowCount(), 3);

    // A click on a heading sorts by it; the date order comes back with the date heading.
    table->horizontalHeader()->setSortIndicator(DocumentTableModel::Total, Qt::DescendingOrder);
    QCOMPARE(f.model()->recordAt(0), sent);
    table->horizontalHeader()->setSortIndicator(DocumentTableModel::DateColumn, Qt::DescendingOrder);
    QCOMPARE(f.model()->recordAt(0), f.app.documentList().shown().first());

    f.window->quitAction()->trigger();
    QVERIFY(!f.window->isVisible());
    QVERIFY(f.prefs.boolean(Preferences::isTerminatedFine));
}

void TestMainWindow::foreignFileLeavesWindowUsable()
{
    Fixture f;
    QVERIFY(QDir().mkpath(f.home.dataDir()));
    QFile foreign(f.home.dataDir() + QStringLiteral("/Tabo.mbdb"));
    QVERIFY(foreign.open(QIODevice::WriteOnly));
    foreign.write("not a database");
    foreign.close();

    BoxAnswerer boxes;
    f.start();
    QVERIFY(!boxes.seen.isEmpty());
    QCOMPARE(boxes.seen.last().text, QStringLiteral("Failed to initialize the store"));
    QCOMPARE(f.model()->rowCount(), 0);
    QVERIFY(!f.hintShown());
    QVERIFY(!f.window->newInvoiceAction()->isEnabled());
    f.app.addInvoice();
    QCOMPARE(f.model()->rowCount(), 0);

    f.window->close();
    QVERIFY(!f.window->isVisible());
    QVERIFY(foreign.open(QIODevice::ReadOnly));
    QCOMPARE(foreign.readAll(), QByteArray("not a database"));
}

void TestMainWindow::firstStartAssistantInstallsLanguage()
{
    Fixture f;
    QVERIFY(f.app.needsFirstStartAssistant());
    FirstStartAssistant assistant(f.app);
    assistant.show();
    assistant.languageChoice()->setCurrentIndex(1);
    assistant.next();
    QCOMPARE(f.prefs.string(Preferences::locInvoice), QStringLiteral("Rechnung"));
    QVERIFY(!f.app.needsFirstStartAssistant());
    assistant.companyName()->setText(QStringLiteral("  Atelier Nord  "));
    QCOMPARE(assistant.field(Preferences::prefsCountryCode)->text(), QStringLiteral("DE"));
    assistant.field(Preferences::prefsCity)->setText(QStringLiteral("Kiel"));
    assistant.field(Preferences::prefsIBAN)->setText(QStringLiteral("de02 1203 0000 0000 2020 51"));
    assistant.accept();
    QCOMPARE(f.prefs.string(Preferences::prefsName), QStringLiteral("Atelier Nord"));
    QCOMPARE(f.prefs.string(Preferences::prefsContact), QStringLiteral("Kiel"));
    QCOMPARE(f.prefs.string(Preferences::tempInvFooter),
             QStringLiteral("Atelier Nord · Kiel\nIBAN: DE02 1203 0000 0000 2020 51"));
    QVERIFY(f.prefs.boolean(Preferences::isAssiDone));
}

void TestMainWindow::showsWhatTheCommandLineWrote()
{
    Fixture f;
    f.start();
    f.window->newInvoiceAction()->trigger();
    QCOMPARE(f.model()->rowCount(), 1);
    QProcess cli;
    cli.start(QStringLiteral(TABO_CLI), {QStringLiteral("new"), QStringLiteral("quote")});
    QVERIFY(cli.waitForFinished(30000));
    QCOMPARE(cli.exitCode(), 0);
    const QString id = QString::fromUtf8(cli.readAllStandardOutput()).trimmed();
    // No click: the window's idle check takes it in within seconds.
    QTRY_COMPARE_WITH_TIMEOUT(f.model()->rowCount(), 2, 5000);
    QCOMPARE(f.figure("quoteCount"), QStringLiteral("1"));
    QVERIFY(f.app.findDocument(id));
}

void TestMainWindow::pendingEditMeetsAChangeFromTheCommandLine()
{
    Fixture f;
    f.start();
    f.window->newInvoiceAction()->trigger();
    Record *doc = f.app.currentInvoice();
    const QString id = doc->text(Invoice::uniqueID);
    const auto cliSet = [&id](const char *key, const char *value) {
        QProcess cli;
        cli.start(QStringLiteral(TABO_CLI), {QStringLiteral("set"), id, QLatin1String(key), QLatin1String(value)});
        return cli.waitForFinished(30000) && cli.exitStatus() == QProcess::NormalExit && cli.exitCode() == 0;
    };
    auto *notes = f.window->findChild<PlainTextField *>(QStringLiteral("notes"));
    auto *subject = f.window->findChild<QLineEdit *>(QStringLiteral("subject"));
    QVERIFY(notes && subject);

    // The same field: typed here, set there; finishing the edit asks, with
    // both values, and Reload keeps the other program's text.
    notes->setFocus();
    QTest::keyClicks(notes, QStringLiteral("Typed here"));
    QVERIFY(notes->isModified());
    QVERIFY(cliSet("notes", "Set by tabo-cli"));
    QTRY_COMPARE_WITH_TIMEOUT(doc->text(Invoice::notes), QStringLiteral("Set by tabo-cli"), 8000);
    QCOMPARE(notes->toPlainText(), QStringLiteral("Typed here")); // the refresh left the edit alone
    GuiInteraction::setNextAnswer(1);
    Q_EMIT notes->editingFinished();
    QCOMPARE(GuiInteraction::lastAlertTitle(), QStringLiteral("Changed Elsewhere"));
    QVERIFY(GuiInteraction::lastAlertText().contains(QStringLiteral("Stored now: Set by tabo-cli\nYours: Typed here")));
    QCOMPARE(doc->text(Invoice::notes), QStringLiteral("Set by tabo-cli"));
    QCOMPARE(notes->toPlainText(), QStringLiteral("Set by tabo-cli"));

    // Another field: both changes stay, nobody is asked.
    const QString asked = GuiInteraction::lastAlertText();
    subject->setFocus();
    QTest::keyClicks(subject, QStringLiteral("Typed subject"));
    QVERIFY(cliSet("notes", "Second note"));
    QTRY_COMPARE_WITH_TIMEOUT(doc->text(Invoice::notes), QStringLiteral("Second note"), 8000);
    Q_EMIT subject->editingFinished();
    QCOMPARE(GuiInteraction::lastAlertText(), asked);
    QVERIFY(!f.app.save());
    QProcess show;
    show.start(QStringLiteral(TABO_CLI), {QStringLiteral("show"), id, QStringLiteral("--json")});
    QVERIFY(show.waitForFinished(30000));
    const QJsonObject stored = QJsonDocument::fromJson(show.readAllStandardOutput()).object();
    QCOMPARE(stored.value(QStringLiteral("subject")).toString(), QStringLiteral("Typed subject"));
    QCOMPARE(stored.value(QStringLiteral("notes")).toString(), QStringLiteral("Second note"));
}

void TestMainWindow::catalogueWindow()
{
    Fixture f;
    f.start();
    f.window->newInvoiceAction()->trigger();
    for (const char *title : {"Consulting", "Cable", "Adapter"})
        QVERIFY(f.app.items().addItem({QLatin1String(title), {}, {}, {}, {}, QStringLiteral("10"), QStringLiteral("1"),
                                       true, false, false}).value());
    f.window->findChild<QAction *>(QStringLiteral("actionCatalogue"))->trigger();
    CatalogueWindow *window = f.window->catalogueWindow();
    QVERIFY(window->isVisible());
    QTableWidget *table = window->table();
    QCOMPARE(table->rowCount(), 3);
    QTest::keyClicks(window->searchField(), QStringLiteral("ca"));
    QCOMPARE(table->rowCount(), 1);
    QCOMPARE(table->item(0, CatalogueWindow::Title)->text(), QStringLiteral("Cable"));

    // Edited in place; a price that is no number is refused and the cell shows the stored one.
    table->item(0, CatalogueWindow::Price)->setText(QStringLiteral("12.5"));
    table->item(0, CatalogueWindow::Tax2)->setCheckState(Qt::Checked);
    Record *cable = f.app.items().catalogue(QStringLiteral("cable")).value(0);
    QCOMPARE(cable->num(RecentItem::baseAmount), 12.5);
    QVERIFY(cable->boolean(RecentItem::isTax2Applied));
    table->item(0, CatalogueWindow::Price)->setText(QStringLiteral("cheap"));
    QCOMPARE(cable->num(RecentItem::baseAmount), 12.5);
    QCOMPARE(table->item(0, CatalogueWindow::Price)->text(), QStringLiteral("12.50"));

    window->searchField()->clear();
    table->selectRow(0);
    GuiInteraction::setNextAnswer(0);
    window->deleteButton()->click();
    QCOMPARE(GuiInteraction::lastAlertTitle(), QStringLiteral("Delete from Catalogue"));
    QCOMPARE(table->rowCount(), 2);
    QCOMPARE(f.app.items().catalogue().size(), 2);
}

void TestMainWindow::layoutAndTitle()
{
    Fixture f;
    f.start();
    QCOMPARE(f.window->windowTitle(), QStringLiteral("Tabo"));
    f.window->newInvoiceAction()->trigger();
    Record *doc = f.app.currentInvoice();
    doc->setText(Invoice::address, QStringLiteral("Kunde GmbH\nWeg 5"));
    f.app.documentChanged(doc);
    QCOMPARE(f.window->windowTitle(), doc->text(Invoice::number) + QStringLiteral(" – Kunde GmbH — Tabo"));

    // At the window's default size the item popover opens inside it.
    f.window->editor()->itemsPage()->toggleItemPopover();
    ItemPopover *popover = f.window->editor()->itemsPage()->itemPopover();
    QVERIFY(popover && popover->isVisible());
    QVERIFY2(f.window->frameGeometry().contains(popover->frameGeometry()),
             qPrintable(QStringLiteral("%1,%2 %3x%4").arg(popover->x()).arg(popover->y()).arg(popover->width()).arg(popover->height())));
    popover->hide();

    // Size and the split between list and editor come back at the next start.
    f.window->resize(900, 640);
    auto *split = f.window->findChild<QSplitter *>(QStringLiteral("mainSplitter"));
    split->setSizes({300, 250});
    const QList<int> sizes = split->sizes();
    f.window->quitAction()->trigger();
    MainWindow again(f.app);
    again.show();
    QVERIFY(QTest::qWaitForWindowExposed(&again));
    QCOMPARE(again.size(), QSize(900, 640));
    QCOMPARE(again.findChild<QSplitter *>(QStringLiteral("mainSplitter"))->sizes(), sizes);
}

void TestMainWindow::reportFollowsTheList()
{
    Fixture f;
    f.start();
    for (const char *client : {"Kunde GmbH", "Atelier"}) {
        f.window->newInvoiceAction()->trigger();
        Record *doc = f.app.currentInvoice();
        doc->setText(Invoice::customerName, QLatin1String(client));
        QVERIFY(f.app.items().addItem({QStringLiteral("Work"), {}, {}, {}, {}, QStringLiteral("100"),
                                       QStringLiteral("1"), false, false, false}).value());
        doc->setInt(Invoice::status, 1);
        doc->setDate(Invoice::due, doc->date(Invoice::date).addDays(30));
        f.app.documentChanged(doc);
    }
    // The first report explains itself once; Ctrl+R toggles the window.
    GuiInteraction::setNextAnswer(0);
    QAction *report = f.window->findChild<QAction *>(QStringLiteral("actionReport"));
    report->trigger();
    QCOMPARE(GuiInteraction::lastAlertTitle(), QStringLiteral("Hint!"));
    ReportWindow *window = f.window->reportWindow();
    QVERIFY(window->isVisible());
    QTRY_VERIFY(window->view()->pageCount() > 0);
    const QString pdf = ReportCommands::reportPdfPath();
    QProcess text;
    text.start(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")});
    QVERIFY(text.waitForFinished(10000));
    QVERIFY(QString::fromUtf8(text.readAllStandardOutput()).contains(QStringLiteral("200")));

    // A search in the main list narrows the report with it.
    f.window->searchField()->setText(QStringLiteral("Atelier"));
    QTRY_VERIFY(window->view()->pageCount() > 0);
    text.start(QStringLiteral("pdftotext"), {pdf, QStringLiteral("-")});
    QVERIFY(text.waitForFinished(10000));
    const QString narrowed = QString::fromUtf8(text.readAllStandardOutput());
    QVERIFY2(narrowed.contains(QStringLiteral("Atelier")) && !narrowed.contains(QStringLiteral("Kunde")),
             qPrintable(narrowed));
    GuiInteraction::setNextAnswer(0);
    report->trigger();
    QVERIFY(!window->isVisible());
    QVERIFY(f.prefs.boolean(Preferences::isReportHintShown));
}

void TestMainWindow::reminderSheet()
{
    Fixture f;
    f.start();
    QAction *remind = f.window->remindAction();
    QVERIFY(!remind->isEnabled()); // nothing selected
    f.window->newInvoiceAction()->trigger();
    Record *doc = f.app.currentInvoice();
    doc->setText(Invoice::address, QStringLiteral("Atelier Nord\nHafen 2"));
    // Without a notification service (a plain test run) the button rests, dimmed.
    const bool available = f.app.notifications().isAvailable();
    QCOMPARE(remind->isEnabled(), available);
    QWidget *button = f.window->findChild<QToolBar *>(QStringLiteral("mainToolBar"))->widgetForAction(remind);
    QCOMPARE(button->graphicsEffect() != nullptr, !available);

    NotificationSheet *sheet = f.window->notificationSheet();
    QVERIFY(sheet->begin());
    QVERIFY(sheet->isVisible());
    QCOMPARE(sheet->subtitleField()->text(), QStringLiteral("Atelier Nord"));
    QVERIFY(sheet->titleField()->text().endsWith(QStringLiteral(" | ") + doc->text(Invoice::number)));
    sheet->textField()->setPlainText(QStringLiteral("Phone them"));
    GuiInteraction::setNextAnswer(1); // the timer: "Not Now"
    sheet->scheduleButton()->click();
    QVERIFY(!sheet->isVisible());
    QCOMPARE(GuiInteraction::lastAlertTitle(), QStringLiteral("Reminders While Tabo Is Closed"));
    QVERIFY(remind->isChecked());
    const auto scheduled = f.app.notifications().scheduled();
    QCOMPARE(scheduled.size(), 1);
    QCOMPARE(scheduled[0].text, QStringLiteral("Phone them"));
    // Cancel on the second-reminder question opens nothing and keeps the button on.
    GuiInteraction::setNextAnswer(1);
    QVERIFY(!sheet->begin());
    QVERIFY(!sheet->isVisible());
    QVERIFY(remind->isChecked());
}

void TestMainWindow::helpMenu()
{
    Fixture f;
    f.start();
    const auto trigger = [&f](const char *name) {
        QAction *action = f.window->findChild<QAction *>(QLatin1String(name));
        QVERIFY2(action, name);
        action->trigger();
    };
    const auto opened = [](const char *name) -> QWidget * {
        for (QWidget *w : QApplication::topLevelWidgets())
            if (w->isVisible() && w->objectName() == QLatin1String(name))
                return w;
        return nullptr;
    };

    // Every command with a key, under its menu, and no command twice.
    trigger("actionShortcuts");
    QWidget *keys = opened("shortcutsDialog");
    QVERIFY(keys);
    auto *list = keys->findChild<QTreeWidget *>(QStringLiteral("shortcutList"));
    QMap<QString, QString> shortcuts;
    for (int g = 0; g < list->topLevelItemCount(); ++g)
        for (int i = 0; i < list->topLevelItem(g)->childCount(); ++i) {
            const QTreeWidgetItem *row = list->topLevelItem(g)->child(i);
            QVERIFY2(!shortcuts.contains(row->text(0)), qPrintable(row->text(0)));
            shortcuts.insert(row->text(0), row->text(1));
        }
    QCOMPARE(shortcuts.value(QStringLiteral("New Invoice")),
        QKeySequence(Qt::CTRL | Qt::Key_N).toString(QKeySequence::NativeText));
    QCOMPARE(
        shortcuts.value(QStringLiteral("Quit")), QKeySequence(Qt::CTRL | Qt::Key_Q).toString(QKeySequence::NativeText));
    QVERIFY(shortcuts.contains(QStringLiteral("Preferences…")));
    QVERIFY(!shortcuts.contains(QStringLiteral("Print Account Book…"))); // no key of its own
    keys->close();

    // The version, and the libraries with the versions this process runs.
    QApplication::setApplicationVersion(QStringLiteral("9.8.7"));
    trigger("actionAbout");
    QWidget *about = opened("aboutDialog");
    QVERIFY(about);
    QStringList labels;
    for (QLabel *label : about->findChildren<QLabel *>())
        labels << label->text();
    QVERIFY(labels.join(QLatin1Char(' ')).contains(QStringLiteral("Tabo 9.8.7")));
    auto *libraries = about->findChild<QTreeWidget *>(QStringLiteral("libraryList"));
    QMap<QString, QString> versions;
    for (int i = 0; i < libraries->topLevelItemCount(); ++i)
        versions.insert(libraries->topLevelItem(i)->text(0), libraries->topLevelItem(i)->text(1));
    QCOMPARE(versions.value(QStringLiteral("SQLite")), QString::fromLatin1(sqlite3_libversion()));
    QCOMPARE(versions.value(QStringLiteral("Qt")), QString::fromLatin1(qVersion()));
    for (const char *name : { "ICU", "libplist", "qpdf", "libqrencode" })
        QVERIFY2(
            versions.value(QLatin1String(name)).contains(QRegularExpression(QStringLiteral("^\\d+\\.\\d+"))), name);
    about->close();

    // The guide of the build tree, with its sections and its pictures.
    trigger("actionUserGuide");
    QWidget *guide = opened("userGuideWindow");
    QVERIFY(guide);
    auto *text = guide->findChild<QTextBrowser *>(QStringLiteral("guideText"));
    const QString shown = text->toPlainText();
    QVERIFY2(shown.size() > 2000, qPrintable(shown.left(200)));
    for (const char *section : { "First start", "A first invoice", "Designs", "E-invoices", "Backups",
             "E-mail and printing", "Reminders", "The command line" })
        QVERIFY2(shown.contains(QLatin1String(section)), section);
    QVERIFY(!text->document()
                 ->resource(QTextDocument::ImageResource, QUrl(QStringLiteral("screenshots/guide/en/main-window.png")))
                 .isNull());
    guide->close();
}

QTEST_MAIN(TestMainWindow)
#include "TestMainWindow.moc"
