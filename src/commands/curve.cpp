#include "commands/curve.h"

#include "commands/arc.h"
#include "commands/commit.h"
#include "commands/prompt.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "geometry/flat_arc.h"
#include "model/three_point_scratch.h"
#include "render/redraw.h"

#include <cmath>

namespace mirtane {
namespace {

// Readies the tangent for the next arc: the markers lie on the normal of the last arc at the junction, one of
// them at its centre, and curveFlip says which of its ends the junction is.
void joinNextArc(Session& s)
{
    const Point junction = s.pickLast;
    const Point centre = s.ptF;
    const double d = distance(centre, junction);
    double ux = 0; // a centre on the junction has no direction, and both markers are the junction
    double uy = 0;
    keep(ux, quotient(centre.x - junction.x, d));
    keep(uy, quotient(junction.y - centre.y, d));
    keep(s.bisectorA.x, junction.x - d * ux);
    keep(s.bisectorA.y, junction.y + d * uy);
    keep(s.bisectorB.x, junction.x + d * ux);
    keep(s.bisectorB.y, junction.y - d * uy);
    s.ptA = junction;
    s.ptB = junction;
    const EntityRecord last = s.store.record(s.store.entCount - 1);
    s.curveFlip = distance(junction, last.p3) < distance(junction, last.p2) ? 1 : 0;
}

// The circle that is tangent to the last arc at the junction J and goes through C.
struct TangentCircle {
    Point junction, c;
    Way towards;       // from J to the centre
    double radius = 0; // not to be had where C lies straight on
};

// The centre lies on the normal through J, as far from J as from C: |JC|^2 / (2 * how far C is beside the
// tangent).
TangentCircle tangentCircle(ScratchPoints& s)
{
    const Point junction = s.ptA;
    const Point c = s.ptC;
    const Way towardsA = wayBetween(s.bisectorB, s.bisectorA);
    const double toC = distance(junction, c);
    const double beside = (static_cast<double>(c.x) - junction.x) * towardsA.x + // widened, so that the
                          (static_cast<double>(c.y) - junction.y) * towardsA.y;  // differences are whole
    s.curveSide = beside < 0 ? 0 : 1;
    return {junction, c, s.curveSide == 1 ? towardsA : -towardsA, quotient(toC * toC, 2 * std::abs(beside))};
}

void takeTangentCircle(ScratchPoints& s, const TangentCircle& circle)
{
    keep(s.ptF.x, circle.junction.x + circle.radius * circle.towards.x);
    keep(s.ptF.y, circle.junction.y + circle.radius * circle.towards.y);
    keep(s.workRadius, distance(s.ptF, circle.junction));
    s.arcAngleTwo = directionAngle(s.ptF, circle.c, s.arcAngleTwo);
    s.arcAngleOne = directionAngle(s.ptF, circle.junction, s.arcAngleOne);
}

void takeFlatCircle(ScratchPoints& s, const TangentCircle& circle)
{
    const FlatCircle flat = flatCircle(circle.junction, circle.c, circle.towards, circle.radius);
    s.ptF = flat.centre;
    s.workRadius = flat.radius;
    s.arcAngleTwo = fullDirection(s.ptF, circle.c);
    s.arcAngleOne = fullDirection(s.ptF, circle.junction);
}

void constructTangentArc(Session& s)
{
    const TangentCircle circle = tangentCircle(s);
    if (isFlat(circle.radius, distance(circle.junction, circle.c))) {
        takeFlatCircle(s, circle);
    } else {
        takeTangentCircle(s, circle);
    }
    const bool startsAtC = s.curveFlip == s.curveSide;
    s.arcStart = startsAtC ? s.arcAngleTwo : s.arcAngleOne;
    s.arcEnd = startsAtC ? s.arcAngleOne : s.arcAngleTwo;
}

// The junction as it was clicked, or the end of the last arc as it was stored.
bool isOnJunction(const Session& s, Point p)
{
    const EntityRecord last = s.store.record(s.store.entCount - 1);
    return p == s.ptA || p == (s.curveFlip == 1 ? last.p3 : last.p2);
}

void storeArc(Session& s, Canvas& pic1)
{
    placeArcPoints(s, s.ptF);
    commitEntity(s, pic1, addArc, paintScratchArc);
    s.workRadius = 0;
    setPrompt(s, pic1);
    setRubberBandPen(pic1);
    joinNextArc(s);
}

void takeSecondPoint(Session& s)
{
    s.workRadius = 0;
    s.arcStart = s.arcEnd;
    s.ptB = s.pickLast;
    s.ptC = s.pickLast;
    s.ptD = s.pickLast;
    markBisector(s);
}

} // namespace

void curveStep(Session& s, Canvas& pic1)
{
    if (s.stepNo < 1) return;
    if (s.stepNo == 1) {
        setPrompt(s, pic1);
        s.ptA = s.pickFirst;
        return;
    }
    if (s.stepNo == 2) return takeSecondPoint(s);
    if (s.stepNo > 3 && isOnJunction(s, s.pickLast)) { // no next point: a second click in one place
        --s.stepNo;
        return;
    }
    s.ptC = s.pickLast;
    if (s.stepNo == 3) {
        constructArc(s);
    } else {
        constructTangentArc(s);
    }
    storeArc(s, pic1);
}

void curveBand(Session& s, Canvas& pic1)
{
    if (s.stepNo <= 2) return arcThreeBand(s, pic1); // the first arc is an arc through three points
    s.ptC = s.pickLast;
    constructTangentArc(s);
    restorePicture(pic1);
    pic1.arc(s.ptF.x, s.ptF.y, s.workRadius, s.arcStart, s.arcEnd);
}

} // namespace mirtane
