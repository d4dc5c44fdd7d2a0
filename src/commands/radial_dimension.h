#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Radial Dimension": a click near a circle or an arc, then the elbow, anywhere. Near anything else, and near
// nothing, the attempt ends without a word.
void radialDimensionStep(Session& s, Canvas& pic1);
void radialDimensionBand(Session& s, Canvas& pic1);

} // namespace mirtane
