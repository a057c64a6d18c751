#pragma once

#include "render/PageSetup.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace tabo {

// Turns a page into a PDF file with one off-screen web page that is created
// once and reused. Pages are untrusted (designs come from files): scripts are
// off, nothing is fetched from the network, and the only local file a page
// may read is the one allowed (the logo). Needs a QGuiApplication.
class PdfEngine : public QObject
{
    Q_OBJECT

public:
    // Runs before the QGuiApplication is created: the engine's process flags,
    // and the off-screen platform when there is no display.
    static void prepareApplication();

    explicit PdfEngine(QObject *parent = nullptr);
    ~PdfEngine() override;

    // How long one document may take before it is given up and its page
    // replaced (60 s unless changed).
    void setTimeout(int milliseconds);

    // The one local file pages may read besides themselves.
    void setAllowedLocalFile(const QString &path);

    // Loads `html`, waits for the engine's load-finished signal and prints
    // it to `path` (an old file there is deleted first). `done(ok)` runs once
    // the file is complete or the rendering failed. Requests made while one
    // is running wait their turn.
    void render(const QString &html, const PageSetup &setup, const QString &path,
                std::function<void(bool ok)> done);
    // The same, waiting in a local event loop (command line, tests).
    bool renderAndWait(const QString &html, const PageSetup &setup, const QString &path);

    // Every request a page made that was refused, as URLs (for tests and
    // diagnostics).
    QStringList blockedRequests() const;
    // The page count of the last document refused for having more pages
    // than its setup allows (0 when the last one was not refused so).
    int lastRunawayPages() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace tabo
