#pragma once

#include <QSize>

class QWidget;

namespace tabo::ScreenFit {

// The size a window opens with: `wanted`, but within the available area of
// the screen it shows on (its parent's, else the primary one), less room for
// the frame. Small laptop screens and 200 % scaling must not push the
// buttons of a sheet off the screen.
QSize within(const QWidget *window, QSize wanted);
void resize(QWidget *window, QSize wanted);

} // namespace tabo::ScreenFit
