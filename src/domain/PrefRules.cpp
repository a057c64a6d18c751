#include "domain/PrefRules.h"

#include "domain/Numbering.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace {
struct Tr
{
    Q_DECLARE_TR_FUNCTIONS(PrefRules)
};
} // namespace

namespace tabo::PrefRules {

namespace {
using P = Preferences;

QString bounded(qint64 n, qint64 maximum, const QString &what)
{
    if (n < 0)
        return Tr::tr("%1 cannot be below 0.").arg(what);
    if (n > maximum)
        return Tr::tr("%1 cannot be above %2.").arg(what).arg(maximum);
    return {};
}
} // namespace

QString refusal(Preferences::Key key, const QVariant &value)
{
    switch (key) {
    case P::invCount:
    case P::quotCount:
    case P::clientCount:
        return bounded(value.toLongLong(), kMaxCounter, Tr::tr("The counter"));
    case P::invDefaultDueDate:
    case P::quotDefaultValidity:
        return bounded(value.toLongLong(), kMaxDays, Tr::tr("The number of days"));
    case P::invPattern:
    case P::quotPattern:
    case P::clientPattern:
        return Numbering::patternRefusal(value.toString());
    case P::tax1Rate:
    case P::tax2Rate:
    case P::tax3Rate: {
        const double rate = value.toDouble();
        if (rate < 0)
            return Tr::tr("The rate cannot be below 0 %.");
        if (rate > kMaxRate)
            return Tr::tr("The rate cannot be above 1000 % (rates are fractions: 0.19 is 19 %).");
        return {};
    }
    case P::prefsRegion: {
        const QString name = value.toString().trimmed();
        // A name QLocale does not know falls back to "C".
        if (!name.isEmpty() && QLocale(name).name() == QLatin1String("C"))
            return Tr::tr("“%1” is no region; use a name such as de_DE or fr_FR.").arg(name);
        return {};
    }
    case P::customDatabasePath: {
        const QString folder = value.toString();
        if (folder.isEmpty())
            return {};
        if (QDir::isRelativePath(folder))
            return Tr::tr("“%1” is not an absolute path; name the folder from the root (/…).").arg(folder);
        if (!QFileInfo(folder).isDir())
            return Tr::tr("The folder “%1” does not exist.").arg(folder);
        return {};
    }
    default:
        return {};
    }
}

} // namespace tabo::PrefRules
