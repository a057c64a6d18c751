#pragma once

#include "base/Date.h"

namespace tabo {

// Every "now" of the system comes from here, so that tests can fix the time
// for due dates, overdue states, time filters and numbering by date.
class Clock
{
public:
    virtual ~Clock() = default;
    virtual Date now() const;

    static const Clock &instance();
    // Tests install their own clock; nullptr restores the system clock.
    static void setInstance(const Clock *clock);
};

// A clock that stands still until it is moved.
class FixedClock : public Clock
{
public:
    explicit FixedClock(Date now) : m_now(now) {}
    Date now() const override { return m_now; }
    void set(Date now) { m_now = now; }
    void advance(double seconds) { m_now = m_now.addSeconds(seconds); }

private:
    Date m_now;
};

inline Date now() { return Clock::instance().now(); }

// Due dates and validity: whole days of 24 hours from now.
inline Date futureDateFromTodayWithDays(qint64 days) { return now().addSeconds(86400.0 * double(days)); }

} // namespace tabo
