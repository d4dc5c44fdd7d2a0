#pragma once

#include "app/app.h"
#include "files/untaken.h"

namespace mirtane {

// The drawing has no file yet, but the folder of the one that it came from.
void takeFolder(App& app, const std::string& folder, const std::string& name);

// The drawing is a part of the file's, which must not be replaced by it: that did not come.
void takePartOfFile(App& app, const std::string& folder, const std::string& file, const Untaken& untaken);

} // namespace mirtane
