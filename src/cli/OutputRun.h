#pragma once

#include "base/Result.h"

#include <QString>

namespace tabo {
class Record;
}

namespace tabo::cli {

class Session;

// What the output commands share: a document sent through the export sheet
// as the OK button does, and designs found by title.
class OutputRun
{
public:
    // Selects the document, renders it for the export sheet of `kind` and
    // presses OK. The exit code; a failure has been told on stderr.
    static int exportDocument(Session &session, const QString &idOrNumber, int kind);
    // The design with this title (or unique ID); refused with a one-line
    // reason when there is none or the title is not unique.
    static Result<Record *> design(Session &session, const QString &titleOrId);
};

} // namespace tabo::cli
