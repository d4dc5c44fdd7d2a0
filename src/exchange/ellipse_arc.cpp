#include "exchange/ellipse_arc.h"

#include "geometry/fault.h"

#include <utility>

namespace mirtane {
namespace {

double turnOn(double from, double to)
{
    if (!std::isfinite(from) || !std::isfinite(to)) return wholeTurn;
    const double turn = std::fmod(to - from, wholeTurn);
    return turn <= 1e-12 ? turn + wholeTurn : turn;
}

} // namespace

bool EllipseArc::isCircular() const
{
    constexpr double little = 1e-6;
    const double a = length(u);
    return std::abs(a - length(v)) <= little * a && std::abs(dot(u, v)) <= little * a * a;
}

EllipseArc transformed(const EllipseArc& arc, const Transform2& t)
{
    return {t(arc.centre), t.way(arc.u), t.way(arc.v), arc.from, arc.to};
}

EllipseArc circularArc(Vec centre, double radius, double from, double to)
{
    const double start = std::fmod(from, wholeTurn);
    return {centre, {radius, 0}, {0, radius}, start, start + turnOn(from, to)};
}

EllipseArc wholeCircle(Vec centre, double radius)
{
    return {centre, {radius, 0}, {0, radius}};
}

// The bulge is the tangent of a quarter of the angle that the arc covers.
EllipseArc arcOfBulge(Vec a, Vec b, double bulge)
{
    const Vec chord = b - a;
    const double aside = quotient(1 - bulge * bulge, 4 * bulge);
    const Vec centre = 0.5 * (a + b) + aside * turnedLeft(chord);
    const double radius = length(a - centre);
    const double first = directionOf(a - centre);
    const double turn = 4 * std::atan(bulge);
    return {centre, {radius, 0}, {0, radius}, std::min(first, first + turn), std::max(first, first + turn)};
}

// Where the distance from the centre is greatest, tan 2t = 2 u.v / (u.u - v.v).
PrincipalAxes principalAxes(const EllipseArc& arc)
{
    const double t = 0.5 * std::atan2(2 * dot(arc.u, arc.v), dot(arc.u, arc.u) - dot(arc.v, arc.v));
    const Vec major = arc.at(t) - arc.centre;
    const double area = std::abs(cross(arc.u, arc.v));
    const double ratio = quotient(area, dot(major, major));
    return {major, std::isfinite(ratio) ? ratio : 0};
}

} // namespace mirtane
