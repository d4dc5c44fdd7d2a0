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

} // namespace mirtane
