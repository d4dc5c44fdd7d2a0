#pragma once

#include "library/hatch_clip.h"
#include "model/missing.h"

#include <string_view>

namespace mirtane {

// What is filled with what.
struct HatchFill {
    std::span<const BoundaryLeg> boundary; // closed
    std::span<const HatchRow> rows;        // of all hatches
    std::string_view name;
    float scale = 1;
    double rotation = 0; // radians, counter-clockwise, about the first point of the boundary
};

// The tile of the named hatch repeated over the inside of the boundary and cut there, a tile's corner on its
// first point, in order of the cells and of the rows in each. Not yet turned: hatchObject does that. Empty
// for a name that no row bears (noName among them), for a tile without size, and for a boundary within one
// cell. The work is bounded by the size of the tables, whatever the numbers are. What they had no room for is
// added to missing.
std::vector<HatchPiece> fillHatch(const HatchFill& fill, Missing& missing);

inline std::vector<HatchPiece> fillHatch(const HatchFill& fill)
{
    Missing missing;
    return fillHatch(fill, missing);
}

// The piece as it lies in the drawing: kind, style, points and angles. The other fields are the caller's.
EntityRecord hatchObject(const HatchPiece& piece, const HatchFill& fill);

} // namespace mirtane
