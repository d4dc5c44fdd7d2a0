#include "edit/change.h"

#include "edit/selection_run.h"
#include "render/redraw.h"

namespace mirtane {

bool somethingSelected(Session& s)
{
    if (countWithStat(s.store, Stat::sel) > 0) return true;
    setText(s.controls[ids::entry], "Nothing selected!");
    return false;
}

void deleteSelection(Session& s, Canvas& pic1)
{
    if (!somethingSelected(s)) return;
    s.stepNo = 0;
    s.editPending = 0;
    s.workAngle = 0; // of a move given up, so that what is selected next is shown
    turnSources(s, selectedSlots(s.store), Sources::goOut);
    --s.savedCount; // no slot was added, yet there is something to save
    closeGroup(s, pic1);
    s.controls.focus = ids::drawing;
}

void deselect(Session& s, Canvas& pic1)
{
    s.workAngle = 0;
    deselectAll(s, pic1);
    s.controls.focus = ids::drawing;
}

bool changeSelection(Session& s, Canvas& pic1, const Changes& changes)
{
    const bool done = runOnSelection(s, Sources::goOut, [&changes](EntityRecord r) {
        r.layer = changes.layer.value_or(r.layer);
        r.color = changes.color.value_or(r.color);
        if (hasLineStyle(r.kind)) r.style = changes.style.value_or(r.style);
        return r;
    });
    if (done) endRun(s, pic1);
    return done;
}

} // namespace mirtane
