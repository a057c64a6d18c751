#pragma once

#include "app/PaymentCommands.h"

#include <QDialog>

class QLabel;
class QPushButton;
class QTableWidget;

namespace tabo {

class AppController;

// File ▸ Import Bank Statement…: the statement's credits with what each
// pays, how sure that is and why. The person takes, changes or skips each;
// Apply takes in the ones ticked, as one step Edit ▸ Undo takes back.
class PaymentReviewWindow : public QDialog
{
    Q_OBJECT

public:
    PaymentReviewWindow(AppController &app, PaymentCommands::Review review, QWidget *parent = nullptr);

    // Asks for a statement, reads it (asking for the columns of a CSV file
    // whose headings are not known) and shows the window; nullptr when the
    // person cancelled or the file was refused (said so).
    static PaymentReviewWindow *importStatement(AppController &app, QWidget *parent);
    static PaymentReviewWindow *review(AppController &app, const QString &path, QWidget *parent);

    QTableWidget *table() const { return m_table; }
    QPushButton *applyButton() const { return m_apply; }
    // The proposals as the person left them: ticked, with their invoice.
    QList<payments::Proposal> accepted() const;
    void apply();

private:
    enum Column { Take, Booked, Amount, Payer, Text, Invoice, Confidence, Why, ColumnCount };
    void fill();
    void updateCount();

    AppController &m_app;
    PaymentCommands::Review m_review;
    QList<Record *> m_open;
    QTableWidget *m_table = nullptr;
    QLabel *m_summary = nullptr;
    QPushButton *m_apply = nullptr;
};

// The columns of a CSV statement, chosen by heading: "date=1,amount=4,…",
// or empty when cancelled.
QString askStatementColumns(const QStringList &headings, QWidget *parent);

} // namespace tabo
