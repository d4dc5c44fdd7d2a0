#pragma once

#include "app/app.h"

namespace mirtane {

struct FunctionRow;

// Makes a function the current one at a step: no rubber band, no window, live text or boundary begun, no
// selection that follows the pointer, and no ortho angle borrowed by the function before. The base function
// stays.
void changeFunction(Session& s, Canvas& pic1, const FunctionRow& row, std::int16_t firstStep);

// The same at the function's own first step; it becomes the base function if it is one.
void startFunction(Session& s, Canvas& pic1, const FunctionRow& row);

// A click on the button or menu entry that starts a function.
void startFromControl(App& app, ControlId starter);

} // namespace mirtane
