#pragma once

#include "geometry/point.h"

namespace mirtane {

// The foot of p on the endless line through a and b, world units. With a and b equal there is no line: held
// comes back.
Point footOfPerpendicular(Point p, Point a, Point b, Point held);

} // namespace mirtane
