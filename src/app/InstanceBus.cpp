#include "app/InstanceBus.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace tabo {

bool InstanceBus::registerInstance()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.registerService(kService))
        return false;
    return bus.registerObject(kPath, this, QDBusConnection::ExportScriptableSlots);
}

bool InstanceBus::forwardShowInvoice(const QString &uniqueID)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface() || !bus.interface()->isServiceRegistered(kService).value())
        return false;
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kService, QStringLiteral("ShowInvoice"));
    call << uniqueID;
    return bus.call(call, QDBus::Block, 5000).type() == QDBusMessage::ReplyMessage;
}

void InstanceBus::ShowInvoice(const QString &uniqueID)
{
    Q_EMIT showInvoiceRequested(uniqueID);
}

} // namespace tabo
