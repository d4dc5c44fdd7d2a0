#include "app/drawing/selection.h"

#include "app/drawing/endings.h"
#include "app/drawing/starters.h"
#include "commands/prompt.h"
#include "render/redraw.h"
#include "render/view.h"
#include "snap/pick.h"
#include "snap/window_selection.h"
#include "tables/functions.h"
#include "tables/list_modes.h"

namespace mirtane {
namespace {

// The empty row keeps "Delete" out of the way of a hasty click.
constexpr std::string_view editFunctions[] = {
    "Break", "Trim",   "Stretch", "Copy", "Mirror Copy", "Radial Copy", "Concentric Copy", "Move", "Rotate",
    "Scale", "Change", "Fillet",  "",     "Delete",
};

void hint(Controls& controls)
{
    setText(controls[ids::entry], "Right click to display edits:");
}

} // namespace

void showEditFunctions(Controls& controls)
{
    controls[ids::listMode].caption = list_mode::editFunctions;
    Control& list = controls[ids::selectionList];
    list.rows.assign(std::begin(editFunctions), std::end(editFunctions));
    list.row = -1;
}

void startSelection(App& app, ControlId starter)
{
    hint(app.s.controls);
    showEditFunctions(app.s.controls);
    startFromControl(app, starter);
}

void selectLastObjects(App& app, ControlId)
{
    startSelection(app, ids::selectObjects); // first, as it lets go of a text under edit, which is marked too
    selectLast(app.s);
    redrawAll(app.s, app.pic1);
    app.pic1.refresh();
}

void offerEdits(Session& s)
{
    if (countWithStat(s.store, Stat::sel) == 0) {
        setText(s.controls[ids::entry], "Nothing selected!");
        return;
    }
    showEditFunctions(s.controls);
    s.controls[ids::editsForm].visible = true;
}

void pickClick(Session& s, Canvas& pic1)
{
    if (togglePick(s, pic1)) redrawAll(s, pic1);
}

void selectByWindow(Session& s, Canvas& pic1)
{
    s.windowStep = 0;
    sortWindowCorners(s);
    restorePicture(pic1);
    selectInWindow(s, functionRow(s.curFunc).clicks == Clicks::takeFilteredWindow);
    redrawAll(s, pic1);
    showPromptOfStep(s, 0);
}

void selectAllObjects(Session& s, Canvas& pic1)
{
    if (!isSelectionFunction(s.curFunc)) return;
    beginWindowAnew(s);
    selectAll(s, functionRow(s.curFunc).clicks == Clicks::takeFilteredWindow);
    redrawAll(s, pic1);
}

} // namespace mirtane
