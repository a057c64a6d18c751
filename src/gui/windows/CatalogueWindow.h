#pragma once

#include <QDialog>

class QLineEdit;
class QPushButton;
class QTableWidget;
class QTableWidgetItem;

namespace tabo {

class AppController;

// Items ▸ Catalogue…: the remembered articles, searched, edited in place
// (title, price, unit, article number, taxes) and cleaned up.
class CatalogueWindow : public QDialog
{
    Q_OBJECT

public:
    enum Column { Title, Price, Unit, Sku, Tax1, Tax2, Tax3, ColumnCount };

    explicit CatalogueWindow(AppController &app, QWidget *parent = nullptr);

    QLineEdit *searchField() const { return m_search; }
    QTableWidget *table() const { return m_table; }
    QPushButton *deleteButton() const { return m_delete; }
    void reload();

private:
    void cellEdited(QTableWidgetItem *cell);
    void deleteSelected();

    AppController &m_app;
    QLineEdit *m_search = nullptr;
    QTableWidget *m_table = nullptr;
    QPushButton *m_delete = nullptr;
    bool m_loading = false;
};

} // namespace tabo
