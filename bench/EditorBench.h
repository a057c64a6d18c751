#pragma once

namespace tabo::bench {

// Speed of the design editors: recolouring after a keystroke in long texts,
// colouring a whole text at open, and the live preview from the last
// keystroke to a PDF ready to be shown. Needs a QGuiApplication made after
// PdfEngine::prepareApplication(). Prints one table.
int runEditorBench();

} // namespace tabo::bench
