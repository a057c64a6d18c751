#include "render/PageGuard.h"

#include <QRegularExpression>

#include <QFileInfo>
#include <QWebEngineUrlRequestInfo>

namespace tabo {

namespace {
// Enough to diagnose a page; a hostile page cannot grow it without end.
constexpr qsizetype MaxRecorded = 1000;
}

PageGuard::PageGuard(QObject *parent)
    : QWebEngineUrlRequestInterceptor(parent)
{
}

void PageGuard::setAllowedLocalFile(const QString &path)
{
    m_allowedFile = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
}

bool PageGuard::allows(const QUrl &url) const
{
    if (url.scheme() == QLatin1String("data"))
        return true;
    if (url == m_pageUrl)
        return true;
    if (url.isLocalFile() && !m_allowedFile.isEmpty()) {
        // Compared after resolving links and "..", so no other file can pass
        // itself off as the allowed one.
        const QFileInfo requested(url.toLocalFile());
        const QString canonical = requested.canonicalFilePath();
        return !canonical.isEmpty() && canonical == QFileInfo(m_allowedFile).canonicalFilePath();
    }
    return false;
}

void PageGuard::recordBlocked(const QUrl &url)
{
    if (m_blocked.size() < MaxRecorded)
        m_blocked.append(url.toString());
}

void PageGuard::interceptRequest(QWebEngineUrlRequestInfo &info)
{
    if (allows(info.requestUrl()))
        return;
    info.block(true);
    recordBlocked(info.requestUrl());
}

QByteArray PageGuard::withoutRefresh(QByteArray html)
{
    // Any <meta> naming "refresh" in its http-equiv, however quoted or spaced.
    static const QRegularExpression refresh(
        QStringLiteral("<meta\\b[^>]*http-equiv\\s*=\\s*[\"']?\\s*refresh[^>]*>"),
        QRegularExpression::CaseInsensitiveOption);
    if (!html.contains("efresh") && !html.contains("EFRESH"))
        return html;
    QString text = QString::fromUtf8(html);
    text.replace(refresh, QString());
    return text.toUtf8();
}

} // namespace tabo
