#include "exchange/spline.h"

#include "stroke_checks.h"

#include <numbers>

namespace mirtane {
namespace {

using std::numbers::pi;

// Nine points on the square about a circle.
Spline circle(double radius, double angle, Vec at)
{
    Spline s{2, {0, 0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 4}, {}, {}};
    const Vec square[] = {{1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}, {-1, -1}, {0, -1}, {1, -1}, {1, 0}};
    for (int i = 0; i < 9; ++i) {
        s.points.push_back(placed(radius * square[i], angle, at));
        s.weights.push_back(i % 2 == 0 ? 1 : std::sqrt(0.5));
    }
    return s;
}

TEST(Spline, ACircleByWeightsComesAsArcsOfThatCircle)
{
    struct Row {
        double radius, angle;
        Vec at;
    };
    const Row rows[] = {{1, 0, {0, 0}}, {250, 0.7, {-40, 9}}, {12.5, -2, {8e5, 3e5}}};
    for (const Row& row : rows) {
        double turn = 0;
        for (const Curve& curve : curvesOf(circle(row.radius, row.angle, row.at))) {
            const auto strokes = tangentArcs(curve, 0.01);
            ASSERT_EQ(strokes.size(), 1U);
            EXPECT_NEAR(strokes[0].radius, row.radius, 1e-6);
            EXPECT_LT(length(strokes[0].centre - row.at), 1e-6);
            turn += strokes[0].sweep;
        }
        EXPECT_NEAR(turn, 2 * pi, 1e-6);
    }
}

// Against the formula of a Bezier curve, which such knots make of it.
TEST(Spline, OneStretchIsTheCurveOfItsFourPoints)
{
    const std::vector<Vec> p{{3, 1}, {-4, 9}, {22, 5}, {17, -6}};
    const auto curves = curvesOf({3, {2, 2, 2, 2, 5, 5, 5, 5}, p, {}});
    ASSERT_EQ(curves.size(), 1U);
    for (const double u : {0.0, 0.1, 0.37, 0.5, 0.93, 1.0}) {
        const double v = 1 - u;
        const Vec at = v * v * v * p[0] + 3 * u * v * v * p[1] + 3 * u * u * v * p[2] + u * u * u * p[3];
        const Vec way = 3 * v * v * (p[1] - p[0]) + 6 * u * v * (p[2] - p[1]) + 3 * u * u * (p[3] - p[2]);
        const CurvePoint found = curves[0].at(2 + 3 * u, u == 1 ? Side::before : Side::after);
        EXPECT_LT(length(found.at - at), 1e-12) << u;
        EXPECT_LT(length(3 * found.way - way), 1e-11) << u;
    }
}

TEST(Spline, EvenKnotsKeepToTheRangeBetweenTheOuterOnes)
{
    // A closed one: its first three points come again, and the outer knots are no part of it.
    std::vector<Vec> p;
    std::vector<double> knots;
    for (int i = 0; i < 11; ++i) p.push_back(10.0 * wayAt(2 * pi * (i % 8) / 8));
    for (int i = 0; i < 15; ++i) knots.push_back(0.5 * i);
    const auto curves = curvesOf({3, knots, p, {}});
    ASSERT_EQ(curves.size(), 1U);
    EXPECT_EQ(curves[0].breaks.front(), 1.5);
    EXPECT_EQ(curves[0].breaks.back(), 5.5);
    EXPECT_EQ(curves[0].breaks.size(), 9U);
    const auto strokes = tangentArcs(curves[0], 0.01);
    EXPECT_LT(length(strokes.front().from - strokes.back().to), 1e-9);
    EXPECT_LE(farthest(curves[0], strokes), 0.0105);
}

TEST(Spline, TurnsWhereAsManyKnotsAreOneAsItsDegreeSays)
{
    const std::vector<Vec> p{{0, 0}, {10, 0}, {10, 10}, {25, 10}, {25, 3}, {4, 3}, {1, -8}};
    const auto curves = curvesOf({3, {0, 0, 0, 0, 1, 1, 1, 2, 2, 2, 2}, p, {}});
    ASSERT_EQ(curves.size(), 2U);
    EXPECT_EQ(curves[0].at(1, Side::before).at, (Vec{25, 10}));
    EXPECT_EQ(curves[1].at(1, Side::after).at, (Vec{25, 10}));
    EXPECT_EQ(curves[0].at(1, Side::before).way, (Vec{45, 0}));
    EXPECT_EQ(curves[1].at(1, Side::after).way, (Vec{0, -21}));
    const auto lines = curvesOf({1, {0, 0, 1, 2, 3, 3}, {{0, 0}, {4, 4}, {8, 0}, {9, 9}}, {}});
    ASSERT_EQ(lines.size(), 3U);
    for (const Curve& line : lines) EXPECT_EQ(tangentArcs(line, 0.01).size(), 1U);
}

TEST(Spline, KnotsThatDontFitAreReplacedByEvenOnes)
{
    const std::vector<Vec> p{{0, 0}, {3, 8}, {9, 9}, {14, 2}, {20, 0}};
    const std::vector<double> knots[] = {
        {}, {0, 1, 2}, {0, 0, 0, 0, 2, 1, 3, 3, 3}, std::vector<double>(9, 4.0)};
    for (const auto& row : knots) {
        const auto curves = curvesOf({3, row, p, {}});
        ASSERT_EQ(curves.size(), 1U);
        EXPECT_EQ(curves[0].at(curves[0].breaks.front(), Side::after).at, p.front());
        EXPECT_EQ(curves[0].at(curves[0].breaks.back(), Side::before).at, p.back());
    }
}

TEST(Spline, WeightsThatAreNoneAreLeftOut)
{
    const std::vector<Vec> p{{0, 0}, {3, 8}, {9, 0}};
    for (const std::vector<double>& weights : {std::vector<double>{1, 0, 1}, {1, 2}, {1, -4, 1}}) {
        const auto curves = curvesOf({2, {0, 0, 0, 1, 1, 1}, p, weights});
        ASSERT_EQ(curves.size(), 1U);
        EXPECT_EQ(curves[0].at(0.5, Side::after).at, (Vec{3.75, 4}));
    }
}

TEST(Spline, KnotsFartherApartThanNumbersReachTakeNoHarm)
{
    const auto curves =
        curvesOf({2, {-1e308, -1e308, -1e308, 1e308, 1e308, 1e308}, {{0, 0}, {5, 5}, {9, 0}}, {}});
    ASSERT_EQ(curves.size(), 1U);
    EXPECT_LT(tangentArcs(curves[0], 0.01).size(), 10U);
}

TEST(Spline, WhatIsNoneMakesNone)
{
    const double none = std::numeric_limits<double>::infinity();
    const Spline rows[] = {
        {3, {}, {}, {}},
        {3, {}, {{0, 0}, {1, 1}, {2, 0}}, {}},
        {0, {}, {{0, 0}, {1, 1}}, {}},
        {-7, {}, {{0, 0}, {1, 1}}, {}},
        {1 << 30, {}, {{0, 0}, {1, 1}}, {}},
        {1, {}, {{0, none}, {1, 1}}, {}},
        {1, {0, 0, none, 1}, {{0, 0}, {1, 1}}, {}},
        {1, {}, {{0, 1e200}, {1, 1}}, {}},
    };
    for (const Spline& row : rows) EXPECT_TRUE(curvesOf(row).empty());
}

TEST(SplineThrough, PassesThroughItsPointsAndBendsOn)
{
    struct Row {
        const char* what;
        std::vector<Vec> points;
        PassingEnds ends;
    };
    const Row rows[] = {
        {"free", {{0, 0}, {10, 4}, {12, 9}, {3, 20}}, {}},
        {"far off", {{6e5, 2e5}, {6e5 + 7, 2e5 + 1}, {6e5 + 9, 2e5 + 30}}, {}},
        {"tangents", {{0, 0}, {10, 4}, {12, 9}}, {{0, -3}, {5, 5}, false}},
        {"a point twice", {{0, 0}, {10, 4}, {10, 4}, {12, 9}}, {}},
        {"closed", {{0, 0}, {10, 4}, {12, 9}, {3, 20}}, {{}, {}, true}},
        {"closed, said twice", {{0, 0}, {10, 4}, {12, 9}, {0, 0}}, {{}, {}, true}},
        {"two", {{5, 5}, {-1, 3}}, {}},
    };
    for (const Row& row : rows) {
        const auto curves = curvesThrough(row.points, row.ends);
        ASSERT_EQ(curves.size(), 1U) << row.what;
        const Curve& curve = curves[0];
        for (const Vec p : row.points) {
            const auto meets = [&](double t) { return length(curve.at(t, Side::after).at - p) < 1e-9; };
            EXPECT_TRUE(std::ranges::any_of(curve.breaks, meets)) << row.what << ' ' << p.x;
        }
        for (std::size_t i = 1; i + 1 < curve.breaks.size(); ++i) {
            const double t = curve.breaks[i];
            EXPECT_LT(length(curve.at(t, Side::before).way - curve.at(t, Side::after).way), 1e-9) << row.what;
        }
        const auto way = [&](double t, Side side) { return directionOf(curve.at(t, side).way); };
        if (length(row.ends.start) > 0) {
            EXPECT_NEAR(way(curve.breaks.front(), Side::after), directionOf(row.ends.start), 1e-9);
            EXPECT_NEAR(way(curve.breaks.back(), Side::before), directionOf(row.ends.end), 1e-9);
        }
        if (row.ends.isClosed) {
            EXPECT_NEAR(way(curve.breaks.front(), Side::after), way(curve.breaks.back(), Side::before), 1e-9);
        }
    }
}

// As if two more points before the first lay on a parabola through the next ones.
TEST(SplineThrough, AnEndThatNothingIsSaidOfGoesAsItsNeighboursTell)
{
    struct Row {
        const char* what;
        std::vector<Vec> points;
        Vec start, end;
    };
    const Row rows[] = {
        {"three", {{0, 0}, {5, 5}, {10, 0}}, {1, 2}, {1, -2}},
        {"four", {{10, 10}, {60, 80}, {110, 20}, {160, 90}}, {50, 135}, {50, 135}},
        {"five", {{0, 0}, {10, 4}, {12, 9}, {3, 20}, {-5, 6}}, {4, 1}, {-12.661, -44.7355}},
        {"two", {{2, 3}, {5, -1}}, {3, -4}, {3, -4}},
        {"on a line", {{0, 0}, {2, 1}, {6, 3}}, {2, 1}, {2, 1}},
    };
    for (const Row& row : rows) {
        for (const double angle : {0.0, 1.3}) {
            std::vector<Vec> points;
            for (const Vec p : row.points) points.push_back(placed(3 * p, angle, {-800, 45}));
            const auto curves = curvesThrough(points, {});
            ASSERT_EQ(curves.size(), 1U) << row.what;
            const auto turned = [&](Vec v) { return directionOf(placed(v, angle, {})); };
            const Curve& curve = curves[0];
            EXPECT_NEAR(directionOf(curve.at(curve.breaks.front(), Side::after).way), turned(row.start), 1e-5)
                << row.what;
            EXPECT_NEAR(directionOf(curve.at(curve.breaks.back(), Side::before).way), turned(row.end), 1e-5)
                << row.what;
        }
    }
}

TEST(SplineThrough, PointsOfACircleComeCloseToIt)
{
    std::vector<Vec> points;
    for (int i = 0; i < 16; ++i) points.push_back(Vec{30, -8} + 10.0 * wayAt(2 * pi * i / 16));
    const auto curves = curvesThrough(points, {{}, {}, true});
    ASSERT_EQ(curves.size(), 1U);
    const double first = curves[0].breaks.front();
    const double range = curves[0].breaks.back() - first;
    for (int i = 0; i < 100; ++i) {
        const Vec p = curves[0].at(first + range * i / 100, Side::after).at;
        EXPECT_NEAR(length(p - Vec{30, -8}), 10, 2e-3);
    }
}

TEST(SplineThrough, OnePointOrNoneIsNoCurve)
{
    EXPECT_TRUE(curvesThrough({}, {}).empty());
    EXPECT_TRUE(curvesThrough({{1, 1}, {1, -1e60}}, {}).empty());
    EXPECT_TRUE(curvesThrough({{1, 1}, {1, 1}}, {{1, 0}, {1, 0}, true}).empty());
    EXPECT_TRUE(curvesThrough({{1, 1}, {1, std::numeric_limits<double>::quiet_NaN()}}, {}).empty());
}

} // namespace
} // namespace mirtane
