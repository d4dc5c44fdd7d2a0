#include "geometry/circle_through.h"

#include "geometry/angle.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

struct Row {
    const char* what;
    Point a, b, c;
    Point centre;
    double radius;
};

TEST(CircleThrough, HoldsAllThreePointsWhateverTheAngles)
{
    const Row rows[] = {
        {"right angle", {0, 0}, {6, 0}, {0, 8}, {3, 4}, 5},
        {"obtuse at the first", {0, 0}, {1, 0}, {-1, 1}, {0.5F, 1.5F}, 1.5811388},
        {"obtuse at the second", {1, 0}, {0, 0}, {-1, 1}, {0.5F, 1.5F}, 1.5811388},
        {"obtuse at the third", {1, 0}, {-1, 1}, {0, 0}, {0.5F, 1.5F}, 1.5811388},
        {"far off", {4005, -3000}, {4000, -3005}, {3995, -3000}, {4000, -3000}, 5},
    };
    for (const Row& row : rows) {
        const auto found = circleThrough(row.a, row.b, row.c);
        ASSERT_TRUE(found) << row.what;
        EXPECT_NEAR(found->centre.x, row.centre.x, 1e-5) << row.what;
        EXPECT_NEAR(found->centre.y, row.centre.y, 1e-5) << row.what;
        EXPECT_NEAR(found->radius, row.radius, 1e-5) << row.what;
    }
}

TEST(CircleThrough, PointsOfOneLineHaveNone)
{
    EXPECT_FALSE(circleThrough({0, 0}, {5, 5}, {9, 9}));
    EXPECT_FALSE(circleThrough({0, 0}, {0, 0}, {9, 2}));
    EXPECT_FALSE(circleThrough({9, 2}, {0, 0}, {9, 2}));
    EXPECT_FALSE(circleThrough({9, 2}, {9, 2}, {9, 2}));
    EXPECT_FALSE(circleThrough({0, 0}, {3e30F, 0}, {-3e30F, 1})); // its centre is past all coordinates
}

TEST(ArcEnds, RunThroughTheMiddlePoint)
{
    const Point right{10, 0};
    const Point top{0, -10};
    const Point left{-10, 0};
    const Point bottom{0, 10};
    const ArcEnds over = endsThrough({0, 0}, right, top, left);
    EXPECT_EQ(over.a1, 0);
    EXPECT_EQ(over.a2, halfTurn);
    const ArcEnds under = endsThrough({0, 0}, right, bottom, left);
    EXPECT_EQ(under.a1, halfTurn);
    EXPECT_EQ(under.a2, 0);
    const ArcEnds most = endsThrough({0, 0}, bottom, left, right); // through the gap from bottom to right
    EXPECT_EQ(most.a1, 0);
    EXPECT_EQ(most.a2, threeQuartersTurn);
}

} // namespace
} // namespace mirtane
