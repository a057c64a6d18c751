#include "gui/main/DocumentListPane.h"

#include "app/AppController.h"
#include "domain/Record.h"
#include "gui/main/DocumentTableModel.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

namespace tabo {

DocumentListPane::DocumentListPane(AppController &app, QWidget *parent)
    : QWidget(parent)
    , m_app(app)
    , m_view(new QTableView(this))
{
    m_view->setObjectName(QStringLiteral("documentTable"));
    m_view->setAccessibleName(tr("Documents"));
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setAlternatingRowColors(true);
    m_view->setShowGrid(false);
    m_view->setWordWrap(false);
    m_view->setFrameShape(QFrame::NoFrame);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->verticalHeader()->hide();
    // Fixed heights and no size-to-contents: the view then never measures
    // rows that are off screen, which keeps a long list fast.
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_view->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    m_view->horizontalHeader()->setHighlightSections(false);
    m_view->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    m_emptyHint = new QLabel(tr("No documents yet — choose New Invoice to write your first."), m_view->viewport());
    m_emptyHint->setObjectName(QStringLiteral("emptyHint"));
    m_emptyHint->setAlignment(Qt::AlignCenter);
    m_emptyHint->setWordWrap(true);
    m_emptyHint->setForegroundRole(QPalette::PlaceholderText);
    m_emptyHint->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto *hintLayout = new QVBoxLayout(m_view->viewport());
    hintLayout->addWidget(m_emptyHint);

    m_model = new DocumentTableModel(m_app, this);
    m_view->setModel(m_model);
    connect(m_model, &QAbstractItemModel::modelReset, this, &DocumentListPane::listReloaded);

    auto *header = m_view->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setSectionResizeMode(DocumentTableModel::Subject, QHeaderView::Stretch);
    const int em = fontMetrics().horizontalAdvance(QLatin1Char('M'));
    header->resizeSection(DocumentTableModel::Number, 9 * em);
    header->resizeSection(DocumentTableModel::DateColumn, 9 * em);
    header->resizeSection(DocumentTableModel::Client, 14 * em);
    header->resizeSection(DocumentTableModel::Total, 9 * em);
    header->resizeSection(DocumentTableModel::Status, 8 * em);

    // Newest first until a heading is clicked.
    header->setSortIndicator(DocumentTableModel::DateColumn, Qt::DescendingOrder);
    m_view->setSortingEnabled(true);

    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &DocumentListPane::selectionMoved);
    connect(&m_app, &AppController::currentInvoiceChanged, this, &DocumentListPane::showCurrentInvoice);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
    listReloaded();
}

void DocumentListPane::selectionMoved()
{
    if (m_following)
        return;
    const QModelIndex current = m_view->selectionModel()->currentIndex();
    m_app.setCurrentInvoice(current.isValid() ? m_model->recordAt(current.row()) : nullptr);
}

void DocumentListPane::showCurrentInvoice(Record *invoice)
{
    // A document the filter hides stays current without a selected row.
    const int row = m_model->rowOf(invoice);
    auto *selection = m_view->selectionModel();
    m_following = true;
    if (row < 0) {
        selection->clear();
    } else if (selection->currentIndex().row() != row) {
        const QModelIndex index = m_model->index(row, 0);
        selection->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        m_view->scrollTo(index);
    }
    m_following = false;
}

void DocumentListPane::listReloaded()
{
    m_emptyHint->setVisible(m_app.hasStore() && m_app.documentList().all().isEmpty());
    // A reset drops the table's selection; the current document stays selected
    // as long as the list still shows it.
    showCurrentInvoice(m_app.currentInvoice());
}

} // namespace tabo
