#include "app/InstanceBus.h"

#include <QFileInfo>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(InstanceBus)
};
} // namespace

namespace tabo {

bool InstanceBus::registerInstance()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.registerService(kService))
        return false;
    return bus.registerObject(kPath, this, QDBusConnection::ExportScriptableSlots);
}

bool InstanceBus::forward(const QString &method, const QVariantList &arguments)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected() || !bus.interface() || !bus.interface()->isServiceRegistered(kService).value())
        return false;
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kService, method);
    call.setArguments(arguments);
    // The running window answers at once and carries the request out when
    // it can (after a dialog the person has open); a window that is quitting
    // does not answer, and this process then starts a new one.
    return bus.call(call, QDBus::Block, 5000).type() == QDBusMessage::ReplyMessage;
}

bool InstanceBus::forwardShowInvoice(const QString &uniqueID)
{
    return forward(QStringLiteral("ShowInvoice"), {uniqueID});
}

bool InstanceBus::forwardActivate()
{
    return forward(QStringLiteral("Activate"), {});
}

bool InstanceBus::forwardNewDocument(bool invoice)
{
    return forward(QStringLiteral("NewDocument"), {invoice});
}

bool InstanceBus::forwardOpen(const QStringList &paths)
{
    // The running window has another working folder.
    QStringList absolute;
    for (const QString &path : paths)
        absolute << QFileInfo(path).absoluteFilePath();
    return forward(QStringLiteral("Open"), {absolute});
}

void InstanceBus::Open(const QStringList &paths)
{
    Q_EMIT openRequested(paths);
}

void InstanceBus::ShowInvoice(const QString &uniqueID)
{
    Q_EMIT showInvoiceRequested(uniqueID);
}

void InstanceBus::Activate()
{
    Q_EMIT activateRequested();
}

void InstanceBus::NewDocument(bool invoice)
{
    Q_EMIT newDocumentRequested(invoice);
}

} // namespace tabo
