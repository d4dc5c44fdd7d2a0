#include "commands/angular_dimension.h"

#include "commands/commit.h"
#include "commands/prompt.h"
#include "geometry/angle.h"
#include "geometry/arc.h"
#include "geometry/direction.h"
#include "geometry/fault.h"
#include "render/dimension_painters.h"
#include "render/redraw.h"
#include "render/text_painter.h"
#include "text/measure.h"

#include <utility>

namespace mirtane {
namespace {

constexpr double offArc = 1.5; // sizes from the arc to the text

double bisectorOf(const ScratchPoints& s)
{
    const double bisector = s.arcStart + sweep(s.arcStart, s.arcEnd) / 2;
    return bisector >= fullTurn ? bisector - fullTurn : bisector;
}

// The arc goes through the pointer. Its text stands outside it on the bisector, square to that.
void layArc(Session& s)
{
    const double bisector = bisectorOf(s);
    keep(s.workRadius, distance(s.ptA, s.pickLast));
    s.ptB = polarPoint(s.ptA, s.workRadius + offArc * s.arrowSize, bisector);
    s.ptC = polarPoint(s.ptA, s.workRadius, s.arcStart);
    const double turn = bisector - quarterTurn;
    s.dimAngle = (turn < 0 ? turn + fullTurn : turn) * degreesPerRadian;
}

void paintScratchAngularDim(const Session& s, Canvas& pic1)
{
    DimensionShape d;
    d.p1 = s.ptA;
    d.p2 = s.ptG;
    d.p3 = s.ptH;
    d.p4 = s.ptC;
    d.s1 = s.arrowSize;
    d.rad = s.workRadius;
    d.a1 = s.arcStart;
    d.a2 = s.arcEnd;
    d.style = s.dimStyle;
    paintAngularDim(pic1, s, d);
    paintDimText(pic1, {s.ptB, s.arrowSize, s.dimAngle, false, s.textFont, s.controls[ids::workText].text});
}

void showBand(Session& s, Canvas& pic1)
{
    layArc(s);
    restorePicture(pic1);
    paintScratchAngularDim(s, pic1);
}

void endAngularAttempt(Session& s, Canvas& pic1)
{
    restorePicture(pic1);
    s.stepNo = 0;
    setPrompt(s, pic1);
}

// A step of rounding off the ray is on it, and what would read as a whole turn is none.
bool isOnOneRay(const ScratchPoints& s, double angle)
{
    const std::string digits = angleDigits(angle);
    return digits == zeroAngle || digits == angleDigits(fullTurn) ||
           areOnOneRay(directionOf(s.ptA, s.ptG), directionOf(s.ptA, s.ptH));
}

// Until the pointer moves, the arc goes through the second leg's point.
void takeSecondLeg(Session& s, Canvas& pic1)
{
    s.ptH = s.pickLast;
    s.arcStart = directionAngle(s.ptA, s.ptG, s.arcStart);
    s.arcEnd = directionAngle(s.ptA, s.ptH, s.arcEnd);
    const double angle = sweep(s.arcStart, s.arcEnd);
    if (isOnOneRay(s, angle)) {
        setText(s.controls[ids::workText], std::string(zeroAngle));
        return endAngularAttempt(s, pic1);
    }
    setText(s.controls[ids::workText], formatAngle(angle, s.angFormat));
    setPrompt(s, pic1);
    showBand(s, pic1);
}

} // namespace

void angularDimensionStep(Session& s, Canvas& pic1)
{
    const bool snapped = std::exchange(s.pointWasSnapped, false);
    if (s.stepNo != 4 && !snapped) return endAngularAttempt(s, pic1);
    if (s.stepNo == 1) {
        s.ptA = s.pickFirst;
        setPrompt(s, pic1);
    } else if (s.stepNo == 2) {
        s.ptG = s.pickLast;
        setPrompt(s, pic1);
    } else if (s.stepNo == 3) {
        takeSecondLeg(s, pic1);
    } else if (s.stepNo > 3) {
        layArc(s);
        commitEntity(s, pic1, addAngularDim, paintScratchAngularDim, pen::solid);
        readyForNext(s, pic1);
    }
}

void angularDimensionBand(Session& s, Canvas& pic1)
{
    if (s.stepNo >= 3) showBand(s, pic1);
}

} // namespace mirtane
