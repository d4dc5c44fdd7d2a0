#include "commands/arc.h"

#include "commands/commit.h"
#include "commands/prompt.h"
#include "model/three_point_scratch.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "render/redraw.h"

namespace mirtane {
namespace {

void takeFirstPoint(Session& s, Canvas& pic1)
{
    setPrompt(s, pic1);
    s.ptA = s.pickFirst;
    s.ptB = s.pickFirst;
}

void takeRadiusPoint(Session& s, Canvas& pic1)
{
    setPrompt(s, pic1);
    s.arcWinding = 0;
    s.pickFirst = s.ptA; // the centre stays the origin of ortho
    s.ptB = s.pickLast;
    keep(s.workRadius, distance(s.ptA, s.ptB));
    s.ptC = s.ptB;
    s.arcAngleOne = directionAngle(s.ptA, s.ptB, s.arcAngleOne);
    s.arcStart = s.arcAngleOne;
    s.arcEnd = s.arcAngleOne;
}

// Counts the way that the pointer goes round the centre. arcLastAngle is what the last move left, also of an arc
// before this one; a crossing of angle 0 counts the wrong way, and the sum over the whole way decides.
void wind(Session& s)
{
    s.arcAngleTwo = directionAngle(s.ptA, s.ptC, s.arcAngleTwo);
    if (s.arcAngleTwo > s.arcLastAngle) keep(s.arcWinding, s.arcWinding + 1);
    if (s.arcAngleTwo < s.arcLastAngle) keep(s.arcWinding, s.arcWinding - 1);
    s.arcLastAngle = s.arcAngleTwo;
    if (s.arcWinding > 0) {
        s.arcStart = s.arcAngleOne;
        s.arcEnd = s.arcAngleTwo;
    } else if (s.arcWinding < 0) {
        s.arcStart = s.arcAngleTwo;
        s.arcEnd = s.arcAngleOne;
    }
}

void commitArc(Session& s, Canvas& pic1, Point centre)
{
    placeArcPoints(s, centre);
    commitEntity(s, pic1, addArc, paintScratchArc);
    readyForNext(s, pic1);
}

} // namespace

void arcTwoStep(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) takeFirstPoint(s, pic1);
    if (s.stepNo == 2) takeRadiusPoint(s, pic1);
    if (s.stepNo != 3) return;
    s.ptC = s.pickLast;
    wind(s);
    commitArc(s, pic1, s.ptA);
}

void arcTwoBand(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) {
        s.ptB = s.pickLast;
        restorePicture(pic1);
        pic1.line(s.pickFirst.x, s.pickFirst.y, s.ptB.x, s.ptB.y);
    } else if (s.stepNo == 2) {
        s.ptC = s.pickLast;
        wind(s);
        restorePicture(pic1);
        pic1.line(s.ptA.x, s.ptA.y, s.ptC.x, s.ptC.y);
        pic1.arc(s.ptA.x, s.ptA.y, s.workRadius, s.arcStart, s.arcEnd);
    }
}

void arcThreeStep(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) takeFirstPoint(s, pic1);
    if (s.stepNo == 2) {
        setPrompt(s, pic1);
        s.workRadius = 0;
        s.arcWinding = 0;
        s.arcStart = s.arcEnd;
        s.ptB = s.pickLast;
        s.ptC = s.pickLast;
        s.ptD = s.pickLast;
        markBisector(s);
    }
    if (s.stepNo != 3) return;
    s.ptC = s.pickLast;
    constructArc(s);
    commitArc(s, pic1, s.ptF);
}

void arcThreeBand(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) {
        s.ptB = s.pickLast;
        restorePicture(pic1);
        pic1.line(s.ptA.x, s.ptA.y, s.ptB.x, s.ptB.y);
    } else if (s.stepNo == 2) {
        s.ptC = s.pickLast;
        constructArc(s);
        restorePicture(pic1);
        pic1.line(s.ptB.x, s.ptB.y, s.ptC.x, s.ptC.y);
        pic1.arc(s.ptF.x, s.ptF.y, s.workRadius, s.arcStart, s.arcEnd);
    }
}

} // namespace mirtane
