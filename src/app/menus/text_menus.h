#pragma once

#include "app/app.h"

namespace mirtane {

void toggleCheckMark(App& app, ControlId menu); // "Underlined Text", "Reverse"

// Functions that wait while another is under way: text and arrow size, hatch scale, move dimension text.
void startWhenIdle(App& app, ControlId menu);

// The list of fonts: for texts to come, or for the selected ones.
void listFonts(App& app, ControlId menu);
void listFontsForSelection(App& app, ControlId menu);
void showFontSample(App& app, int row); // a click on a name shows it in the box of the pen
void fontEntered(App& app);             // Enter, or a second click, takes it

} // namespace mirtane
