#pragma once

#include "model/session.h"

#include <optional>

namespace mirtane {

// The nearest of the points that the objects shown offer: ends, centres, axis ends, points, text and leader
// points, and, while a boundary is under way, the corners of it. Of points equally near the first is taken;
// one at the limit (world units) or beyond is none.
struct ObjectPoint {
    Point at;
    std::int32_t slot = -1; // of the object; -1 a leg of the boundary
};
std::optional<ObjectPoint> nearestObjectPoint(const Session& s, float limit);

// How many legs of the boundary under way there are to look at.
std::size_t boundaryLegs(const Session& s);

} // namespace mirtane
