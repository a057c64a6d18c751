#pragma once

#include <QString>

namespace tabo::bench {

// Speed of rendering a document: the page HTML, the PDF from a warm engine,
// the command line from start to exit (one document and a hundred), and
// other HTML-to-PDF programs on the same page. Needs a QGuiApplication made
// after PdfEngine::prepareApplication(). Prints one table; returns non-zero
// only when the documents cannot be made.
int runRenderBench(const QString &cliPath);

} // namespace tabo::bench
