#include "geometry/parallel.h"

#include "geometry/along.h"
#include "geometry/rounding.h"
#include "geometry/tangent.h"
#include "slanted.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace mirtane {
namespace {

using fake::Slanted;

void expectAt(const Crossings& found, double x, double y, const char* what)
{
    ASSERT_EQ(found.count, 1) << what;
    EXPECT_NEAR(found.points[0].x, x, 1e-4) << what;
    EXPECT_NEAR(found.points[0].y, y, 1e-4) << what;
}

struct SideRow {
    const char* what;
    Point a, b, towards;
    double distance;
    double y; // where it crosses the upright through 3
};

TEST(ParallelLine, LiesOnTheSideOfThePoint)
{
    const SideRow rows[] = {
        {"below", {0, 0}, {10, 0}, {3, 8}, 2, 2},
        {"above", {0, 0}, {10, 0}, {3, -8}, 2, -2},
        {"above, of a line that runs back", {10, 0}, {0, 0}, {3, -8}, 2, -2},
        {"the other side, by a negative distance", {0, 0}, {10, 0}, {3, 8}, -2, -2},
        {"beyond the end", {0, 0}, {10, 0}, {30, 8}, 2, 2},
        {"on the line: no side", {0, 0}, {10, 0}, {5, 0}, 2, 0},
        {"slanted", {0, 0}, {4, 3}, {0, 9}, 4, 2.25 + 5},
        {"none", {0, 0}, {10, 0}, {3, 8}, 0, 0},
    };
    const ParallelLine upright = parallelTowards({3, 0}, {3, 1}, {3, 0}, 0);
    for (const SideRow& row : rows)
        expectAt(crossParallels(parallelTowards(row.a, row.b, row.towards, row.distance), upright), 3, row.y,
                 row.what);
}

TEST(ParallelLine, MeetsNoLineThatRunsAlongside)
{
    const ParallelLine level = parallelTowards({0, 0}, {10, 0}, {0, 5}, 1);
    EXPECT_EQ(crossParallels(level, parallelTowards({0, 7}, {10, 7}, {0, 5}, 1)).count, 0);
    EXPECT_EQ(crossParallels(level, level).count, 0);
}

TEST(ParallelLine, OfNoLineMeetsNothing)
{
    const ParallelLine none = parallelTowards({4, 4}, {4, 4}, {0, 5}, 1);
    const ParallelLine level = parallelTowards({0, 0}, {10, 0}, {0, 5}, 1);
    EXPECT_EQ(crossParallels(none, level).count, 0);
    EXPECT_EQ(crossParallels(level, none).count, 0);
    EXPECT_EQ(crossParallelCircle(none, {4, 4}, 10).count, 0);
}

// Short, slanted and far from where they meet: rounded to 32 bits, the lines would lean.
TEST(ParallelLine, MeetsFarOffWhereItShould)
{
    const ParallelLine a = parallelTowards({4000, 3000}, {4001, 3003}, {4100, 3000}, 10);
    const ParallelLine b = parallelTowards({0, 0}, {1, 0}, {0, 9}, 7);
    const Crossings found = crossParallels(a, b);
    ASSERT_EQ(found.count, 1);
    // Along (1, 3) from (4000, 3000), moved by ten across it, at y = 7.
    EXPECT_NEAR(found.points[0].x, 4000 + (7 - 3000) / 3.0 + 10 * std::sqrt(10) / 3, 1e-3);
    EXPECT_EQ(found.points[0].y, 7);
}

TEST(ParallelLine, MeetsACircleTwiceOnceOrNotAtAll)
{
    const Point centre{20, 30};
    const auto levelAt = [](float y) { return parallelTowards({0, 0}, {10, 0}, {0, 100}, y); };
    const Crossings two = crossParallelCircle(levelAt(27), centre, 5);
    ASSERT_EQ(two.count, 2);
    EXPECT_NEAR(std::abs(two.points[0].x - 20), 4, 1e-5);
    EXPECT_NEAR(two.points[0].x + two.points[1].x, 40, 1e-5);
    EXPECT_NEAR(two.points[0].y, 27, 1e-5);
    expectAt(crossParallelCircle(levelAt(35), centre, 5), 20, 35, "touching");
    EXPECT_EQ(crossParallelCircle(levelAt(36), centre, 5).count, 0);
}

TEST(PositionAlong, IsThatOfTheFootAndHasASign)
{
    EXPECT_DOUBLE_EQ(positionAlong({3, 50}, {0, 0}, {10, 0}), 3);
    EXPECT_DOUBLE_EQ(positionAlong({-3, 50}, {0, 0}, {10, 0}), -3);
    EXPECT_DOUBLE_EQ(positionAlong({12, -1}, {10, 0}, {0, 0}), -2);
    EXPECT_DOUBLE_EQ(positionAlong({6, 8}, {0, 0}, {3, 4}), 10);
    EXPECT_TRUE(std::isnan(positionAlong({6, 8}, {3, 4}, {3, 4})));
}

TEST(CrossParallels, LinesOfOneDirectionDoNotMeetWhateverTheirLengths)
{
    const Point pairs[][4] = {
        {{0, 0}, {3, 1}, {0, 10}, {9, 13}},
        {{100, 100}, {400, 200}, {100, 300}, {1000, 600}},
        {{0, 0}, {7, 3}, {5, 50}, {12, 53}},
        {{0, 0}, {0, 9}, {4, 0}, {4, 1}},
    };
    for (const auto& p : pairs) {
        const ParallelLine a = parallelTowards(p[0], p[1], p[2], 2);
        const ParallelLine b = parallelTowards(p[2], p[3], p[0], 2);
        EXPECT_EQ(crossParallels(a, b).count, 0) << p[1].x << " " << p[3].x;
    }
}

// Beside a tangent, towards the centre: it touches the circle that lies inside by as much.
TEST(ParallelLine, BesideATangentTouchesTheCircleInside)
{
    Slanted dice(85);
    for (int i = 0; i < 30000; ++i) {
        const double reach = dice.anySize(20, 500000);
        const Point centre = dice.pointWithin({0, 0}, reach);
        const auto radius = static_cast<float>(dice.between(reach / 100, reach / 3)); // as stored
        const double way = dice.between(0, 6.28);
        const Point from{static_cast<float>(centre.x + 3 * radius * std::cos(way)),
                         static_cast<float>(centre.y + 3 * radius * std::sin(way))};
        const Point touch = tangentPoints(from, centre, radius)[dice.chance() ? 0 : 1];
        const double aside = dice.between(0.1, 0.9) * radius;
        const Crossings found =
            crossParallelCircle(parallelTowards(from, touch, centre, aside), centre, radius - aside);
        ASSERT_EQ(found.count, 1) << i;
        ASSERT_NEAR(distance(found.points[0], touch), aside, 20 * halfStepOf(2 * reach)) << i;
    }
}

TEST(ParallelLine, FootOfAPoint)
{
    const ParallelLine slanted = lineThrough({10, 20}, directionOf({0, 0}, {4, 3}));
    EXPECT_EQ(footOnLine({13, 16}, slanted, {}), (Point{10, 20}));
    EXPECT_EQ(footOnLine({1013, 766}, slanted, {}), (Point{1010, 770}));
    const ParallelLine level = lineThrough({0.1F, 0.3F}, {1, 0, 0});
    EXPECT_EQ(footOnLine({123.456F, 70000}, level, {}), (Point{123.456F, 0.3F})) << "exact on an axis";
    const ParallelLine none = lineThrough({4, 4}, directionOf({4, 4}, {4, 4}));
    EXPECT_EQ(footOnLine({5, 6}, none, {7, 8}), (Point{7, 8}));
}

} // namespace
} // namespace mirtane
