#pragma once

#include <QObject>
#include <QString>

namespace tabo {

// The running window's name on the session bus. `tabo --show-invoice ID`,
// started by a click on a notification while Tabo runs, hands the invoice to
// the running window instead of opening a second one.
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
    // True when a running instance took the invoice.
    static bool forwardShowInvoice(const QString &uniqueID);

public Q_SLOTS:
    Q_SCRIPTABLE void ShowInvoice(const QString &uniqueID);

Q_SIGNALS:
    void showInvoiceRequested(const QString &uniqueID);
};

} // namespace tabo
