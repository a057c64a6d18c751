#pragma once

#include "store/NotificationSchedule.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace tabo {

// The desktop's notification service: shows a reminder now and says when the
// person clicked one. The schedule (when to show) is ours.
class Notifier : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    // Whether a notification service can be reached at all.
    virtual bool isAvailable() const = 0;
    // Why not, in words, when it cannot.
    virtual QString unavailableReason() const = 0;
    // Shows them now; returns the ids of those the service took.
    virtual QList<qint64> show(const QList<ScheduledNotification> &notifications) = 0;
    // Notifications shown by this object and neither clicked nor closed yet.
    virtual int openCount() const = 0;

Q_SIGNALS:
    // The person clicked a notification shown by this object.
    void activated(const QString &uniqueID);
    // None of the notifications shown by this object is open any more.
    void allClosed();
};

// freedesktop.org notifications on the session bus.
class DBusNotifier : public Notifier
{
    Q_OBJECT

public:
    explicit DBusNotifier(QObject *parent = nullptr);
    bool isAvailable() const override;
    QString unavailableReason() const override;
    QList<qint64> show(const QList<ScheduledNotification> &notifications) override;
    int openCount() const override { return int(m_open.size()); }

    // The desktop entry and icon the notifications name.
    static inline const QString kDesktopEntry = QStringLiteral("tabo");

private Q_SLOTS:
    void onActionInvoked(uint id, const QString &action);
    void onClosed(uint id, uint reason);

private:
    bool readsMarkup();
    std::optional<QStringList> m_capabilities;
    QHash<uint, QString> m_open; // server id → invoice uniqueID
};

} // namespace tabo
