#pragma once

#include <QDialog>

class QDateTimeEdit;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace tabo {

class AppController;

// The reminder of the current invoice: title, subtitle, informative text and
// the moment, filled by the controller; Schedule hands them back to it.
class NotificationSheet : public QDialog
{
    Q_OBJECT

public:
    NotificationSheet(AppController &app, QWidget *parent = nullptr);

    // `openNotificationSheet:`: false when nothing was opened (no document,
    // or a second reminder was declined).
    bool begin();

    QLineEdit *titleField() const { return m_title; }
    QLineEdit *subtitleField() const { return m_subtitle; }
    QPlainTextEdit *textField() const { return m_text; }
    QDateTimeEdit *dateField() const { return m_date; }
    QPushButton *scheduleButton() const { return m_schedule; }

    // `sendNotification:`
    void accept() override;

Q_SIGNALS:
    void scheduled();

private:
    AppController &m_app;
    QLineEdit *m_title;
    QLineEdit *m_subtitle;
    QPlainTextEdit *m_text;
    QDateTimeEdit *m_date;
    QPushButton *m_schedule;
};

} // namespace tabo
