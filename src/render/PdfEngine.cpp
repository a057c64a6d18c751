#include "render/PdfEngine.h"

#include "render/GuardedPage.h"
#include "render/PageGuard.h"
#include "render/PageSchemeHandler.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QLoggingCategory>
#include <QPointer>
#include <QSaveFile>
#include <QTimer>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

#include <deque>

#include <unistd.h>

namespace tabo {

namespace {

// A page that takes longer than this is reported as failed, so no caller
// waits for ever on a stuck engine.
constexpr int RenderTimeoutMs = 60000;

void appendFlag(QByteArray &flags, const QByteArray &flag)
{
    const QByteArray name = flag.split('=').first();
    for (const QByteArray &existing : flags.split(' '))
        if (existing.split('=').first() == name)
            return; // the person's own value wins
    if (!flags.isEmpty())
        flags += ' ';
    flags += flag;
}

struct Job
{
    QByteArray html;
    QPageLayout layout;
    QString path;
    std::function<void(bool)> done;
};

} // namespace

struct PdfEngine::Private
{
    void startNext();
    void pageLoaded(bool ok);
    bool writeFile(const QByteArray &pdf) const;
    void finishJob(bool ok);

    PdfEngine *q = nullptr;
    QWebEngineProfile *profile = nullptr;
    PageGuard *guard = nullptr;
    PageSchemeHandler *handler = nullptr;
    GuardedPage *page = nullptr;
    std::deque<Job> queue;
    bool running = false;
    quint64 generation = 0; // tells a late answer of an abandoned job apart
    QTimer watchdog;
};

void PdfEngine::prepareApplication()
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");

    QByteArray flags = qgetenv("QTWEBENGINE_CHROMIUM_FLAGS").simplified();
    // Pages are laid out and printed in software; the GPU process would only
    // cost start-up time and complain on machines without one.
    appendFlag(flags, "--disable-gpu");
    appendFlag(flags, "--disable-gpu-compositing");
    appendFlag(flags, "--disable-logging");
    appendFlag(flags, "--log-level=3");
    if (::geteuid() == 0)
        appendFlag(flags, "--no-sandbox"); // the sandbox refuses to run as root
    qputenv("QTWEBENGINE_CHROMIUM_FLAGS", flags);

    // The engine reports its graphics set-up at every start; a command-line
    // run has no use for it. QT_LOGGING_RULES still wins over this rule.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext.info=false"));

    PageSchemeHandler::registerScheme();
}

PdfEngine::PdfEngine(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    d->q = this;
    PageSchemeHandler::registerScheme();
    // No storage name: off the record, nothing written to disk.
    d->profile = new QWebEngineProfile(this);
    d->profile->setHttpCacheType(QWebEngineProfile::NoCache);
    d->profile->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    d->profile->setSpellCheckEnabled(false);
    d->guard = new PageGuard(this);
    d->profile->setUrlRequestInterceptor(d->guard);
    d->handler = new PageSchemeHandler(*d->guard, this);
    d->profile->installUrlSchemeHandler(PageSchemeHandler::schemeName(), d->handler);

    QWebEngineSettings *s = d->profile->settings();
    s->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
    s->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    s->setAttribute(QWebEngineSettings::PluginsEnabled, false);
    s->setAttribute(QWebEngineSettings::PdfViewerEnabled, false);
    s->setAttribute(QWebEngineSettings::ErrorPageEnabled, false);
    s->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    s->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, false);
    s->setAttribute(QWebEngineSettings::LocalStorageEnabled, false);
    s->setAttribute(QWebEngineSettings::AutoLoadIconsForPage, false);
    s->setAttribute(QWebEngineSettings::TouchIconsEnabled, false);
    s->setAttribute(QWebEngineSettings::HyperlinkAuditingEnabled, false);
    s->setAttribute(QWebEngineSettings::DnsPrefetchEnabled, false);
    s->setAttribute(QWebEngineSettings::WebGLEnabled, false);
    s->setAttribute(QWebEngineSettings::Accelerated2dCanvasEnabled, false);
    s->setAttribute(QWebEngineSettings::NavigateOnDropEnabled, false);
    s->setAttribute(QWebEngineSettings::ScrollAnimatorEnabled, false);
    s->setAttribute(QWebEngineSettings::PrintElementBackgrounds, true);
    s->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);

    d->page = new GuardedPage(d->profile, *d->guard, this);
    connect(d->page, &QWebEnginePage::loadFinished, this, [this](bool ok) { d->pageLoaded(ok); });

    d->watchdog.setSingleShot(true);
    d->watchdog.setInterval(RenderTimeoutMs);
    connect(&d->watchdog, &QTimer::timeout, this, [this] { d->finishJob(false); });
}

PdfEngine::~PdfEngine()
{
    d->watchdog.stop();
    ++d->generation;
    // The page goes before its profile, or the engine complains.
    delete d->page;
    d->page = nullptr;
    std::deque<Job> pending;
    pending.swap(d->queue);
    for (Job &job : pending)
        if (job.done)
            job.done(false);
}

void PdfEngine::setAllowedLocalFile(const QString &path)
{
    d->guard->setAllowedLocalFile(path);
}

QStringList PdfEngine::blockedRequests() const
{
    return d->guard->blockedRequests();
}

void PdfEngine::render(const QString &html, const PageSetup &setup, const QString &path,
                       std::function<void(bool ok)> done)
{
    d->queue.push_back(Job{html.toUtf8(), setup.pageLayout(), path, std::move(done)});
    if (!d->running)
        d->startNext();
}

bool PdfEngine::renderAndWait(const QString &html, const PageSetup &setup, const QString &path)
{
    QEventLoop loop;
    bool finished = false, result = false;
    render(html, setup, path, [&](bool ok) {
        finished = true;
        result = ok;
        loop.quit();
    });
    if (!finished)
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    return result;
}

void PdfEngine::Private::startNext()
{
    if (queue.empty() || running)
        return;
    running = true;
    Job &job = queue.front();
    QFile::remove(job.path);
    const QUrl url = handler->setPage(job.html);
    guard->setPageUrl(url);
    watchdog.start();
    page->load(url);
}

void PdfEngine::Private::pageLoaded(bool ok)
{
    if (!running || page->url() != guard->pageUrl())
        return;
    if (!ok) {
        finishJob(false);
        return;
    }
    const quint64 current = generation;
    QPointer<PdfEngine> self(q);
    page->printToPdf(
        [self, current](const QByteArray &pdf) {
            if (!self || self->d->generation != current || !self->d->running)
                return;
            self->d->finishJob(!pdf.isEmpty() && self->d->writeFile(pdf));
        },
        queue.front().layout);
}

bool PdfEngine::Private::writeFile(const QByteArray &pdf) const
{
    QSaveFile file(queue.front().path);
    return file.open(QIODevice::WriteOnly) && file.write(pdf) == pdf.size() && file.commit();
}

void PdfEngine::Private::finishJob(bool ok)
{
    if (!running)
        return;
    watchdog.stop();
    ++generation;
    Job job = std::move(queue.front());
    queue.pop_front();
    running = false;
    handler->clear();
    if (!ok)
        QFile::remove(job.path);
    if (job.done)
        job.done(ok);
    startNext();
}

} // namespace tabo
