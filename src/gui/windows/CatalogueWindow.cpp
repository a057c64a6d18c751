#include "gui/windows/CatalogueWindow.h"

#include "app/AppController.h"
#include "app/ItemCommands.h"
#include "domain/Record.h"
#include "gui/widgets/Accessibility.h"
#include "gui/widgets/Formats.h"
#include "gui/widgets/HintLabel.h"
#include "gui/widgets/ScreenFit.h"
#include "prefs/Preferences.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tabo {

namespace {

constexpr int kRecordRole = Qt::UserRole;

const char *const kKeys[CatalogueWindow::ColumnCount] = {"title", "baseAmount", "unit", "sku",
                                                          "isTax1Applied", "isTax2Applied", "isTax3Applied"};
const int kAttrs[CatalogueWindow::ColumnCount] = {RecentItem::title, RecentItem::baseAmount, RecentItem::unit,
                                                  RecentItem::sku, RecentItem::isTax1Applied,
                                                  RecentItem::isTax2Applied, RecentItem::isTax3Applied};

} // namespace

CatalogueWindow::CatalogueWindow(AppController &app, QWidget *parent)
    : QDialog(parent)
    , m_app(app)
{
    setObjectName(QStringLiteral("catalogueWindow"));
    setWindowTitle(tr("Catalogue"));
    m_search = new QLineEdit(this);
    m_search->setObjectName(QStringLiteral("catalogueSearch"));
    m_search->setAccessibleName(tr("Search"));
    m_search->setPlaceholderText(tr("Search title, article number or unit"));
    m_search->setClearButtonEnabled(true);
    connect(m_search, &QLineEdit::textChanged, this, &CatalogueWindow::reload);

    m_table = new QTableWidget(0, ColumnCount, this);
    m_table->setObjectName(QStringLiteral("catalogueTable"));
    m_table->setAccessibleName(tr("Catalogue"));
    const Preferences &prefs = m_app.prefs();
    const auto taxTitle = [&](Preferences::Key key, int n) {
        const QString t = prefs.string(key);
        return t.isEmpty() ? tr("Tax %1").arg(n) : t;
    };
    m_table->setHorizontalHeaderLabels({tr("Title"), tr("Price"), tr("Unit"), tr("Article number"),
                                        taxTitle(Preferences::tax1Title, 1), taxTitle(Preferences::tax2Title, 2),
                                        taxTitle(Preferences::tax3Title, 3)});
    m_table->horizontalHeader()->setSectionResizeMode(Title, QHeaderView::Stretch);
    m_table->verticalHeader()->hide();
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed
                             | QAbstractItemView::AnyKeyPressed);
    connect(m_table, &QTableWidget::itemChanged, this, &CatalogueWindow::cellEdited);

    auto *hint = new HintLabel(this);
    hint->setObjectName(QStringLiteral("catalogueHint"));

    m_delete = new QPushButton(tr("Delete"), this);
    m_delete->setObjectName(QStringLiteral("catalogueDelete"));
    m_delete->setEnabled(false);
    connect(m_delete, &QPushButton::clicked, this, &CatalogueWindow::deleteSelected);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { m_delete->setEnabled(m_table->selectionModel()->hasSelection()); });
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    buttons->addButton(m_delete, QDialogButtonBox::ActionRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_search);
    layout->addWidget(m_table, 1);
    layout->addWidget(hint);
    layout->addWidget(buttons);
    ScreenFit::resize(this, QSize(fontMetrics().horizontalAdvance(QLatin1Char('M')) * 60, fontMetrics().height() * 28));
    reload();
    Accessibility::labelFields(this);
}

void CatalogueWindow::reload()
{
    m_loading = true;
    const QList<Record *> entries = m_app.items().catalogue(m_search->text());
    m_table->setRowCount(int(entries.size()));
    const QString currency = m_app.prefs().string(Preferences::prefsCurrency);
    for (int row = 0; row < entries.size(); ++row) {
        Record *entry = entries.at(row);
        for (int column = 0; column < ColumnCount; ++column) {
            auto *cell = new QTableWidgetItem;
            cell->setData(kRecordRole, QVariant::fromValue(static_cast<void *>(entry)));
            if (column >= Tax1) {
                cell->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
                cell->setCheckState(entry->boolean(kAttrs[column]) ? Qt::Checked : Qt::Unchecked);
            } else if (column == Price) {
                cell->setText(Formats::plainMoney(entry->num(RecentItem::baseAmount)));
                cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
                cell->setToolTip(Formats::money(entry->num(RecentItem::baseAmount), currency));
            } else {
                cell->setText(entry->text(kAttrs[column]));
            }
            m_table->setItem(row, column, cell);
        }
    }
    m_loading = false;
    m_delete->setEnabled(m_table->selectionModel()->hasSelection());
}

void CatalogueWindow::cellEdited(QTableWidgetItem *cell)
{
    if (m_loading)
        return;
    auto *entry = static_cast<Record *>(cell->data(kRecordRole).value<void *>());
    const int column = cell->column();
    const QVariant value = column >= Tax1 ? QVariant(cell->checkState() == Qt::Checked) : QVariant(cell->text());
    auto *hint = findChild<HintLabel *>(QStringLiteral("catalogueHint"));
    if (const Error e = m_app.items().editCatalogueEntry(entry, QString::fromLatin1(kKeys[column]), value)) {
        hint->showMessage(e.text);
        m_loading = true;
        // The stored value stays, and the cell says so.
        if (column == Price)
            cell->setText(Formats::plainMoney(entry->num(RecentItem::baseAmount)));
        m_loading = false;
        return;
    }
    hint->clearMessage();
    if (column == Price) {
        m_loading = true;
        cell->setText(Formats::plainMoney(entry->num(RecentItem::baseAmount)));
        m_loading = false;
    }
}

void CatalogueWindow::deleteSelected()
{
    QList<Record *> entries;
    for (const QModelIndex &index : m_table->selectionModel()->selectedRows())
        entries << static_cast<Record *>(m_table->item(index.row(), Title)->data(kRecordRole).value<void *>());
    if (m_app.items().deleteCatalogueEntries(entries))
        reload();
}

} // namespace tabo
