#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Curve": a row of arcs, each an object of its own and tangent to the one before it, until a cancel. Three
// points make the first arc, and each further point one more.
void curveStep(Session& s, Canvas& pic1);
void curveBand(Session& s, Canvas& pic1);

} // namespace mirtane
