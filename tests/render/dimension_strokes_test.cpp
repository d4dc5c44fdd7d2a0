#include "render/dimension_strokes.h"

#include "geometry/angle.h"
#include "ops_text.h"
#include "records.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace mirtane {
namespace {

using fake::Ops;

// To a thousandth of a unit, and no minus before a zero.
std::string rounded(double value)
{
    return fake::shortest(std::round(value * 1000) / 1000 + 0.0);
}

std::string textOf(Point p)
{
    return " " + rounded(p.x) + " " + rounded(p.y);
}

class NotedStrokes final : public StrokeSink {
  public:
    void line(Point a, Point b) override { ops.push_back("line" + textOf(a) + textOf(b)); }
    void arc(Point centre, Point start, float r, double a1, double a2) override
    {
        ops.push_back("arc" + textOf(centre) + textOf(start) + " " + rounded(r) + " " + rounded(a1) + " " +
                      rounded(a2));
    }
    Ops ops;
};

Ops strokesOf(const DimensionShape& d)
{
    NotedStrokes out;
    dimensionStrokes(d, out);
    return out.ops;
}

// The dimension line lies 200 above the measured points, from (0, -200) as long as it is told.
DimensionShape linear(float style, float length)
{
    DimensionShape d;
    d.kind = Kind::linearDimension;
    d.p1 = {0, 0};
    d.p2 = {length, 0};
    d.p3 = {length, -200};
    d.p4 = {0, -200};
    d.s1 = style;
    d.s2 = 48;
    return d;
}

const std::string wideRightExtension = "line 600 -31.968 600 -231.968";
const std::string narrowRightExtension = "line 120 -31.968 120 -231.968";
const std::string leftExtension = "line 0 -31.968 0 -231.968";

struct ShapeRow {
    const char* what;
    DimensionShape shape;
    Ops expected;
};

void expectEach(const std::vector<ShapeRow>& rows)
{
    for (const ShapeRow& row : rows) EXPECT_EQ(strokesOf(row.shape), row.expected) << row.what;
}

TEST(LinearDimStrokes, HaveTheirArrowsInsideWhereThereIsRoom)
{
    expectEach({
        {"closed",
         linear(arrow::closed, 600),
         {wideRightExtension, leftExtension, "line 48 -200 552 -200", "line 0 -200 48 -212",
          "line 0 -200 48 -188", "line 48 -212 48 -188", "line 600 -200 552 -188", "line 600 -200 552 -212",
          "line 552 -188 552 -212"}},
        {"open",
         linear(arrow::open, 600),
         {wideRightExtension, leftExtension, "line 0 -200 600 -200", "line 0 -200 48 -212",
          "line 0 -200 48 -188", "line 600 -200 552 -188", "line 600 -200 552 -212"}},
        {"slash",
         linear(arrow::slash, 600),
         {wideRightExtension, leftExtension, "line 0 -200 600 -200", "line 12 -188 -12 -212",
          "line 612 -188 588 -212"}},
    });
}

TEST(LinearDimStrokes, HaveTheirArrowsOutsidePointingInWhereThereIsNone)
{
    expectEach({
        {"closed",
         linear(arrow::closed, 120),
         {narrowRightExtension, leftExtension, "line 0 -200 120 -200", "line 0 -200 -96 -200",
          "line 0 -200 -48 -188", "line 0 -200 -48 -212", "line -48 -188 -48 -212", "line 120 -200 216 -200",
          "line 120 -200 168 -212", "line 120 -200 168 -188", "line 168 -212 168 -188"}},
        {"open",
         linear(arrow::open, 120),
         {narrowRightExtension, leftExtension, "line 0 -200 120 -200", "line 0 -200 -96 -200",
          "line 0 -200 -48 -188", "line 0 -200 -48 -212", "line 120 -200 216 -200", "line 120 -200 168 -212",
          "line 120 -200 168 -188"}},
        {"slash has no stub",
         linear(arrow::slash, 120),
         {narrowRightExtension, leftExtension, "line 0 -200 120 -200", "line 12 -188 -12 -212",
          "line 132 -188 108 -212"}},
    });
}

TEST(LinearDimStrokes, ThreeArrowsLongIsRoomEnough)
{
    EXPECT_EQ(strokesOf(linear(arrow::closed, 144))[2], "line 48 -200 96 -200");
    EXPECT_EQ(strokesOf(linear(arrow::closed, 143.99F))[2], "line 0 -200 143.99 -200");
}

TEST(LinearDimStrokes, WithoutAnArrowStyleAreTheExtensionLinesAlone)
{
    const Ops expected = {wideRightExtension, leftExtension};
    for (const float style : {0.0F, 4.0F, 1.5F, -1.0F, std::numeric_limits<float>::quiet_NaN()})
        EXPECT_EQ(strokesOf(linear(style, 600)), expected) << style;
}

TEST(LinearDimStrokes, FollowASlantedLine)
{
    DimensionShape d;
    d.kind = Kind::linearDimension;
    d.p1 = {80, 60};
    d.p2 = {380, -340};
    d.p3 = {300, -400};
    d.p4 = {0, 0};
    d.s1 = arrow::closed;
    d.s2 = 50;
    const Ops expected = {"line 353.36 -359.98 273.36 -419.98",
                          "line 53.36 40.02 -26.64 -19.98",
                          "line 30 -40 270 -360",
                          "line 0 0 20 -47.5",
                          "line 0 0 40 -32.5",
                          "line 20 -47.5 40 -32.5",
                          "line 300 -400 280 -352.5",
                          "line 300 -400 260 -367.5",
                          "line 280 -352.5 260 -367.5"};
    EXPECT_EQ(strokesOf(d), expected);
}

TEST(LinearDimStrokes, LeaveOutAnExtensionLineOfNoLength)
{
    DimensionShape d = linear(arrow::slash, 600);
    d.p1 = d.p4;
    const Ops expected = {wideRightExtension, "line 0 -200 600 -200", "line 12 -188 -12 -212",
                          "line 612 -188 588 -212"};
    EXPECT_EQ(strokesOf(d), expected);
}

TEST(LinearDimStrokes, LeaveOutADimensionLineOfNoLength)
{
    const Ops expected = {leftExtension, leftExtension};
    for (const float style : {1.0F, 2.0F, 3.0F}) EXPECT_EQ(strokesOf(linear(style, 0)), expected) << style;
}

// The elbow lies 500 off the centre towards (0.6, 0.8).
DimensionShape radial(float style, float radius)
{
    DimensionShape d;
    d.kind = Kind::radialDimension;
    d.p1 = {0, 0};
    d.p2 = {300, -400};
    d.p3 = {348, -400};
    d.p4 = {radius, 0};
    d.s1 = style;
    d.s2 = 48;
    return d;
}

constexpr auto radialShaft = "line 28.8 -38.4 300 -400";
constexpr auto shoulder = "line 300 -400 348 -400";

Ops withCentreMark(Ops before)
{
    for (const char* stroke :
         {"line 0 0 -48 0", "line 0 0 48 0", "line 0 0 0 -48", "line 0 0 0 48", shoulder})
        before.emplace_back(stroke);
    return before;
}

TEST(RadialDimStrokes, HaveTheArrowOnTheElbowsSideOfTheCircle)
{
    expectEach({
        {"closed, from outside", radial(arrow::closed, 100),
         withCentreMark({radialShaft, "line 60 -80 79.2 -125.6", "line 60 -80 98.4 -111.2",
                         "line 79.2 -125.6 98.4 -111.2"})},
        {"open, from outside", radial(arrow::open, 100),
         withCentreMark({radialShaft, "line 60 -80 79.2 -125.6", "line 60 -80 98.4 -111.2"})},
        {"closed, from inside", radial(arrow::closed, 600),
         withCentreMark({radialShaft, "line 360 -480 340.8 -434.4", "line 360 -480 321.6 -448.8",
                         "line 340.8 -434.4 321.6 -448.8"})},
        {"an elbow on the circle counts as inside", radial(arrow::open, 500),
         withCentreMark({radialShaft, "line 300 -400 280.8 -354.4", "line 300 -400 261.6 -368.8"})},
        {"slash", radial(arrow::slash, 100), withCentreMark({radialShaft, "line 76.8 -82.4 43.2 -77.6"})},
    });
}

TEST(RadialDimStrokes, WithoutAnArrowStyleAreTheShoulderAlone)
{
    const Ops expected = {shoulder};
    EXPECT_EQ(strokesOf(radial(0, 100)), expected);
    EXPECT_EQ(strokesOf(radial(4, 100)), expected);
}

TEST(RadialDimStrokes, WithTheElbowOnTheCentreHaveNoArrow)
{
    DimensionShape d = radial(arrow::closed, 100);
    d.p2 = d.p1;
    d.p3 = {48, 0};
    const Ops expected = {"line 0 0 -48 0", "line 0 0 48 0", "line 0 0 0 -48", "line 0 0 0 48",
                          "line 0 0 48 0"};
    EXPECT_EQ(strokesOf(d), expected);
}

DimensionShape leader(float style)
{
    DimensionShape d;
    d.kind = Kind::leader;
    d.p1 = {0, 0};
    d.p2 = {300, -400};
    d.p3 = {348, -400};
    d.s1 = style;
    d.s2 = 7; // of no account
    d.a2 = 50;
    return d;
}

TEST(LeaderStrokes, AreSizedByTheirThirdNumberAndOpenUnlessClosed)
{
    const Ops open = {"line 0 0 300 -400", shoulder, "line 0 0 20 -47.5", "line 0 0 40 -32.5"};
    expectEach({
        {"closed",
         leader(arrow::closed),
         {"line 30 -40 300 -400", shoulder, "line 0 0 20 -47.5", "line 0 0 40 -32.5",
          "line 20 -47.5 40 -32.5"}},
        {"open", leader(arrow::open), open},
        {"slash style", leader(arrow::slash), open},
        {"any other", leader(0), open},
    });
}

TEST(LeaderStrokes, OfNoLengthHaveNoArrow)
{
    DimensionShape d = leader(arrow::closed);
    d.p2 = d.p1;
    const Ops expected = {"line 0 0 348 -400"};
    EXPECT_EQ(strokesOf(d), expected);
}

// A quarter of a circle about the origin, from the right to the top.
DimensionShape angular(std::int16_t style)
{
    DimensionShape d;
    d.kind = Kind::angularDimension;
    d.p1 = {0, 0};
    d.p2 = {200, 0};
    d.p3 = {0, -100};
    d.p4 = {300, 0};
    d.s1 = 48;
    d.s2 = 7; // of no account
    d.rad = 300;
    d.a1 = 0;
    d.a2 = quarterTurn;
    d.style = style;
    return d;
}

TEST(AngularDimStrokes, HaveTheirArrowsOnTheArc)
{
    const Ops lines = {"line 31.968 0 348 0", "line 0 -31.968 0 -348", "arc 0 0 300 0 300 0 1.571"};
    const auto with = [&lines](const Ops& arrows) {
        Ops all = lines;
        all.insert(all.end(), arrows.begin(), arrows.end());
        return all;
    };
    expectEach({
        {"closed", angular(arrow::closed),
         with({"line 300 0 288 -48", "line 300 0 312 -48", "line 288 -48 312 -48", "line 0 -300 48 -312",
               "line 0 -300 48 -288", "line 48 -312 48 -288"})},
        {"open", angular(arrow::open),
         with({"line 300 0 288 -48", "line 300 0 312 -48", "line 0 -300 48 -312", "line 0 -300 48 -288"})},
        {"slash", angular(arrow::slash), with({"line 312 -12 288 12", "line 12 -288 -12 -312"})},
        {"no arrow style", angular(0), lines},
    });
}

TEST(AngularDimStrokes, KeepArrowsInsideHoweverShortTheArc)
{
    DimensionShape d = angular(arrow::open);
    d.a2 = 0.01;
    const Ops ops = strokesOf(d);
    ASSERT_EQ(ops.size(), 7U);
    EXPECT_EQ(ops[2], "arc 0 0 300 0 300 0 0.01");
    EXPECT_EQ(ops[3], "line 300 0 288 -48");
}

TEST(AngularDimStrokes, LeaveOutTheExtensionLineThroughTheVertexAlone)
{
    DimensionShape d = angular(0);
    d.p3 = d.p1;
    const Ops expected = {"line 31.968 0 348 0", "arc 0 0 300 0 300 0 1.571"};
    EXPECT_EQ(strokesOf(d), expected);
}

TEST(DimensionStrokes, OfOtherKindsAreNone)
{
    constexpr std::int16_t others[] = {-1, 0, 1, 6, 11, 17, 24, 32767};
    for (const std::int16_t other : others) {
        DimensionShape d = linear(arrow::closed, 600);
        d.kind = Kind{other};
        EXPECT_TRUE(strokesOf(d).empty()) << other;
    }
}

TEST(DimensionStrokes, NeverHaveACoordinateThatCanNotBe)
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float inf = std::numeric_limits<float>::infinity();
    for (const float bad : {nan, inf, -inf, 3.4e38F, -3.4e38F}) {
        for (DimensionShape d : {linear(1, 600), linear(2, 100), radial(3, 100), leader(1), angular(1)}) {
            for (float* field : {&d.p1.x, &d.p2.y, &d.p3.x, &d.p4.y, &d.s1, &d.s2, &d.rad}) {
                const float was = *field;
                *field = bad;
                for (const std::string& op : strokesOf(d)) {
                    EXPECT_EQ(op.find("nan"), std::string::npos) << op;
                    EXPECT_EQ(op.find("inf"), std::string::npos) << op;
                }
                *field = was;
            }
            d.a1 = d.a2 = bad;
            for (const std::string& op : strokesOf(d)) EXPECT_EQ(op.find("nan"), std::string::npos) << op;
        }
    }
}

TEST(DimensionStrokes, AreTheSameFromARecordAndFromItsSlot)
{
    const auto store = std::make_unique<EntityStore>();
    EntityRecord r = fake::record(Kind::angularDimension, {1, 2}, {200, 3}, {4, -100}, {301, 2});
    r.s1 = 48;
    r.s2 = 49;
    r.rad = 300;
    r.a1 = 0.25;
    r.a2 = 1.5;
    r.style = arrow::open;
    store->setRecord(3, r);
    const Ops expected = strokesOf(shapeOf(r));
    EXPECT_EQ(expected.size(), 7U);
    EXPECT_EQ(strokesOf(shapeAt(*store, 3)), expected);
}

} // namespace
} // namespace mirtane
