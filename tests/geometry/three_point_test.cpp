#include "geometry/three_point.h"

#include "geometry/angle.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace mirtane {
namespace {

// The same triangle turned by quarters, mirrored, with its last points exchanged, and far from the origin.
struct Placing {
    const char* what;
    float xx, xy, yx, yy;
    Point at;
};

constexpr Placing placings[] = {
    {"as it is", 1, 0, 0, 1, {0, 0}},
    {"turned by a quarter", 0, 1, -1, 0, {0, 0}},
    {"turned by a half", -1, 0, 0, -1, {0, 0}},
    {"turned by three quarters", 0, -1, 1, 0, {0, 0}},
    {"mirrored left to right", -1, 0, 0, 1, {0, 0}},
    {"mirrored upside down", 1, 0, 0, -1, {0, 0}},
    {"in the drawing", 1, 0, 0, 1, {1500, 900}},
    {"left of the origin", 1, 0, 0, 1, {-1500, -900}},
    {"far away", 1, 0, 0, 1, {100000, 100000}},
    {"far away and turned", 0, 1, -1, 0, {-100000, 100000}},
    {"far away and mirrored", -1, 0, 0, 1, {100000, -100000}},
};

Point placed(const Placing& by, Point p)
{
    return {by.at.x + by.xx * p.x + by.xy * p.y, by.at.y + by.yx * p.x + by.yy * p.y};
}

struct Exact {
    double x, y;
};

double away(Exact a, Point b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

double away(Point a, Point b)
{
    return away(Exact{a.x, a.y}, b);
}

// Coordinates, radii and what is computed of them are 32 bits.
double roundingOf(Point centre, double r)
{
    return 4e-7 * (std::abs(centre.x) + std::abs(centre.y) + r);
}

struct Angle {
    double sine, cosine;
};

Angle angleAtFirst(Point p1, Point p2, Point p3)
{
    const double ax = static_cast<double>(p2.x) - p1.x; // widened, so that the check rounds nothing
    const double ay = static_cast<double>(p2.y) - p1.y;
    const double bx = static_cast<double>(p3.x) - p1.x;
    const double by = static_cast<double>(p3.y) - p1.y;
    const double lengths = std::hypot(ax, ay) * std::hypot(bx, by);
    return {(ax * by - ay * bx) / lengths, (ax * bx + ay * by) / lengths};
}

// Where the construction puts the centre, by the angle at the first point alone: on the bisector of the first
// chord, on the side of p3, (b/2 - m |cos|) / |sin| from its middle, with m half the chord and b = |p1 p3|.
Exact expectedCentre(Point p1, Point p2, Point p3)
{
    const double dx = static_cast<double>(p2.x) - p1.x; // widened as above
    const double dy = static_cast<double>(p2.y) - p1.y;
    const double chord = std::hypot(dx, dy);
    const Angle angle = angleAtFirst(p1, p2, p3);
    const double offset = (away(p1, p3) / 2 - chord / 2 * std::abs(angle.cosine)) / std::abs(angle.sine);
    const double side = angle.sine > 0 ? 1 : -1;
    return {p1.x + dx / 2 - side * offset * dy / chord, p1.y + dy / 2 + side * offset * dx / chord};
}

const ThreePointCircle stood{{-7777, 5555}, 123, {1, 2}, 3, 4};

ThreePointCircle construct(Point p1, Point p2, Point p3)
{
    return threePointCircle(p1, p2, p3, bisectorMarkers(p1, p2, {}), stood);
}

TEST(BisectorMarkers, LieAChordsLengthFromItsMiddleTheFirstToTheRightOfTheWay)
{
    struct Row {
        const char* what;
        Point p2, a, b;
    };
    const Row rows[] = {
        {"right", {10, 0}, {5, 10}, {5, -10}},       {"up", {0, -10}, {10, -5}, {-10, -5}},
        {"left", {-10, 0}, {-5, -10}, {-5, 10}},     {"down", {0, 10}, {-10, 5}, {10, 5}},
        {"right, up", {6, -8}, {11, 2}, {-5, -10}},  {"left, up", {-6, -8}, {5, -10}, {-11, 2}},
        {"left, down", {-6, 8}, {-11, -2}, {5, 10}}, {"right, down", {6, 8}, {-5, 10}, {11, -2}},
    };
    for (const Row& row : rows) {
        for (const Point at : {Point{0, 0}, Point{1000, -500}, Point{100000, 100000}}) {
            const BisectorMarkers found = bisectorMarkers(at, {at.x + row.p2.x, at.y + row.p2.y}, {});
            const double slack = 1e-5 + 1.2e-7 * std::abs(at.x);
            EXPECT_NEAR(found.a.x, at.x + row.a.x, slack) << row.what << " from " << at.x;
            EXPECT_NEAR(found.a.y, at.y + row.a.y, slack) << row.what << " from " << at.x;
            EXPECT_NEAR(found.b.x, at.x + row.b.x, slack) << row.what << " from " << at.x;
            EXPECT_NEAR(found.b.y, at.y + row.b.y, slack) << row.what << " from " << at.x;
        }
    }
}

// The direction is a local value of the computation: it can't be had, stays 0, and the computation goes on.
TEST(BisectorMarkers, OfOnePointTwiceAreThatPoint)
{
    const Point p{300, 400};
    const BisectorMarkers found = bisectorMarkers(p, p, {{1, 2}, {3, 4}});
    EXPECT_EQ(found.a, p);
    EXPECT_EQ(found.b, p);
}

TEST(ThreePointCircle, PassesThroughAllThreePointsWhileTheFirstAngleIsAtMostARightOne)
{
    struct Row {
        const char* what;
        Point p1, p2, p3;
    };
    const Row rows[] = {
        {"equal sides, nearly", {0, 0}, {400, 0}, {200, -346}},
        {"a flat one", {0, 0}, {400, 0}, {200, -60}},
        {"obtuse at the second point", {0, 0}, {200, -60}, {400, 0}},
        {"obtuse at the third point", {0, 0}, {500, 0}, {300, 80}},
        {"a right angle at the second point", {0, 0}, {300, 0}, {300, 400}},
        {"a right angle at the third point", {0, 0}, {400, 300}, {400, 0}},
        {"a short first chord", {0, 0}, {20, 5}, {300, -200}},
        {"a short last chord", {0, 0}, {300, -200}, {310, -180}},
    };
    for (const Row& row : rows) {
        for (const Placing& by : placings) {
            for (const bool exchanged : {false, true}) {
                const Point p1 = placed(by, row.p1);
                const Point p2 = placed(by, exchanged ? row.p3 : row.p2);
                const Point p3 = placed(by, exchanged ? row.p2 : row.p3);
                const ThreePointCircle found = construct(p1, p2, p3);
                const double slack = 40 * roundingOf(p1, 500) / std::abs(angleAtFirst(p1, p2, p3).sine);
                for (const Point p : {p1, p2, p3}) {
                    EXPECT_NEAR(away(found.centre, p), found.radius, slack)
                        << row.what << ", " << by.what << (exchanged ? ", exchanged" : "");
                }
            }
        }
    }
}

TEST(ThreePointCircle, OfARightAngleHasTheFarSideAsDiameter)
{
    const ThreePointCircle found = construct({0, 0}, {300, 0}, {0, 400});
    EXPECT_NEAR(found.centre.x, 150, 0.2); // the root of a difference of equal squares: half the digits
    EXPECT_NEAR(found.centre.y, 200, 0.2);
    EXPECT_NEAR(found.radius, 250, 0.2);
}

TEST(ThreePointCircle, MissesTheThirdPointWhenTheFirstAngleIsObtuse)
{
    for (const Placing& by : placings) {
        const Point p1 = placed(by, {0, 0});
        const Point p2 = placed(by, {1000, 0});
        const Point p3 = placed(by, {-1000, 1000});
        const Point centre = placed(by, {500, 500});
        const ThreePointCircle found = construct(p1, p2, p3);
        EXPECT_NEAR(found.centre.x, centre.x, 0.1) << by.what;
        EXPECT_NEAR(found.centre.y, centre.y, 0.1) << by.what;
        EXPECT_NEAR(found.radius, 707.1068, 0.1) << by.what;
        EXPECT_GT(away(found.centre, p3) - found.radius, 800) << by.what;
    }
    const ThreePointCircle small = construct({0, 0}, {1, 0}, {-1, 1});
    EXPECT_NEAR(small.centre.x, 0.5, 1e-5);
    EXPECT_NEAR(small.centre.y, 0.5, 1e-5);
    EXPECT_NEAR(small.radius, 0.70710678, 1e-5);
}

TEST(ThreePointCircle, OfEvenlySpacedPointsOnAnAxisKeepsTheCentreThatStood)
{
    const Point ways[] = {{100, 0}, {0, -100}, {-100, 0}, {0, 100}};
    for (const Point way : ways) {
        const Point p1{1000, 1000};
        const Point p2{p1.x + way.x, p1.y + way.y};
        const Point p3{p2.x + way.x, p2.y + way.y};
        const ThreePointCircle found = construct(p1, p2, p3);
        EXPECT_EQ(found.toMarkerA, found.toMarkerB) << way.x << " " << way.y;
        EXPECT_EQ(found.centre, stood.centre) << way.x << " " << way.y;
        EXPECT_FLOAT_EQ(found.radius, static_cast<float>(away(stood.centre, p1))); // to its own precision
    }
}

TEST(ThreePointCircle, OfEvenlySpacedPointsOnALineHasTheCentreThatStoodOrTheChordsMiddle)
{
    std::mt19937 random(31);
    std::uniform_int_distribution<int> whole(-2000, 2000);
    for (int i = 0; i < 3000; ++i) {
        const auto next = [&] { return static_cast<float>(whole(random)); }; // whole numbers: exactly in line
        const Point p1{next(), next()};
        const Point p2{p1.x + next(), p1.y + next()};
        if (p1 == p2) continue;
        const Point p3{2 * p2.x - p1.x, 2 * p2.y - p1.y};
        const ThreePointCircle found = construct(p1, p2, p3);
        ASSERT_TRUE(std::isfinite(found.centre.x) && std::isfinite(found.centre.y)) << i;
        ASSERT_TRUE(std::isfinite(found.radius)) << i;
        const bool tie = found.toMarkerA == found.toMarkerB;
        EXPECT_EQ(found.centre == stood.centre, tie) << i;
        EXPECT_NEAR(away(found.centre, p1), found.radius, roundingOf(found.centre, found.radius)) << i;
    }
}

TEST(ThreePointCircle, OfPointsOnALineOffTheMiddleOfTheMarkersHasTheFirstChordAsDiameter)
{
    const Point p1{1000, 1000};
    const Point p2{1400, 1000};
    for (const float x : {1100.0F, 1400.0F, 1900.0F, 200.0F}) {
        for (const float off : {-0.5F, 0.5F}) {
            const BisectorMarkers markers{{1200, 1400 + off}, {1200, 600}};
            const ThreePointCircle found = threePointCircle(p1, p2, {x, 1000}, markers, stood);
            EXPECT_EQ(found.centre, (Point{1200, 1000})) << x << " " << off;
            EXPECT_EQ(found.radius, 200) << x << " " << off;
        }
    }
}

TEST(ThreePointCircle, WithTheThirdPointOnTheFirstGoesOnWithoutADirection)
{
    const Point p1{1000, 1000};
    const Point p2{1400, 1000};
    const ThreePointCircle tie = construct(p1, p2, p1);
    EXPECT_EQ(tie.centre, stood.centre);
    const ThreePointCircle nearA = threePointCircle(p1, p2, p1, {{1200, 1100}, {1200, 600}}, stood);
    EXPECT_EQ(nearA.centre, (Point{1200, 1000}));
    EXPECT_EQ(nearA.radius, 200);
}

TEST(ThreePointCircle, OfAChordWithoutLengthIsThatPointOrKeepsTheCentreThatStood)
{
    const Point p{1000, 1000};
    const ThreePointCircle tie = construct(p, p, {1300, 700});
    EXPECT_EQ(tie.centre, stood.centre);
    const ThreePointCircle nearB = threePointCircle(p, p, {1300, 700}, {{0, 0}, {1300, 800}}, stood);
    EXPECT_EQ(nearB.centre, p);
    EXPECT_EQ(nearB.radius, 0);
}

TEST(ThreePointCircle, TellsTheSideByTheNearerMarker)
{
    const ThreePointCircle below = construct({0, 0}, {10, 0}, {5, 3});
    EXPECT_LT(below.toMarkerA, below.toMarkerB);
    const ThreePointCircle above = construct({0, 0}, {10, 0}, {5, -3});
    EXPECT_GT(above.toMarkerA, above.toMarkerB);
    EXPECT_EQ(above.chordMiddle, (Point{5, 0}));
}

// Random triangles near and far: the first two points are always on the circle, the third as long as the
// first angle isn't obtuse, and the centre is where the construction puts it in either case.
TEST(ThreePointCircle, HasItsCentreOnTheBisectorWhereTheConstructionPutsItForRandomPoints)
{
    std::mt19937 random(32);
    std::uniform_real_distribution<float> place(-2000, 2000);
    int acute = 0;
    int obtuse = 0;
    for (int i = 0; i < 20000; ++i) {
        const float at = i % 2 == 0 ? 0.0F : 100000.0F;
        const Point p1{at + place(random), at + place(random)};
        const Point p2{at + place(random), at + place(random)};
        const Point p3{at + place(random), at + place(random)};
        const Angle angle = angleAtFirst(p1, p2, p3);
        // Short sides and flat or right angles magnify the rounding of the points themselves.
        if (std::abs(angle.sine) < 0.2 || std::abs(angle.cosine) < 0.1) continue;
        if (std::min(away(p1, p2), away(p1, p3)) < 200) continue;
        const ThreePointCircle found = construct(p1, p2, p3);
        const double rounding = roundingOf(found.centre, found.radius);
        EXPECT_NEAR(away(found.centre, p1), found.radius, rounding) << i;
        EXPECT_NEAR(away(found.centre, p2), found.radius, 2 * rounding) << i;
        const double slack = 100 * rounding;
        EXPECT_LT(away(expectedCentre(p1, p2, p3), found.centre), slack) << i;
        (angle.cosine > 0 ? acute : obtuse)++;
        if (angle.cosine > 0) {
            EXPECT_NEAR(away(found.centre, p3), found.radius, slack) << i;
        } else {
            EXPECT_GT(away(found.centre, p3), found.radius) << i;
        }
    }
    EXPECT_GT(acute, 2000);
    EXPECT_GT(obtuse, 2000);
}

TEST(ThreePointCircle, NeverHoldsWhatIsNoNumber)
{
    constexpr float most = std::numeric_limits<float>::max();
    constexpr float least = std::numeric_limits<float>::denorm_min();
    const float values[] = {0, least, 1, -1, 1e20F, -1e20F, most, -most};
    std::mt19937 random(33);
    std::uniform_int_distribution<std::size_t> any(0, std::size(values) - 1);
    const auto next = [&] { return Point{values[any(random)], values[any(random)]}; };
    for (int i = 0; i < 20000; ++i) {
        const Point p1 = next();
        const Point p2 = next();
        const Point p3 = next();
        const BisectorMarkers markers = bisectorMarkers(p1, p2, {{1, 1}, {2, 2}});
        const ThreePointCircle found = threePointCircle(p1, p2, p3, markers, stood);
        for (const float value : {markers.a.x, markers.a.y, markers.b.x, markers.b.y, found.centre.x,
                                  found.centre.y, found.radius, found.chordMiddle.x, found.chordMiddle.y}) {
            ASSERT_TRUE(std::isfinite(value)) << i;
        }
    }
}

} // namespace
} // namespace mirtane
