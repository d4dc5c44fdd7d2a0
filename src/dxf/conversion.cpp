#include "dxf/conversion.h"

#include "dxf/file_units.h"
#include "dxf/open_slot.h"
#include "dxf/texts_in.h"
#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/fault.h"
#include "model/three_point_scratch.h"

namespace mirtane {
namespace {

void placeArcPoints(EntityStore& store, std::size_t at)
{
    const ArcPoints points = arcPoints(store.p1[at], store.rad[at], store.a1[at], store.a2[at]);
    store.p2[at] = points.start;
    store.p3[at] = points.end;
    store.p4[at] = points.middle;
}

void convertRound(EntityStore& store, std::size_t at)
{
    toWorld(store.p1[at]);
    keep(store.rad[at], store.rad[at] * worldPerFile);
    if (store.kind[at] == Kind::arc) placeArcPoints(store, at);
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

void convertSegment(Session& s, std::size_t at, BulgePoint& bulgePoint)
{
    EntityStore& store = s.store;
    toWorld(store.p1[at]);
    toWorld(store.p2[at]);
    store.kind[at] = Kind::line;
    if (store.p3[at].x == 0) return;
    s.ptA = store.p1[at];
    s.ptC = store.p2[at];
    s.ptB = bulgePoint.of(s.ptA, s.ptC, store.p3[at].x);
    markBisector(s);
    constructArc(s);
    store.p1[at] = s.ptF;
    store.rad[at] = s.workRadius;
    store.a1[at] = s.arcStart;
    store.a2[at] = s.arcEnd;
    placeArcPoints(store, at);
    store.kind[at] = Kind::arc;
}

} // namespace

void convertDxfSlots(Session& s, const TextWidthOf& widthOf)
{
    EntityStore& store = s.store;
    BulgePoint bulgePoint;
    for (std::int32_t i = 1; i < store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        const Kind kind = store.kind[at];
        if (kind == Kind::line) {
            toWorld(store.p1[at]);
            toWorld(store.p2[at]);
        } else if (isRound(kind)) {
            convertRound(store, at);
        } else if (kind == Kind::text) {
            convertText(store, i, widthOf);
        } else if (kind == polylineSegmentKind) {
            convertSegment(s, at, bulgePoint);
        }
    }
}

} // namespace mirtane
