#include "TestSupport.h"

#include <QDateTime>
#include <QDir>
#include <QTimeZone>

namespace tabo::test {

namespace {
const char *const kVars[5] = {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_DOCUMENTS_DIR", "XDG_CACHE_HOME"};
}

TempHome::TempHome()
{
    for (int i = 0; i < 5; ++i)
        m_old[i] = qgetenv(kVars[i]);
    const QString home = m_dir.path();
    qputenv("HOME", home.toUtf8());
    qputenv("XDG_DATA_HOME", (home + QStringLiteral("/.local/share")).toUtf8());
    qputenv("XDG_CONFIG_HOME", (home + QStringLiteral("/.config")).toUtf8());
    qputenv("XDG_DOCUMENTS_DIR", (home + QStringLiteral("/Documents")).toUtf8());
    qputenv("XDG_CACHE_HOME", (home + QStringLiteral("/.cache")).toUtf8());
    QDir(home).mkpath(QStringLiteral("Documents"));
}

TempHome::~TempHome()
{
    for (int i = 0; i < 5; ++i) {
        if (m_old[i].isNull())
            qunsetenv(kVars[i]);
        else
            qputenv(kVars[i], m_old[i]);
    }
}

QString TempHome::dataDir() const
{
    return m_dir.path() + QStringLiteral("/.local/share/Tabo");
}

QString TempHome::configFile() const
{
    return m_dir.path() + QStringLiteral("/.config/Tabo/Tabo.conf");
}

Date utc(int year, int month, int day, int hour, int minute, int second)
{
    return Date::fromDateTime(QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC));
}

} // namespace tabo::test
