#pragma once

// Arcs that are all but straight. Their centre lies so far off that 32 bits place it, and hold the radius,
// only to within whole units, and the arc would miss its ends by as much. Between two points so near each
// other as against the radius another one serves as well: of those that the eye can't tell from the one
// wanted, the one is taken whose arc, as it is stored, comes nearest to both ends.

#include "geometry/point.h"
#include "geometry/way.h"

namespace mirtane {

struct FlatCircle {
    Point centre;
    float radius = 0; // world units
};

// Whether the piece of a circle of that radius between two points that far apart is all but straight. Of an
// infinite radius it is.
bool isFlat(double radius, double chord);

// The circle by way of a and b, of about that radius or of none too large for 32 bits, its centre on the side
// of the chord to which `towards` points.
FlatCircle flatCircle(Point a, Point b, Way towards, double radius);

// As directionAngle, with the full digits of the coordinates, in which polarPoint finds b again. a and b
// differ.
double fullDirection(Point a, Point b);

} // namespace mirtane
