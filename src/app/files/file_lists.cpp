#include "app/files/file_lists.h"

#include "app/files/file_flows.h"
#include "app/files/own_file.h"

#include <algorithm>

namespace mirtane {
namespace {

// The file that is meant is the one that the list shows lit.
void lightFile(Session& s)
{
    Control& files = s.controls[ids::fileList];
    const std::string name = isSaving(s.controls) ? chosenName(s) : nameInList(s, chosenName(s));
    const auto found = std::ranges::find(files.rows, name);
    const auto row = found - files.rows.begin();
    files.row = found == files.rows.end() ? -1 : static_cast<int>(row); // a folder holds some thousand files
    const bool isPicture = files.row >= 0 && !isSaving(s.controls);
    s.controls[ids::filePicture].text = isPicture ? folderShown(s.controls) + "/" + name : "";
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

bool savesTheDrawing(const Session& s)
{
    return isSaving(s.controls) &&
           savesWholeDrawing({{}, {}, s.controls[ids::fileForm].caption, s.filePattern});
}

} // namespace

std::string& folderShown(Controls& controls)
{
    return controls[ids::folderList].text;
}

TypedPath meantFile(App& app)
{
    const Session& s = app.s;
    const auto path = typedPath(app);
    if (!path) return {s.controls[ids::folderList].text, chosenName(s)};
    return {path->folder, nameMeant(s, path->name, isFileOfPattern(app, *path))};
}

bool standsThere(App& app, const TypedPath& file)
{
    if (file.folder != folderShown(app.s.controls)) return isFileOfPattern(app, file);
    const std::vector<std::string>& names = app.s.controls[ids::fileList].rows;
    return std::ranges::find(names, file.name) != names.end();
}

void showWhetherItOverwrites(App& app)
{
    Session& s = app.s;
    s.notices.settle(Matter::fileInTheWay);
    s.controls[ids::fileFault].caption.clear();
    lightFile(s);
    if (isSaving(s.controls))
        s.controls[ids::fileConfirm].caption = standsThere(app, meantFile(app)) ? "Overwrite?" : "Save";
}

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
    lightFile(s);
    const std::string& working = (s.*patternOf(s).folders).working;
    if (std::ranges::find(drives.rows, working) == drives.rows.end()) drives.rows.push_back(working);
    drives.row = driveOf(drives.rows, folder);
}

void chooseFile(App& app, int row)
{
    Session& s = app.s;
    Control& files = s.controls[ids::fileList];
    files.row = row;
    setText(s.controls[ids::fileName],
            files.rows[static_cast<std::size_t>(row)]); // the shell checks rows
    s.notices.settle(Matter::fileInTheWay);             // it told of another file
    lightFile(s);
    files.row = row;
    s.controls[ids::fileFault].caption.clear();
    Control& button = s.controls[ids::fileConfirm];
    if (button.caption == "Save") button.caption = "Overwrite?";
}

void goToFolder(App& app, const std::string& folder)
{
    showFolder(app, folder);
    if (savesTheDrawing(app.s)) takeBackWhatWasTold(app);
    showWhetherItOverwrites(app);
}

void chooseFolder(App& app, int row)
{
    const std::string chosen = app.s.controls[ids::folderList].rows[static_cast<std::size_t>(row)]; // checked
    const std::string shown = folderShown(app.s.controls);
    goToFolder(app, chosen == ".." ? parentOf(shown) : (shown == "/" ? "" : shown) + "/" + chosen);
}

void chooseDrive(App& app, int row)
{
    const std::string drive = app.s.controls[ids::driveList].rows[static_cast<std::size_t>(row)]; // checked
    goToFolder(app, drive);
}

} // namespace mirtane
