#pragma once

#include "measures.h"

namespace mirtane::bench {

// The edits of the selection, on a drawing of their own of objects of kinds 1 to 5.
void registerEditMeasures();

std::span<const Comparison> editComparisons();

} // namespace mirtane::bench
