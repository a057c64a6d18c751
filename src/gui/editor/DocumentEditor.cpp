#include "gui/editor/DocumentEditor.h"

#include "app/AppController.h"
#include "domain/Record.h"
#include "gui/editor/ClientPage.h"
#include "gui/editor/DatesPage.h"
#include "gui/editor/DocumentHeader.h"
#include "gui/editor/ItemsPage.h"
#include "gui/editor/TextsPage.h"

#include <QLabel>
#include <QStackedWidget>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tabo {

DocumentEditor::DocumentEditor(AppController &app, QWidget *parent)
    : QWidget(parent)
    , m_app(app)
    , m_stack(new QStackedWidget(this))
    , m_empty(new QLabel(tr("Select a document in the list, or create one."), this))
    , m_header(new DocumentHeader(this))
    , m_pages(new QTabWidget(this))
    , m_client(new ClientPage(app, this))
    , m_items(new ItemsPage(app, this))
    , m_texts(new TextsPage(app, this))
    , m_dates(new DatesPage(app, this))
{
    setObjectName(QStringLiteral("documentEditor"));
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setForegroundRole(QPalette::PlaceholderText);
    m_pages->setObjectName(QStringLiteral("editorPages"));
    m_pages->setDocumentMode(true);
    m_pages->addTab(m_client, tr("Client"));
    m_pages->addTab(m_items, tr("Items"));
    m_pages->addTab(m_texts, tr("Texts"));
    m_pages->addTab(m_dates, tr("Dates and status"));
    m_pages->setCurrentIndex(Items);
    auto *document = new QWidget(this);
    auto *documentLayout = new QVBoxLayout(document);
    documentLayout->setContentsMargins(0, 0, 0, 0);
    documentLayout->setSpacing(0);
    documentLayout->addWidget(m_header);
    documentLayout->addWidget(m_pages, 1);
    m_stack->addWidget(m_empty);
    m_stack->addWidget(document);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_stack);

    connect(&m_app, &AppController::currentInvoiceChanged, this, &DocumentEditor::showDocument);
    // A command may change the document anywhere (a template, a recalculation,
    // the summary pass turning it overdue): the pages follow at once.
    connect(&m_app, &AppController::listChanged, this, &DocumentEditor::refresh);
    connect(&m_app, &AppController::summaryChanged, this, &DocumentEditor::refresh);
    showDocument(m_app.currentInvoice());
}

void DocumentEditor::showDocument(Record *document)
{
    // What was typed but not yet finished belongs to the document it was
    // typed into. The same document shown again (news from another program)
    // keeps the unfinished edit; it is finished, and compared with the news,
    // when the person leaves the field.
    if (document != m_doc)
        commitPending();
    m_doc = document;
    m_stack->setCurrentIndex(document ? 1 : 0);
    m_header->showDocument(document);
    m_client->showDocument(document);
    m_items->showDocument(document);
    m_texts->showDocument(document);
    m_dates->showDocument(document);
}

void DocumentEditor::commitPending()
{
    // The commits change the list; the pages are loaded by the caller.
    m_committing = true;
    m_client->commitPending();
    m_texts->commitPending();
    m_dates->commitPending();
    m_committing = false;
}

void DocumentEditor::refresh()
{
    if (m_committing)
        return;
    if (m_doc != m_app.currentInvoice()) {
        showDocument(m_app.currentInvoice());
        return;
    }
    m_header->showDocument(m_doc);
    m_client->showDocument(m_doc);
    m_items->refresh();
    m_texts->showDocument(m_doc);
    m_dates->showDocument(m_doc);
}

void DocumentEditor::showPage(Page page)
{
    m_pages->setCurrentIndex(page);
}

void DocumentEditor::beginNewDocument()
{
    showPage(Client);
    m_client->focusFirstField();
}

} // namespace tabo
