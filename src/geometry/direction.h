#pragma once

// Where a line runs, and how sure that is. Points are stored in 32 bits, so that two lines drawn parallel
// lean against each other by what the rounding of their points makes.

#include "geometry/point.h"

namespace mirtane {

struct Direction {
    double x = 0, y = 0; // of length 1, y downward
    double rounding = 0; // radians, by which half a step of the largest coordinate turns the line
};

// All NaN with a and b equal: there is no line.
Direction directionOf(Point a, Point b);

// The one test for lines that cross nowhere: whether the angle between the two is no more than rounding can
// make, either way round. Two lines on one line are parallel too, and no line is parallel to any.
bool areParallel(const Direction& a, const Direction& b);

// Whether two legs from one point run one way, as far as the rounding of their points as they were snapped to
// tells: much less than what comes of copying and turning, since a short leg far off still shows an angle.
bool areOnOneRay(const Direction& a, const Direction& b);

} // namespace mirtane
