#pragma once

#include "app/app.h"

namespace mirtane {

struct FunctionRow;

// Makes a function the current one at its first step: no rubber band, no window, live text or boundary begun,
// and no ortho angle borrowed by the function before.
void startFunction(Session& s, Canvas& pic1, const FunctionRow& row);

// A click on the button or menu entry that starts a function.
void startFromControl(App& app, ControlId starter);

} // namespace mirtane
