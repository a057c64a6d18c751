#pragma once

#include <QWidget>

namespace tabo {

class AppController;
class FieldBinder;
class Record;

// The document's text blocks: conditions, footer, notes and the extra texts.
class TextsPage : public QWidget
{
    Q_OBJECT

public:
    explicit TextsPage(AppController &app, QWidget *parent = nullptr);

    void showDocument(Record *document);
    void commitPending();

private:
    FieldBinder *m_binder;
};

} // namespace tabo
