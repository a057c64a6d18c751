#pragma once

class QWidget;

namespace tabo::Accessibility {

// A screen reader names a field by its label's buddy. Forms built from grids
// and rows place a "Title:" label beside its field without saying so; this
// makes each such label the buddy of the field to its right (or, in a row
// of its own, below it). Labels that already have a buddy keep it.
void labelFields(QWidget *root);

} // namespace tabo::Accessibility
