#pragma once

#include "geometry/direction.h"
#include "geometry/way.h"

#include <cstdint>

namespace mirtane {

// Ortho turns a point about an origin onto one of four axes that stand at orthoAngle (radians).
// Sectors 1 to 4 name the axes counter-clockwise from the right; they are chosen by the pointer's direction.

// The sector of direction (radians, 0 to a full turn) under orthoAngle; each upper limit belongs to its
// sector.
std::int16_t sectorOfDirection(double direction, double orthoAngle);

// The axis of sector. None outside 1 to 4.
Way axisOf(std::int16_t sector, double orthoAngle);

// The point at distance d (world units, negative runs backward) from origin on the axis of sector.
// A sector outside 1 to 4 and a coordinate that overflows leave fallback's.
Point pointOnAxis(Point origin, double d, std::int16_t sector, double orthoAngle, Point fallback);

// Where a leg runs that ortho may have laid on the axis of sector. Its end is rounded, and a short leg leans
// by that: as long as it lies on the axis up to the rounding of its points it runs as the axis does, exactly.
Direction directionByOrtho(Point from, Point to, std::int16_t sector, double orthoAngle);

} // namespace mirtane
