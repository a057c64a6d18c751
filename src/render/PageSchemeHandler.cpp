#include "render/PageSchemeHandler.h"

#include "render/PageGuard.h"

#include <QBuffer>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>

namespace tabo {

QByteArray PageSchemeHandler::schemeName()
{
    return QByteArrayLiteral("tabo-page");
}

void PageSchemeHandler::registerScheme()
{
    if (QWebEngineUrlScheme::schemeByName(schemeName()).name() == schemeName())
        return;
    QWebEngineUrlScheme scheme(schemeName());
    scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
    // Lets the page reach file: URLs at all; the guard narrows that to the
    // one allowed file.
    scheme.setFlags(QWebEngineUrlScheme::LocalAccessAllowed);
    QWebEngineUrlScheme::registerScheme(scheme);
}

PageSchemeHandler::PageSchemeHandler(PageGuard &guard, QObject *parent)
    : QWebEngineUrlSchemeHandler(parent)
    , m_guard(guard)
{
}

QUrl PageSchemeHandler::setPage(const QByteArray &html)
{
    m_html = html;
    m_url = QUrl(QStringLiteral("%1://document/%2.html").arg(QLatin1String(schemeName())).arg(++m_serial));
    return m_url;
}

void PageSchemeHandler::requestStarted(QWebEngineUrlRequestJob *job)
{
    if (job->requestUrl() != m_url || job->requestMethod() != "GET") {
        m_guard.recordBlocked(job->requestUrl());
        job->fail(QWebEngineUrlRequestJob::RequestDenied);
        return;
    }
    auto *buffer = new QBuffer(job);
    buffer->setData(m_html);
    buffer->open(QIODevice::ReadOnly);
    job->reply(QByteArrayLiteral("text/html;charset=utf-8"), buffer);
}

} // namespace tabo
