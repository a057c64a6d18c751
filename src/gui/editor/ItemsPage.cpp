#include "gui/editor/ItemsPage.h"

#include "app/AppController.h"
#include "app/ItemCommands.h"
#include "domain/Record.h"
#include "gui/editor/DiscountPopover.h"
#include "gui/widgets/HintLabel.h"
#include "gui/editor/ItemPopover.h"
#include "gui/editor/ItemTableModel.h"
#include "gui/editor/ShippingPopover.h"
#include "gui/editor/TemplatePopover.h"
#include "gui/editor/TotalsPanel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QShortcut>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

namespace tabo {

ItemsPage::ItemsPage(AppController &app, QWidget *parent)
    : QWidget(parent)
    , m_app(app)
    , m_model(new ItemTableModel(app, this))
    , m_table(new QTableView(this))
    , m_hint(new HintLabel(this))
    , m_totals(new TotalsPanel(app.prefs(), this))
    , m_add(addButton(tr("Add Item…"), "showItemPopoverButton"))
    , m_delete(addButton(tr("Delete Item"), "deleteItemButton"))
    , m_shipping(addButton(tr("Shipping…"), "shippingButton"))
    , m_discount(addButton(tr("Discount…"), "discountButton"))
    , m_templates(addButton(tr("Templates…"), "templatesButton"))
    , m_itemPopover(new ItemPopover(app, this))
    , m_shippingPopover(new ShippingPopover(app, this))
    , m_discountPopover(new DiscountPopover(app, this))
    , m_templatePopover(new TemplatePopover(app, this))
{
    m_hint->setObjectName(QStringLiteral("itemEditHint"));
    setupTable();

    auto *buttons = new QHBoxLayout;
    buttons->addWidget(m_add);
    buttons->addWidget(m_delete);
    buttons->addStretch(1);
    buttons->addWidget(m_shipping);
    buttons->addWidget(m_discount);
    buttons->addWidget(m_templates);
    auto *totalsRow = new QHBoxLayout;
    totalsRow->addStretch(1);
    totalsRow->addWidget(m_totals);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addLayout(buttons);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_hint);
    layout->addLayout(totalsRow);

    connect(m_add, &QPushButton::clicked, this, &ItemsPage::toggleItemPopover);
    connect(m_delete, &QPushButton::clicked, this, &ItemsPage::deleteSelectedItem);
    connect(m_shipping, &QPushButton::clicked, this, &ItemsPage::toggleShippingPopover);
    connect(m_discount, &QPushButton::clicked, this, &ItemsPage::toggleDiscountPopover);
    connect(m_templates, &QPushButton::clicked, this, &ItemsPage::toggleTemplatePopover);
    connect(m_model, &ItemTableModel::editRefused, m_hint, &HintLabel::showMessage);
    // The new line is shown once the table has laid it out.
    connect(m_itemPopover, &ItemPopover::itemAdded, this,
        [this](Record *item) { QTimer::singleShot(50, this, [this, item] { selectItem(item); }); });
    auto *deleteKey = new QShortcut(QKeySequence::Delete, m_table);
    deleteKey->setContext(Qt::WidgetShortcut);
    connect(deleteKey, &QShortcut::activated, this, &ItemsPage::deleteSelectedItem);
    showDocument(nullptr);
}

QPushButton *ItemsPage::addButton(const QString &text, const char *name)
{
    auto *button = new QPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

void ItemsPage::setupTable()
{
    m_table->setObjectName(QStringLiteral("itemTable"));
    m_table->setAccessibleName(tr("Items"));
    m_table->setModel(m_model);
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
        | QAbstractItemView::AnyKeyPressed);
    m_table->setAlternatingRowColors(true);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_table->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
    auto *header = m_table->horizontalHeader();
    header->setHighlightSections(false);
    header->setSectionResizeMode(QHeaderView::Interactive);
    header->setSectionResizeMode(ItemTableModel::Title, QHeaderView::Stretch);
    const int em = fontMetrics().horizontalAdvance(QLatin1Char('M'));
    header->resizeSection(ItemTableModel::Quantity, 6 * em);
    header->resizeSection(ItemTableModel::Unit, 6 * em);
    header->resizeSection(ItemTableModel::UnitPrice, 9 * em);
    header->resizeSection(ItemTableModel::Taxes, 7 * em);
    header->resizeSection(ItemTableModel::Amount, 9 * em);

    const auto selectionMoved = [this] {
        m_hint->clearMessage();
        updateButtons();
        Q_EMIT selectedItemChanged();
    };
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, selectionMoved);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, selectionMoved);
    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this, [this] { m_keepSelected = selectedItem(); });
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        if (const int row = m_model->rowOf(m_keepSelected); row >= 0)
            m_table->selectRow(row);
        m_keepSelected = nullptr;
        updateButtons();
        Q_EMIT selectedItemChanged();
    });
}

void ItemsPage::showDocument(Record *document)
{
    m_doc = document;
    m_hint->clearMessage();
    m_model->setDocument(document);
    m_totals->showDocument(document);
    updateButtons();
    if (!document) {
        for (QWidget *popover : { static_cast<QWidget *>(m_itemPopover), static_cast<QWidget *>(m_shippingPopover),
                 static_cast<QWidget *>(m_discountPopover), static_cast<QWidget *>(m_templatePopover) })
            popover->hide();
    }
}

void ItemsPage::refresh()
{
    m_model->refresh();
    m_totals->showDocument(m_doc);
    updateButtons();
}

void ItemsPage::updateButtons()
{
    const bool doc = m_doc != nullptr;
    for (QPushButton *b : { m_add, m_shipping, m_discount, m_templates })
        b->setEnabled(doc);
    m_delete->setEnabled(doc && selectedItem());
}

Record *ItemsPage::selectedItem() const
{
    const QModelIndex current = m_table->selectionModel()->currentIndex();
    if (!current.isValid() || !m_table->selectionModel()->isRowSelected(current.row(), {}))
        return nullptr;
    return m_model->itemAt(current.row());
}

void ItemsPage::selectItem(Record *item)
{
    const int row = m_model->rowOf(item);
    if (row < 0)
        return;
    m_table->selectRow(row);
    m_table->scrollTo(m_model->index(row, 0));
}

void ItemsPage::toggleItemPopover()
{
    if (m_doc || m_itemPopover->isVisible())
        m_itemPopover->toggle(m_add);
}

void ItemsPage::toggleShippingPopover()
{
    if (m_doc || m_shippingPopover->isVisible())
        m_shippingPopover->toggle(m_shipping);
}

void ItemsPage::toggleDiscountPopover()
{
    if (m_doc || m_discountPopover->isVisible())
        m_discountPopover->toggle(m_discount);
}

void ItemsPage::toggleTemplatePopover()
{
    if (m_doc || m_templatePopover->isVisible())
        m_templatePopover->toggle(m_templates);
}

void ItemsPage::deleteSelectedItem()
{
    Record *item = selectedItem();
    if (!item)
        return;
    m_hint->clearMessage();
    if (m_app.items().deleteItem(item))
        refresh();
}

} // namespace tabo
