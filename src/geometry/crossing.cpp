// geometry/crossing.cpp: all in double, widened before the differences; points are narrowed once, when they
// are added.

#include "geometry/crossing.h"

#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/direction.h"
#include "geometry/fault.h"

#include <cmath>

namespace mirtane {
namespace {

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

// The two points at a half chord either way along unit from the middle. squared is that of the half chord:
// the line misses with one below 0, touches at 0.
Crossings chordEnds(double middleX, double middleY, Vector unit, double squared)
{
    Crossings found;
    if (!(squared >= 0)) return found;
    const double t = std::sqrt(squared);
    found.add(middleX + t * unit.x, middleY + t * unit.y);
    if (t > 0) found.add(middleX - t * unit.x, middleY - t * unit.y);
    return found;
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
    const double height = cross(unit, toCentre);
    return chordEnds(a.x + foot * unit.x, a.y + foot * unit.y, unit, radius * radius - height * height);
}

Crossings crossCircles(Point c1, double r1, Point c2, double r2)
{
    const Vector way = between(c1, c2);
    const double d = std::sqrt(dot(way, way));
    const Vector unit{quotient(way.x, d), quotient(way.y, d)};
    const double toChord = quotient(d * d + r1 * r1 - r2 * r2, 2 * d);
    const Vector left{unit.y, -unit.x}; // y grows downward
    return chordEnds(c1.x + toChord * unit.x, c1.y + toChord * unit.y, left, r1 * r1 - toChord * toChord);
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
