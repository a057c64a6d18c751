#include "app/NotificationCommands.h"

#include "app/Interaction.h"
#include "app/Notifier.h"
#include "app/ReminderTimer.h"
#include "app/Workspace.h"
#include "base/Clock.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include "store/Store.h"

#include <QRegularExpression>
#include <QTimeZone>

#include <QCoreApplication>
#include <algorithm>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(NotificationCommands)
};
} // namespace

namespace tabo {

using P = Preferences;

namespace {

// Other processes schedule too; the schedule is looked at this often while
// nothing of our own is due sooner.
constexpr qint64 kRecheckMs = 60 * 1000;

} // namespace

NotificationCommands::NotificationCommands(StoreAccess &store, CurrentDocument &current, ListedDocuments &list,
                                           Preferences &prefs, Interaction &ui)
    : m_access(store), m_current(current), m_list(list), m_prefs(prefs), m_ui(ui)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &NotificationCommands::deliverNow);
}

NotificationCommands::~NotificationCommands() = default;

Notifier &NotificationCommands::notifier()
{
    if (!m_notifier)
        setNotifier(std::make_unique<DBusNotifier>());
    return *m_notifier;
}

void NotificationCommands::setNotifier(std::unique_ptr<Notifier> notifier)
{
    m_notifier = std::move(notifier);
    connect(m_notifier.get(), &Notifier::activated, this, &NotificationCommands::didActivateNotification);
}

QString NotificationCommands::unavailableReason()
{
    return notifier().unavailableReason();
}

bool NotificationCommands::openNotificationSheet()
{
    Record *invoice = m_current.currentInvoice();
    if (!invoice)
        return false;
    if (invoice->boolean(Invoice::misc4)) {
        const int answer = m_ui.alert(Tr::tr("Notification Already Created"),
            Tr::tr("You've already created a notification for this invoice. Do you really want to create "
                   "another one?"),
            { Tr::tr("OK"), Tr::tr("Cancel") });
        if (answer != 0)
            return false;
    }
    return true;
}

Date NotificationCommands::reminderDate(Date due)
{
    // Calendar days, not 3 × 24 hours: a change to summer time in between
    // must not move the reminder to the evening before.
    const QDate day = due.toDateTime().toLocalTime().date().addDays(3);
    return Date::fromDateTime(QDateTime(day, QTime(0, 0), QTimeZone::systemTimeZone()));
}

NotificationCommands::Draft NotificationCommands::prepareNotification() const
{
    Draft draft;
    const Record *invoice = m_current.currentInvoice();
    if (!invoice)
        return draft;
    draft.title = QStringLiteral("%1 | %2").arg(invoice->text(Invoice::title), invoice->text(Invoice::number));
    const QString address = invoice->text(Invoice::address);
    draft.subtitle = address.section(QRegularExpression(QStringLiteral("\r\n|\r|\n")), 0, 0);
    const Date due = invoice->date(Invoice::due);
    draft.date = reminderDate(due.isValid() ? due : now());
    return draft;
}

Error NotificationCommands::sendNotification(const Draft &draft, Record *invoice, qint64 *id)
{
    if (!invoice)
        invoice = m_current.currentInvoice();
    Store *store = m_access.store();
    if (!invoice || !store)
        return Error { Error::Tabo, 1, Tr::tr("There is no invoice to remind of."), {} };
    ScheduledNotification n;
    n.uniqueID = invoice->text(Invoice::uniqueID);
    n.title = draft.title;
    n.subtitle = draft.subtitle;
    n.text = draft.text;
    n.date = draft.date;
    n.sound = m_prefs.boolean(P::prefsDeliverNotificationsWithSound);
    if (Error e = NotificationSchedule(*store).schedule(n)) {
        m_ui.presentError(e);
        return e;
    }
    if (id)
        *id = n.id;
    m_current.setDocumentValue(invoice, Invoice::misc4, true);
    armTimer();
    Q_EMIT scheduleChanged();
    return {};
}

QList<ScheduledNotification> NotificationCommands::scheduled(bool pendingOnly)
{
    Store *store = m_access.store();
    return store ? NotificationSchedule(*store).list(pendingOnly) : QList<ScheduledNotification>();
}

bool NotificationCommands::cancel(qint64 id)
{
    Store *store = m_access.store();
    if (!store)
        return false;
    const Result<bool> cancelled = NotificationSchedule(*store).cancel(id);
    if (cancelled && cancelled.value()) {
        armTimer();
        Q_EMIT scheduleChanged();
        return true;
    }
    m_ui.presentError(cancelled ? Error::input(Tr::tr("There is no notification %1.").arg(id)) : cancelled.error());
    return false;
}

NotificationCommands::Delivery NotificationCommands::deliverDue()
{
    Store *store = m_access.store();
    if (!store)
        return {};
    NotificationSchedule schedule(*store);
    Error e;
    // Ask the bus only when something is due: an hourly run with nothing to
    // show costs one query.
    const std::optional<Date> next = schedule.nextDate();
    if (next && !(now() < *next)) {
        const QString reason = unavailableReason();
        if (!reason.isEmpty()) {
            e = Error { Error::Tabo, 2, reason, Tr::tr("The notifications stay scheduled.") };
        } else {
            const Result<QList<ScheduledNotification>> claimed = schedule.claimDue(now());
            e = claimed.error();
            const QList<ScheduledNotification> &due = claimed.value();
            const QList<qint64> shown = due.isEmpty() ? QList<qint64>() : notifier().show(due);
            QList<qint64> refused;
            for (const ScheduledNotification &n : due)
                if (!shown.contains(n.id))
                    refused << n.id;
            if (!refused.isEmpty()) {
                schedule.unclaim(refused);
                e = Error { Error::Tabo, 3,
                    Tr::tr("The notification service did not show %1 of the reminders.").arg(refused.size()),
                    Tr::tr("They stay scheduled.") };
            }
            if (!shown.isEmpty())
                Q_EMIT scheduleChanged();
            return {int(shown.size()), e};
        }
    }
    return {0, e};
}

void NotificationCommands::startDelivering()
{
    m_delivering = true;
    deliverNow();
}

void NotificationCommands::deliverNow()
{
    if (!m_delivering)
        return;
    if (const Error e = deliverDue().problem)
        qWarning("%s", qPrintable(e.message()));
    armTimer();
}

void NotificationCommands::armTimer()
{
    if (!m_delivering)
        return;
    qint64 wait = kRecheckMs;
    if (Store *store = m_access.store())
        if (const std::optional<Date> next = NotificationSchedule(*store).nextDate())
            wait = std::clamp(qint64((next->referenceSeconds() - now().referenceSeconds()) * 1000), qint64(0), kRecheckMs);
    m_timer.start(std::chrono::milliseconds(wait));
}

void NotificationCommands::offerReminderTimerOnce()
{
    const QString offered = QStringLiteral("notifications/timerOffered");
    Preferences &prefs = m_prefs;
    if (prefs.raw(offered).toBool() || ReminderTimer().isInstalled())
        return;
    prefs.setRaw(offered, true);
    prefs.sync();
    const int answer = m_ui.alert(Tr::tr("Reminders While Tabo Is Closed"),
        Tr::tr("Tabo shows this reminder when its moment comes while Tabo is open. Shall a small timer of "
               "your desktop session look for due reminders every hour, so that they also arrive while "
               "Tabo is closed? You can remove it at any time in Preferences ▸ Data."),
        { Tr::tr("Install Timer"), Tr::tr("Not Now") });
    if (answer == 0)
        setReminderTimerInstalled(true);
}

bool NotificationCommands::setReminderTimerInstalled(bool installed)
{
    ReminderTimer timer;
    if (const Error e = installed ? timer.install() : timer.remove()) {
        m_ui.presentError(e);
        return false;
    }
    return true;
}

void NotificationCommands::didActivateNotification(const QString &uniqueID)
{
    Q_EMIT bringForward();
    QTimer::singleShot(kFilterDelayMs, this, [this, uniqueID] { m_list.filterForInvoice(uniqueID); });
}

} // namespace tabo
