#include "base/Date.h"

#include <QTimeZone>

namespace tabo {

Date Date::fromDateTime(const QDateTime &dt)
{
    if (!dt.isValid())
        return {};
    return fromUnixSeconds(double(dt.toMSecsSinceEpoch()) / 1000.0);
}

Date Date::fromIso8601(const QString &text)
{
    QDateTime dt = QDateTime::fromString(text.trimmed(), Qt::ISODateWithMs);
    if (!dt.isValid())
        dt = QDateTime::fromString(text.trimmed(), Qt::ISODate);
    if (!dt.isValid())
        return {};
    return fromDateTime(dt);
}

QDateTime Date::toDateTime() const
{
    if (!m_valid)
        return {};
    return QDateTime::fromMSecsSinceEpoch(qint64(std::llround(unixSeconds() * 1000.0)),
                                          Qt::UTC);
}

QString Date::toIso8601() const
{
    return m_valid ? toDateTime().toString(Qt::ISODateWithMs) : QString();
}

} // namespace tabo
