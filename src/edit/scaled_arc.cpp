// edit/scaled_arc.cpp: flat arcs, of which a spline is made, have centres far off: their points, rounded,
// tell little of the radius, so that nothing is worked out from them that is known otherwise.

#include "edit/scaled_arc.h"

#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/fault.h"
#include "geometry/rounding.h"
#include "model/record_moves.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace mirtane {
namespace {

// The image of a direction under factors of one size; on the four axes it is exact.
double imageOf(const Factors& f, double radians)
{
    const Point on = polarPoint({}, 1, radians);
    const bool turnsX = f.x < 0;
    const bool turnsY = f.y < 0;
    if (on.x == 0 || on.y == 0) {
        const Point image{turnsX ? -on.x : on.x, turnsY ? -on.y : on.y};
        return directionAngle({}, image, radians);
    }
    const double turned = turnsX ? withinTurn(halfTurn - radians) : radians;
    return turnsY ? withinTurn(fullTurn - turned) : turned;
}

EntityRecord scaledAlike(const EntityRecord& arc, const Factors& f)
{
    EntityRecord image = arc;
    for (Point EntityRecord::*const p :
         {&EntityRecord::p1, &EntityRecord::p2, &EntityRecord::p3, &EntityRecord::p4})
        image.*p = f.of(arc.*p);
    keep(image.rad, std::abs(f.x) * arc.rad);
    keep(image.a1, imageOf(f, arc.a1));
    keep(image.a2, imageOf(f, arc.a2));
    if (f.mirrors()) {
        std::swap(image.a1, image.a2);
        std::swap(image.p2, image.p3);
    }
    return image;
}

struct Place {
    double x, y;
};

double apart(Place a, Place b)
{
    return std::hypot(b.x - a.x, b.y - a.y);
}

std::optional<Point> stored(Place p)
{
    Point held;
    if (!keep(held.x, p.x) || !keep(held.y, p.y)) return std::nullopt;
    return held;
}

Place imageOf(const Factors& f, Place p)
{
    return {f.base.x + (p.x - f.base.x) * f.x, f.base.y + (p.y - f.base.y) * f.y};
}

// As far over the middle of the chord as radius and angles tell.
Place middleOf(const EntityRecord& arc)
{
    const double whole = sweep(arc.a1, arc.a2);
    const double ofQuarter = std::sin(whole / 4);
    const double bulge = 2 * arc.rad * ofQuarter * ofQuarter;
    const double turn = arc.a1 + whole / 2;
    return {(static_cast<double>(arc.p2.x) + arc.p3.x) / 2 +
                bulge * std::cos(turn), // widened before the sums
            (static_cast<double>(arc.p2.y) + arc.p3.y) / 2 - bulge * std::sin(turn)};
}

struct Triangle {
    Place start, middle, end;

    // Twice its area, with the sign of the way round.
    double across() const
    {
        return (middle.x - start.x) * (end.y - start.y) - (middle.y - start.y) * (end.x - start.x);
    }
    // Below 0 with an obtuse angle at the start.
    double dot() const
    {
        return (middle.x - start.x) * (end.x - start.x) + (middle.y - start.y) * (end.y - start.y);
    }
    // Of the circle through all three. The rule takes the magnitude of the cosine at the start: with an
    // obtuse angle there the circle misses the end.
    Place centre() const
    {
        const double length = apart(start, end);
        const double off = quotient(length * length - std::abs(dot()), 2 * across());
        return {(start.x + middle.x) / 2 - off * (middle.y - start.y),
                (start.y + middle.y) / 2 + off * (middle.x - start.x)};
    }
};

Triangle imageOf(const Factors& f, const EntityRecord& arc)
{
    return {imageOf(f, Place{arc.p2.x, arc.p2.y}), imageOf(f, middleOf(arc)),
            imageOf(f, Place{arc.p3.x, arc.p3.y})};
}

// Whether it bulges by more than the rounding of its centre moves it.
bool isBent(const Triangle& image, Place centre)
{
    const double bulge = quotient(std::abs(image.across()), apart(image.start, image.end));
    return bulge > halfStepOf(std::max(std::abs(centre.x), std::abs(centre.y)));
}

// Between the two that lie furthest apart.
EntityRecord lineThrough(const Triangle& image, const EntityRecord& arc)
{
    Place from = image.start;
    Place to = image.end;
    if (apart(image.start, image.middle) > apart(from, to)) to = image.middle;
    if (apart(image.middle, image.end) > apart(from, to)) {
        from = image.middle;
        to = image.end;
    }
    const auto p1 = stored(from);
    const auto p2 = stored(to);
    if (!p1 || !p2) return arc;
    EntityRecord line = arc;
    line.kind = Kind::line;
    line.p1 = *p1;
    line.p2 = *p2;
    return line;
}

EntityRecord scaledApart(const EntityRecord& arc, const Factors& f)
{
    const Triangle image = imageOf(f, arc);
    const Place centre = image.centre();
    if (!isBent(image, centre)) return lineThrough(image, arc);
    auto start = stored(image.start);
    auto end = stored(image.end);
    const auto about = stored(centre);
    EntityRecord scaled = arc;
    if (!start || !end || !about || !keep(scaled.rad, apart(centre, image.start))) return arc;
    if (f.mirrors()) std::swap(start, end);
    scaled.p1 = *about;
    scaled.a1 = directionAngle(*about, *start, arc.a1);
    scaled.a2 = directionAngle(*about, *end, arc.a2);
    placeArcPoints(scaled);
    if (image.dot() < 0) return scaled;
    scaled.p2 = *start;
    scaled.p3 = *end;
    return scaled;
}

} // namespace

Point Factors::of(Point p) const
{
    keep(p.x, base.x + (static_cast<double>(p.x) - base.x) * x); // widened before the difference
    keep(p.y, base.y + (static_cast<double>(p.y) - base.y) * y); // widened before the difference
    return p;
}

// Of nothing in one direction, every arc would be a line: it stays as it is.
EntityRecord scaledArc(const EntityRecord& arc, const Factors& factors)
{
    if (factors.x == 0 || factors.y == 0) return arc;
    return std::abs(factors.x) == std::abs(factors.y) ? scaledAlike(arc, factors) : scaledApart(arc, factors);
}

} // namespace mirtane
