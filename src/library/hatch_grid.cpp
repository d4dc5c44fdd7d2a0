// library/hatch_grid.cpp: the cells are found from the spans and row by row, so the work grows with the spans
// and the cells reached, of which there is a table's worth at the most, and not with the grid.

#include "library/hatch_grid.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace mirtane {
namespace {

// The last number from low on and before high for which holds is true, if it is true for low and, from some
// number on, no more. Among very large numbers, the last that there is.
template <class Test> double lastThat(double low, double high, Test holds)
{
    while (true) {
        const double middle = low + std::floor((high - low) / 2);
        if (middle <= low || middle >= high) return low;
        (holds(middle) ? low : high) = middle;
    }
}

double oneAfter(double number)
{
    return std::max(number + 1, std::nextafter(number, std::numeric_limits<double>::infinity()));
}

// A span on one line, and the lines beside that one; itself at an end of the grid.
struct LineSpan {
    float before, line, after;
    Extent extent;
};

// Each line between the ends of a closed polygon has a span, so a table's worth of lines fills the table.
std::vector<LineSpan> spansOnLines(const Polygon& polygon, const GridLines& lines)
{
    std::vector<LineSpan> all;
    std::vector<Extent> spans;
    double number = lines.first();
    float before = lines.at(number);
    for (std::size_t i = 0; i <= hatchTableRows && all.size() < hatchTableRows; ++i) {
        const float line = lines.at(number);
        const bool isLast = lines.isLast(number);
        if (!isLast) number = lines.after(number);
        spans.clear();
        addSpans(polygon, line, spans);
        for (const Extent& span : spans) all.push_back({before, line, lines.at(number), span});
        if (isLast) break;
        before = line;
    }
    all.resize(std::min(all.size(), hatchTableRows));
    return all;
}

// The columns that a row reaches, as their left and right sides.
struct Column {
    float left, right;

    bool operator==(const Column& other) const { return left == other.left; }
    auto operator<=>(const Column& other) const { return left <=> other.left; }
};

// The upright spans that reach into the row at hand, as the rows are gone through from the top.
class UprightSweep {
  public:
    UprightSweep(const Polygon& polygon, const HatchGrid& grid)
    {
        for (const LineSpan& span : spansOnLines(polygon, grid.uprights)) {
            if (span.extent.low < span.extent.high) waiting_.push_back(span);
        }
        std::ranges::stable_sort(waiting_, {}, [](const LineSpan& s) { return s.extent.low; });
    }

    // Adds the columns to the left and the right of each such span. Rows must be asked for in order.
    void addColumns(float top, float bottom, std::vector<Column>& columns)
    {
        for (; next_ < waiting_.size() && waiting_[next_].extent.low < bottom; ++next_) {
            active_.push_back(waiting_[next_]);
        }
        std::erase_if(active_, [top](const LineSpan& s) { return s.extent.high <= top; });
        for (const LineSpan& s : active_) {
            if (s.before < s.line) columns.push_back({s.before, s.line});
            if (s.line < s.after) columns.push_back({s.line, s.after});
        }
    }

    // Where the next span begins that no row has come to yet; infinity if there is none.
    double nextLow() const
    {
        return next_ < waiting_.size() ? waiting_[next_].extent.low : std::numeric_limits<double>::infinity();
    }

  private:
    std::vector<LineSpan> waiting_, active_;
    std::size_t next_ = 0;
};

// The level spans, asked for line by line.
class LevelSpans {
  public:
    LevelSpans(const Polygon& polygon, const HatchGrid& grid)
        : uprights_(grid.uprights), spans_(spansOnLines(overDiagonal(polygon), grid.levels))
    {
    }

    // Adds the columns along the spans on one level, of each span as many as there is room for.
    void addColumns(float level, std::size_t room, std::vector<Column>& columns) const
    {
        auto span = std::ranges::lower_bound(spans_, level, {}, &LineSpan::line);
        for (; span != spans_.end() && span->line == level; ++span) {
            if (span->extent.low < span->extent.high) addColumnsAlong(span->extent, room, columns);
        }
    }

    // No span lies on it or below.
    bool endBefore(float level) const { return spans_.empty() || spans_.back().line < level; }

  private:
    void addColumnsAlong(const Extent& extent, std::size_t room, std::vector<Column>& columns) const
    {
        double number = uprights_.upTo(extent.low);
        for (std::size_t i = 0; i < room && !uprights_.isLast(number); ++i) {
            const float left = uprights_.at(number);
            if (left >= extent.high) return;
            number = uprights_.after(number);
            columns.push_back({left, uprights_.at(number)});
        }
    }

    const GridLines& uprights_;
    std::vector<LineSpan> spans_;
};

void sortOnce(std::vector<Column>& columns)
{
    std::ranges::sort(columns);
    columns.erase(std::unique(columns.begin(), columns.end()), columns.end());
}

} // namespace

// -- lines --

GridLines::GridLines(Extent extent, float corner, float step) : corner_(corner), step_(step)
{
    if (!(step > 0) || !std::isfinite(step) || !std::isfinite(corner)) return;
    first_ = reaching(extent.low, -1);
    last_ = reaching(extent.high, 1);
}

// Each by itself, so that no error adds up. The product of a number that 32 bits hold and the step is exact.
float GridLines::at(double number) const
{
    const auto distance = static_cast<float>(number * step_); // 32 bits are what coordinates have
    return corner_ + distance;
}

// The number nearest to 0, with the sign of towards, of a line that lies on end or beyond; short of where no
// coordinate can be.
double GridLines::reaching(double end, double towards) const
{
    const auto isShort = [&](double n) { return towards < 0 ? at(-n) > end : at(n) < end; };
    const auto isPlace = [&](double n) { return std::isfinite(at(n * towards)); };
    double n = std::floor(std::abs(end - corner_) / static_cast<double>(step_)); // widened for the quotient
    for (int tries = 0; tries < 3 && isShort(n); ++tries) ++n;
    return towards * (isPlace(n) ? n : lastThat(0, n, isPlace));
}

double GridLines::upTo(double v) const
{
    if (at(last_) <= v) return last_;
    return lastThat(first_, last_, [&](double number) { return at(number) <= v; });
}

double GridLines::after(double number) const
{
    const float here = at(number);
    const double next = std::min(oneAfter(number), last_);
    if (at(next) > here) return next;
    const auto isHere = [&](double k) { return at(k) <= here; };
    // As many steps as lead to the next coordinate that there is, and some to spare.
    const double there = std::nextafter(here, std::numeric_limits<float>::infinity());
    const double beyond = number + std::ceil(2 * (there - here) / static_cast<double>(step_)); // widened
    return oneAfter(lastThat(number, isHere(beyond) ? last_ : std::min(beyond, last_), isHere));
}

// -- cells --

HatchGrid hatchGrid(const Polygon& polygon, const Tile& tile)
{
    if (polygon.empty()) return {};
    return {GridLines(extentInX(polygon), tile.corner.x, tile.width),
            GridLines(extentInX(overDiagonal(polygon)), tile.corner.y, tile.height)};
}

std::vector<HatchCell> reachedCells(const Polygon& polygon, const HatchGrid& grid, std::size_t most)
{
    std::vector<HatchCell> reached;
    if (grid.uprights.areNone() || grid.levels.areNone()) return reached;
    UprightSweep uprights(polygon, grid);
    const LevelSpans levels(polygon, grid);
    std::vector<Column> columns;
    double row = grid.levels.first();
    while (!grid.levels.isLast(row) && reached.size() < most) {
        const double next = grid.levels.after(row);
        const float top = grid.levels.at(row), bottom = grid.levels.at(next);
        columns.clear();
        levels.addColumns(top, most - reached.size(), columns);
        levels.addColumns(bottom, most - reached.size(), columns);
        uprights.addColumns(top, bottom, columns);
        sortOnce(columns);
        for (const Column& column : columns) reached.push_back({column.left, top, column.right, bottom});
        // Rows that nothing reaches may be too many to go through.
        const bool isIdle = columns.empty() && levels.endBefore(bottom);
        row = isIdle ? std::max(next, grid.levels.upTo(uprights.nextLow())) : next;
    }
    reached.resize(std::min(reached.size(), most));
    return reached;
}

} // namespace mirtane
