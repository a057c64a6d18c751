#pragma once

#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QString>

namespace tabo {

class Preferences;

// Paper and margins of every rendering, from `tempPaperSize` and
// `printBorderless`.
struct PageSetup
{
    QString paperName = QStringLiteral("na-letter"); // the print system's name
    QMarginsF margins{40, 40, 40, 60};               // points: left, top, right, bottom
    bool centred = true;
    // The line numbering the pages of a document of several pages (see
    // PageStamp); empty for none.
    QString pageStamp;
    // More pages than a document's content can fill mean a design that lays
    // out without end; such a PDF is not written. 0 for no limit.
    int maxPages = 0;

    // 0 "na-letter", 1 "na-legal", 2 "iso-a4", 3 "jis-b4", 4 "jis-b5"; any other "na-letter".
    static QString paperNameForSize(qint64 tempPaperSize);
    static QPageSize pageSizeForName(const QString &paperName);
    // Borderless: all zero; otherwise 40 top, left, right and 60 bottom.
    static QMarginsF marginsFor(bool borderless);
    static PageSetup fromPreferences(const Preferences &prefs);

    QPageSize pageSize() const { return pageSizeForName(paperName); }
    QPageLayout pageLayout() const;
};

} // namespace tabo
