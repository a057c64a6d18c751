#include "gui/windows/DesignChoiceSheet.h"

#include "app/AppController.h"
#include "app/DesignLibrary.h"
#include "app/OutputCommands.h"
#include "domain/Record.h"
#include "gui/widgets/ScreenFit.h"
#include "gui/windows/PdfPane.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tabo {

DesignChoiceSheet::DesignChoiceSheet(AppController &app, QWidget *parent)
    : QDialog(parent)
    , m_app(app)
    , m_list(new QListWidget(this))
    , m_pages(new QStackedWidget(this))
    , m_pane(new PdfPane(m_pages))
{
    setObjectName(QStringLiteral("designChoiceSheet"));
    setWindowTitle(tr("Choose Design"));
    setWindowModality(Qt::WindowModal);
    m_list->setObjectName(QStringLiteral("designList"));
    m_list->setAccessibleName(tr("Designs"));
    m_list->setFixedWidth(200);

    auto *spinnerPage = new QWidget(m_pages);
    auto *spinner = new QProgressBar(spinnerPage);
    spinner->setObjectName(QStringLiteral("designSpinner"));
    spinner->setRange(0, 0);
    spinner->setTextVisible(false);
    spinner->setFixedWidth(160);
    auto *spinnerLayout = new QVBoxLayout(spinnerPage);
    spinnerLayout->addStretch();
    spinnerLayout->addWidget(spinner, 0, Qt::AlignHCenter);
    spinnerLayout->addStretch();
    m_pages->addWidget(spinnerPage);
    m_pages->addWidget(m_pane);
    m_pane->setMinimumSize(360, 240);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    m_ok = buttons->button(QDialogButtonBox::Ok);
    m_ok->setObjectName(QStringLiteral("designOK"));
    auto *heading = new QLabel(tr("Choose the design your documents are printed with."), this);
    auto *row = new QHBoxLayout;
    row->addWidget(m_list);
    row->addWidget(m_pages, 1);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(heading);
    layout->addLayout(row, 1);
    layout->addWidget(buttons);
    ScreenFit::resize(this, QSize(760, 760));

    connect(buttons, &QDialogButtonBox::accepted, this, &DesignChoiceSheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &DesignChoiceSheet::reject);
    connect(m_list, &QListWidget::currentRowChanged, this, &DesignChoiceSheet::select);
    OutputCommands &outputs = m_app.outputs();
    connect(&outputs, &OutputCommands::designPreviewReady, this, &DesignChoiceSheet::designPreviewReady);
    connect(&outputs, &OutputCommands::busyChanged, this, &DesignChoiceSheet::busyChanged);
    connect(this, &QDialog::finished, m_pane, &PdfPane::clear);
}

bool DesignChoiceSheet::begin()
{
    if (!m_app.outputs().checkDesignsAvailable())
        return false;
    m_filling = true;
    m_list->clear();
    const QList<Record *> designs = m_app.designs().designs();
    for (const Record *design : designs) {
        const QString title = design->text(Design::title);
        m_list->addItem(title.isEmpty() ? tr("Untitled") : title);
    }
    m_filling = false;
    m_pane->clear();
    open();
    m_list->setCurrentRow(initialRow());
    return true;
}

int DesignChoiceSheet::initialRow() const
{
    // The design documents are printed with now, else the last one chosen.
    const QList<Record *> designs = m_app.designs().designs();
    const qsizetype current = designs.indexOf(m_app.designs().currentDesign());
    if (current >= 0)
        return int(current);
    const int stored = m_app.designs().selectedDesignIndex();
    return stored >= 0 && stored < designs.size() ? stored : 0;
}

void DesignChoiceSheet::accept()
{
    // Choosing is what the person came for: the documents print with it now.
    const QList<Record *> designs = m_app.designs().designs();
    const int row = m_list->currentRow();
    if (row >= 0 && row < designs.size() && designs.at(row) != m_app.designs().currentDesign())
        m_app.designs().makeDefaultDesign(designs.at(row));
    QDialog::accept();
}

void DesignChoiceSheet::select(int row)
{
    if (m_filling || row < 0)
        return;
    m_rendering = true;
    m_ok->setEnabled(false);
    m_pages->setCurrentIndex(0);
    m_app.outputs().selectDesign(row);
}

void DesignChoiceSheet::designPreviewReady(const QString &path)
{
    // Not gated on m_rendering: the end of the busy state may come first.
    if (!isVisible())
        return;
    if (m_pane->load(path)) {
        m_pane->setSinglePage(true);
        m_pane->fit();
    }
    showRendered();
}

void DesignChoiceSheet::busyChanged(bool busy)
{
    // A failed rendering has shown its alert; the choice itself is stored.
    if (!busy && m_rendering)
        showRendered();
}

void DesignChoiceSheet::showRendered()
{
    m_rendering = false;
    m_pages->setCurrentIndex(1);
    m_ok->setEnabled(true);
}

} // namespace tabo
