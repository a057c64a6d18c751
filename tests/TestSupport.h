#pragma once

#include "base/Clock.h"
#include "base/Date.h"

#include <QTemporaryDir>

namespace tabo::test {

// Points HOME and the XDG folders at a fresh temporary folder for the life of
// the object, so that stores and settings never touch the developer's own.
class TempHome
{
public:
    TempHome();
    ~TempHome();
    QString path() const { return m_dir.path(); }
    QString dataDir() const;   // $XDG_DATA_HOME/Tabo
    QString configFile() const; // $XDG_CONFIG_HOME/Tabo/Tabo.conf

private:
    QTemporaryDir m_dir;
    QByteArray m_old[5];
};

// Seconds since 2001-01-01 UTC for a UTC calendar time, for readable fixtures.
Date utc(int year, int month, int day, int hour = 12, int minute = 0, int second = 0);

} // namespace tabo::test
