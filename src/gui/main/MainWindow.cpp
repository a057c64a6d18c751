#include "gui/main/MainWindow.h"

#include "app/AccountBook.h"
#include "app/AppController.h"
#include "app/InstanceBus.h"
#include "app/NotificationCommands.h"
#include "app/OutputCommands.h"
#include "app/UndoHistory.h"
#include "domain/Record.h"
#include "gui/editor/DocumentEditor.h"
#include "gui/main/DocumentActions.h"
#include "gui/main/DocumentListPane.h"
#include "gui/main/DocumentTableModel.h"
#include "gui/main/FileMenu.h"
#include "gui/main/FilterButton.h"
#include "gui/main/SummaryBar.h"
#include "gui/preferences/PreferencePanel.h"
#include "gui/widgets/Accessibility.h"
#include "gui/widgets/Icons.h"
#include "gui/widgets/Keys.h"
#include "gui/widgets/ScreenFit.h"
#include "gui/windows/CatalogueWindow.h"
#include "gui/windows/DesignChoiceSheet.h"
#include "gui/windows/ExportSheet.h"
#include "gui/windows/HelpWindows.h"
#include "gui/windows/LetterSheet.h"
#include "gui/windows/NotificationSheet.h"
#include "gui/windows/PreviewWindow.h"
#include "gui/windows/ReportWindow.h"
#include "gui/windows/ScheduleWindow.h"
#include "prefs/Preferences.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QEvent>
#include <QFrame>
#include <QGraphicsOpacityEffect>
#include <QIcon>
#include <QLineEdit>
#include <QMenuBar>
#include <QSplitter>
#include <QTableView>
#include <QTimer>
#include <QToolBar>
#include <QUndoStack>
#include <QVBoxLayout>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(MainWindow)
};
} // namespace

namespace tabo {

namespace {
// Window state is the desktop's business, not a document setting: kept under
// names of its own beside the declared keys.
constexpr char kGeometryKey[] = "window/mainGeometry";
constexpr char kSplitterKey[] = "window/mainSplitter";
} // namespace

MainWindow::MainWindow(AppController &app, QWidget *parent)
    : QMainWindow(parent)
    , m_app(app)
{
    setWindowTitle(QStringLiteral("Tabo"));
    ScreenFit::resize(this, QSize(1280, 800));
    m_requestTimer.setInterval(100);
    connect(&m_requestTimer, &QTimer::timeout, this, &MainWindow::runWaitingRequests);

    auto *central = new QWidget(this);
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    // The list above, the editor below: both get the full width their
    // columns need.
    auto *split = new QSplitter(Qt::Vertical, central);
    split->setObjectName(QStringLiteral("mainSplitter"));
    m_split = split;
    split->setChildrenCollapsible(false);
    m_list = new DocumentListPane(m_app, split);
    m_editor = new DocumentEditor(m_app, split);
    split->addWidget(m_list);
    split->addWidget(m_editor);
    split->setStretchFactor(0, 2);
    split->setStretchFactor(1, 5);
    split->setSizes({ 220, 520 });
    auto *rule = new QFrame(central);
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    m_summary = new SummaryBar(m_app, central);
    layout->addWidget(split, 1);
    layout->addWidget(rule);
    layout->addWidget(m_summary);
    setCentralWidget(central);

    createActions();
    createToolBar();

    restoreLayout();
    connect(&m_app, &AppController::currentInvoiceChanged, this, &MainWindow::updateTitle);
    connect(&m_app, &AppController::listChanged, this, &MainWindow::updateTitle);
    connect(&m_app, &AppController::storeOpened, this, &MainWindow::updateCommands);
    connect(&m_app, &AppController::storeOpened, this, &MainWindow::selectNewestDocument);
    selectNewestDocument();
    connect(&m_app, &AppController::terminateRequested, this, &MainWindow::terminateNow);
    updateCommands();
    // tabo-cli or a second window may write to the same store: what they
    // committed shows within seconds, and at once when the window is activated.
    auto *sync = new QTimer(this);
    sync->setInterval(2000);
    connect(sync, &QTimer::timeout, &m_app, &AppController::syncWithStore);
    sync->start();
    // The upgrade was declined while the list opened the store: the window
    // must not be seen before the application ends.
    if (m_app.isTerminating())
        setWindowOpacity(0.0);
    Accessibility::labelFields(this);
}

void MainWindow::createActions()
{
    m_newInvoice = new QAction(QIcon::fromTheme(QStringLiteral("document-new")), tr("New Invoice"), this);
    m_newInvoice->setObjectName(QStringLiteral("actionNewInvoice"));
    m_newInvoice->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
    connect(m_newInvoice, &QAction::triggered, this, [this] { newDocument(true); });

    m_newQuote = new QAction(QIcon::fromTheme(QStringLiteral("document-new")), tr("New Quote"), this);
    m_newQuote->setObjectName(QStringLiteral("actionNewQuote"));
    m_newQuote->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N));
    connect(m_newQuote, &QAction::triggered, this, [this] { newDocument(false); });

    m_quit = new QAction(QIcon::fromTheme(QStringLiteral("application-exit")), tr("Quit"), this);
    m_quit->setObjectName(QStringLiteral("actionQuit"));
    m_quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    m_quit->setMenuRole(QAction::QuitRole);
    connect(m_quit, &QAction::triggered, this, &QWidget::close);

    m_actions = new DocumentActions(m_app, m_editor, this);
    m_actions->attachDeleteKey(m_list->view());

    m_fileMenu = new FileMenu(m_app, m_editor, this);
    m_fileMenu->populate(menuBar()->addMenu(tr("&File")), m_quit);
    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    // A text field keeps its own Ctrl+Z while it has the focus; elsewhere the
    // document's changes are undone step by step.
    QAction *undo = m_app.undo().stack().createUndoAction(this, tr("Undo"));
    undo->setObjectName(QStringLiteral("actionUndo"));
    undo->setShortcut(QKeySequence::Undo);
    QAction *redo = m_app.undo().stack().createRedoAction(this, tr("Redo"));
    redo->setObjectName(QStringLiteral("actionRedo"));
    redo->setShortcuts(keysWith({QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)}, QKeySequence::Redo));
    edit->addAction(undo);
    edit->addAction(redo);
    edit->addSeparator();
    m_preferences = edit->addAction(tr("Preferences…"));
    m_preferences->setObjectName(QStringLiteral("actionPreferences"));
    m_preferences->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Comma));
    m_preferences->setMenuRole(QAction::PreferencesRole);
    connect(m_preferences, &QAction::triggered, this, [this] { preferencePanel()->showPanel(); });
    QMenu *documents = menuBar()->addMenu(tr("&Documents"));
    documents->addAction(m_newInvoice);
    documents->addAction(m_newQuote);
    documents->addAction(m_actions->duplicate());
    documents->addAction(m_actions->convert());
    documents->addAction(m_actions->cancelInvoice());
    QAction *repeat = documents->addAction(tr("Repeat Invoice…"));
    repeat->setObjectName(QStringLiteral("actionRepeatInvoice"));
    connect(repeat, &QAction::triggered, this, [this] { scheduleWindow()->showFor(m_app.currentInvoice()); });
    documents->addSeparator();
    documents->addAction(m_actions->remove());
    m_documentsMenu = documents;
    createOutputActions();
    QMenu *items = menuBar()->addMenu(tr("&Items"));
    items->addAction(m_actions->addItem());
    items->addAction(m_actions->deleteItem());
    items->addSeparator();
    QMenu *reports = menuBar()->addMenu(tr("&Reports"));
    QAction *report = reports->addAction(tr("Report…"));
    report->setObjectName(QStringLiteral("actionReport"));
    report->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
    connect(report, &QAction::triggered, this, [this] { reportWindow()->toggle(); });
    QAction *book = reports->addAction(tr("Print Account Book…"));
    book->setObjectName(QStringLiteral("actionAccountBook"));
    connect(book, &QAction::triggered, this, [this] { m_app.accountBook().print(); });
    QAction *catalogue = items->addAction(tr("Catalogue…"));
    catalogue->setObjectName(QStringLiteral("actionCatalogue"));
    connect(catalogue, &QAction::triggered, this, [this] {
        CatalogueWindow *window = catalogueWindow();
        window->reload();
        window->show();
        window->raise();
        window->activateWindow();
    });

    QMenu *help = menuBar()->addMenu(tr("&Help"));
    QAction *guide = help->addAction(QIcon::fromTheme(QStringLiteral("help-contents")), tr("User Guide"));
    guide->setObjectName(QStringLiteral("actionUserGuide"));
    guide->setShortcut(QKeySequence::HelpContents);
    connect(guide, &QAction::triggered, this, [this] { showHelp(new UserGuideWindow(this)); });
    QAction *keys = help->addAction(tr("Keyboard Shortcuts"));
    keys->setObjectName(QStringLiteral("actionShortcuts"));
    connect(keys, &QAction::triggered, this, [this] { showHelp(new ShortcutsDialog(menuBar(), this)); });
    help->addSeparator();
    QAction *about = help->addAction(QIcon::fromTheme(QStringLiteral("help-about")), tr("About Tabo"));
    about->setObjectName(QStringLiteral("actionAbout"));
    about->setMenuRole(QAction::AboutRole);
    connect(about, &QAction::triggered, this, [this] { showHelp(new AboutDialog(this)); });
}

void MainWindow::showHelp(QDialog *dialog)
{
    // Help stays open beside the window it explains.
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setModal(false);
    dialog->show();
}

ScheduleWindow *MainWindow::scheduleWindow()
{
    if (!m_schedules)
        m_schedules = new ScheduleWindow(m_app, this);
    return m_schedules;
}

ReportWindow *MainWindow::reportWindow()
{
    if (!m_report)
        m_report = new ReportWindow(m_app, this);
    return m_report;
}

CatalogueWindow *MainWindow::catalogueWindow()
{
    if (!m_catalogue)
        m_catalogue = new CatalogueWindow(m_app, this);
    return m_catalogue;
}

QAction *MainWindow::addOutputAction(
    const QString &icon, const QString &text, const char *name, const QKeySequence &key)
{
    auto *action = new QAction(QIcon::fromTheme(icon), text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    // The page shows what is typed, also what is still being typed.
    connect(action, &QAction::triggered, m_editor, &DocumentEditor::commitPending);
    m_outputActions << action;
    return action;
}

void MainWindow::createOutputActions()
{
    m_preview = new PreviewWindow(m_app, this);
    m_exportSheet = new ExportSheet(m_app, this);
    m_letterSheet = new LetterSheet(m_app, m_preview, this);
    m_designSheet = new DesignChoiceSheet(m_app, this);

    m_previewAction = addOutputAction(QStringLiteral("document-print-preview"), tr("Preview"), "actionPreview",
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P));
    m_printAction = addOutputAction(QStringLiteral("document-print"), tr("Print…"), "actionPrint", QKeySequence::Print);
    m_savePdfAction = addOutputAction(QStringLiteral("document-save-as"), tr("Save as PDF…"), "actionSavePdf",
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    m_emailAction = addOutputAction(
        QStringLiteral("mail-send"), tr("E-mail…"), "actionEmail", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_M));
    QAction *reminder = addOutputAction(QStringLiteral("appointment-soon"), tr("Reminder…"), "actionReminder",
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R));
    QAction *slip = addOutputAction(QStringLiteral("mail-forward"), tr("Delivery Slip…"), "actionDeliverySlip",
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D));
    QAction *design = addOutputAction(QStringLiteral("preferences-desktop-theme"), tr("Choose Design…"),
        "actionChooseDesign", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_G));

    connect(m_previewAction, &QAction::triggered, m_preview, &PreviewWindow::showPreview);
    connect(m_printAction, &QAction::triggered, this, [this] { openExport(OutputCommands::Print, this); });
    connect(m_savePdfAction, &QAction::triggered, this, [this] { openExport(OutputCommands::SavePdf, this); });
    connect(m_emailAction, &QAction::triggered, this, [this] { openExport(OutputCommands::Email, this); });
    connect(reminder, &QAction::triggered, this, [this] { openLetter(true); });
    connect(slip, &QAction::triggered, this, [this] { openLetter(false); });
    connect(design, &QAction::triggered, m_designSheet, &DesignChoiceSheet::begin);
    connect(m_preview, &PreviewWindow::exportRequested, this, [this](int kind) { openExport(kind, m_preview); });
    connect(m_preview, &PreviewWindow::reminderRequested, this, [this] { openLetter(true); });
    connect(m_preview, &PreviewWindow::slipRequested, this, [this] { openLetter(false); });

    QMenu *output = menuBar()->addMenu(tr("&Output"));
    output->addActions({ m_previewAction, m_printAction, m_savePdfAction, m_emailAction });
    output->addSeparator();
    output->addActions({ reminder, slip });
    output->addSeparator();
    output->addAction(design);

    connect(&m_app, &AppController::currentInvoiceChanged, this, &MainWindow::updateOutputCommands);
    connect(&m_app, &AppController::listChanged, this, &MainWindow::updateOutputCommands);
    updateOutputCommands();
}

void MainWindow::openExport(int kind, QWidget *window)
{
    m_editor->commitPending();
    m_exportSheet->begin(kind, window);
}

void MainWindow::openLetter(bool reminder)
{
    m_editor->commitPending();
    m_letterSheet->begin(reminder ? LetterSheet::Mode::Reminder : LetterSheet::Mode::Slip);
}

void MainWindow::updateOutputCommands()
{
    const bool doc = m_app.currentInvoice();
    for (QAction *action : std::as_const(m_outputActions))
        action->setEnabled(doc);
}

void MainWindow::newDocument(bool invoice)
{
    if (invoice ? m_app.addInvoice() : m_app.addQuote())
        m_editor->beginNewDocument();
}

void MainWindow::selectNewestDocument()
{
    // Opening on the latest document shows where the person left off.
    const auto &shown = m_app.documentList().shown();
    if (!m_app.currentInvoice() && !shown.isEmpty())
        m_app.setCurrentInvoice(shown.first());
}

void MainWindow::createToolBar()
{
    QToolBar *bar = addToolBar(tr("Documents"));
    bar->setObjectName(QStringLiteral("mainToolBar"));
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setIconSize(QSize(22, 22));
    bar->addAction(m_newInvoice);
    bar->addAction(m_newQuote);
    bar->addAction(m_actions->duplicate());
    bar->addAction(m_actions->convert());
    bar->addAction(m_actions->remove());
    bar->addSeparator();
    bar->addAction(m_actions->addItem());
    bar->addAction(m_actions->deleteItem());
    bar->addSeparator();
    bar->addActions({ m_previewAction, m_printAction, m_savePdfAction, m_emailAction });
    bar->addSeparator();
    createRemindAction(bar);
    auto *spacer = new QWidget(bar);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(spacer);
    // Search and filter have a bar of their own that never gives way: on a
    // narrow screen the commands go into the overflow menu, not these.
    bar = addToolBar(tr("Search"));
    bar->setObjectName(QStringLiteral("searchToolBar"));
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->setIconSize(QSize(22, 22));
    m_search = new QLineEdit(bar);
    m_search->setObjectName(QStringLiteral("searchField"));
    m_search->setAccessibleName(tr("Search"));
    m_search->setPlaceholderText(tr("Search number, client, subject, amount"));
    m_search->setClearButtonEnabled(true);
    m_search->setMaximumWidth(fontMetrics().horizontalAdvance(QLatin1Char('M')) * 18);
    connect(m_search, &QLineEdit::textChanged, &m_app, &AppController::setSearchText);
    auto *find = new QAction(tr("Find"), this);
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, m_search, [this] {
        m_search->setFocus();
        m_search->selectAll();
    });
    addAction(find);
    bar->addWidget(m_search);
    m_filterButton = new FilterButton(m_app, bar);
    m_filterButton->setIconSize(bar->iconSize());
    bar->addWidget(m_filterButton);
    bar->setMinimumWidth(bar->sizeHint().width());
}

void MainWindow::createRemindAction(QToolBar *bar)
{
    m_notificationSheet = new NotificationSheet(m_app, this);
    m_remind = new QAction(Icons::themed(QStringLiteral("appointment-soon"), QLatin1Char('!'), QColor(0xd9, 0x8c, 0x1f)),
                           tr("Remind Me…"), this);
    m_remind->setObjectName(QStringLiteral("actionRemind"));
    // On: a reminder was made for this invoice.
    m_remind->setCheckable(true);
    bar->addAction(m_remind);
    m_documentsMenu->insertAction(m_actions->remove(), m_remind);
    m_documentsMenu->insertSeparator(m_actions->remove());
    m_remindButton = bar->widgetForAction(m_remind);
    const QString reason = m_app.notifications().unavailableReason();
    if (!reason.isEmpty()) {
        // Shown but dimmed, so the person learns the feature exists and why it rests.
        auto *dim = new QGraphicsOpacityEffect(m_remindButton);
        dim->setOpacity(0.7);
        m_remindButton->setGraphicsEffect(dim);
        m_remind->setToolTip(reason);
    } else {
        m_remind->setToolTip(tr("Schedule a desktop notification about this invoice"));
    }
    m_remind->setProperty("available", reason.isEmpty());
    connect(m_remind, &QAction::triggered, this, [this] {
        m_editor->commitPending();
        if (!m_notificationSheet->begin())
            updateRemindAction();
    });
    connect(m_notificationSheet, &NotificationSheet::scheduled, this, [this] {
        updateRemindAction();
        m_app.notifications().offerReminderTimerOnce();
    });
    connect(m_notificationSheet, &QDialog::rejected, this, &MainWindow::updateRemindAction);
    connect(&m_app, &AppController::currentInvoiceChanged, this, &MainWindow::updateRemindAction);
    connect(&m_app.notifications(), &NotificationCommands::bringForward, this, &MainWindow::bringForward);
    updateRemindAction();
}

void MainWindow::bringForward()
{
    if (isMinimized())
        showNormal();
    show();
    raise();
    activateWindow();
}

void MainWindow::takeRequestsFrom(InstanceBus &bus)
{
    connect(&bus, &InstanceBus::showInvoiceRequested, &m_app.notifications(),
            &NotificationCommands::didActivateNotification);
    connect(&bus, &InstanceBus::activateRequested, this, [this] { whenFree([this] { bringForward(); }); });
    connect(&bus, &InstanceBus::openRequested, this,
        [this](const QStringList &paths) { whenFree([this, paths] { openFiles(paths); }); });
    connect(&bus, &InstanceBus::newDocumentRequested, this, [this](bool invoice) {
        whenFree([this, invoice] {
            bringForward();
            (invoice ? m_newInvoice : m_newQuote)->trigger();
        });
    });
}

void MainWindow::openFiles(const QStringList &paths)
{
    bringForward();
    for (const QString &path : paths)
        m_app.openFileFromOutside(path);
}

void MainWindow::whenFree(std::function<void()> request)
{
    m_requests.append(std::move(request));
    if (!m_requestTimer.isActive())
        m_requestTimer.start();
}

void MainWindow::runWaitingRequests()
{
    // A dialog the person has open comes first: its answer may change what
    // the request finds.
    if (QApplication::activeModalWidget())
        return;
    m_requestTimer.stop();
    while (!m_requests.isEmpty())
        m_requests.takeFirst()();
}

void MainWindow::updateRemindAction()
{
    const Record *doc = m_app.currentInvoice();
    m_remind->setEnabled(doc && m_remind->property("available").toBool());
    m_remind->setChecked(doc && doc->boolean(Invoice::misc4));
}

void MainWindow::updateCommands()
{
    // Without a store there is nothing to write into; quitting still works.
    const bool store = m_app.hasStore();
    m_newInvoice->setEnabled(store);
    m_newQuote->setEnabled(store);
    m_filterButton->setEnabled(store);
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_app.syncWithStore();
    QMainWindow::changeEvent(event);
}

void MainWindow::restoreLayout()
{
    const Preferences &prefs = m_app.prefs();
    restoreGeometry(prefs.raw(QString::fromLatin1(kGeometryKey)).toByteArray());
    m_split->restoreState(prefs.raw(QString::fromLatin1(kSplitterKey)).toByteArray());
}

void MainWindow::saveLayout()
{
    Preferences &prefs = m_app.prefs();
    prefs.setRaw(QString::fromLatin1(kGeometryKey), saveGeometry());
    prefs.setRaw(QString::fromLatin1(kSplitterKey), m_split->saveState());
}

void MainWindow::updateTitle()
{
    // The open document, as the list names it; the application's name alone
    // when none is open.
    const Record *doc = m_app.currentInvoice();
    if (!doc) {
        setWindowTitle(QStringLiteral("Tabo"));
        return;
    }
    QString name = doc->text(Invoice::number).trimmed();
    if (name.isEmpty())
        name = DocumentTableModel::subjectText(*doc);
    const QString client = DocumentTableModel::clientText(*doc);
    if (!client.isEmpty())
        name += QStringLiteral(" – ") + client;
    setWindowTitle(QStringLiteral("%1 — Tabo").arg(name));
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_quitDecided) {
        saveLayout();
        m_editor->commitPending();
        if (m_app.askToQuit() == AppController::QuitReply::Cancel) {
            event->ignore();
            return;
        }
        m_app.quit();
        m_quitDecided = true;
    }
    event->accept();
}

void MainWindow::terminateNow()
{
    m_quitDecided = true;
    close();
}

QVPreferencePanel *MainWindow::preferencePanel()
{
    if (!m_preferencePanel)
        m_preferencePanel = new QVPreferencePanel(m_app, m_fileMenu, this);
    return m_preferencePanel;
}

} // namespace tabo
