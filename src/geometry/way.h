#pragma once

#include "geometry/point.h"

namespace mirtane {

// A direction as a vector of length 1, y downward. Kept in double: between two points that are rounded to 32
// bits it would lean.
struct Way {
    double x = 0, y = 0; // both 0: no direction

    bool isAny() const { return x != 0 || y != 0; }
    Way operator-() const { return {-x, -y}; }
};

// No direction with the two equal, or too far apart for a float.
Way wayBetween(Point from, Point to);

} // namespace mirtane
