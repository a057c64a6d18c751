#pragma once

#include <QString>
#include <QStringList>

namespace tabo::cli {

// Exit codes of every command.
inline constexpr int kExitOk = 0;
inline constexpr int kExitFailure = 1;
inline constexpr int kExitUsage = 2;

// Standard output and error in UTF-8, whatever the locale says.
void printOut(const QString &text);
// One line on standard error.
void printError(const QString &line);
// The refusal of a name that picks several records: the command could act on
// the wrong one, so it lists their IDs instead.
QString ambiguousName(const QString &name, const QString &what, const QStringList &ids);

} // namespace tabo::cli
