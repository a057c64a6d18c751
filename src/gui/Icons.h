#pragma once

class QIcon;

namespace tabo {

// Icons drawn in code, so the application needs no image files and the icons
// stay sharp at every size and scale.
namespace Icons {

// The filter button's two looks: "torchTemplate" (plain, in the palette's text
// colour) and "torchGlow" (a filter is on: lit in a warm highlight colour).
QIcon torch(bool glowing);

} // namespace Icons

} // namespace tabo
