#pragma once

#include "measures.h"

namespace mirtane::bench {

// A redraw of 59,000 objects of one kind, beside a cleared image, their pixels by a bare loop and a copy of
// it.
void registerKindMeasures();

std::span<const Comparison> kindComparisons();

} // namespace mirtane::bench
