#include "gui/main/FileMenu.h"

#include "app/AppController.h"
#include "app/BackupCommands.h"
#include "app/EInvoiceCommands.h"
#include "app/FileCommands.h"
#include "domain/Record.h"
#include "gui/windows/AccountingExportSheet.h"
#include "gui/editor/DocumentEditor.h"
#include "gui/windows/PaymentReviewWindow.h"
#include "gui/windows/PdfPane.h"
#include "gui/widgets/ScreenFit.h"
#include "prefs/Preferences.h"

#include <QAction>
#include <QMenu>
#include <QVBoxLayout>
#include <QWidget>

namespace tabo {

FileMenu::FileMenu(AppController &app, DocumentEditor *editor, QWidget *window)
    : QObject(window)
    , m_app(app)
    , m_editor(editor)
    , m_window(window)
    , m_exportDocument(create(tr("Export Document…"), "actionExportDocument"))
    , m_exportShown(create(tr("Export Shown Documents as XML…"), "actionExportShown"))
    , m_exportAll(create(tr("Export All Documents as XML…"), "actionExportAll"))
    , m_exportDump(create(tr("Export Invoices Dump…"), "actionExportDump"))
    , m_importDocument(create(tr("Import Document…"), "actionImportDocument"))
    , m_backupDatabase(create(tr("Back Up Database…"), "actionBackupDatabase"))
    , m_restoreDatabase(create(tr("Restore Database…"), "actionRestoreDatabase"))
    , m_backupDocuments(create(tr("Back Up Documents…"), "actionBackupDocuments"))
    , m_restoreDocuments(create(tr("Restore Documents…"), "actionRestoreDocuments"))
    , m_backupCatalogue(create(tr("Back Up Catalogue…"), "actionBackupCatalogue"))
    , m_restoreCatalogue(create(tr("Restore Catalogue…"), "actionRestoreCatalogue"))
    , m_restoreAutomatic(create(tr("Restore Automatic Backup…"), "actionRestoreAutomaticBackup"))
    , m_sendToVorlux(create(tr("Send Invoices To Vorlux…"), "actionSendToVorlux"))
    , m_sendToQuandrella(create(tr("Send Invoices To quandrella…"), "actionSendToQuandrella"))
{
    m_exportDocument->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_E));
    m_importDocument->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_O));

    FileCommands &files = m_app.files();
    BackupCommands &backups = m_app.backups();
    connect(&m_app, &AppController::receivedEInvoiceReady, this, &FileMenu::showReceived);
    connect(m_exportDocument, &QAction::triggered, this,
        [this, &files] { files.exportInvoice(int(m_app.prefs().integer(Preferences::exportFormat))); });
    connect(m_exportShown, &QAction::triggered, this, [&files] { files.exportItems(); });
    connect(m_exportAll, &QAction::triggered, this, [&files] { files.exportTaboDataXML(); });
    connect(m_exportDump, &QAction::triggered, this, [&files] { files.exportAsInvoiceFile(); });
    connect(m_importDocument, &QAction::triggered, this, &FileMenu::importInvoice);
    connect(m_backupDatabase, &QAction::triggered, this, [&backups] { backups.backupCompleteTaboData(); });
    connect(m_restoreDatabase, &QAction::triggered, this, [&backups] { backups.restoreCompleteTaboData(); });
    connect(m_backupDocuments, &QAction::triggered, this, [&backups] { backups.backupTaboData(); });
    connect(m_restoreDocuments, &QAction::triggered, this, [&backups] { backups.restoreTaboData(); });
    connect(m_backupCatalogue, &QAction::triggered, this, [&backups] { backups.backupItems(); });
    connect(m_restoreCatalogue, &QAction::triggered, this, [&backups] { backups.restoreItems(); });
    connect(m_restoreAutomatic, &QAction::triggered, this, [&backups] { backups.restoreFromBackup(); });
    connect(m_sendToVorlux, &QAction::triggered, this, [this] { openAccountingSheet(0); });
    connect(m_sendToQuandrella, &QAction::triggered, this, [this] { openAccountingSheet(1); });

    connect(&m_app, &AppController::storeOpened, this, &FileMenu::update);
    connect(&m_app, &AppController::currentInvoiceChanged, this, &FileMenu::update);
    connect(&m_app, &AppController::listChanged, this, &FileMenu::update);
    update();
}

QAction *FileMenu::create(const QString &text, const char *name)
{
    auto *action = new QAction(text, m_window);
    action->setObjectName(QLatin1String(name));
    // Whatever is half-typed in the editor belongs in the file being written.
    connect(action, &QAction::triggered, m_editor, &DocumentEditor::commitPending);
    m_storeActions << action;
    return action;
}

void FileMenu::populate(QMenu *menu, QAction *quit)
{
    menu->addActions({ m_exportDocument, m_exportShown, m_exportAll, m_exportDump, m_importDocument });
    menu->addSeparator();
    auto *received = menu->addAction(tr("Open E-Invoice…"));
    received->setObjectName(QStringLiteral("actionOpenEInvoice"));
    connect(received, &QAction::triggered, this, [this] { showReceived(m_app.einvoices().openReceived()); });
    auto *statement = menu->addAction(tr("Import Bank Statement…"));
    statement->setObjectName(QStringLiteral("actionImportStatement"));
    connect(statement, &QAction::triggered, this, [this] { PaymentReviewWindow::importStatement(m_app, m_window); });
    m_storeActions << statement;
    menu->addSeparator();
    menu->addActions({ m_backupDatabase, m_restoreDatabase, m_backupDocuments, m_restoreDocuments,
        m_backupCatalogue, m_restoreCatalogue, m_restoreAutomatic });
    menu->addSeparator();
    menu->addActions({ m_sendToVorlux, m_sendToQuandrella });
    menu->addSeparator();
    menu->addAction(quit);
}

AccountingExportSheet *FileMenu::accountingSheet()
{
    if (!m_sheet)
        m_sheet = new AccountingExportSheet(m_app, m_window);
    return m_sheet;
}

void FileMenu::update()
{
    const bool store = m_app.hasStore();
    for (QAction *action : std::as_const(m_storeActions))
        action->setEnabled(store);
    m_exportDocument->setEnabled(store && m_app.currentInvoice());
}

void FileMenu::importInvoice()
{
    // The imported document is current now: its client comes first.
    if (m_app.files().importInvoice())
        m_editor->showPage(DocumentEditor::Client);
}

void FileMenu::openAccountingSheet(int sendToTag)
{
    AccountingExportSheet *sheet = accountingSheet();
    if (sheet->isVisible()) {
        sheet->reject();
        return;
    }
    sheet->begin(sendToTag);
}

QList<QAction *> FileMenu::backupActions() const
{
    return {m_backupDatabase, m_restoreDatabase, m_backupDocuments, m_restoreDocuments, m_backupCatalogue,
            m_restoreCatalogue, m_restoreAutomatic};
}

void FileMenu::showReceived(const QString &pdf)
{
    if (pdf.isEmpty())
        return;
    auto *window = new QWidget(m_window, Qt::Window);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setObjectName(QStringLiteral("receivedEInvoiceWindow"));
    window->setWindowTitle(tr("Received E-Invoice"));
    auto *pane = new PdfPane(window);
    auto *layout = new QVBoxLayout(window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(pane);
    pane->load(pdf);
    pane->fitToWidth();
    ScreenFit::resize(window, QSize(760, 900));
    window->show();
}

} // namespace tabo
