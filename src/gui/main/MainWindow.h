#pragma once

#include <QList>
#include <QMainWindow>
#include <QTimer>

#include <functional>

class QAction;
class QDialog;
class QLineEdit;
class QMenu;
class QSplitter;
class QToolBar;

namespace tabo {

class AppController;
class CatalogueWindow;
class ReportWindow;
class ScheduleWindow;
class DesignChoiceSheet;
class DocumentActions;
class DocumentEditor;
class DocumentListPane;
class InstanceBus;
class ExportSheet;
class FileMenu;
class FilterButton;
class LetterSheet;
class NotificationSheet;
class PreviewWindow;
class QVPreferencePanel;
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

    // A request from outside (another `tabo`, a desktop action): carried out
    // in order once no dialog is open, never dropped.
    void whenFree(std::function<void()> request);
    // The window to the front, restored if minimised.
    void bringForward();
    // Files from the desktop or another `tabo`: each as the controller
    // opens a file from outside.
    void openFiles(const QStringList &paths);
    // Carries out what other `tabo` processes hand over on the session bus.
    void takeRequestsFrom(InstanceBus &bus);

    DocumentListPane *documentList() const { return m_list; }
    DocumentEditor *editor() const { return m_editor; }
    DocumentActions *documentActions() const { return m_actions; }
    FileMenu *fileMenu() const { return m_fileMenu; }
    FilterButton *filterButton() const { return m_filterButton; }
    QLineEdit *searchField() const { return m_search; }
    QAction *newInvoiceAction() const { return m_newInvoice; }
    QAction *newQuoteAction() const { return m_newQuote; }
    QAction *quitAction() const { return m_quit; }
    PreviewWindow *previewWindow() const { return m_preview; }
    ExportSheet *exportSheet() const { return m_exportSheet; }
    LetterSheet *letterSheet() const { return m_letterSheet; }
    DesignChoiceSheet *designChoiceSheet() const { return m_designSheet; }
    QAction *preferencesAction() const { return m_preferences; }
    QAction *remindAction() const { return m_remind; }
    NotificationSheet *notificationSheet() const { return m_notificationSheet; }
    // Built on first use.
    QVPreferencePanel *preferencePanel();
    CatalogueWindow *catalogueWindow();
    ReportWindow *reportWindow();
    // Documents ▸ Repeat Invoice…; made on first use.
    ScheduleWindow *scheduleWindow();

protected:
    // Every quit, from the menu or the window's close button, ends here.
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void showHelp(QDialog *dialog);
    void restoreLayout();
    void saveLayout();
    void updateTitle();
    void createActions();
    void createToolBar();
    void createOutputActions();
    QAction *addOutputAction(const QString &icon, const QString &text, const char *name, const QKeySequence &key);
    void openExport(int kind, QWidget *window);
    void openLetter(bool reminder);
    void updateOutputCommands();
    void terminateNow();
    void updateCommands();
    void createRemindAction(QToolBar *bar);
    void updateRemindAction();
    void newDocument(bool invoice);
    void runWaitingRequests();
    void selectNewestDocument();

    AppController &m_app;
    DocumentListPane *m_list = nullptr;
    SummaryBar *m_summary = nullptr;
    DocumentEditor *m_editor = nullptr;
    DocumentActions *m_actions = nullptr;
    FileMenu *m_fileMenu = nullptr;
    QLineEdit *m_search = nullptr;
    CatalogueWindow *m_catalogue = nullptr;
    ReportWindow *m_report = nullptr;
    ScheduleWindow *m_schedules = nullptr;
    QSplitter *m_split = nullptr;
    FilterButton *m_filterButton = nullptr;
    QAction *m_newInvoice = nullptr;
    QAction *m_newQuote = nullptr;
    QAction *m_quit = nullptr;
    QList<QAction *> m_outputActions;
    QAction *m_previewAction = nullptr;
    QAction *m_printAction = nullptr;
    QAction *m_savePdfAction = nullptr;
    QAction *m_emailAction = nullptr;
    PreviewWindow *m_preview = nullptr;
    ExportSheet *m_exportSheet = nullptr;
    LetterSheet *m_letterSheet = nullptr;
    DesignChoiceSheet *m_designSheet = nullptr;
    QAction *m_preferences = nullptr;
    QAction *m_remind = nullptr;
    QMenu *m_documentsMenu = nullptr;
    QWidget *m_remindButton = nullptr;
    NotificationSheet *m_notificationSheet = nullptr;
    QVPreferencePanel *m_preferencePanel = nullptr;
    QList<std::function<void()>> m_requests;
    QTimer m_requestTimer;
    bool m_quitDecided = false;
};

} // namespace tabo
