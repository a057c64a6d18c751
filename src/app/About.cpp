#include "app/About.h"

#include <QtGlobal>
#include <QtWebEngineCore/qtwebenginecoreglobal.h>

#include <plist/plist.h>
#include <qpdf/QPDF.hh>
#include <qrencode.h>
#include <sqlite3.h>
#include <unicode/uversion.h>

namespace tabo {

QList<LibraryVersion> libraryVersions()
{
    UVersionInfo icu;
    u_getVersion(icu);
    char icuText[U_MAX_VERSION_STRING_LENGTH] = {};
    u_versionToString(icu, icuText);
    return {
        { QStringLiteral("Qt"), QString::fromLatin1(qVersion()) },
        { QStringLiteral("Qt WebEngine (Chromium %1)").arg(QString::fromLatin1(qWebEngineChromiumVersion())),
            QString::fromLatin1(qWebEngineVersion()) },
        { QStringLiteral("SQLite"), QString::fromLatin1(sqlite3_libversion()) },
        { QStringLiteral("ICU"), QString::fromLatin1(icuText) },
        { QStringLiteral("libplist"), QStringLiteral(TABO_PLIST_VERSION) },
        { QStringLiteral("qpdf"), QString::fromStdString(QPDF::QPDFVersion()) },
        { QStringLiteral("libqrencode"), QString::fromLatin1(QRcode_APIVersionString()) },
    };
}

} // namespace tabo
