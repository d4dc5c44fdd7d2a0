#include "app/files/file_dialog.h"

#include "app/files/dxf_flows.h"
#include "app/files/file_flows.h"
#include "app/files/own_file.h"
#include "app/files/unsaved_work.h"
#include "app/start_stop.h"
#include "app/typing/keys.h"
#include "commands/prompt.h"

#include <algorithm>

namespace mirtane {
namespace {

struct PatternRow {
    std::string_view pattern;
    std::string_view extension;
    std::string_view typeLine;
    FolderPair FileState::*folders;
};

constexpr PatternRow patternRows[] = {
    {"*.mtd", ".mtd", "Mirtane Drawing    *.mtd", &FileState::drawings},
    {"*.dxf", ".dxf", "DXF Format    *.dxf", &FileState::dxf},
    {"*.mta", ".mta", "Mirtane Associate    *.mta", &FileState::associates},
    {"*.mth", ".mth", "Mirtane Hatch    *.mth", &FileState::hatches},
    {"*.mtm", ".mtm", "Multiple Lines    *.mtm", &FileState::multipleLines},
};

const PatternRow& patternOf(const FileState& s)
{
    const auto* const found = std::ranges::find(patternRows, s.filePattern, &PatternRow::pattern);
    return found == std::end(patternRows) ? patternRows[0] : *found;
}

std::string& folderShown(Controls& controls)
{
    return controls[ids::folderList].text;
}

// All after the first "." is dropped and the pattern's extension added; nothing of a name without a base.
std::string normalisedName(const Session& s)
{
    const std::string& typed = s.controls[ids::fileName].text;
    const std::string base = typed.substr(0, typed.find('.'));
    return base.empty() ? base : base + std::string(patternOf(s).extension);
}

const std::vector<std::string>& namesListed(const Controls& controls)
{
    return controls[ids::fileList].rows;
}

// A file of the list, or the name that the dialog proposed, is meant as it stands, were there three points in
// it: else another file would be opened, or written over.
std::string chosenName(const Session& s)
{
    const std::string& typed = s.controls[ids::fileName].text;
    const auto& names = namesListed(s.controls);
    const bool isListed = std::ranges::find(names, typed) != names.end();
    const bool isMeant = (isListed || typed == s.proposedName) && !typed.starts_with('.');
    return isMeant ? typed : normalisedName(s);
}

bool sameButForCase(std::string_view a, std::string_view b)
{
    const auto lower = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
    }; // a letter
    return std::ranges::equal(a, b, {}, lower, lower);
}

// The list shows extensions in either case, so a file is opened by the name that it has on the disk.
std::string nameInList(const Session& s, const std::string& name)
{
    const std::vector<std::string>& names = namesListed(s.controls);
    if (std::ranges::find(names, name) != names.end()) return name;
    const std::size_t base = name.size() - patternOf(s).extension.size();
    const auto found = std::ranges::find_if(names, [&](const std::string& row) {
        return row.starts_with(name.substr(0, base)) && sameButForCase(row, name);
    });
    return found == names.end() ? name : *found;
}

bool isSaving(const Controls& controls)
{
    const std::string& caption = controls[ids::fileConfirm].caption;
    return caption == "Save" || caption == "Overwrite?";
}

// The one overwrite warning: the button says so while the name is that of a file in the list.
void showWhetherItOverwrites(Session& s)
{
    s.notices.settle(Matter::fileInTheWay);
    if (!isSaving(s.controls)) return;
    const std::vector<std::string>& names = namesListed(s.controls);
    const bool present = std::ranges::find(names, chosenName(s)) != names.end();
    s.controls[ids::fileConfirm].caption = present ? "Overwrite?" : "Save";
}

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

// The drive that the folder shown lies on is the longest that leads to it.
int driveOf(const std::vector<std::string>& drives, const std::string& folder)
{
    int found = -1;
    std::size_t longest = 0;
    for (std::size_t i = 0; i < drives.size(); ++i) {
        if (!folder.starts_with(drives[i]) || drives[i].size() < longest) continue;
        longest = drives[i].size();
        found = static_cast<int>(i); // a machine has few drives
    }
    return found;
}

// The folder is a copy, since it may be one of the rows that are replaced here.
void showFolder(App& app, std::string folder)
{
    Session& s = app.s;
    Control& files = s.controls[ids::fileList];
    Control& folders = s.controls[ids::folderList];
    Control& drives = s.controls[ids::driveList];
    folders.text = folder;
    s.controls[ids::folderLabel].caption = folder;
    folders.rows = app.ports.folders.subfolders(folder);
    if (folder != "/") folders.rows.insert(folders.rows.begin(), "..");
    folders.row = -1;
    files.rows = app.ports.folders.files(folder, std::string(patternOf(s).extension));
    files.row = -1;
    drives.rows = app.ports.folders.drives();
    const std::string& working = (s.*patternOf(s).folders).working;
    if (std::ranges::find(drives.rows, working) == drives.rows.end()) drives.rows.push_back(working);
    drives.row = driveOf(drives.rows, folder);
}

std::string parentOf(const std::string& folder)
{
    const auto slash = folder.rfind('/');
    return slash == 0 || slash == std::string::npos ? "/" : folder.substr(0, slash);
}

} // namespace

std::string folderThatExists(App& app, const FolderPair& folders)
{
    for (const std::string& folder : {folders.last, folders.working}) {
        const bool isAbsolute = folder.starts_with('/'); // the process's own directory counts for nothing
        if (isAbsolute && app.ports.folders.exists(folder)) return folder;
    }
    return app.s.programFolder;
}

namespace {

// The drawing's own file needs no warning, unless someone else was at it. Its folder may be gone with it.
void showWhatItWouldReplace(App& app)
{
    Session& s = app.s;
    const bool ownFile = proposesOwnFile(s);
    if (!ownFile) showWhetherItOverwrites(s);
    const bool own = ownFile || (savesWholeDrawing(choiceOf(s, chosenName(s))) && ownFileIsGone(app));
    if (isSaving(s.controls) && own && warnOfOwnFile(app))
        s.controls[ids::fileConfirm].caption = "Overwrite?";
}

// The drawing itself is saved where it is from, wherever parts of it or others went meanwhile.
std::string firstFolder(App& app, const FileFlow& flow)
{
    const FileState& s = app.s;
    const FileChoice choice{{}, {}, std::string(flow.caption), std::string(flow.pattern)};
    const bool savesIt = flow.button == "Save" && savesWholeDrawing(choice);
    if (savesIt && !s.drawingFolder.empty() && app.ports.folders.exists(s.drawingFolder))
        return s.drawingFolder;
    return folderThatExists(app, s.*patternOf(s).folders);
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
    const std::string_view button = followUp == follow::exit ? "End" : "Close";
    app.s.controls[ids::fileDismiss].caption = button;
    app.s.controls[ids::fileRemark].caption = whatIsUnsaved(app.s, button, app.ports.clock);
}

void saveAndOpenAgain(App& app)
{
    openFileDialog(app, {"Save File", "Save", "*.mtd"}, app.s.drawingName);
    app.s.saveFollowUp = follow::openAgain;
    const bool nothingInTheWay = app.s.controls[ids::fileConfirm].caption == "Save";
    if (proposesOwnFile(app.s) && nothingInTheWay) confirmFileDialog(app, ids::fileConfirm);
}

namespace {

// Someone else may have saved a file there while the dialog stood.
bool isToBeToldFirst(App& app, const FileChoice& choice)
{
    Session& s = app.s;
    const bool drawing = savesWholeDrawing(choice);
    if (drawing && pathOf(choice) == s.drawingFile) return !ownFileIsAsSeen(app) && warnOfOwnFile(app);
    if (s.notices.tells(Matter::fileInTheWay)) return false;
    const bool saidByButton = s.controls[ids::fileConfirm].caption == "Overwrite?";
    return (drawing || !saidByButton) && warnOfFileInTheWay(app, pathOf(choice), choice.name, saidByButton);
}

} // namespace

void confirmFileDialog(App& app, ControlId)
{
    Session& s = app.s;
    std::string name = chosenName(s);
    if (name.empty()) return;
    if (!isSaving(s.controls)) name = nameInList(s, name);
    setText(s.controls[ids::fileName], name);
    (s.*patternOf(s).folders).last = folderShown(s.controls);
    const FileChoice choice = choiceOf(s, name);
    if (!isSaving(s.controls)) {
        if (openFile(app, choice)) hideDialog(s);
    } else if (isToBeToldFirst(app, choice)) {
        s.controls[ids::fileConfirm].caption = "Overwrite?";
    } else if (saveFile(app, choice)) {
        if (savesWholeDrawing(choice)) return carryOutFollowUp(app);
        hideDialog(s);
    }
}

void openDrawingAt(App& app, const std::string& path)
{
    Session& s = app.s;
    if (sameButForCase(path.substr(path.size() - std::min<std::size_t>(path.size(), 4)), ".dxf") &&
        openDxfInFull(app, path))
        return;
    const std::string folder = parentOf(path);
    std::string name = path.substr(path.rfind('/') + 1);
    if (name.find('.') == std::string::npos) name += ".mtd";
    if (app.ports.folders.exists(folder)) s.drawings.last = folder;
    const FileFlow flow{"Open Drawing", "Open", "*.mtd"};
    openFileDialog(app, flow, name);
    const bool isDrawing = name.size() > 4 && sameButForCase(name.substr(name.size() - 4), ".mtd");
    const FileChoice choice{folder, name, std::string(flow.caption), std::string(flow.pattern)};
    if (isDrawing && openFile(app, choice)) hideDialog(s);
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
    passKey(app.s.controls[ids::fileName], code);
    showWhetherItOverwrites(app.s);
}

void chooseFile(App& app, int row)
{
    Session& s = app.s;
    Control& files = s.controls[ids::fileList];
    files.row = row;
    setText(s.controls[ids::fileName],
            files.rows[static_cast<std::size_t>(row)]); // the shell checks rows
    Control& button = s.controls[ids::fileConfirm];
    if (button.caption == "Save") button.caption = "Overwrite?";
}

void chooseFolder(App& app, int row)
{
    const std::string chosen = app.s.controls[ids::folderList].rows[static_cast<std::size_t>(row)]; // checked
    const std::string shown = folderShown(app.s.controls);
    showFolder(app, chosen == ".." ? parentOf(shown) : (shown == "/" ? "" : shown) + "/" + chosen);
    showWhetherItOverwrites(app.s);
}

void chooseDrive(App& app, int row)
{
    showFolder(app,
               app.s.controls[ids::driveList].rows[static_cast<std::size_t>(row)]); // the shell checks rows
    showWhetherItOverwrites(app.s);
}

} // namespace mirtane
