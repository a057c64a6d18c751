#include "gui/Popover.h"

#include <QScreen>

namespace tabo {

Popover::Popover(QWidget *parent)
    : QFrame(parent, Qt::Popup)
{
    setFrameShape(QFrame::StyledPanel);
    // A click on the opening button while the popover is shown only closes
    // it; replayed, the same click would open it again at once.
    setAttribute(Qt::WA_NoMouseReplay);
}

bool Popover::toggle(QWidget *anchor)
{
    if (isVisible()) {
        hide();
        return false;
    }
    m_anchor = anchor;
    prepare();
    placeUnder(anchor);
    show();
    return true;
}

void Popover::placeUnder(QWidget *anchor)
{
    adjustSize();
    if (!anchor)
        return;
    QPoint pos = anchor->mapToGlobal(QPoint(0, anchor->height()));
    if (const QScreen *screen = anchor->screen()) {
        const QRect area = screen->availableGeometry();
        pos.setX(qBound(area.left(), pos.x(), area.right() - width()));
        if (pos.y() + height() > area.bottom())
            pos.setY(qMax(area.top(), anchor->mapToGlobal(QPoint(0, 0)).y() - height()));
    }
    move(pos);
}

void Popover::runHidden(const std::function<void()> &dialog)
{
    const bool shown = isVisible();
    hide();
    dialog();
    if (shown && m_anchor) {
        placeUnder(m_anchor);
        show();
    }
}

} // namespace tabo
