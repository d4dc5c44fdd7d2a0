#include "commands/line.h"

#include "commands/chain.h"
#include "commands/commit.h"
#include "commands/prompt.h"
#include "render/redraw.h"

namespace mirtane {

void lineStep(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) {
        s.ptA = s.pickFirst;
        s.ptB = s.pickFirst;
        setPrompt(s, pic1);
        return;
    }
    if (s.stepNo != 2) return;
    s.ptB = s.pickLast;
    s.ptC = s.ptA;
    s.ptD = s.ptB;
    commitEntity(s, pic1, addLine, paintScratchLine);
    s.ptA = s.ptB;
    goOnFromEnd(s);
    s.stepNo = 1;
    setRubberBandPen(pic1);
}

void lineBand(Session& s, Canvas& pic1)
{
    if (s.stepNo < 1) return;
    restorePicture(pic1);
    pic1.line(s.ptA.x, s.ptA.y, s.pickLast.x, s.pickLast.y);
}

void pointStep(Session& s, Canvas& pic1)
{
    if (s.stepNo != 1) return;
    s.ptA = s.pickFirst;
    // Painted with the dotted pen, though the slot keeps curStyle: a single pixel has no dashes.
    commitEntity(s, pic1, addPoint, paintScratchPoint, pen::dot);
    s.stepNo = 0;
    setRubberBandPen(pic1);
}

} // namespace mirtane
