#include "app/actions.h"

#include "app/attribute_controls.h"
#include "app/construction_line.h"
#include "app/dispatch.h"
#include "app/fields.h"
#include "app/file_dialog.h"
#include "app/file_menus.h"
#include "app/help.h"
#include "app/starters.h"
#include "commands/vocabulary.h"
#include "render/redraw.h"
#include "render/view.h"

namespace mirtane {
namespace {

template <void (*zoom)(Session&, Canvas&)> void zoomAction(App& app, ControlId)
{
    zoom(app.s, app.pic1);
}

template <bool (*flip)(EntityStore&, UndoLog&)> void undoAction(App& app, ControlId)
{
    if (!flip(app.s.store, app.s.log)) return;
    redrawAll(app.s, app.pic1);
    app.s.controls.focus = "pic1"_c;
}

void toggleOrtho(App& app, ControlId freecurs)
{
    std::string& caption = app.s.controls[freecurs].caption;
    caption = caption == "Ortho/On" ? "Ortho/Off" : "Ortho/On";
    app.s.orthoCaption = caption;
    app.s.controls.focus = "pic1"_c;
}

// Boxes that only display take no click.
void backToDrawing(App& app, ControlId)
{
    app.s.controls.focus = "pic1"_c;
}

struct ActionRow {
    ControlId control;
    Action action;
};

constexpr ActionRow actionRows[] = {
    {"fil4"_c, openFileFlow},
    {"fil5"_c, closeDrawing},
    {"fil7"_c, openFileFlow},
    {"fil9"_c, openFileFlow},
    {"dd2"_c, openFileFlow},
    {"dd4"_c, openFileFlow},
    {"ass10"_c, openFileFlow},
    {"ht8"_c, openFileFlow},
    {"ml6"_c, openFileFlow},
    {"fil14"_c, exitProgram},
    {"hlp3"_c, showHelp},
    {"undu"_c, undoAction<undo>},
    {"redu"_c, undoAction<redo>},
    {"Command42"_c, zoomAction<zoomAll>},
    {"Command43"_c, zoomAction<zoomWindowStart>},
    {"Command44"_c, zoomAction<zoomOut>},
    {"blank"_c, toggleConstructionLine},
    {"freecurs"_c, toggleOrtho},
    {"lw3"_c, takeLineColor},
    {"lw4"_c, takeLineColor},
    {"lw5"_c, takeLineColor},
    {"lw6"_c, takeLineColor},
    {"lw7"_c, takeLineColor},
    {"lw8"_c, takeLineColor},
    {"lw9"_c, takeLineColor},
    {"lw10"_c, takeLineColor},
    {"ls3"_c, takeLineStyle},
    {"ls4"_c, takeLineStyle},
    {"ls5"_c, takeLineStyle},
    {"ls6"_c, takeLineStyle},
    {"ls7"_c, takeLineStyle},
    {"angle"_c, fieldClicked},
    {"textrot"_c, fieldClicked},
    {"hatrot"_c, fieldClicked},
    {"assrot"_c, fieldClicked},
    {"snapper"_c, fieldClicked},
    {"Combo3"_c, fieldClicked},
    {"entry"_c, backToDrawing},
    {"memy"_c, backToDrawing},
    {"setts"_c, backToDrawing},
    {"frmfile.Command1"_c, confirmFileDialog},
    {"frmfile.Command2"_c, dismissFileDialog},
};

bool startsBuiltFunction(ControlId id)
{
    const FunctionRow* row = functionStartedBy(id.row().name);
    const DispatchRow* routines = row == nullptr ? nullptr : dispatchOf(row->name);
    return routines != nullptr && routines->built && row->starts == Starts::atOnce;
}

} // namespace

Action actionOf(ControlId id)
{
    for (const ActionRow& row : actionRows) {
        if (row.control == id) return row.action;
    }
    return startsBuiltFunction(id) ? startFromControl : nullptr;
}

bool isClickable(ControlId id)
{
    switch (id.row().kind) {
    case ControlKind::button:
    case ControlKind::toggle:
    case ControlKind::option:
    case ControlKind::entry:
    case ControlKind::checkedEntry:
        return true;
    default:
        return false;
    }
}

} // namespace mirtane
