#pragma once

class QColor;
class QIcon;
class QString;
class QChar;

namespace tabo {

// Icons drawn in code, so the application needs no image files and the icons
// stay sharp at every size and scale.
namespace Icons {

// The filter button's two looks: "torchTemplate" (plain, in the palette's text
// colour) and "torchGlow" (a filter is on: lit in a warm highlight colour).
QIcon torch(bool glowing);
// A toolbar icon from the desktop's icon theme, or, where the theme has none,
// a rounded tile in `tint` with `letter` on it.
QIcon themed(const QString &themeName, QChar letter, const QColor &tint);

} // namespace Icons

} // namespace tabo
