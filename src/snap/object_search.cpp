// snap/object_search.cpp: nearly all objects lie far off, and the limits round the point tell so before
// anything is worked out.

#include "snap/object_search.h"

#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/fault.h"
#include "geometry/nearest.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

constexpr double twipsOfRadius = 360;

// The square round a point in which all points within a radius lie, a little larger, so that no rounding
// counts.
struct Limits {
    Limits(Point p, float radius)
        : room(radius + (radius + std::abs(p.x) + std::abs(p.y)) * 1e-6F), left(p.x - room), top(p.y - room),
          right(p.x + room), bottom(p.y + room)
    {
    }

    // No branch for each side: where an object lies can't be foretold.
    bool meetsBox(Point a, Point b) const
    {
        const int inX = int{std::min(a.x, b.x) <= right} & int{std::max(a.x, b.x) >= left};
        const int inY = int{std::min(a.y, b.y) <= bottom} & int{std::max(a.y, b.y) >= top};
        return (inX & inY) != 0;
    }

    float room, left, top, right, bottom;
};

class ObjectScan {
  public:
    ObjectScan(const EntityStore& store, const ObjectSearch& search)
        : store_(store), search_(search), limits_(search.from, search.radius)
    {
        hit_.distance = search.radius;
    }

    ObjectHit run()
    {
        const auto end = EntityStore::at(store_.end());
        for (std::size_t i = 1; i < end; ++i) {
            if (takesPart(store_.stat[i], store_.kind[i])) test(i);
        }
        return hit_;
    }

  private:
    bool takesPart(Stat stat, Kind kind) const
    {
        const bool statTakesPart = (search_.stats & inStat(stat)) != 0;
        return statTakesPart && isDrawnKind(kind) && (search_.kinds & inKind(kind)) != 0;
    }

    void test(std::size_t i)
    {
        switch (store_.kind[i]) {
        case Kind::line:
            return testLine(i);
        case Kind::circle:
        case Kind::arc:
            return testCircle(i);
        case Kind::ellipse:
            return testEllipse(i);
        case Kind::point:
        case Kind::text:
            return offerPoint(i, store_.p1[i]);
        case Kind::leader:
            return offerPoint(i, store_.p2[i]);
        case Kind::linearDimension:
        case Kind::radialDimension:
        case Kind::angularDimension:
            return offerPoint(i, store_.p5[i]);
        }
    }

    void testLine(std::size_t i)
    {
        const Point a = store_.p1[i];
        const Point b = store_.p2[i];
        if (!limits_.meetsBox(a, b)) return;
        if (const auto foot = nearestOnSegment(search_.from, a, b)) offer(i, *foot);
    }

    void testCircle(std::size_t i)
    {
        const Point centre = store_.p1[i];
        const float radius = store_.rad[i];
        if (!mayMeetRing(centre, std::abs(radius), std::abs(radius))) return;
        if (store_.kind[i] == Kind::arc && !seesArc(i)) return;
        offer(i, seesFromCentre(centre) ? polarPoint(centre, radius, 0)
                                        : nearestOnCircle(search_.from, centre, radius));
    }

    // In no direction from the centre, which counts as to the right.
    bool seesFromCentre(Point centre) const
    {
        return search_.from == centre && search_.fromCentre == FromCentre::aRadius;
    }

    void testEllipse(std::size_t i)
    {
        const Ellipse e{store_.p1[i], store_.p2[i], store_.p3[i].x};
        const HalfAxes axes = halfAxes(e);
        if (mayMeetRing(e.centre, axes.shorter, axes.longer)) offer(i, nearestOnEllipse(search_.from, e));
    }

    // Whether a figure between two radii about centre can come within the limits. The centre itself may stand
    // for a circle seen from there.
    bool mayMeetRing(Point centre, double inner, double outer) const
    {
        const double dx =
            static_cast<double>(search_.from.x) - centre.x; // widened: no rounding near the ring
        const double dy = static_cast<double>(search_.from.y) - centre.y;
        const double squared = dx * dx + dy * dy;
        const double most = outer + limits_.room;
        const double least = std::max(0.0, inner - limits_.room);
        return (squared <= most * most && squared >= least * least) || squared == 0;
    }

    bool seesArc(std::size_t i) const
    {
        if (search_.arcs == ArcReach::wholeCircle) return true;
        const double angle = directionAngle(store_.p1[i], search_.from, 0);
        return search_.arcs == ArcReach::sweep ? onSweep(angle, store_.a1[i], store_.a2[i])
                                               : onSweepOrJustBeyond(angle, store_.a1[i], store_.a2[i]);
    }

    void offerPoint(std::size_t i, Point at)
    {
        if (limits_.meetsBox(at, at)) offer(i, at);
    }

    void offer(std::size_t i, Point at)
    {
        const auto slot = static_cast<std::int32_t>(i); // below the table's end
        const float d = reach(search_.from, at);
        if (!(d <= hit_.distance) || slot == search_.passOver) return;
        hit_ = {slot, at, d};
        limits_ = Limits(search_.from, d);
    }

    const EntityStore& store_;
    const ObjectSearch& search_;
    Limits limits_;
    ObjectHit hit_;
};

} // namespace

float searchRadius(const Canvas& pic1)
{
    float radius = 0;
    keep(radius, quotient(pic1.getScale().width * twipsOfRadius, pic1.getOuterSize().width));
    return radius;
}

KindSet kindsWith(bool (*has)(Kind))
{
    KindSet kinds = 0;
    for (const Kind kind : everyKind) {
        if (has(kind)) kinds |= inKind(kind);
    }
    return kinds;
}

ObjectHit nearestObject(const EntityStore& store, const ObjectSearch& search)
{
    return ObjectScan(store, search).run();
}

} // namespace mirtane
