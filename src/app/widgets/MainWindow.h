#pragma once

#include <QMainWindow>

class QAction;

namespace tabo {

class AppController;
class DocumentActions;
class DocumentEditor;
class DocumentListPane;
class FileMenu;
class FilterButton;
class SummaryBar;

// The main window: the document list with its filter button and summary, and
// the editor of the selected document under it. Every command goes to the
// controller; the window redraws on its signals.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    // Building the window opens the store (the list asks for it).
    explicit MainWindow(AppController &app, QWidget *parent = nullptr);

    DocumentListPane *documentList() const { return m_list; }
    DocumentEditor *editor() const { return m_editor; }
    DocumentActions *documentActions() const { return m_actions; }
    FileMenu *fileMenu() const { return m_fileMenu; }
    FilterButton *filterButton() const { return m_filterButton; }
    QAction *newInvoiceAction() const { return m_newInvoice; }
    QAction *newQuoteAction() const { return m_newQuote; }
    QAction *quitAction() const { return m_quit; }

protected:
    // Every quit, from the menu or the window's close button, ends here.
    void closeEvent(QCloseEvent *event) override;

private:
    void createActions();
    void createToolBar();
    void terminateNow();
    void updateCommands();
    void newDocument(bool invoice);
    void selectNewestDocument();

    AppController &m_app;
    DocumentListPane *m_list = nullptr;
    SummaryBar *m_summary = nullptr;
    DocumentEditor *m_editor = nullptr;
    DocumentActions *m_actions = nullptr;
    FileMenu *m_fileMenu = nullptr;
    FilterButton *m_filterButton = nullptr;
    QAction *m_newInvoice = nullptr;
    QAction *m_newQuote = nullptr;
    QAction *m_quit = nullptr;
    bool m_quitDecided = false;
};

} // namespace tabo
