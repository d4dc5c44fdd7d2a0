#include "app/edit_list.h"

#include "app/dispatch.h"
#include "app/filter_dialog.h"
#include "app/starters.h"
#include "commands/vocabulary.h"
#include "edit/change.h"

namespace mirtane {
namespace {

void beginEdit(App& app, const FunctionRow& row)
{
    setText(app.s.controls["Text3"_c], ""); // before the prompt, which may put a number there
    startFunction(app.s, app.pic1, row);
    app.s.editPending = 1;
}

// No prompt follows, which else puts the form away.
void deleteAndClose(App& app)
{
    app.s.controls["frmedit"_c].visible = false;
    deleteSelection(app.s, app.pic1);
}

void askForChanges(App& app)
{
    Session& s = app.s;
    s.controls["Label3"_c].caption = "Change Properties";
    s.controls["List1"_c].rows = s.layerTable.rows();
    s.controls["List1"_c].row = -1;
    showChangeDialog(app);
}

} // namespace

void startEdit(App& app, const std::string& name)
{
    if (!somethingSelected(app.s) || name.empty()) return;
    if (name == "Delete") return deleteAndClose(app);
    const FunctionRow* row = findFunction(name);
    if (row == nullptr) return;
    beginEdit(app, *row);
    if (name == "Change") askForChanges(app);
}

void startEditFromRow(App& app, int row)
{
    const std::string name =
        app.s.controls["List1"_c].rows[static_cast<std::size_t>(row)]; // the shell checks rows
    startEdit(app, name);
}

void startEditFromButton(App& app, ControlId button)
{
    if (!somethingSelected(app.s)) return;
    app.s.controls["frmedit"_c].visible = false;
    app.s.controls.focus = "pic1"_c;
    startEdit(app, std::string(button.row().caption));
}

void deselectFromButton(App& app, ControlId)
{
    if (!somethingSelected(app.s)) return;
    app.s.controls["frmedit"_c].visible = false;
    deselect(app.s, app.pic1);
    app.s.controls.focus = "pic1"_c;
}

void closeEditsForm(App& app, ControlId)
{
    app.s.controls["frmedit"_c].visible = false;
    app.s.controls.focus = "pic1"_c;
}

} // namespace mirtane
