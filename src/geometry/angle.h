#pragma once

#include "geometry/point.h"

#include <limits>

namespace mirtane {

// The short literals are part of the drawing format: angles computed with longer ones would not compare
// equal.
inline constexpr double eighthTurn = 0.7853982;
inline constexpr double quarterTurn = 1.5707963;
inline constexpr double threeEighthsTurn = 2.3561945;
inline constexpr double halfTurn = 3.1415927;
inline constexpr double fiveEighthsTurn = 3.9269908;
inline constexpr double threeQuartersTurn = 4.712389;
inline constexpr double sevenEighthsTurn = 5.4977872;
inline constexpr double fullTurn = 6.2831853;
inline constexpr double degreesPerRadian = 57.29578;
inline constexpr double radiansPerDegree = 0.0174533;

// Of what has no direction.
inline constexpr double noAngle = std::numeric_limits<double>::quiet_NaN();

// Distance in world units, computed in double from the 32-bit differences.
double distance(Point a, Point b);

// The direction of b from a, radians from 0 to a full turn, counter-clockwise on the screen.
// With a and b equal there is none, and none can be computed of coordinates too far apart for a float:
// previous comes back, which is what the caller's variable held.
double directionAngle(Point a, Point b, double previous);

// The point at radius r (world units) and angle a (radians) about centre, exact on the four axes.
// A coordinate that overflows keeps the centre's.
Point polarPoint(Point centre, double r, double a);

} // namespace mirtane
