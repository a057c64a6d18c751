#include "gui/widgets/PlainTextField.h"

#include <QMimeData>
#include <QTextDocument>

namespace tabo {

PlainTextField::PlainTextField(QWidget *parent)
    : QPlainTextEdit(parent)
{
    // Tab moves on to the next field, as in every other field of the editor.
    setTabChangesFocus(true);
}

void PlainTextField::setVisibleLines(int lines)
{
    m_lines = lines;
    setMinimumHeight(sizeHint().height());
    updateGeometry();
}

QSize PlainTextField::sizeHint() const
{
    QSize hint = QPlainTextEdit::sizeHint();
    if (m_lines > 0) {
        const int frame = 2 * frameWidth() + int(2 * document()->documentMargin());
        hint.setHeight(fontMetrics().lineSpacing() * m_lines + frame);
    }
    return hint;
}

void PlainTextField::setTextIfChanged(const QString &text)
{
    if (toPlainText() != text) {
        wrapFor(text);
        setPlainText(text);
    }
    setModified(false);
}

bool PlainTextField::isModified() const
{
    return document()->isModified();
}

void PlainTextField::setModified(bool modified)
{
    document()->setModified(modified);
}

void PlainTextField::wrapFor(const QString &text)
{
    constexpr qsizetype kLongRun = 2000;
    qsizetype run = 0;
    bool longRun = false;
    for (const QChar c : text) {
        run = c.isSpace() ? 0 : run + 1;
        if (run > kLongRun) {
            longRun = true;
            break;
        }
    }
    if (longRun)
        setWordWrapMode(QTextOption::WrapAnywhere);
}

void PlainTextField::insertFromMimeData(const QMimeData *source)
{
    if (source && source->hasText())
        wrapFor(source->text());
    QPlainTextEdit::insertFromMimeData(source);
}

void PlainTextField::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    if (isModified())
        Q_EMIT editingFinished();
}

} // namespace tabo
