#pragma once

#include "platform/qt/window/control_maker.h"

namespace mirtane {

// Puts the controls of the file dialog on its form: the name over the files, folders and drives beside them.
void layFileForm(const ControlMaker& maker, QWidget& form);

} // namespace mirtane
