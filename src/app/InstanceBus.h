#pragma once

#include <QObject>
#include <QVariant>
#include <QString>
#include <QStringList>

namespace tabo {

// The running window's name on the session bus. A second `tabo` (a plain
// start, a desktop action, `tabo FILE`, `--show-invoice ID` from a click on a reminder)
// hands its request to the running window and ends: two windows must never
// work on one store.
class InstanceBus : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.tabo.Tabo")

public:
    using QObject::QObject;
    static inline const QString kService = QStringLiteral("org.tabo.Tabo");
    static inline const QString kPath = QStringLiteral("/org/tabo/Tabo");

    // False without a bus, or when another process holds the name.
    bool registerInstance();
    // True when a running instance took the request.
    static bool forwardShowInvoice(const QString &uniqueID);
    static bool forwardActivate();
    static bool forwardNewDocument(bool invoice);
    // Files to open, named relative to this process.
    static bool forwardOpen(const QStringList &paths);

public Q_SLOTS:
    Q_SCRIPTABLE void ShowInvoice(const QString &uniqueID);
    Q_SCRIPTABLE void Activate();
    Q_SCRIPTABLE void NewDocument(bool invoice);
    Q_SCRIPTABLE void Open(const QStringList &paths);

Q_SIGNALS:
    void showInvoiceRequested(const QString &uniqueID);
    void activateRequested();
    void newDocumentRequested(bool invoice);
    void openRequested(const QStringList &paths);

private:
    static bool forward(const QString &method, const QVariantList &arguments);
};

} // namespace tabo
