#include "commands/ellipse.h"

#include "commands/commit.h"
#include "commands/prompt.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "render/painters.h"
#include "render/redraw.h"

namespace mirtane {
namespace {

void paintScratchEllipse(const Session& s, Canvas& pic1)
{
    paintEllipse(pic1, s, s.ptB, s.ptC, s.ptF.x);
}

// The point at a share of the way from a to b. Points that are one have no direction, and it is a.
Point onTheWay(Point a, Point b, double share, Point held)
{
    const double length = distance(a, b);
    double ux = 0;
    double uy = 0;
    keep(ux, quotient(b.x - a.x, length));
    keep(uy, quotient(a.y - b.y, length));
    keep(held.x, a.x + share * length * ux);
    keep(held.y, a.y - share * length * uy);
    return held;
}

void takeFirstAxis(Session& s, Canvas& pic1)
{
    setPrompt(s, pic1);
    s.ptB = s.pickLast;
    s.ptC = onTheWay(s.ptA, s.ptB, 0.5, s.ptC);
    s.pickFirst = s.ptC;
    s.orthoAngle = directionAngle(s.ptA, s.ptB, s.orthoAngle);
    s.orthoCaption = s.controls[ids::orthoToggle].caption;
    s.controls[ids::orthoToggle].caption = "Ortho/On";
}

void takeSecondAxis(Session& s, Canvas& pic1)
{
    s.ptD = s.pickLast;
    keep(s.ptF.x, quotient(distance(s.ptC, s.ptD), distance(s.ptC, s.ptB)));
    commitEntity(s, pic1, addEllipse, paintScratchEllipse);
    readyForNext(s, pic1);
    s.orthoAngle = s.orthoAngleSaved;
    s.controls[ids::orthoToggle].caption = s.orthoCaption;
}

void drawAxes(const ScratchPoints& s, Canvas& pic1)
{
    restorePicture(pic1);
    pic1.line(s.ptA.x, s.ptA.y, s.ptB.x, s.ptB.y);
    pic1.line(s.ptC.x, s.ptC.y, s.ptD.x, s.ptD.y);
    pic1.line(s.ptC.x, s.ptC.y, s.ptE.x, s.ptE.y);
}

} // namespace

void ellipseStep(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) {
        setPrompt(s, pic1);
        s.ptA = s.pickFirst;
    } else if (s.stepNo == 2) {
        takeFirstAxis(s, pic1);
    } else if (s.stepNo == 3) {
        takeSecondAxis(s, pic1);
    }
}

void ellipseBand(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) {
        s.ptB = s.pickLast;
        restorePicture(pic1);
        pic1.line(s.ptA.x, s.ptA.y, s.ptB.x, s.ptB.y);
    } else if (s.stepNo == 2) {
        s.ptD = s.pickLast;
        s.ptE = onTheWay(s.ptC, s.ptD, -1, s.ptE);
        drawAxes(s, pic1);
    }
}

} // namespace mirtane
