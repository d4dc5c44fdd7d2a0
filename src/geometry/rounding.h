#pragma once

// Points are stored in 32 bits. What was one point when it was drawn may lie some steps of rounding apart
// once it has been copied, turned and cut.

#include "geometry/point.h"

namespace mirtane {

// The larger of the two, by which the rounding of a point goes.
double largestCoordinate(Point p);

// By how much storing a number may change it at the most, for one of this size.
double halfStepOf(double size);

// A line is drawn, copied and cut before it is asked, and each of these moves its ends by up to half a step,
// level and upright.
inline constexpr double halfStepsInDoubt = 8;

// How far apart two things of this size may come to lie that were drawn as one.
double apartByRounding(double size);

// Whether two points are one as far as their rounding tells.
bool areOnePoint(Point a, Point b);

} // namespace mirtane
