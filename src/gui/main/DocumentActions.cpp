#include "gui/main/DocumentActions.h"

#include "app/AppController.h"
#include "app/DocumentCommands.h"
#include "domain/Record.h"
#include "gui/editor/DocumentEditor.h"
#include "gui/editor/ItemsPage.h"

#include <QAction>
#include <QIcon>
#include <QShortcut>
#include <QWidget>

namespace tabo {

DocumentActions::DocumentActions(AppController &app, DocumentEditor *editor, QWidget *window)
    : QObject(window)
    , m_app(app)
    , m_editor(editor)
    , m_window(window)
    , m_duplicate(create(QStringLiteral("edit-copy"), tr("Duplicate"), "actionDuplicate",
          &DocumentActions::duplicateDocument))
    , m_convert(create(QStringLiteral("document-send"), tr("Convert to Invoice"), "actionConvert",
          &DocumentActions::convertDocument))
    , m_cancel(create(QStringLiteral("edit-undo"), tr("Cancel Invoice…"), "actionCancelInvoice",
          &DocumentActions::cancelDocument))
    , m_remove(create(QStringLiteral("edit-delete"), tr("Delete"), "actionDelete", &DocumentActions::deleteDocument))
    , m_addItem(create(QStringLiteral("list-add"), tr("Add Item…"), "actionAddItem", &DocumentActions::addLine))
    , m_deleteItem(create(QStringLiteral("list-remove"), tr("Delete Item"), "actionDeleteItem",
          &DocumentActions::deleteLine))
{
    m_duplicate->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_D));
    m_convert->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
    m_remove->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Backspace));
    m_addItem->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_I));
    m_duplicate->setToolTip(tr("A copy of the selected document with a new number"));
    m_convert->setToolTip(tr("Turn the selected quote into an invoice"));
    m_cancel->setToolTip(tr("A credit note that takes back a sent or paid invoice"));

    connect(&m_app, &AppController::currentInvoiceChanged, this, &DocumentActions::update);
    connect(&m_app, &AppController::listChanged, this, &DocumentActions::update);
    connect(m_editor->itemsPage(), &ItemsPage::selectedItemChanged, this, &DocumentActions::update);
    update();
}

QAction *DocumentActions::create(
    const QString &icon, const QString &text, const char *name, void (DocumentActions::*run)())
{
    auto *action = new QAction(QIcon::fromTheme(icon), text, m_window);
    action->setObjectName(QLatin1String(name));
    connect(action, &QAction::triggered, this, run);
    return action;
}

void DocumentActions::attachDeleteKey(QWidget *list)
{
    auto *key = new QShortcut(QKeySequence::Delete, list);
    key->setContext(Qt::WidgetShortcut);
    connect(key, &QShortcut::activated, m_remove, &QAction::trigger);
}

void DocumentActions::update()
{
    const Record *doc = m_app.currentInvoice();
    m_duplicate->setEnabled(doc);
    m_convert->setEnabled(doc && doc->integer(Invoice::kind) != 1);
    m_cancel->setEnabled(doc && doc->integer(Invoice::kind) == 1 && doc->integer(Invoice::status) != 0
                         && doc->text(Invoice::precedingNumber).isEmpty());
    m_remove->setEnabled(doc);
    m_remove->setText(doc && doc->integer(Invoice::kind) != 1 ? tr("Delete Quote") : tr("Delete Invoice"));
    m_addItem->setEnabled(doc);
    m_deleteItem->setEnabled(doc && m_editor->itemsPage()->selectedItem());
}

void DocumentActions::duplicateDocument()
{
    if (m_app.documents().duplicateInvoice())
        m_editor->beginNewDocument();
}

void DocumentActions::convertDocument()
{
    m_app.documents().convertQuoteToInvoice();
    update();
}

void DocumentActions::cancelDocument()
{
    if (m_app.documents().cancelInvoice())
        m_editor->beginNewDocument();
}

void DocumentActions::deleteDocument()
{
    // The Delete key may arrive while nothing is selected.
    if (m_app.currentInvoice())
        m_app.documents().deleteInvoice();
}

void DocumentActions::addLine()
{
    m_editor->showPage(DocumentEditor::Items);
    m_editor->itemsPage()->toggleItemPopover();
}

void DocumentActions::deleteLine()
{
    m_editor->itemsPage()->deleteSelectedItem();
}

} // namespace tabo
