// geometry/three_point.cpp: each step is stored in 32 bits, and one that faults leaves 0, as later steps rely
// on it.

#include "geometry/three_point.h"

#include "geometry/angle.h"
#include "geometry/fault.h"

#include <cmath>

namespace mirtane {
namespace {

float single(double value)
{
    float stored = 0;
    keep(stored, value);
    return stored;
}

struct Unit {
    float x, y; // y up
};

Unit unitFrom(Point from, Point to, float length)
{
    return {single(quotient(to.x - from.x, length)), single(quotient(from.y - to.y, length))};
}

Point moved(Point p, float alongX, float alongY, Point held)
{
    keep(held.x, static_cast<double>(p.x) + alongX); // widened before the sum
    keep(held.y, static_cast<double>(p.y) - alongY); // widened before the sum
    return held;
}

Point movedAlong(Point p, float length, Unit u)
{
    return moved(p, length * u.x, length * u.y, p);
}

// Across: u turned by a quarter counter-clockwise is (-u.y, u.x) with y up.
Point movedAcross(Point p, float length, Unit u, Point held)
{
    return moved(p, length * u.y, -length * u.x, held);
}

// The distance of the circle's centre from the middle of the first chord.
float centreOffset(Point p1, Point p2, Point p3, float chord)
{
    const float b = single(distance(p1, p3));
    const Unit v = unitFrom(p1, p3, b);
    const Point q = movedAlong(p1, chord, v);
    const float c = single(distance(q, p2));
    const float s = single(quotient(c / 2, chord));
    const float e = c * s;
    const Point r = movedAlong(q, -e, v);
    const float h = single(distance(r, p2));
    const float k = single(quotient(h, chord));
    const float m = chord / 2;
    const float n = m * k;
    const float w = single(std::sqrt(static_cast<double>(m) * m - static_cast<double>(n) * n)); // in double
    const float t = b / 2 - w;
    const float g = single(quotient(m, n));
    return t * g;
}

} // namespace

BisectorMarkers bisectorMarkers(Point p1, Point p2, const BisectorMarkers& held)
{
    const float chord = single(distance(p1, p2));
    const Unit u = unitFrom(p1, p2, chord);
    const Point middle = movedAlong(p1, chord / 2, u);
    return {movedAcross(middle, chord, u, held.a), movedAcross(middle, -chord, u, held.b)};
}

ThreePointCircle threePointCircle(Point p1, Point p2, Point p3, const BisectorMarkers& markers,
                                  const ThreePointCircle& held)
{
    ThreePointCircle found = held;
    const float chord = single(distance(p1, p2));
    const float offset = centreOffset(p1, p2, p3, chord);
    const Unit u = unitFrom(p1, p2, chord);
    found.chordMiddle = movedAlong(p1, chord / 2, u);
    found.toMarkerA = single(distance(p3, markers.a));
    found.toMarkerB = single(distance(p3, markers.b));
    if (found.toMarkerA < found.toMarkerB)
        found.centre = movedAcross(found.chordMiddle, offset, u, held.centre);
    if (found.toMarkerA > found.toMarkerB)
        found.centre = movedAcross(found.chordMiddle, -offset, u, held.centre);
    keep(found.radius, distance(found.centre, p1));
    return found;
}

} // namespace mirtane
