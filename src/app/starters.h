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

// Nothing typed, cornered or bounded is left of what was under way, and no Zoom Window: for a drawing that
// gives way to another.
void dropWhatWasBegun(Session& s, Canvas& pic1);

// The current function again at its start, with nothing of it begun.
void beginAnew(Session& s, Canvas& pic1);

// A click on the button or menu entry that starts a function.
void startFromControl(App& app, ControlId starter);

} // namespace mirtane
