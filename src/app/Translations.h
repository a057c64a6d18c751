#pragma once

#include <QStringList>

class QCoreApplication;

namespace tabo {

// Where a program looks for its compiled translations: beside the binary in
// a build tree, under share/tabo/translations when installed.
QStringList translationFolders();

// Installs the translation for the person's interface language (LANGUAGE,
// LC_MESSAGES, LANG) and Qt's own for its standard dialogs. A missing file
// leaves the interface in English. Returns the loaded translation's file, or
// an empty string.
QString installTranslations(QCoreApplication &application, const QStringList &folders = translationFolders());

} // namespace tabo
