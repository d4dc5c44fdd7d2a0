#include "library/scan_lines.h"

#include "library_desk.h"

#include <gtest/gtest.h>

#include <limits>

namespace mirtane {
namespace {

using fake::legsThrough;

using Corners = std::vector<Point>;

const Corners squareCorners = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};
const Corners diamond = {{0, 10}, {10, 0}, {20, 10}, {10, 20}};
const Corners comb = {{0, 0}, {30, 0}, {30, 10}, {20, 10}, {20, 4}, {10, 4}, {10, 10}, {0, 10}};
const Corners bowTie = {{0, 0}, {10, 10}, {10, 0}, {0, 10}};

std::vector<std::vector<double>> spansAt(const Corners& corners, double x)
{
    std::vector<Extent> spans;
    addSpans(polygonOf(legsThrough(corners)), x, spans);
    std::vector<std::vector<double>> ends;
    for (const Extent& span : spans) ends.push_back({span.low, span.high});
    return ends;
}

TEST(ScanLines, SpansLieBetweenPairsOfCrossings)
{
    using Spans = std::vector<std::vector<double>>;
    struct Row {
        const char* what;
        const Corners& corners;
        double x;
        Spans spans;
    };
    const Row rows[] = {
        {"through a squareCorners", squareCorners, 5, {{0, 10}}},
        {"beside it, left", squareCorners, -1, {}},
        {"beside it, right", squareCorners, 11, {}},
        {"along its left side, which is added whole besides", squareCorners, 0, {{0, 10}, {0, 10}}},
        {"along its right side, which is no crossing", squareCorners, 10, {{0, 10}}},
        {"through a corner at the left", diamond, 0, {{10, 10}}},
        {"through corners above and below", diamond, 10, {{0, 20}}},
        {"through a corner at the right", diamond, 20, {}},
        {"through a tooth of a comb", comb, 5, {{0, 10}}},
        {"between teeth", comb, 15, {{0, 4}}},
        {"along the left side of a tooth", comb, 20, {{4, 10}, {0, 10}}},
        {"along the right side of a tooth", comb, 10, {{4, 10}, {0, 4}}},
        {"left of where the sides cross", bowTie, 2, {{2, 8}}},
        {"where the sides cross", bowTie, 5, {{5, 5}}},
    };
    for (const Row& row : rows) EXPECT_EQ(spansAt(row.corners, row.x), row.spans) << row.what;
}

TEST(ScanLines, InsideIsAnOddNumberOfSidesBelow)
{
    struct Row {
        const char* what;
        const Corners& corners;
        Place p;
        bool inside;
    };
    const Row rows[] = {
        {"in a squareCorners", squareCorners, {5, 5}, true},
        {"above it", squareCorners, {5, -5}, false},
        {"below it", squareCorners, {5, 15}, false},
        {"left of it", squareCorners, {-5, 5}, false},
        {"on its top side", squareCorners, {5, 0}, true},
        {"on its bottom side", squareCorners, {5, 10}, false},
        {"on its left side", squareCorners, {0, 5}, true},
        {"on its right side", squareCorners, {10, 5}, false},
        {"in a comb's gap", comb, {15, 7}, false},
        {"in a comb's back", comb, {15, 2}, true},
        {"level with a corner", diamond, {5, 10}, true},
        {"in line with corners above and below", diamond, {10, 5}, true},
        {"beside a corner", diamond, {-5, 10}, false},
        {"in a wing of a bow tie", bowTie, {2, 5}, true},
        {"between the wings", bowTie, {5, 2}, false},
    };
    for (const Row& row : rows)
        EXPECT_EQ(isInside(polygonOf(legsThrough(row.corners)), row.p), row.inside) << row.what;
}

TEST(ScanLines, LegsWithCoordinatesThatAreNoneAreLeftOut)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    const BoundaryLeg legs[] = {{{0, 0}, {nan, 0}}, {{infinity, 0}, {0, 0}}, {{0, 0}, {3e38F, 3e38F}}};
    const Polygon polygon = polygonOf(legs);
    ASSERT_EQ(polygon.size(), 1U) << "a large number is one";
    EXPECT_EQ(polygon[0].b.x, 3e38F);
}

TEST(ScanLines, TheExtentHoldsAllCorners)
{
    const Polygon polygon = polygonOf(legsThrough({{3, 50}, {-7, 60}, {12, -80}}));
    EXPECT_EQ(extentInX(polygon).low, -7);
    EXPECT_EQ(extentInX(polygon).high, 12);
    EXPECT_EQ(extentInX(overDiagonal(polygon)).low, -80);
    EXPECT_EQ(extentInX(overDiagonal(polygon)).high, 60);
    EXPECT_EQ(extentInX({}).high, 0);
}

} // namespace
} // namespace mirtane
