#include "geometry/ortho.h"

#include "geometry/angle.h"
#include "slanted.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace mirtane {
namespace {

using fake::Slanted;

TEST(Ortho, EachUpperLimitBelongsToItsSector)
{
    struct Row {
        double direction;
        int sector;
    };
    const Row rows[] = {
        {0, 1},         {0.7853982, 1}, {0.7853983, 2}, {1.5707963, 2}, {2.3561945, 2},
        {2.3561946, 3}, {3.1415927, 3}, {3.9269908, 3}, {3.9269909, 4}, {4.712389, 4},
        {5.4977872, 4}, {5.4977873, 1}, {6.2831853, 1},
    };
    for (const Row& row : rows) EXPECT_EQ(sectorOfDirection(row.direction, 0), row.sector) << row.direction;
}

TEST(Ortho, TheSectorsTurnWithTheOrthoAngle)
{
    struct Row {
        const char* what;
        double direction, orthoAngle;
        int sector;
    };
    const Row rows[] = {
        {"along the angle", 0.5, 0.5, 1},
        {"a quarter on", 0.5 + 1.5707963, 0.5, 2},
        {"a half on", 0.5 + 3.1415927, 0.5, 3},
        {"three quarters on", 0.5 + 4.712389, 0.5, 4},
        {"a little below the angle comes round to 1", 0.4, 0.5, 1},
        {"far below the angle comes round to 4", 0.0, 1.5, 4},
        {"just over an eighth below", 0.0, 0.7854, 4},
        {"just under an eighth below", 0.0, 0.7853, 1},
        {"a negative ortho angle", 0.0, -0.698132, 1},
        {"a negative ortho angle beyond an eighth", 0.5, -0.698132, 2},
        {"nearly a turn on from an angle of a quarter below", 6.1, -1.5707963, 2},
        {"the same, past the middle between two axes", 5.4, -1.5707963, 1},
        {"a half turn below", 6.1, -3.1415927, 3},
        {"a whole turn below", 6.1, -6.2831853, 1},
        {"a whole turn below, a quarter on", 1.5707963, -6.2831853, 2},
        {"a whole turn below, three quarters on", 4.8, -6.2831853, 4},
        {"an eighth and more below, just before a turn", 6.2, -1, 2},
    };
    for (const Row& row : rows)
        EXPECT_EQ(sectorOfDirection(row.direction, row.orthoAngle), row.sector) << row.what;
}

TEST(Ortho, TheFourDiagonalsOfAPointer)
{
    struct Row {
        Point pointer;
        int sector;
    };
    const Row rows[] = {{{10, -10}, 1}, {{-10, -10}, 3}, {{-10, 10}, 4}, {{10, 10}, 4}};
    for (const Row& row : rows) {
        EXPECT_EQ(sectorOfDirection(directionAngle({0, 0}, row.pointer, 0), 0), row.sector)
            << row.pointer.x << ' ' << row.pointer.y;
    }
}

TEST(Ortho, ThePointStandsAtFullDistanceOnItsAxis)
{
    struct Row {
        int sector;
        Point point;
    };
    const Row rows[] = {{1, {110, 50}}, {2, {100, 40}}, {3, {90, 50}}, {4, {100, 60}}};
    for (const Row& row : rows) {
        const auto sector = static_cast<std::int16_t>(row.sector); // 1 to 4
        EXPECT_EQ(pointOnAxis({100, 50}, 10, sector, 0, {}), row.point) << row.sector;
    }
}

TEST(Ortho, TheAxesTurnWithTheOrthoAngle)
{
    const double t = 0.5;
    const double c = 10 * std::cos(t);
    const double s = 10 * std::sin(t);
    struct Row {
        int sector;
        double x, y;
    };
    const Row rows[] = {
        {1, 100 + c, 50 - s}, {2, 100 - s, 50 - c}, {3, 100 - c, 50 + s}, {4, 100 + s, 50 + c}};
    for (const Row& row : rows) {
        const auto sector = static_cast<std::int16_t>(row.sector); // 1 to 4
        const Point p = pointOnAxis({100, 50}, 10, sector, t, {});
        EXPECT_FLOAT_EQ(p.x, static_cast<float>(row.x)) << row.sector; // coordinates are floats
        EXPECT_FLOAT_EQ(p.y, static_cast<float>(row.y)) << row.sector;
    }
}

TEST(Ortho, APointerAtFortyFiveDegreesIsTurnedAndNotProjected)
{
    const Point origin{0, 0};
    const Point pointer{30, -30};
    const std::int16_t sector = sectorOfDirection(directionAngle(origin, pointer, 0), 0);
    const Point p = pointOnAxis(origin, distance(origin, pointer), sector, 0, {});
    EXPECT_FLOAT_EQ(p.x, 42.426407f); // 30 times the root of 2
    EXPECT_EQ(p.y, 0);
}

TEST(Ortho, ANegativeDistanceRunsBackward)
{
    EXPECT_EQ(pointOnAxis({0, 0}, -144, 1, 0, {}), (Point{-144, 0}));
    EXPECT_EQ(pointOnAxis({0, 0}, -144, 2, 0, {}), (Point{0, 144}));
}

TEST(Ortho, WhatCannotBeComputedLeavesTheFallback)
{
    const Point fallback{7, 8};
    EXPECT_EQ(pointOnAxis({1, 2}, 10, 0, 0, fallback), fallback);
    EXPECT_EQ(pointOnAxis({1, 2}, 10, 5, 0, fallback), fallback);
    EXPECT_EQ(pointOnAxis({1, 2}, 10, -1, 0, fallback), fallback);
    EXPECT_EQ(pointOnAxis({1, 2}, std::numeric_limits<double>::quiet_NaN(), 1, 0, fallback), fallback);
    EXPECT_EQ(pointOnAxis({3e38f, 2}, 3e38, 1, 0, fallback), (Point{7, 2})); // x alone overflows
}

// However short the leg: its end is rounded, and between its points it leans.
TEST(Ortho, ALegThatItLaidRunsAlongTheAxisItself)
{
    Slanted dice(71);
    for (int i = 0; i < 20000; ++i) {
        const double reach = dice.anySize(10, 2000000);
        const Point from = dice.pointWithin({0, 0}, reach);
        const double angle = dice.between(-6.3, 6.3);
        const auto sector = static_cast<std::int16_t>(1 + dice.below(4));
        const double length = dice.anySize(reach / 1e5, reach) * (dice.chance() ? 1 : -1);
        const Direction leg =
            directionByOrtho(from, pointOnAxis(from, length, sector, angle, from), sector, angle);
        const double turn = angle + (sector - 1) * std::acos(0.0);
        const double sign = length < 0 ? -1 : 1;
        ASSERT_NEAR(leg.x, sign * std::cos(turn), 1e-12) << i;
        ASSERT_NEAR(leg.y, -sign * std::sin(turn), 1e-12) << i;
        ASSERT_EQ(leg.rounding, 0) << i;
    }
}

TEST(Ortho, ALegBesideTheAxisRunsAsItsPointsLie)
{
    Slanted dice(72);
    for (int i = 0; i < 20000; ++i) {
        const double reach = dice.anySize(10, 2000000);
        const Point from = dice.pointWithin({0, 0}, reach);
        const double angle = dice.between(0, 6.28);
        const double off = dice.anySize(1e-4, 0.7) * (dice.chance() ? 1 : -1);
        const Point to = pointOnAxis(from, dice.between(reach / 100, reach), 2, angle + off, from);
        const Direction leg = directionByOrtho(from, to, 2, angle);
        const Direction free = directionOf(from, to);
        ASSERT_EQ(leg.x, free.x) << i;
        ASSERT_EQ(leg.y, free.y) << i;
    }
    EXPECT_TRUE(std::isnan(directionByOrtho({5, 6}, {5, 6}, 1, 0).x));
    EXPECT_EQ(directionByOrtho({0, 0}, {3, 4}, 0, 0).x, 0.6) << "no axis";
}

} // namespace
} // namespace mirtane
