#pragma once

#include "app/files/file_names.h"

namespace mirtane {

// The lists of the file dialog: what they show of a folder, which file is lit, and whether a save would
// overwrite one.

std::string& folderShown(Controls& controls);

// The folder is a copy, since it may be one of the rows that are replaced here.
void showFolder(App& app, std::string folder);

// The file that is meant, wherever the name or the path that is typed leads.
TypedPath meantFile(App& app);

// Whether the file is there: in the folder that is shown by the list, in any other by the disk.
bool standsThere(App& app, const TypedPath& file);

// The one overwrite warning: the button says so while the name is that of a file that is there. The file is
// lit in the list, and what was said of an earlier one goes.
void showWhetherItOverwrites(App& app);

// The user went to another folder.
void goToFolder(App& app, const std::string& folder);

// Rows of the lists.
void chooseFile(App& app, int row);
void chooseFolder(App& app, int row);
void chooseDrive(App& app, int row);

} // namespace mirtane
