#include "app/drawing/endings.h"

#include "app/dialogs/filter_dialog.h"
#include "commands/prompt.h"
#include "library/boundary.h"
#include "render/redraw.h"
#include "render/view.h"
#include "snap/snapped_point.h"
#include "tables/functions.h"

namespace mirtane {
namespace {

bool isUnderWay(const Session& s)
{
    return s.stepNo > 0 || s.windowStep > 0 || s.textLength > 0 || s.curFunc != s.baseFunc;
}

void takeOffThePicture(Canvas& pic1)
{
    setRubberBandPen(pic1);
    resetPicture(pic1);
}

// What was half typed was meant for the function.
void leaveEntry(Controls& controls)
{
    if (controls.focus != ids::entry) return;
    setText(controls[ids::entry], "");
    controls.focus = ids::drawing;
}

} // namespace

void endWhatIsBegun(Session& s, Canvas& pic1)
{
    if (zoomWindowIsOn(s.controls)) zoomWindowCancel(s, pic1);
    closeChangeDialog(s);
    leaveEntry(s.controls);
    showWhatIsHidden(s, pic1);
    if (isUnderWay(s)) takeOffThePicture(pic1);
    forgetWhatIsBegun(s);
    parkPickLast(s);
    s.editPending = 0;
    s.curFunc = s.baseFunc;
    setPrompt(s, pic1);
}

void forgetWhatIsBegun(Session& s)
{
    s.band.reset();
    s.stepNo = 0;
    s.windowStep = 0;
    s.blankStep = 0;
    s.textLength = 0;
    dropBoundary(s);
    s.pointWasSnapped = false;
    s.orthoAngle = s.orthoAngleSaved;
    s.controls[ids::orthoToggle].caption = s.orthoCaption;
}

void parkPickLast(ScratchPoints& s)
{
    constexpr float away = 200; // world units, both ways
    s.pickLast = {s.pickFirst.x + away, s.pickFirst.y + away};
}

void showWhatIsHidden(Session& s, Canvas& pic1)
{
    const bool inEdit = textIsInEdit(s);
    if (inEdit) changeStat(s.store, Stat::sel, Stat::on);
    if (!inEdit && s.workAngle != selectionFollowsPointer) return;
    s.workAngle = 0;
    redrawAll(s, pic1);
}

void beginWindowAnew(Session& s)
{
    if (s.windowStep == 0 || !isWindowFunction(s.curFunc) || zoomWindowIsOn(s.controls)) return;
    s.windowStep = 0;
    showPromptOfStep(s, 0);
}

const std::string& runningFunction(const Session& s)
{
    return drawsConstructionLine(s) ? s.blankSavedFunc : s.curFunc;
}

bool textIsInEdit(const Session& s)
{
    return functionRow(runningFunction(s)).editsText && s.stepNo > 0;
}

bool hasSelection(const Session& s)
{
    return !textIsInEdit(s) && countWithStat(s.store, Stat::sel) > 0;
}

} // namespace mirtane
