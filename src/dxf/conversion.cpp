#include "dxf/conversion.h"

#include "dxf/file_units.h"
#include "dxf/open_slot.h"
#include "dxf/texts_in.h"
#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/fault.h"
#include "geometry/three_point.h"

namespace mirtane {
namespace {

void placeArcPoints(EntityStore& store, std::size_t at)
{
    const Point centre = store.p1[at];
    const float radius = store.rad[at];
    store.p2[at] = polarPoint(centre, radius, store.a1[at]);
    store.p3[at] = polarPoint(centre, radius, store.a2[at]);
    store.p4[at] = polarPoint(centre, radius, middleAngle(store.a1[at], store.a2[at]));
}

void convertRound(EntityStore& store, std::size_t at)
{
    toWorld(store.p1[at]);
    keep(store.rad[at], store.rad[at] * worldPerFile);
    if (store.kind[at] == kind::arc) placeArcPoints(store, at);
}

// A segment's bulge as a point beside the middle of its chord.
class BulgePoint {
  public:
    Point of(Point start, Point end, float bulge)
    {
        float d = 0;
        keep(d, distance(start, end));
        keep(unit_.x, quotientSingle(end.x - start.x, d));
        keep(unit_.y, quotientSingle(start.y - end.y, d));
        Point p;
        keep(p.x, (start.x + end.x) / 2 + d / 2 * bulge * unit_.y);
        keep(p.y, (start.y + end.y) / 2 + d / 2 * bulge * unit_.x);
        return p;
    }

  private:
    Point unit_; // y up; a segment of no length has that of the one before it
};

// The arc from ptA to ptC by way of ptB, as the three-point arc has it: what can't be had stays in s.
void constructArc(ScratchPoints& s)
{
    const BisectorMarkers markers = bisectorMarkers(s.ptA, s.ptB, {s.bisectorA, s.bisectorB});
    s.bisectorA = markers.a;
    s.bisectorB = markers.b;
    ThreePointCircle held;
    held.centre = s.ptF;
    held.radius = s.workRadius;
    const ThreePointCircle found = threePointCircle(s.ptA, s.ptB, s.ptC, markers, held);
    s.ptF = found.centre;
    s.workRadius = found.radius;
    s.arcAngleTwo = directionAngle(s.ptF, s.ptC, s.arcAngleTwo);
    s.arcAngleOne = directionAngle(s.ptF, s.ptA, s.arcAngleOne);
    if (found.toMarkerA == found.toMarkerB) return;
    const bool towardsA = found.toMarkerA < found.toMarkerB;
    s.arcStart = towardsA ? s.arcAngleTwo : s.arcAngleOne;
    s.arcEnd = towardsA ? s.arcAngleOne : s.arcAngleTwo;
}

void convertSegment(Session& s, std::size_t at, BulgePoint& bulgePoint)
{
    EntityStore& store = s.store;
    toWorld(store.p1[at]);
    toWorld(store.p2[at]);
    store.kind[at] = kind::line;
    if (store.p3[at].x == 0) return;
    s.ptA = store.p1[at];
    s.ptC = store.p2[at];
    s.ptB = bulgePoint.of(s.ptA, s.ptC, store.p3[at].x);
    constructArc(s);
    store.p1[at] = s.ptF;
    store.rad[at] = s.workRadius;
    store.a1[at] = s.arcStart;
    store.a2[at] = s.arcEnd;
    placeArcPoints(store, at);
    store.kind[at] = kind::arc;
}

} // namespace

void convertDxfSlots(Session& s, const TextWidthOf& widthOf)
{
    EntityStore& store = s.store;
    BulgePoint bulgePoint;
    for (std::int32_t i = 1; i < store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        switch (store.kind[at]) {
        case kind::line:
            toWorld(store.p1[at]);
            toWorld(store.p2[at]);
            break;
        case kind::circle:
        case kind::arc:
            convertRound(store, at);
            break;
        case kind::text:
            convertText(store, i, widthOf);
            break;
        case kind::polylineSegment:
            convertSegment(s, at, bulgePoint);
            break;
        default:
            break;
        }
    }
}

} // namespace mirtane
