#include "geometry/angle.h"
#include "geometry/foot.h"
#include "geometry/nearest.h"
#include "geometry/tangent.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace mirtane {
namespace {

void expectNear(Point found, Point wanted, const char* what)
{
    EXPECT_NEAR(found.x, wanted.x, 1e-4) << what;
    EXPECT_NEAR(found.y, wanted.y, 1e-4) << what;
}

TEST(Foot, LiesOnTheEndlessLine)
{
    struct Row {
        const char* what;
        Point p, a, b, foot;
    };
    const Row rows[] = {
        {"over a level line", {3, 7}, {0, 2}, {10, 2}, {3, 2}},
        {"beside an upright one", {7, 3}, {2, 0}, {2, 10}, {2, 3}},
        {"of a slope", {10, 0}, {0, 0}, {10, 10}, {5, 5}},
        {"the other way", {10, 0}, {10, 10}, {0, 0}, {5, 5}},
        {"beyond the end", {20, 7}, {0, 2}, {10, 2}, {20, 2}},
        {"before the start", {-5, 7}, {0, 2}, {10, 2}, {-5, 2}},
        {"of a point on it", {4, 2}, {0, 2}, {10, 2}, {4, 2}},
        {"of its start", {0, 2}, {0, 2}, {10, 2}, {0, 2}},
    };
    for (const Row& row : rows)
        expectNear(footOfPerpendicular(row.p, row.a, row.b, {99, 99}), row.foot, row.what);
}

TEST(Foot, IsExactFarFromTheOrigin)
{
    // A difference taken in 32 bits would be a hundredth off here.
    EXPECT_EQ(footOfPerpendicular({100000.28f, 5}, {-200000.3f, 0}, {200000, 0}, {}), (Point{100000.28f, 0}));
}

TEST(Foot, OnNoLineTheHeldPointComesBack)
{
    EXPECT_EQ(footOfPerpendicular({3, 7}, {1, 1}, {1, 1}, {8, 9}), (Point{8, 9}));
    EXPECT_EQ(footOfPerpendicular({3, 7}, {1, 1}, {std::numeric_limits<float>::infinity(), 1}, {8, 9}),
              (Point{8, 9}));
}

TEST(NearestOnSegment, LiesBetweenTheEndsOrOnThem)
{
    struct Row {
        const char* what;
        Point p, a, b;
        std::optional<Point> nearest;
    };
    const Row rows[] = {
        {"between", {3, 7}, {0, 2}, {10, 2}, Point{3, 2}},
        {"over the start", {0, 7}, {0, 2}, {10, 2}, Point{0, 2}},
        {"over the end", {10, 7}, {0, 2}, {10, 2}, Point{10, 2}},
        {"before the start", {-0.001f, 7}, {0, 2}, {10, 2}, std::nullopt},
        {"beyond the end", {10.001f, 7}, {0, 2}, {10, 2}, std::nullopt},
        {"over the end of a slope", {7.3f, 6.7f}, {1, 1}, {7, 7}, Point{7, 7}},
        {"a line of no length", {3, 7}, {4, 4}, {4, 4}, Point{4, 4}},
    };
    for (const Row& row : rows) {
        const auto found = nearestOnSegment(row.p, row.a, row.b);
        ASSERT_EQ(found.has_value(), row.nearest.has_value()) << row.what;
        if (found) expectNear(*found, *row.nearest, row.what);
    }
}

TEST(NearestOnCircle, LiesTowardsThePoint)
{
    struct Row {
        const char* what;
        Point p, nearest;
    };
    const Row rows[] = {
        {"right", {40, 20}, {15, 20}},       {"left, within", {7, 20}, {5, 20}},
        {"above", {10, 3}, {10, 15}},        {"below", {10, 90}, {10, 25}},
        {"upper right", {16, 12}, {13, 16}}, {"upper left", {4, 12}, {7, 16}},
        {"lower left", {4, 28}, {7, 24}},    {"lower right", {16, 28}, {13, 24}},
        {"the centre", {10, 20}, {10, 20}},  {"on it", {13, 24}, {13, 24}},
    };
    for (const Row& row : rows) expectNear(nearestOnCircle(row.p, {10, 20}, 5), row.nearest, row.what);
    EXPECT_EQ(nearestOnCircle({1000.1f, 20}, {10, 20}, 5), (Point{15, 20})) << "exact on an axis";
    EXPECT_EQ(nearestOnCircle({10, -1000.1f}, {10, 20}, 5), (Point{10, 15})) << "exact on the other";
}

TEST(Ellipse, AxisEndsStandInOrder)
{
    struct Row {
        const char* what;
        Ellipse e;
        std::array<Point, 4> ends;
    };
    const Row rows[] = {
        {"level", {{20, 5}, {10, 5}, 0.5f}, {{{20, 5}, {0, 5}, {10, 0}, {10, 10}}}},
        {"upright", {{10, -5}, {10, 5}, 0.5f}, {{{10, -5}, {10, 15}, {5, 5}, {15, 5}}}},
        {"turned, the second axis longer", {{13, 1}, {10, 5}, 2}, {{{13, 1}, {7, 9}, {2, -1}, {18, 11}}}},
        {"of no size", {{10, 5}, {10, 5}, 2}, {{{10, 5}, {10, 5}, {10, 5}, {10, 5}}}},
    };
    for (const Row& row : rows) {
        for (std::size_t i = 0; i < 4; ++i) expectNear(axisEnds(row.e)[i], row.ends[i], row.what);
    }
}

TEST(Ellipse, ItsPointsRunCounterClockwise)
{
    const Ellipse e{{20, 5}, {10, 5}, 0.5f};
    expectNear(ellipsePoint(e, 0), {20, 5}, "the axis end");
    expectNear(ellipsePoint(e, 1.0471976), {15, 5 - 4.330127f}, "a sixth");
    expectNear(ellipsePoint(e, 1.5707963), {10, 0}, "up");
    expectNear(ellipsePoint(e, 4.712389), {10, 10}, "down");
}

TEST(Ellipse, HalfAxesAreOrdered)
{
    EXPECT_EQ(halfAxes({{13, 1}, {10, 5}, 2}).longer, 10);
    EXPECT_EQ(halfAxes({{13, 1}, {10, 5}, 2}).shorter, 5);
    EXPECT_EQ(halfAxes({{13, 1}, {10, 5}, 0.5f}).longer, 5);
    EXPECT_EQ(halfAxes({{13, 1}, {10, 5}, -0.5f}).shorter, 2.5);
}

TEST(NearestOnEllipse, IsOneOfTheSamples)
{
    const Ellipse e{{1010, 5}, {10, 5}, 0.5f};
    expectNear(nearestOnEllipse({1100, 5}, e), {1010, 5}, "the axis end");
    expectNear(nearestOnEllipse({10, -600}, e), {10, -495}, "up");
    const double theta = 7 * 6.2831853 / 180;
    const Point sample{static_cast<float>(10 + 1000 * std::cos(theta)), // coordinates are 32-bit
                       static_cast<float>(5 - 500 * std::sin(theta))};
    expectNear(nearestOnEllipse({sample.x + 3, sample.y + 3}, e), sample, "the seventh");
}

TEST(NearestOnEllipse, WithoutSizeIsItsCentre)
{
    EXPECT_EQ(nearestOnEllipse({20, 9}, {{10, 5}, {10, 5}, 1}), (Point{10, 5}));
}

TEST(NearestOnEllipse, OfEqualsTheLastIsTaken)
{
    // So flat that the samples a quarter turn either way lie right over and under the pointer.
    const Point found = nearestOnEllipse({10, 0}, {{20, 0}, {10, 0}, 1e-5f});
    EXPECT_EQ(found.x, 10);
    EXPECT_GT(found.y, 0) << "the lower one comes later";
}

TEST(NearestOnEllipse, TheLastSampleIsReached)
{
    const Ellipse round{{110, 5}, {10, 5}, 1};
    const Point last = ellipsePoint(round, 179 * 6.2831853 / 180);
    // Between sample 179 and sample 0, on the ray half way.
    const double half = -6.2831853 / 360;
    const Point pointer{static_cast<float>(10 + 100 * std::cos(half)), // coordinates are 32-bit
                        static_cast<float>(5 - 100 * std::sin(half))};
    const Point found = nearestOnEllipse({pointer.x, pointer.y + 0.01f}, round);
    expectNear(found, last, "a little towards it");
}

TEST(Tangent, TouchesAtARightAngle)
{
    struct Row {
        const char* what;
        Point from, left, right;
    };
    const Row rows[] = {
        {"from the right", {100, 0}, {36, -48}, {36, 48}},
        {"from the left", {-100, 0}, {-36, 48}, {-36, -48}},
        {"from above", {0, -100}, {-48, -36}, {48, -36}},
        {"from below", {0, 100}, {48, 36}, {-48, 36}},
        {"from the circle", {60, 0}, {60, 0}, {60, 0}},
        {"from within", {30, 0}, {75, 0}, {75, 0}},
        {"from the centre", {0, 0}, {0, 0}, {0, 0}},
    };
    for (const Row& row : rows) {
        const auto points = tangentPoints(row.from, {0, 0}, 60);
        expectNear(points[0], row.left, row.what);
        expectNear(points[1], row.right, row.what);
    }
}

TEST(Reach, ComparesIn32Bits)
{
    EXPECT_EQ(reach({0, 0}, {3, 4}), 5.0f);
    EXPECT_TRUE(isNearer({0, 0}, {1, 0}, {0, 2}));
    EXPECT_FALSE(isNearer({0, 0}, {1, 0}, {0, 1}));
    EXPECT_FALSE(isNearer({0, 0}, {0, 2}, {1, 0}));
}

} // namespace
} // namespace mirtane
