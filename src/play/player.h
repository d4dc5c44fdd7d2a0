#pragma once

// The program without its window: one line of a script at a time.

#include "play/stage.h"

#include <optional>

namespace mirtane::play {

// Carries out one line. The answer of a question comes back; a command and an expect that holds give nothing.
// Throws Refusal for a line that can't be carried out, and for an expect that fails.
std::optional<std::string> play(Stage& stage, std::string_view line);

} // namespace mirtane::play
