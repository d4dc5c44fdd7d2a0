#include "app/marks.h"

#include "app/drawing/endings.h"
#include "app/files/library_rows.h"
#include "app/typing/reading.h"
#include "render/view.h"
#include "snap/snapped_point.h"
#include "tables/functions.h"
#include "tables/list_modes.h"
#include "tables/pens.h"
#include "text/numbers.h"

#include <algorithm>

namespace mirtane {
namespace {

void markFunction(Session& s)
{
    const std::string_view running = runningFunction(s);
    for (const FunctionRow& row : vocabulary()) {
        if (row.starter.row().kind == ControlKind::button)
            s.controls[row.starter].checked = row.name == running;
    }
    s.controls[ids::zoomWindow].checked = zoomWindowIsOn(s.controls);
    s.controls[ids::blankToggle].checked = drawsConstructionLine(s);
    s.controls[ids::orthoToggle].checked = orthoIsOn(s.controls);
}

void markPen(Session& s)
{
    for (const Pen& pen : pens) s.controls[pen.entry].checked = pen.color == s.curColor;
}

int rowOf(const Control& list, std::string_view text)
{
    const auto found = std::ranges::find(list.rows, text);
    if (found == list.rows.end() || text.empty()) return -1;
    return static_cast<int>(found - list.rows.begin()); // a list has at most some thousand rows
}

// The name in a list of those that a function draws with.
std::string_view nameInUse(Session& s, const LibraryRow& library)
{
    return runningFunction(s) == library.function ? currentName(s, library.library) : std::string_view();
}

std::string_view editUnderWay(const Session& s)
{
    const FunctionRow& row = functionRow(runningFunction(s));
    return row.starts == Starts::fromEdits ? row.name : std::string_view();
}

// Rows that do their work at a click stand for nothing afterwards.
constexpr std::string_view doneAtOnce[] = {
    list_mode::hideDisplayLayer, list_mode::unnameLayer,       list_mode::loadLayer, list_mode::saveLayer,
    list_mode::addLayer,         list_mode::saveMultipleLines, list_mode::saveHatch, list_mode::saveAssociate,
};

void markRow(Session& s)
{
    if (s.controls.focus == ids::selectionList) return; // there the keys move it
    Control& list = s.controls[ids::selectionList];
    const std::string_view mode = s.controls[ids::listMode].caption;
    if (const LibraryRow* library = rowWith(&LibraryRow::select, mode)) {
        list.row = rowOf(list, nameInUse(s, *library));
    } else if (mode == list_mode::editFunctions) {
        list.row = rowOf(list, editUnderWay(s));
    } else if (mode == list_mode::setWorkingLayer) {
        list.row = s.workLayer < std::ssize(list.rows) ? s.workLayer : -1;
    } else if (mode == list_mode::selectFont) {
        list.row = rowOf(list, s.textFont);
    } else if (std::ranges::find(doneAtOnce, mode) != std::end(doneAtOnce)) {
        list.row = -1;
    }
}

void showCount(Session& s)
{
    const std::int32_t count = textIsInEdit(s) ? 0 : countWithStat(s.store, Stat::sel);
    std::string& caption = s.controls[ids::countLine].caption;
    caption.clear();
    if (count > 0) caption = withThousands(count) + (count == 1 ? " object selected" : " objects selected");
}

} // namespace

void showMarks(Session& s)
{
    markFunction(s);
    markPen(s);
    markRow(s);
    showCount(s);
}

void showPointer(Session& s)
{
    if (!s.pointer) return;
    const std::string leg = s.band ? legText(s, *s.band) : "";
    const std::string x = signedLengthText(s, s.pointer->x);
    const std::string y = signedLengthText(s, s.pointer->y);
    const std::string at = x.empty() || y.empty() ? "" : x + "  " + y;
    s.controls[ids::pointerLine].caption = leg.empty() || at.empty() ? leg + at : leg + "    " + at;
}

void showReading(Session& s)
{
    s.controls[ids::readingLine].caption = readingOf(s);
}

} // namespace mirtane
