#pragma once

// The small picture of a file that is chosen in a list: of the largest that has one, full of lines or of
// texts.

#include "measures.h"

namespace mirtane::bench {

void registerPreviewMeasures();

std::span<const Comparison> previewComparisons();

} // namespace mirtane::bench
