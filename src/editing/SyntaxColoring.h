#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>
#include <vector>

namespace tabo {

class SyntaxDefinition;

// The colouring itself, on plain text: what mode (component name) each
// character has. Kept apart from the text document so that it can be tested
// and measured on its own.
namespace SyntaxColoring {

using Modes = std::vector<std::uint8_t>;

struct Range
{
    qsizetype location = 0;
    qsizetype length = 0;
    friend bool operator==(const Range &, const Range &) = default;
};

// The modes of `text` by the definition's components, applied in order:
// a later component's run overwrites an earlier one's.
Modes colorText(QStringView text, const SyntaxDefinition &definition);

// The range to colour again after an edit that left `edited` (location and
// length in the new text) changed: the whole lines around it, joined with
// the run of the mode found at its start so that typing inside a comment or
// string recolours all of it. An edit that kept the length (attributes only)
// gets one character of context on each side. Empty when nothing is to do.
Range rangeToRecolor(QStringView text, const Modes &modes, Range edited, bool lengthChanged);

// The spaces and tabs that begin the line before the line break at
// `breakPosition`: what a return carries into the new line.
QString indentationBefore(QStringView text, qsizetype breakPosition);

} // namespace SyntaxColoring

} // namespace tabo
