#pragma once

#include "play/stage.h"
#include "play/words.h"

#include <optional>
#include <string>
#include <string_view>

namespace mirtane::play {

// The answer of a question as one line of JSON, or nothing where the line is none. Throws Refusal for one
// that can't be answered.
std::optional<std::string> answer(Stage& stage, std::string_view line);

// The control of that name; throws Refusal where there is none.
ControlId controlNamed(std::string_view name);

} // namespace mirtane::play
