#include "app/routing.h"

#include "app/actions.h"
#include "app/dialogs/filter_dialog.h"
#include "app/dialogs/help.h"
#include "app/dialogs/print_dialog.h"
#include "app/drawing/canvas_input.h"
#include "app/drawing/selection.h"
#include "app/files/file_dialog.h"
#include "app/files/file_lists.h"
#include "app/menus/attribute_controls.h"
#include "app/menus/edit_list.h"
#include "app/menus/file_menus.h"
#include "app/menus/layer_menus.h"
#include "app/menus/list_modes.h"
#include "app/menus/text_menus.h"
#include "app/typing/fields.h"
#include "app/typing/keys.h"
#include "app/typing/typed_entry.h"
#include "commands/live_text.h"
#include "render/redraw.h"
#include "tables/list_modes.h"

#include <algorithm>

namespace mirtane {
namespace {

struct ListRow {
    ControlId list;
    void (*chosen)(App& app, int row);
};

// Rows that do their work at a click.
constexpr ListRow listRows[] = {
    {ids::selectionList, listRowClicked}, {ids::filterLayerList, chooseFilterLayer},
    {ids::fileList, chooseFile},          {ids::folderList, chooseFolder},
    {ids::driveList, chooseDrive},        {ids::helpContents, chooseChapter},
};

void listEnter(App& app, ControlId list)
{
    if (list == ids::selectionList && listsFonts(app.s.controls)) return fontEntered(app);
    if (list == ids::fileList) return confirmFileDialog(app, list);
    const int row = app.s.controls[list].row;
    if (hasRow(app.s.controls[list], row)) rowChosen(app, list, row);
}

struct FormRow {
    ControlId form;
    void (*close)(App& app, ControlId form) = nullptr;
};

constexpr FormRow formRows[] = {
    {ids::mainForm, [](App& app, ControlId) { leaveProgram(app); }},
    {ids::fileForm, [](App& app, ControlId) { closeFileDialog(app); }},
    {ids::filterForm, cancelFilter},
    {ids::printForm, cancelPrint},
};

} // namespace

bool isTextBox(ControlId id)
{
    const ControlKind kind = id.row().kind;
    return kind == ControlKind::field || kind == ControlKind::display || kind == ControlKind::combo;
}

bool hasRow(const Control& list, int row)
{
    return row >= 0 && row < std::ssize(list.rows);
}

bool listsFonts(const Controls& controls)
{
    const std::string& mode = controls[ids::listMode].caption;
    return mode == list_mode::selectFont || mode == list_mode::changeSelectedFont;
}

void rowChosen(App& app, ControlId list, int row)
{
    for (const ListRow& candidate : listRows) {
        if (candidate.list == list) candidate.chosen(app, row);
    }
}

void keyToControl(App& app, ControlId id, char32_t code)
{
    Session& s = app.s;
    if (id == ids::drawing) return canvasKeyPress(s, app.pic1, code);
    if (id == ids::entry) return entryKeyPress(s, app.pic1, code);
    if (id == ids::fileName) return fileNameKeyPress(app, code);
    if (id == ids::printScale) return printScaleKeyPress(app, code);
    if (id == ids::helpFind) return helpFindKeyPress(app, code);
    if (isNumericField(id)) return fieldKeyPress(app, id, code);
    if (id.row().kind == ControlKind::list && code == enterKey) return listEnter(app, id);
    if (id == ids::layerCombo) return layerNameKeyPress(app, code);
    const bool pressed = code == enterKey || code == U' ';
    if (isClickable(id) && pressed) {
        if (const Action action = actionOf(id)) action(app, id);
    }
}

void leave(Session& s, ControlId id)
{
    fieldLeft(s, id);
    if (id == ids::layerCombo) showWorkingLayer(s);
}

void closeFormOf(App& app, ControlId form)
{
    const auto* const row = std::ranges::find(formRows, form, &FormRow::form);
    if (row != std::end(formRows)) return row->close(app, form);
    Controls& controls = app.s.controls;
    const bool hadFocus = formOf(controls.focus) == form;
    controls[form].visible = false;
    if (hadFocus) controls.focus = ids::drawing;
}

void doDeed(App& app, Deed deed)
{
    switch (deed) {
    case Deed::press:
        return;
    case Deed::deleteSelection:
        return deleteFromKey(app);
    case Deed::selectAll:
        return selectAllObjects(app.s, app.pic1);
    case Deed::redraw:
        redrawAll(app.s, app.pic1);
        return repaintTextPreview(app.s, app.pic1);
    }
}

} // namespace mirtane
