#pragma once

// Where endless lines and whole circles meet, world units. A crossing that does not exist is not in the
// count; one that no coordinate can hold does not exist.

#include "geometry/point.h"

#include <array>

namespace mirtane {

struct Crossings {
    int count = 0; // 0 to 2
    std::array<Point, 2> points{};

    void add(double x, double y);
};

// The endless lines through a, b and through c, d: one crossing, none if they are parallel as far as their
// points tell or one is no line.
Crossings crossLines(Point a, Point b, Point c, Point d);

// The endless line through a, b and the circle: two, first the one further on towards b; one where they
// touch; none if they miss each other or a, b is no line.
Crossings crossLineCircle(Point a, Point b, Point centre, double radius);

// Two circles: two, first the one to the left of the way from c1 to c2; one where they touch; none if they
// miss each other or have one centre.
Crossings crossCircles(Point c1, double r1, Point c2, double r2);

// Those of them that lie on the arc from a1 to a2 (radians, counter-clockwise) about centre, in their order.
Crossings onArc(const Crossings& all, Point centre, double a1, double a2);

} // namespace mirtane
