#pragma once

#include "model/session.h"
#include "render/canvas.h"

namespace mirtane {

// The sides that a typed count may have: 3 to 64.
inline constexpr double sidesAbove = 2;
inline constexpr double sidesBelow = 65;

// "Polygon": a centre and a corner give polygonSides separate lines, each undone by itself.
void polygonStep(Session& s, Canvas& pic1);
void polygonBand(Session& s, Canvas& pic1);

} // namespace mirtane
