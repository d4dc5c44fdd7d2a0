#pragma once

#include "geometry/point.h"

namespace mirtane {

// How far the foot of p on the endless line through a and b lies from a, world units, below 0 on the side
// away from b. NaN with a and b equal.
double positionAlong(Point p, Point a, Point b);

} // namespace mirtane
