#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QFormLayout;
class QLabel;
class QLineEdit;

namespace tabo {

class AppController;
class FieldBinder;
class Record;

// When the document was written, is due and went out, and whether it is paid.
class DatesPage : public QWidget
{
    Q_OBJECT

public:
    explicit DatesPage(AppController &app, QWidget *parent = nullptr);

    void showDocument(Record *document);
    void commitPending();

private:
    void statusChosen(int status);

    AppController &m_app;
    FieldBinder *m_binder;
    QFormLayout *m_form;
    QLabel *m_dueLabel;
    QDateEdit *m_due;
    QCheckBox *m_isDispatched;
    QDateEdit *m_dispatched;
    QComboBox *m_status;
    QLineEdit *m_paidAmount;
    int m_paidRow = 0;
};

} // namespace tabo
