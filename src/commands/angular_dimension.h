#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Angular Dimension": the vertex and a point on each leg, all three snapped, counter-clockwise from the
// first leg to the second; then the place of the arc, anywhere. A point that was not snapped, and an angle
// that shows as nothing, end the attempt without a word.
void angularDimensionStep(Session& s, Canvas& pic1);
void angularDimensionBand(Session& s, Canvas& pic1);

} // namespace mirtane
