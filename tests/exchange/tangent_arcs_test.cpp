#include "exchange/tangent_arcs.h"

#include "stroke_checks.h"

#include <numbers>

namespace mirtane {
namespace {

using std::numbers::pi;

Curve curveOf(CurvePoint (*at)(double), double from, double to)
{
    return {[at](double t, Side) { return at(t); }, {from, to}};
}

TEST(TangentArcs, StayWithinTheToleranceAndRunOnIntoEachOther)
{
    struct Row {
        const char* what;
        CurvePoint (*at)(double);
        double from, to;
        std::size_t most; // strokes
    };
    const Row rows[] = {
        {"parabola",
         [](double t) {
             return CurvePoint{{t, t * t}, {1, 2 * t}};
         },
         -3, 4, 40},
        {"the same, back",
         [](double t) {
             return CurvePoint{{-t, t * t}, {-1, 2 * t}};
         },
         -4, 3, 40},
        {"wave",
         [](double t) {
             return CurvePoint{{t, std::sin(t)}, {1, std::cos(t)}};
         },
         0, 12, 80},
        {"spiral",
         [](double t) {
             return CurvePoint{t * wayAt(t), wayAt(t) + t * turnedLeft(wayAt(t))};
         },
         1, 20, 80},
        {"far from the origin",
         [](double t) {
             return CurvePoint{{531000.0 + 9 * std::cos(t), 182000.0 + 4 * std::sin(t)},
                               {-9 * std::sin(t), 4 * std::cos(t)}};
         },
         0.3, 5.1, 60},
        {"slow at its start",
         [](double t) {
             return CurvePoint{{t * t, t * t * t}, {2 * t, 3 * t * t}};
         },
         0, 3, 60},
    };
    for (const Row& row : rows) {
        const Curve curve = curveOf(row.at, row.from, row.to);
        for (const double tolerance : {0.01, 0.001}) {
            const auto strokes = tangentArcs(curve, tolerance);
            EXPECT_LE(farthest(curve, strokes), tolerance * 1.05) << row.what;
            EXPECT_LE(strokes.size(), row.most) << row.what;
            EXPECT_GE(strokes.size(), 2U) << row.what;
            expectToRunOn(strokes, 1e6, row.what);
            EXPECT_EQ(strokes.front().from, row.at(row.from).at) << row.what;
            EXPECT_LT(length(strokes.back().to - row.at(row.to).at), 1e-9) << row.what;
        }
    }
}

TEST(TangentArcs, WhatIsAnArcComesAsOne)
{
    struct Row {
        const char* what;
        double from, to;
        Vec centre;
        double radius;
    };
    const Row rows[] = {
        {"quarter", 0.2, 0.2 + pi / 2, {3, 4}, 5},
        {"more than half, clockwise", 2, -2.4, {-3, 8}, 0.25},
        {"whole", -1, 2 * pi - 1, {7e5, -2e5}, 120},
        {"whole, clockwise", 1, 1 - 2 * pi, {0, 0}, 1},
    };
    for (const Row& row : rows) {
        const double turn = row.to < row.from ? -1 : 1;
        const auto at = [&](double t, Side) {
            const Vec out = wayAt(row.from + turn * t);
            return CurvePoint{row.centre + row.radius * out, turn * row.radius * turnedLeft(out)};
        };
        const auto strokes = tangentArcs({at, {0, std::abs(row.to - row.from)}}, 0.01);
        ASSERT_EQ(strokes.size(), 1U) << row.what;
        EXPECT_LT(length(strokes[0].centre - row.centre), 1e-6) << row.what;
        EXPECT_NEAR(strokes[0].radius, row.radius, 1e-6) << row.what;
        EXPECT_NEAR(strokes[0].sweep, row.to - row.from, 1e-6) << row.what;
    }
}

TEST(TangentArcs, WhatIsStraightComesAsOneLine)
{
    const Curve slanted = curveOf(
        [](double t) {
            return CurvePoint{{5 + 3 * t * t, 7 - t * t}, {6 * t, -2 * t}};
        },
        0, 9);
    const auto strokes = tangentArcs(slanted, 0.01);
    ASSERT_EQ(strokes.size(), 1U);
    EXPECT_FALSE(strokes[0].isArc());
    EXPECT_EQ(strokes[0].to, (Vec{248, -74}));
}

TEST(TangentArcs, WhatTurnsBackOnItselfIsFollowedThereAndBack)
{
    const Curve curve = curveOf(
        [](double t) {
            return CurvePoint{{std::sin(t), 2 * std::sin(t)}, std::cos(t) * Vec{1, 2}};
        },
        0, 3);
    const auto strokes = tangentArcs(curve, 0.01);
    EXPECT_LE(farthest(curve, strokes), 0.02); // its very tip lies between two points that are looked at
    EXPECT_LT(strokes.size(), 60U);
}

TEST(TangentArcs, ACurveThatIsNoneMakesNone)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    const auto nowhere = [none](double, Side) { return CurvePoint{{none, 0}, {0, none}}; };
    EXPECT_TRUE(tangentArcs({nowhere, {0, 1}}, 0.01).empty());
    EXPECT_TRUE(tangentArcs({nowhere, {1}}, 0.01).empty());
    const auto still = [](double, Side) { return CurvePoint{{4, 4}, {}}; };
    EXPECT_TRUE(tangentArcs({still, {0, 1}}, 0.01).empty());
}

// Noise of a thousand turns can't be followed by thousands of strokes.
TEST(TangentArcs, NoMoreThanSomeThousandsOfStrokesAreMade)
{
    const Curve curve = curveOf(
        [](double t) {
            return CurvePoint{{t, 9 * std::sin(9 * t * t)}, {1, 162 * t * std::cos(9 * t * t)}};
        },
        0, 30);
    const auto strokes = tangentArcs(curve, 1e-6);
    EXPECT_LE(strokes.size(), 3000U);
}

// A contour of a map has thousands of points, and each is where it is.
TEST(TangentArcs, ACurveOfManyFormulasMayHaveAsManyStrokes)
{
    constexpr int formulas = 4000;
    Curve curve = curveOf(
        [](double t) {
            return CurvePoint{{t, 3 * std::sin(2 * t)}, {1, 6 * std::cos(2 * t)}};
        },
        0, formulas);
    curve.breaks.clear();
    for (int i = 0; i <= formulas; ++i) curve.breaks.push_back(i);
    const auto strokes = tangentArcs(curve, 0.05);
    for (double t = 0.4; t < formulas; t += 97.3) {
        double far = 1e9;
        for (const Stroke& one : strokes) far = std::min(far, distanceTo(one, curve.at(t, Side::after).at));
        EXPECT_LE(far, 0.05) << t;
    }
}

// What 32 bits can't tell apart is not asked for.
TEST(TangentArcs, HugeOnesAreAsExactAsADrawingCanBe)
{
    const Curve curve = curveOf(
        [](double t) {
            return CurvePoint{{1e9 * std::cos(t), 5e8 * std::sin(t)},
                              {-1e9 * std::sin(t), 5e8 * std::cos(t)}};
        },
        0, 3);
    const auto strokes = tangentArcs(curve, 0.001);
    EXPECT_LE(strokes.size(), 1200U);
    EXPECT_GE(strokes.size(), 100U);
}

TEST(BulgeStroke, IsTheArcOfAPolylinesSegment)
{
    const double half = std::tan(pi / 8); // of a quarter turn
    struct Row {
        const char* what;
        Vec from, to;
        double bulge;
        Vec centre;
        double radius, sweep;
    };
    const Row rows[] = {
        {"half circle", {2, 0}, {0, 0}, 1, {1, 0}, 1, pi},
        {"half circle, clockwise", {2, 0}, {0, 0}, -1, {1, 0}, 1, -pi},
        {"quarter", {105, 200}, {100, 205}, half, {100, 200}, 5, pi / 2},
        {"quarter, clockwise", {105, 200}, {100, 205}, -half, {105, 205}, 5, -pi / 2},
        {"three quarters", {5, 0}, {0, -5}, std::tan(3 * pi / 8), {0, 0}, 5, 3 * pi / 2},
    };
    for (const Row& row : rows) {
        const Stroke stroke = bulgeStroke(row.from, row.to, row.bulge);
        EXPECT_LT(length(pointOn(stroke, 0) - row.from) + length(pointOn(stroke, 1) - row.to), 1e-9)
            << row.what;
        EXPECT_LT(length(stroke.centre - row.centre), 1e-9) << row.what;
        EXPECT_NEAR(stroke.radius, row.radius, 1e-9) << row.what;
        EXPECT_NEAR(stroke.sweep, row.sweep, 1e-9) << row.what;
    }
    EXPECT_FALSE(bulgeStroke({1, 2}, {3, 4}, 0).isArc());
    EXPECT_FALSE(bulgeStroke({1, 2}, {1, 2}, 1).isArc());
}

} // namespace
} // namespace mirtane
