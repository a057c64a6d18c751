#pragma once

#include "base/Date.h"
#include "store/PropertyList.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QStringList>

#include <bit>

namespace tabo::test {

// Equality down to the bits of every double (so -0.0 differs from 0.0 and NaN
// equals NaN), with the value types kept apart (1 is not 1.0).
inline bool identical(const QVariant &a, const QVariant &b)
{
    using plist::Kind;
    const Kind kind = plist::kindOf(a);
    if (kind != plist::kindOf(b))
        return false;
    switch (kind) {
    case Kind::Real:
        return std::bit_cast<quint64>(a.toDouble()) == std::bit_cast<quint64>(b.toDouble());
    case Kind::Date:
        return std::bit_cast<quint64>(a.value<Date>().referenceSeconds())
            == std::bit_cast<quint64>(b.value<Date>().referenceSeconds());
    case Kind::Uid:
        return a.value<plist::Uid>() == b.value<plist::Uid>();
    case Kind::Array: {
        const QVariantList x = a.toList(), y = b.toList();
        if (x.size() != y.size())
            return false;
        for (qsizetype i = 0; i < x.size(); ++i)
            if (!identical(x.at(i), y.at(i)))
                return false;
        return true;
    }
    case Kind::Dictionary: {
        const QVariantMap x = a.toMap(), y = b.toMap();
        if (x.keys() != y.keys())
            return false;
        for (auto it = x.begin(); it != x.end(); ++it)
            if (!identical(it.value(), y.value(it.key())))
                return false;
        return true;
    }
    case Kind::Unsupported:
        return false;
    default:
        return a == b;
    }
}

#ifdef TABO_SOURCE_DIR
inline QString sourceDir()
{
    return QStringLiteral(TABO_SOURCE_DIR);
}

// The shared fixtures sit beside the checkout unless TABO_FIXTURES says where.
inline QString fixturesDir()
{
    const QString env = qEnvironmentVariable("TABO_FIXTURES");
    return env.isEmpty() ? QDir::cleanPath(sourceDir() + QStringLiteral("/../shared/fixtures")) : env;
}

// Runs tests/plist/check_plist.py; returns its output, with `ok` set on exit 0.
inline QString runCheckPlist(const QStringList &arguments, bool *ok)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QStringLiteral("python3"),
        QStringList { sourceDir() + QStringLiteral("/tests/plist/check_plist.py") } + arguments);
    const bool finished = process.waitForFinished(60000);
    *ok = finished && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return QString::fromUtf8(process.readAll());
}

inline bool havePython()
{
    return !QStandardPaths::findExecutable(QStringLiteral("python3")).isEmpty();
}
#endif

} // namespace tabo::test
