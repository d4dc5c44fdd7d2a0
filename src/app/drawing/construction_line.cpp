#include "app/drawing/construction_line.h"

#include "app/drawing/dispatch.h"
#include "app/drawing/endings.h"
#include "geometry/angle.h"
#include "geometry/ortho.h"
#include "model/room.h"
#include "model/shown_prompt.h"
#include "render/redraw.h"
#include "render/view.h"
#include "snap/snap.h"
#include "tables/functions.h"

namespace mirtane {
namespace {

void disarmSnap(Controls& controls)
{
    setText(controls[ids::armedSnap], "");
    controls[ids::snapLabel].caption.clear();
}

void turnOn(Session& s, Canvas& pic1)
{
    beginWindowAnew(s);
    s.controls[ids::blankToggle].caption = "Blank/On";
    s.blankStep = 0;
    resetPicture(pic1);
    s.blankSavedFunc = s.curFunc;
    s.curFunc = "Blank Line";
}

// While it waits for a name it takes no click, and the corners of a window are no steps.
bool takesRelease(const FunctionRow* row, std::int16_t stepNo)
{
    if (row == nullptr) return true;
    return !waitsForName(*row, stepNo) && !isWindowFunction(row->name);
}

// The suspended function takes the start of the leg as its next click, past ortho and snap.
void turnOff(Session& s, Canvas& pic1)
{
    s.controls[ids::blankToggle].caption = "Blank/Off";
    resetPicture(pic1);
    s.curFunc = s.blankSavedFunc;
    s.functionPrompt.function = s.curFunc; // a prompt shown meanwhile told of the construction line
    if (!zoomWindowIsOn(s.controls)) endPassingPrompt(s);
    if (!takesRelease(findFunction(s.curFunc), s.stepNo)) return;
    unlessRefused(s, [&] {
        countStep(s);
        if (s.stepNo == 1) s.pickFirst = s.blankStart;
        if (s.stepNo > 1) s.pickLast = s.blankStart;
        s.mousePos = s.blankStart;
        s.pointWasSnapped = true;
        callStep(s, pic1);
    });
}

void confineLeg(CanvasInput& s)
{
    const double length = distance(s.blankStart, s.blankEnd);
    s.blankEnd = pointOnAxis(s.blankStart, length, s.orthoSector, s.orthoAngle, s.blankEnd);
}

void nextLeg(CanvasInput& s)
{
    s.blankStart = s.blankEnd;
    s.blankStep = 1;
}

} // namespace

void toggleConstructionLine(App& app, ControlId blank)
{
    Session& s = app.s;
    s.band.reset();
    if (s.controls[blank].caption == "Blank/Off") {
        turnOn(s, app.pic1);
    } else {
        turnOff(s, app.pic1);
    }
    s.controls.focus = ids::drawing;
}

std::optional<SnapHit> placeConstructionClick(Session& s, const Canvas& pic1, Point at)
{
    ++s.blankStep;
    s.mousePos = at;
    const bool begins = s.blankStep == 1;
    (begins ? s.blankStart : s.blankEnd) = at;
    if (!begins) confineLeg(s);
    return snapClick(s, pic1);
}

void constructionClick(Session& s, Canvas& pic1, Point at)
{
    placeConstructionClick(s, pic1, at);
    disarmSnap(s.controls);
    if (s.blankStep > 1) nextLeg(s);
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
    disarmSnap(s.controls);
    nextLeg(s);
}

} // namespace mirtane
