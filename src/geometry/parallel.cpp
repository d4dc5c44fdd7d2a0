#include "geometry/parallel.h"

#include "geometry/fault.h"
#include "geometry/rounding.h"
#include "geometry/side.h"

#include <algorithm>
#include <cmath>

namespace mirtane {

ParallelLine lineThrough(Point p, const Direction& along)
{
    const Direction across{-along.y, along.x, along.rounding};
    return {across, across.x * p.x + across.y * p.y};
}

ParallelLine parallelTowards(Point a, Point b, Point towards, double distance)
{
    ParallelLine line = lineThrough(a, directionOf(a, b));
    line.off += sideOfLine(towards, a, b) * distance;
    return line;
}

Crossings crossParallels(const ParallelLine& a, const ParallelLine& b)
{
    Crossings found;
    if (areParallel(a.across, b.across)) return found;
    const double lean = a.across.x * b.across.y - a.across.y * b.across.x;
    found.add(quotient(a.off * b.across.y - b.off * a.across.y, lean),
              quotient(b.off * a.across.x - a.off * b.across.x, lean));
    return found;
}

Crossings crossParallelCircle(const ParallelLine& line, Point centre, double radius)
{
    const double height = line.off - line.across.x * centre.x - line.across.y * centre.y;
    const double footX = centre.x + height * line.across.x;
    const double footY = centre.y + height * line.across.y;
    return chordEnds({footX, footY, line.across.y, -line.across.x}, height, centre, radius,
                     halfStepOf(std::max(std::abs(footX), std::abs(footY))));
}

Point footOnLine(Point p, const ParallelLine& line, Point held)
{
    const double height = line.off - line.across.x * p.x - line.across.y * p.y;
    keep(held.x, p.x + height * line.across.x);
    keep(held.y, p.y + height * line.across.y);
    return held;
}

} // namespace mirtane
