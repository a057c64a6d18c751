#include "gui/widgets/HintLabel.h"

namespace tabo {

HintLabel::HintLabel(QWidget *parent)
    : QLabel(parent)
{
    setWordWrap(true);
    QPalette p = palette();
    p.setColor(QPalette::WindowText, QColor(196, 43, 28));
    setPalette(p);
    hide();
}

void HintLabel::showMessage(const QString &message)
{
    setText(message);
    setVisible(!message.isEmpty());
}

void HintLabel::clearMessage()
{
    clear();
    hide();
}

} // namespace tabo
