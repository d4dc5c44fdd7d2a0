#include "commands/curve.h"

#include "commands/arc.h"
#include "commands/commit.h"
#include "commands/prompt.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "geometry/foot.h"
#include "model/three_point_scratch.h"
#include "render/redraw.h"

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

// The centre lies on the normal through the junction J, as far from J as from C: |JC|^2 / (2 |J foot of C|).
void constructTangentCircle(ScratchPoints& s)
{
    const Point junction = s.ptA;
    const Point c = s.ptC;
    const double toC = distance(junction, c);
    const double toFoot = distance(junction, footOfPerpendicular(c, s.bisectorA, s.bisectorB, junction));
    const double r = quotient(toC * toC, 2 * toFoot);
    s.curveSide = distance(c, s.bisectorB) >= distance(c, s.bisectorA) ? 1 : 0;
    const Point towards = s.curveSide == 1 ? s.bisectorA : s.bisectorB;
    const double d = distance(junction, towards);
    keep(s.ptF.x, junction.x + r * quotient(towards.x - junction.x, d));
    keep(s.ptF.y, junction.y - r * quotient(junction.y - towards.y, d));
    keep(s.workRadius, distance(s.ptF, junction));
}

void constructTangentArc(Session& s)
{
    constructTangentCircle(s);
    s.arcAngleTwo = directionAngle(s.ptF, s.ptC, s.arcAngleTwo);
    s.arcAngleOne = directionAngle(s.ptF, s.ptA, s.arcAngleOne);
    const bool startsAtC = s.curveFlip == s.curveSide;
    s.arcStart = startsAtC ? s.arcAngleTwo : s.arcAngleOne;
    s.arcEnd = startsAtC ? s.arcAngleOne : s.arcAngleTwo;
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
