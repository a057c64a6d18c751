#include "base/Clock.h"

#include <QDateTime>

namespace tabo {

namespace {
const Clock *g_clock = nullptr;
}

Date Clock::now() const
{
    return Date::fromDateTime(QDateTime::currentDateTimeUtc());
}

const Clock &Clock::instance()
{
    static const Clock system;
    return g_clock ? *g_clock : system;
}

void Clock::setInstance(const Clock *clock)
{
    g_clock = clock;
}

} // namespace tabo
