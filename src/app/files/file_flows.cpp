#include "app/files/file_flows.h"

#include "app/drawing/endings.h"
#include "app/files/drawing_of_file.h"
#include "app/files/dxf_flows.h"
#include "app/files/library_flows.h"
#include "app/files/open_drawing.h"
#include "app/files/own_file.h"
#include "app/files/unsaved_work.h"
#include "app/menus/attribute_controls.h"
#include "commands/prompt.h"
#include "dxf/dxf_writer.h"
#include "files/drawing_file.h"
#include "model/insertion.h"
#include "render/redraw.h"
#include "tables/list_modes.h"

#include <algorithm>

namespace mirtane {
namespace {

// A name is a name in the folder shown: a slash in it would lead elsewhere.
bool isPlainName(const std::string& name)
{
    return name.find_first_of(std::string_view("/\0", 2)) == std::string::npos;
}

// The drawing is from now on that of the file.
void takeFile(App& app, const FileChoice& choice, const std::optional<FileStamp>& stamp)
{
    FileState& s = app.s;
    s.drawingName = choice.name;
    s.drawingFile = pathOf(choice);
    s.drawingFolder = choice.folder;
    watchOwnFile(app, stamp);
    takeAsSaved(app);
}

bool saveDrawingFile(App& app, const FileChoice& choice, SaveWhat what)
{
    Session& s = app.s;
    const bool isPartOfItself = what != SaveWhat::drawing && pathOf(choice) == s.drawingFile;
    if (what == SaveWhat::drawing) keepBeforeSave(app); // its file may not be whole for a moment
    if (isPartOfItself) keepBeforePartReplacesIt(app);
    if (!app.ports.disk.writeWhole(pathOf(choice), drawingBytes(s, what))) return false;
    endWhatIsBegun(s, app.pic1);
    const bool marksGo = what != SaveWhat::layer && countWithStat(s.store, Stat::sel) > 0;
    afterSave(s, what);
    if (what == SaveWhat::drawing) takeFile(app, choice, app.ports.disk.stamp(pathOf(choice)));
    if (isPartOfItself) tellThatPartIsInOwnFile(app);
    if (marksGo) redrawAll(s, app.pic1);
    return true;
}

SaveWhat whatIsSaved(const FileChoice& choice)
{
    if (choice.caption == "Save Selected") return SaveWhat::selected;
    if (choice.caption == list_mode::saveLayer) return SaveWhat::layer;
    return SaveWhat::drawing;
}

void mergeDrawing(App& app, const FileChoice& choice, const Bytes& file)
{
    const Untaken untaken = mergeLayer(app.s, file, app.s.chosenLayer);
    if (!isWhole(untaken)) tellUntaken(app.s.notices, choice.name, untaken, {});
    showLayers(app.s);
    redrawAll(app.s, app.pic1);
    updateGauge(app.s);
}

void replaceByFile(App& app, const FileChoice& choice, const Bytes& file,
                   const std::optional<FileStamp>& stamp)
{
    leaveWorkNobodyGaveUp(app, Goes::drawing);
    forgetOwners(app.s.store);
    const Untaken untaken = openDrawing(app, file);
    if (!isWhole(untaken)) return takePartOfFile(app, choice.folder, choice.name, untaken);
    takeFile(app, choice, stamp);
}

bool openDrawingFile(App& app, const FileChoice& choice)
{
    const std::optional<FileStamp> stamp =
        app.ports.disk.stamp(pathOf(choice)); // what comes later is a change
    const std::optional<Bytes> file = app.ports.disk.read(pathOf(choice));
    if (!file) return false;
    endWhatIsBegun(app.s, app.pic1);
    if (choice.caption == list_mode::loadLayer) {
        forgetOwners(app.s.store);
        mergeDrawing(app, choice, *file);
    } else {
        replaceByFile(app, choice, *file, stamp);
    }
    setPrompt(app.s, app.pic1);
    return true;
}

bool saveDxfFile(App& app, const FileChoice& choice)
{
    Session& s = app.s;
    const DxfFile file = dxfFile(s.store, app.dxfScratch);
    if (!app.ports.disk.writeWhole(pathOf(choice), file.bytes)) return false;
    endWhatIsBegun(s, app.pic1);
    s.dxfName = choice.name;
    if (!file.whole) return true; // what can't be written ends the export there, and the selection stays
    changeStat(s.store, Stat::sel, Stat::on);
    redrawAll(s, app.pic1);
    return true;
}

bool openDxfFile(App& app, const FileChoice& choice)
{
    const std::optional<Bytes> file = app.ports.disk.read(pathOf(choice));
    if (!file) return false;
    openDxfByTheLetter(app, *file, choice.folder, choice.name);
    return true;
}

struct PatternRoutines {
    std::string_view pattern;
    bool (*save)(App& app, const FileChoice& choice);
    bool (*open)(App& app, const FileChoice& choice);
    std::string_view notSaved;
};

bool saveDrawingPattern(App& app, const FileChoice& choice)
{
    return saveDrawingFile(app, choice, whatIsSaved(choice));
}

constexpr PatternRoutines patternRoutines[] = {
    {"*.mtd", saveDrawingPattern, openDrawingFile, "Drawing not saved!"},
    {"*.dxf", saveDxfFile, openDxfFile, "File not saved!"},
    {"*.mta", saveLibraryFile, openLibraryFile, "File not saved!"},
    {"*.mth", saveLibraryFile, openLibraryFile, "File not saved!"},
    {"*.mtm", saveLibraryFile, openLibraryFile, "File not saved!"},
};

const PatternRoutines* routinesOf(std::string_view pattern)
{
    const auto* const found = std::ranges::find(patternRoutines, pattern, &PatternRoutines::pattern);
    return found == std::end(patternRoutines) ? nullptr : found;
}

} // namespace

std::string pathOf(const FileChoice& choice)
{
    return choice.folder + "/" + choice.name;
}

bool savesWholeDrawing(const FileChoice& choice)
{
    return choice.pattern == "*.mtd" && whatIsSaved(choice) == SaveWhat::drawing;
}

void tellNotSaved(App& app, std::string_view pattern)
{
    if (const PatternRoutines* const row = routinesOf(pattern))
        setText(app.s.controls[ids::entry], std::string(row->notSaved));
}

bool saveFile(App& app, const FileChoice& choice)
{
    const PatternRoutines* const row = routinesOf(choice.pattern);
    if (row == nullptr) return false;
    const bool saved = isPlainName(choice.name) && row->save(app, choice);
    Control& entry = app.s.controls[ids::entry];
    if (!saved) tellNotSaved(app, choice.pattern);
    if (saved && entry.text == row->notSaved) setText(entry, "");
    return saved;
}

bool openFile(App& app, const FileChoice& choice)
{
    const PatternRoutines* const row = routinesOf(choice.pattern);
    return row != nullptr && isPlainName(choice.name) && row->open(app, choice);
}

} // namespace mirtane
