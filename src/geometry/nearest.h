#pragma once

// The point of a figure nearest to a given point, world units.

#include "geometry/ellipse.h"

#include <optional>

namespace mirtane {

// The distance as a 32-bit number. What is compared is compared so, that what is equally near stays equally
// near by whatever road it was worked out.
float reach(Point a, Point b);

// Whether a is strictly nearer to p than b is.
bool isNearer(Point p, Point a, Point b);

// The foot of p on the line from a to b, if it lies between the ends or on one of them. A line of no length
// is its point.
std::optional<Point> nearestOnSegment(Point p, Point a, Point b);

// The point of the whole circle towards p, exact on the axes. Seen from the centre there is none, and the
// centre itself comes back.
Point nearestOnCircle(Point p, Point centre, float radius);

// Of 180 points round the ellipse, two degrees of its parameter apart, the nearest; of equals the last.
Point nearestOnEllipse(Point p, const Ellipse& e);

} // namespace mirtane
