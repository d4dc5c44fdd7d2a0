// app/shell.cpp: events are routed by the control they belong to; what they do stands in the routines called.

#include "app/shell.h"

#include "app/actions.h"
#include "app/dialogs/filter_dialog.h"
#include "app/dialogs/print_dialog.h"
#include "app/drawing/canvas_input.h"
#include "app/files/file_dialog.h"
#include "app/files/own_file.h"
#include "app/files/unsaved_work.h"
#include "app/menus/attribute_controls.h"
#include "app/menus/file_menus.h"
#include "app/menus/layer_menus.h"
#include "app/menus/list_modes.h"
#include "app/menus/text_menus.h"
#include "app/start_stop.h"
#include "app/typing/fields.h"
#include "app/typing/keys.h"
#include "app/typing/typed_entry.h"
#include "commands/kept_letters.h"
#include "commands/live_text.h"
#include "render/redraw.h"
#include "render/view.h"
#include "snap/snap.h"
#include "tables/list_modes.h"
#include "text/measure.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

bool isSeen(const Controls& controls, ControlId id)
{
    return controls[id].visible && controls[formOf(id)].visible;
}

// Forms that have to be answered before anything else is done.
constexpr ids::Id modalForms[] = {ids::fileForm, ids::printForm};

bool isBehindForm(const Controls& controls, ControlId id)
{
    return std::ranges::any_of(modalForms,
                               [&](ControlId form) { return controls[form].visible && formOf(id) != form; });
}

bool canBeUsed(const Controls& controls, ControlId id)
{
    return isSeen(controls, id) && controls[id].enabled && !isBehindForm(controls, id);
}

bool hasRow(const Control& list, int row)
{
    return row >= 0 && row < std::ssize(list.rows);
}

struct ListRow {
    ControlId list;
    void (*chosen)(App& app, int row);
};

// Rows that do their work at a click.
constexpr ListRow listRows[] = {
    {ids::selectionList, listRowClicked}, {ids::filterLayerList, chooseFilterLayer},
    {ids::fileList, chooseFile},          {ids::folderList, chooseFolder},
    {ids::driveList, chooseDrive},
};

void rowChosen(App& app, ControlId list, int row)
{
    for (const ListRow& candidate : listRows) {
        if (candidate.list == list) candidate.chosen(app, row);
    }
}

bool listsFonts(const Controls& controls)
{
    const std::string& mode = controls[ids::listMode].caption;
    return mode == list_mode::selectFont || mode == list_mode::changeSelectedFont;
}

void listEnter(App& app, ControlId list)
{
    if (list == ids::selectionList && listsFonts(app.s.controls)) return fontEntered(app);
    if (list == ids::fileList) return confirmFileDialog(app, list);
    const int row = app.s.controls[list].row;
    if (hasRow(app.s.controls[list], row)) rowChosen(app, list, row);
}

std::string inNumberStyle(const Attributes& s, float length)
{
    return formatMeasure({length, {numStyleOf(s.numStyle), s.dimTol, s.numComma == 1}});
}

// Fields and the box of the layers forget what was half typed.
void leave(Session& s, ControlId id)
{
    fieldLeft(s, id);
    if (id == ids::layerCombo) showWorkingLayer(s);
}

void keyToControl(App& app, ControlId id, char32_t code)
{
    Session& s = app.s;
    if (id == ids::drawing) return canvasKeyPress(s, app.pic1, code);
    if (id == ids::entry) return entryKeyPress(s, app.pic1, code);
    if (id == ids::fileName) return fileNameKeyPress(app, code);
    if (id == ids::printScale) return printScaleKeyPress(app, code);
    if (isNumericField(id)) return fieldKeyPress(app, id, code);
    if (id.row().kind == ControlKind::list && code == enterKey) return listEnter(app, id);
    if (id == ids::layerCombo) return layerNameKeyPress(app, code);
    const bool pressed = code == enterKey || code == U' ';
    if (isClickable(id) && pressed) {
        if (const Action action = actionOf(id)) action(app, id);
    }
}

bool isTextBox(ControlId id)
{
    const ControlKind kind = id.row().kind;
    return kind == ControlKind::field || kind == ControlKind::display || kind == ControlKind::combo;
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

// A form closes as by its Cancel; one that has none only goes.
void closeFormOf(App& app, ControlId form)
{
    const auto* const row = std::ranges::find(formRows, form, &FormRow::form);
    if (row != std::end(formRows)) return row->close(app, form);
    Controls& controls = app.s.controls;
    const bool hadFocus = formOf(controls.focus) == form;
    controls[form].visible = false;
    if (hadFocus) controls.focus = ids::drawing;
}

} // namespace

Shell::Shell(Session& session, Canvas& pic1, Ports ports) : s_(session), pic1_(pic1), ports_(ports) {}

void Shell::start()
{
    App app{s_, pic1_, ports_, dxfScratch_};
    startProgram(app);
    greyWhatHasNoRoutine(s_.controls);
    settle(s_.controls.focus);
}

// An event: nothing once the program has ended; afterwards focus, fields and the snap's label are brought in
// order.
template <class Act> void Shell::event(Act act)
{
    if (ended()) return;
    const ControlId before = s_.controls.focus;
    App app{s_, pic1_, ports_, dxfScratch_};
    act(app);
    settle(before);
}

template <class Act> void Shell::eventOf(ControlId id, Act act)
{
    if (canBeUsed(s_.controls, id)) event(act);
}

void Shell::openDrawing(const std::string& path)
{
    event([&](App& app) { openDrawingAt(app, path); });
}

void Shell::mouseDown(int button, Point at)
{
    giveFocus(ids::drawing); // a field that is left so forgets what was half typed
    eventOf(ids::drawing, [&](App&) { canvasMouseDown(s_, pic1_, button, at); });
}

void Shell::mouseMove(Point at)
{
    eventOf(ids::drawing, [&](App&) {
        canvasMouseMove(s_, pic1_, at);
        s_.controls[ids::pointerLine].caption = inNumberStyle(s_, at.x) + "  " + inNumberStyle(s_, at.y);
    });
}

void Shell::wheel(double steps, Point at)
{
    constexpr double factorOfOneStep = 1.25;
    eventOf(ids::drawing, [&](App&) {
        zoomAbout(s_, pic1_, at, std::pow(factorOfOneStep, steps));
        repaintTextPreview(s_, pic1_);
        canvasMouseMove(s_, pic1_, at); // the rubber band, if there is one, goes on at the new scale
    });
}

void Shell::keyDown(int code)
{
    eventOf(ids::drawing, [&](App&) { canvasKeyDown(s_, pic1_, code); });
}

void Shell::keyUp(int)
{
    event([&](App&) { canvasKeyUp(s_); });
}

void Shell::resized()
{
    readViewLimits(s_, pic1_);
}

void Shell::redraw()
{
    redrawAll(s_, pic1_);
    repaintTextPreview(s_, pic1_);
}

void Shell::keyPress(char32_t code)
{
    const ControlId focused = s_.controls.focus;
    eventOf(focused, [&](App& app) { keyToControl(app, focused, code); });
}

void Shell::type(std::u32string_view characters)
{
    char32_t refused = 0;
    for (const char32_t code : characters) {
        keyPress(code);
        if (isRefusalOf(s_.controls[ids::entry].text, code)) refused = code;
    }
    // Where a name is typed in entry, the next letter stands there in place of what was said.
    if (refused != 0) refusesLetter(s_.controls, refused);
}

void Shell::click(ControlId id)
{
    eventOf(id, [&](App& app) {
        if (isTextBox(id)) {
            s_.controls.focus = id;
            setCaret(s_.controls[id], s_.controls[id].caret); // what was selected is so no more
        }
        if (const Action action = actionOf(id)) action(app, id);
    });
}

void Shell::clickRow(ControlId list, int row)
{
    moveToRow(list, row);
    if (!hasRow(s_.controls[list], row)) return;
    eventOf(list, [&](App& app) { rowChosen(app, list, row); });
}

void Shell::moveToRow(ControlId list, int row)
{
    if (!hasRow(s_.controls[list], row)) return;
    eventOf(list, [&](App& app) {
        s_.controls[list].row = row;
        s_.controls.focus = list;
        if (list == ids::fileList) chooseFile(app, row);
    });
}

void Shell::doubleClickRow(ControlId list, int row)
{
    const bool takesSecondClick =
        list == ids::fileList || (list == ids::selectionList && listsFonts(s_.controls));
    if (!takesSecondClick || !hasRow(s_.controls[list], row) || !canBeUsed(s_.controls, list)) return;
    clickRow(list, row);
    keyPress(enterKey);
}

void Shell::giveFocus(ControlId id)
{
    eventOf(id, [&](App&) { s_.controls.focus = id; });
}

void Shell::closeForm(ControlId form)
{
    eventOf(form, [&](App& app) { closeFormOf(app, form); });
}

bool Shell::takesInput(ControlId id) const
{
    return canBeUsed(s_.controls, id);
}

void Shell::rest()
{
    event([](App& app) {
        keepUnsavedWork(app);
        reviewOthers(app);
    });
}

void Shell::settle(ControlId focusBefore)
{
    showNotice(s_.controls, s_.notices);
    // A form that went from the screen takes no keys with it.
    if (!s_.ended && !isSeen(s_.controls, s_.controls.focus)) s_.controls.focus = ids::drawing;
    if (s_.controls.focus != focusBefore) leave(s_, focusBefore);
    showArmedSnap(s_);
}

} // namespace mirtane
