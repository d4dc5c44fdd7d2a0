#include "app/drawing/starters.h"

#include "app/drawing/endings.h"
#include "commands/prompt.h"
#include "render/redraw.h"
#include "tables/functions.h"

namespace mirtane {

void changeFunction(Session& s, Canvas& pic1, const FunctionRow& row, std::int16_t firstStep)
{
    showWhatIsHidden(s, pic1);
    beginWindowAnew(s); // whose prompt stays where the function has none of its own
    forgetWhatIsBegun(s);
    s.stepNo = firstStep;
    s.curFunc = row.name;
    resetPicture(pic1);
    setPrompt(s, pic1);
    s.controls.focus = ids::drawing;
}

void startFunction(Session& s, Canvas& pic1, const FunctionRow& row)
{
    if (row.setsBase) s.baseFunc = row.name;
    changeFunction(s, pic1, row, row.firstStep);
}

void startFromControl(App& app, ControlId starter)
{
    const FunctionRow* row = functionStartedBy(starter);
    if (row != nullptr) startFunction(app.s, app.pic1, *row);
}

} // namespace mirtane
