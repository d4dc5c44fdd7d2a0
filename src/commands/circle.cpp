#include "commands/circle.h"

#include "commands/commit.h"
#include "commands/prompt.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "model/three_point_scratch.h"
#include "render/redraw.h"

namespace mirtane {

void circleTwoStep(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) {
        setPrompt(s, pic1);
        s.ptF = s.pickFirst;
        s.workRadius = 0;
    }
    if (s.stepNo != 2) return;
    keep(s.workRadius, distance(s.pickFirst, s.pickLast));
    commitEntity(s, pic1, addCircle, paintScratchCircle);
    readyForNext(s, pic1);
}

void circleTwoBand(Session& s, Canvas& pic1)
{
    if (s.stepNo < 1) return;
    keep(s.workRadius, distance(s.ptF, s.pickLast));
    restorePicture(pic1);
    pic1.circle(s.ptF.x, s.ptF.y, s.workRadius);
    pic1.line(s.ptF.x, s.ptF.y, s.pickLast.x, s.pickLast.y);
}

void circleThreeStep(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) {
        setPrompt(s, pic1);
        s.ptA = s.pickFirst;
        s.ptB = s.pickFirst;
        s.workRadius = 0;
    } else if (s.stepNo == 2) {
        setPrompt(s, pic1);
        s.workRadius = 0;
        s.ptB = s.pickLast;
        s.ptC = s.pickLast;
        markBisector(s);
    } else if (s.stepNo == 3) {
        s.ptC = s.pickLast;
        constructCircle(s);
        commitEntity(s, pic1, addCircle, paintScratchCircle);
        readyForNext(s, pic1);
    }
}

void circleThreeBand(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) {
        s.ptB = s.pickLast;
        restorePicture(pic1);
        pic1.line(s.ptA.x, s.ptA.y, s.ptB.x, s.ptB.y);
    } else if (s.stepNo == 2) {
        s.ptC = s.pickLast;
        constructCircle(s);
        restorePicture(pic1);
        pic1.circle(s.ptF.x, s.ptF.y, s.workRadius);
        pic1.line(s.ptB.x, s.ptB.y, s.ptC.x, s.ptC.y);
    }
}

} // namespace mirtane
