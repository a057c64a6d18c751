#include "gui/editor/Popover.h"

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
    // Inside the window where it fits (a popover hanging off the window's
    // edge looks lost), else inside the screen.
    const QWidget *window = anchor->window();
    QRect area = window->geometry();
    if (const QScreen *screen = anchor->screen()) {
        const QRect screenArea = screen->availableGeometry();
        if (width() > area.width() || height() > area.height())
            area = screenArea;
        else
            area &= screenArea;
    }
    pos.setX(qBound(area.left(), pos.x(), area.right() - width()));
    if (pos.y() + height() > area.bottom()) {
        const int above = anchor->mapToGlobal(QPoint(0, 0)).y() - height();
        pos.setY(above >= area.top() ? above : qMax(area.top(), area.bottom() - height()));
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
