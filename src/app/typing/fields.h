#pragma once

#include "app/app.h"

namespace mirtane {

// The five numeric fields: the ortho angle, the rotations of text, hatches and associates, and the snap
// percentage.
bool isNumericField(ControlId id);

// A key press: digits, ".", "," (which becomes "."), "-" and Backspace pass; m or M starts the match function
// of the ortho angle and of the rotation of text; Enter stores a value that the field takes, and gives the
// focus to the drawing either way.
void fieldKeyPress(App& app, ControlId id, char32_t code);

// How a value that is half typed in the field will be taken: "= 45.000°", or that it won't be; empty while
// nothing is typed there.
std::string fieldReading(const Session& s, ControlId id);

// The field lost the focus: shows the stored value again, so that a half-typed one is undone.
void fieldLeft(Session& s, ControlId id);

// A click clears the field for a new value.
void fieldClicked(App& app, ControlId id);

} // namespace mirtane
