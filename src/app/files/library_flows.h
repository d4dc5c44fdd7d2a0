#pragma once

#include "app/files/file_choice.h"

namespace mirtane {

// The library files of the file dialog, by its pattern. An open is refused while the name is in use.
bool saveLibraryFile(App& app, const FileChoice& choice);
bool openLibraryFile(App& app, const FileChoice& choice);

// Whether the pattern is that of a library of which the name to save is spent, as it is by a save that
// failed.
bool isNameSpent(Session& s, const std::string& pattern);

} // namespace mirtane
