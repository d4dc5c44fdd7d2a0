#include "app/files/file_dialog.h"

#include "app/files/dxf_flows.h"
#include "app/files/file_flows.h"
#include "app/files/file_lists.h"
#include "app/files/file_names.h"
#include "app/files/library_flows.h"
#include "app/files/library_rows.h"
#include "app/files/own_file.h"
#include "app/files/unsaved_work.h"
#include "app/start_stop.h"
#include "app/typing/keys.h"
#include "commands/prompt.h"
#include "files/library_files.h"

#include <algorithm>

namespace mirtane {
namespace {

FileChoice choiceOf(const Session& s, const std::string& name)
{
    return {s.controls[ids::folderList].text, name, s.controls[ids::fileForm].caption, s.filePattern};
}

// The drawing saved to the file that it is in: what everyone means, and what needs no warning.
bool proposesOwnFile(const Session& s)
{
    const FileChoice choice = choiceOf(s, chosenName(s));
    return savesWholeDrawing(choice) && pathOf(choice) == s.drawingFile;
}

// Of the two the first that is there, the one of the last file before the other; the program's own where
// neither is.
std::string folderThatExists(App& app, const FolderPair& folders)
{
    for (const std::string& folder : {folders.last, folders.working}) {
        const bool isAbsolute = folder.starts_with('/'); // the process's own directory counts for nothing
        if (isAbsolute && app.ports.folders.exists(folder)) return folder;
    }
    return app.s.programFolder;
}

const std::string& ownFolder(const App& app)
{
    return app.ports.ownFolder.empty() ? app.s.programFolder : app.ports.ownFolder;
}

} // namespace

// Nobody writes where an installed program stands, or the libraries that came with it: the former is gone to
// only where the user chose it.
std::string folderToSaveIn(App& app, const FolderPair& folders)
{
    std::string folder = folderThatExists(app, folders);
    const bool isPrograms = folder == app.s.programFolder && folder != folders.last;
    return isPrograms || folder == app.ports.libraryFolder ? ownFolder(app) : folder;
}

namespace {

// The drawing's own file needs no warning, unless someone else was at it. Its folder may be gone with it;
// what bears its name in the one that is shown instead is another drawing, and saving puts nothing back.
void showWhatItWouldReplace(App& app)
{
    Session& s = app.s;
    std::string& button = s.controls[ids::fileConfirm].caption;
    const bool ownFile = proposesOwnFile(s);
    if (!ownFile) showWhetherItOverwrites(app);
    if (!isSaving(s.controls) || !savesWholeDrawing(choiceOf(s, chosenName(s)))) return;
    const bool isElsewhere = !ownFile && ownFileIsGone(app);
    if (isElsewhere && button == "Overwrite?") return tellThatOwnFolderIsGone(app);
    if ((ownFile || isElsewhere) && warnOfOwnFile(app)) button = "Overwrite?";
}

// The drawing itself is saved where it is from, wherever parts of it or others went meanwhile.
std::string firstFolder(App& app, const FileFlow& flow)
{
    const FileState& s = app.s;
    const FileChoice choice{{}, {}, std::string(flow.caption), std::string(flow.pattern)};
    const bool savesIt = flow.button == "Save" && savesWholeDrawing(choice);
    if (savesIt && !s.drawingFolder.empty() && app.ports.folders.exists(s.drawingFolder))
        return s.drawingFolder;
    const FolderPair& folders = s.*patternOf(s).folders;
    return flow.button == "Save" ? folderToSaveIn(app, folders) : folderThatExists(app, folders);
}

} // namespace

void openFileDialog(App& app, const FileFlow& flow, const std::string& name)
{
    Session& s = app.s;
    s.filePattern = flow.pattern;
    const PatternRow& pattern = patternOf(s);
    s.controls[ids::fileForm].caption = flow.caption;
    s.controls[ids::fileConfirm].caption = flow.button;
    s.controls[ids::fileDismiss].caption = "Close";
    s.controls[ids::fileRemark].caption.clear();
    s.controls[ids::fileFault].caption.clear();
    setText(s.controls[ids::fileType], std::string(pattern.typeLine));
    setSelectedText(s.controls[ids::fileName], name);
    s.proposedName = name;
    s.saveFollowUp = follow::nothing;
    showFolder(app, firstFolder(app, flow));
    showWhatItWouldReplace(app);
    s.controls[ids::fileForm].visible = true;
    s.controls.focus = ids::fileName;
}

namespace {

void hideDialog(Session& s)
{
    s.notices.settle(Matter::fileInTheWay);
    s.controls[ids::fileForm].visible = false;
    s.controls.focus = ids::drawing;
}

// The replaced objects go with it.
void openDrawingAgain(App& app)
{
    Session& s = app.s;
    if (!openFile(app, {s.drawingFolder, s.drawingName, "Open Drawing", "*.mtd"})) return;
    setText(s.controls[ids::entry], ""); // that there was no room
}

// What was asked for before the work was saved or given up.
void carryOutFollowUp(App& app)
{
    const std::int16_t followUp = app.s.saveFollowUp;
    if (followUp == follow::exit) return endProgram(app);
    app.s.saveFollowUp = follow::nothing;
    hideDialog(app.s);
    if (followUp == follow::nothing) return setPrompt(app.s, app.pic1);
    if (followUp == follow::openAgain) return openDrawingAgain(app);
    if (followUp == follow::openDropped) return openFileAt(app, app.s.droppedFile);
    clearDrawing(app);
    if (followUp == follow::openDrawing) openFileDialog(app, {"Open Drawing", "Open", "*.mtd"}, "");
    if (followUp == follow::openDxf) openFileDialog(app, {"Open DXF", "Open", "*.dxf"}, "");
    if (followUp == follow::restoreWork) restoreLeftWork(app);
}

} // namespace

void offerToSave(App& app, std::int16_t followUp)
{
    openFileDialog(app, {"Save Changes", "Save", "*.mtd"}, app.s.drawingName);
    app.s.saveFollowUp = followUp;
    const Goes goes = followUp == follow::exit ? Goes::program : Goes::drawing;
    app.s.controls[ids::fileDismiss].caption = goes == Goes::program ? "End" : "Close";
    app.s.controls[ids::fileRemark].caption = whatIsUnsaved(app.s, goes, app.ports.clock);
}

void saveAndOpenAgain(App& app)
{
    openFileDialog(app, {"Save File", "Save", "*.mtd"}, app.s.drawingName);
    app.s.saveFollowUp = follow::openAgain;
    const bool nothingInTheWay = app.s.controls[ids::fileConfirm].caption == "Save";
    if (proposesOwnFile(app.s) && nothingInTheWay) confirmFileDialog(app, ids::fileConfirm);
}

namespace {

// Another drawing of the same name. What the button says may be taken for the own file, which is not as it
// was.
bool passesForOwnFile(App& app, const FileChoice& choice)
{
    return savesWholeDrawing(choice) && choice.name == app.s.drawingName && !ownFileIsAsSaved(app);
}

// What the button can't have said: someone else may have saved a file there while the dialog stood.
bool isToBeToldFirst(App& app, const FileChoice& choice)
{
    Session& s = app.s;
    if (savesWholeDrawing(choice) && pathOf(choice) == s.drawingFile)
        return !ownFileIsAsSeen(app) && warnOfOwnFile(app);
    if (s.notices.tells(Matter::fileInTheWay)) return false;
    if (passesForOwnFile(app, choice))
        return warnOfFileInTheWay(app, pathOf(choice), "Another " + choice.name, false);
    const bool saidByButton = s.controls[ids::fileConfirm].caption == "Overwrite?";
    return warnOfFileInTheWay(app, pathOf(choice), choice.name, saidByButton);
}

std::string whyNotOpened(App& app, const FileChoice& choice)
{
    if (!app.ports.disk.isTaken(pathOf(choice))) return "There is no file " + choice.name;
    const LibraryRow* const row = rowWith(&LibraryRow::pattern, choice.pattern);
    if (row != nullptr && hasName(app.s, row->library, baseName(choice.name))) return "Name already exists!";
    return choice.name + " can't be read";
}

void tellFault(App& app, std::string what)
{
    app.s.controls[ids::fileFault].caption = std::move(what);
}

// The name of a folder is no name of a file, unless one is to be saved beside it.
bool isFolder(App& app, const TypedPath& path)
{
    const bool opens = !isSaving(app.s.controls) && !standsThere(app, meantFile(app));
    return opens && app.ports.folders.exists(path.folder + (path.folder == "/" ? "" : "/") + path.name);
}

// The folder is split off and shown; what is left is the name. False where there is no such folder.
bool takePath(App& app, TypedPath path)
{
    if (!path.name.empty() && isFolder(app, path))
        path = {path.folder + (path.folder == "/" ? "" : "/") + path.name, ""};
    if (!app.ports.folders.exists(path.folder)) {
        if (isSaving(app.s.controls)) tellNotSaved(app, app.s.filePattern);
        tellFault(app, "There is no folder " + path.folder);
        return false;
    }
    setText(app.s.controls[ids::fileName], path.name);
    goToFolder(app, path.folder);
    return true;
}

// The name at the end of what is typed, if it is no way to a folder.
bool beginsWithPoint(const std::string& typed)
{
    const std::string last = typed.substr(typed.rfind('/') + 1);
    return last.starts_with('.') && last != "." && last != "..";
}

void confirmOpen(App& app, const FileChoice& choice)
{
    if (openFile(app, choice)) return hideDialog(app.s);
    tellFault(app, whyNotOpened(app, choice));
}

// What the dialog was to save may be gone from it, so that no other name and no other folder helps.
std::string whyNotSaved(Session& s)
{
    const std::string& told = s.controls[ids::entry].text;
    return isNameSpent(s, s.filePattern) ? told + " Choose it from the list once more." : told;
}

void confirmSave(App& app, const FileChoice& choice)
{
    Session& s = app.s;
    if (isToBeToldFirst(app, choice)) {
        s.controls[ids::fileConfirm].caption = "Overwrite?";
    } else if (!saveFile(app, choice)) {
        tellFault(app, whyNotSaved(s));
    } else if (savesWholeDrawing(choice)) {
        carryOutFollowUp(app);
    } else {
        hideDialog(s);
    }
}

} // namespace

void confirmFileDialog(App& app, ControlId)
{
    Session& s = app.s;
    s.controls[ids::fileFault].caption.clear();
    const std::string before = s.controls[ids::fileConfirm].caption;
    const std::string typed = s.controls[ids::fileName].text;
    normalisePath(app);
    const auto path = typedPath(app);
    if (path && !takePath(app, *path)) return;
    // The button's warning comes with the name. Where the path that was typed leads to a file, nobody has
    // seen it yet.
    const std::string& now = s.controls[ids::fileConfirm].caption;
    if (now != before && now == "Overwrite?") return;
    std::string name = chosenName(s);
    if (name.empty()) {
        if (beginsWithPoint(typed)) tellFault(app, "A name can't begin with a point");
        return;
    }
    if (!isSaving(s.controls)) name = nameInList(s, name);
    setText(s.controls[ids::fileName], name);
    (s.*patternOf(s).folders).last = folderShown(s.controls);
    const FileChoice choice = choiceOf(s, name);
    if (isSaving(s.controls)) return confirmSave(app, choice);
    confirmOpen(app, choice);
}

namespace {

// The dialog as if the file had been chosen in it, which it was not by a name that no such file has.
void openIn(App& app, const FileFlow& flow, const TypedPath& file)
{
    Session& s = app.s;
    s.filePattern = flow.pattern;
    if (app.ports.folders.exists(file.folder)) (s.*patternOf(s).folders).last = file.folder;
    openFileDialog(app, flow, file.name);
    const PatternRow* const pattern = patternOfFile(file.name);
    if (pattern == nullptr || pattern->pattern != flow.pattern)
        return tellFault(app, file.name + " can't be read");
    confirmOpen(app, {file.folder, file.name, std::string(flow.caption), std::string(flow.pattern)});
}

TypedPath splitPath(const std::string& path)
{
    return {parentOf(path), path.substr(path.rfind('/') + 1)};
}

// One that can't be read in full is opened as the dialog would, which says what is wrong with it.
bool isDxf(const std::string& path)
{
    const PatternRow* const pattern = patternOfFile(path);
    return pattern != nullptr && pattern->pattern == "*.dxf";
}

// Of the others alone: what becomes of the first may be for the user to say.
void tellNotTaken(Notices& notices, const std::string& first, std::ptrdiff_t others)
{
    notices.settle(Matter::notTaken);
    if (others == 0) return;
    const bool isOne = others == 1;
    const std::string told = std::to_string(others) +
                             (isOne ? " other file that was" : " other files that were") + " dropped with " +
                             first + (isOne ? " was" : " were") + " not taken.";
    notices.post({Matter::notTaken, told, {{"Close", Offer::goOn}}});
}

} // namespace

void openDrawingAt(App& app, const std::string& path)
{
    if (isDxf(path) && openDxfInFull(app, path)) return;
    TypedPath file = splitPath(path);
    if (file.name.find('.') == std::string::npos) file.name += ".mtd";
    openIn(app, {"Open Drawing", "Open", "*.mtd"}, file);
}

void openFileAt(App& app, const std::string& path)
{
    if (isDxf(path) && openDxfInFull(app, path)) return;
    const TypedPath file = splitPath(path);
    const PatternRow* const pattern = patternOfFile(file.name);
    if (pattern == nullptr) return openIn(app, {"Open Drawing", "Open", "*.mtd"}, file);
    openIn(app, {pattern->open, "Open", pattern->pattern}, file);
}

void openDroppedFile(App& app, const std::string& path, std::ptrdiff_t others)
{
    tellNotTaken(app.s.notices, splitPath(path).name, others);
    const PatternRow* const pattern = patternOfFile(path);
    const bool replacesDrawing =
        pattern != nullptr && (pattern->pattern == "*.mtd" || pattern->pattern == "*.dxf");
    if (!replacesDrawing || !hasUnsavedWork(app.s)) return openFileAt(app, path);
    app.s.droppedFile = path;
    offerToSave(app, follow::openDropped);
}

void dismissFileDialog(App& app, ControlId)
{
    if (app.s.controls[ids::fileForm].caption == "Save Changes") return carryOutFollowUp(app);
    closeFileDialog(app);
}

void closeFileDialog(App& app)
{
    app.s.saveFollowUp = follow::nothing;
    hideDialog(app.s);
}

void fileNameKeyPress(App& app, char32_t code)
{
    if (code == enterKey) return confirmFileDialog(app, ids::fileConfirm);
    Control& name = app.s.controls[ids::fileName];
    if (code == tabKey) setText(name, completedName(app));
    passKey(name, code);
    showWhetherItOverwrites(app);
}

} // namespace mirtane
