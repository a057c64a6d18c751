#pragma once

#include "app/Interaction.h"

#include <cstdio>

namespace tabo::bench {

// Nobody answers during a measurement: alerts and errors go to stderr,
// panels and the print dialog are cancelled.
class QuietInteraction : public Interaction
{
public:
    int alert(const QString &title, const QString &text, const QStringList &) override
    {
        std::fprintf(stderr, "alert: %s %s\n", qPrintable(title), qPrintable(text));
        return 0;
    }
    void presentError(const Error &e) override { std::fprintf(stderr, "error: %s\n", qPrintable(e.message())); }
    QString openFile(const FileRequest &) override { return {}; }
    QString saveFile(const FileRequest &) override { return {}; }
    bool openWithDefaultApplication(const QString &) override { return false; }
    bool printDialog(PrintRequest &) override { return false; }
};

} // namespace tabo::bench
