#pragma once

// Everything round before it is an object: a circle, an ellipse, or a part of one, wherever a transform took
// it.

#include "exchange/transform.h"

#include <numbers>

namespace mirtane {

// The points centre + cos t * u + sin t * v, t from "from" to "to", which is not below it. u and v need not
// stand square: a tilted or unevenly scaled circle is one as well. The whole of it where to - from is a full
// turn.
struct EllipseArc {
    Vec centre, u, v;
    double from = 0, to = 2 * std::numbers::pi;

    Vec at(double t) const { return centre + std::cos(t) * u + std::sin(t) * v; }
    bool isWhole() const { return to - from >= 2 * std::numbers::pi - 1e-9; }
    // Square axes of one length, within a millionth.
    bool isCircular() const;
};

EllipseArc transformed(const EllipseArc& arc, const Transform2& t);

// Angles in radians, counter-clockwise; an end that is not above the start is a full turn on.
EllipseArc circularArc(Vec centre, double radius, double from, double to);
EllipseArc wholeCircle(Vec centre, double radius);

// The arc of a polyline's segment from a to b, neither equal nor without a bulge. Above 0 it runs
// counter-clockwise.
EllipseArc arcOfBulge(Vec a, Vec b, double bulge);

// The ends of an arc with a smaller part of a turn could not be told from its centre in 32 bits.
inline constexpr double leastTurnOfArc = 0.001;

// The same whole curve by its longer half axis and the one across it, which is turned left of it.
struct PrincipalAxes {
    Vec major;
    double ratio = 1; // of the shorter to the longer
};
PrincipalAxes principalAxes(const EllipseArc& arc);

} // namespace mirtane
