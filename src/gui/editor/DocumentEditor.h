#pragma once

#include <QWidget>

class QLabel;
class QStackedWidget;
class QTabWidget;

namespace tabo {

class AppController;
class ClientPage;
class DatesPage;
class DocumentHeader;
class ItemsPage;
class Record;
class TextsPage;

// The current document in pages. It shows what the record holds and follows
// every change; edits go to the controller.
class DocumentEditor : public QWidget
{
    Q_OBJECT

public:
    enum Page { Client, Items, Texts, Dates };

    explicit DocumentEditor(AppController &app, QWidget *parent = nullptr);

    QTabWidget *pages() const { return m_pages; }
    ClientPage *clientPage() const { return m_client; }
    ItemsPage *itemsPage() const { return m_items; }
    TextsPage *textsPage() const { return m_texts; }
    DatesPage *datesPage() const { return m_dates; }

    void showPage(Page page);
    // A new document starts with its client.
    void beginNewDocument();
    // Writes what is typed but not yet finished (before quitting).
    void commitPending();

private:
    void showDocument(Record *document);
    void refresh();

    AppController &m_app;
    Record *m_doc = nullptr;
    bool m_committing = false;
    QStackedWidget *m_stack;
    QLabel *m_empty;
    DocumentHeader *m_header;
    QTabWidget *m_pages;
    ClientPage *m_client;
    ItemsPage *m_items;
    TextsPage *m_texts;
    DatesPage *m_dates;
};

} // namespace tabo
