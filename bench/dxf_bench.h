#pragma once

// Writing and reading DXF, each beside one plain pass over the lines of the same file.

#include "dxf/dxf_writer.h"
#include "measures.h"

#include <sstream>

namespace mirtane::bench {

// A drawing of 50,000 lines, 5,000 circles and 5,000 arcs, all selected, and its file, with each circle ended
// so that what follows is read too.
class DxfBench {
  public:
    DxfBench();

    Session drawing;
    Session opened;
    DxfScratch scratch;
    std::string file;
    std::istringstream stream; // over the file
};

// Registers all of them with Google Benchmark; bench must outlive the run.
void registerDxfMeasures(DxfBench& bench);

std::span<const Comparison> dxfComparisons();

} // namespace mirtane::bench
