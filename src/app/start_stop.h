#pragma once

#include "app/app.h"

namespace mirtane {

// The start of the program: the sixteen layers, the settings, the function "Line" and its prompt. The session
// is a new one.
void startProgram(App& app);

// Writes the settings and ends the program.
void endProgram(App& app);

// Closes the drawing: an empty one with sixteen layers and the name "untitled.mtd". Slots keep their fields,
// libraries their rows.
void clearDrawing(App& app);

} // namespace mirtane
