#pragma once

// The grid of a hatch: lines a tile apart that pass through the first point of the boundary, and the cells
// between them that the boundary's inside reaches.

#include "geometry/point.h"
#include "library/scan_lines.h"

#include <vector>

namespace mirtane {

// No table of a fill has more rows; what comes behind is dropped without a word.
inline constexpr std::size_t hatchTableRows = 30001;

// The distances of the lines, world units, and where they are counted from.
struct Tile {
    Point corner;
    float width = 0, height = 0;
};

struct HatchGrid {
    std::vector<float> uprights, levels; // in rising order
};

// Lines up to the first on or beyond each end of the polygon. None at all for a tile without width or height.
HatchGrid hatchGrid(const Polygon& polygon, const Tile& tile);

// A cell lies right of that upright and below that level, up to the next ones.
struct HatchCell {
    std::size_t upright, level;
};

// The cells of which some side is in part, in more than a point, inside the polygon: row by row from the top,
// each from the left. A polygon within one cell reaches none.
std::vector<HatchCell> reachedCells(const Polygon& polygon, const HatchGrid& grid);

} // namespace mirtane
