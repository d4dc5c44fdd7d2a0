#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Multiple Lines": the reference line is clicked corner by corner, and every line of the current set is
// drawn beside it, mitred at the corners. A leg is stored when the corner at its end is known, so the last
// leg of a run only gives the direction of the last mitre. The first leg starts where the last band left it.
void multipleLinesStep(Session& s, Canvas& pic1);
void multipleLinesBand(Session& s, Canvas& pic1);

// "Create Multiple Lines", once its name is typed: the selected lines become a set, each at its distance from
// the line through the clicked point in the direction of the first of them. At the end of the table it stops
// where it is: the selection, the function and the list then stay as they were.
void createMultipleLinesStep(Session& s, Canvas& pic1);

} // namespace mirtane
