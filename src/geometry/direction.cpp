#include "geometry/direction.h"

#include "geometry/fault.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

// Half a step of a 32-bit number, as a part of it.
constexpr double halfStep = 0x1p-24;

// A line is drawn, copied and cut before it is asked, and each of these moves its ends by up to half a step,
// level and upright.
constexpr double halfStepsInDoubt = 8;

// What is turned is turned by degrees times a literal of six digits, which is off by as much at a whole turn.
constexpr double turnInDoubt = 3e-6; // radians

double largestCoordinate(Point a, Point b)
{
    return std::max({std::abs(a.x), std::abs(a.y), std::abs(b.x), std::abs(b.y)});
}

} // namespace

Direction directionOf(Point a, Point b)
{
    const double dx = static_cast<double>(b.x) - a.x; // widened before the differences
    const double dy = static_cast<double>(b.y) - a.y;
    const double length = std::sqrt(dx * dx + dy * dy);
    return {quotient(dx, length), quotient(dy, length), quotient(halfStep * largestCoordinate(a, b), length)};
}

bool areParallel(const Direction& a, const Direction& b)
{
    const double sine = a.x * b.y - a.y * b.x;
    const double inDoubt = turnInDoubt + halfStepsInDoubt * (a.rounding + b.rounding);
    return !(std::abs(sine) > inDoubt); // so written, a NaN is parallel
}

bool runTheSameWay(const Direction& a, const Direction& b)
{
    return areParallel(a, b) && a.x * b.x + a.y * b.y > 0;
}

} // namespace mirtane
