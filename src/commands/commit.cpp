#include "commands/commit.h"

#include "commands/prompt.h"
#include "render/painters.h"
#include "render/redraw.h"

namespace mirtane {

void paintScratchLine(const Session& s, Canvas& pic1)
{
    paintLineSegment(pic1, s, s.ptC, s.ptD);
}

void paintScratchCircle(const Session& s, Canvas& pic1)
{
    paintCircleImmediate(pic1, s, s.ptF, s.workRadius);
}

void paintScratchArc(const Session& s, Canvas& pic1)
{
    paintArcImmediate(pic1, s, s.ptA, s.ptB, s.workRadius, s.arcStart, s.arcEnd);
}

void paintScratchPoint(const Session& s, Canvas& pic1)
{
    pic1.point(s.ptA.x, s.ptA.y);
}

void commitEntity(Session& s, Canvas& pic1, void (*insert)(Session&), ScratchPainter paint,
                  std::int16_t penStyle)
{
    pic1.setStyle(penStyle);
    pic1.setColor(s.curColor);
    restorePicture(pic1);
    paint(s, pic1);
    pic1.snapshot();
    insert(s);
    commitSlot(s);
}

void commitEntity(Session& s, Canvas& pic1, void (*insert)(Session&), ScratchPainter paint)
{
    commitEntity(s, pic1, insert, paint, s.curStyle);
}

void readyForNext(Session& s, Canvas& pic1)
{
    s.stepNo = 0;
    s.workRadius = 0;
    setPrompt(s, pic1);
    setRubberBandPen(pic1);
}

} // namespace mirtane
