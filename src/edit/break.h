#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// The step of "Break". The second click takes out of each selected line, arc and circle what lies between the
// two, each brought to the object at right angles. Of a line that is the part between them, in whichever
// order; a click beyond an end leaves nothing there, and with both beyond the same end the line grows to the
// nearer. A circle keeps the part counter-clockwise from the first click to the second. An arc loses the
// shorter way between them, even where that leads through its gap. No piece is left that is no longer than
// the rounding of its ends. Other objects only lose the selection, and so does a line of no length, and a
// circle with both clicks in one direction from its centre.
void editBreak(Session& s, Canvas& pic1);

} // namespace mirtane
