#include "app/starters.h"

#include "commands/prompt.h"
#include "commands/vocabulary.h"
#include "render/redraw.h"

namespace mirtane {

void startFunction(Session& s, Canvas& pic1, const FunctionRow& row)
{
    s.stepNo = row.firstStep;
    s.windowStep = 0;
    s.textLength = 0;
    s.boundaryCount = 0;
    s.orthoAngle = s.orthoAngleSaved;
    s.controls["freecurs"_c].caption = s.orthoCaption;
    s.curFunc = row.name;
    if (s.workAngle == selectionFollowsPointer) { // the clean picture lacks the selection
        s.workAngle = 0;
        redrawAll(s, pic1);
    }
    if (row.setsBase) s.baseFunc = row.name;
    resetPicture(pic1);
    setPrompt(s, pic1);
    s.controls.focus = "pic1"_c;
}

void startFromControl(App& app, ControlId starter)
{
    const FunctionRow* row = functionStartedBy(starter.row().name);
    if (row != nullptr) startFunction(app.s, app.pic1, *row);
}

} // namespace mirtane
