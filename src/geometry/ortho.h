#pragma once

#include "geometry/point.h"

#include <cstdint>

namespace mirtane {

// Ortho turns a point about an origin onto one of four axes that stand at orthoAngle (radians).
// Sectors 1 to 4 name the axes counter-clockwise from the right; they are chosen by the pointer's direction.

// The sector of direction (radians, 0 to a full turn) under orthoAngle; each upper limit belongs to its
// sector.
std::int16_t sectorOfDirection(double direction, double orthoAngle);

// The point at distance d (world units, negative runs backward) from origin on the axis of sector.
// A sector outside 1 to 4 and a coordinate that overflows leave fallback's.
Point pointOnAxis(Point origin, double d, std::int16_t sector, double orthoAngle, Point fallback);

} // namespace mirtane
