#pragma once

#include "app/app.h"
#include "convert/arguments.h"
#include "convert/outcome.h"
#include "platform/qt/surface.h"

namespace mirtane::convert {

// Writes what the drawing shows into the file, in the format that is wished for: a picture as it stands on
// the surface, anything else from a selection of all, as the menus do. The drawing stays selected.
void exportTo(const std::string& out, const Wishes& wishes, App& app, const Surface& surface,
              Outcome& outcome);

// Puts a picture into the file. Gives what went wrong in a few words, or nothing.
std::optional<std::string> writePicture(App& app, const std::string& out, const Surface& surface);

} // namespace mirtane::convert
