#pragma once

// A smooth curve as few lines and arcs, each running on in the direction in which the one before it ends.

#include "exchange/vec.h"

#include <functional>
#include <span>
#include <vector>

namespace mirtane {

// A line, or an arc if it has a radius. sweep is the turn from one end to the other, radians, below 0
// clockwise; that of a whole circle is a full turn.
struct Stroke {
    Vec from, to;
    Vec centre{};
    double radius = 0;
    double sweep = 0;

    bool isArc() const { return radius > 0; }
};

struct CurvePoint {
    Vec at;
    Vec way; // the derivative
};

// Of two stretches that meet at a parameter, the one that is meant.
enum class Side { before, after };

struct Curve {
    std::function<CurvePoint(double, Side)> at;
    // Rising parameters; between two neighbours the curve is one formula. The first and last are its ends.
    std::vector<double> breaks;
};

// The strokes stray from the curve by no more than the tolerance, and no more than a small part of its own
// size, so that a small drawing is as true as a large one, unless that would take thousands of them. The
// curve is smooth from end to end; what has a corner is given in two.
std::vector<Stroke> tangentArcs(const Curve& curve, double tolerance);

// Adds a stroke; one that runs on along the same line or circle, as far as the tolerance tells, makes the
// last longer.
void append(std::vector<Stroke>& strokes, const Stroke& stroke, double tolerance);

// The arc from one point to another that leaves the first in a given direction; a line if it hardly bends.
Stroke arcLeaving(Vec from, Vec way, Vec to);

constexpr Stroke straightStroke(Vec from, Vec to)
{
    return {from, to};
}

// The stroke from one point to another with the tangent of a quarter of its sweep.
Stroke bulgeStroke(Vec from, Vec to, double bulge);

// The point of a stroke that lies a part (0 to 1) on the way.
Vec pointOn(const Stroke& stroke, double part);

double distanceTo(const Stroke& stroke, Vec p);

} // namespace mirtane
