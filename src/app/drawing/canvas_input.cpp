#include "app/drawing/canvas_input.h"

#include "app/dialogs/filter_dialog.h"
#include "app/drawing/click_point.h"
#include "app/drawing/construction_line.h"
#include "app/drawing/dispatch.h"
#include "app/drawing/endings.h"
#include "app/drawing/selection.h"
#include "commands/kept_letters.h"
#include "commands/live_text.h"
#include "commands/prompt.h"
#include "geometry/angle.h"
#include "geometry/ortho.h"
#include "model/insertion.h"
#include "model/rehearsal.h"
#include "model/room.h"
#include "render/redraw.h"
#include "render/view.h"
#include "snap/snap.h"
#include "tables/functions.h"
#include "text/utf8.h"

namespace mirtane {
namespace {

constexpr int rightButton = 2;

void takeWindowCorner(Session& s, Canvas& pic1, Point at)
{
    ++s.windowStep;
    s.window2 = at;
    if (s.windowStep == 1) s.window1 = at;
    if (zoomWindowIsOn(s.controls)) {
        if (s.windowStep == 2) {
            zoomWindowFinish(s, pic1);
            repaintTextPreview(s, pic1);
            s.controls.focus = ids::drawing;
        }
    } else if (s.windowStep == 2) {
        selectByWindow(s, pic1);
    } else {
        showPromptOfStep(s, 1); // the corners of a window are no steps
    }
}

void confineMove(Session& s, const FunctionRow& row)
{
    if (!orthoIsOn(s.controls) || !applies(row.orthoOnMove, s.stepNo)) return;
    s.liveAngle = directionAngle(s.pickFirst, s.pickLast, s.liveAngle);
    s.orthoSector = sectorOfDirection(s.liveAngle, s.orthoAngle);
    confinePickLast(s, distance(s.pickFirst, s.pickLast));
}

bool isPartOfNumber(char32_t code)
{
    return isDigit(code) || code == U'.' || code == U'-' || code == U'\'';
}

// The rest is typed in entry.
void passToEntry(Session& s, char32_t code)
{
    Control& entry = s.controls[ids::entry];
    setText(entry, encodeUtf8(code));
    setCaret(entry, 2);
    s.controls.focus = ids::entry;
}

void passNumberToEntry(Session& s, char32_t code)
{
    if (code == U',') code = U'.';
    if (isPartOfNumber(code)) passToEntry(s, code);
}

// Near the table's end the gauge warns at each click. What the function has just answered, and added nothing,
// says more.
void callStepAndGauge(Session& s, Canvas& pic1)
{
    Control& entry = s.controls[ids::entry];
    const std::string before = entry.text;
    const std::int32_t count = s.store.entCount;
    callStep(s, pic1);
    const std::string after = entry.text;
    updateGauge(s);
    if (s.store.entCount == count && after != before && !after.empty()) setText(entry, after);
}

void takeClick(Session& s, Canvas& pic1, const FunctionRow& row, int button, Point at)
{
    storeClick(s, button, at);
    if (row.clicks == Clicks::pickObjects) return pickClick(s, pic1);
    if (!bringsBackNextCopy(s, row)) {
        landClick(s, pic1, row);
        s.controls[ids::snapLabel].caption.clear();
    }
    if (row.samePointCancels && s.pickLast == s.pickFirst) return cancel(s, pic1, at);
    callStepAndGauge(s, pic1);
}

void endSelection(Session& s, Canvas& pic1)
{
    changeStat(s.store, Stat::sel, Stat::on);
    redrawAll(s, pic1);
    s.editPending = 0;
}

} // namespace

void canvasMouseDown(Session& s, Canvas& pic1, int button, Point at)
{
    setText(s.controls[ids::entry], "");
    s.band.reset();
    closeChangeDialog(s); // else what it was to change would be the filter of the next window
    s.controls[ids::filterForm].visible = false;
    if (button == rightButton) return cancel(s, pic1, at);
    s.controls[ids::editsForm].visible = false;
    if (takesWindow(s)) {
        if (button == leftButton) takeWindowCorner(s, pic1, at);
        return;
    }
    const FunctionRow* row = findFunction(s.curFunc);
    if (row == nullptr || waitsForName(*row, s.stepNo)) return;
    if (row->clicks == Clicks::layConstructionLine) {
        if (button == leftButton) constructionClick(s, pic1, at);
        return;
    }
    unlessRefused(s, [&] { takeClick(s, pic1, *row, button, at); });
}

void cancel(Session& s, Canvas& pic1, Point at)
{
    if (zoomWindowIsOn(s.controls)) {
        zoomWindowCancel(s, pic1);
        return repaintTextPreview(s, pic1);
    }
    s.ptA = at;
    s.liveAngle = 0;
    s.workAngle = 0;
    s.controls[ids::snapLabel].caption.clear();
    setText(s.controls[ids::armedSnap], "");
    parkPickLast(s);
    forgetWhatIsBegun(s);
    setRubberBandPen(pic1);
    s.curFunc = s.baseFunc;
    resetPicture(pic1);
    setPrompt(s, pic1);
    if (functionRow(s.curFunc).editsText || s.editPending == 1) {
        endSelection(s, pic1);
    } else if (!isSelectionFunction(s.curFunc)) {
        s.controls.focus = ids::drawing;
    } else {
        offerEdits(s);
    }
}

void canvasMouseMove(Session& s, Canvas& pic1, Point at)
{
    s.band.reset();
    if (takesWindow(s)) {
        if (s.windowStep == 0) return;
        s.window2 = at;
        drawWindowBox(s, pic1);
        return;
    }
    const FunctionRow* row = findFunction(s.curFunc);
    if (row == nullptr) return;
    if (row->clicks == Clicks::layConstructionLine) {
        constructionMove(s, pic1, at);
    } else if (s.stepNo == 0) {
        return;
    } else {
        s.pickLast = at;
        confineMove(s, *row);
        callBand(s, pic1);
    }
    s.band = legOfBand(s);
}

void showBandAt(Session& s, Canvas& pic1, Point at)
{
    const Rehearsal rehearsal(s);
    const std::vector<MultipleLine> sets = s.multipleLinesLibrary.rows; // a band leaves its legs there
    canvasMouseMove(s, pic1, at);
    s.multipleLinesLibrary.rows = sets;
}

void canvasKeyDown(Session& s, Canvas& pic1, int code)
{
    struct Pan {
        int code;
        double widths, heights;
    };
    static constexpr Pan pans[] = {{37, -0.1, 0}, {38, 0, -0.1}, {39, 0.1, 0}, {40, 0, 0.1}};
    if (code == 16 || code == 17) s.snapKeyIsSpent = false;
    if (code == 16) s.snapKey = 1;
    if (code == 17) s.snapKey = 2;
    for (const Pan& p : pans) {
        if (p.code != code) continue;
        pan(s, pic1, p.widths, p.heights);
        repaintTextPreview(s, pic1);
    }
    s.controls.focus = ids::drawing;
}

void canvasKeyUp(CanvasInput& s)
{
    s.snapKey = 0;
}

void spendHeldKeys(CanvasInput& s)
{
    s.snapKey = 0;
    s.snapKeyIsSpent = true;
}

void canvasKeysHeld(CanvasInput& s, bool shift, bool ctrl)
{
    if (!shift && !ctrl) s.snapKeyIsSpent = false;
    if (s.snapKeyIsSpent) return;
    const bool asKnown = (s.snapKey == 1 && shift) || (s.snapKey == 2 && ctrl);
    if (asKnown) return;
    s.snapKey = ctrl ? 2 : 0;
    if (shift && !ctrl) s.snapKey = 1;
}

void canvasKeyPress(Session& s, Canvas& pic1, char32_t code)
{
    const FunctionRow* row = findFunction(s.curFunc);
    if (row == nullptr) return;
    switch (row->canvasKeys) {
    case CanvasKeys::numberOnceBegun:
        if (s.stepNo > 0) passNumberToEntry(s, code);
        return;
    case CanvasKeys::numberOnceBlankLeg:
        if (s.blankStep > 0) passNumberToEntry(s, code);
        return;
    case CanvasKeys::numberAlways:
        passNumberToEntry(s, code);
        return;
    case CanvasKeys::sidesAtStart:
        if (s.stepNo > 0) passNumberToEntry(s, code);
        if (s.stepNo == 0 && isDigit(code)) passToEntry(s, code);
        return;
    case CanvasKeys::name:
        if (code >= U' ' && !refusesLetter(s.controls, code)) passToEntry(s, code);
        return;
    case CanvasKeys::liveText:
        return liveTextKey(s, pic1, code);
    }
}

} // namespace mirtane
