#include "app/Notifier.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusReply>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Notifier)
};
} // namespace

namespace tabo {

namespace {

const QString kService = QStringLiteral("org.freedesktop.Notifications");
const QString kPath = QStringLiteral("/org/freedesktop/Notifications");
const QString kInterface = QStringLiteral("org.freedesktop.Notifications");

// How long a notification stays: the server's choice.
constexpr int kServerDefaultTimeout = -1;

} // namespace

DBusNotifier::DBusNotifier(QObject *parent) : Notifier(parent)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(kService, kPath, kInterface, QStringLiteral("ActionInvoked"), this,
                SLOT(onActionInvoked(uint, QString)));
    bus.connect(kService, kPath, kInterface, QStringLiteral("NotificationClosed"), this, SLOT(onClosed(uint, uint)));
}

bool DBusNotifier::isAvailable() const
{
    return unavailableReason().isEmpty();
}

QString DBusNotifier::unavailableReason() const
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return Tr::tr("Notifications cannot be shown: there is no desktop session bus (D-Bus) here.");
    QDBusConnectionInterface *busInterface = bus.interface();
    // Most notification services are started by the bus on first use.
    if (busInterface
        && (busInterface->isServiceRegistered(kService).value()
            || busInterface->activatableServiceNames().value().contains(kService)))
        return {};
    return Tr::tr("Notifications cannot be shown: no notification service runs on this desktop.");
}

QList<qint64> DBusNotifier::show(const QList<ScheduledNotification> &notifications)
{
    QList<qint64> shown;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return shown;
    // All calls go out before the first answer is awaited: one round trip
    // for many notifications, not one each.
    QList<QDBusPendingCall> calls;
    calls.reserve(notifications.size());
    for (const ScheduledNotification &n : notifications) {
        QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Notify"));
        QVariantMap hints{{QStringLiteral("desktop-entry"), kDesktopEntry},
                          {QStringLiteral("urgency"), QVariant::fromValue(uchar(1))}};
        if (n.sound)
            hints.insert(QStringLiteral("sound-name"), QStringLiteral("message-new-instant"));
        const QString body = n.subtitle.isEmpty() ? n.text
                             : n.text.isEmpty()   ? n.subtitle
                                                  : n.subtitle + QLatin1Char('\n') + n.text;
        call << QStringLiteral("Tabo") << uint(0) << kDesktopEntry << n.title
             << (readsMarkup() ? body.toHtmlEscaped() : body)
             << QStringList { QStringLiteral("default"), Tr::tr("Show Invoice") } << hints << kServerDefaultTimeout;
        calls << bus.asyncCall(call);
    }
    for (int i = 0; i < calls.size(); ++i) {
        QDBusPendingReply<uint> reply = calls[i];
        reply.waitForFinished();
        if (reply.isError()) {
            qWarning("The notification service refused a notification: %s", qPrintable(reply.error().message()));
            continue;
        }
        m_open.insert(reply.value(), notifications[i].uniqueID);
        shown << notifications[i].id;
    }
    return shown;
}

bool DBusNotifier::readsMarkup()
{
    // A client name with "<" or "&" must show as typed, on either kind of server.
    if (!m_capabilities) {
        QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("GetCapabilities"));
        const QDBusReply<QStringList> reply = QDBusConnection::sessionBus().call(call, QDBus::Block, 5000);
        m_capabilities = reply.isValid() ? reply.value() : QStringList();
    }
    return m_capabilities->contains(QLatin1String("body-markup"));
}

void DBusNotifier::onActionInvoked(uint id, const QString &action)
{
    const auto it = m_open.constFind(id);
    if (it == m_open.constEnd())
        return; // another program's, or another process's
    const QString uniqueID = *it;
    if (action == QLatin1String("default"))
        Q_EMIT activated(uniqueID);
}

void DBusNotifier::onClosed(uint id, uint)
{
    if (m_open.remove(id) && m_open.isEmpty())
        Q_EMIT allClosed();
}

} // namespace tabo
