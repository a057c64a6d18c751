#pragma once

#include "base/Date.h"
#include "base/Result.h"

#include <QList>
#include <QString>

#include <optional>

struct sqlite3;

namespace tabo {

class Store;

// A reminder of an invoice, shown by the desktop at `date`.
struct ScheduledNotification
{
    qint64 id = 0;
    QString uniqueID; // of the invoice
    QString title;
    QString subtitle;
    QString text;
    Date date;
    bool sound = false;
    Date delivered; // invalid while still to come
};

// The notifications kept in the store, so that they outlive the process that
// made them and travel in its copies. Several processes may deliver: each
// notification is claimed in a write of its own before it is shown, so it is
// shown once.
class NotificationSchedule
{
public:
    explicit NotificationSchedule(Store &store) : m_store(store) {}

    Error schedule(ScheduledNotification &notification); // sets id
    // Every notification, by date; `pendingOnly` leaves out delivered ones.
    QList<ScheduledNotification> list(bool pendingOnly = false) const;
    // False when there is no such notification.
    Result<bool> cancel(qint64 id);
    // Marks every undelivered notification due at `now` as delivered and
    // returns them; the caller shows them.
    Result<QList<ScheduledNotification>> claimDue(Date now);
    // Gives a claimed notification back when it could not be shown.
    Error unclaim(const QList<qint64> &ids);
    // Inside a write: the reminders of the invoice `uniqueID` not shown yet
    // go, since it has been paid.
    static Error cancelPendingOf(sqlite3 *db, const QString &uniqueID);
    // The earliest date still to come, if any.
    std::optional<Date> nextDate() const;

private:
    Store &m_store;
};

} // namespace tabo
