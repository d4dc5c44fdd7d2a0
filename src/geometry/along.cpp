#include "geometry/along.h"

#include "geometry/fault.h"

#include <cmath>

namespace mirtane {

double positionAlong(Point p, Point a, Point b)
{
    const double dx = static_cast<double>(b.x) - a.x; // widened before the differences, as below
    const double dy = static_cast<double>(b.y) - a.y;
    const double px = static_cast<double>(p.x) - a.x;
    const double py = static_cast<double>(p.y) - a.y;
    return quotient(px * dx + py * dy, std::sqrt(dx * dx + dy * dy));
}

} // namespace mirtane
