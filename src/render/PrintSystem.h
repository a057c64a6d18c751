#pragma once

#include "base/Error.h"

#include <QString>
#include <QStringList>

namespace tabo {

// What the print dialog settles: the job goes to `printer` (empty: the
// system's default) with CUPS options such as "sides=two-sided-long-edge".
struct PrintRequest
{
    QString jobTitle;
    QString printer;
    int copies = 1;
    QStringList options; // "key=value" for lp -o
};

// Sends a PDF file itself (never a screen bitmap) to the print system
// through CUPS' `lp`, with the job title and the chosen printer's options.
class PrintSystem
{
public:
    static QStringList lpArguments(const QString &pdfPath, const PrintRequest &request);
    // Refused with a one-line reason when `lp` is missing or refuses the job.
    static Error printFile(const QString &pdfPath, const PrintRequest &request);
};

} // namespace tabo
