#include "exchange/bounds.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

void feedRound(Bounds& bounds, Vec centre, double radius)
{
    bounds.feed(centre - Vec{radius, radius});
    bounds.feed(centre + Vec{radius, radius});
}

// By its ends and its middle: the centre of a flat arc lies far off.
void feedArc(Bounds& bounds, const Made& made)
{
    for (const double angle : {made.from, made.from + turnOf(made) / 2, made.to})
        bounds.feed(made.p[0] + made.radius * wayAt(angle));
}

} // namespace

double Bounds::reach() const
{
    return std::max({std::abs(low.x), std::abs(low.y), std::abs(high.x), std::abs(high.y)});
}

void feed(Bounds& bounds, const Made& made)
{
    switch (made.kind) {
    case Kind::circle:
        return feedRound(bounds, made.p[0], made.radius);
    case Kind::arc:
        return feedArc(bounds, made);
    case Kind::ellipse:
        return feedRound(bounds, made.p[1], length(made.p[0] - made.p[1]));
    case Kind::point:
    case Kind::text:
        return bounds.feed(made.p[0]);
    case Kind::line:
        bounds.feed(made.p[0]);
        return bounds.feed(made.p[1]);
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::leader:
    case Kind::angularDimension:
        for (const std::size_t i : {0U, 1U, 2U}) bounds.feed(made.p[i]);
        return bounds.feed(made.p[4]);
    }
}

Bounds boundsOf(std::span<const Made> objects)
{
    Bounds bounds;
    for (const Made& one : objects) feed(bounds, one);
    return bounds;
}

} // namespace mirtane
