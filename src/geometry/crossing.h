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

// The endless line through a, b and the circle: two, first the one further on towards b; the foot of the
// centre where they touch up to the rounding of their points; none if they miss each other or a, b is no
// line.
Crossings crossLineCircle(Point a, Point b, Point centre, double radius);

// A chord of a circle: the foot of the centre on its line, and where that runs, of length 1.
struct Chord {
    double footX, footY, alongX, alongY;
};

// The ends of a chord at a height (world units, of either sign) over the centre, first the one further on.
// What touches up to rounding has the foot alone, be it a step inside or outside; lineOff is by how much
// rounding moves the line there.
Crossings chordEnds(const Chord& chord, double height, Point centre, double radius, double lineOff);

// Two circles: two, first the one to the left of the way from c1 to c2; one where they touch; none if they
// miss each other or have one centre.
Crossings crossCircles(Point c1, double r1, Point c2, double r2);

// Those of them that lie on the arc from a1 to a2 (radians, counter-clockwise) about centre, in their order.
Crossings onArc(const Crossings& all, Point centre, double a1, double a2);

} // namespace mirtane
