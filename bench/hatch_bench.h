#pragma once

// Filling a boundary with a hatch, beside one plain loop that clips the same segments at the same polygon.

#include "library/hatch_fill.h"
#include "measures.h"

#include <array>

namespace mirtane::bench {

struct PlainSegment {
    Point from, to;
};

// A room of twelve corners and a brick, in two sizes of tile: one gives about 5,000 pieces, the other 20,000.
class HatchBench {
  public:
    HatchBench();

    std::vector<BoundaryLeg> room;
    std::vector<HatchRow> rows;
    std::array<float, 2> scales;
    std::array<std::vector<PlainSegment>, 2> segments; // of the tiles that the room reaches, uncut
};

// Registers all of them with Google Benchmark; bench must outlive the run.
void registerHatchMeasures(HatchBench& bench);

std::span<const Comparison> hatchComparisons();

} // namespace mirtane::bench
