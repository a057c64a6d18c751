#pragma once

#include <QString>

namespace tabo {

// A failure passed on to whoever shows it to the person: the core never
// presents errors itself.
struct Error
{
    QString domain;
    int code = 0;
    QString description;
    QString failureReason;

    bool isError() const { return code != 0 || !description.isEmpty(); }
    explicit operator bool() const { return isError(); }

    // One line for logs and the command line.
    QString message() const
    {
        return failureReason.isEmpty() ? description : description + QLatin1Char(' ') + failureReason;
    }

    static inline const QString kAppDomain = QStringLiteral("YOUR_ERROR_DOMAIN");
    // Files Tabo reads and writes itself (stores, copies, design files): the
    // description says what happened to which file.
    static inline const QString kFileDomain = QStringLiteral("TaboFile");
    static Error file(const QString &description) { return Error{kFileDomain, 1, description, {}}; }
};

} // namespace tabo
