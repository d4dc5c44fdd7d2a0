#include "geometry/crossing.h"

#include "geometry/rounding.h"
#include "geometry/tangent.h"
#include "slanted.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace mirtane {
namespace {

using fake::Slanted;

constexpr float huge = 3e38f;

struct Wanted {
    int count = 0;
    Point first{}, second{};
};

// Each row also runs far from the origin and turned on its head.
struct Frame {
    const char* name;
    float offset;
    float sign;

    Point place(Point p) const { return {sign * p.x + offset, sign * p.y + offset}; }
};

constexpr Frame frames[] = {{"as it is", 0, 1}, {"far off", 4096, 1}, {"upside down", 0, -1}};

void expectCrossings(const Crossings& found, const Wanted& wanted, const Frame& frame, const char* what)
{
    ASSERT_EQ(found.count, wanted.count) << what << ", " << frame.name;
    const Point points[] = {frame.place(wanted.first), frame.place(wanted.second)};
    for (std::size_t i = 0; i < 2 && static_cast<int>(i) < found.count; ++i) { // i is 0 or 1
        EXPECT_NEAR(found.points[i].x, points[i].x, 1e-3) << what << ", " << frame.name;
        EXPECT_NEAR(found.points[i].y, points[i].y, 1e-3) << what << ", " << frame.name;
    }
}

TEST(CrossLines, MeetWhereEndlessLinesDo)
{
    struct Row {
        const char* what;
        Point a, b, c, d;
        Wanted wanted;
    };
    const Row rows[] = {
        {"across", {0, 0}, {10, 10}, {0, 10}, {10, 0}, {1, {5, 5}}},
        {"beyond both", {0, 0}, {1, 0}, {5, 9}, {5, 7}, {1, {5, 0}}},
        {"with the ends on one side", {0, 0}, {10, 0}, {2, 1}, {6, 3}, {1, {0, 0}}},
        {"at a shared end", {0, 0}, {10, 0}, {10, 0}, {12, 7}, {1, {10, 0}}},
        {"level and upright", {3, 4}, {9, 4}, {7, -1}, {7, 1}, {1, {7, 4}}},
        {"parallel", {0, 0}, {10, 0}, {0, 1}, {10, 1}, {0}},
        {"parallel slopes", {0, 0}, {3, 7}, {1, 0}, {7, 14}, {0}},
        {"opposite ways", {0, 0}, {10, 0}, {10, 1}, {0, 1}, {0}},
        {"one line twice", {0, 0}, {10, 0}, {2, 0}, {5, 0}, {0}},
        {"a point and a line", {5, 5}, {5, 5}, {0, 0}, {10, 0}, {0}},
        {"a line and a point", {0, 0}, {10, 0}, {5, 5}, {5, 5}, {0}},
    };
    for (const Row& row : rows) {
        for (const Frame& f : frames) {
            const Crossings found =
                crossLines(f.place(row.a), f.place(row.b), f.place(row.c), f.place(row.d));
            expectCrossings(found, row.wanted, f, row.what);
        }
    }
}

TEST(CrossLineCircle, TheOneTowardsTheLinesEndComesFirst)
{
    struct Row {
        const char* what;
        Point a, b, centre;
        double radius;
        Wanted wanted;
    };
    const Row rows[] = {
        {"over the centre", {0, 0}, {10, 0}, {5, 3}, 5, {2, {9, 0}, {1, 0}}},
        {"the other way", {10, 0}, {0, 0}, {5, 3}, 5, {2, {1, 0}, {9, 0}}},
        {"through the centre", {0, 0}, {3, 4}, {0, 0}, 10, {2, {6, 8}, {-6, -8}}},
        {"short of the circle", {0, 0}, {1, 0}, {50, 3}, 5, {2, {54, 0}, {46, 0}}},
        {"touching", {0, 0}, {10, 0}, {5, 5}, 5, {1, {5, 0}}},
        {"missing", {0, 0}, {10, 0}, {5, 6}, 5, {0}},
        {"no line", {5, 3}, {5, 3}, {5, 3}, 5, {0}},
        {"a circle of no size on the line", {0, 0}, {10, 0}, {5, 0}, 0, {1, {5, 0}}},
        {"a circle of no size beside it", {0, 0}, {10, 0}, {5, 1}, 0, {0}},
    };
    for (const Row& row : rows) {
        for (const Frame& f : frames) {
            const Crossings found =
                crossLineCircle(f.place(row.a), f.place(row.b), f.place(row.centre), row.radius);
            expectCrossings(found, row.wanted, f, row.what);
        }
    }
}

TEST(CrossCircles, TheOneToTheLeftOfTheWayComesFirst)
{
    struct Row {
        const char* what;
        Point c1;
        double r1;
        Point c2;
        double r2;
        Wanted wanted;
    };
    const Row rows[] = {
        {"side by side", {0, 0}, 5, {6, 0}, 5, {2, {3, -4}, {3, 4}}},
        {"the other way", {6, 0}, 5, {0, 0}, 5, {2, {3, 4}, {3, -4}}},
        {"one above the other", {0, 0}, 5, {0, -6}, 5, {2, {-4, -3}, {4, -3}}},
        {"of two sizes", {0, 0}, 13, {14, 0}, 15, {2, {5, -12}, {5, 12}}},
        {"centre within the other", {0, 0}, 5, {3, 0}, 4, {2, {3, -4}, {3, 4}}},
        {"touching from outside", {0, 0}, 5, {10, 0}, 5, {1, {5, 0}}},
        {"touching from inside", {0, 0}, 5, {3, 0}, 2, {1, {5, 0}}},
        {"apart", {0, 0}, 5, {11, 0}, 5, {0}},
        {"one inside the other", {0, 0}, 5, {1, 0}, 3, {0}},
        {"about one centre", {0, 0}, 5, {0, 0}, 3, {0}},
        {"one circle twice", {0, 0}, 5, {0, 0}, 5, {0}},
    };
    for (const Row& row : rows) {
        for (const Frame& f : frames)
            expectCrossings(crossCircles(f.place(row.c1), row.r1, f.place(row.c2), row.r2), row.wanted, f,
                            row.what);
    }
}

TEST(Crossings, WhatNoCoordinateCanHoldDoesNotExist)
{
    EXPECT_EQ(crossLines({0, 0}, {huge, 1}, {0, 100}, {huge, 100}).count, 0);
    EXPECT_EQ(crossLines({-huge, 0}, {huge, 0}, {5, -huge}, {5, huge}).count, 1);
    EXPECT_EQ(crossLineCircle({huge, 0}, {huge, 1}, {huge, 0}, 3e38).count, 2);
    EXPECT_EQ(crossLineCircle({huge, 0}, {huge, 1}, {huge, huge}, 3e38).count, 1) << "one lies out of reach";
    const float nan = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(crossLines({nan, 0}, {1, 0}, {0, 1}, {1, 2}).count, 0);
    EXPECT_EQ(crossLineCircle({0, 0}, {1, nan}, {0, 0}, 5).count, 0);
    EXPECT_EQ(crossCircles({0, 0}, 5, {nan, 0}, 5).count, 0);
}

TEST(Crossings, OnAnArcKeepsThoseWithinItsSweep)
{
    struct Row {
        const char* what;
        double a1, a2;
        Wanted wanted;
    };
    const Point right{5, 0};
    const Point left{-5, 0};
    const Row rows[] = {
        {"all of it", 0, 6.2831853, {2, right, left}},
        {"the upper half, ends included", 0, 3.1415927, {2, right, left}},
        {"the right, through angle 0", 4.712389, 1.5707963, {1, right}},
        {"the left", 1.5707963, 4.712389, {1, left}},
        {"neither", 0.1, 3, {0}},
    };
    const Crossings both = crossLineCircle({-10, 0}, {10, 0}, {0, 0}, 5);
    for (const Row& row : rows)
        expectCrossings(onArc(both, {0, 0}, row.a1, row.a2), row.wanted, frames[0], row.what);
}

// A line drawn to the touching point, which was rounded then; and both once more, as a copy has them.
TEST(CrossLineCircle, ATangentMeetsTheCircleInItsFootAlone)
{
    Slanted dice(83);
    for (int i = 0; i < 30000; ++i) {
        const double reach = dice.anySize(20, 2000000);
        const Point centre = dice.pointWithin({0, 0}, reach);
        const auto radius = static_cast<float>(dice.between(reach / 100, reach / 3)); // as stored
        const double way = dice.between(0, 6.28);
        const double away = dice.between(1.2, 4) * radius;
        const Point from{static_cast<float>(centre.x + away * std::cos(way)), // as stored
                         static_cast<float>(centre.y + away * std::sin(way))};
        const Point touch = tangentPoints(from, centre, radius)[dice.chance() ? 0 : 1];
        // Outwards: nearer to the origin the steps are finer than those that it was rounded to.
        const float by = dice.chance() ? 0 : static_cast<float>(dice.between(0, reach));
        const auto moved = [&](Point p) {
            return Point{p.x + std::copysign(by, centre.x), p.y + std::copysign(by, centre.y)};
        };
        const double off = 40 * halfStepOf(2 * reach);
        for (const bool turned : {false, true}) {
            const Point a = moved(turned ? touch : from);
            const Point b = moved(turned ? from : touch);
            const Crossings found = crossLineCircle(a, b, moved(centre), radius);
            ASSERT_EQ(found.count, 1) << i;
            ASSERT_LT(distance(found.points[0], moved(touch)), 2 * off) << i;
        }
    }
}

TEST(CrossLineCircle, AChordStaysAChordAndAGapAGap)
{
    Slanted dice(84);
    for (int i = 0; i < 30000; ++i) {
        const double reach = dice.anySize(20, 2000000);
        const Point centre = dice.pointWithin({0, 0}, reach);
        const double radius = dice.between(reach / 100, reach / 3);
        const double way = dice.between(0, 6.28);
        const auto at = [&](double height, double along) {
            return Point{static_cast<float>(centre.x + height * std::cos(way) - along * std::sin(way)),
                         static_cast<float>(centre.y + height * std::sin(way) + along * std::cos(way))};
        };
        const double apart = 2e-6 * reach;
        for (const double height : {radius - apart, radius + apart}) {
            const Crossings found =
                crossLineCircle(at(height, -radius), at(height, 2 * radius), centre, radius);
            ASSERT_EQ(found.count, height < radius ? 2 : 0) << i;
        }
    }
}

} // namespace
} // namespace mirtane
