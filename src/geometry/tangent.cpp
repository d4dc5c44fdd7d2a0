#include "geometry/tangent.h"

#include "geometry/fault.h"

#include <cmath>

namespace mirtane {
namespace {

// 0 where there is none, which is what the construction goes on with.
double rootOrZero(double squared)
{
    return squared > 0 ? std::sqrt(squared) : 0;
}

double orZero(double value)
{
    double stored = 0;
    keep(stored, value);
    return stored;
}

} // namespace

std::array<Point, 2> tangentPoints(Point from, Point centre, double radius)
{
    const double dx = static_cast<double>(from.x) - centre.x; // widened before the differences
    const double dy = static_cast<double>(centre.y) - from.y;
    const double d = std::sqrt(dx * dx + dy * dy);
    const double ux = orZero(quotient(dx, d));
    const double uy = orZero(quotient(dy, d));
    const double t = rootOrZero(d * d - radius * radius);
    const double m = orZero(quotient(radius * radius + d * d - t * t, 2 * d));
    const double n = rootOrZero(radius * radius - m * m);
    std::array<Point, 2> points{centre, centre};
    keep(points[0].x, centre.x + m * ux - n * uy);
    keep(points[0].y, centre.y - m * uy - n * ux);
    keep(points[1].x, centre.x + m * ux + n * uy);
    keep(points[1].y, centre.y - m * uy + n * ux);
    return points;
}

} // namespace mirtane
