#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Measure Distance": the steps of "Line", but the distance is shown in entry and nothing is stored. Its
// band is that of "Line".
void measureDistanceStep(Session& s, Canvas& pic1);

} // namespace mirtane
