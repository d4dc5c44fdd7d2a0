#include "edit/fillet.h"

#include "commands/prompt.h"
#include "edit/cut_choice.h"
#include "edit/selection_run.h"
#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/foot.h"
#include "geometry/nearest.h"
#include "geometry/parallel.h"
#include "geometry/side.h"

#include <optional>
#include <utility>

namespace mirtane {
namespace {

// Where the centre of the arc may lie: at its radius from both objects.
class CentreSearch {
  public:
    explicit CentreSearch(const Session& s) : click_(s.mousePos), radius_(s.filletRadius) {}

    Crossings of(const EntityRecord& first, const EntityRecord& second) const
    {
        const bool firstIsLine = first.kind == Kind::line;
        const bool secondIsLine = second.kind == Kind::line;
        if (firstIsLine && secondIsLine) return crossParallels(beside(first), beside(second));
        if (firstIsLine) return crossParallelCircle(beside(first), second.p1, inside(second));
        if (secondIsLine) return crossParallelCircle(beside(second), first.p1, inside(first));
        return crossCircles(first.p1, inside(first), second.p1, inside(second));
    }

  private:
    ParallelLine beside(const EntityRecord& line) const
    {
        return parallelTowards(line.p1, line.p2, click_, radius_);
    }
    double inside(const EntityRecord& arc) const { return arc.rad - radius_; }

    Point click_;
    double radius_;
};

// The point of the object nearest to the centre of the arc; none of an arc about that centre. A line of which
// no side was clicked has the centre on it.
std::optional<Point> touching(const EntityRecord& object, Point centre, const Session& s)
{
    if (s.filletRadius == 0) return centre;
    if (object.kind == Kind::line && sideOfLine(s.mousePos, object.p1, object.p2) == 0) return centre;
    if (object.kind == Kind::line) return footOfPerpendicular(centre, object.p1, object.p2, centre);
    if (object.p1 == centre) return std::nullopt;
    return nearestOnCircle(centre, object.p1, object.rad);
}

struct Fillet {
    Point centre, firstTouch, secondTouch;
};

std::optional<Fillet> filletOf(const Session& s, const EntityRecord& first, const EntityRecord& second)
{
    if (!isLineOrArc(first.kind) || !isLineOrArc(second.kind)) return std::nullopt;
    const Crossings found = CentreSearch(s).of(first, second);
    if (found.count == 0) return std::nullopt;
    const Point centre = nearerCrossing(found, s.mousePos, s.pickLast);
    const auto firstTouch = touching(first, centre, s);
    const auto secondTouch = touching(second, centre, s);
    if (!firstTouch || !secondTouch) return std::nullopt;
    return Fillet{centre, *firstTouch, *secondTouch};
}

// The shorter way round between the two points.
EntityRecord roundingArc(const EntityRecord& like, const Fillet& fillet, float radius)
{
    double a1 = directionAngle(fillet.centre, fillet.firstTouch, 0);
    double a2 = directionAngle(fillet.centre, fillet.secondTouch, 0);
    if (sweep(a1, a2) >= halfTurn) std::swap(a1, a2);
    return arcLike(like, fillet.centre, radius, a1, a2);
}

void cutTo(Session& s, std::int32_t slot, Point touch)
{
    const EntityRecord object = s.store.record(slot);
    const EntityRecord held = s.store.record(s.store.entCount);
    addObject(s, object.kind == Kind::line ? filletedLine(object, touch, held) : cutArc(object, touch, held));
    turnSources(s, {slot}, Sources::goOut);
}

// False if there is no room for the arc and the two objects that it joins.
bool filletSelection(Session& s)
{
    constexpr std::int64_t objects = 3;
    const std::vector<std::int32_t> selected = selectedSlots(s.store);
    if (selected.size() < 2) return true;
    const EntityRecord first = s.store.record(selected.front());
    const auto fillet = filletOf(s, first, s.store.record(selected.back()));
    if (!fillet) return true;
    if (!hasRoomFor(s, objects)) return false;
    addObject(s, roundingArc(first, *fillet, s.filletRadius));
    cutTo(s, selected.front(), fillet->firstTouch);
    cutTo(s, selected.back(), fillet->secondTouch);
    return true;
}

} // namespace

void editFillet(Session& s, Canvas& pic1)
{
    if (!filletSelection(s)) return;
    turnSources(s, selectedSlots(s.store), Sources::comeOn);
    s.editPending = 0;
    s.stepNo = 0;
    closeGroup(s, pic1);
    setPrompt(s, pic1);
}

} // namespace mirtane
