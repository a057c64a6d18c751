#include "cli/Session.h"

#include "app/AppController.h"
#include "cli/Console.h"
#include "domain/EntityModel.h"
#include "domain/Record.h"
#include "prefs/Preferences.h"
#include <QCoreApplication>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(Session)
};
} // namespace

namespace tabo::cli {

Session::Session() = default;

Session::~Session() = default;

Preferences &Session::prefs()
{
    if (!m_prefs)
        m_prefs = std::make_unique<Preferences>();
    return *m_prefs;
}

AppController &Session::controller()
{
    if (!m_controller) {
        m_controller = std::make_unique<AppController>(prefs(), m_ui);
        m_controller->setMergeConflicts(true);
    }
    return *m_controller;
}

Store *Session::store()
{
    if (!m_launched) {
        m_launched = true;
        // The window steps of the launch do not apply; the one-time upgrades
        // do, since the calculation reads the flags they set.
        controller().start();
    }
    Store *store = controller().store();
    if (!store && !m_ui.errorPresented() && !m_ui.refused())
        printError(Tr::tr("The database could not be opened."));
    return store;
}

Record *Session::document(const QString &idOrNumber)
{
    if (!store())
        return nullptr;
    const QList<Record *> found = controller().findDocuments(idOrNumber);
    if (found.isEmpty()) {
        printError(Tr::tr("No document with ID or number “%1”.").arg(idOrNumber));
        return nullptr;
    }
    // Two documents may share a number (a deletion, an import): a command that
    // picked one of them could change or delete the wrong one.
    if (found.size() > 1) {
        QStringList ids;
        for (const Record *r : found)
            ids << r->text(Invoice::uniqueID);
        printError(ambiguousName(idOrNumber, QStringLiteral("documents"), ids));
        return nullptr;
    }
    return found.first();
}

Record *Session::select(const QString &idOrNumber)
{
    Record *doc = document(idOrNumber);
    if (doc)
        controller().setCurrentInvoice(doc);
    return doc;
}

int Session::finish(int exitCode)
{
    if (m_launched) {
        if (controller().askToQuit() == AppController::QuitReply::Cancel)
            exitCode = kExitFailure;
        controller().quit();
    }
    // Whatever was presented or refused is a failure, even if the command
    // itself went on.
    if ((m_ui.refused() || m_ui.errorPresented()) && exitCode == kExitOk)
        exitCode = kExitFailure;
    return exitCode;
}

} // namespace tabo::cli
