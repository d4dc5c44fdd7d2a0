#pragma once

#include "app/app.h"

namespace mirtane {

// The menu entries that work on files, and what other routines start by the caption of the dialog.

// An entry that leads to the file dialog: refused where it needs a selection and there is none, and held up
// by unsaved work where it would throw that away.
void openFileFlow(App& app, ControlId entry);

// "Load Layer", "Save Layer", "Save Associate", "Save Hatch", "Save Multiple Lines", with the name to begin
// with.
void openNamedFlow(App& app, std::string_view caption, const std::string& name);

void closeDrawing(App& app, ControlId);
void exitProgram(App& app, ControlId);

// The close button of the window, and "Exit": ends the program, or offers to save unsaved work first.
void leaveProgram(App& app);

} // namespace mirtane
