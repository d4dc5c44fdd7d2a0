#pragma once

#include "platform/qt/window/control_maker.h"

namespace mirtane {

// The scale of a print: the fitted value, the value to print at, and a picture of the page.
void layPrintForm(const ControlMaker& maker, QWidget& form);

} // namespace mirtane
