// commands/linear_dimension.cpp: the measured points stand in ptE and ptF, the ends of the dimension line
// beside them in ptH and ptG. A chain goes on from ptF and ptG.

#include "commands/linear_dimension.h"

#include "commands/commit.h"
#include "commands/linear_dimension_text.h"
#include "commands/prompt.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "geometry/foot.h"
#include "render/dimension_painters.h"
#include "render/redraw.h"
#include "render/text_painter.h"

#include <utility>

namespace mirtane {
namespace {

// A unit vector with y upward, NaN where there is no direction.
struct Direction {
    double x, y;
};

Direction directionBetween(Point from, Point to)
{
    const double length = distance(from, to);
    return {quotient(to.x - from.x, length), quotient(from.y - to.y, length)};
}

Direction across(Direction u)
{
    return {-u.y, u.x};
}

// The extension lines run as the pointer lies from the second point. A pointer on that point gives no
// direction: they keep the one they had.
Direction extensionDirection(const ScratchPoints& s, Point pointer)
{
    const Direction u = directionBetween(s.ptF, pointer);
    return std::isfinite(u.x + u.y) ? u : across(directionBetween(s.ptH, s.ptG));
}

// From the pointer square across the extension lines, as far as the first point lies to the side of the
// second one's.
void layDimensionLine(Session& s, Point pointer)
{
    const Direction u = extensionDirection(s, pointer);
    const Direction aside = across(u);
    const double height = (s.ptE.x - s.ptF.x) * aside.x + (s.ptF.y - s.ptE.y) * aside.y;
    s.ptG = pointer;
    s.ptH = pointer;
    keep(s.ptH.x, pointer.x + height * aside.x);
    keep(s.ptH.y, pointer.y - height * aside.y);
}

void writeLabel(Session& s, Canvas& pic1)
{
    float length = 0;
    keep(length, distance(s.ptG, s.ptH));
    const std::string text = lengthText(s, length);
    const float width = textWidthIn(pic1, s.textFont, s.arrowSize, text);
    const DimensionLabel label = labelOfLine(s.ptG, s.ptH, s.arrowSize, width);
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
    s.ptG = s.ptF;
    s.ptH = s.ptE;
    s.pickFirst = s.pickLast;
    setPrompt(s, pic1);
    showBand(s, pic1, s.ptF);
}

void goOnAlongLine(ScratchPoints& s)
{
    const Point foot = footOfPerpendicular(s.pickLast, s.ptH, s.ptG, s.ptG);
    s.ptE = s.ptF;
    s.ptH = s.ptG;
    s.ptF = s.pickLast;
    s.ptG = foot;
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
