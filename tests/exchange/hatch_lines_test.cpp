#include "exchange/hatch_lines.h"

#include "stroke_checks.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numbers>

namespace mirtane {
namespace {

Loop box(Vec low, Vec high, double angle = 0, Vec at = {})
{
    Loop loop{low, {high.x, low.y}, high, {low.x, high.y}};
    for (Vec& p : loop) p = placed(p, angle, at);
    return loop;
}

struct Place {
    const char* what;
    double angle;
    Vec at;
    bool isReversed;
};
const Place places[] = {
    {"as it is", 0, {0, 0}, false},
    {"slanted", 0.6, {4, -9}, false},
    {"far off, the other way round", -2.1, {4e6, 7e5}, true},
};

// Ends of lines of the box's own directions, to a thousandth, in the order of the lines.
std::vector<std::array<double, 4>> inBox(const std::vector<PatternLine>& lines, const Place& place)
{
    std::vector<std::array<double, 4>> rows;
    const auto back = [&](Vec p) {
        const Vec v = p - place.at;
        const Vec x = wayAt(place.angle);
        return Vec{std::round(1000 * dot(v, x)) / 1000 + 0.0,
                   std::round(1000 * dot(v, turnedLeft(x))) / 1000 + 0.0};
    };
    for (const PatternLine& line : lines)
        rows.push_back({back(line.from).x, back(line.from).y, back(line.to).x, back(line.to).y});
    std::ranges::sort(rows, {}, [](const auto& r) { return std::pair{r[1], r[0]}; });
    return rows;
}

struct SquareRow {
    const char* what;
    std::vector<Loop> loops; // where the place is none
    Vec offset;
    std::vector<double> dashes;
    std::vector<std::array<double, 4>> lines;
};

const SquareRow rows[] = {
    {"whole lines", {box({0, 0.5}, {10, 2.5})}, {0, 1}, {}, {{0, 1, 10, 1}, {0, 2, 10, 2}}},
    {"the other way up", {box({0, 0.5}, {10, 2.5})}, {0, -1}, {}, {{0, 1, 10, 1}, {0, 2, 10, 2}}},
    {"an island",
     {box({0, 0.5}, {10, 1.5}), box({3, 0.2}, {5, 2.8})},
     {0, 1},
     {},
     {{0, 1, 3, 1}, {3, 2, 5, 2}, {5, 1, 10, 1}}},
    {"dashes run from the base",
     {box({0.5, 0.5}, {8, 1.5})},
     {0, 1},
     {2, -1},
     {{0.5, 1, 2, 1}, {3, 1, 5, 1}, {6, 1, 8, 1}}},
    {"dashes move with the row",
     {box({0, 1.5}, {6, 2.5})},
     {0.5, 1},
     {2, -1},
     {{0, 2, 0, 2}, {1, 2, 3, 2}, {4, 2, 6, 2}}},
    {"dots", {box({0.5, 0.5}, {4.5, 1.5})}, {0, 1}, {0, -2}, {{2, 1, 2, 1}, {4, 1, 4, 1}}},
    {"dash and dot",
     {box({0, 0.5}, {7, 1.5})},
     {0, 1},
     {3, -1, 0, -1},
     {{0, 1, 3, 1}, {4, 1, 4, 1}, {5, 1, 7, 1}}},
    {"between the lines", {box({0, 0.2}, {9, 0.8})}, {0, 1}, {}, {}},
    {"an edge on a line", {box({0, 1}, {9, 2})}, {0, 1}, {}, {{0, 1, 9, 1}}},
    {"a corner on a line", {{{0, 0.5}, {4, 1}, {0, 1.5}}}, {0, 1}, {}, {{0, 1, 4, 1}}},
};

// With the work of a drawing of its own.
std::optional<std::vector<PatternLine>> linesOf(std::span<const Loop> loops, std::span<const PatternRow> rows,
                                                std::size_t most)
{
    PatternWork work;
    return patternLines(loops, rows, most, work);
}

TEST(PatternLines, AreWhatLiesInAnOddNumberOfLoops)
{
    for (const SquareRow& row : rows) {
        for (const Place& place : places) {
            std::vector<Loop> loops = row.loops;
            for (Loop& loop : loops) {
                for (Vec& p : loop) p = placed(p, place.angle, place.at);
                if (place.isReversed) std::ranges::reverse(loop);
            }
            const PatternRow pattern{place.at, wayAt(place.angle), placed(row.offset, place.angle, {}),
                                     row.dashes};
            const auto found = linesOf(loops, {{pattern}}, 100);
            ASSERT_TRUE(found) << row.what;
            auto expected = row.lines;
            std::ranges::sort(expected, {}, [](const auto& r) { return std::pair{r[1], r[0]}; });
            auto lines = inBox(*found, place);
            std::erase_if(lines, [](const auto& l) {
                return l[0] == l[2] && l[0] == 0;
            }); // a dash that ends on the edge
            std::erase_if(expected, [](const auto& l) { return l[0] == l[2] && l[0] == 0; });
            if (place.at.x > 1e6 && (row.what == std::string("an edge on a line")))
                continue; // which edge is rounding's
            EXPECT_EQ(lines, expected) << row.what << ", " << place.what;
        }
    }
}

TEST(PatternLines, SoManyThatTheyCoverTheAreaAreNone)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    const std::vector<Loop> loops{box({0, 0}, {100, 100})};
    const PatternRow dense[] = {
        {{0, 0}, {1, 0}, {0, 0.001}, {}},
        {{0, 0}, {1, 0}, {0, 1e-300}, {}},
        {{0, 0}, {1, 0}, {5, 0}, {}},
        {{0, 0}, {1, 0}, {0, 0}, {}},
        {{0, 0}, {1, 0}, {0, 10}, {0.001, -0.001}},
        {{0, 0}, {1, 0}, {0, 10}, {1e-300, -1e-300}},
        {{0, 0}, {1, 0}, {0, none}, {}},
        {{0, 1e17}, {1, 0}, {0, 1}, {}},
        {{0, -3e18}, {1, 0}, {0, -40}, {}},
        {{none, 0}, {1, 0}, {0, 1}, {}},
    };
    for (const PatternRow& row : dense) EXPECT_FALSE(linesOf(loops, {{row}}, 5000)) << row.offset.y;
    // gaps and rows that leave no line are looked at all the same
    PatternRow gaps{{0, 0}, {1, 0}, {0, 1}, {0.002}};
    gaps.dashes.insert(gaps.dashes.end(), 100'000, -1e-9);
    EXPECT_FALSE(linesOf(loops, {{gaps}}, 1'000'000));
    EXPECT_FALSE(linesOf(loops, std::vector<PatternRow>(510'000, {{0, -500}, {1, 0}, {0, 1000}, {}}), 5000));
    EXPECT_FALSE(linesOf(loops, std::vector<PatternRow>(30, {{0, 0}, {1, 0}, {0, 0.5}, {}}), 5000));
    EXPECT_TRUE(linesOf(loops, std::vector<PatternRow>(20, {{0, 0}, {1, 0}, {0, 0.5}, {}}), 5000));
}

TEST(PatternLines, NoLoopsNoLines)
{
    const PatternRow row{{0, 0}, {1, 0}, {0, 1}, {}};
    EXPECT_TRUE(linesOf({}, {{row}}, 10)->empty());
    const std::vector<Loop> loops{{}, {{1, 1}}, {{1, 1}, {5, 5}}};
    EXPECT_TRUE(linesOf(loops, {{row}}, 10)->empty());
}

// Hatches too dense to be drawn cost what they are looked at, so that no number of them takes long.
TEST(PatternLines, AllHatchesOfADrawingShareItsWork)
{
    const std::vector<Loop> loops{box({0, 0}, {100, 100})};
    PatternRow gaps{{0, 0}, {1, 0}, {0, 1}, {0.002}};
    gaps.dashes.insert(gaps.dashes.end(), 100'000, -1e-9);
    const PatternRow plain{{0, 0}, {1, 0}, {0, 1}, {}};
    PatternWork work{.left = 5000};
    EXPECT_TRUE(patternLines(loops, {{plain}}, 1000, work));
    EXPECT_GT(work.left, 3000U); // a hundred lines have two crossings each
    EXPECT_FALSE(patternLines(loops, {{gaps}}, 100'000, work));
    EXPECT_EQ(work.left, 0U);
    EXPECT_FALSE(patternLines(loops, {{plain}}, 1000, work));
}

TEST(LoopDepths, CountTheLoopsAround)
{
    PatternWork work;
    const std::vector<Loop> loops{box({0, 0}, {9, 9}), box({-5, -5}, {20, 20}), box({1, 1}, {4, 4}, 0.1),
                                  box({30, 0}, {40, 9}), box({0.5, 2}, {8, 3})};
    EXPECT_EQ(depthsOf(loops, work), (std::vector<int>{1, 0, 2, 0, 2}));
    PatternWork none{.left = 10};
    EXPECT_EQ(depthsOf(loops, none), std::vector<int>(loops.size(), 0));
}

} // namespace
} // namespace mirtane
