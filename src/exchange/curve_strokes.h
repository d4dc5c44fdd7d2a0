#pragma once

#include "exchange/ellipse_pieces.h"
#include "exchange/tangent_arcs.h"

#include <span>
#include <vector>

namespace mirtane {

// Of a stroke that is one.
EllipseArc arcOf(const Stroke& stroke);

// Of all curves, one after the other.
std::vector<Stroke> strokesOf(std::span<const Curve> curves, double tolerance);
std::vector<Stroke> strokesOf(const EllipseArc& arc, double tolerance);

} // namespace mirtane
