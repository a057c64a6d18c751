#include "gui/main/DocumentTableModel.h"

#include "app/AppController.h"
#include "app/OutputCommands.h"
#include "domain/Contacts.h"
#include "domain/Record.h"
#include "gui/widgets/Formats.h"
#include "render/Formatters.h"

#include <QCollator>
#include <QColor>
#include <QLocale>

#include <cmath>
#include <vector>

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
    m_app.store();
}

void DocumentTableModel::reload()
{
    // The controller has already changed the list when it signals, so the
    // view is told to forget everything rather than given row ranges.
    beginResetModel();
    applySort();
    endResetModel();
}

void DocumentTableModel::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    reload();
}

void DocumentTableModel::applySort()
{
    m_sorted.clear();
    if (m_sortColumn == DateColumn && m_sortOrder == Qt::DescendingOrder)
        return;
    const QList<Record *> &rows = m_app.documentList().shown();
    // Keys are made once per row: a comparison must stay cheap for a
    // hundred thousand rows.
    QCollator collator;
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    struct Row
    {
        Record *record;
        QCollatorSortKey text;
        double number;
        qsizetype position;
    };
    std::vector<Row> keyed;
    keyed.reserve(std::size_t(rows.size()));
    for (qsizetype i = 0; i < rows.size(); ++i) {
        Record *r = rows.at(i);
        QString text;
        double number = 0;
        switch (m_sortColumn) {
        case Number: text = r->text(Invoice::number); break;
        case Client: text = clientText(*r); break;
        case Subject: text = subjectText(*r); break;
        case Status: text = statusText(*r); break;
        case Total: number = r->num(Invoice::amount); break;
        default: number = -double(i); break; // the list's order is newest first
        }
        keyed.push_back({r, collator.sortKey(text), std::isfinite(number) ? number : 0.0, i});
    }
    const bool descending = m_sortOrder == Qt::DescendingOrder;
    const bool byText = m_sortColumn == Number || m_sortColumn == Client || m_sortColumn == Subject
                        || m_sortColumn == Status;
    std::stable_sort(keyed.begin(), keyed.end(), [&](const Row &a, const Row &b) {
        const int c = byText ? a.text.compare(b.text) : (a.number < b.number ? -1 : a.number > b.number ? 1 : 0);
        return descending ? c > 0 : c < 0;
    });
    m_sorted.reserve(rows.size());
    for (const Row &row : keyed)
        m_sorted.append(row.record);
}

QString DocumentTableModel::clientText(const Record &document)
{
    return Contacts::clientOf(document);
}

QString DocumentTableModel::subjectText(const Record &document)
{
    const QString subject = document.text(Invoice::subject).trimmed();
    return subject.isEmpty() ? document.text(Invoice::title) : subject;
}

void DocumentTableModel::refreshFigures()
{
    if (const int rows = rowCount(); rows > 0)
        Q_EMIT dataChanged(index(0, Total), index(rows - 1, Status));
}

int DocumentTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_app.documentList().shown().size());
}

int DocumentTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

Record *DocumentTableModel::recordAt(int row) const
{
    const auto &rows = m_sorted.isEmpty() ? m_app.documentList().shown() : m_sorted;
    return row >= 0 && row < rows.size() ? rows.at(row) : nullptr;
}

int DocumentTableModel::rowOf(const Record *document) const
{
    const auto &rows = m_sorted.isEmpty() ? m_app.documentList().shown() : m_sorted;
    return document ? int(rows.indexOf(document)) : -1;
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
            return Formats::date(doc->date(Invoice::date));
        case Client:
            return clientText(*doc);
        case Subject:
            return subjectText(*doc);
        case Total:
            // As the editor shows it: one layout of amounts in the window.
            return Formats::money(doc->num(Invoice::amount), doc->text(Invoice::currency));
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
    case Subject:
        return tr("Subject");
    case Total:
        return tr("Total");
    case Status:
        return tr("Status");
    }
    return {};
}

} // namespace tabo
