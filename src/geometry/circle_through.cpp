#include "geometry/circle_through.h"

#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/direction.h"
#include "geometry/fault.h"

#include <cmath>

namespace mirtane {

std::optional<CircleThrough> circleThrough(Point a, Point b, Point c)
{
    if (areParallel(directionOf(a, b), directionOf(b, c))) return std::nullopt;
    const double bx = static_cast<double>(b.x) - a.x; // widened before the differences, as below
    const double by = static_cast<double>(b.y) - a.y;
    const double cx = static_cast<double>(c.x) - a.x;
    const double cy = static_cast<double>(c.y) - a.y;
    const double twice = 2 * (bx * cy - by * cx);
    const double b2 = bx * bx + by * by;
    const double c2 = cx * cx + cy * cy;
    const double x = quotient(cy * b2 - by * c2, twice); // of the centre, from a
    const double y = quotient(bx * c2 - cx * b2, twice);
    CircleThrough found;
    const bool held = keep(found.centre.x, a.x + x) && keep(found.centre.y, a.y + y) &&
                      keep(found.radius, std::sqrt(x * x + y * y));
    if (!held) return std::nullopt;
    return found;
}

ArcEnds endsThrough(Point centre, Point start, Point middle, Point end)
{
    const double first = directionAngle(centre, start, 0);
    const double last = directionAngle(centre, end, 0);
    const double through = directionAngle(centre, middle, 0);
    if (sweep(first, through) <= sweep(first, last)) return {first, last};
    return {last, first};
}

} // namespace mirtane
