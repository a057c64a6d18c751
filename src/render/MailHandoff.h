#pragma once

#include "base/Error.h"

#include <QString>
#include <QStringList>

namespace tabo {

// A new, visible message in the person's mail program; they send it.
struct MailMessage
{
    QString subject;
    QString body;
    QString attachment; // a file path
    QString recipient;  // may be empty
};

// Hands a message to the desktop's mail program through `xdg-email`.
class MailHandoff
{
public:
    static QStringList arguments(const MailMessage &message);
    // A one-line reason when `xdg-email` is missing or fails.
    static Error compose(const MailMessage &message);
    // The person's words for a failed hand-off (never the tool's output).
    static QString noMailProgram();
    static QString reasonForExit(int code);
};

} // namespace tabo
