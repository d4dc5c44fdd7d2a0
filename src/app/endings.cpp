#include "app/endings.h"

#include "app/filter_dialog.h"
#include "commands/prompt.h"
#include "commands/vocabulary.h"
#include "library/boundary.h"
#include "render/redraw.h"
#include "render/view.h"

namespace mirtane {
namespace {

// A construction line only suspends it.
const std::string& runningFunction(const Session& s)
{
    return s.curFunc == "Blank Line" ? s.blankSavedFunc : s.curFunc;
}

bool textIsInEdit(const Session& s)
{
    return runningFunction(s) == "Text Edit" && s.stepNo > 0;
}

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
void leaveEntry(Session& s)
{
    if (s.controls.focus != "entry"_c) return;
    setText(s.controls["entry"_c], "");
    s.controls.focus = "pic1"_c;
}

} // namespace

void endWhatIsBegun(Session& s, Canvas& pic1)
{
    if (zoomWindowIsOn(s)) zoomWindowCancel(s, pic1);
    closeChangeDialog(s);
    leaveEntry(s);
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
    s.stepNo = 0;
    s.windowStep = 0;
    s.blankStep = 0;
    s.textLength = 0;
    dropBoundary(s);
    s.pointWasSnapped = false;
    s.orthoAngle = s.orthoAngleSaved;
    s.controls["freecurs"_c].caption = s.orthoCaption;
}

void parkPickLast(Session& s)
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
    if (s.windowStep == 0 || !isWindowFunction(s.curFunc) || zoomWindowIsOn(s)) return;
    s.windowStep = 0;
    showPromptOfStep(s, 0);
}

bool hasSelection(const Session& s)
{
    return !textIsInEdit(s) && countWithStat(s.store, Stat::sel) > 0;
}

} // namespace mirtane
