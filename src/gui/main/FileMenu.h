#pragma once

#include <QObject>

class QAction;
class QMenu;
class QWidget;

namespace tabo {

class AccountingExportSheet;
class AppController;
class DocumentEditor;

// The File menu: export and import of documents, backups and restores, and
// the hand-over to the accounting programs. Real dialogs come from the
// controller's Interaction.
class FileMenu : public QObject
{
    Q_OBJECT

public:
    FileMenu(AppController &app, DocumentEditor *editor, QWidget *window);

    // Fills `menu` with the commands and ends it with `quit`.
    void populate(QMenu *menu, QAction *quit);

    QAction *exportDocument() const { return m_exportDocument; }
    // Back up and restore the database, documents, catalogue; the automatic backup.
    QList<QAction *> backupActions() const;
    QAction *importDocument() const { return m_importDocument; }
    QAction *sendToVorlux() const { return m_sendToVorlux; }
    QAction *sendToQuandrella() const { return m_sendToQuandrella; }
    // Created on first use.
    AccountingExportSheet *accountingSheet();

    void update();
    // The readable page of a received e-invoice, in a window of its own.
    void showReceived(const QString &pdf);

private:
    QAction *create(const QString &text, const char *name);
    void importInvoice();
    void openAccountingSheet(int sendToTag);

    AppController &m_app;
    DocumentEditor *m_editor;
    QWidget *m_window;
    AccountingExportSheet *m_sheet = nullptr;
    QList<QAction *> m_storeActions;
    QAction *m_exportDocument;
    QAction *m_exportShown;
    QAction *m_exportAll;
    QAction *m_exportDump;
    QAction *m_importDocument;
    QAction *m_backupDatabase;
    QAction *m_restoreDatabase;
    QAction *m_backupDocuments;
    QAction *m_restoreDocuments;
    QAction *m_backupCatalogue;
    QAction *m_restoreCatalogue;
    QAction *m_restoreAutomatic;
    QAction *m_sendToVorlux;
    QAction *m_sendToQuandrella;
};

} // namespace tabo
