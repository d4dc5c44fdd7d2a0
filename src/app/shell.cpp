// app/shell.cpp: events are routed by the control they belong to; what they do stands in the routines called.

#include "app/shell.h"

#include "app/actions.h"
#include "app/drawing/canvas_input.h"
#include "app/drawing/click_point.h"
#include "app/files/file_dialog.h"
#include "app/files/file_lists.h"
#include "app/files/own_file.h"
#include "app/files/unsaved_work.h"
#include "app/marks.h"
#include "app/routing.h"
#include "app/start_stop.h"
#include "app/typing/keys.h"
#include "app/typing/reading.h"
#include "commands/kept_letters.h"
#include "commands/live_text.h"
#include "geometry/fault.h"
#include "render/redraw.h"
#include "render/view.h"
#include "snap/snap.h"

#include <algorithm>
#include <cmath>
#include <tuple>

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

// The form of the edits stands for the drawing: there is nothing on it to type into.
bool drawingTakesKeys(const Session& s)
{
    const ControlId focus = s.controls.focus;
    return (focus == ids::drawing || formOf(focus) == ids::editsForm) && !isTypingText(s);
}

// The pointer stays where it is on the screen, whatever moves beneath it.
void movePointerWithView(Aiming& s, const Scale& before, const Scale& after)
{
    const auto edges = [](const Scale& scale) {
        return std::tie(scale.left, scale.top, scale.width, scale.height);
    };
    if (!s.pointer || edges(before) == edges(after)) return;
    Point at = *s.pointer;
    keep(at.x, after.left + quotient(at.x - before.left, before.width) * after.width);
    keep(at.y, after.top + quotient(at.y - before.top, before.height) * after.height);
    s.pointer = at;
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
    const Scale shown = pic1_.getScale();
    App app{s_, pic1_, ports_, dxfScratch_};
    pointerCame_ = false;
    act(app);
    if (!pointerCame_) movePointerWithView(s_, shown, pic1_.getScale());
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
    eventOf(ids::drawing, [&](App&) {
        s_.refusedKey = 0;
        takePointer(at);
        canvasMouseDown(s_, pic1_, button, at);
    });
}

void Shell::takePointer(Point at)
{
    s_.pointer = at;
    s_.pointerIsOver = true;
    pointerCame_ = true;
}

void Shell::follow(Point at)
{
    takePointer(at);
    canvasMouseMove(s_, pic1_, at);
}

void Shell::mouseMove(Point at)
{
    eventOf(ids::drawing, [&](App&) { follow(at); });
}

void Shell::pointerLeft()
{
    event([&](App&) { s_.pointerIsOver = false; });
}

void Shell::wheel(double steps, Point at)
{
    constexpr double factorOfOneStep = 1.25;
    zoom(std::pow(factorOfOneStep, steps), at);
}

void Shell::zoom(double factor, Point at)
{
    eventOf(ids::drawing, [&](App&) {
        zoomAbout(s_, pic1_, at, factor);
        repaintTextPreview(s_, pic1_);
        follow(at); // the rubber band, if there is one, goes on at the new scale
    });
}

void Shell::drag(Point from, Point to)
{
    eventOf(ids::drawing, [&](App&) {
        panBy(s_, pic1_, from.x - to.x, from.y - to.y);
        repaintTextPreview(s_, pic1_);
        follow(from); // which lies under the pointer now
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

void Shell::keysHeld(bool shift, bool ctrl)
{
    canvasKeysHeld(s_, shift, ctrl);
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
    eventOf(focused, [&](App& app) {
        const bool startsAnew = code == enterKey;
        if (startsAnew) s_.refusedKey = 0;
        const bool ofNumber = takesNumber(s_);
        const Control before = s_.controls[focused];
        keyToControl(app, focused, code);
        const bool dropped = s_.controls.focus == focused && s_.controls[focused] == before;
        if (ofNumber && dropped && code >= U' ') s_.refusedKey = code;
        if (code == backspaceKey && s_.controls[focused].text.empty()) s_.refusedKey = 0;
    });
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

void Shell::choose(ControlId entry)
{
    event([&](App&) { spendHeldKeys(s_); });
    click(entry);
}

void Shell::shortcut(const Shortcut& keys)
{
    event([&](App&) { spendHeldKeys(s_); });
    if (keys.onDrawing && !drawingTakesKeys(s_)) return;
    if (keys.deed == Deed::press) return click(keys.control);
    eventOf(ids::drawing, [&](App& app) { doDeed(app, keys.deed); });
}

void Shell::dropFile(const std::string& path, std::ptrdiff_t others)
{
    eventOf(ids::drawing, [&](App& app) { openDroppedFile(app, path, others); });
}

void Shell::click(ControlId id)
{
    eventOf(id, [&](App& app) {
        s_.refusedKey = 0;
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
    eventOf(list, [&](App& app) {
        s_.refusedKey = 0;
        rowChosen(app, list, row);
    });
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

bool Shell::previewFile(Canvas& picture)
{
    const std::string& path = s_.controls[ids::filePicture].text;
    if (path.empty()) return false;
    const auto stamp = ports_.disk.stamp(path);
    if (!stamp || !FilePreview::isSmall(stamp->size)) return false;
    const auto file = ports_.disk.read(path);
    return file && preview_.draw(path, *file, picture);
}

bool Shell::takesInput(ControlId id) const
{
    return canBeUsed(s_.controls, id);
}

bool Shell::rest()
{
    bool again = false;
    event([&again](App& app) {
        keepUnsavedWork(app);
        reviewOthers(app);
        again = isKeepingUnsure(app);
    });
    return again;
}

void Shell::settle(ControlId focusBefore)
{
    showNotice(s_.controls, s_.notices);
    // A form that went from the screen takes no keys with it.
    if (!s_.ended && !isSeen(s_.controls, s_.controls.focus)) s_.controls.focus = ids::drawing;
    if (s_.controls.focus != focusBefore) leave(s_, focusBefore);
    showArmedSnap(s_);
    showMarks(s_);
    showPointer(s_);
    if (s_.controls.focus != focusBefore) s_.refusedKey = 0;
    showReading(s_);
    const bool aims = s_.pointerIsOver && s_.pointer && !s_.ended && takesInput(ids::drawing);
    s_.snapMark = aims ? aimOfClick(s_, pic1_, *s_.pointer) : std::nullopt;
}

} // namespace mirtane
