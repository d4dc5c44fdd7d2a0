#pragma once

#include "measures.h"

namespace mirtane::bench {

// A plan with its lettering: 10,000 texts, level, upright and at forty other angles, and 2,000 of each kind
// of dimension. Redrawn over and over, and for the first time.
void registerPlanMeasures();

std::span<const Comparison> planComparisons();

} // namespace mirtane::bench
