#include "geometry/arc.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

TEST(Arc, SweepAndMiddlePassThroughAngleZero)
{
    struct Row {
        double a1, a2, sweep, middle;
    };
    const Row rows[] = {
        {0, 1.5, 1.5, 0.75},
        {1, 1, 0, 1},
        {4.712389, 1.5707963, 3.1415926, 6.28318530},
        {6, 0.5, 0.7831853, 0.1084073},
        {0, 6.2831853, 6.2831853, 3.14159265},
    };
    for (const Row& row : rows) {
        EXPECT_NEAR(sweep(row.a1, row.a2), row.sweep, 1e-7) << row.a1;
        EXPECT_NEAR(middleAngle(row.a1, row.a2), row.middle, 1e-7) << row.a1;
    }
}

TEST(Arc, AWholeTurnIsSeenAsOneWhateverItsAnglesWereAddedUpFrom)
{
    constexpr double turn = 6.283185307179586;
    for (const double degrees : {0.0, 11.25, 90.0, 123.4, 270.0, 359.0}) {
        const double a1 = degrees * 0.0174533, a2 = (degrees + 360) * 0.0174533;
        EXPECT_DOUBLE_EQ(sweepSeen(a1, a2), turn) << degrees;
        EXPECT_DOUBLE_EQ(sweepSeen(a1 + 0.7, a2 + 0.7), turn) << degrees;
        const double a = degrees * 0.0174533;
        EXPECT_NEAR(sweepSeen(a, a + 6.2831853), turn, 1e-7) << degrees;
        EXPECT_NEAR(sweepSeen(a, a + 6.283), 6.283, 1e-7) << degrees;
        EXPECT_NEAR(sweepSeen(a, a + 6.2842), 6.2842 - turn, 1e-7) << degrees;
        EXPECT_NEAR(sweepSeen(a, a - 0.1), turn - 0.1, 1e-7) << degrees;
        EXPECT_EQ(sweepSeen(a, a), 0) << degrees;
    }
}

TEST(Arc, PointsThatLieOnAnAxisAreExact)
{
    const ArcPoints points = arcPoints({7, 9}, 100, 4.712389, 1.5707963);
    EXPECT_EQ(points.start, (Point{7, 109}));
    EXPECT_EQ(points.end, (Point{7, -91}));
    EXPECT_EQ(points.middle, (Point{107, 9}));
}

TEST(Arc, OnTheSweepWithItsEndsAndNoRoomBeyond)
{
    struct Row {
        const char* what;
        double angle, a1, a2;
        bool on, justBeyond;
    };
    const Row rows[] = {
        {"within", 1.5, 1, 2, true, true},
        {"at the start", 1, 1, 2, true, true},
        {"at the end", 2, 1, 2, true, true},
        {"just before", 0.995, 1, 2, false, true},
        {"just behind", 2.005, 1, 2, false, true},
        {"before", 0.98, 1, 2, false, false},
        {"behind", 2.02, 1, 2, false, false},
        {"at angle 0 of an arc through it", 0, 6, 1, true, true},
        {"before angle 0", 6.2, 6, 1, true, true},
        {"off an arc through angle 0", 3, 6, 1, false, false},
        {"just before a start at angle 0", 6.2781, 0, 1, false, true},
        {"just behind an end at angle 0", 0.005, 5, 6.2831853, false, true},
        {"a full turn from angle 0", 3, 0, 6.2831853, true, true},
        {"an arc of no sweep, there", 1, 1, 1, true, true},
        {"an arc of no sweep, elsewhere", 1.0001, 1, 1, false, false},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(onSweep(row.angle, row.a1, row.a2), row.on) << row.what;
        EXPECT_EQ(onSweepOrJustBeyond(row.angle, row.a1, row.a2), row.justBeyond) << row.what;
    }
}

} // namespace
} // namespace mirtane
