#include "library/hatch_grid.h"

#include "library_desk.h"

#include <gtest/gtest.h>

#include <limits>
#include <set>

namespace mirtane {
namespace {

using fake::legsThrough;
using Lines = std::vector<float>;
using Cells = std::vector<std::pair<std::size_t, std::size_t>>; // row, place in the row

Polygon rectangle(float left, float top, float right, float bottom)
{
    return polygonOf(legsThrough({{left, top}, {right, top}, {right, bottom}, {left, bottom}}));
}

Cells reached(const Polygon& polygon, const HatchGrid& grid)
{
    Cells cells;
    for (const HatchCell& cell : reachedCells(polygon, grid)) cells.emplace_back(cell.level, cell.upright);
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
        EXPECT_EQ(grid.uprights, row.uprights) << row.what;
        EXPECT_EQ(grid.levels, (Lines{0, 4, 8})) << row.what;
    }
}

TEST(HatchGrid, ATileWithoutSizeHasNone)
{
    const float infinity = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const float size : {0.0F, infinity, nan}) {
        const Polygon polygon = rectangle(0, 0, 100, 100);
        EXPECT_TRUE(hatchGrid(polygon, {{0, 0}, size, 10}).uprights.empty()) << size;
        EXPECT_TRUE(hatchGrid(polygon, {{0, 0}, 10, size}).levels.empty()) << size;
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
            EXPECT_LE(grid.uprights.size(), hatchTableRows + 1);
            EXPECT_LE(reachedCells(polygon, grid).size(), hatchTableRows);
        }
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
    Cells cells;
    for (std::size_t row = 0; row + 1 < grid.levels.size(); ++row) {
        for (std::size_t i = 0; i + 1 < grid.uprights.size(); ++i) {
            const float left = grid.uprights[i], right = grid.uprights[i + 1];
            const float top = grid.levels[row], bottom = grid.levels[row + 1];
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
