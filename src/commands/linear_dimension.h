#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Ortho Dimension": two snapped points and the place of the dimension line; each further snapped point makes
// the next dimension of a chain on the same line. A point that was not snapped, and a length that shows as
// nothing, end the attempt without a word. The band is the dimension as a click would make it.
void linearDimensionStep(Session& s, Canvas& pic1);
void linearDimensionBand(Session& s, Canvas& pic1);

} // namespace mirtane
