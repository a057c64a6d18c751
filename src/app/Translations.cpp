#include "app/Translations.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace tabo {

QStringList translationFolders()
{
    const QString binDir = QCoreApplication::applicationDirPath();
    return { binDir + QStringLiteral("/translations"), binDir + QStringLiteral("/../share/tabo/translations") };
}

QString installTranslations(QCoreApplication &application, const QStringList &folders)
{
    const QLocale locale;
    QString loaded;
    auto *own = new QTranslator(&application);
    for (const QString &folder : folders) {
        if (own->load(locale, QStringLiteral("tabo"), QStringLiteral("_"), folder)) {
            application.installTranslator(own);
            loaded = own->filePath();
            break;
        }
    }
    // Without ours, Qt's own would make a half-translated window.
    if (loaded.isEmpty()) {
        delete own;
        return loaded;
    }
    auto *qt = new QTranslator(&application);
    if (qt->load(
            locale, QStringLiteral("qtbase"), QStringLiteral("_"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        application.installTranslator(qt);
    else
        delete qt;
    return loaded;
}

} // namespace tabo
