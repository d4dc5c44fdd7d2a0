#pragma once

#include "geometry/point.h"

namespace mirtane {

// On which side of the endless line through a and b the point lies: 1 to the right of the way from a to b as
// it is seen on the screen, -1 to the left, 0 exactly on it. No rounding plays a part.
int sideOfLine(Point p, Point a, Point b);

} // namespace mirtane
