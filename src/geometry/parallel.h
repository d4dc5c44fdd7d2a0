#pragma once

// A line drawn beside another, endless both ways, and where it meets others. Kept in double: between two
// points that are rounded to 32 bits it would lean, and far off miss what it should meet.

#include "geometry/crossing.h"
#include "geometry/direction.h"

namespace mirtane {

// All points p with across . p = off. Its direction is as sure as that of the line that it is drawn beside.
struct ParallelLine {
    Direction across;
    double off = 0;
};

// The line itself, through a point of it.
ParallelLine lineThrough(Point p, const Direction& along);

// The line at a distance (world units) from the one through a and b, on the side on which towards lies; below
// 0 on the other side. With towards on the line itself there is no side, and it is that line. With a and b
// equal there is none: it meets nothing.
ParallelLine parallelTowards(Point a, Point b, Point towards, double distance);

// One crossing, none if they are parallel.
Crossings crossParallels(const ParallelLine& a, const ParallelLine& b);

// Two, first the one further on along the line's direction; the foot of the centre where they touch up to
// rounding; none if they miss each other.
Crossings crossParallelCircle(const ParallelLine& line, Point centre, double radius);

// The foot of p on the line; held where there is no line.
Point footOnLine(Point p, const ParallelLine& line, Point held);

} // namespace mirtane
