#include "app/starters.h"

#include "commands/prompt.h"
#include "commands/vocabulary.h"
#include "library/boundary.h"
#include "render/redraw.h"
#include "render/view.h"

namespace mirtane {

void changeFunction(Session& s, Canvas& pic1, const FunctionRow& row, std::int16_t firstStep)
{
    const bool leavesTextInEdit = s.curFunc == "Text Edit" && s.stepNo > 0;
    s.stepNo = firstStep;
    s.windowStep = 0;
    s.textLength = 0;
    dropBoundary(s);
    s.orthoAngle = s.orthoAngleSaved;
    s.controls["freecurs"_c].caption = s.orthoCaption;
    s.curFunc = row.name;
    if (leavesTextInEdit) changeStat(s.store, Stat::sel, Stat::on);
    // Either way the clean picture lacks what was hidden.
    if (leavesTextInEdit || s.workAngle == selectionFollowsPointer) {
        s.workAngle = 0;
        redrawAll(s, pic1);
    }
    resetPicture(pic1);
    setPrompt(s, pic1);
    s.controls.focus = "pic1"_c;
}

void startFunction(Session& s, Canvas& pic1, const FunctionRow& row)
{
    if (row.setsBase) s.baseFunc = row.name;
    changeFunction(s, pic1, row, row.firstStep);
}

void dropWhatWasBegun(Session& s, Canvas& pic1)
{
    if (zoomWindowIsOn(s)) zoomWindowCancel(s, pic1);
    s.windowStep = 0;
    s.textLength = 0;
    dropBoundary(s);
}

void beginAnew(Session& s, Canvas& pic1)
{
    s.stepNo = 0;
    s.textLength = 0;
    s.orthoAngle = s.orthoAngleSaved;
    s.controls["freecurs"_c].caption = s.orthoCaption;
    if (s.workAngle == selectionFollowsPointer) {
        s.workAngle = 0;
        redrawAll(s, pic1);
    }
    resetPicture(pic1);
    setPrompt(s, pic1);
}

void startFromControl(App& app, ControlId starter)
{
    const FunctionRow* row = functionStartedBy(starter.row().name);
    if (row != nullptr) startFunction(app.s, app.pic1, *row);
}

} // namespace mirtane
