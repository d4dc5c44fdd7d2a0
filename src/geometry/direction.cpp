#include "geometry/direction.h"

#include "geometry/fault.h"
#include "geometry/rounding.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

// What is turned is turned by degrees times a literal of six digits, which is off by as much at a whole turn.
constexpr double turnInDoubt = 3e-6; // radians

// Of the points of a leg, neither of which has been moved since it was drawn: each lies up to half a step
// off, level and upright.
constexpr double halfStepsOfALeg = 2;

double sineBetween(const Direction& a, const Direction& b)
{
    return a.x * b.y - a.y * b.x;
}

} // namespace

Direction directionOf(Point a, Point b)
{
    const double dx = static_cast<double>(b.x) - a.x; // widened before the differences
    const double dy = static_cast<double>(b.y) - a.y;
    const double length = std::sqrt(dx * dx + dy * dy);
    const double largest = std::max(largestCoordinate(a), largestCoordinate(b));
    return {quotient(dx, length), quotient(dy, length), quotient(halfStepOf(largest), length)};
}

bool areParallel(const Direction& a, const Direction& b)
{
    const double inDoubt = turnInDoubt + halfStepsInDoubt * (a.rounding + b.rounding);
    return !(std::abs(sineBetween(a, b)) > inDoubt); // so written, a NaN is parallel
}

bool areOnOneRay(const Direction& a, const Direction& b)
{
    const double inDoubt = halfStepsOfALeg * (a.rounding + b.rounding);
    return std::abs(sineBetween(a, b)) <= inDoubt && a.x * b.x + a.y * b.y > 0;
}

} // namespace mirtane
