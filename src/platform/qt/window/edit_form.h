#pragma once

#include "platform/qt/window/control_maker.h"

namespace mirtane {

// The Edits form: a button for each edit function, and the two that start none.
void layEditForm(const ControlMaker& maker, QWidget& form);

} // namespace mirtane
