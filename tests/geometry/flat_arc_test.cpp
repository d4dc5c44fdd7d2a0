#include "geometry/flat_arc.h"

#include "geometry/angle.h"
#include "slanted.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace mirtane {
namespace {

using fake::Slanted;

double gap(Point a, Point b)
{
    return std::hypot(double{a.x} - b.x, double{a.y} - b.y);
}

double sizeOf(Point p)
{
    return std::abs(p.x) + std::abs(p.y);
}

TEST(FlatArc, IsOneWhoseRadiusIsAHundredTimesItsChord)
{
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(isFlat(29999, 300));
    EXPECT_TRUE(isFlat(30001, 300));
    EXPECT_TRUE(isFlat(infinite, 300));
    EXPECT_FALSE(isFlat(std::numeric_limits<double>::quiet_NaN(), 300));
}

// On the side asked for, about as large as asked for, and by way of both points as it is stored.
TEST(FlatArc, GoesThroughBothPointsAsItIsStored)
{
    Slanted dice(61);
    for (int i = 0; i < 2000; ++i) {
        const Point a = dice.pointWithin({0, 0}, i % 2 == 0 ? 3000 : 250000);
        const double length = dice.anySize(40, 1000);
        const double turned = i % 8 == 0 ? 90 * dice.below(4) : dice.between(0, 360);
        const Point b = polarPoint(a, length, turned * radiansPerDegree);
        const double chord = gap(a, b);
        const double radius =
            i % 5 == 0 ? std::numeric_limits<double>::infinity() : chord * dice.anySize(100, 1e9);
        const bool left = dice.chance();
        const Way towards{(left ? 1 : -1) * (double{b.y} - a.y) / chord,
                          (left ? -1 : 1) * (double{b.x} - a.x) / chord};
        const FlatCircle circle = flatCircle(a, b, towards, radius);
        const double slack = 1e-4 * chord + 2e-7 * (sizeOf(a) + sizeOf(b));
        for (const Point p : {a, b}) {
            EXPECT_NEAR(gap(circle.centre, p), circle.radius, slack) << i;
            EXPECT_LT(gap(polarPoint(circle.centre, circle.radius, fullDirection(circle.centre, p)), p),
                      slack)
                << i;
        }
        const double side =
            (double{circle.centre.x} - a.x) * towards.x + (double{circle.centre.y} - a.y) * towards.y;
        EXPECT_GT(side, 0) << i;
        const double bulge = chord * chord / 8;
        EXPECT_NEAR(bulge / circle.radius, bulge / radius, 5 * slack) << i;
    }
}

TEST(FlatArc, FullDirectionIsTheDirectionWithAllItsDigits)
{
    Slanted dice(62);
    for (int i = 0; i < 1000; ++i) {
        const Point a = dice.pointWithin({0, 0}, 1e7);
        const Point b = dice.pointWithin({0, 0}, 2000);
        EXPECT_NEAR(fullDirection(a, b), directionAngle(a, b, 0), 2e-7) << i;
        EXPECT_LT(gap(polarPoint(a, gap(a, b), fullDirection(a, b)), b), 1e-3) << i;
    }
    EXPECT_EQ(fullDirection({5, 5}, {5, -9}), quarterTurn);
    EXPECT_EQ(fullDirection({5, 5}, {5, 9}), threeQuartersTurn);
    EXPECT_EQ(fullDirection({5, 5}, {7, 5}), 0);
    EXPECT_EQ(fullDirection({5, 5}, {-7, 5}), halfTurn);
}

} // namespace
} // namespace mirtane
