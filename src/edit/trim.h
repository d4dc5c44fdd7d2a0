#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// The step of "Trim", at any count of steps: the line, circle or arc nearest to the click, of those not
// selected, is the boundary, to which each selected line and arc is cut or made longer. The part that holds
// the pick in p5 stays. A click near nothing changes nothing, and the selection stays.
//
// An object that misses the boundary is left as it is and loses the selection. A line that meets a boundary
// line nowhere, or further off than a view's size from the view, ends the run at once: what is selected stays
// so, and what was already made stays beside it, in the group of the next action. Selected objects of other
// kinds go out with those that were trimmed.
void editTrim(Session& s, Canvas& pic1);

} // namespace mirtane
