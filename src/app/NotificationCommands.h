#pragma once

#include "base/Date.h"
#include "base/Error.h"
#include "store/NotificationSchedule.h"

#include <QObject>
#include <QTimer>

#include <memory>

namespace tabo {

class CurrentDocument;
class Interaction;
class ListedDocuments;
class Preferences;
class StoreAccess;
class Notifier;
class Record;

// Reminders of due invoices: the sheet's commands, the schedule in the store,
// and delivery through the desktop's notification service, in the window at
// the notification's moment and from the command line (and its timer) while
// the window is closed.
class NotificationCommands : public QObject
{
    Q_OBJECT

public:
    NotificationCommands(StoreAccess &store, CurrentDocument &current, ListedDocuments &list, Preferences &prefs,
                         Interaction &ui);
    ~NotificationCommands() override;

    struct Draft
    {
        QString title;
        QString subtitle;
        QString text;
        Date date;
    };

    // The desktop's service, made on first use (a process that never
    // notifies never touches the bus).
    Notifier &notifier();
    void setNotifier(std::unique_ptr<Notifier> notifier);
    bool isAvailable() { return unavailableReason().isEmpty(); }
    QString unavailableReason();

    // False when there is no current document, or a notification was made
    // for it already and the person does not want another one.
    bool openNotificationSheet();
    // The sheet's fields for the current document.
    Draft prepareNotification() const;
    // Three days after `due`, at midnight of that day where the person is.
    static Date reminderDate(Date due);
    // Schedules the draft for `invoice` (the current one by default) and
    // marks it; the failure is presented and returned. `id` gets the
    // reminder's number.
    Error sendNotification(const Draft &draft, Record *invoice = nullptr, qint64 *id = nullptr);

    QList<ScheduledNotification> scheduled(bool pendingOnly = false);
    // False (after saying so) when there is no such notification.
    bool cancel(qint64 id);

    // Shows every notification whose moment has come; those the service
    // refused stay scheduled, and `problem` says so.
    struct Delivery
    {
        int shown = 0;
        Error problem;
    };
    Delivery deliverDue();
    // While the application runs: what came due while it was closed is shown
    // now, the rest at its moment.
    void startDelivering();

    // After the first reminder: offers, once, the timer that shows reminders
    // while Tabo is closed (it is never installed without asking).
    void offerReminderTimerOnce();
    // Installs or removes that timer; a failure is presented.
    bool setReminderTimerInstalled(bool installed);

    // A click on a delivered notification: the window comes forward, and
    // 1.3 s later the list shows that invoice.
    void didActivateNotification(const QString &uniqueID);
    static constexpr int kFilterDelayMs = 1300;

Q_SIGNALS:
    void scheduleChanged();
    // The window should come to the front.
    void bringForward();

private:
    void armTimer();
    void deliverNow();

    StoreAccess &m_access;
    CurrentDocument &m_current;
    ListedDocuments &m_list;
    Preferences &m_prefs;
    Interaction &m_ui;
    std::unique_ptr<Notifier> m_notifier;
    QTimer m_timer;
    bool m_delivering = false;
};

} // namespace tabo
