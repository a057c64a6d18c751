#pragma once

#include <QByteArray>
#include <QUrl>
#include <QWebEngineUrlSchemeHandler>

namespace tabo {

class PageGuard;

// Serves the page being rendered under its own scheme. A data: URL (what
// setHtml uses) stops at 2 MB, and a long invoice is longer; a scheme also
// keeps every page at one origin, so the engine reuses its renderer, and
// the scheme is the one origin allowed to read the logo file.
class PageSchemeHandler : public QWebEngineUrlSchemeHandler
{
    Q_OBJECT

public:
    static QByteArray schemeName();
    // Before the web engine starts (prepareApplication).
    static void registerScheme();

    PageSchemeHandler(PageGuard &guard, QObject *parent = nullptr);

    // The next page: its URL, and the bytes served for it.
    QUrl setPage(const QByteArray &html);
    void clear() { m_html.clear(); }

    void requestStarted(QWebEngineUrlRequestJob *job) override;

private:
    PageGuard &m_guard;
    QByteArray m_html;
    QUrl m_url;
    quint64 m_serial = 0;
};

} // namespace tabo
