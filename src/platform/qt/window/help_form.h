#pragma once

#include "platform/qt/window/control_maker.h"

namespace mirtane {

// The manual, on a form a little smaller than the main window.
void layHelpForm(const ControlMaker& maker, QWidget& form);

} // namespace mirtane
