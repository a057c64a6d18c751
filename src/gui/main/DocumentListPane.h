#pragma once

#include <QWidget>

class QLabel;
class QTableView;

namespace tabo {

class AppController;
class DocumentTableModel;
class Record;

// The document list of the main window. The table's selection is the
// controller's current document, in both directions.
class DocumentListPane : public QWidget
{
    Q_OBJECT

public:
    explicit DocumentListPane(AppController &app, QWidget *parent = nullptr);

    DocumentTableModel *model() const { return m_model; }
    QTableView *view() const { return m_view; }

private:
    void selectionMoved();
    void showCurrentInvoice(Record *invoice);
    void listReloaded();

    AppController &m_app;
    DocumentTableModel *m_model = nullptr;
    QTableView *m_view;
    QLabel *m_emptyHint = nullptr;
    bool m_following = false; // the selection is being set from the controller
};

} // namespace tabo
