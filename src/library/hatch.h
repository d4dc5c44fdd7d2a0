#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// "Place Hatch": once the boundary is closed (boundary.h), which takes three points, fills it with the
// current hatch in the current colour, in one group. It stays the function, with the same hatch. The band of
// the boundary is boundaryBand.
void placeHatchStep(Session& s, Canvas& pic1);

// "Create Hatch", once its name is typed: two clicks give the tile, whose objects are the selected lines,
// circles, arcs and points, also those outside it.
void createHatchStep(Session& s, Canvas& pic1);

} // namespace mirtane
