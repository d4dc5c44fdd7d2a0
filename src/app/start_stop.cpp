#include "app/start_stop.h"

#include "app/actions.h"
#include "app/attribute_controls.h"
#include "app/endings.h"
#include "app/file_dialog.h"
#include "app/settings.h"
#include "commands/prompt.h"
#include "render/redraw.h"

namespace mirtane {
namespace {

// The program's folder stays the working folder, and so a row of the drives, even where files begin
// elsewhere.
void setFolders(Session& s, const std::string& programFolder, const std::string& ownFolder)
{
    s.programFolder = programFolder;
    for (FolderPair* pair : {&s.drawings, &s.associates, &s.hatches, &s.multipleLines, &s.dxf}) {
        pair->working = programFolder;
        pair->last = ownFolder.empty() ? programFolder : ownFolder;
    }
}

void newLayers(Session& s)
{
    s.workLayer = 1;
    resetLayers(s.layerTable);
    s.controls["Label3"_c].caption = "Set Working Layer";
    showLayers(s);
}

void greyWhatHasNoRoutine(Controls& controls)
{
    for (std::size_t i = 0; i < controlCount; ++i) {
        const ControlId id{static_cast<std::uint16_t>(i)}; // the table has a few hundred rows
        if (isClickable(id)) controls[id].enabled = actionOf(id) != nullptr;
    }
}

constexpr ControlId laterForms[] = {"frmfile"_c, "frmfilter"_c, "frmedit"_c, "frmprintset"_c, "frmhelp"_c};

} // namespace

void startProgram(App& app)
{
    Session& s = app.s;
    setFolders(s, app.ports.programFolder, app.ports.ownFolder);
    newLayers(s);
    greyWhatHasNoRoutine(s.controls);
    if (const Printer* printer = app.ports.printer) {
        s.pageWidth = printer->pageWidth();
        s.pageHeight = printer->pageHeight();
    }
    readViewLimits(s, app.pic1);
    computePixelMapping(s, app.pic1);
    app.pic1.clear();
    app.pic1.snapshot();
    setRubberBandPen(app.pic1);
    setPrompt(s, app.pic1);
    readSettings(s, app.ports.settings);
    app.pic1.setFontName(s.textFont);
    showCheckMarks(s);
    showLineSettings(s);
}

bool hasUnsavedWork(const Session& s)
{
    return s.savedCount < s.store.entCount;
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

void endProgram(App& app)
{
    writeSettings(app.s, app.ports.settings);
    for (const ControlId form : laterForms) app.s.controls[form].visible = false;
    app.s.ended = true;
}

void clearDrawing(App& app)
{
    Session& s = app.s;
    endWhatIsBegun(s, app.pic1);
    app.pic1.clear();
    app.pic1.clearSnapshot();
    s.store.entCount = 1;
    s.savedCount = 1;
    clearRecords(s.log);
    forgetOwners(s.store);
    s.associateName = noName;
    s.hatchName = noName;
    s.multipleLinesName = noName;
    newLayers(s);
    s.drawingName = "untitled.mtd";
    s.drawingFile.clear();
    setPrompt(s, app.pic1);
}

} // namespace mirtane
