#pragma once

#include "app/app.h"

namespace mirtane {

using Action = void (*)(App& app, ControlId id);

// What a click on a control does, or null for one that does nothing, such as the heading of a menu.
Action actionOf(ControlId id);

// Buttons, toggles and menu entries: what is greyed when it has no action.
bool isClickable(ControlId id);

// Greys the buttons and entries that nothing would answer.
void greyWhatHasNoRoutine(Controls& controls);

} // namespace mirtane
