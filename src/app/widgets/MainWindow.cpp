#include "MainWindow.h"

#include "DocumentListPane.h"
#include "FilterButton.h"
#include "SummaryBar.h"
#include "app/AppController.h"

#include <QAction>
#include <QCloseEvent>
#include <QFrame>
#include <QIcon>
#include <QMenuBar>
#include <QToolBar>
#include <QVBoxLayout>

namespace tabo {

MainWindow::MainWindow(AppController &app, QWidget *parent)
    : QMainWindow(parent)
    , m_app(app)
{
    setWindowTitle(QStringLiteral("Tabo"));
    resize(980, 620);

    auto *central = new QWidget(this);
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_list = new DocumentListPane(m_app, central);
    auto *rule = new QFrame(central);
    rule->setFrameShape(QFrame::HLine);
    rule->setFrameShadow(QFrame::Sunken);
    m_summary = new SummaryBar(m_app, central);
    layout->addWidget(m_list, 1);
    layout->addWidget(rule);
    layout->addWidget(m_summary);
    setCentralWidget(central);

    createActions();
    createToolBar();

    connect(&m_app, &AppController::storeOpened, this, &MainWindow::updateCommands);
    connect(&m_app, &AppController::terminateRequested, this, &MainWindow::terminateNow);
    updateCommands();
    // The upgrade was declined while the list opened the store: the window
    // must not be seen before the application ends.
    if (m_app.isTerminating())
        setWindowOpacity(0.0);
}

void MainWindow::createActions()
{
    m_newInvoice = new QAction(QIcon::fromTheme(QStringLiteral("document-new")), tr("New Invoice"), this);
    m_newInvoice->setObjectName(QStringLiteral("actionNewInvoice"));
    m_newInvoice->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
    connect(m_newInvoice, &QAction::triggered, &m_app, &AppController::addInvoice);

    m_newQuote = new QAction(QIcon::fromTheme(QStringLiteral("document-new")), tr("New Quote"), this);
    m_newQuote->setObjectName(QStringLiteral("actionNewQuote"));
    m_newQuote->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_N));
    connect(m_newQuote, &QAction::triggered, &m_app, &AppController::addQuote);

    m_quit = new QAction(QIcon::fromTheme(QStringLiteral("application-exit")), tr("Quit"), this);
    m_quit->setObjectName(QStringLiteral("actionQuit"));
    m_quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    m_quit->setMenuRole(QAction::QuitRole);
    connect(m_quit, &QAction::triggered, this, &QWidget::close);

    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(m_quit);
    QMenu *documents = menuBar()->addMenu(tr("&Documents"));
    documents->addAction(m_newInvoice);
    documents->addAction(m_newQuote);
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
    auto *spacer = new QWidget(bar);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(spacer);
    m_filterButton = new FilterButton(m_app, bar);
    m_filterButton->setIconSize(bar->iconSize());
    bar->addWidget(m_filterButton);
}

void MainWindow::updateCommands()
{
    // Without a store there is nothing to write into; quitting still works.
    const bool store = m_app.hasStore();
    m_newInvoice->setEnabled(store);
    m_newQuote->setEnabled(store);
    m_filterButton->setEnabled(store);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_quitDecided) {
        if (m_app.applicationShouldTerminate() == AppController::TerminateReply::Cancel) {
            event->ignore();
            return;
        }
        m_app.applicationWillTerminate();
        m_quitDecided = true;
    }
    event->accept();
}

void MainWindow::terminateNow()
{
    m_quitDecided = true;
    close();
}

} // namespace tabo
