#pragma once

#include <QDateTime>
#include <QMetaType>
#include <QString>

#include <cmath>

namespace tabo {

// A point in time as seconds since 2001-01-01 00:00:00 UTC, kept as a double
// so that stored and exchanged dates round-trip bit for bit (QDateTime stops at
// milliseconds).
class Date
{
public:
    Date() = default;
    static Date fromReferenceSeconds(double secs) { return Date(secs); }
    static Date fromUnixSeconds(double secs) { return Date(secs - kUnixToReference); }
    static Date fromDateTime(const QDateTime &dt);
    // ISO 8601 with optional fraction and zone; invalid Date when unparsable.
    static Date fromIso8601(const QString &text);

    bool isValid() const { return m_valid; }
    double referenceSeconds() const { return m_secs; }
    double unixSeconds() const { return m_secs + kUnixToReference; }
    QDateTime toDateTime() const;
    // UTC, with milliseconds: "2026-11-22T10:15:00.000Z".
    QString toIso8601() const;

    Date addSeconds(double s) const { return m_valid ? Date(m_secs + s) : Date(); }
    Date addDays(int days) const { return addSeconds(86400.0 * days); }

    friend bool operator==(const Date &a, const Date &b)
    {
        return a.m_valid == b.m_valid && (!a.m_valid || a.m_secs == b.m_secs);
    }
    friend bool operator!=(const Date &a, const Date &b) { return !(a == b); }
    friend bool operator<(const Date &a, const Date &b) { return a.m_secs < b.m_secs; }

    static constexpr double kUnixToReference = 978307200.0;

private:
    explicit Date(double secs) : m_secs(secs), m_valid(!std::isnan(secs)) {}
    double m_secs = 0;
    bool m_valid = false;
};

// Noon of `day` where the person is: a day that gains or loses an hour to
// daylight saving still holds it, and so does the day 24 hours later.
inline Date noonOf(QDate day)
{
    return Date::fromDateTime(QDateTime(day, QTime(12, 0)));
}

} // namespace tabo

Q_DECLARE_METATYPE(tabo::Date)
