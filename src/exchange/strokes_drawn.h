#pragma once

#include "exchange/drawing_maker.h"
#include "exchange/tangent_arcs.h"

namespace mirtane {

EllipseArc arcOf(const Stroke& stroke); // which is one
void drawStrokes(std::span<const Stroke> strokes, DrawingMaker& maker);

// Of all curves, one after the other.
std::vector<Stroke> strokesOf(std::span<const Curve> curves, double tolerance);
std::vector<Stroke> strokesOf(const EllipseArc& arc, double tolerance);

} // namespace mirtane
