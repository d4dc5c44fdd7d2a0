#pragma once

#include "app/app.h"

namespace mirtane {

// The three selection functions, and Select Last, which marks what the last action made and goes on as Object
// Select. All show the edit functions in the list.
void startSelection(App& app, ControlId starter);
void selectLastObjects(App& app, ControlId starter);

void showEditFunctions(Controls& controls);

// A right click in a selection function: shows the Edits form, or says that nothing is selected.
void offerEdits(Session& s);

// A click of Object Select.
void pickClick(Session& s, Canvas& pic1);

// The second corner of a selection window.
void selectByWindow(Session& s, Canvas& pic1);

// In a function that selects: marks all objects that are shown, as a window round all of them would. In
// others nothing.
void selectAllObjects(Session& s, Canvas& pic1);

} // namespace mirtane
