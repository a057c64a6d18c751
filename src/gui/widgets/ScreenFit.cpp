#include "gui/widgets/ScreenFit.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace tabo::ScreenFit {

namespace {

// Title bar and borders of the window manager, which the frame adds.
constexpr QSize kFrame(16, 48);

} // namespace

QSize within(const QWidget *window, QSize wanted)
{
    const QWidget *shown = window && window->parentWidget() ? window->parentWidget()->window() : window;
    const QScreen *screen = shown ? shown->screen() : nullptr;
    if (!screen)
        screen = QGuiApplication::primaryScreen();
    if (!screen)
        return wanted;
    return wanted.boundedTo(screen->availableGeometry().size() - kFrame);
}

void resize(QWidget *window, QSize wanted)
{
    window->resize(within(window, wanted));
}

} // namespace tabo::ScreenFit
