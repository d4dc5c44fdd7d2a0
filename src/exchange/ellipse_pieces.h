#pragma once

#include "exchange/ellipse_arc.h"

#include <vector>

namespace mirtane {

// A straight line, or, with a bulge, the arc of a circle.
struct Piece {
    Vec from, to;
    double bulge = 0;
};

// Few tangent arcs that stay within tolerance of the curve, in its order, each beginning where the last one
// ends. What is flat comes as lines to and fro.
std::vector<Piece> piecesOf(const EllipseArc& arc, double tolerance);

} // namespace mirtane
