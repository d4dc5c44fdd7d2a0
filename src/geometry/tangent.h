#pragma once

#include "geometry/point.h"

#include <array>

namespace mirtane {

// Where the two tangents from a point touch a circle, first the one to the left of the way from the centre to
// the point. From inside there is none: both are then one point outside the circle on the same ray, the
// further out the deeper inside the point lies; from the centre both are the centre.
std::array<Point, 2> tangentPoints(Point from, Point centre, double radius);

} // namespace mirtane
