// geometry/ortho.cpp: confinement keeps the distance and changes the direction: a rotation, not a projection.

#include "geometry/ortho.h"

#include "geometry/angle.h"
#include "geometry/fault.h"

#include <cmath>

namespace mirtane {

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
    if (sector < 1 || sector > 4) return fallback;
    struct Axis {
        int cosInX, sinInX, cosInY, sinInY;
    };
    static constexpr Axis axes[] = {{1, 0, 0, -1}, {0, -1, -1, 0}, {-1, 0, 0, 1}, {0, 1, 1, 0}};
    const Axis& axis = axes[sector - 1];
    const double c = d * std::cos(orthoAngle);
    const double s = d * std::sin(orthoAngle);
    Point p = fallback;
    keep(p.x, origin.x + axis.cosInX * c + axis.sinInX * s);
    keep(p.y, origin.y + axis.cosInY * c + axis.sinInY * s);
    return p;
}

} // namespace mirtane
