#pragma once

#include "editing/SyntaxColoring.h"
#include "editing/SyntaxDefinition.h"

#include <QColor>
#include <QObject>
#include <QTextCharFormat>
#include <QVector>

#include <memory>

class QTextDocument;

namespace tabo {

class Preferences;

// Colours a text document as it is edited, by the syntax definition of the
// given name ("HTML" for pages and rows, "CSS" for stylesheets). Each edit
// recolours only its lines, widened to the whole run it touched; the modes
// are kept beside the document and painted by a syntax highlighter, so
// colouring never enters the undo history.
class SyntaxColorizer : public QObject
{
    Q_OBJECT

public:
    SyntaxColorizer(const QString &definitionName, const Preferences &prefs, QTextDocument *document,
                    QObject *parent = nullptr);
    ~SyntaxColorizer() override;

    // `autoSyntaxColoring`: colour on every edit (on by default).
    bool autoSyntaxColoring() const { return m_auto; }
    void setAutoSyntaxColoring(bool on) { m_auto = on; }
    // `maintainIndentation`: a return carries the line's indentation (on).
    bool maintainIndentation() const { return m_indent; }
    void setMaintainIndentation(bool on) { m_indent = on; }

    // Reads the colours from the preferences again and colours everything.
    void reloadColors();
    // `recolorRange`, and the whole text.
    void recolorRange(qsizetype location, qsizetype length);
    void recolorAll();

    const SyntaxDefinition &definition() const { return m_definition; }
    // The component name of the character at `position` (empty: plain).
    QString modeAt(qsizetype position) const;
    // The colour painted at `position` (invalid: the text's own).
    QColor colorAt(qsizetype position) const;
    // The range coloured last (tests and measurements).
    SyntaxColoring::Range lastRecolored() const { return m_last; }

private:
    class Highlighter;
    void contentsChange(int position, int removed, int added);
    void syncText(int position, int removed, int added);
    void keepIndentation(int breakPosition);

    const Preferences &m_prefs;
    QTextDocument *m_document;
    SyntaxDefinition m_baseDefinition;
    SyntaxDefinition m_definition;
    QVector<QTextCharFormat> m_formats; // by mode
    // The document's plain text, kept in step edit by edit: copying it whole
    // on every keystroke would cost more than colouring.
    QString m_text;
    SyntaxColoring::Modes m_modes;
    std::unique_ptr<Highlighter> m_highlighter;
    SyntaxColoring::Range m_last;
    bool m_auto = true;
    bool m_indent = true;
    bool m_busy = false;
    bool m_painting = false;
};

} // namespace tabo
