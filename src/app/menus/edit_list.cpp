#include "app/menus/edit_list.h"

#include "app/dialogs/filter_dialog.h"
#include "app/drawing/dispatch.h"
#include "app/drawing/endings.h"
#include "app/drawing/starters.h"
#include "edit/change.h"
#include "tables/functions.h"
#include "tables/list_modes.h"

namespace mirtane {
namespace {

// A text under edit is marked by its function, and no edit was asked for of it.
bool somethingToEdit(Session& s)
{
    if (!textIsInEdit(s)) return somethingSelected(s);
    setText(s.controls[ids::entry], "Nothing selected!");
    s.controls.focus = ids::drawing; // where it goes on being typed
    return false;
}

void beginEdit(App& app, const FunctionRow& row)
{
    setText(app.s.controls[ids::workText], ""); // before the prompt, which may put a number there
    startFunction(app.s, app.pic1, row);
    app.s.editPending = 1;
}

// No prompt follows, which else puts the form away.
void deleteAndClose(App& app)
{
    app.s.controls[ids::editsForm].visible = false;
    deleteSelection(app.s, app.pic1);
}

void askForChanges(App& app)
{
    Session& s = app.s;
    s.controls[ids::listMode].caption = list_mode::changeProperties;
    s.controls[ids::selectionList].rows = s.layerTable.rows();
    s.controls[ids::selectionList].row = -1;
    showChangeDialog(app);
}

} // namespace

void startEdit(App& app, const std::string& name)
{
    if (!somethingToEdit(app.s) || name.empty()) return;
    if (name == "Delete") return deleteAndClose(app);
    const FunctionRow* row = findFunction(name);
    if (row == nullptr) return;
    beginEdit(app, *row);
    if (name == "Change") askForChanges(app);
}

void startEditFromRow(App& app, int row)
{
    const std::string name =
        app.s.controls[ids::selectionList].rows[static_cast<std::size_t>(row)]; // the shell checks rows
    startEdit(app, name);
}

void startEditFromButton(App& app, ControlId button)
{
    if (!somethingToEdit(app.s)) return;
    app.s.controls[ids::editsForm].visible = false;
    app.s.controls.focus = ids::drawing;
    startEdit(app, std::string(button.row().caption));
}

void deleteFromKey(App& app)
{
    if (textIsInEdit(app.s)) return;
    startEditFromButton(app, ids::editDelete);
}

void deselectFromButton(App& app, ControlId)
{
    if (!somethingToEdit(app.s)) return;
    app.s.controls[ids::editsForm].visible = false;
    deselect(app.s, app.pic1);
    app.s.controls.focus = ids::drawing;
}

void closeEditsForm(App& app, ControlId)
{
    app.s.controls[ids::editsForm].visible = false;
    app.s.controls.focus = ids::drawing;
}

} // namespace mirtane
