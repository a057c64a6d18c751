#include "gui/editor/ItemPopover.h"

#include "app/AppController.h"
#include "app/ItemCommands.h"
#include "domain/Record.h"
#include "domain/UnitCodes.h"
#include "gui/widgets/Formats.h"
#include "gui/widgets/HintLabel.h"
#include "prefs/Preferences.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tabo {

namespace {
using P = Preferences;
const P::Key kTaxTitle[] = { P::tax1Title, P::tax2Title, P::tax3Title };
const P::Key kTaxRate[] = { P::tax1Rate, P::tax2Rate, P::tax3Rate };
const P::Key kTaxEnabled[] = { P::tax1Enabled, P::tax2Enabled, P::tax3Enabled };

QLineEdit *lineEdit(QWidget *parent, const char *name)
{
    auto *edit = new QLineEdit(parent);
    edit->setObjectName(QLatin1String(name));
    return edit;
}
} // namespace

ItemPopover::ItemPopover(AppController &app, QWidget *parent)
    : Popover(parent)
    , m_app(app)
    , m_tabs(new QTabWidget(this))
{
    setObjectName(QStringLiteral("itemPopover"));
    m_tabs->setDocumentMode(true);
    m_tabs->addTab(createEntryPage(), tr("New Item"));
    m_tabs->addTab(createCataloguePage(), tr("Catalogue"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 8, 10, 10);
    layout->addWidget(m_tabs);
}

QWidget *ItemPopover::createEntryPage()
{
    auto *page = new QWidget(this);
    auto *form = m_form = new QFormLayout(page);
    m_title = lineEdit(page, "itemTitle");
    m_subtitle = lineEdit(page, "itemSubtitle");
    m_unit = lineEdit(page, "itemUnit");
    m_unitCode = lineEdit(page, "itemUnitCode");
    // The code e-invoices state; left empty it follows the unit typed.
    m_unitCode->setMaxLength(3);
    m_unitCode->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[A-Za-z0-9]{0,3}")), m_unitCode));
    m_unitCode->setPlaceholderText(UnitCodes::fromUnitText(QString()));
    connect(m_unit, &QLineEdit::textChanged, m_unitCode,
            [this](const QString &unit) { m_unitCode->setPlaceholderText(UnitCodes::fromUnitText(unit)); });
    m_sku = lineEdit(page, "itemSku");
    m_note = lineEdit(page, "itemNote");
    m_price = lineEdit(page, "itemPrice");
    m_quantity = lineEdit(page, "itemQuantity");
    m_title->setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('M')) * 22);
    for (QLineEdit *number : { m_price, m_quantity })
        number->setAlignment(Qt::AlignRight);
    form->addRow(tr("Title:"), m_title);
    form->addRow(tr("Description:"), m_subtitle);
    auto *unitRow = new QHBoxLayout;
    unitRow->addWidget(m_unit, 1);
    auto *codeLabel = new QLabel(tr("Code:"), page);
    codeLabel->setBuddy(m_unitCode);
    unitRow->addWidget(codeLabel);
    unitRow->addWidget(m_unitCode);
    m_unitCode->setMaximumWidth(fontMetrics().horizontalAdvance(QLatin1Char('M')) * 5);
    form->addRow(tr("Unit:"), unitRow);
    form->addRow(tr("Article number:"), m_sku);
    form->addRow(tr("Note:"), m_note);
    form->addRow(tr("Unit price:"), m_price);
    form->addRow(tr("Quantity:"), m_quantity);
    auto *taxes = new QVBoxLayout;
    for (int k = 0; k < 3; ++k) {
        m_tax[k] = new QCheckBox(page);
        m_tax[k]->setObjectName(QStringLiteral("itemTax%1").arg(k + 1));
        m_tax[k]->setAccessibleName(tr("Tax %1").arg(k + 1));
        taxes->addWidget(m_tax[k]);
    }
    m_taxRow = form->rowCount();
    form->addRow(tr("Taxes:"), taxes);
    m_hint = new HintLabel(page);
    m_hint->setObjectName(QStringLiteral("itemHint"));
    form->addRow(m_hint);
    auto *add = new QPushButton(tr("Add"), page);
    add->setObjectName(QStringLiteral("addItemButton"));
    add->setDefault(true);
    form->addRow(QString(), add);
    connect(add, &QPushButton::clicked, this, &ItemPopover::addItem);
    for (QLineEdit *edit : { m_title, m_subtitle, m_unit, m_unitCode, m_sku, m_note, m_price, m_quantity })
        connect(edit, &QLineEdit::returnPressed, this, &ItemPopover::addItem);
    return page;
}

QWidget *ItemPopover::createCataloguePage()
{
    auto *page = new QWidget(this);
    auto *layout = new QVBoxLayout(page);
    m_catalogue = new QTreeWidget(page);
    m_catalogue->setObjectName(QStringLiteral("catalogueList"));
    m_catalogue->setAccessibleName(tr("Catalogue"));
    m_catalogue->setRootIsDecorated(false);
    m_catalogue->setHeaderLabels({ tr("Title"), tr("Article number"), tr("Unit price") });
    m_catalogue->headerItem()->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    m_catalogue->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_catalogue->setMinimumHeight(fontMetrics().height() * 12);
    layout->addWidget(m_catalogue);
    m_use = new QPushButton(tr("Use"), page);
    m_use->setObjectName(QStringLiteral("useRecentItemButton"));
    auto *buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_use);
    layout->addLayout(buttons);
    connect(m_use, &QPushButton::clicked, this, &ItemPopover::useRecentItem);
    connect(m_catalogue, &QTreeWidget::itemDoubleClicked, this, &ItemPopover::useRecentItem);
    connect(m_catalogue, &QTreeWidget::currentItemChanged, this,
        [this](QTreeWidgetItem *current) { m_use->setEnabled(current != nullptr); });
    return page;
}

void ItemPopover::prepare()
{
    const Preferences &prefs = m_app.prefs();
    const ItemFields empty = m_app.items().newItemFields();
    for (int k = 0; k < 3; ++k) {
        const QString title = prefs.string(kTaxTitle[k]);
        m_tax[k]->setText(QStringLiteral("%1 (%2)")
                              .arg(title.isEmpty() ? tr("Tax %1").arg(k + 1) : title,
                                  Formats::percent(prefs.real(kTaxRate[k]))));
        // Only the taxes the person charges are offered.
        m_tax[k]->setVisible(prefs.boolean(kTaxEnabled[k]));
    }
    m_form->setRowVisible(m_taxRow,
        prefs.boolean(P::tax1Enabled) || prefs.boolean(P::tax2Enabled) || prefs.boolean(P::tax3Enabled));
    setFields(empty);
    m_hint->clearMessage();
    fillCatalogue();
    const bool catalogue = prefs.integer(P::alwaysShowRecentItems) != 0 && m_catalogue->topLevelItemCount() > 0;
    m_tabs->setCurrentIndex(catalogue ? CatalogueTab : EntryTab);
    if (catalogue)
        m_catalogue->setFocus();
    else
        m_title->setFocus();
}

void ItemPopover::fillCatalogue()
{
    m_catalogue->clear();
    const QString currency = m_app.prefs().string(P::prefsCurrency);
    for (Record *entry : m_app.items().catalogue()) {
        auto *row = new QTreeWidgetItem(m_catalogue,
            { entry->text(RecentItem::title), entry->text(RecentItem::sku),
                Formats::money(entry->num(RecentItem::baseAmount), currency) });
        row->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
        row->setToolTip(0, entry->text(RecentItem::subtitle));
        row->setData(0, Qt::UserRole, QVariant::fromValue(static_cast<void *>(entry)));
    }
    m_catalogue->resizeColumnToContents(2);
    if (m_catalogue->topLevelItemCount() > 0)
        m_catalogue->setCurrentItem(m_catalogue->topLevelItem(0));
    m_use->setEnabled(m_catalogue->currentItem() != nullptr);
}

void ItemPopover::setFields(const ItemFields &f)
{
    m_title->setText(f.title);
    m_subtitle->setText(f.subtitle);
    m_unit->setText(f.unit);
    m_unitCode->setText(f.unitCode);
    m_sku->setText(f.sku);
    m_note->setText(f.note);
    m_price->setText(f.price);
    // A catalogue entry has no quantity: the one typed stays.
    if (!f.quantity.isEmpty() || m_quantity->text().isEmpty())
        m_quantity->setText(f.quantity.isEmpty() ? QStringLiteral("1") : f.quantity);
    m_tax[0]->setChecked(f.tax1);
    m_tax[1]->setChecked(f.tax2);
    m_tax[2]->setChecked(f.tax3);
}

ItemFields ItemPopover::fields() const
{
    ItemFields f;
    f.title = m_title->text();
    f.subtitle = m_subtitle->text();
    f.unit = m_unit->text();
    f.unitCode = m_unitCode->text().trimmed().toUpper();
    f.sku = m_sku->text();
    f.note = m_note->text();
    f.price = m_price->text().trimmed();
    f.quantity = m_quantity->text().trimmed();
    // A tax that is not offered is not applied, whatever the box last held.
    f.tax1 = !m_tax[0]->isHidden() && m_tax[0]->isChecked();
    f.tax2 = !m_tax[1]->isHidden() && m_tax[1]->isChecked();
    f.tax3 = !m_tax[2]->isHidden() && m_tax[2]->isChecked();
    return f;
}

void ItemPopover::addItem()
{
    const Result<Record *> added = m_app.items().addItem(fields());
    Record *item = added.value();
    if (!item) {
        m_hint->showMessage(added.error().text.isEmpty() ? tr("The item could not be added.") : added.error().text);
        adjustSize();
        return;
    }
    m_hint->clearMessage();
    hide();
    Q_EMIT itemAdded(item);
}

void ItemPopover::useRecentItem()
{
    const QTreeWidgetItem *row = m_catalogue->currentItem();
    if (!row)
        return;
    const auto *entry = static_cast<const Record *>(row->data(0, Qt::UserRole).value<void *>());
    setFields(m_app.items().addItemRecent(*entry));
    m_hint->clearMessage();
    m_tabs->setCurrentIndex(EntryTab);
    m_quantity->setFocus();
    m_quantity->selectAll();
}

} // namespace tabo
