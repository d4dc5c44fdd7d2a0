#pragma once

#include "geometry/point.h"

namespace mirtane {

// A circle through three points by the program's own construction, in 32-bit numbers.

// Two markers on the perpendicular bisector of the first chord, one on each side: they tell on which side of
// the chord the third point lies.
struct BisectorMarkers {
    Point a, b;
};

// The markers of the chord p1 p2; both are p1 where that is p2 too. A coordinate that faults is that of held.
BisectorMarkers bisectorMarkers(Point p1, Point p2, const BisectorMarkers& held);

struct ThreePointCircle {
    Point centre;
    float radius = 0;
    Point chordMiddle;
    float toMarkerA = 0; // distances of the third point, which also tell the direction of an arc
    float toMarkerB = 0;
};

// The construction takes the magnitude of the cosine at p1, so it is exact only while the angle there is at
// most 90 degrees: with an obtuse one the circle passes through p1 and p2 and misses p3. With p3 on the line
// of the first chord, the centre is the chord's middle, or, where p3 is as far from both markers, that of
// held, and the radius the centre's distance to p1.
ThreePointCircle threePointCircle(Point p1, Point p2, Point p3, const BisectorMarkers& markers,
                                  const ThreePointCircle& held);

} // namespace mirtane
