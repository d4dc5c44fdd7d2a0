#include "snap/snap_routines.h"

#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/fault.h"
#include "geometry/foot.h"
#include "geometry/nearest.h"
#include "geometry/parallel.h"
#include "geometry/rounding.h"
#include "geometry/tangent.h"
#include "snap/meeting.h"
#include "snap/object_search.h"
#include "snap/point_search.h"
#include "snap/snapped_point.h"
#include "tables/functions.h"

namespace mirtane {
namespace {

constexpr std::int32_t aLeg = -1; // of the boundary under way

constexpr KindSet anyWithAPoint = lineCircleArc | inKind(Kind::ellipse) | inKind(Kind::point);

ObjectHit searchObject(const EntityStore& store, const ObjectSearch& search)
{
    const ObjectHit hit = nearestObject(store, search);
    return hit.distance < search.radius ? hit : ObjectHit{-1, {}, search.radius};
}

// The object nearest to the click.
ObjectHit findObject(Session& s, float radius, KindSet kinds, ArcReach arcs)
{
    const ObjectHit hit =
        searchObject(s.store, {.from = s.mousePos, .radius = radius, .kinds = kinds, .arcs = arcs});
    s.snapBestIndex = hit.slot;
    s.snapRadius = hit.distance;
    return hit;
}

void writeOnLeg(Session& s, Point found)
{
    const auto leg = legKeptByPoint(s);
    writeSnapped(s, leg ? footOnLine(found, lineThrough(leg->from, leg->along), leg->from) : found);
}

Point middleOf(Point a, Point b)
{
    Point middle = a;
    keep(middle.x, (static_cast<double>(a.x) + b.x) / 2); // widened, so that the sum can't overflow
    keep(middle.y, (static_cast<double>(a.y) + b.y) / 2);
    return middle;
}

Point middleOfObject(const EntityStore& store, std::size_t i)
{
    switch (store.kind[i]) {
    case Kind::line:
        return middleOf(store.p1[i], store.p2[i]);
    case Kind::arc:
        return polarPoint(store.p1[i], store.rad[i], middleAngle(store.a1[i], store.a2[i]));
    case Kind::circle:
    case Kind::ellipse:
    case Kind::point:
    case Kind::text:
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::leader:
    case Kind::angularDimension: // a circle counts from its leftmost point
        return polarPoint(store.p1[i], store.rad[i], halfTurn);
    }
    return {};
}

// Midpoints of the boundary under way, for where one of them is as near as the object or nearer.
void offerLegMiddles(const Session& s, Point& best, float& least, FoundSlot& found)
{
    if (functionRow(s.curFunc).snaps.ownLegs != OwnLegs::endsAndMiddles) return;
    for (std::size_t i = 0; i < boundaryLegs(s); ++i) {
        const Point middle = middleOf(s.boundary[i].from, s.boundary[i].to);
        const float d = reach(s.mousePos, middle);
        if (!(d <= least)) continue;
        best = middle;
        least = d;
        found = aLeg;
    }
}

Point shareOfLine(Point from, Point to, double share)
{
    Point p = from;
    keep(p.x, from.x + share * (static_cast<double>(to.x) - from.x)); // widened before the difference
    keep(p.y, from.y + share * (static_cast<double>(to.y) - from.y));
    return p;
}

double shareOfArc(double a1, double a2, double share, bool fromStart)
{
    if (fromStart) {
        const double angle = a1 + share * sweep(a1, a2);
        return angle > fullTurn ? angle - fullTurn : angle;
    }
    const double angle = a2 - share * sweep(a1, a2);
    return angle < 0 ? angle + fullTurn : angle;
}

// Counted counter-clockwise from the circle's top or bottom.
double shareOfCircle(Point centre, double radius, double share, Point pointer)
{
    const Point top = polarPoint(centre, radius, quarterTurn);
    const Point bottom = polarPoint(centre, radius, threeQuartersTurn);
    const double from = isNearer(pointer, top, bottom) ? quarterTurn : threeQuartersTurn;
    const double angle = from + share * fullTurn;
    return angle > fullTurn ? angle - fullTurn : angle;
}

// The share of an object, counted from its end nearer to the pointer.
Point shareOfObject(const EntityStore& store, std::size_t i, double share, Point pointer)
{
    const Point p1 = store.p1[i];
    const Point p2 = store.p2[i];
    const double radius = store.rad[i];
    switch (store.kind[i]) {
    case Kind::line:
        return isNearer(pointer, p1, p2) ? shareOfLine(p1, p2, share) : shareOfLine(p2, p1, share);
    case Kind::arc: {
        const bool fromStart = isNearer(pointer, p2, store.p3[i]);
        return polarPoint(p1, radius, shareOfArc(store.a1[i], store.a2[i], share, fromStart));
    }
    case Kind::circle:
        return polarPoint(p1, radius, shareOfCircle(p1, radius, share, pointer));
    case Kind::ellipse:
    case Kind::point:
    case Kind::text:
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::leader:
    case Kind::angularDimension:
        break; // no share is asked of them
    }
    return p1;
}

// The point of a circle nearest to the pointer on the line through its centre and click 1; hit where neither
// is. A click 1 that is the centre but for rounding tells no line: the leg does.
Point perpendicularToCircle(const Session& s, Point centre, double radius, Point hit)
{
    if (areOnePoint(s.pickFirst, centre)) return pointTowards(centre, radius, directionOfLeg(s));
    const Direction along = directionOf(centre, s.pickFirst);
    const Point nearSide = pointTowards(centre, radius, along);
    const Point farSide = pointTowards(centre, -radius, along);
    if (isNearer(s.mousePos, nearSide, farSide)) return nearSide;
    return isNearer(s.mousePos, farSide, nearSide) ? farSide : hit;
}

} // namespace

FoundSlot snapPoint(Session& s, const Canvas& pic1)
{
    const auto found = nearestObjectPoint(s, pic1.getScale().width);
    writeOnLeg(s, found ? found->at : Point{});
    return found ? FoundSlot(found->slot) : std::nullopt;
}

FoundSlot snapObject(Session& s, const Canvas& pic1)
{
    const ObjectHit hit = findObject(s, searchRadius(pic1), anyWithAPoint, ArcReach::wholeCircle);
    if (!hit.found()) return std::nullopt;
    const auto leg = legKeptByObject(s);
    const auto result = leg ? meetingWithLeg(s.store, hit.slot, hit.at, *leg) : hit.at;
    if (!result) return std::nullopt;
    writeSnapped(s, *result);
    return hit.slot;
}

FoundSlot snapIntersection(Session& s, const Canvas& pic1)
{
    const float radius = searchRadius(pic1);
    s.snapSecondIndex = -1;
    const ObjectHit first = findObject(s, radius, lineCircleArc, ArcReach::sweep);
    if (!first.found()) return std::nullopt;
    const ObjectHit second = searchObject(s.store, {.from = s.mousePos,
                                                    .radius = radius,
                                                    .kinds = lineCircleArc,
                                                    .arcs = ArcReach::sweep,
                                                    .passOver = first.slot});
    s.snapSecondIndex = second.slot;
    s.snapRadius = second.distance;
    if (!second.found()) return std::nullopt;
    const auto p = meetingOfObjects(s.store, first.slot, second.slot, s.mousePos);
    if (!p) return std::nullopt;
    writeSnapped(s, *p);
    return first.slot;
}

FoundSlot snapPercentage(Session& s, const Canvas& pic1)
{
    const ObjectHit hit = findObject(s, searchRadius(pic1), lineCircleArc, ArcReach::sweep);
    if (!hit.found()) return std::nullopt;
    writeSnapped(s, shareOfObject(s.store, EntityStore::at(hit.slot), s.snapPercentage, s.mousePos));
    return hit.slot;
}

FoundSlot snapMidpoint(Session& s, const Canvas& pic1)
{
    const float limit = pic1.getScale().width;
    const ObjectHit hit = findObject(s, limit, lineCircleArc, ArcReach::wholeCircle);
    FoundSlot found = hit.found() ? FoundSlot(hit.slot) : std::nullopt;
    float least = hit.distance;
    Point best = found ? middleOfObject(s.store, EntityStore::at(hit.slot)) : Point{};
    offerLegMiddles(s, best, least, found);
    if (found) writeOnLeg(s, best);
    return found;
}

FoundSlot snapPerpendicular(Session& s, const Canvas& pic1)
{
    if (s.stepNo != 2 || !functionRow(s.curFunc).snaps.fromFirstClick) return std::nullopt;
    const ObjectHit hit = findObject(s, searchRadius(pic1), lineCircleArc, ArcReach::wholeCircle);
    if (!hit.found()) return std::nullopt;
    const std::size_t i = EntityStore::at(hit.slot);
    const Point p1 = s.store.p1[i];
    s.pickLast = s.store.kind[i] == Kind::line ? footOfPerpendicular(s.pickFirst, p1, s.store.p2[i], p1)
                                               : perpendicularToCircle(s, p1, s.store.rad[i], hit.at);
    return hit.slot;
}

FoundSlot snapTangent(Session& s, const Canvas& pic1)
{
    if (s.stepNo < 2 || !functionRow(s.curFunc).snaps.fromFirstClick) return std::nullopt;
    const ObjectHit hit = findObject(s, searchRadius(pic1), circleOrArc, ArcReach::wholeCircle);
    if (!hit.found()) return std::nullopt;
    const std::size_t i = EntityStore::at(hit.slot);
    const auto points = tangentPoints(s.pickFirst, s.store.p1[i], s.store.rad[i]);
    s.pickLast = isNearer(s.mousePos, points[1], points[0]) ? points[1] : points[0];
    return hit.slot;
}

} // namespace mirtane
