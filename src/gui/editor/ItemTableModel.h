#pragma once

#include <QAbstractTableModel>
#include <QList>

namespace tabo {

class AppController;
class Record;

// The lines of the current document in the order they print. Title,
// quantity and unit price are edited in place through the controller's
// item commands, which recalculate the document.
class ItemTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Title, Quantity, Unit, UnitPrice, Taxes, Amount, ColumnCount };

    explicit ItemTableModel(AppController &app, QObject *parent = nullptr);

    void setDocument(Record *document);
    // Re-reads the lines after a change of the document.
    void refresh();
    Record *itemAt(int row) const;
    int rowOf(const Record *item) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

Q_SIGNALS:
    // An edit was refused; the line is unchanged.
    void editRefused(const QString &message);

private:
    QList<Record *> currentLines() const;
    QString taxesText(const Record &item) const;
    static QVariant alignment(int column);

    AppController &m_app;
    Record *m_doc = nullptr;
    QList<Record *> m_lines;
    bool m_editing = false;
};

} // namespace tabo
