#pragma once

// How what is begun ends. A function that is broken off, by another one, by a right click or because files,
// lists or the printer take over, leaves nothing behind: it would turn up in what is done next.

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// Ends all that is under way, a construction line and Zoom Window too, and shows the base function at its
// start. The selection and an armed snap stay.
void endWhatIsBegun(Session& s, Canvas& pic1);

// What every ending has in common: no step, corner, letter or leg is taken, and ortho is as the user set it.
// The function stays, and so does the picture.
void forgetWhatIsBegun(Session& s);

// pickLast lies away from pickFirst, so that the first click of the next action is not taken for a second one
// on the same spot.
void parkPickLast(ScratchPoints& s);

// Brings back what the running function keeps out of the clean picture or marks in it: a selection that
// follows the pointer, a text under edit. Called before its step is forgotten.
void showWhatIsHidden(Session& s, Canvas& pic1);

// A window of the selection that has its first corner begins anew, and the prompt says so.
void beginWindowAnew(Session& s);

// curFunc, or the function that a construction line suspends.
const std::string& runningFunction(const Session& s);

// Whether a text is under edit, which is marked as what is selected is.
bool textIsInEdit(const Session& s);

// Whether something is selected. A text under edit is marked too, but by its function.
bool hasSelection(const Session& s);

} // namespace mirtane
