#pragma once

#include "exchange/made.h"

#include <span>

namespace mirtane {

// Whether a dimension of ours shows what the picture of another program does: the same words in the same
// place, lines where those of the picture are, as far as the size of its text lets one tell, and all in one
// pen.
bool showsTheSame(const Made& ours, const Look& look, std::span<const Made> picture);

} // namespace mirtane
