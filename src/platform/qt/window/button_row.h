#pragma once

#include "platform/qt/window/control_maker.h"

namespace mirtane {

// The two buttons that end a form, at the right of a row of their own.
QWidget& buttonRow(const ControlMaker& maker, QWidget& form, ControlId accept, ControlId cancel);

} // namespace mirtane
