#include "app/start_stop.h"

#include "app/drawing/endings.h"
#include "app/files/own_file.h"
#include "app/files/unsaved_work.h"
#include "app/menus/attribute_controls.h"
#include "app/settings.h"
#include "commands/prompt.h"
#include "render/redraw.h"
#include "tables/list_modes.h"

namespace mirtane {
namespace {

// The program's folder stays the working folder, and so a row of the drives, even where files begin
// elsewhere: the user's with the user's, the libraries where those stand that come with the program.
void setFolders(FileState& s, const Ports& ports)
{
    s.programFolder = ports.programFolder;
    for (FolderPair* pair : {&s.drawings, &s.associates, &s.hatches, &s.multipleLines, &s.dxf}) {
        pair->working = ports.programFolder;
        pair->last = ports.ownFolder.empty() ? ports.programFolder : ports.ownFolder;
    }
    if (!ports.folders.exists(ports.libraryFolder)) return;
    for (FolderPair* pair : {&s.associates, &s.hatches, &s.multipleLines}) pair->last = ports.libraryFolder;
}

void newLayers(Session& s)
{
    s.workLayer = 1;
    resetLayers(s.layerTable);
    s.controls[ids::listMode].caption = list_mode::setWorkingLayer;
    showLayers(s);
}

constexpr ControlId laterForms[] = {ids::fileForm, ids::filterForm, ids::editsForm, ids::printForm,
                                    ids::helpForm};

} // namespace

void startProgram(App& app)
{
    Session& s = app.s;
    setFolders(s, app.ports);
    newLayers(s);
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
    takeAsSaved(app);
    offerLeftWork(app);
}

void endProgram(App& app)
{
    leaveWorkNobodyGaveUp(app, Goes::program);
    takeAsSaved(app);
    writeSettings(app.s, app.ports.settings);
    for (const ControlId form : laterForms) app.s.controls[form].visible = false;
    app.s.ended = true;
}

void clearDrawing(App& app)
{
    Session& s = app.s;
    endWhatIsBegun(s, app.pic1);
    leaveWorkNobodyGaveUp(app, Goes::drawing);
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
    s.drawingFolder.clear();
    s.notices.settleOfDrawing();
    watchOwnFile(app);
    takeAsSaved(app);
    setPrompt(s, app.pic1);
}

} // namespace mirtane
