#pragma once

// The grid of a hatch: lines a tile apart that pass through the first point of the boundary, and the cells
// between them that the boundary's inside reaches.

#include "geometry/point.h"
#include "library/scan_lines.h"

#include <vector>

namespace mirtane {

// No table of a fill has more rows; what comes behind is dropped.
inline constexpr std::size_t hatchTableRows = 30001;

// So far are dropped pieces counted, those taken included: no drawing has room for more.
inline constexpr std::size_t hatchRowsCounted = 2 * hatchTableRows;

// The distances of the lines, world units, and where they are counted from.
struct Tile {
    Point corner;
    float width = 0, height = 0;
};

// Lines a tile apart, up to the first on or beyond each end of an extent. There may be more of them than
// would fit any table, so each is worked out when it is asked for, by its number: a whole one, counted from
// the line through the corner. Far from the origin, lines with numbers of their own may be one.
class GridLines {
  public:
    GridLines() = default; // none
    GridLines(Extent extent, float corner, float step);

    bool areNone() const { return first_ > last_; }
    double first() const { return first_; }
    double last() const { return last_; }
    float at(double number) const;

    // The number of the last line on v or before it; first() if there is none.
    double upTo(double v) const;
    // The first number of the next line that lies elsewhere. Not to be asked for beyond the last line.
    double after(double number) const;
    bool isLast(double number) const { return at(number) >= at(last_); }

  private:
    double reaching(double end, double towards) const;

    float corner_ = 0, step_ = 0;
    double first_ = 0, last_ = -1;
};

struct HatchGrid {
    GridLines uprights, levels;
};

// No lines at all for a tile without width or height.
HatchGrid hatchGrid(const Polygon& polygon, const Tile& tile);

// Between lines next to each other.
struct HatchCell {
    float left, top, right, bottom;
};

// The cells of which some side is in part, in more than a point, inside the polygon: row by row from the top,
// each from the left. A polygon within one cell reaches none. At the most so many are given as asked for.
std::vector<HatchCell> reachedCells(const Polygon& polygon, const HatchGrid& grid,
                                    std::size_t most = hatchTableRows);

} // namespace mirtane
