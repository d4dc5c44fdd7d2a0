#include "geometry/angle.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace mirtane {
namespace {

constexpr float farthest = std::numeric_limits<float>::max();

TEST(Angle, LiteralsAreTheShortOnes)
{
    EXPECT_EQ(eighthTurn, 0.7853982);
    EXPECT_EQ(quarterTurn, 1.5707963);
    EXPECT_EQ(threeEighthsTurn, 2.3561945);
    EXPECT_EQ(halfTurn, 3.1415927);
    EXPECT_EQ(fiveEighthsTurn, 3.9269908);
    EXPECT_EQ(threeQuartersTurn, 4.712389);
    EXPECT_EQ(sevenEighthsTurn, 5.4977872);
    EXPECT_EQ(fullTurn, 6.2831853);
    EXPECT_EQ(degreesPerRadian, 57.29578);
    EXPECT_EQ(radiansPerDegree, 0.0174533);
}

// The whole case table, about the origin of a drawing and about a point away from it. Y runs down the screen.
TEST(DirectionAngle, EachOfTheEightDirections)
{
    struct Row {
        const char* what;
        float dx, dy;
        double angle;
    };
    const Row rows[] = {
        {"right", 7, 0, 0},         {"right and up", 1, -2, std::atan(2.0)},
        {"up", 0, -7, 1.5707963},   {"left and up", -1, -2, 3.1415927 - std::atan(2.0)},
        {"left", -7, 0, 3.1415927}, {"left and down", -1, 2, 3.1415927 + std::atan(2.0)},
        {"down", 0, 7, 4.712389},   {"right and down", 1, 2, 6.2831853 - std::atan(2.0)},
    };
    const Point centres[] = {{0, 0}, {1000, -500}};
    for (const Row& row : rows) {
        for (const Point a : centres) {
            EXPECT_EQ(directionAngle(a, {a.x + row.dx, a.y + row.dy}, 99), row.angle) << row.what;
        }
    }
}

TEST(DirectionAngle, TheQuotientIsAFloatAndTheArcTangentADouble)
{
    const double angle = directionAngle({0, 0}, {3, -1}, 99);
    EXPECT_EQ(angle, std::atan(static_cast<double>(1.0f / 3.0f))); // widened on purpose
    EXPECT_NE(angle, std::atan(1.0 / 3.0));
}

TEST(DirectionAngle, TheDifferencesAreFloats)
{
    // 16777216 + 1 is no float: the difference to -1 rounds to 16777216, and the quotient is 1.
    EXPECT_EQ(directionAngle({-1, 0}, {16777216, -16777216}, 99), std::atan(1.0));
}

TEST(DirectionAngle, EqualPointsLeaveThePreviousAngle)
{
    EXPECT_EQ(directionAngle({5, 5}, {5, 5}, 1.25), 1.25);
    EXPECT_EQ(directionAngle({5, 5}, {5, 5}, 0), 0);
    EXPECT_EQ(directionAngle({0.0f, 0}, {-0.0f, 0}, 2.5), 2.5);
}

TEST(DirectionAngle, OverflowsAndNaNLeaveThePreviousAngle)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(directionAngle({-farthest, farthest}, {farthest, -farthest}, 1.25), 1.25); // both differences
    EXPECT_EQ(directionAngle({0, farthest}, {1, -farthest}, 1.25), 1.25);                // the rise
    EXPECT_EQ(directionAngle({farthest, 1}, {-farthest, 0}, 1.25), 1.25);                // the run
    EXPECT_EQ(directionAngle({0, 1e38f}, {1e-10f, 0}, 1.25), 1.25);                      // the quotient
    EXPECT_EQ(directionAngle({nan, 0}, {1, 1}, 1.25), 1.25);
    EXPECT_EQ(directionAngle({0, 0}, {1, nan}, 1.25), 1.25);
}

TEST(DirectionAngle, OnAnAxisNothingIsComputedAndNothingOverflows)
{
    EXPECT_EQ(directionAngle({-farthest, 0}, {farthest, 0}, 1.25), 0);
    EXPECT_EQ(directionAngle({0, -farthest}, {0, farthest}, 1.25), 4.712389);
}

// About the origin, since beside a larger coordinate the error of a cosine would be rounded away.
TEST(PolarPoint, IsExactOnTheFourAxes)
{
    struct Row {
        double angle;
        Point point;
    };
    const Row rows[] = {
        {0, {10, 0}},
        {1.5707963, {0, -10}},
        {3.1415927, {-10, 0}},
        {4.712389, {0, 10}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(polarPoint({0, 0}, 10, row.angle), row.point) << row.angle;
        EXPECT_EQ(polarPoint({100, 50}, 10, row.angle), (Point{100 + row.point.x, 50 + row.point.y}))
            << row.angle;
    }
}

// Close to an axis the small coordinate shows which literal the angle was reduced with.
TEST(PolarPoint, IsReducedToTheFirstQuadrantWithTheShortLiterals)
{
    struct Row {
        double angle, reduced;
        int signX, signY;
    };
    const Row rows[] = {
        {0.001, 0.001, 1, -1},
        {1.57, 1.57, 1, -1},
        {1.571, 3.1415927 - 1.571, -1, -1},
        {3.141, 3.1415927 - 3.141, -1, -1},
        {3.142, 3.142 - 3.1415927, -1, 1},
        {4.712, 4.712 - 3.1415927, -1, 1},
        {4.713, 6.2831853 - 4.713, 1, 1},
        {6.283, 6.2831853 - 6.283, 1, 1},
    };
    for (const Row& row : rows) {
        const Point expected{
            static_cast<float>(row.signX * 100 * std::cos(row.reduced)), // coordinates are floats
            static_cast<float>(row.signY * 100 * std::sin(row.reduced))};
        EXPECT_EQ(polarPoint({0, 0}, 100, row.angle), expected) << row.angle;
    }
}

TEST(PolarPoint, OtherAnglesAreTakenAsTheyAre)
{
    const double angles[] = {-0.5, 6.2831853, 7.0, 25.0};
    for (const double angle : angles) {
        const Point p = polarPoint({0, 0}, 100, angle);
        EXPECT_FLOAT_EQ(p.x, static_cast<float>(100 * std::cos(angle))) << angle; // coordinates are floats
        EXPECT_FLOAT_EQ(p.y, static_cast<float>(-100 * std::sin(angle))) << angle;
    }
}

TEST(PolarPoint, ACoordinateThatOverflowsKeepsTheCentres)
{
    EXPECT_EQ(polarPoint({farthest, 3}, 3e38, 0), (Point{farthest, 3}));
    EXPECT_EQ(polarPoint({5, 6}, std::numeric_limits<double>::quiet_NaN(), 0.5), (Point{5, 6}));
    EXPECT_EQ(polarPoint({5, 6}, 10, std::numeric_limits<double>::infinity()), (Point{5, 6}));
}

TEST(PolarPoint, ATypedDistanceRunsAlongTheDirectionDownTheScreenToo)
{
    const Point origin{0, 0};
    const Point p = polarPoint(origin, 10, directionAngle(origin, {3, 4}, 0));
    EXPECT_NEAR(p.x, 6, 1e-5);
    EXPECT_NEAR(p.y, 8, 1e-5);
}

TEST(Distance, IsThatOfTheFloatDifferencesInDouble)
{
    EXPECT_EQ(distance({1, 2}, {4, 6}), 5);
    EXPECT_EQ(distance({4, 6}, {1, 2}), 5);
    EXPECT_EQ(distance({5, 5}, {5, 5}), 0);
    EXPECT_EQ(distance({0, 0}, {1, 1}), std::sqrt(2.0));
    EXPECT_EQ(distance({-1, 0}, {16777216, 0}), 16777216); // the difference has no float of its own
    EXPECT_TRUE(std::isfinite(distance({0, 0}, {farthest, farthest})));
}

} // namespace
} // namespace mirtane
