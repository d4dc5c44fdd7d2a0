#include "exchange/ellipse_pieces.h"

#include "exchange/tangent_arcs.h"

namespace mirtane {
namespace {

constexpr double quarter = std::numbers::pi / 2;

// The ends, and between them where the curve crosses its axes: there it bends the most and the least.
std::vector<double> breaksOf(const EllipseArc& e)
{
    const double axis = 0.5 * std::atan2(2 * dot(e.u, e.v), dot(e.u, e.u) - dot(e.v, e.v));
    std::vector<double> breaks{e.from};
    for (double t = axis + std::ceil((e.from - axis) / quarter) * quarter; t < e.to; t += quarter) {
        if (t > e.from) breaks.push_back(t);
    }
    breaks.push_back(e.to);
    return breaks;
}

bool isFlat(const EllipseArc& e, double tolerance)
{
    const PrincipalAxes axes = principalAxes(e);
    return axes.ratio * length(axes.major) <= tolerance / 100;
}

std::vector<Piece> linesToAndFro(const EllipseArc& e)
{
    const auto breaks = breaksOf(e);
    std::vector<Piece> pieces;
    for (std::size_t i = 1; i < breaks.size(); ++i) pieces.push_back({e.at(breaks[i - 1]), e.at(breaks[i])});
    return pieces;
}

// A bulge tells a whole circle from nothing as little as a line to the same point would.
void addStroke(const Stroke& stroke, std::vector<Piece>& pieces)
{
    const bool isLong = std::abs(stroke.sweep) > std::numbers::pi;
    const int parts = isLong ? 2 : 1;
    const double bulge = std::tan(stroke.sweep / parts / 4);
    if (isLong) pieces.push_back({stroke.from, pointOn(stroke, 0.5), bulge});
    pieces.push_back({isLong ? pieces.back().to : stroke.from, stroke.to, bulge});
}

} // namespace

std::vector<Piece> piecesOf(const EllipseArc& arc, double tolerance)
{
    constexpr double farthest = 1e9; // turns beyond it can't be told apart
    const bool isSound = std::abs(arc.from) < farthest && isFinite(arc.centre) && isFinite(arc.u) &&
                         isFinite(arc.v) && arc.to > arc.from &&
                         arc.to - arc.from <= 2 * std::numbers::pi + 1e-6;
    if (!isSound) return {};
    if (isFlat(arc, tolerance)) return linesToAndFro(arc);
    const auto at = [&arc](double t, Side) {
        return CurvePoint{arc.at(t), std::cos(t) * arc.v - std::sin(t) * arc.u};
    };
    std::vector<Piece> pieces;
    for (const Stroke& stroke : tangentArcs({at, breaksOf(arc)}, tolerance)) addStroke(stroke, pieces);
    return pieces;
}

} // namespace mirtane
