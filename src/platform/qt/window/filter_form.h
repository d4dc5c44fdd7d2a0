#pragma once

#include "platform/qt/window/control_maker.h"

namespace mirtane {

// The form of the filter, which also serves for changing properties: the layers, and a box for each
// criterion.
void layFilterForm(const ControlMaker& maker, QWidget& form);

} // namespace mirtane
