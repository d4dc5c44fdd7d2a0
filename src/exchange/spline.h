#pragma once

// Splines as drawings hold them: by control points, knots and weights, or by points that they pass through.

#include "exchange/tangent_arcs.h"

namespace mirtane {

// Farther off nothing is drawn, and the squares of distances could not be had.
inline constexpr double farthestPoint = 1e30;

struct Spline {
    int degree = 3;
    std::vector<double> knots;
    std::vector<Vec> points;
    std::vector<double> weights; // none: all are 1
};

// Its smooth stretches, one after the other. Knots that don't fit the points are replaced by even ones; none
// comes back of a spline that has too few points or a number that is none.
std::vector<Curve> curvesOf(Spline spline);

// What a spline through points knows of its ends; a tangent of no length is free.
struct PassingEnds {
    Vec start, end;
    bool isClosed = false;
};

// The curve through all points in their order; equal neighbours count as one.
std::vector<Curve> curvesThrough(std::vector<Vec> points, const PassingEnds& ends);

} // namespace mirtane
