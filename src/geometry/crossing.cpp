// geometry/crossing.cpp: all in double, widened before the differences; points are narrowed once, when they
// are added.

#include "geometry/crossing.h"

#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/direction.h"
#include "geometry/fault.h"
#include "geometry/rounding.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

// Of the line, of the centre and of the radius each: where a line touches a circle, its end was rounded when
// it was drawn, and once more, as the circle was, when both were copied, level and upright each.
constexpr double halfStepsOfAPoint = 4;

struct Vector {
    double x, y;
};

Vector between(Point from, Point to)
{
    return {static_cast<double>(to.x) - from.x, static_cast<double>(to.y) - from.y}; // widened first
}

double dot(Vector a, Vector b)
{
    return a.x * b.x + a.y * b.y;
}

double cross(Vector a, Vector b)
{
    return a.x * b.y - a.y * b.x;
}

// The two points at a half chord either way. squared is that of the half chord: the line misses with one
// below 0, touches at 0.
Crossings bothEnds(const Chord& chord, double squared)
{
    Crossings found;
    if (!(squared >= 0)) return found;
    const double t = std::sqrt(squared);
    found.add(chord.footX + t * chord.alongX, chord.footY + t * chord.alongY);
    if (t > 0) found.add(chord.footX - t * chord.alongX, chord.footY - t * chord.alongY);
    return found;
}

// By how much rounding moves the line through a and b at a share of the way between them; beyond an end as
// there.
double roundingOfLine(Point a, Point b, double share)
{
    const double s = std::clamp(share, 0.0, 1.0);
    return (1 - s) * halfStepOf(largestCoordinate(a)) + s * halfStepOf(largestCoordinate(b));
}

} // namespace

void Crossings::add(double x, double y)
{
    Point p;
    if (!keep(p.x, x) || !keep(p.y, y)) return;
    points[static_cast<std::size_t>(count)] = p; // count is 0 or 1 here
    ++count;
}

Crossings crossLines(Point a, Point b, Point c, Point d)
{
    Crossings found;
    if (areParallel(directionOf(a, b), directionOf(c, d))) return found;
    const Vector u = between(a, b);
    const Vector v = between(c, d);
    const double share = quotient(cross(between(a, c), v), cross(u, v));
    found.add(a.x + share * u.x, a.y + share * u.y);
    return found;
}

Crossings crossLineCircle(Point a, Point b, Point centre, double radius)
{
    const Vector along = between(a, b);
    const double length = std::sqrt(dot(along, along));
    const Vector unit{quotient(along.x, length), quotient(along.y, length)};
    const Vector toCentre = between(a, centre);
    const double foot = dot(toCentre, unit);
    return chordEnds({a.x + foot * unit.x, a.y + foot * unit.y, unit.x, unit.y}, cross(unit, toCentre),
                     centre, radius, roundingOfLine(a, b, quotient(foot, length)));
}

Crossings chordEnds(const Chord& chord, double height, Point centre, double radius, double lineOff)
{
    const double inDoubt =
        halfStepsOfAPoint * (lineOff + halfStepOf(largestCoordinate(centre)) + halfStepOf(std::abs(radius)));
    if (std::abs(std::abs(height) - std::abs(radius)) <= inDoubt) return bothEnds(chord, 0);
    return bothEnds(chord, radius * radius - height * height);
}

Crossings crossCircles(Point c1, double r1, Point c2, double r2)
{
    const Vector way = between(c1, c2);
    const double d = std::sqrt(dot(way, way));
    const Vector unit{quotient(way.x, d), quotient(way.y, d)};
    const double toChord = quotient(d * d + r1 * r1 - r2 * r2, 2 * d);
    const Vector left{unit.y, -unit.x}; // y grows downward
    return bothEnds({c1.x + toChord * unit.x, c1.y + toChord * unit.y, left.x, left.y},
                    r1 * r1 - toChord * toChord);
}

Crossings onArc(const Crossings& all, Point centre, double a1, double a2)
{
    Crossings kept;
    for (int i = 0; i < all.count; ++i) {
        const Point p = all.points[static_cast<std::size_t>(i)]; // i is 0 or 1
        if (onSweep(directionAngle(centre, p, 0), a1, a2)) kept.add(p.x, p.y);
    }
    return kept;
}

} // namespace mirtane
