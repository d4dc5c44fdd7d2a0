#pragma once

// The lines of a pattern inside the loops of a hatch.

#include "exchange/vec.h"

#include <optional>
#include <span>
#include <vector>

namespace mirtane {

// The corners of a closed loop.
using Loop = std::vector<Vec>;

// Lines side by side: one through base, each next one moved by offset. Along each, from where base came to
// lie, runs its pattern of dashes: above 0 a dash, below 0 a gap, 0 a dot; without any it is whole.
struct PatternRow {
    Vec base;
    Vec way; // of length 1
    Vec offset;
    std::vector<double> dashes;
};

// A dot where the two are one.
struct PatternLine {
    Vec from, to;
};

// How many edges and dashes may still be looked at for all hatches of a drawing.
struct PatternWork {
    std::size_t left = 16'000'000;
};

// What lies in an odd number of loops. None if that would be more lines than most or too much work, or the
// rows of a pattern lie on one another.
std::optional<std::vector<PatternLine>> patternLines(std::span<const Loop> loops,
                                                     std::span<const PatternRow> rows, std::size_t most,
                                                     PatternWork& work);

// In how many of the other loops a loop lies; 0 for all where that would be too much work.
std::vector<int> depthsOf(std::span<const Loop> loops, PatternWork& work);

} // namespace mirtane
