#pragma once

// A polygon's crossings with upright lines, paired. Level lines are upright ones of the polygon turned over
// its diagonal. One rule, for the grid of a hatch, for what lies inside and for areas: a side crosses a line
// when the line's x is from the side's least x on and below its greatest. So a corner counts once, and a side
// that lies on a line never.

#include "model/session.h"

#include <span>
#include <vector>

namespace mirtane {

// A point within a calculation.
struct Place {
    double x = 0, y = 0;
};

// A side of a polygon. Sides with a coordinate that is no number are left out when polygons are made.
struct Side {
    Place a, b;
};
using Polygon = std::vector<Side>;

Polygon polygonOf(std::span<const BoundaryLeg> legs);
// x and y exchanged.
Polygon overDiagonal(const Polygon& polygon);

struct Extent {
    double low = 0, high = 0;
};

// The least and greatest x; of no sides, 0.
Extent extentInX(const Polygon& polygon);

inline bool crosses(const Side& side, double x)
{
    return (side.a.x <= x) != (side.b.x <= x);
}

// The y at which a side that crosses the line does so.
inline double crossingAt(const Side& side, double x)
{
    return side.a.y + (side.b.y - side.a.y) * ((x - side.a.x) / (side.b.x - side.a.x));
}

// Whether an odd number of sides cross the upright line through p at a greater y. Of points on the polygon
// itself, those at the left and the top are inside.
bool isInside(const Polygon& polygon, Place p);

// Appends the parts of the line at x that lie inside: its crossings, sorted and paired, and, whole, each side
// that lies on the line.
void addSpans(const Polygon& polygon, double x, std::vector<Extent>& spans);

} // namespace mirtane
