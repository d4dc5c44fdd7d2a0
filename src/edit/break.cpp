#include "edit/break.h"

#include "commands/prompt.h"
#include "edit/cut_choice.h"
#include "edit/selection_run.h"
#include "geometry/along.h"
#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/foot.h"
#include "geometry/rounding.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace mirtane {
namespace {

// The two clicks, and the angles that one arc hands on to the next where its own can't be told.
struct Cut {
    Point first, second;
    double firstAngle = 0, secondAngle = 0; // of the clicks about the centre
    double pieceEnd = 0, pieceStart = 0;    // where the cut leaves an arc and comes back to it
};

using Pieces = std::vector<EntityRecord>;

// None of a line without a direction: it can't be told what is cut.
bool breakLine(const EntityRecord& line, const Cut& cut, Pieces& pieces)
{
    Point near = cut.first;
    Point far = cut.second;
    double nearAt = positionAlong(near, line.p1, line.p2);
    double farAt = positionAlong(far, line.p1, line.p2);
    if (!std::isfinite(nearAt) || !std::isfinite(farAt)) return false;
    if (nearAt > farAt) {
        std::swap(near, far);
        std::swap(nearAt, farAt);
    }
    const Point nearFoot = footOfPerpendicular(near, line.p1, line.p2, near);
    const Point farFoot = footOfPerpendicular(far, line.p1, line.p2, far);
    const double length = distance(line.p1, line.p2);
    // A click on the very end leaves nothing there, though its foot may be a rounding inside.
    if (nearAt > 0 && !areOnePoint(nearFoot, line.p1)) pieces.push_back(lineLike(line, line.p1, nearFoot));
    if (farAt < length && !areOnePoint(farFoot, line.p2)) pieces.push_back(lineLike(line, farFoot, line.p2));
    return true;
}

void takeAngles(const EntityRecord& round, Cut& cut)
{
    cut.firstAngle = directionAngle(round.p1, cut.first, cut.firstAngle);
    cut.secondAngle = directionAngle(round.p1, cut.second, cut.secondAngle);
}

// Whether an arc about the centre of round is no longer than the rounding of its ends.
bool isNoLength(const EntityRecord& round, double angle)
{
    const double radius = std::abs(round.rad);
    return angle * radius <= apartByRounding(std::max(largestCoordinate(round.p1), radius));
}

// None with both clicks in one direction from the centre: it can't be told what is cut.
bool breakCircle(const EntityRecord& circle, Cut& cut, Pieces& pieces)
{
    takeAngles(circle, cut);
    const double kept = sweep(cut.firstAngle, cut.secondAngle);
    if (isNoLength(circle, std::min(kept, fullTurn - kept))) return false;
    pieces.push_back(arcLike(circle, circle.p1, circle.rad, cut.firstAngle, cut.secondAngle));
    return true;
}

bool breakArc(const EntityRecord& arc, Cut& cut, Pieces& pieces)
{
    takeAngles(arc, cut);
    const double onward = sweep(cut.firstAngle, cut.secondAngle);
    const double back = sweep(cut.secondAngle, cut.firstAngle);
    if (onward < back) {
        cut.pieceEnd = cut.firstAngle;
        cut.pieceStart = cut.secondAngle;
    } else if (onward > back) {
        cut.pieceEnd = cut.secondAngle;
        cut.pieceStart = cut.firstAngle;
    }
    const double whole = sweep(arc.a1, arc.a2);
    const double toEnd = sweep(arc.a1, cut.pieceEnd);
    if (toEnd <= whole && !isNoLength(arc, toEnd)) {
        pieces.push_back(arcLike(arc, arc.p1, arc.rad, arc.a1, cut.pieceEnd));
        pieces.back().p2 = arc.p2;
    }
    if (sweep(arc.a1, cut.pieceStart) <= whole && !isNoLength(arc, sweep(cut.pieceStart, arc.a2))) {
        pieces.push_back(arcLike(arc, arc.p1, arc.rad, cut.pieceStart, arc.a2));
        pieces.back().p3 = arc.p3;
    }
    return true;
}

// False if the object is not to be broken.
bool breakObject(const EntityRecord& r, Cut& cut, Pieces& pieces)
{
    switch (r.kind) {
    case Kind::line:
        return breakLine(r, cut, pieces);
    case Kind::circle:
        return breakCircle(r, cut, pieces);
    case Kind::arc:
        return breakArc(r, cut, pieces);
    case Kind::ellipse:
    case Kind::point:
    case Kind::text:
    case Kind::linearDimension:
    case Kind::radialDimension:
    case Kind::leader:
    case Kind::angularDimension:
        return false;
    }
    return false;
}

// False if there is no room for all pieces.
bool breakSelection(Session& s, Cut cut)
{
    Pieces pieces;
    std::vector<std::int32_t> broken, whole;
    for (const std::int32_t slot : selectedSlots(s.store)) {
        (breakObject(s.store.record(slot), cut, pieces) ? broken : whole).push_back(slot);
    }
    if (!hasRoomFor(s, std::ssize(pieces))) return false;
    for (const EntityRecord& piece : pieces) addObject(s, piece);
    turnSources(s, whole, Sources::comeOn);
    turnSources(s, broken, Sources::goOut);
    return true;
}

} // namespace

void editBreak(Session& s, Canvas& pic1)
{
    if (s.stepNo != 2) {
        s.editDX = s.pickFirst.x;
        s.editDY = s.pickFirst.y;
        return setPrompt(s, pic1);
    }
    s.editStepX = s.pickLast.x;
    s.editStepY = s.pickLast.y;
    if (breakSelection(s, {{s.editDX, s.editDY}, {s.editStepX, s.editStepY}})) endRun(s, pic1);
}

} // namespace mirtane
