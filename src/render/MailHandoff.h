#pragma once

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
    // False with a one-line reason when `xdg-email` is missing or fails.
    static bool compose(const MailMessage &message, QString *error);
    // The person's words for a failed hand-off (never the tool's output).
    static QString noMailProgram();
    static QString reasonForExit(int code);
};

} // namespace tabo
