#include "gui/PlainTextField.h"

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
    if (toPlainText() != text)
        setPlainText(text);
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

void PlainTextField::focusOutEvent(QFocusEvent *event)
{
    QPlainTextEdit::focusOutEvent(event);
    if (isModified())
        Q_EMIT editingFinished();
}

} // namespace tabo
