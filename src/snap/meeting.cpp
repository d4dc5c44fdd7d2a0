#include "snap/meeting.h"

#include "geometry/angle.h"
#include "geometry/crossing.h"
#include "geometry/fault.h"
#include "geometry/foot.h"
#include "geometry/nearest.h"
#include "geometry/parallel.h"

namespace mirtane {
namespace {

using Slot = std::size_t;

std::optional<Point> nearerOf(const Crossings& c, Point to)
{
    if (c.count < 2) return std::nullopt;
    if (isNearer(to, c.points[0], c.points[1])) return c.points[0];
    if (isNearer(to, c.points[1], c.points[0])) return c.points[1];
    return std::nullopt;
}

std::optional<Point> sharedEnd(const EntityStore& store, Slot first, Slot second)
{
    const Point a = store.p1[first];
    const Point b = store.p2[first];
    if (a == store.p2[second] || a == store.p1[second]) return a;
    if (b == store.p1[second] || b == store.p2[second]) return b;
    return std::nullopt;
}

Point meetingByHeights(const EntityStore& store, Slot first, Slot second)
{
    const Point a = store.p1[first];
    const Point b = store.p2[first];
    const Point foot1 = footOfPerpendicular(store.p1[second], a, b, a);
    const Point foot2 = footOfPerpendicular(store.p2[second], a, b, a);
    const double h1 = distance(store.p1[second], foot1);
    const double h2 = distance(store.p2[second], foot2);
    const double share = quotient(h1, h1 + h2);
    Point p = foot1;
    keep(p.x, foot1.x + share * (foot2.x - foot1.x));
    keep(p.y, foot1.y + share * (foot2.y - foot1.y));
    return p;
}

// On a tie the first, which lies towards the line's end.
std::optional<Point> lineWithCircle(const EntityStore& store, Slot line, Slot circle, Point pointer)
{
    const Crossings c = crossLineCircle(store.p1[line], store.p2[line], store.p1[circle], store.rad[circle]);
    if (c.count == 0) return std::nullopt;
    const bool second = c.count == 2 && isNearer(pointer, c.points[1], c.points[0]);
    return second ? c.points[1] : c.points[0];
}

} // namespace

std::optional<Point> meetingOfObjects(const EntityStore& store, std::int32_t first, std::int32_t second,
                                      Point pointer)
{
    const Slot a = EntityStore::at(first);
    const Slot b = EntityStore::at(second);
    const bool aIsLine = store.kind[a] == Kind::line;
    const bool bIsLine = store.kind[b] == Kind::line;
    if (aIsLine && bIsLine) {
        const auto shared = sharedEnd(store, a, b);
        return shared ? *shared : meetingByHeights(store, a, b);
    }
    if (aIsLine) return lineWithCircle(store, a, b, pointer);
    if (bIsLine) return lineWithCircle(store, b, a, pointer);
    return nearerOf(crossCircles(store.p1[a], store.rad[a], store.p1[b], store.rad[b]), pointer);
}

std::optional<Point> meetingWithLeg(const EntityStore& store, std::int32_t slot, Point snapped,
                                    const KeptLeg& leg)
{
    const Slot at = EntityStore::at(slot);
    const Point p1 = store.p1[at];
    const ParallelLine line = lineThrough(leg.from, leg.along);
    switch (store.kind[at]) {
    case Kind::line: {
        const Crossings c = crossParallels(line, lineThrough(p1, directionOf(p1, store.p2[at])));
        return c.count == 1 ? std::optional(c.points[0]) : std::nullopt;
    }
    case Kind::circle:
    case Kind::arc:
        if (leg.from == p1) return pointTowards(p1, store.rad[at], leg.along);
        return nearerOf(crossParallelCircle(line, p1, store.rad[at]), leg.to);
    case Kind::ellipse:
    case Kind::point:
    case Kind::text:
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::leader:
    case Kind::angularDimension:
        break;
    }
    return snapped;
}

Point pointTowards(Point centre, double radius, const Direction& along)
{
    Point p = centre;
    keep(p.x, centre.x + along.x * radius);
    keep(p.y, centre.y + along.y * radius);
    return p;
}

} // namespace mirtane
