#include "gui/DocumentTableModel.h"

#include "app/AppController.h"
#include "app/OutputCommands.h"
#include "domain/Record.h"
#include "render/Formatters.h"

#include <QColor>
#include <QLocale>

namespace tabo {

DocumentTableModel::DocumentTableModel(AppController &app, QObject *parent)
    : QAbstractTableModel(parent)
    , m_app(app)
{
    connect(&m_app, &AppController::storeOpened, this, &DocumentTableModel::reload);
    connect(&m_app, &AppController::listChanged, this, &DocumentTableModel::reload);
    // The summary pass may turn sent invoices overdue, and a recalculation
    // changes totals: both show in rows that are already there.
    connect(&m_app, &AppController::summaryChanged, this, &DocumentTableModel::refreshFigures);
    m_app.managedObjectContext();
}

void DocumentTableModel::reload()
{
    // The controller has already changed the list when it signals, so the
    // view is told to forget everything rather than given row ranges.
    beginResetModel();
    endResetModel();
}

void DocumentTableModel::refreshFigures()
{
    if (const int rows = rowCount(); rows > 0)
        Q_EMIT dataChanged(index(0, Total), index(rows - 1, Status));
}

int DocumentTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_app.documentList().arranged().size());
}

int DocumentTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

Record *DocumentTableModel::recordAt(int row) const
{
    const auto &rows = m_app.documentList().arranged();
    return row >= 0 && row < rows.size() ? rows.at(row) : nullptr;
}

int DocumentTableModel::rowOf(const Record *document) const
{
    return document ? int(m_app.documentList().arranged().indexOf(document)) : -1;
}

QString DocumentTableModel::statusText(const Record &document)
{
    if (document.integer(Invoice::kind) != 1)
        return tr("Quote");
    switch (document.integer(Invoice::status)) {
    case 1:
        return tr("Sent");
    case 2:
        return tr("Overdue");
    case 3:
        return tr("Paid");
    case 4:
        return tr("Partly paid");
    default:
        return tr("Created");
    }
}

QString DocumentTableModel::dateText(Date date) const
{
    if (!date.isValid())
        return {};
    // Until the first-start assistant has installed a date pattern there is
    // none, and a blank column would look like missing dates.
    const QString text = m_app.getPatternDateStringFromDate(date);
    return text.isEmpty() ? QLocale().toString(date.toDateTime().toLocalTime().date(), QLocale::ShortFormat) : text;
}

QVariant DocumentTableModel::alignment(int column)
{
    // The status is centred so that it does not run into the right-aligned total.
    Qt::Alignment horizontal = Qt::AlignLeft;
    if (column == Total)
        horizontal = Qt::AlignRight;
    else if (column == Status)
        horizontal = Qt::AlignHCenter;
    return QVariant::fromValue(horizontal | Qt::AlignVCenter);
}

QVariant DocumentTableModel::data(const QModelIndex &index, int role) const
{
    const Record *doc = recordAt(index.row());
    if (!doc)
        return {};
    const bool invoice = doc->integer(Invoice::kind) == 1;
    switch (role) {
    case Qt::DisplayRole:
        switch (index.column()) {
        case Number:
            return doc->text(Invoice::number);
        case DateColumn:
            return dateText(doc->date(Invoice::date));
        case Client:
            return doc->text(Invoice::customerName);
        case Title:
            return doc->text(Invoice::title);
        case Total:
            // As the printed documents show it.
            return m_app.outputs().formatters().stringFromNumber(doc->num(Invoice::amount));
        case Status:
            return statusText(*doc);
        }
        break;
    case Qt::TextAlignmentRole:
        return alignment(index.column());
    case Qt::ForegroundRole:
        if (index.column() == Status && invoice) {
            const int status = doc->integer(Invoice::status);
            if (status == 2)
                return QColor(196, 43, 28);
            if (status == 3)
                return QColor(36, 128, 58);
        }
        break;
    }
    return {};
}

QVariant DocumentTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(section);
    if (role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Number:
        return tr("Number");
    case DateColumn:
        return tr("Date");
    case Client:
        return tr("Client");
    case Title:
        return tr("Title");
    case Total:
        return tr("Total");
    case Status:
        return tr("Status");
    }
    return {};
}

} // namespace tabo
