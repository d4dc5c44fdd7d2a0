#pragma once

#include "measures.h"

namespace mirtane::bench {

// A page of 60,000 selected lines, beside the same strokes straight into the toolkit's PDF writer.
void registerPrintMeasures();

std::span<const Comparison> printComparisons();

} // namespace mirtane::bench
