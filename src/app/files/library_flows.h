#pragma once

#include "app/files/file_choice.h"

namespace mirtane {

// The library files of the file dialog, by its pattern. An open is refused while the name is in use.
bool saveLibraryFile(App& app, const FileChoice& choice);
bool openLibraryFile(App& app, const FileChoice& choice);

} // namespace mirtane
