// A notification service for tests: takes org.freedesktop.Notifications on
// the session bus, appends every Notify to a file as one JSON object per line,
// and clicks a notification when told to (org.tabo.Test.Click).
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

class Server : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    explicit Server(QString log) : m_log(std::move(log)) {}

public Q_SLOTS:
    QStringList GetCapabilities() { return {QStringLiteral("actions"), QStringLiteral("body"), QStringLiteral("sound")}; }
    QString GetServerInformation(QString &vendor, QString &version, QString &specVersion)
    {
        vendor = QStringLiteral("tabo-tests");
        version = QStringLiteral("1");
        specVersion = QStringLiteral("1.2");
        return QStringLiteral("fake");
    }
    uint Notify(const QString &appName, uint replacesId, const QString &icon, const QString &summary,
                const QString &body, const QStringList &actions, const QVariantMap &hints, int timeout)
    {
        const uint id = ++m_next;
        QVariantMap plainHints;
        for (auto it = hints.begin(); it != hints.end(); ++it)
            plainHints.insert(it.key(), it.value().toString());
        const QJsonObject line{{QStringLiteral("id"), int(id)},
                               {QStringLiteral("app"), appName},
                               {QStringLiteral("replaces"), int(replacesId)},
                               {QStringLiteral("icon"), icon},
                               {QStringLiteral("summary"), summary},
                               {QStringLiteral("body"), body},
                               {QStringLiteral("actions"), QJsonValue::fromVariant(actions)},
                               {QStringLiteral("hints"), QJsonObject::fromVariantMap(plainHints)},
                               {QStringLiteral("timeout"), timeout}};
        QFile file(m_log);
        if (file.open(QIODevice::Append))
            file.write(QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n');
        return id;
    }
    void CloseNotification(uint id) { closed(id, 3); }

public:
    void closed(uint id, uint reason)
    {
        QDBusMessage signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/Notifications"),
                                                         QStringLiteral("org.freedesktop.Notifications"),
                                                         QStringLiteral("NotificationClosed"));
        signal << id << reason;
        QDBusConnection::sessionBus().send(signal);
    }

private:
    QString m_log;
    uint m_next = 0;
};

class Clicker : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.tabo.Test")

public:
    explicit Clicker(Server &server) : m_server(server) {}

public Q_SLOTS:
    // As a desktop does: the action, then the notification goes away.
    void Click(uint id)
    {
        QDBusMessage signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/Notifications"),
                                                         QStringLiteral("org.freedesktop.Notifications"),
                                                         QStringLiteral("ActionInvoked"));
        signal << id << QStringLiteral("default");
        QDBusConnection::sessionBus().send(signal);
        m_server.closed(id, 2);
    }

private:
    Server &m_server;
};

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    if (argc < 2)
        return 2;
    Server server(QString::fromLocal8Bit(argv[1]));
    Clicker clicker(server);
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.registerObject(QStringLiteral("/org/freedesktop/Notifications"), &server,
                            QDBusConnection::ExportAllSlots)
        || !bus.registerObject(QStringLiteral("/org/tabo/Test"), &clicker, QDBusConnection::ExportAllSlots)
        || !bus.registerService(QStringLiteral("org.freedesktop.Notifications")))
        return 1;
    return app.exec();
}

#include "FakeNotificationServer.moc"
