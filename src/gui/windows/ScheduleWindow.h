#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QPushButton;
class QSpinBox;
class QTableWidget;

namespace tabo {

class AppController;
class Record;

// Documents ▸ Repeat Invoice…: the schedules that write invoices by
// themselves, with pause, resume and remove, and above them a form that
// repeats the current invoice.
class ScheduleWindow : public QWidget
{
    Q_OBJECT

public:
    explicit ScheduleWindow(AppController &app, QWidget *parent = nullptr);

    // Shown for the current invoice (the form is off without one).
    void showFor(Record *invoice);
    void reload();
    QTableWidget *table() const { return m_table; }
    QPushButton *addButton() const { return m_add; }
    QComboBox *unitBox() const { return m_unit; }
    QSpinBox *everyBox() const { return m_every; }
    QDateEdit *fromEdit() const { return m_from; }
    QSpinBox *countBox() const { return m_count; }

private:
    void addSchedule();
    void changeSelected(bool remove);

    AppController &m_app;
    Record *m_invoice = nullptr;
    QLabel *m_source = nullptr;
    QSpinBox *m_every = nullptr;
    QComboBox *m_unit = nullptr;
    QDateEdit *m_from = nullptr;
    QCheckBox *m_useUntil = nullptr;
    QDateEdit *m_until = nullptr;
    QSpinBox *m_count = nullptr;
    QCheckBox *m_send = nullptr;
    QPushButton *m_add = nullptr;
    QTableWidget *m_table = nullptr;
    QPushButton *m_pause = nullptr;
    QPushButton *m_remove = nullptr;
};

} // namespace tabo
