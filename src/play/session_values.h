#pragma once

#include "model/session.h"

#include <optional>

namespace mirtane::play {

// A value of the session by its name, as JSON text. Points answer [x,y]; with X or Y behind the name, that
// coordinate. Nothing for a name that the session does not have.
std::optional<std::string> sessionValue(const Session& s, std::string_view name);

} // namespace mirtane::play
