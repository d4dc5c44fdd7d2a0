#include "geometry/way.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace mirtane {
namespace {

TEST(Way, IsOfLengthOneWhereverItLies)
{
    struct Row {
        Point from, to;
        double x, y;
    };
    const Row rows[] = {
        {{0, 0}, {5, 0}, 1, 0},
        {{0, 0}, {0, -7}, 0, -1},
        {{10, 20}, {13, 24}, 0.6, 0.8},
        {{10, 20}, {7, 16}, -0.6, -0.8},
        {{100000, -70000}, {100008, -70006}, 0.8, -0.6},
        {{0, 0}, {1e-30F, 0}, 1, 0},
    };
    for (const Row& row : rows) {
        const Way way = wayBetween(row.from, row.to);
        EXPECT_TRUE(way.isAny());
        EXPECT_NEAR(way.x, row.x, 1e-12);
        EXPECT_NEAR(way.y, row.y, 1e-12);
        EXPECT_EQ((-way).x, -way.x);
        EXPECT_EQ((-way).y, -way.y);
    }
}

TEST(Way, IsNoneBetweenEqualPointsOrOnesTooFarApart)
{
    constexpr float far = std::numeric_limits<float>::max();
    EXPECT_FALSE(Way{}.isAny());
    EXPECT_FALSE(wayBetween({3, 4}, {3, 4}).isAny());
    EXPECT_FALSE(wayBetween({-far, 0}, {far, 0}).isAny());
}

} // namespace
} // namespace mirtane
