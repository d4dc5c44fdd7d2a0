#include "geometry/parallel.h"

#include "geometry/fault.h"
#include "geometry/side.h"

#include <cmath>

namespace mirtane {

ParallelLine parallelTowards(Point a, Point b, Point towards, double distance)
{
    const Direction along = directionOf(a, b);
    const Direction across{-along.y, along.x, along.rounding};
    return {across, across.x * a.x + across.y * a.y + sideOfLine(towards, a, b) * distance};
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
    const double squared = radius * radius - height * height;
    Crossings found;
    if (!(squared >= 0)) return found;
    const double half = std::sqrt(squared);
    const double footX = centre.x + height * line.across.x;
    const double footY = centre.y + height * line.across.y;
    found.add(footX + half * line.across.y, footY - half * line.across.x);
    if (half > 0) found.add(footX - half * line.across.y, footY + half * line.across.x);
    return found;
}

} // namespace mirtane
