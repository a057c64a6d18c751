#pragma once

#include <QAbstractTableModel>

namespace tabo {

class AppController;
class Date;
class Record;

// The document list as a table, read straight from the controller's arranged
// list (newest first). Nothing is cached per row: a view asks only for the
// rows it shows, so 100,000 documents cost no more than a screenful.
class DocumentTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Number, DateColumn, Client, Subject, Total, Status, ColumnCount };

    // Asks the controller for the store, which opens it on first use.
    explicit DocumentTableModel(AppController &app, QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

    Record *recordAt(int row) const;
    int rowOf(const Record *document) const; // -1 when not shown

    static QString statusText(const Record &document);
    // The client as the list names it: the name, else the address's first line.
    static QString clientText(const Record &document);
    // The subject, else the title ("Invoice").
    static QString subjectText(const Record &document);
    // A click on a heading; the date, newest first, is the list's own order.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    static QVariant alignment(int column);
    void reload();
    void refreshFigures();
    void applySort();

    AppController &m_app;
    int m_sortColumn = DateColumn;
    Qt::SortOrder m_sortOrder = Qt::DescendingOrder;
    QList<Record *> m_sorted; // empty while the list's own order stands
};

} // namespace tabo
