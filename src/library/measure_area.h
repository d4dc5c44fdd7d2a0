#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Measure Area": once the boundary is closed (boundary.h), its area stands in entry, and baseFunc runs. The
// area is summed from lines six units apart, so it is exact only for shapes that fit them. The band of the
// boundary is boundaryBand.
void measureAreaStep(Session& s, Canvas& pic1);

} // namespace mirtane
