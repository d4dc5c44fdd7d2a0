#pragma once

#include "geometry/point.h"

#include <optional>

namespace mirtane {

struct CircleThrough {
    Point centre;
    float radius = 0; // world units
};

// The circle through three points, whatever the angles between them. (Circles and arcs that are drawn
// come from three_point.h, which is exact for some only.) None if the points lie on one line as far as
// they tell, two of them are one, or no coordinate can hold the centre.
std::optional<CircleThrough> circleThrough(Point a, Point b, Point c);

// The ends of the arc through three points on a circle, radians. It runs counter-clockwise through the middle
// one, so that its start may be either of the other two.
struct ArcEnds {
    double a1 = 0, a2 = 0;
};
ArcEnds endsThrough(Point centre, Point start, Point middle, Point end);

} // namespace mirtane
