#include "editing/SyntaxColorizer.h"

#include "prefs/Preferences.h"

#include <QPointer>
#include <QSyntaxHighlighter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTimer>

namespace tabo {

class SyntaxColorizer::Highlighter : public QSyntaxHighlighter
{
public:
    explicit Highlighter(SyntaxColorizer &owner)
        : QSyntaxHighlighter(static_cast<QObject *>(nullptr))
        , m_owner(owner)
    {
    }

protected:
    void highlightBlock(const QString &text) override
    {
        // The modes decide everything; a constant state keeps the highlighter
        // from running on into the following blocks by itself.
        setCurrentBlockState(0);
        const SyntaxColoring::Modes &modes = m_owner.m_modes;
        const qsizetype base = currentBlock().position();
        const qsizetype end = std::min<qsizetype>(base + text.size(), qsizetype(modes.size()));
        for (qsizetype i = base; i < end;) {
            const std::uint8_t mode = modes[i];
            qsizetype j = i + 1;
            while (j < end && modes[j] == mode)
                ++j;
            if (mode && mode < m_owner.m_formats.size())
                setFormat(int(i - base), int(j - i), m_owner.m_formats.at(mode));
            i = j;
        }
    }

private:
    SyntaxColorizer &m_owner;
};

SyntaxColorizer::SyntaxColorizer(const QString &definitionName, const Preferences &prefs, QTextDocument *document,
                                 QObject *parent)
    : QObject(parent)
    , m_prefs(prefs)
    , m_document(document)
    , m_baseDefinition(SyntaxDefinition::load(definitionName))
    , m_highlighter(std::make_unique<Highlighter>(*this))
{
    // A document tells of its edits only once it has a layout.
    document->documentLayout();
    // Connected before the highlighter's own slot, so the modes are current
    // when it paints the edited blocks.
    connect(document, &QTextDocument::contentsChange, this, &SyntaxColorizer::contentsChange);
    m_text = document->toPlainText();
    m_modes.assign(m_text.size(), 0);
    m_highlighter->setDocument(document);
    reloadColors();
}

SyntaxColorizer::~SyntaxColorizer()
{
    if (m_highlighter)
        m_highlighter->setDocument(nullptr);
}

void SyntaxColorizer::reloadColors()
{
    m_definition = m_baseDefinition.withPreferences(m_prefs);
    m_formats.clear();
    m_formats.resize(m_definition.modeCount() + 1);
    for (int mode = 1; mode <= m_definition.modeCount(); ++mode) {
        const QColor color = m_definition.modeColor(mode);
        if (color.isValid())
            m_formats[mode].setForeground(color);
    }
    recolorAll();
}

void SyntaxColorizer::recolorAll()
{
    recolorRange(0, qsizetype(m_modes.size()));
}

void SyntaxColorizer::recolorRange(qsizetype location, qsizetype length)
{
    if (m_busy)
        return;
    m_busy = true;
    const QString &text = m_text;
    m_modes.resize(text.size(), 0);
    location = std::clamp<qsizetype>(location, 0, text.size());
    length = std::clamp<qsizetype>(length, 0, text.size() - location);
    const SyntaxColoring::Modes coloured =
        SyntaxColoring::colorText(QStringView(text).mid(location, length), m_definition);
    std::copy(coloured.begin(), coloured.end(), m_modes.begin() + location);
    m_last = {location, length};

    // Painting marks the document changed, which must not count as an edit.
    m_painting = true;
    if (location == 0 && length == text.size()) {
        m_highlighter->rehighlight();
    } else {
        const QTextBlock last = m_document->findBlock(int(location + length));
        for (QTextBlock b = m_document->findBlock(int(location)); b.isValid(); b = b.next()) {
            m_highlighter->rehighlightBlock(b);
            if (b == last)
                break;
        }
    }
    m_painting = false;
    m_busy = false;
}

void SyntaxColorizer::contentsChange(int position, int removed, int added)
{
    if (m_painting || m_busy)
        return;
    // Keep the modes in step with the text, then colour what the edit touched.
    const qsizetype size = qsizetype(m_modes.size());
    const qsizetype at = std::clamp<qsizetype>(position, 0, size);
    m_modes.erase(m_modes.begin() + at, m_modes.begin() + std::min<qsizetype>(at + removed, size));
    // Typed text takes on the mode before it, as typed text takes on the
    // attributes there: typing inside a comment is typing comment.
    const std::uint8_t inherited = at > 0 ? m_modes[at - 1] : 0;
    m_modes.insert(m_modes.begin() + at, std::size_t(added), inherited);

    syncText(position, removed, added);
    const QString &text = m_text;
    m_modes.resize(text.size(), 0);
    if (m_indent && removed == 0 && added == 1 && position < text.size() && text.at(position) == QLatin1Char('\n')) {
        // Not inside the document's own change: on the next turn of the loop.
        QTimer::singleShot(0, this, [this, position] { keepIndentation(position); });
    }
    if (!m_auto)
        return;
    const SyntaxColoring::Range range =
        SyntaxColoring::rangeToRecolor(text, m_modes, {position, added}, removed != added);
    if (range.length > 0)
        recolorRange(range.location, range.length);
}

void SyntaxColorizer::syncText(int position, int removed, int added)
{
    // The whole text is copied only when the change does not fit the copy
    // (a document replaced whole counts its closing separator).
    const qsizetype documentSize = m_document->characterCount() - 1;
    if (position < 0 || position + removed > m_text.size() || position + added > documentSize) {
        m_text = m_document->toPlainText();
        return;
    }
    QTextCursor cursor(m_document);
    cursor.setPosition(position);
    cursor.setPosition(position + added, QTextCursor::KeepAnchor);
    QString inserted = cursor.selectedText();
    // As the document's plain text has them.
    for (QChar &c : inserted) {
        if (c == QChar::ParagraphSeparator || c == QChar::LineSeparator)
            c = QLatin1Char('\n');
        else if (c == QChar::Nbsp)
            c = QLatin1Char(' ');
    }
    m_text.replace(position, removed, inserted);
    if (m_text.size() != documentSize)
        m_text = m_document->toPlainText();
}

void SyntaxColorizer::keepIndentation(int breakPosition)
{
    const QString &text = m_text;
    if (breakPosition >= text.size() || text.at(breakPosition) != QLatin1Char('\n'))
        return;
    const QString indentation = SyntaxColoring::indentationBefore(text, breakPosition);
    if (indentation.isEmpty())
        return;
    QTextCursor cursor(m_document);
    cursor.setPosition(breakPosition + 1);
    // Part of the return's step in the undo history.
    cursor.joinPreviousEditBlock();
    cursor.insertText(indentation);
    cursor.endEditBlock();
}

QString SyntaxColorizer::modeAt(qsizetype position) const
{
    if (position < 0 || position >= qsizetype(m_modes.size()))
        return {};
    return m_definition.modeName(m_modes[position]);
}

QColor SyntaxColorizer::colorAt(qsizetype position) const
{
    const QTextBlock block = m_document->findBlock(int(position));
    if (!block.isValid() || !block.layout())
        return {};
    const int inBlock = int(position - block.position());
    for (const QTextLayout::FormatRange &r : block.layout()->formats()) {
        if (inBlock >= r.start && inBlock < r.start + r.length)
            return r.format.foreground().color();
    }
    return {};
}

} // namespace tabo
