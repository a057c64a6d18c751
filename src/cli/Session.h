#pragma once

#include "cli/CliInteraction.h"

#include <QString>

#include <memory>

namespace tabo {
class AppController;
class Preferences;
class Record;
class Store;
} // namespace tabo

namespace tabo::cli {

// One run of the command line: the preferences, the controller and the
// store, started and stopped the way the application starts and quits, so
// that the flags the application keeps about its store stay true.
class Session
{
public:
    Session();
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    Preferences &prefs();
    CliInteraction &ui() { return m_ui; }
    AppController &controller();

    // Runs the launch steps and opens the store; nullptr once the reason is
    // on stderr.
    Store *store();
    // By uniqueID or number; reports and gives nullptr when there is none.
    Record *document(const QString &idOrNumber);
    // document(), made the current one as selecting it in the list does: the
    // commands on the current document work on it.
    Record *select(const QString &idOrNumber);

    // The application's quit: saves what is unsaved, keeps the quit flags.
    // Returns the exit code to use.
    int finish(int exitCode);

private:
    std::unique_ptr<Preferences> m_prefs;
    CliInteraction m_ui;
    std::unique_ptr<AppController> m_controller;
    bool m_launched = false;
};

} // namespace tabo::cli
