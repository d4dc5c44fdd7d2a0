#pragma once

#include "app/app.h"

namespace mirtane {

// Sets the check marks of all menus that show an attribute. A value that is in no menu leaves none checked.
void showCheckMarks(Session& s);

// The box of the pen in the current colour with the name of the current line style, and the fonts of the text
// font.
void showLineSettings(Session& s);

// Fills the list with the layer rows, and the box of the layers with that of the working layer.
void showLayers(Session& s);
void showWorkingLayer(Session& s); // the box alone

// The menus that set how numbers, angles, text and dimensions look from now on.
void takeAttribute(App& app, ControlId menu);

// The menus of line width (which are colours) and line style.
void takeLineColor(App& app, ControlId menu);
void takeLineStyle(App& app, ControlId menu);

} // namespace mirtane
