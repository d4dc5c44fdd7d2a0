#include "commands/radial_dimension.h"

#include "commands/commit.h"
#include "commands/leader_shoulder.h"
#include "commands/linear_dimension_text.h"
#include "commands/prompt.h"
#include "geometry/angle.h"
#include "geometry/fault.h"
#include "render/dimension_painters.h"
#include "render/redraw.h"
#include "render/text_painter.h"
#include "snap/pick.h"

namespace mirtane {
namespace {

bool isRound(const EntityStore& store, std::int32_t slot)
{
    if (slot < 0) return false;
    return isRound(store.kind[EntityStore::at(slot)]);
}

void takeCircle(Session& s, Canvas& pic1)
{
    setPrompt(s, pic1);
    const std::int32_t slot = pickObject(s, pic1);
    if (!isRound(s.store, slot)) {
        s.stepNo = 0;
        setPrompt(s, pic1);
        s.controls.focus = ids::drawing;
        return;
    }
    const EntityRecord r = s.store.record(slot);
    s.ptA = r.p1;
    s.workRadius = r.rad;
    s.ptC = polarPoint(s.ptA, s.workRadius, 0); // stays for an elbow at the centre, which shows no direction
    setText(s.controls[ids::workText], lengthText(s, s.workRadius));
}

void takeElbow(Session& s)
{
    s.ptB = s.pickLast;
    const double length = distance(s.ptA, s.ptB);
    keep(s.ptC.x, s.ptA.x + s.workRadius * quotient(s.ptB.x - s.ptA.x, length));
    keep(s.ptC.y, s.ptA.y - s.workRadius * quotient(s.ptA.y - s.ptB.y, length));
    const Shoulder shoulder = shoulderAt(s.ptB, s.arrowSize);
    s.ptD = shoulder.text;
    s.ptE = shoulder.end;
}

void paintScratchRadialDim(const Session& s, Canvas& pic1)
{
    DimensionShape d;
    d.p1 = s.ptA;
    d.p2 = s.ptB;
    d.p3 = s.ptE;
    d.p4 = s.ptC;
    d.s1 = s.dimStyle;
    d.s2 = s.arrowSize;
    paintRadialDim(pic1, s, d);
    paintDimText(pic1, {s.ptD, s.arrowSize, 0, false, s.textFont, s.controls[ids::workText].text});
}

} // namespace

void radialDimensionStep(Session& s, Canvas& pic1)
{
    if (s.stepNo == 1) return takeCircle(s, pic1);
    if (s.stepNo < 2) return;
    takeElbow(s);
    commitEntity(s, pic1, addRadialDim, paintScratchRadialDim); // in curStyle, until the next redraw
    readyForNext(s, pic1);
}

void radialDimensionBand(Session& s, Canvas& pic1)
{
    if (s.stepNo != 1) return;
    takeElbow(s);
    restorePicture(pic1);
    paintScratchRadialDim(s, pic1);
}

} // namespace mirtane
