// geometry/ortho.cpp: confinement keeps the distance and changes the direction: a rotation, not a projection.

#include "geometry/ortho.h"

#include "geometry/angle.h"
#include "geometry/fault.h"

#include <cmath>

namespace mirtane {
namespace {

// By which the end of a leg may lie off the axis that it was laid on, level and upright together.
constexpr double halfStepsOfAnEnd = 2;

} // namespace

Way axisOf(std::int16_t sector, double orthoAngle)
{
    const double c = std::cos(orthoAngle);
    const double s = std::sin(orthoAngle);
    switch (sector) {
    case 1:
        return {c, -s};
    case 2:
        return {-s, -c};
    case 3:
        return {-c, s};
    case 4:
        return {s, c};
    default:
        return {};
    }
}

std::int16_t sectorOfDirection(double direction, double orthoAngle)
{
    double d = direction - orthoAngle;
    if (d < 0) d += fullTurn;
    if (d >= fullTurn) d -= fullTurn; // with an angle below 0
    if (d <= eighthTurn) return 1;
    if (d <= threeEighthsTurn) return 2;
    if (d <= fiveEighthsTurn) return 3;
    if (d <= sevenEighthsTurn) return 4;
    return 1;
}

Point pointOnAxis(Point origin, double d, std::int16_t sector, double orthoAngle, Point fallback)
{
    const Way axis = axisOf(sector, orthoAngle);
    if (!axis.isAny()) return fallback;
    Point p = fallback;
    keep(p.x, origin.x + d * axis.x);
    keep(p.y, origin.y + d * axis.y);
    return p;
}

Direction directionByOrtho(Point from, Point to, std::int16_t sector, double orthoAngle)
{
    const Direction leg = directionOf(from, to);
    const Way axis = axisOf(sector, orthoAngle);
    const double offAxis = std::abs(leg.x * axis.y - leg.y * axis.x);
    if (!axis.isAny() || !(offAxis <= halfStepsOfAnEnd * leg.rounding)) return leg;
    const double sign = leg.x * axis.x + leg.y * axis.y < 0 ? -1 : 1;
    return {sign * axis.x, sign * axis.y, 0};
}

} // namespace mirtane
