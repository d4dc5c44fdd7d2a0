// commands/linear_dimension.cpp: the measured points stand in ptE and ptF, the ends of the dimension line
// beside them in ptH and ptG. A chain goes on from ptF and ptG, along dimWay.

#include "commands/linear_dimension.h"

#include "commands/commit.h"
#include "commands/linear_dimension_text.h"
#include "commands/prompt.h"
#include "geometry/direction.h"
#include "geometry/fault.h"
#include "geometry/ortho.h"
#include "render/dimension_painters.h"
#include "render/redraw.h"
#include "render/text_painter.h"

#include <cmath>
#include <utility>

namespace mirtane {
namespace {

Way across(Way w)
{
    return {w.y, -w.x};
}

// The extension lines run as the pointer lies from the second point, which ortho may have put on an axis. A
// pointer on that point gives no direction: they keep the one they had.
void turnLine(Session& s, Point pointer)
{
    const Direction out = orthoIsOn(s.controls)
                              ? directionByOrtho(s.ptF, pointer, s.orthoSector, s.orthoAngle)
                              : directionOf(s.ptF, pointer);
    if (std::isfinite(out.x + out.y)) s.dimWay = across({out.x, out.y});
}

double along(Way way, Point from, Point to)
{
    return (static_cast<double>(to.x) - from.x) * way.x + // widened before the differences
           (static_cast<double>(to.y) - from.y) * way.y;
}

Point movedAlong(Way way, Point from, double distance)
{
    Point p = from;
    keep(p.x, from.x + distance * way.x);
    keep(p.y, from.y + distance * way.y);
    return p;
}

// From the pointer square across the extension lines, as far as the first point lies to the side of the
// second one's.
void layDimensionLine(Session& s, Point pointer)
{
    turnLine(s, pointer);
    s.ptG = pointer;
    s.ptH = movedAlong(s.dimWay, pointer, along(s.dimWay, s.ptF, s.ptE));
}

// Between points that are rounded the line would lean, and what is measured along it with it. One point that
// is measured twice has no line.
void writeLabel(Session& s, Canvas& pic1)
{
    const double measured = along(s.dimWay, s.ptE, s.ptF);
    float length = 0;
    keep(length, std::abs(measured));
    const std::string text = lengthText(s, length);
    const float width = textWidthIn(pic1, s.textFont, s.arrowSize, text);
    const Way onwards = measured < 0 ? -s.dimWay : s.dimWay;
    const DimensionLabel label =
        labelAlong(s.ptE == s.ptF ? Way{} : onwards, s.ptG, s.ptH, s.arrowSize, width);
    setText(s.controls[ids::workText], text);
    s.ptA = label.at;
    s.dimAngle = label.degrees;
}

void paintScratchLinearDim(const Session& s, Canvas& pic1)
{
    DimensionShape d;
    d.p1 = s.ptE;
    d.p2 = s.ptF;
    d.p3 = s.ptG;
    d.p4 = s.ptH;
    d.s1 = s.dimStyle;
    d.s2 = s.arrowSize;
    paintLinearDim(pic1, s, d);
    paintDimText(pic1, {s.ptA, s.arrowSize, s.dimAngle, false, s.textFont, s.controls[ids::workText].text});
}

void endAttempt(Session& s, Canvas& pic1)
{
    restorePicture(pic1);
    s.stepNo = 0;
    setPrompt(s, pic1);
}

void showBand(Session& s, Canvas& pic1, Point pointer)
{
    layDimensionLine(s, pointer);
    writeLabel(s, pic1);
    restorePicture(pic1);
    paintScratchLinearDim(s, pic1);
}

// The second point is the origin of ortho, and of a typed distance. Until the pointer has moved the line lies
// on the points themselves.
void takeSecondPoint(Session& s, Canvas& pic1)
{
    s.ptE = s.pickFirst;
    s.ptF = s.pickLast;
    s.dimWay = wayBetween(s.ptE, s.ptF);
    s.pickFirst = s.pickLast;
    setPrompt(s, pic1);
    showBand(s, pic1, s.ptF);
}

void goOnAlongLine(ScratchPoints& s)
{
    s.ptE = s.ptF;
    s.ptH = s.ptG;
    s.ptF = s.pickLast;
    s.ptG = movedAlong(s.dimWay, s.ptH, along(s.dimWay, s.ptH, s.ptF));
}

void commitDimension(Session& s, Canvas& pic1)
{
    writeLabel(s, pic1);
    if (s.controls[ids::workText].text == zeroLength) return endAttempt(s, pic1);
    commitEntity(s, pic1, addLinearDim, paintScratchLinearDim, pen::solid);
    s.pickFirst = s.ptF;
    setPrompt(s, pic1);
    setRubberBandPen(pic1);
}

} // namespace

void linearDimensionStep(Session& s, Canvas& pic1)
{
    const bool snapped = std::exchange(s.pointWasSnapped, false);
    if (s.stepNo != 3 && !snapped) return endAttempt(s, pic1);
    if (s.stepNo == 1) {
        setPrompt(s, pic1);
    } else if (s.stepNo == 2) {
        takeSecondPoint(s, pic1);
    } else if (s.stepNo == 3) {
        layDimensionLine(s, s.pickLast);
        commitDimension(s, pic1);
    } else if (s.stepNo > 3) {
        goOnAlongLine(s);
        commitDimension(s, pic1);
    }
}

void linearDimensionBand(Session& s, Canvas& pic1)
{
    if (s.stepNo == 2) showBand(s, pic1, s.pickLast);
}

} // namespace mirtane
