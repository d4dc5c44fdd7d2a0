#include "edit/trim.h"

#include "edit/cut_choice.h"
#include "edit/selection_run.h"
#include "geometry/crossing.h"
#include "snap/object_search.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace mirtane {
namespace {

// Of the way from a line's start to the boundary, by which a pick may lie beyond it.
constexpr double toSpareAtLine = 0.001;
constexpr double toSpareAtRound = 0.01;

// Of the radius: a crossing this near to the level or the upright through the centre lies on it.
constexpr double onAxisWithin = 0.001;

Crossings crossingsOf(const EntityRecord& object, const EntityRecord& boundary)
{
    const bool toLine = boundary.kind == Kind::line;
    if (object.kind == Kind::line) {
        if (toLine) return crossLines(object.p1, object.p2, boundary.p1, boundary.p2);
        return crossLineCircle(object.p1, object.p2, boundary.p1, boundary.rad);
    }
    if (toLine) return crossLineCircle(boundary.p1, boundary.p2, object.p1, object.rad);
    return crossCircles(object.p1, object.rad, boundary.p1, boundary.rad);
}

// The axis points of a circle are exact, and so are the angles there.
Point onAxis(Point p, Point centre, float radius)
{
    const double room = radius * onAxisWithin;
    Point moved = p;
    if (std::abs(p.x - centre.x) < room) moved = {centre.x, centre.y + std::copysign(radius, p.y - centre.y)};
    if (std::abs(p.y - centre.y) < room) moved = {centre.x + std::copysign(radius, p.x - centre.x), centre.y};
    return moved;
}

class Trim {
  public:
    Trim(Session& s, const Canvas& pic1, std::int32_t boundary)
        : s_(s), scale_(pic1.getScale()), boundary_(s.store.record(boundary))
    {
    }

    // False ends the run. Nothing is in the drawing yet.
    bool trimObject(std::int32_t slot)
    {
        const EntityRecord object = s_.store.record(slot);
        if (!isLineOrArc(object.kind)) return true;
        const Crossings found = crossingsTo(object);
        if (boundary_.kind == Kind::line && object.kind == Kind::line) {
            if (found.count == 0 || isFarOff(found.points[0])) return false;
        } else if (found.count == 0) {
            missed_.push_back(slot);
            return true;
        }
        s_.pickLast = nearerCrossing(found, chosenBy(object), s_.pickLast);
        cut_.push_back(cutTo(object, s_.pickLast));
        return true;
    }

    // False if there is no room for all that was cut.
    bool takeIntoDrawing()
    {
        if (!hasRoomFor(s_, std::ssize(cut_))) return false;
        for (const EntityRecord& object : cut_) addObject(s_, object);
        turnSources(s_, missed_, Sources::comeOn);
        return true;
    }

  private:
    Crossings crossingsTo(const EntityRecord& object) const
    {
        Crossings found = crossingsOf(object, boundary_);
        if (object.kind == Kind::arc && boundary_.kind == Kind::line) {
            for (Point& p : found.points) p = onAxis(p, object.p1, object.rad);
        }
        return found;
    }

    // An arc is cut where it was picked, a line where the boundary was.
    Point chosenBy(const EntityRecord& object) const
    {
        return object.kind == Kind::arc ? object.p5 : s_.mousePos;
    }

    EntityRecord cutTo(const EntityRecord& object, Point at) const
    {
        const auto slot = s_.store.entCount + static_cast<std::int32_t>(cut_.size()); // at most 60,000 more
        if (object.kind == Kind::arc) return cutArc(object, at, s_.store.record(slot));
        return trimmedLine(object, at, boundary_.kind == Kind::line ? toSpareAtLine : toSpareAtRound);
    }

    bool isFarOff(Point p) const
    {
        return p.x < s_.viewLeft - scale_.width || p.x > s_.viewRight + scale_.width ||
               p.y < s_.viewTop - scale_.height || p.y > s_.viewBottom + scale_.height;
    }

    Session& s_;
    Scale scale_;
    EntityRecord boundary_;
    std::vector<EntityRecord> cut_;
    std::vector<std::int32_t> missed_;
};

ObjectHit findBoundary(const Session& s, const Canvas& pic1)
{
    return nearestObject(s.store, {.from = s.mousePos,
                                   .radius = searchRadius(pic1),
                                   .kinds = lineCircleArc,
                                   .arcs = ArcReach::sweep,
                                   .stats = inStat(Stat::on),
                                   .fromCentre = FromCentre::aRadius});
}

} // namespace

void editTrim(Session& s, Canvas& pic1)
{
    s.editPending = 0;
    const ObjectHit hit = findBoundary(s, pic1);
    if (!hit.found()) return;
    s.pickLast = hit.at;
    Trim trim(s, pic1, hit.slot);
    const bool goesThrough =
        std::ranges::all_of(selectedSlots(s.store), [&](std::int32_t slot) { return trim.trimObject(slot); });
    if (!trim.takeIntoDrawing() || !goesThrough) return;
    turnSources(s, selectedSlots(s.store), Sources::goOut);
    endRun(s, pic1);
}

} // namespace mirtane
