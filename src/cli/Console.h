#pragma once

#include <QString>

namespace tabo::cli {

// Exit codes of every command.
inline constexpr int kExitOk = 0;
inline constexpr int kExitFailure = 1;
inline constexpr int kExitUsage = 2;

// Standard output and error in UTF-8, whatever the locale says.
void printOut(const QString &text);
// One line on standard error.
void printError(const QString &line);

} // namespace tabo::cli
