#pragma once

#include "app/app.h"

namespace mirtane {

// What the file dialog was confirmed with.
struct FileChoice {
    std::string folder;  // absolute
    std::string name;    // with its extension
    std::string caption; // of the dialog, which tells what is saved and how it is opened
    std::string pattern;
};

std::string pathOf(const FileChoice& choice);

// A save of the drawing itself, and not of a part of it or of a library.
bool savesWholeDrawing(const FileChoice& choice);

// Each says whether the work was done; where not, nothing has changed and the dialog stays up. A save that
// fails says so in entry.
bool saveFile(App& app, const FileChoice& choice);
bool openFile(App& app, const FileChoice& choice);

} // namespace mirtane
