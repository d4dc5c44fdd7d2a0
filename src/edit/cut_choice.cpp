#include "edit/cut_choice.h"

#include "geometry/along.h"
#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/nearest.h"
#include "model/record_moves.h"

#include <cmath>

namespace mirtane {
namespace {

constexpr double arcToSpare = 0.01; // of the way from the arc's start to where it is cut

// Whether what lies on the way makes up the whole of it, more or less.
bool makesUp(double parts, double whole, double toSpare)
{
    return parts >= whole * (1 - toSpare) && parts <= whole * (1 + toSpare);
}

enum class End { start, end, neither };

End endToMove(const EntityRecord& arc, double cut, double pick)
{
    const double toCut = sweep(arc.a1, cut);
    if (toCut <= sweep(arc.a1, arc.a2) && cut != arc.a1 && cut != arc.a2) {
        const double parts = sweep(pick, cut) + sweep(arc.a1, pick);
        return makesUp(parts, toCut, arcToSpare) ? End::end : End::start;
    }
    const double toEnd = sweep(pick, arc.a2);
    const double toStart = sweep(arc.a1, pick);
    if (toEnd < toStart) return End::end;
    return toEnd > toStart ? End::start : End::neither;
}

} // namespace

bool isLineOrArc(Kind kind)
{
    return kind == Kind::line || kind == Kind::arc;
}

Point nearerCrossing(const Crossings& found, Point to, Point held)
{
    if (found.count == 1 || isNearer(to, found.points[0], found.points[1])) return found.points[0];
    return isNearer(to, found.points[1], found.points[0]) ? found.points[1] : held;
}

EntityRecord lineLike(const EntityRecord& like, Point from, Point to)
{
    EntityRecord line = like;
    line.kind = Kind::line;
    line.p1 = from;
    line.p2 = to;
    return line;
}

EntityRecord arcLike(const EntityRecord& like, Point centre, float radius, double a1, double a2)
{
    EntityRecord arc = like;
    arc.kind = Kind::arc;
    arc.p1 = centre;
    arc.rad = radius;
    arc.a1 = a1;
    arc.a2 = a2;
    placeArcPoints(arc);
    return arc;
}

EntityRecord trimmedLine(const EntityRecord& line, Point at, double toSpare)
{
    const double pick = positionAlong(line.p5, line.p1, line.p2);
    const double cut = positionAlong(at, line.p1, line.p2);
    const double parts = std::abs(pick) + std::abs(cut - pick);
    if (makesUp(parts, std::abs(cut), toSpare)) return lineLike(line, line.p1, at);
    return lineLike(line, at, line.p2);
}

EntityRecord filletedLine(const EntityRecord& line, Point at, const EntityRecord& held)
{
    const double toCut = std::abs(positionAlong(at, line.p1, line.p2));
    const double toPick = std::abs(positionAlong(line.p5, line.p1, line.p2));
    if (toCut < toPick) return lineLike(line, at, line.p2);
    if (toCut > toPick) return lineLike(line, line.p1, at);
    return lineLike(line, held.p1, held.p2);
}

EntityRecord cutArc(const EntityRecord& arc, Point at, const EntityRecord& held)
{
    const double angle = directionAngle(arc.p1, at, 0);
    EntityRecord cut = arc;
    switch (endToMove(arc, angle, directionAngle(arc.p1, arc.p5, 0))) {
    case End::start:
        cut.p2 = at;
        cut.a1 = angle;
        break;
    case End::end:
        cut.p3 = at;
        cut.a2 = angle;
        break;
    case End::neither:
        cut.p2 = held.p2;
        cut.p3 = held.p3;
        cut.a1 = held.a1;
        cut.a2 = held.a2;
        break;
    }
    if (cut.a1 == cut.a2) cut.kind = Kind::circle;
    cut.p4 = arcPoints(cut.p1, cut.rad, cut.a1, cut.a2).middle;
    return cut;
}

} // namespace mirtane
