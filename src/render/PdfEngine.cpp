#include "render/PdfEngine.h"

#include "prefs/ProtectedFiles.h"

#include "render/GuardedPage.h"
#include "render/PageGuard.h"
#include "render/PageSchemeHandler.h"
#include "render/PageStamp.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QPointer>
#include <QSaveFile>
#include <QThread>
#include <QTimer>
#include <QWebEngineProfile>
#include <QWebEngineSettings>

#include <algorithm>
#include <deque>
#include <optional>
#include <vector>

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
    QString pageStamp;
    int maxPages = 0;
    QString path;
    std::function<void(bool)> done;
};

} // namespace

// One off-screen page with its own profile, guard and scheme handler. A
// second lane (its own renderer process) is opened only while documents
// queue up, so a batch uses both cores: one page prints while the other
// lays out the next document.
struct Lane
{
    QWebEngineProfile *profile = nullptr;
    PageGuard *guard = nullptr;
    PageSchemeHandler *handler = nullptr;
    GuardedPage *page = nullptr;
    std::optional<Job> job;
    quint64 generation = 0; // tells a late answer of an abandoned job apart
    QTimer watchdog;
};

struct PdfEngine::Private
{
    Lane *openLane();
    void newPage(Lane *lane);
    void startNext();
    void pageLoaded(Lane *lane, bool ok);
    void finishJob(Lane *lane, bool ok);

    PdfEngine *q = nullptr;
    std::vector<std::unique_ptr<Lane>> lanes;
    int maxLanes = 2;
    int timeoutMs = RenderTimeoutMs;
    QString allowedFile;
    std::deque<Job> queue;
    int lastRunawayPages = 0;
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

    PageSchemeHandler::registerScheme();
}

PdfEngine::PdfEngine(QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    d->q = this;
    PageSchemeHandler::registerScheme();
    d->maxLanes = std::clamp(QThread::idealThreadCount(), 1, 2);
    d->openLane(); // the first page is made at once, warm for the first document
}

Lane *PdfEngine::Private::openLane()
{
    auto lane = std::make_unique<Lane>();
    Lane *l = lane.get();
    // No storage name: off the record, nothing written to disk.
    l->profile = new QWebEngineProfile(q);
    l->profile->setHttpCacheType(QWebEngineProfile::NoCache);
    l->profile->setPersistentCookiesPolicy(QWebEngineProfile::NoPersistentCookies);
    l->profile->setSpellCheckEnabled(false);
    l->guard = new PageGuard(q);
    if (!allowedFile.isNull())
        l->guard->setAllowedLocalFile(allowedFile);
    l->profile->setUrlRequestInterceptor(l->guard);
    l->handler = new PageSchemeHandler(*l->guard, q);
    l->profile->installUrlSchemeHandler(PageSchemeHandler::schemeName(), l->handler);

    QWebEngineSettings *s = l->profile->settings();
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

    newPage(l);
    l->watchdog.setSingleShot(true);
    l->watchdog.setInterval(timeoutMs);
    QObject::connect(&l->watchdog, &QTimer::timeout, q, [this, l] {
        // A page that never finishes (some layouts make the engine spin)
        // would block every later document: its renderer goes with it.
        ++l->generation;
        delete l->page;
        newPage(l);
        finishJob(l, false);
    });
    lanes.push_back(std::move(lane));
    return l;
}

void PdfEngine::Private::newPage(Lane *l)
{
    l->page = new GuardedPage(l->profile, *l->guard, q);
    QObject::connect(l->page, &QWebEnginePage::loadFinished, q, [this, l](bool ok) { pageLoaded(l, ok); });
    // A renderer that dies takes the job with it, never the program: the
    // page is replaced and the queue goes on.
    QObject::connect(l->page, &QWebEnginePage::renderProcessTerminated, q,
                     [this, l](QWebEnginePage::RenderProcessTerminationStatus status, int) {
                         if (status == QWebEnginePage::NormalTerminationStatus)
                             return;
                         QTimer::singleShot(0, q, [this, l] {
                             ++l->generation;
                             l->page->deleteLater();
                             newPage(l);
                             finishJob(l, false);
                         });
                     });
}

PdfEngine::~PdfEngine()
{
    std::deque<Job> pending;
    for (auto &lane : d->lanes) {
        lane->watchdog.stop();
        ++lane->generation;
        // The page goes before its profile, or the engine complains.
        delete lane->page;
        lane->page = nullptr;
        if (lane->job)
            pending.push_back(std::move(*lane->job));
    }
    for (Job &job : d->queue)
        pending.push_back(std::move(job));
    d->queue.clear();
    for (Job &job : pending)
        if (job.done)
            job.done(false);
}

void PdfEngine::setTimeout(int milliseconds)
{
    d->timeoutMs = milliseconds;
    for (auto &lane : d->lanes)
        lane->watchdog.setInterval(milliseconds);
}

void PdfEngine::setAllowedLocalFile(const QString &path)
{
    d->allowedFile = path;
    for (auto &lane : d->lanes)
        lane->guard->setAllowedLocalFile(path);
}

int PdfEngine::lastRunawayPages() const
{
    return d->lastRunawayPages;
}

QStringList PdfEngine::blockedRequests() const
{
    QStringList blocked;
    for (const auto &lane : d->lanes)
        blocked << lane->guard->blockedRequests();
    return blocked;
}

void PdfEngine::render(const QString &html, const PageSetup &setup, const QString &path,
                       std::function<void(bool ok)> done)
{
    if (const Error refused = ProtectedFiles::check(path)) {
        qWarning().noquote() << refused.text;
        if (done)
            done(false);
        return;
    }
    d->queue.push_back(
        Job{PageGuard::withoutRefresh(html.toUtf8()), setup.pageLayout(), setup.pageStamp, setup.maxPages, path,
            std::move(done)});
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
    while (!queue.empty()) {
        // Two documents for one file (the working PDF) go one after the
        // other, so each reader finds the file it asked for.
        const QString &path = queue.front().path;
        if (std::any_of(lanes.begin(), lanes.end(), [&](const auto &l) { return l->job && l->job->path == path; }))
            return;
        Lane *lane = nullptr;
        for (auto &l : lanes)
            if (!l->job) {
                lane = l.get();
                break;
            }
        if (!lane && int(lanes.size()) < maxLanes)
            lane = openLane();
        if (!lane)
            return;
        lane->job = std::move(queue.front());
        queue.pop_front();
        QFile::remove(lane->job->path);
        const QUrl url = lane->handler->setPage(lane->job->html);
        lane->guard->setPageUrl(url);
        lane->watchdog.start();
        lane->page->load(url);
    }
}

void PdfEngine::Private::pageLoaded(Lane *lane, bool ok)
{
    if (!lane->job || lane->page->url() != lane->guard->pageUrl())
        return;
    if (!ok) {
        finishJob(lane, false);
        return;
    }
    const quint64 current = lane->generation;
    QPointer<PdfEngine> self(q);
    lane->page->printToPdf(
        [self, lane, current](const QByteArray &printed) {
            if (!self || lane->generation != current || !lane->job)
                return;
            if (const int limit = lane->job->maxPages; limit > 0 && !printed.isEmpty()) {
                const int pages = PageStamp::pageCount(printed);
                self->d->lastRunawayPages = pages > limit ? pages : 0;
                if (pages > limit) {
                    self->d->finishJob(lane, false);
                    return;
                }
            }
            const QByteArray pdf = printed.isEmpty() ? printed : PageStamp::apply(printed, lane->job->pageStamp);
            QSaveFile file(lane->job->path);
            const bool written = !pdf.isEmpty() && file.open(QIODevice::WriteOnly)
                                 && file.write(pdf) == pdf.size() && file.commit();
            self->d->finishJob(lane, written);
        },
        lane->job->layout);
}

void PdfEngine::Private::finishJob(Lane *lane, bool ok)
{
    if (!lane->job)
        return;
    lane->watchdog.stop();
    ++lane->generation;
    Job job = std::move(*lane->job);
    lane->job.reset();
    lane->handler->clear();
    if (!ok)
        QFile::remove(job.path);
    if (job.done)
        job.done(ok);
    startNext();
}

} // namespace tabo
