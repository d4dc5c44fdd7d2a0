#include "app/file_menus.h"

#include "app/endings.h"
#include "app/file_dialog.h"
#include "app/start_stop.h"
#include "dxf/dxf_names.h"

#include <algorithm>

namespace mirtane {
namespace {

std::string noNameYet(Session&)
{
    return {};
}

std::string nameOfDrawing(Session& s)
{
    return s.drawingName;
}

// An export is named after the drawing.
std::string nameOfDxf(Session& s)
{
    s.dxfName = dxfNameOf(s.drawingName);
    return s.dxfName;
}

std::string nameOfSelection(Session&)
{
    return "selected.mtd";
}

struct FlowRow {
    ControlId entry;
    FileFlow flow;
    std::string (*name)(Session& s);
    bool needsSelection = false;
    std::int16_t afterUnsavedWork =
        follow::nothing; // what throws the drawing away says what is to follow a save
};

constexpr FlowRow flowRows[] = {
    {"fil4"_c, {"Open Drawing", "Open", "*.mtd"}, noNameYet, false, follow::openDrawing},
    {"fil7"_c, {"Save File", "Save", "*.mtd"}, nameOfDrawing},
    {"fil9"_c, {"Save Selected", "Save", "*.mtd"}, nameOfSelection, true},
    {"dd2"_c, {"Open DXF", "Open", "*.dxf"}, noNameYet, false, follow::openDxf},
    {"dd4"_c, {"Save DXF", "Save", "*.dxf"}, nameOfDxf, true},
    {"ass10"_c, {"Open Associate", "Open", "*.mta"}, noNameYet},
    {"ht8"_c, {"Open Hatch", "Open", "*.mth"}, noNameYet},
    {"ml6"_c, {"Open Multiple Lines", "Open", "*.mtm"}, noNameYet},
};

constexpr FileFlow namedFlows[] = {
    {"Load Layer", "Open", "*.mtd"},          {"Save Layer", "Save", "*.mtd"},
    {"Save Associate", "Save", "*.mta"},      {"Save Hatch", "Save", "*.mth"},
    {"Save Multiple Lines", "Save", "*.mtm"},
};

} // namespace

void openFileFlow(App& app, ControlId entry)
{
    const auto* const row = std::ranges::find(flowRows, entry, &FlowRow::entry);
    if (row == std::end(flowRows)) return;
    if (row->needsSelection && !hasSelection(app.s)) {
        setText(app.s.controls["entry"_c], "Nothing Selected!");
        return;
    }
    if (row->afterUnsavedWork != follow::nothing && hasUnsavedWork(app.s)) {
        return offerToSave(app, row->afterUnsavedWork);
    }
    openFileDialog(app, row->flow, row->name(app.s));
}

void openNamedFlow(App& app, std::string_view caption, const std::string& name)
{
    const auto* const flow = std::ranges::find(namedFlows, caption, &FileFlow::caption);
    if (flow != std::end(namedFlows)) openFileDialog(app, *flow, name);
}

void closeDrawing(App& app, ControlId)
{
    if (hasUnsavedWork(app.s)) return offerToSave(app, follow::clear);
    clearDrawing(app);
}

void exitProgram(App& app, ControlId)
{
    leaveProgram(app);
}

} // namespace mirtane
