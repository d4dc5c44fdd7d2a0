// app/shell.cpp: events are routed by the control they belong to; what they do stands in the routines called.

#include "app/shell.h"

#include "app/actions.h"
#include "app/attribute_controls.h"
#include "app/canvas_input.h"
#include "app/fields.h"
#include "app/file_dialog.h"
#include "app/filter_dialog.h"
#include "app/layer_menus.h"
#include "app/list_modes.h"
#include "app/print_dialog.h"
#include "app/start_stop.h"
#include "app/text_menus.h"
#include "app/typed_entry.h"
#include "commands/kept_letters.h"
#include "commands/live_text.h"
#include "render/redraw.h"
#include "render/view.h"
#include "snap/snap.h"
#include "text/measure.h"

#include <cmath>

namespace mirtane {
namespace {

bool isSeen(const Controls& controls, ControlId id)
{
    return controls[id].visible && controls[formOf(id)].visible;
}

bool canBeUsed(const Controls& controls, ControlId id)
{
    return isSeen(controls, id) && controls[id].enabled;
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
    {"List1"_c, listRowClicked},       {"frmfilter.List1"_c, chooseFilterLayer},
    {"frmfile.File1"_c, chooseFile},   {"frmfile.Dir1"_c, chooseFolder},
    {"frmfile.Drive1"_c, chooseDrive},
};

void rowChosen(App& app, ControlId list, int row)
{
    for (const ListRow& candidate : listRows) {
        if (candidate.list == list) candidate.chosen(app, row);
    }
}

bool listsFonts(const Session& s)
{
    const std::string& mode = s.controls["Label3"_c].caption;
    return mode == "Select Font" || mode == "Change Selected Font";
}

void listEnter(App& app, ControlId list)
{
    if (list == "List1"_c && listsFonts(app.s)) return fontEntered(app);
    if (list == "frmfile.File1"_c) return confirmFileDialog(app, list);
    const int row = app.s.controls[list].row;
    if (hasRow(app.s.controls[list], row)) rowChosen(app, list, row);
}

std::string inNumberStyle(const Session& s, float length)
{
    return formatMeasure({length, {numStyleOf(s.numStyle), s.dimTol, s.numComma == 1}});
}

// Fields and the box of the layers forget what was half typed.
void leave(Session& s, ControlId id)
{
    fieldLeft(s, id);
    if (id == "Combo3"_c) showWorkingLayer(s);
}

void keyToControl(App& app, ControlId id, char32_t code)
{
    Session& s = app.s;
    if (id == "pic1"_c) return canvasKeyPress(s, app.pic1, code);
    if (id == "entry"_c) return entryKeyPress(s, app.pic1, code);
    if (id == "frmfile.Text1"_c) return fileNameKeyPress(app, code);
    if (id == "frmprintset.Text1"_c) return printScaleKeyPress(app, code);
    if (isNumericField(id)) return fieldKeyPress(app, id, code);
    if (id.row().kind == ControlKind::list && code == enterKey) return listEnter(app, id);
    if (id == "Combo3"_c) return layerNameKeyPress(app, code);
    const bool pressed = code == enterKey || code == U' ';
    if (isClickable(id) && pressed) {
        if (const Action action = actionOf(id)) action(app, id);
    }
}

} // namespace

Shell::Shell(Session& session, Canvas& pic1, Ports ports) : s_(session), pic1_(pic1), ports_(ports) {}

void Shell::start()
{
    App app{s_, pic1_, ports_, dxfScratch_};
    startProgram(app);
    settle(s_.controls.focus);
}

void Shell::openDrawing(const std::string& path)
{
    if (ended()) return;
    const ControlId before = s_.controls.focus;
    App app{s_, pic1_, ports_, dxfScratch_};
    openDrawingAt(app, path);
    settle(before);
}

void Shell::mouseDown(int button, Point at)
{
    if (ended()) return;
    giveFocus("pic1"_c); // a field that is left so forgets what was half typed
    const ControlId before = s_.controls.focus;
    canvasMouseDown(s_, pic1_, button, at);
    settle(before);
}

void Shell::mouseMove(Point at)
{
    if (ended()) return;
    const ControlId before = s_.controls.focus;
    canvasMouseMove(s_, pic1_, at);
    s_.controls["pointerlab"_c].caption = inNumberStyle(s_, at.x) + "  " + inNumberStyle(s_, at.y);
    settle(before);
}

void Shell::wheel(double steps, Point at)
{
    constexpr double factorOfOneStep = 1.25;
    if (ended()) return;
    const ControlId before = s_.controls.focus;
    zoomAbout(s_, pic1_, at, std::pow(factorOfOneStep, steps));
    repaintTextPreview(s_, pic1_);
    canvasMouseMove(s_, pic1_, at); // the rubber band, if there is one, goes on at the new scale
    settle(before);
}

void Shell::keyDown(int code)
{
    if (ended()) return;
    const ControlId before = s_.controls.focus;
    canvasKeyDown(s_, pic1_, code);
    settle(before);
}

void Shell::keyUp(int)
{
    if (ended()) return;
    canvasKeyUp(s_);
    settle(s_.controls.focus);
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
    if (ended()) return;
    const ControlId before = s_.controls.focus;
    if (!canBeUsed(s_.controls, before)) return;
    App app{s_, pic1_, ports_, dxfScratch_};
    keyToControl(app, before, code);
    settle(before);
}

void Shell::type(std::u32string_view characters)
{
    char32_t refused = 0;
    for (const char32_t code : characters) {
        keyPress(code);
        if (isRefusalOf(s_.controls["entry"_c].text, code)) refused = code;
    }
    // Where a name is typed in entry, the next letter stands there in place of what was said.
    if (refused != 0) refusesLetter(s_.controls, refused);
}

void Shell::click(ControlId id)
{
    if (ended() || !canBeUsed(s_.controls, id)) return;
    const ControlId before = s_.controls.focus;
    const ControlKind kind = id.row().kind;
    if (kind == ControlKind::field || kind == ControlKind::display || kind == ControlKind::combo) {
        s_.controls.focus = id;
        setCaret(s_.controls[id], s_.controls[id].caret); // what was selected is so no more
    }
    App app{s_, pic1_, ports_, dxfScratch_};
    if (const Action action = actionOf(id)) action(app, id);
    settle(before);
}

void Shell::clickRow(ControlId list, int row)
{
    moveToRow(list, row);
    if (ended() || !canBeUsed(s_.controls, list) || !hasRow(s_.controls[list], row)) return;
    const ControlId before = s_.controls.focus;
    App app{s_, pic1_, ports_, dxfScratch_};
    rowChosen(app, list, row);
    settle(before);
}

void Shell::moveToRow(ControlId list, int row)
{
    if (ended() || !canBeUsed(s_.controls, list) || !hasRow(s_.controls[list], row)) return;
    const ControlId before = s_.controls.focus;
    s_.controls[list].row = row;
    s_.controls.focus = list;
    App app{s_, pic1_, ports_, dxfScratch_};
    if (list == "frmfile.File1"_c) chooseFile(app, row);
    settle(before);
}

void Shell::doubleClickRow(ControlId list, int row)
{
    const bool takesSecondClick = list == "frmfile.File1"_c || (list == "List1"_c && listsFonts(s_));
    if (!takesSecondClick) return;
    clickRow(list, row);
    keyPress(enterKey);
}

void Shell::giveFocus(ControlId id)
{
    if (ended() || !canBeUsed(s_.controls, id)) return;
    const ControlId before = s_.controls.focus;
    s_.controls.focus = id;
    settle(before);
}

void Shell::closeForm(ControlId form)
{
    if (ended()) return;
    const ControlId before = s_.controls.focus;
    App app{s_, pic1_, ports_, dxfScratch_};
    if (form == "frmMain"_c) {
        leaveProgram(app);
    } else if (form == "frmfile"_c) {
        closeFileDialog(app);
    } else if (form == "frmfilter"_c) {
        cancelFilter(app, form);
    } else if (form == "frmprintset"_c) {
        cancelPrint(app, form);
    } else {
        s_.controls[form].visible = false;
        if (formOf(before) == form) s_.controls.focus = "pic1"_c;
    }
    settle(before);
}

void Shell::settle(ControlId focusBefore)
{
    // A form that went from the screen takes no keys with it.
    if (!s_.ended && !isSeen(s_.controls, s_.controls.focus)) s_.controls.focus = "pic1"_c;
    if (s_.controls.focus != focusBefore) leave(s_, focusBefore);
    showArmedSnap(s_);
}

} // namespace mirtane
