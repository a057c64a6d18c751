#include "gui/windows/PreviewWindow.h"

#include "app/AppController.h"
#include "app/DesignLibrary.h"
#include "app/OutputCommands.h"
#include "domain/Record.h"
#include "gui/widgets/ScreenFit.h"
#include "gui/windows/PdfPane.h"
#include "gui/widgets/Keys.h"

#include <QAction>
#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace tabo {

PreviewWindow::PreviewWindow(AppController &app, QWidget *parent)
    : QMainWindow(parent, Qt::Window)
    , m_app(app)
    , m_pages(new QStackedWidget(this))
    , m_pane(new PdfPane(m_pages))
{
    setObjectName(QStringLiteral("previewWindow"));
    setWindowTitle(tr("Preview"));
    m_pages->addWidget(createBusyPage());
    m_pages->addWidget(m_pane);
    m_pages->addWidget(createNoDesignPage());
    setCentralWidget(m_pages);
    ScreenFit::resize(this, QSize(880, 1000));

    QToolBar *bar = addToolBar(tr("Preview"));
    bar->setObjectName(QStringLiteral("previewToolBar"));
    bar->setMovable(false);
    bar->setFloatable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    bar->setIconSize(QSize(22, 22));
    m_print = addCommand(QStringLiteral("document-print"), tr("Print…"), "previewPrint", QKeySequence::Print);
    m_savePdf = addCommand(QStringLiteral("document-save-as"), tr("Save as PDF…"), "previewSavePdf",
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
    m_email = addCommand(
        QStringLiteral("mail-send"), tr("E-mail…"), "previewEmail", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_M));
    m_reminder = addCommand(QStringLiteral("appointment-soon"), tr("Reminder…"), "previewReminder",
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_R));
    m_slip = addCommand(QStringLiteral("mail-forward"), tr("Delivery Slip…"), "previewSlip",
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D));
    bar->addActions({ m_print, m_savePdf, m_email });
    bar->addSeparator();
    bar->addActions({ m_reminder, m_slip });

    auto *close = new QAction(tr("Close"), this);
    close->setShortcuts(keysWith({ QKeySequence(Qt::CTRL | Qt::Key_W), QKeySequence(Qt::Key_Escape) }, QKeySequence::Close));
    connect(close, &QAction::triggered, this, &QWidget::close);
    addAction(close);

    connect(m_print, &QAction::triggered, this, [this] { Q_EMIT exportRequested(OutputCommands::Print); });
    connect(m_savePdf, &QAction::triggered, this, [this] { Q_EMIT exportRequested(OutputCommands::SavePdf); });
    connect(m_email, &QAction::triggered, this, [this] { Q_EMIT exportRequested(OutputCommands::Email); });
    connect(m_reminder, &QAction::triggered, this, &PreviewWindow::reminderRequested);
    connect(m_slip, &QAction::triggered, this, &PreviewWindow::slipRequested);

    OutputCommands &outputs = m_app.outputs();
    connect(&outputs, &OutputCommands::previewReady, this, &PreviewWindow::pdfReady);
    connect(&outputs, &OutputCommands::busyChanged, this, &PreviewWindow::busyChanged);
    connect(&m_app, &AppController::currentInvoiceChanged, this, &PreviewWindow::updateCommands);
    connect(&m_app, &AppController::listChanged, this, &PreviewWindow::updateCommands);
    setState(State::Busy);
    updateCommands();
}

QAction *PreviewWindow::addCommand(const QString &icon, const QString &text, const char *name, const QKeySequence &key)
{
    auto *action = new QAction(QIcon::fromTheme(icon), text, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(
        QString(text).remove(QStringLiteral("…")), key.toString(QKeySequence::NativeText)));
    return action;
}

QWidget *PreviewWindow::createBusyPage()
{
    auto *page = new QWidget(m_pages);
    auto *spinner = new QProgressBar(page);
    spinner->setObjectName(QStringLiteral("previewBusy"));
    spinner->setRange(0, 0);
    spinner->setTextVisible(false);
    spinner->setFixedWidth(220);
    auto *label = new QLabel(tr("Preparing the preview…"), page);
    label->setAlignment(Qt::AlignCenter);
    auto *layout = new QVBoxLayout(page);
    layout->addStretch();
    layout->addWidget(label, 0, Qt::AlignHCenter);
    layout->addWidget(spinner, 0, Qt::AlignHCenter);
    layout->addStretch();
    return page;
}

QWidget *PreviewWindow::createNoDesignPage()
{
    auto *page = new QWidget(m_pages);
    auto *title = new QLabel(tr("No design available"), page);
    QFont font = title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.3);
    title->setFont(font);
    auto *text = new QLabel(tr("A document is printed through a design, and the design library is empty.\n\n"
                               "Add a design or import a design file in the Design pane of the preferences, "
                               "or reinstall the built-in designs here."),
        page);
    text->setObjectName(QStringLiteral("noDesignText"));
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignCenter);
    text->setMaximumWidth(440);
    auto *reinstall = new QPushButton(tr("Reinstall Built-in Designs"), page);
    reinstall->setObjectName(QStringLiteral("reinstallDesigns"));
    connect(reinstall, &QPushButton::clicked, this, &PreviewWindow::reinstallDesigns);
    auto *layout = new QVBoxLayout(page);
    layout->addStretch();
    layout->addWidget(title, 0, Qt::AlignHCenter);
    layout->addSpacing(8);
    layout->addWidget(text, 0, Qt::AlignHCenter);
    layout->addSpacing(16);
    layout->addWidget(reinstall, 0, Qt::AlignHCenter);
    layout->addStretch();
    return page;
}

bool PreviewWindow::showPreview()
{
    return showRendering([this] { return m_app.outputs().showPreview(); });
}

bool PreviewWindow::showRendering(const std::function<bool()> &start)
{
    // Shown again from the start, never over the previous page.
    close();
    m_pane->clear();
    setState(State::Busy);
    m_waiting = true;
    if (start()) {
        centreAndShow();
        return true;
    }
    m_waiting = false;
    // The command has said why in its alert; without designs the window also
    // stays to tell what to do about it.
    if (m_app.designs().designs().isEmpty()) {
        setState(State::NoDesign);
        centreAndShow();
    }
    return false;
}

PreviewWindow::State PreviewWindow::state() const
{
    return State(m_pages->currentIndex());
}

void PreviewWindow::setState(State state)
{
    m_pages->setCurrentIndex(int(state));
    const bool pdf = state == State::Pdf;
    m_pane->setThumbnailsVisible(pdf);
    if (pdf) {
        m_pane->setSinglePage(true);
        m_pane->fit();
    }
}

void PreviewWindow::pdfReady(const QString &path)
{
    m_waiting = false;
    m_pane->load(path);
    setState(State::Pdf);
}

void PreviewWindow::busyChanged(bool busy)
{
    // A failed rendering ends without a PDF (its alert has been shown): the
    // view stays, empty, rather than a spinner that never stops.
    if (!busy && m_waiting && state() == State::Busy) {
        m_waiting = false;
        setState(State::Pdf);
    }
}

void PreviewWindow::reinstallDesigns()
{
    m_app.designs().loadTemplates();
    if (!m_app.designs().designs().isEmpty())
        showPreview();
}

void PreviewWindow::updateCommands()
{
    const bool doc = m_app.currentInvoice();
    for (QAction *action : { m_print, m_savePdf, m_email, m_reminder, m_slip })
        action->setEnabled(doc);
}

void PreviewWindow::centreAndShow()
{
    ScreenFit::resize(this, size());
    const QScreen *screen = parentWidget() ? parentWidget()->screen() : QGuiApplication::primaryScreen();
    if (screen)
        move(screen->availableGeometry().center() - rect().center());
    show();
    raise();
    activateWindow();
}

} // namespace tabo
