#pragma once

#include "app/app.h"

namespace mirtane {

// The drawing has no file yet, but the folder of the one that it came from.
void takeFolder(App& app, const std::string& folder, const std::string& name);

// The drawing is a part of the file's, which must not be replaced by it: so many objects found no place.
void takePartOfFile(App& app, const std::string& folder, const std::string& file, std::int32_t leftOut);

} // namespace mirtane
