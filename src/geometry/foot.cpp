#include "geometry/foot.h"

#include "geometry/angle.h"
#include "geometry/fault.h"

namespace mirtane {

Point footOfPerpendicular(Point p, Point a, Point b, Point held)
{
    const double length = distance(a, b);
    const double ux = quotient(b.x - a.x, length);
    const double uy = quotient(a.y - b.y, length);
    const double along = (p.x - a.x) * ux + (a.y - p.y) * uy;
    Point foot = held;
    keep(foot.x, a.x + along * ux);
    keep(foot.y, a.y - along * uy);
    return foot;
}

} // namespace mirtane
