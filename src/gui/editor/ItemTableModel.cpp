#include "gui/editor/ItemTableModel.h"

#include "app/AppController.h"
#include "app/ItemCommands.h"
#include "domain/Record.h"
#include "gui/widgets/Formats.h"

#include <QTimer>

namespace tabo {

ItemTableModel::ItemTableModel(AppController &app, QObject *parent)
    : QAbstractTableModel(parent)
    , m_app(app)
{
}

QList<Record *> ItemTableModel::currentLines() const
{
    return m_doc ? m_app.items().sortedItems(*m_doc) : QList<Record *>();
}

void ItemTableModel::setDocument(Record *document)
{
    beginResetModel();
    m_doc = document;
    m_lines = currentLines();
    endResetModel();
}

void ItemTableModel::refresh()
{
    const QList<Record *> lines = currentLines();
    if (lines == m_lines) {
        if (!m_lines.isEmpty())
            Q_EMIT dataChanged(index(0, 0), index(int(m_lines.size()) - 1, ColumnCount - 1));
        return;
    }
    // An edit in place may re-sort the lines; the view must not be reset
    // while it is still handing the edit over.
    if (m_editing) {
        QTimer::singleShot(0, this, &ItemTableModel::refresh);
        return;
    }
    beginResetModel();
    m_lines = lines;
    endResetModel();
}

Record *ItemTableModel::itemAt(int row) const
{
    return row >= 0 && row < m_lines.size() ? m_lines.at(row) : nullptr;
}

int ItemTableModel::rowOf(const Record *item) const
{
    return item ? int(m_lines.indexOf(item)) : -1;
}

int ItemTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_lines.size());
}

int ItemTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString ItemTableModel::taxesText(const Record &item) const
{
    QStringList rates;
    const int applied[] = { Item::isTax1Applied, Item::isTax2Applied, Item::isTax3Applied };
    const int percent[] = { Item::tax1Percent, Item::tax2Percent, Item::tax3Percent };
    for (int k = 0; k < 3; ++k)
        if (item.boolean(applied[k]))
            rates << Formats::percent(item.num(percent[k]));
    return rates.join(QStringLiteral(" + "));
}

QVariant ItemTableModel::alignment(int column)
{
    const bool number = column == Quantity || column == UnitPrice || column == Taxes || column == Amount;
    return QVariant::fromValue((number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

QVariant ItemTableModel::data(const QModelIndex &index, int role) const
{
    const Record *item = itemAt(index.row());
    if (!item || !m_doc)
        return {};
    const QString currency = m_doc->text(Invoice::currency);
    if (role == Qt::DisplayRole) {
        switch (index.column()) {
        case Title:
            return item->text(Item::title);
        case Quantity:
            return Formats::quantity(item->num(Item::unitCount));
        case Unit:
            return item->text(Item::unit);
        case UnitPrice:
            return Formats::money(item->num(Item::baseAmount), currency);
        case Taxes:
            return taxesText(*item);
        case Amount:
            return Formats::money(item->num(Item::amount), currency);
        }
    } else if (role == Qt::EditRole) {
        switch (index.column()) {
        case Title:
            return item->text(Item::title);
        case Quantity:
            return Formats::quantity(item->num(Item::unitCount));
        case UnitPrice:
            return Formats::plainMoney(item->num(Item::baseAmount));
        }
    } else if (role == Qt::ToolTipRole && index.column() == Title) {
        const QString subtitle = item->text(Item::subtitle);
        return subtitle.isEmpty() ? QVariant() : QVariant(subtitle);
    } else if (role == Qt::TextAlignmentRole) {
        return alignment(index.column());
    }
    return {};
}

QVariant ItemTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(section);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Title:
        return tr("Item");
    case Quantity:
        return tr("Quantity");
    case Unit:
        return tr("Unit");
    case UnitPrice:
        return tr("Unit Price");
    case Taxes:
        return tr("Taxes");
    case Amount:
        return tr("Amount");
    }
    return {};
}

Qt::ItemFlags ItemTableModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags f = QAbstractTableModel::flags(index);
    const int c = index.column();
    if (c == Title || c == Quantity || c == UnitPrice)
        f |= Qt::ItemIsEditable;
    return f;
}

bool ItemTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    Record *item = itemAt(index.row());
    if (!item || role != Qt::EditRole)
        return false;
    QString key;
    switch (index.column()) {
    case Title:
        key = QStringLiteral("title");
        break;
    case Quantity:
        key = QStringLiteral("unitCount");
        break;
    case UnitPrice:
        key = QStringLiteral("baseAmount");
        break;
    default:
        return false;
    }
    if (data(index, Qt::EditRole) == value)
        return false;
    m_editing = true;
    const Error refused = m_app.items().editItem(item, key, value);
    m_editing = false;
    if (refused) {
        Q_EMIT editRefused(refused.text);
        return false;
    }
    refresh();
    return true;
}

} // namespace tabo
