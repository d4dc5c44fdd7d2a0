#pragma once

#include "measures.h"

namespace mirtane::bench {

// A redraw of 5,000 texts at mixed rotations, beside the toolkit's own writing of the same strings.
void registerTextMeasures();

std::span<const Comparison> textComparisons();

} // namespace mirtane::bench
