#pragma once

#include "model/session.h"

namespace mirtane {

// The nearest of the points that the objects shown offer: ends, centres, axis ends, points, text and leader
// points, and, while a boundary is under way, the corners of it. Of points equally near the first is taken;
// one at the limit (world units) or beyond is none. Without any it is (0, 0).
Point nearestObjectPoint(const Session& s, float limit);

// How many legs of the boundary under way there are to look at.
std::size_t boundaryLegs(const Session& s);

} // namespace mirtane
