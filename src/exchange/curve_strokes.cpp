#include "exchange/curve_strokes.h"

#include <algorithm>
#include <cmath>

namespace mirtane {

EllipseArc arcOf(const Stroke& stroke)
{
    constexpr double whole = 2 * std::numbers::pi;
    constexpr double little = 1e-6;
    const Vec out = stroke.from - stroke.centre;
    const double turn = std::abs(stroke.sweep);
    return {stroke.centre, out, (stroke.sweep < 0 ? -1 : 1) * turnedLeft(out), 0,
            turn > whole - little ? whole : turn};
}

std::vector<Stroke> strokesOf(std::span<const Curve> curves, double tolerance)
{
    std::vector<Stroke> all;
    for (const Curve& curve : curves) {
        for (const Stroke& stroke : tangentArcs(curve, tolerance)) append(all, stroke, tolerance);
    }
    return all;
}

std::vector<Stroke> strokesOf(const EllipseArc& arc, double tolerance)
{
    if (arc.isCircular()) {
        const double turn = (cross(arc.u, arc.v) < 0 ? -1 : 1) * (arc.to - arc.from);
        return {{arc.at(arc.from), arc.at(arc.to), arc.centre, length(arc.u), turn}};
    }
    std::vector<Stroke> strokes;
    for (const Piece& piece : piecesOf(arc, tolerance))
        strokes.push_back(bulgeStroke(piece.from, piece.to, piece.bulge));
    return strokes;
}

} // namespace mirtane
