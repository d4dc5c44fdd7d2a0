#pragma once

#include "model/controls.h"

#include <optional>

namespace mirtane::play {

// The control with those of its values that a control of its kind has, as a JSON object.
std::string controlValues(const Controls& controls, ControlId id);

// One of them; nothing where the control has no such value.
std::optional<std::string> controlValue(const Controls& controls, ControlId id, std::string_view field);

} // namespace mirtane::play
