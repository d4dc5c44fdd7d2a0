#pragma once

#include "app/app.h"
#include "convert/arguments.h"
#include "platform/qt/surface.h"

namespace mirtane::convert {

// Writes what the drawing shows into the file, in the format that is wished for: a picture as it stands on
// the surface, anything else from a selection of all, as the menus do. Gives what went wrong in a few words,
// or nothing. The drawing stays selected.
std::optional<std::string> exportTo(const std::string& out, const Wishes& wishes, App& app,
                                    const Surface& surface);

} // namespace mirtane::convert
