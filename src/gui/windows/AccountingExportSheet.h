#pragma once

#include <QDialog>

class QComboBox;
class QDate;
class QDateEdit;
class QLabel;

namespace tabo {

class AppController;

// The sheet that hands invoices to an accounting program: a date range, which
// invoices and how their lines go over, and how many that selects. Every
// control writes its preference and selects again at once.
class AccountingExportSheet : public QDialog
{
    Q_OBJECT

public:
    explicit AccountingExportSheet(AppController &app, QWidget *parent = nullptr);

    // Takes the list's invoices for the program named by `sendToTag` (0
    // Vorlux, other quandrella) and shows the sheet on its window.
    void begin(int sendToTag);

    QDateEdit *beginDateEdit() const { return m_begin; }
    QDateEdit *endDateEdit() const { return m_end; }
    QComboBox *kindCombo() const { return m_kind; }
    QComboBox *itemsKindCombo() const { return m_itemsKind; }
    QLabel *countLabel() const { return m_count; }

private:
    void load();
    void rangeChanged();
    void choiceChanged();
    void select();
    void send();

    AppController &m_app;
    QLabel *m_title;
    QDateEdit *m_begin;
    QDateEdit *m_end;
    QComboBox *m_kind;
    QComboBox *m_itemsKind;
    QLabel *m_count;
    bool m_loading = false;
};

} // namespace tabo
