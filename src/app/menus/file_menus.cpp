#include "app/menus/file_menus.h"

#include "app/drawing/endings.h"
#include "app/files/file_dialog.h"
#include "app/files/file_names.h"
#include "app/files/unsaved_work.h"
#include "app/start_stop.h"
#include "dxf/dxf_names.h"
#include "tables/list_modes.h"

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
    {ids::openDrawing, {"Open Drawing", "Open", "*.mtd"}, noNameYet, false, follow::openDrawing},
    {ids::saveDrawing, {"Save File", "Save", "*.mtd"}, nameOfDrawing},
    {ids::saveSelected, {"Save Selected", "Save", "*.mtd"}, nameOfSelection, true},
    {ids::openDxf, {"Open DXF", "Open", "*.dxf"}, noNameYet, false, follow::openDxf},
    {ids::saveDxf, {"Save DXF", "Save", "*.dxf"}, nameOfDxf, true},
    {ids::openAssociates, {"Open Associate", "Open", "*.mta"}, noNameYet},
    {ids::openHatches, {"Open Hatch", "Open", "*.mth"}, noNameYet},
    {ids::openMultipleLines, {"Open Multiple Lines", "Open", "*.mtm"}, noNameYet},
};

constexpr FileFlow namedFlows[] = {
    {list_mode::loadLayer, "Open", "*.mtd"},         {list_mode::saveLayer, "Save", "*.mtd"},
    {list_mode::saveAssociate, "Save", "*.mta"},     {list_mode::saveHatch, "Save", "*.mth"},
    {list_mode::saveMultipleLines, "Save", "*.mtm"},
};

// What is about to be opened takes the associates along.
void remarkWhatIsForgotten(Session& s)
{
    s.controls[ids::fileRemark].caption = sentenceOfNoFile(lostWith(Goes::drawing, inNoFile(s)));
}

} // namespace

void openFileFlow(App& app, ControlId entry)
{
    const auto* const row = std::ranges::find(flowRows, entry, &FlowRow::entry);
    if (row == std::end(flowRows)) return;
    if (row->needsSelection && !hasSelection(app.s)) {
        setText(app.s.controls[ids::entry], "Nothing Selected!");
        return;
    }
    if (row->afterUnsavedWork != follow::nothing && hasUnsavedWork(app.s)) {
        return offerToSave(app, row->afterUnsavedWork);
    }
    openFileDialog(app, row->flow, row->name(app.s));
    if (row->afterUnsavedWork != follow::nothing) remarkWhatIsForgotten(app.s);
}

void openNamedFlow(App& app, std::string_view caption, const std::string& name)
{
    const auto* const flow = std::ranges::find(namedFlows, caption, &FileFlow::caption);
    if (flow == std::end(namedFlows)) return;
    openFileDialog(app, *flow, asFileName(name));
    if (caption == list_mode::loadLayer) remarkWhatIsForgotten(app.s);
}

void closeDrawing(App& app, ControlId)
{
    if (hasUnsavedWork(app.s)) return offerToSave(app, follow::clear);
    clearDrawing(app);
}

void leaveProgram(App& app)
{
    endWhatIsBegun(app.s, app.pic1);
    app.s.saveFollowUp = follow::exit;
    if (hasUnsavedWork(app.s)) {
        offerToSave(app, follow::exit);
    } else {
        endProgram(app);
    }
}

void exitProgram(App& app, ControlId)
{
    leaveProgram(app);
}

} // namespace mirtane
