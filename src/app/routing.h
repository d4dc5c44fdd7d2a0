#pragma once

#include "app/app.h"
#include "tables/shortcuts.h"

namespace mirtane {

// Which routine an event belongs to, by the control that it came to.

bool isTextBox(ControlId id);
bool hasRow(const Control& list, int row);
// Whether the list shows the fonts, where a second click or Enter is what takes one.
bool listsFonts(const Controls& controls);

// A row that does its work at a click.
void rowChosen(App& app, ControlId list, int row);

// A key press: a character's code, 13 Enter, 8 Backspace.
void keyToControl(App& app, ControlId id, char32_t code);

// Fields and the box of the layers forget what was half typed.
void leave(Session& s, ControlId id);

// A form closes as by its Cancel; one that has none only goes.
void closeFormOf(App& app, ControlId form);

// What keys do that press no control.
void doDeed(App& app, Deed deed);

} // namespace mirtane
