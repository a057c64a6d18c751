#include "cli/OutputRun.h"

#include "app/AppController.h"
#include "app/OutputCommands.h"
#include "cli/Console.h"
#include "cli/Session.h"
#include "designs/DesignLibrary.h"
#include "domain/Record.h"

namespace tabo::cli {

int OutputRun::exportDocument(Session &session, const QString &idOrNumber, int kind)
{
    if (!session.select(idOrNumber))
        return kExitFailure;
    OutputCommands &outputs = session.controller().outputs();
    const int shown = session.ui().messagesShown();
    bool ready = false;
    const QMetaObject::Connection connection =
        QObject::connect(&outputs, &OutputCommands::exportReady, [&ready] { ready = true; });
    const bool opened = outputs.openExport(kind);
    if (opened)
        outputs.waitUntilIdle();
    QObject::disconnect(connection);
    // Without a PDF there is nothing to press OK on; the reason is out.
    if (!opened || !ready)
        return kExitFailure;
    outputs.exportCommand();
    return session.ui().messagesShown() == shown ? kExitOk : kExitFailure;
}

Record *OutputRun::design(Session &session, const QString &titleOrId, QString *error)
{
    if (!session.store()) {
        *error = QString();
        return nullptr;
    }
    Record *found = nullptr;
    int matches = 0;
    const QList<Record *> designs = session.controller().designs().designs();
    for (Record *d : designs) {
        if (d->text(Design::uniqueID) == titleOrId)
            return d;
        if (d->text(Design::title) == titleOrId) {
            found = found ? found : d;
            ++matches;
        }
    }
    if (matches == 1)
        return found;
    *error = matches == 0 ? QStringLiteral("No design titled “%1”.").arg(titleOrId)
                          : QStringLiteral("%1 designs are titled “%2”; give its unique ID instead.")
                                .arg(matches)
                                .arg(titleOrId);
    return nullptr;
}

} // namespace tabo::cli
