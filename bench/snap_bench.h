#pragma once

// The snaps, the pick and the window selection, each beside one plain pass over the arrays that they read.

#include "measures.h"
#include "render/recording_canvas.h"

#include <array>

namespace mirtane::bench {

// Two drawings of 60,000 objects on 1600 by 1000 pixels: the lines of the sample, and objects of all kinds in
// turn by lot.
class SnapBench {
  public:
    SnapBench();

    std::array<Session, 2> sessions;
    RecordingCanvas pic1;
};

// Registers all of them with Google Benchmark; bench must outlive the run.
void registerSnapMeasures(SnapBench& bench);

std::span<const Comparison> snapComparisons();

} // namespace mirtane::bench
