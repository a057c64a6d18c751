#pragma once

#include <QObject>

class QAction;
class QWidget;

namespace tabo {

class AppController;
class DocumentEditor;

// The commands on the current document and its lines, for the menu and the
// toolbar. Each is enabled only where it applies.
class DocumentActions : public QObject
{
    Q_OBJECT

public:
    DocumentActions(AppController &app, DocumentEditor *editor, QWidget *window);

    QAction *duplicate() const { return m_duplicate; }
    QAction *convert() const { return m_convert; }
    QAction *cancelInvoice() const { return m_cancel; }
    QAction *remove() const { return m_remove; }
    QAction *addItem() const { return m_addItem; }
    QAction *deleteItem() const { return m_deleteItem; }

    // The Delete key deletes the document while `list` has the focus.
    void attachDeleteKey(QWidget *list);
    void update();

private:
    QAction *create(const QString &icon, const QString &text, const char *name, void (DocumentActions::*run)());
    void duplicateDocument();
    void convertDocument();
    void cancelDocument();
    void deleteDocument();
    void addLine();
    void deleteLine();

    AppController &m_app;
    DocumentEditor *m_editor;
    QWidget *m_window;
    QAction *m_duplicate;
    QAction *m_convert;
    QAction *m_cancel;
    QAction *m_remove;
    QAction *m_addItem;
    QAction *m_deleteItem;
};

} // namespace tabo
