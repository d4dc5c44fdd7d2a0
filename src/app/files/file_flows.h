#pragma once

#include "app/files/file_choice.h"

namespace mirtane {

std::string pathOf(const FileChoice& choice);

// A save of the drawing itself, and not of a part of it or of a library.
bool savesWholeDrawing(const FileChoice& choice);

// Each says whether the work was done; where not, nothing has changed and the dialog stays up. A save that
// fails says so in entry.
bool saveFile(App& app, const FileChoice& choice);
bool openFile(App& app, const FileChoice& choice);

} // namespace mirtane
