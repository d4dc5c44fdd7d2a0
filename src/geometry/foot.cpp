#include "geometry/foot.h"

#include "geometry/fault.h"

#include <cmath>

namespace mirtane {

Point footOfPerpendicular(Point p, Point a, Point b, Point held)
{
    const double dx =
        static_cast<double>(b.x) - a.x; // widened before the differences, so that none is rounded
    const double dy = static_cast<double>(b.y) - a.y;
    const double px = static_cast<double>(p.x) - a.x;
    const double py = static_cast<double>(p.y) - a.y;
    const double along = quotient(px * dx + py * dy, dx * dx + dy * dy);
    Point foot = held;
    keep(foot.x, a.x + along * dx);
    keep(foot.y, a.y + along * dy);
    return foot;
}

} // namespace mirtane
