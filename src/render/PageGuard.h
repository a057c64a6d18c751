#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>
#include <QWebEngineUrlRequestInterceptor>

namespace tabo {

// What a page being rendered may load: itself, data: URLs and the one allowed
// local file. Everything else (network, other files, other schemes) is
// refused and remembered.
class PageGuard : public QWebEngineUrlRequestInterceptor
{
    Q_OBJECT

public:
    explicit PageGuard(QObject *parent = nullptr);

    void setPageUrl(const QUrl &url) { m_pageUrl = url; }
    QUrl pageUrl() const { return m_pageUrl; }
    void setAllowedLocalFile(const QString &path);

    bool allows(const QUrl &url) const;
    void recordBlocked(const QUrl &url);
    QStringList blockedRequests() const { return m_blocked; }

    void interceptRequest(QWebEngineUrlRequestInfo &info) override;

    // The page without refresh redirects: a refused navigation that the page
    // itself starts while it is printed can bring the engine down, and a
    // printout has nothing to refresh.
    static QByteArray withoutRefresh(QByteArray html);

private:
    QUrl m_pageUrl;
    QString m_allowedFile; // canonical path, empty when none
    QStringList m_blocked;
};

} // namespace tabo
