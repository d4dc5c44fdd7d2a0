#pragma once

#include "app/files/file_choice.h"

namespace mirtane {

std::string pathOf(const FileChoice& choice);

// A save of the drawing itself, and not of a part of it or of a library.
bool savesWholeDrawing(const FileChoice& choice);

// Each says whether the work was done; where not, nothing has changed and the dialog stays up. A save that
// fails says so in entry.
bool saveFile(App& app, const FileChoice& choice);
// Says in entry that a file of the pattern was not saved.
void tellNotSaved(App& app, std::string_view pattern);
bool openFile(App& app, const FileChoice& choice);

} // namespace mirtane
