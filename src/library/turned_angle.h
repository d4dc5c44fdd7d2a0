#pragma once

#include "geometry/angle.h"

namespace mirtane {

// An arc's angle after a rotation, radians: brought back by one turn at the most, and only from above one.
inline double turnedAngle(double angle, double rotation)
{
    const double turned = angle + rotation;
    return turned > fullTurn ? turned - fullTurn : turned;
}

} // namespace mirtane
