#include "app/typing/typed_entry.h"

#include "app/drawing/canvas_input.h"
#include "app/drawing/click_point.h"
#include "app/drawing/construction_line.h"
#include "app/drawing/dispatch.h"
#include "app/menus/library_menus.h"
#include "app/typing/entry_way.h"
#include "app/typing/keys.h"
#include "commands/kept_letters.h"
#include "commands/prompt.h"
#include "edit/concentric.h"
#include "geometry/fault.h"
#include "geometry/ortho.h"
#include "geometry/way.h"
#include "model/room.h"
#include "tables/functions.h"
#include "text/distance_grammar.h"
#include "text/measure.h"
#include "text/numbers.h"
#include "text/utf8.h"

namespace mirtane {
namespace {

std::string takeText(Session& s)
{
    Control& entry = s.controls[ids::entry];
    std::string text = entry.text;
    setText(entry, "");
    return text;
}

void backToDrawing(Session& s, Canvas& pic1)
{
    setText(s.controls[ids::entry], "");
    setPrompt(s, pic1);
    s.controls.focus = ids::drawing;
}

void sidesKey(Session& s, Canvas& pic1, char32_t code)
{
    Control& entry = s.controls[ids::entry];
    if (isDigit(code) || code == backspaceKey) return passKey(entry, code);
    if (code != enterKey) return;
    const double sides = readNumber(entry.text);
    if (isSides(sides)) keep(s.polygonSides, sides);
    backToDrawing(s, pic1);
}

void hatchScaleKey(Session& s, Canvas& pic1, char32_t code)
{
    Control& entry = s.controls[ids::entry];
    if (code == U',') code = U'.';
    if (isDigit(code) || code == U'.' || code == backspaceKey) return passKey(entry, code);
    if (code != enterKey) return;
    const double scale = readNumber(entry.text);
    if (isHatchScale(scale)) keep(s.hatchScale, scale);
    s.stepNo = 0;
    backToDrawing(s, pic1);
}

void nameKey(Session& s, Canvas& pic1, char32_t code)
{
    if (code == enterKey) return libraryNameEntered(s, pic1);
    if (refusesLetter(s.controls, code)) return;
    passKey(s.controls[ids::entry], code);
}

// From pickFirst to pickLast. Where the pointer has not moved on from the end of a leg, the way of that leg.
Way wayAhead(const ScratchPoints& s)
{
    return s.pickFirst == s.pickLast ? s.lastWay : wayBetween(s.pickFirst, s.pickLast);
}

// How far a dimension's line stands off: no leg of a chain, and nowhere to be laid but where the pointer
// shows.
bool isOffset(const FunctionRow& row)
{
    return row.orthoOnClick == Ortho::onlyAtStep3;
}

// pickLast at distance d from pickFirst.
void layAlong(ScratchPoints& s, Way way, float d)
{
    if (!way.isAny()) return;
    keep(s.pickLast.x, s.pickFirst.x + d * way.x);
    keep(s.pickLast.y, s.pickFirst.y + d * way.y);
}

void layPoint(Session& s, Canvas& pic1, const FunctionRow& row, float d)
{
    constexpr float leastInEmptyDrawing = 0.012F; // a thousandth of an inch
    if (d < leastInEmptyDrawing && s.store.entCount == 1) return backToDrawing(s, pic1);
    const bool ortho = orthoIsOn(s.controls);
    Way way = wayAhead(s);
    // To the right, as a distance runs that is typed in a fresh program.
    if (!way.isAny() && !isOffset(row)) way = axisOf(1, s.orthoAngle);
    if (ortho) {
        confinePickLast(s, d);
    } else {
        layAlong(s, way, d);
    }
    countStep(s);
    s.band.reset();
    if (row.typedDistance == TypedDistance::laysPoint) callStep(s, pic1);
    // The ends of legs are rounded: taken from them, each way would lean a little more than the one before,
    // and a leg of no length has none.
    const bool keepsWay = !isOffset(row) && (!ortho || !s.lastWay.isAny());
    if (keepsWay) s.lastWay = d < 0 ? -way : way;
    s.controls.focus = ids::drawing;
    const DispatchRow* const dispatched = dispatchOf(s.curFunc);
    const bool showsBand = dispatched != nullptr && dispatched->bandAtOnce && s.roomMissing == 0;
    if (s.pointer && showsBand) showBandAt(s, pic1, *s.pointer);
}

void takeSize(Session& s, Canvas& pic1, float& size, float typed)
{
    const bool taken = typed > 0;
    if (taken) size = typed;
    returnToBase(s);
    backToDrawing(s, pic1);
    if (!taken) setText(s.controls[ids::entry], "Size not changed: it must be above 0");
}

void actOnDistance(Session& s, Canvas& pic1, const FunctionRow& row)
{
    const std::string text = takeText(s);
    const float d = readDistance(text, s.numStyle == "br");
    const float size = readSize(text, numStyleOf(s.numStyle));
    switch (row.typedDistance) {
    case TypedDistance::laysBlankLeg:
        constructionDistance(s, pic1, d);
        s.controls.focus = ids::drawing;
        return;
    case TypedDistance::setsFilletRadius:
        s.filletRadius = d;
        backToDrawing(s, pic1);
        return;
    case TypedDistance::setsTextSize:
        takeSize(s, pic1, s.textSize, size);
        return;
    case TypedDistance::setsArrowSize:
        takeSize(s, pic1, s.arrowSize, size);
        return;
    case TypedDistance::offsetsCopy:
        s.offsetDistance = d;
        editConcentric(s, pic1);
        s.controls.focus = ids::drawing;
        return;
    case TypedDistance::laysPoint:
    case TypedDistance::discarded:
        layPoint(s, pic1, row, d);
        return;
    }
}

void distanceKey(Session& s, Canvas& pic1, const FunctionRow& row, char32_t code)
{
    Control& entry = s.controls[ids::entry];
    if (code == U',') code = U'.';
    const bool passes = isDigit(code) || code == U'+' || code == U'-' || code == U'.' || code == U'\'';
    if (passes || code == backspaceKey) return passKey(entry, code);
    if (code != enterKey) return;
    if (entry.text.empty()) return backToDrawing(s, pic1);
    actOnDistance(s, pic1, row);
}

void editNumberKey(Session& s, Canvas& pic1, const EditNumber& row, char32_t code)
{
    constexpr char32_t firstPassing = 45; // "-", ".", "/" and the digits
    constexpr char32_t lastPassing = 57;
    Control& entry = s.controls[ids::entry];
    if ((code >= firstPassing && code <= lastPassing) || code == backspaceKey) return passKey(entry, code);
    if (code != enterKey || entry.text.empty()) return;
    row.store(s, row.held(readNumber(takeText(s))));
    for (std::int16_t i = 0; i < row.steps; ++i) countStep(s);
    if (!row.runs) return setPrompt(s, pic1);
    s.editPending = 0;
    callStep(s, pic1);
    s.controls.focus = ids::drawing;
}

void takeEntryKey(Session& s, Canvas& pic1, char32_t code)
{
    const FunctionRow* row = findFunction(s.curFunc);
    if (row == nullptr) return;
    const EntryWay way = entryWay(s, *row);
    switch (way.reads) {
    case EntryReads::nothing:
        return passKey(s.controls[ids::entry], code);
    case EntryReads::sides:
        return sidesKey(s, pic1, code);
    case EntryReads::hatchScale:
        return hatchScaleKey(s, pic1, code);
    case EntryReads::name:
        return nameKey(s, pic1, code);
    case EntryReads::editNumber:
        return editNumberKey(s, pic1, *way.number, code);
    case EntryReads::distance:
        return distanceKey(s, pic1, *row, code);
    }
}

} // namespace

void entryKeyPress(Session& s, Canvas& pic1, char32_t code)
{
    unlessRefused(s, [&] { takeEntryKey(s, pic1, code); });
}

} // namespace mirtane
