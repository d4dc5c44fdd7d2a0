// geometry/angle.cpp: angles run counter-clockwise on the screen while y grows downward.

#include "geometry/angle.h"

#include "geometry/fault.h"

#include <cmath>
#include <limits>

namespace mirtane {
namespace {

double slope(float rise, float run)
{
    return std::atan(
        static_cast<double>(quotientSingle(rise, run))); // widened on purpose: atan works in double
}

// NaN where there is no direction, or where the difference or quotient of the coordinates overflows.
double computedDirection(Point a, Point b)
{
    if (a.x < b.x && a.y > b.y) return slope(a.y - b.y, b.x - a.x);
    if (a.x == b.x && a.y > b.y) return quarterTurn;
    if (a.x > b.x && a.y > b.y) return halfTurn - slope(a.y - b.y, a.x - b.x);
    if (a.x > b.x && a.y == b.y) return halfTurn;
    if (a.x > b.x && a.y < b.y) return halfTurn + slope(b.y - a.y, a.x - b.x);
    if (a.x == b.x && a.y < b.y) return threeQuartersTurn;
    if (a.x < b.x && a.y < b.y) return fullTurn - slope(b.y - a.y, b.x - a.x);
    if (a.x < b.x && a.y == b.y) return 0;
    return std::numeric_limits<double>::quiet_NaN();
}

} // namespace

double distance(Point a, Point b)
{
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    return std::sqrt(dx * dx + dy * dy);
}

double directionAngle(Point a, Point b, double previous)
{
    double angle = previous;
    keep(angle, computedDirection(a, b));
    return angle;
}

Point polarPoint(Point centre, double r, double a)
{
    double across = r * std::cos(a);
    double up = r * std::sin(a);
    if (a == quarterTurn) {
        across = 0;
        up = r;
    } else if (a > quarterTurn && a < halfTurn) {
        across = -r * std::cos(halfTurn - a);
        up = r * std::sin(halfTurn - a);
    } else if (a == halfTurn) {
        across = -r;
        up = 0;
    } else if (a > halfTurn && a < threeQuartersTurn) {
        across = -r * std::cos(a - halfTurn);
        up = -r * std::sin(a - halfTurn);
    } else if (a == threeQuartersTurn) {
        across = 0;
        up = -r;
    } else if (a > threeQuartersTurn && a < fullTurn) {
        across = r * std::cos(fullTurn - a);
        up = -r * std::sin(fullTurn - a);
    }
    Point p = centre;
    keep(p.x, centre.x + across);
    keep(p.y, centre.y - up);
    return p;
}

} // namespace mirtane
