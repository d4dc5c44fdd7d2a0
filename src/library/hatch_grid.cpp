// library/hatch_grid.cpp: the cells are found from the spans and row by row, so the work grows with the spans
// and the cells reached, and not with the grid.

#include "library/hatch_grid.h"

#include <algorithm>
#include <cmath>

namespace mirtane {
namespace {

// Lines at start plus whole multiples of step, each worked out by itself in 32 bits, so that no error adds
// up.
class Lines {
  public:
    Lines(float start, float step) : start_(start), step_(step) {}

    float at(double k) const
    {
        const auto distance = static_cast<float>(std::abs(k)) * step_; // whole numbers, exact up to 2^24
        return k < 0 ? start_ - distance : start_ + distance;
    }

    // The number nearest to 0, with the sign of towards, of a line that lies on end or beyond.
    double reaching(double end, double towards) const
    {
        double n =
            std::floor(std::abs(end - start_) / static_cast<double>(step_)); // widened for the quotient
        for (int tries = 0; tries < 3 && !reaches(n * towards, end, towards); ++tries) ++n;
        return n * towards;
    }

  private:
    bool reaches(double k, double end, double towards) const
    {
        return towards < 0 ? at(k) <= end : at(k) >= end;
    }

    float start_, step_;
};

std::vector<float> linesOver(Extent extent, float start, float step)
{
    if (!(step > 0) || !std::isfinite(step) || !std::isfinite(start)) return {};
    const Lines lines(start, step);
    const double first = lines.reaching(extent.low, -1);
    const double last = lines.reaching(extent.high, 1);
    std::vector<float> all;
    double k = first;
    for (std::size_t i = 0; i <= hatchTableRows && k <= last; ++i, ++k) {
        const float line = lines.at(k);
        // Far from the origin neighbouring lines may be one.
        if (std::isfinite(line) && (all.empty() || line > all.back())) all.push_back(line);
    }
    return all;
}

// A span on one line.
struct LineSpan {
    std::size_t line;
    Extent extent;
};

std::vector<LineSpan> spansOnLines(const Polygon& polygon, const std::vector<float>& lines)
{
    std::vector<LineSpan> all;
    std::vector<Extent> spans;
    for (std::size_t i = 0; i < lines.size() && all.size() < hatchTableRows; ++i) {
        spans.clear();
        addSpans(polygon, lines[i], spans);
        for (const Extent& span : spans) all.push_back({i, span});
    }
    all.resize(std::min(all.size(), hatchTableRows));
    return all;
}

// From first on and before end.
struct CellRange {
    std::size_t first = 0, end = 0;
};

// The cells between lines that share more than a point with the extent.
CellRange cellsIn(Extent extent, const std::vector<float>& lines)
{
    if (lines.size() < 2 || !(extent.low < extent.high)) return {};
    const auto firstRight = std::upper_bound(lines.begin() + 1, lines.end(), extent.low);
    const auto endLeft = std::lower_bound(lines.begin(), lines.end() - 1, extent.high);
    const CellRange range{static_cast<std::size_t>(firstRight - lines.begin() - 1), // iterators in order
                          static_cast<std::size_t>(endLeft - lines.begin())};       // as above
    return range.first < range.end ? range : CellRange{};
}

// The upright spans that reach into the row at hand, as the rows are gone through from the top.
class UprightSweep {
  public:
    UprightSweep(const Polygon& polygon, const HatchGrid& grid)
    {
        for (const LineSpan& span : spansOnLines(polygon, grid.uprights)) {
            const CellRange rows = cellsIn(span.extent, grid.levels);
            if (rows.first < rows.end) waiting_.push_back({rows, span.line});
        }
        std::ranges::stable_sort(waiting_, {}, [](const Row& r) { return r.rows.first; });
    }

    // Adds the cells to the left and the right of each such span. Rows must be asked for in order.
    void addCells(std::size_t row, std::size_t cellsInRow, std::vector<std::size_t>& cells)
    {
        for (; next_ < waiting_.size() && waiting_[next_].rows.first <= row; ++next_) {
            active_.push_back(waiting_[next_]);
        }
        std::erase_if(active_, [row](const Row& r) { return r.rows.end <= row; });
        for (const Row& r : active_) {
            if (r.line > 0) cells.push_back(r.line - 1);
            if (r.line < cellsInRow) cells.push_back(r.line);
        }
    }

  private:
    struct Row {
        CellRange rows;
        std::size_t line;
    };
    std::vector<Row> waiting_, active_;
    std::size_t next_ = 0;
};

// The level spans, asked for line by line.
class LevelSpans {
  public:
    LevelSpans(const Polygon& polygon, const HatchGrid& grid)
        : uprights_(grid.uprights), spans_(spansOnLines(overDiagonal(polygon), grid.levels))
    {
    }

    // Adds the cells along the spans on one level.
    void addCells(std::size_t level, std::vector<std::size_t>& cells) const
    {
        for (const LineSpan& span : std::ranges::equal_range(spans_, level, {}, &LineSpan::line)) {
            const CellRange range = cellsIn(span.extent, uprights_);
            for (std::size_t i = range.first; i < range.end; ++i) cells.push_back(i);
        }
    }

  private:
    const std::vector<float>& uprights_;
    std::vector<LineSpan> spans_;
};

} // namespace

HatchGrid hatchGrid(const Polygon& polygon, const Tile& tile)
{
    if (polygon.empty()) return {};
    return {linesOver(extentInX(polygon), tile.corner.x, tile.width),
            linesOver(extentInX(overDiagonal(polygon)), tile.corner.y, tile.height)};
}

std::vector<HatchCell> reachedCells(const Polygon& polygon, const HatchGrid& grid)
{
    std::vector<HatchCell> reached;
    if (grid.uprights.size() < 2 || grid.levels.size() < 2) return reached;
    const std::size_t cellsInRow = grid.uprights.size() - 1;
    UprightSweep uprights(polygon, grid);
    const LevelSpans levels(polygon, grid);
    std::vector<std::size_t> cells;
    for (std::size_t row = 0; row + 1 < grid.levels.size() && reached.size() < hatchTableRows; ++row) {
        cells.clear();
        levels.addCells(row, cells);
        levels.addCells(row + 1, cells);
        uprights.addCells(row, cellsInRow, cells);
        std::ranges::sort(cells);
        const auto repeated = std::ranges::unique(cells);
        cells.erase(repeated.begin(), repeated.end());
        for (const std::size_t cell : cells) reached.push_back({cell, row});
    }
    reached.resize(std::min(reached.size(), hatchTableRows));
    return reached;
}

} // namespace mirtane
