#include "render/PageSetup.h"

#include "prefs/Preferences.h"

namespace tabo {

QString PageSetup::paperNameForSize(qint64 tempPaperSize)
{
    switch (tempPaperSize) {
    case 1:
        return QStringLiteral("na-legal");
    case 2:
        return QStringLiteral("iso-a4");
    case 3:
        return QStringLiteral("jis-b4");
    case 4:
        return QStringLiteral("jis-b5");
    default:
        return QStringLiteral("na-letter");
    }
}

QPageSize PageSetup::pageSizeForName(const QString &paperName)
{
    if (paperName == QLatin1String("na-legal"))
        return QPageSize(QPageSize::Legal);
    if (paperName == QLatin1String("iso-a4"))
        return QPageSize(QPageSize::A4);
    if (paperName == QLatin1String("jis-b4"))
        return QPageSize(QPageSize::JisB4);
    if (paperName == QLatin1String("jis-b5"))
        return QPageSize(QPageSize::JisB5);
    return QPageSize(QPageSize::Letter);
}

QMarginsF PageSetup::marginsFor(bool borderless)
{
    if (borderless)
        return QMarginsF(0, 0, 0, 0);
    return QMarginsF(40, 40, 40, 60);
}

PageSetup PageSetup::fromPreferences(const Preferences &prefs)
{
    PageSetup setup;
    setup.paperName = paperNameForSize(prefs.integer(Preferences::tempPaperSize));
    setup.margins = marginsFor(prefs.boolean(Preferences::printBorderless));
    return setup;
}

QPageLayout PageSetup::pageLayout() const
{
    // The minimum margins stay zero: a PDF has no unprintable border.
    return QPageLayout(pageSize(), QPageLayout::Portrait, margins, QPageLayout::Point);
}

} // namespace tabo
