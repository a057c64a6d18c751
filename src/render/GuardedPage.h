#pragma once

#include <QWebEnginePage>

namespace tabo {

class PageGuard;

// The off-screen page: follows no navigation but to the page being rendered
// (no frames of other files, no refresh redirects) and keeps quiet.
class GuardedPage : public QWebEnginePage
{
    Q_OBJECT

public:
    GuardedPage(QWebEngineProfile *profile, PageGuard &guard, QObject *parent = nullptr);

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &, int, const QString &) override {}
    QWebEnginePage *createWindow(WebWindowType) override { return nullptr; }

private:
    PageGuard &m_guard;
};

} // namespace tabo
