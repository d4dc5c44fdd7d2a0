#include "app/selection.h"

#include "app/starters.h"
#include "commands/prompt.h"
#include "commands/vocabulary.h"
#include "render/redraw.h"
#include "render/view.h"
#include "snap/pick.h"
#include "snap/window_selection.h"

namespace mirtane {
namespace {

// The empty row keeps "Delete" out of the way of a hasty click.
constexpr std::string_view editFunctions[] = {
    "Break", "Trim",   "Stretch", "Copy", "Mirror Copy", "Radial Copy", "Concentric Copy", "Move", "Rotate",
    "Scale", "Change", "Fillet",  "",     "Delete",
};

void hint(Session& s)
{
    setText(s.controls["entry"_c], "Right click to display edits:");
}

} // namespace

void showEditFunctions(Session& s)
{
    s.controls["Label3"_c].caption = "Edit Functions";
    Control& list = s.controls["List1"_c];
    list.rows.assign(std::begin(editFunctions), std::end(editFunctions));
    list.row = -1;
}

void startSelection(App& app, ControlId starter)
{
    hint(app.s);
    showEditFunctions(app.s);
    startFromControl(app, starter);
}

void selectLastObjects(App& app, ControlId)
{
    selectLast(app.s);
    redrawAll(app.s, app.pic1);
    app.pic1.refresh();
    startSelection(app, "Command20"_c);
}

void offerEdits(Session& s)
{
    if (countWithStat(s.store, Stat::sel) == 0) {
        setText(s.controls["entry"_c], "Nothing selected!");
        return;
    }
    showEditFunctions(s);
    s.controls["frmedit"_c].visible = true;
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
    selectInWindow(s, s.curFunc == "Window Select Filtered");
    redrawAll(s, pic1);
    showPromptOfStep(s, 0);
}

} // namespace mirtane
