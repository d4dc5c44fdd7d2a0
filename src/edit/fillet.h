#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// The step of "Fillet", at any count of steps: rounds off the first and the last of the selected objects,
// lines or arcs, with an arc of filletRadius (world units) on the side of the click. It lies inside of arcs.
// Both are cut, or made longer, to where it touches them, and keep the parts with their picks in p5. With
// radius 0 they meet, with an arc of no size there. Where there is no such arc, or fewer than two objects of
// these kinds, nothing is made. The selection is dropped in any case; the function stays, for the next two
// objects. A radius below 0 is taken as it is.
void editFillet(Session& s, Canvas& pic1);

} // namespace mirtane
