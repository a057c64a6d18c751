#pragma once

#include "cli/Command.h"
#include "render/PageRenderer.h"

#include <QList>

namespace tabo::cli {

// render: a document's page as HTML or PDF, as a reminder or delivery slip if
// asked, through the default design or the one named; or several documents,
// one PDF each, into a folder.
class RenderCommand : public Command
{
public:
    explicit RenderCommand(Session &session);
    int execute(const QStringList &args) override;

    // A file name made from a document number: no path separators or
    // characters other systems refuse, not hidden, never empty.
    static QString safeFileName(const QString &number, const QString &fallback);

private:
    int writeHtml(const RenderRequest &request, const QString &path);
    int writePdf(const RenderRequest &request, const QString &path);
    int writeFolder(const QList<RenderRequest> &requests, const QString &dir);
};

} // namespace tabo::cli
