#include "app/construction_line.h"

#include "app/dispatch.h"
#include "app/endings.h"
#include "commands/vocabulary.h"
#include "geometry/angle.h"
#include "geometry/ortho.h"
#include "render/redraw.h"
#include "snap/snap.h"

namespace mirtane {
namespace {

void disarmSnap(Session& s)
{
    setText(s.controls["snapbox"_c], "");
    s.controls["snaplab"_c].caption.clear();
}

void turnOn(Session& s, Canvas& pic1)
{
    beginWindowAnew(s);
    s.controls["blank"_c].caption = "Blank/On";
    s.blankStep = 0;
    resetPicture(pic1);
    s.blankSavedFunc = s.curFunc;
    s.curFunc = "Blank Line";
}

// The suspended function takes the start of the leg as its next click, past ortho and snap. While it waits
// for a name it takes none.
void turnOff(Session& s, Canvas& pic1)
{
    s.controls["blank"_c].caption = "Blank/Off";
    resetPicture(pic1);
    const FunctionRow* row = findFunction(s.blankSavedFunc);
    if (row != nullptr && waitsForName(*row, s.stepNo)) {
        s.curFunc = s.blankSavedFunc;
        return;
    }
    countStep(s);
    if (s.stepNo == 1) s.pickFirst = s.blankStart;
    if (s.stepNo > 1) s.pickLast = s.blankStart;
    s.mousePos = s.blankStart;
    s.curFunc = s.blankSavedFunc;
    s.pointWasSnapped = true;
    callStep(s, pic1);
}

void confineLeg(Session& s)
{
    const double length = distance(s.blankStart, s.blankEnd);
    s.blankEnd = pointOnAxis(s.blankStart, length, s.orthoSector, s.orthoAngle, s.blankEnd);
}

void nextLeg(Session& s)
{
    s.blankStart = s.blankEnd;
    s.blankStep = 1;
}

} // namespace

void toggleConstructionLine(App& app, ControlId blank)
{
    Session& s = app.s;
    if (s.controls[blank].caption == "Blank/Off") {
        turnOn(s, app.pic1);
    } else {
        turnOff(s, app.pic1);
    }
    s.controls.focus = "pic1"_c;
}

void constructionClick(Session& s, Canvas& pic1, Point at)
{
    ++s.blankStep;
    s.mousePos = at;
    const bool begins = s.blankStep == 1;
    (begins ? s.blankStart : s.blankEnd) = at;
    if (!begins) confineLeg(s);
    holdSnap(s, pic1);
    oneShotSnap(s, pic1);
    disarmSnap(s);
    if (!begins) nextLeg(s);
}

void constructionMove(Session& s, Canvas& pic1, Point at)
{
    s.blankEnd = at;
    if (s.blankStep == 0) return;
    s.liveAngle = directionAngle(s.blankStart, at, s.liveAngle);
    s.orthoSector = sectorOfDirection(s.liveAngle, s.orthoAngle);
    confineLeg(s);
    restorePicture(pic1);
    pic1.line(s.blankStart.x, s.blankStart.y, s.blankEnd.x, s.blankEnd.y);
}

void constructionDistance(Session& s, Canvas&, float d)
{
    s.blankEnd = pointOnAxis(s.blankStart, d, s.orthoSector, s.orthoAngle, s.blankEnd);
    disarmSnap(s);
    nextLeg(s);
}

} // namespace mirtane
