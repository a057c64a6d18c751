#include "render/GuardedPage.h"

#include "render/PageGuard.h"

namespace tabo {

GuardedPage::GuardedPage(QWebEngineProfile *profile, PageGuard &guard, QObject *parent)
    : QWebEnginePage(profile, parent)
    , m_guard(guard)
{
}

bool GuardedPage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame)
{
    // Frames may show data: URLs like the page may use them for images;
    // anything else the guard refuses here, before the engine asks it.
    if ((isMainFrame && url == m_guard.pageUrl()) || (!isMainFrame && m_guard.allows(url)))
        return true;
    m_guard.recordBlocked(url);
    return false;
}

} // namespace tabo
