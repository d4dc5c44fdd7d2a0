#include "library/hatch_grid.h"

#include "library_desk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>

namespace mirtane {
namespace {

using fake::legsThrough;
using Legs = std::vector<BoundaryLeg>;
using Lines = std::vector<float>;
using Cells = std::vector<std::pair<std::size_t, std::size_t>>; // row, place in the row

Lines linesOf(const GridLines& lines)
{
    Lines all;
    for (double number = lines.first(); number <= lines.last(); ++number) all.push_back(lines.at(number));
    return all;
}

std::size_t placeOf(const Lines& lines, float line)
{
    return static_cast<std::size_t>(std::ranges::find(lines, line) - lines.begin()); // of iterators in order
}

Polygon rectangle(float left, float top, float right, float bottom)
{
    return polygonOf(legsThrough({{left, top}, {right, top}, {right, bottom}, {left, bottom}}));
}

Cells reached(const Polygon& polygon, const HatchGrid& grid)
{
    Cells cells;
    const Lines uprights = linesOf(grid.uprights), levels = linesOf(grid.levels);
    for (const HatchCell& cell : reachedCells(polygon, grid)) {
        cells.emplace_back(placeOf(levels, cell.top), placeOf(uprights, cell.left));
        EXPECT_EQ(cell.bottom, levels.at(cells.back().first + 1));
        EXPECT_EQ(cell.right, uprights.at(cells.back().second + 1));
    }
    return cells;
}

TEST(HatchGrid, PassesThroughTheFirstPointAndReachesBothEnds)
{
    struct Row {
        const char* what;
        float left, right, first, width;
        Lines uprights;
    };
    const Row rows[] = {
        {"from the left end, whole tiles", 0, 20, 0, 10, {0, 10, 20}},
        {"an end within a tile", 0, 25, 0, 10, {0, 10, 20, 30}},
        {"from the right end", 0, 25, 25, 10, {-5, 5, 15, 25}},
        {"from between", 0, 25, 12, 10, {-8, 2, 12, 22, 32}},
        {"equality reaches", 2, 22, 12, 10, {2, 12, 22}},
        {"a tile larger than the boundary", 0, 5, 0, 100, {0, 100}},
    };
    for (const Row& row : rows) {
        const HatchGrid grid =
            hatchGrid(rectangle(row.left, 0, row.right, 8), {{row.first, 0}, row.width, 4});
        EXPECT_EQ(linesOf(grid.uprights), row.uprights) << row.what;
        EXPECT_EQ(linesOf(grid.levels), (Lines{0, 4, 8})) << row.what;
    }
}

TEST(HatchGrid, ATileWithoutSizeHasNone)
{
    const float infinity = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const float size : {0.0F, infinity, nan}) {
        const Polygon polygon = rectangle(0, 0, 100, 100);
        EXPECT_TRUE(hatchGrid(polygon, {{0, 0}, size, 10}).uprights.areNone()) << size;
        EXPECT_TRUE(hatchGrid(polygon, {{0, 0}, 10, size}).levels.areNone()) << size;
        EXPECT_TRUE(reachedCells(polygon, hatchGrid(polygon, {{0, 0}, size, 10})).empty()) << size;
        EXPECT_TRUE(reachedCells(polygon, hatchGrid(polygon, {{0, 0}, 10, size})).empty()) << size;
    }
}

TEST(HatchGrid, IsBoundedHoweverSmallTheTile)
{
    for (const float size : {1e-3F, 1e-10F, 1e-38F, 1e-45F}) {
        for (const float far : {100.0F, 1e6F, 3e38F}) {
            const Polygon polygon = rectangle(-far, -far, far, far);
            const HatchGrid grid = hatchGrid(polygon, {{-far, -far}, size, size});
            EXPECT_LE(reachedCells(polygon, grid).size(), hatchTableRows);
        }
    }
}

TEST(HatchGrid, CellsFarFromTheEndsOfAGridAreReached)
{
    // a wedge across 10 million uprights; the one level through it gives the cells
    const Polygon polygon = polygonOf(legsThrough({{1e7F, 0}, {1e7F, 15}, {0, 15}}));
    const auto cells = reachedCells(polygon, hatchGrid(polygon, {{1e7F, 0}, 1, 10}));
    ASSERT_EQ(cells.size(), hatchTableRows) << "6,666,667 would be, were there room";
    // from where the slanted side crosses the level 10, a third of the way, on
    for (const std::size_t i : {std::size_t{0}, std::size_t{1}, hatchTableRows - 1}) {
        const float left = 3333333 + static_cast<float>(i); // exact
        EXPECT_EQ(cells[i].left, left);
        EXPECT_EQ(cells[i].right, left + 1);
        EXPECT_EQ(cells[i].top, 0);
        EXPECT_EQ(cells[i].bottom, 10);
    }
}

TEST(HatchGrid, RowsThatNothingReachesArePassedOver)
{
    // A side that leads nowhere, and a square far below its start: more levels than are looked at cross only
    // the former, so that no level has a span.
    Legs legs = {{{0.5F, 0}, {0.25F, 4e6F}}};
    for (const BoundaryLeg& leg : legsThrough({{0, 4e6F}, {2, 4e6F}, {2, 4000002}, {0, 4000002}})) {
        legs.push_back(leg);
    }
    const Polygon polygon = polygonOf(legs);
    // 4,000 million rows are above the square; in it coordinates are 0.25 apart
    EXPECT_EQ(reachedCells(polygon, hatchGrid(polygon, {{0.5F, 0}, 1, 1e-3F})).size(), 8U * 3)
        << "uprights at 0.5 and 1.5, eight rows, and the columns beside them";
}

TEST(HatchGrid, LinesThatFallTogetherAreOne)
{
    // at 2 to the power of 24, coordinates are 2 apart
    const float far = 16777216;
    const Polygon polygon = rectangle(far, 0, far + 8, 8);
    const auto cells = reachedCells(polygon, hatchGrid(polygon, {{far, 0}, 0.125F, 8}));
    ASSERT_EQ(cells.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(cells[i].left, far + 2 * static_cast<float>(i)); // exact
        EXPECT_EQ(cells[i].right, cells[i].left + 2);
    }
}

TEST(HatchGrid, CellsAreReachedRowByRow)
{
    const Polygon polygon = rectangle(0, 0, 20, 20);
    EXPECT_EQ(reached(polygon, hatchGrid(polygon, {{0, 0}, 10, 10})),
              (Cells{{0, 0}, {0, 1}, {1, 0}, {1, 1}}));
}

TEST(HatchGrid, ABoundaryWithinOneCellReachesNone)
{
    // Its first point lies on a corner of the grid, and a touch has no length.
    const Polygon polygon = polygonOf(legsThrough({{0, 0}, {8, 3}, {3, 8}}));
    EXPECT_EQ(reached(polygon, hatchGrid(polygon, {{0, 0}, 10, 10})), Cells{});
}

TEST(HatchGrid, ATouchingCornerFillsNoCell)
{
    const Polygon polygon = polygonOf(legsThrough({{0, 0}, {5, 10}, {10, 0}}));
    const Cells cells = reached(polygon, hatchGrid(polygon, {{0, 0}, 10, 10}));
    EXPECT_EQ(cells, (Cells{{0, 0}}))
        << "its top side lies along the cell; (5, 10) only touches the line below";
}

// Every cell against every span, as the rule says it.
Cells bySides(const Polygon& polygon, const HatchGrid& grid)
{
    const auto overlaps = [](const Polygon& p, float line, float low, float high) {
        std::vector<Extent> spans;
        addSpans(p, line, spans);
        return std::ranges::any_of(spans, [&](const Extent& span) {
            return std::min<double>(high, span.high) > std::max<double>(low, span.low);
        });
    };
    const Polygon level = overDiagonal(polygon);
    const Lines uprights = linesOf(grid.uprights), levels = linesOf(grid.levels);
    Cells cells;
    for (std::size_t row = 0; row + 1 < levels.size(); ++row) {
        for (std::size_t i = 0; i + 1 < uprights.size(); ++i) {
            const float left = uprights[i], right = uprights[i + 1];
            const float top = levels[row], bottom = levels[row + 1];
            if (overlaps(polygon, left, top, bottom) || overlaps(polygon, right, top, bottom) ||
                overlaps(level, top, left, right) || overlaps(level, bottom, left, right))
                cells.emplace_back(row, i);
        }
    }
    return cells;
}

TEST(HatchGrid, CellsAreThoseOfWhichASideIsInside)
{
    const std::vector<std::vector<Point>> shapes = {
        {{0, 0}, {97, 12}, {88, 71}, {33, 90}},
        {{0, 0}, {60, 0}, {60, 60}, {40, 60}, {40, 20}, {20, 20}, {20, 60}, {0, 60}},
        {{0, 0}, {100, 100}, {100, 0}, {0, 100}},
        {{50, 50}, {0, 20}, {100, 22}, {3, 80}, {40, -10}, {70, 91}},
    };
    for (const auto& corners : shapes) {
        for (const float size : {4.0F, 7.0F, 10.0F, 20.0F, 33.0F}) {
            const Polygon polygon = polygonOf(legsThrough(corners));
            const HatchGrid grid = hatchGrid(polygon, {corners[0], size, size * 0.75F});
            EXPECT_EQ(reached(polygon, grid), bySides(polygon, grid)) << size;
        }
    }
}

} // namespace
} // namespace mirtane
