#pragma once

#include "exchange/made.h"

#include <optional>
#include <span>

namespace mirtane {

// A dimension of ours with the words of the picture that another program made of it; none if its lines would
// not be where those of the picture are, as far as the size of its text lets one tell, or if the picture has
// other things in it, or lines of several pens.
std::optional<Made> asPictured(Made ours, const Look& look, std::span<const Made> picture);

} // namespace mirtane
