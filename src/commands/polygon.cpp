#include "commands/polygon.h"

#include "commands/commit.h"
#include "commands/prompt.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "model/room.h"
#include "render/redraw.h"

namespace mirtane {
namespace {

// Calls side(from, to) for each side of the polygon about pickFirst whose first corner lies at pickLast.
template <class Side> void forEachSide(Session& s, Side side)
{
    const Point centre = s.pickFirst;
    keep(s.workRadius, distance(centre, s.pickLast));
    const double first = directionAngle(centre, s.pickLast, 0);
    const double step = fullTurn / s.polygonSides;
    Point corner = polarPoint(centre, s.workRadius, first);
    for (int i = 1; i <= s.polygonSides; ++i) {
        double angle = first + step * i;
        if (angle > fullTurn) angle -= fullTurn;
        const Point next = polarPoint(centre, s.workRadius, angle);
        side(corner, next);
        corner = next;
    }
}

void commitSides(Session& s, Canvas& pic1)
{
    pic1.setStyle(s.curStyle);
    pic1.setColor(s.curColor);
    restorePicture(pic1);
    forEachSide(s, [&](Point from, Point to) {
        pic1.line(from.x, from.y, to.x, to.y);
        s.ptA = from;
        s.ptB = to;
        addLine(s);
        commitSlot(s);
    });
    pic1.snapshot();
}

} // namespace

void polygonStep(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) setPrompt(s, pic1);
    if (s.stepNo != 2 || !hasRoomFor(s, s.polygonSides)) return;
    commitSides(s, pic1);
    setText(s.controls[ids::typedDigits], "");
    s.pickFirst = s.pickLast;
    readyForNext(s, pic1);
}

void polygonBand(Session& s, Canvas& pic1)
{
    if (s.stepNo < 1) return;
    restorePicture(pic1);
    forEachSide(s, [&](Point from, Point to) { pic1.line(from.x, from.y, to.x, to.y); });
}

} // namespace mirtane
