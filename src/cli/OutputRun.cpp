#include "cli/OutputRun.h"

#include "app/AppController.h"
#include "app/DesignLibrary.h"
#include "app/OutputCommands.h"
#include "cli/Console.h"
#include "cli/Session.h"
#include "domain/Record.h"
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(OutputRun)
};
} // namespace

namespace tabo::cli {

int OutputRun::exportDocument(Session &session, const QString &idOrNumber, int kind)
{
    if (!session.select(idOrNumber))
        return kExitFailure;
    const int shown = session.ui().messagesShown();
    // Without a PDF there is nothing to press OK on; the reason is out.
    if (!session.controller().outputs().exportAndWait(kind))
        return kExitFailure;
    return session.ui().messagesShown() == shown ? kExitOk : kExitFailure;
}

Result<Record *> OutputRun::design(Session &session, const QString &titleOrId)
{
    if (!session.store())
        return Error::shownAlready();
    // An ID first: imported twice, one ID may name two designs, and then no
    // title is looked at either.
    const QList<Record *> designs = session.controller().designs().designs();
    QList<Record *> byId, byTitle;
    for (Record *d : designs) {
        if (d->text(Design::uniqueID) == titleOrId)
            byId << d;
        else if (d->text(Design::title) == titleOrId)
            byTitle << d;
    }
    const QList<Record *> &found = byId.isEmpty() ? byTitle : byId;
    if (found.size() == 1)
        return found.first();
    QStringList ids;
    for (const Record *d : found)
        ids << d->text(Design::uniqueID);
    return Error::input(found.isEmpty() ? Tr::tr("No design titled “%1”.").arg(titleOrId)
            : byId.isEmpty()
            ? Tr::tr("%1 designs are titled “%2”; give its unique ID instead: %3.")
                  .arg(found.size())
                  .arg(titleOrId, ids.join(QStringLiteral(", ")))
            : Tr::tr("“%1” is the ID of %2 designs; give its title instead.").arg(titleOrId).arg(found.size()));
}

} // namespace tabo::cli
