#pragma once

#include "geometry/point.h"

#include <array>

namespace mirtane {

// An ellipse is one end of its first axis, its centre, and the ratio of the second axis to the first, which
// may be above 1.
struct Ellipse {
    Point axisEnd, centre;
    float ratio = 1;
};

// The point at parameter theta (radians, counter-clockwise on the screen from the axis end). A coordinate
// that can't be had is the centre's.
Point ellipsePoint(const Ellipse& e, double theta);

// The ends of the axes: the stored end, its mirror in the centre, and the two ends of the second axis, the
// one a quarter turn on first.
std::array<Point, 4> axisEnds(const Ellipse& e);

// The same in double: an end may lie beyond what a coordinate can hold.
struct ExactPoint {
    double x, y;
};
std::array<ExactPoint, 4> exactAxisEnds(const Ellipse& e);

// The longer and the shorter half axis, world units.
struct HalfAxes {
    double longer, shorter;
};
HalfAxes halfAxes(const Ellipse& e);

} // namespace mirtane
