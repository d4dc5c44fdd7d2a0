#include "commands/linear_dimension.h"

#include "desk.h"
#include "dimension_desk.h"

#include <cmath>

namespace mirtane {
namespace {

using fake::expectDegrees;
using fake::expectNear;
using fake::LinearDesk;
using fake::marks;
using fake::only;
using fake::Ops;

// What a dimension between first and second says and where, with the pointer at offset.
struct Row {
    const char* what;
    Point first, second, offset;
    Point p4; // p3 is where the offset was clicked
    const char* text;
    double degrees;
    Point at;
};

// Three feet have a text of five characters, which starts 162 along a line of 432.
constexpr Row rows[] = {
    {"level, above", {1000, 1000}, {1432, 1000}, {1432, 800}, {1000, 800}, "3'-0\"", 0, {1162, 728}},
    {"level, below: its text is above the line",
     {1000, 1000},
     {1432, 1000},
     {1432, 1200},
     {1000, 1200},
     "3'-0\"",
     0,
     {1162, 1128}},
    {"level, backwards, above",
     {1432, 1000},
     {1000, 1000},
     {1000, 800},
     {1432, 800},
     "3'-0\"",
     0,
     {1162, 728}},
    {"level, backwards, below",
     {1432, 1000},
     {1000, 1000},
     {1000, 1200},
     {1432, 1200},
     "3'-0\"",
     0,
     {1162, 1128}},
    {"upright, downwards, to the right",
     {1000, 1000},
     {1000, 1432},
     {1200, 1432},
     {1200, 1000},
     "3'-0\"",
     90,
     {1128, 1270}},
    {"upright, downwards, to the left",
     {1000, 1000},
     {1000, 1432},
     {800, 1432},
     {800, 1000},
     "3'-0\"",
     90,
     {728, 1270}},
    {"upright, upwards, to the right",
     {1000, 1432},
     {1000, 1000},
     {1200, 1000},
     {1200, 1432},
     "3'-0\"",
     90,
     {1128, 1270}},
    {"upright, upwards, to the left",
     {1000, 1432},
     {1000, 1000},
     {800, 1000},
     {800, 1432},
     "3'-0\"",
     90,
     {728, 1270}},
    {"the level part of a slope, above",
     {1000, 1000},
     {1432, 1300},
     {1432, 700},
     {1000, 700},
     "3'-0\"",
     0,
     {1162, 628}},
    {"the level part of a slope, below",
     {1000, 1000},
     {1432, 1300},
     {1432, 1600},
     {1000, 1600},
     "3'-0\"",
     0,
     {1162, 1528}},
    {"the upright part of a slope",
     {1000, 1000},
     {1300, 1432},
     {1800, 1432},
     {1800, 1000},
     "3'-0\"",
     90,
     {1728, 1270}},
    // Along lines of 500: 3'-5 5/8", nine characters, 152.8 along.
    {"along a rising slope",
     {1000, 1000},
     {1300, 600},
     {1220, 540},
     {920, 940},
     "3'-5 5/8\"",
     53.1301,
     {954.08F, 774.56F}},
    {"along the same slope, backwards",
     {1300, 600},
     {1000, 1000},
     {920, 940},
     {1220, 540},
     "3'-5 5/8\"",
     53.1301,
     {954.08F, 774.56F}},
    {"along a falling slope",
     {1000, 1000},
     {1300, 1400},
     {1380, 1340},
     {1080, 940},
     "3'-5 5/8\"",
     306.8699,
     {1229.28F, 1019.04F}},
    {"along the same slope, backwards",
     {1300, 1400},
     {1000, 1000},
     {1080, 940},
     {1380, 1340},
     "3'-5 5/8\"",
     306.8699,
     {1229.28F, 1019.04F}},
};

TEST(LinearDimension, ThreeClicksFillItsSlotInEveryQuadrant)
{
    for (const Row& row : rows) {
        LinearDesk desk;
        desk.measure(row.first, row.second, row.offset);
        ASSERT_EQ(desk.madeCount(), 1) << row.what;
        const EntityRecord r = desk.made(1);
        EXPECT_EQ(r.kind, Kind::linearDimension) << row.what;
        EXPECT_EQ(r.p1, row.first) << row.what;
        EXPECT_EQ(r.p2, row.second) << row.what;
        EXPECT_EQ(r.p3, row.offset) << row.what;
        expectNear(r.p4, row.p4, row.what);
        EXPECT_EQ(r.t1, row.text) << row.what;
        expectDegrees(r.a1, row.degrees, row.what);
        expectNear(r.p5, row.at, row.what);
    }
}

TEST(LinearDimension, BandShowsWhatTheClickMakes)
{
    for (const Row& row : rows) {
        LinearDesk desk;
        desk.snap(row.first);
        desk.snap(row.second);
        desk.ops();
        desk.move(row.offset);
        const Ops band = desk.ops();
        desk.click(row.offset);
        EXPECT_EQ(only(band, "restoreSnapshot").size(), 1U) << row.what;
        EXPECT_TRUE(only(band, "snapshot").empty()) << row.what;
        EXPECT_GE(marks(band).size(), 10U) << row.what; // two extension lines, a shaft, two heads, the text
        EXPECT_EQ(marks(band), marks(desk.ops())) << row.what;
    }
}

// The click may lie elsewhere than the last move: confined, snapped, or laid by a typed distance.
TEST(LinearDimension, OffsetIsThatOfTheClickAndNotOfTheLastMove)
{
    LinearDesk desk;
    desk.snap({1000, 1000});
    desk.snap({1432, 1000});
    desk.move({1432, 800});
    desk.typeIn("-25"); // inches, away from the pointer
    EXPECT_EQ(desk.made(1).p3, (Point{1432, 1300}));
    EXPECT_EQ(desk.made(1).p4, (Point{1000, 1300}));
}

TEST(LinearDimension, AsksForEachPointInTurn)
{
    LinearDesk desk;
    desk.snap({1000, 1000});
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.promptText, "(Enter next dimension point:)");
    desk.snap({1432, 1000});
    EXPECT_EQ(desk.s.stepNo, 2);
    EXPECT_EQ(desk.s.promptText, "(Enter off-set point:)");
    desk.click({1432, 800});
    EXPECT_EQ(desk.s.stepNo, 3);
    EXPECT_EQ(desk.s.promptText, "(Enter next dimension point:)");
    desk.snap({1576, 1000});
    EXPECT_EQ(desk.s.stepNo, 4);
    EXPECT_EQ(desk.s.promptText, "(Enter next dimension point:)");
}

TEST(LinearDimension, TakesTheArrowsTheFontTheLayerAndTheColourOfItsMoment)
{
    LinearDesk desk;
    desk.s.dimStyle = 3;
    desk.s.arrowSize = 24;
    desk.s.textSize = 100;
    desk.s.textFont = "Courier";
    desk.s.workLayer = 4;
    desk.s.curColor = 0x00FF00;
    desk.s.curStyle = 2;
    desk.measure({1000, 1000}, {1432, 1000}, {1432, 800});
    desk.s.dimStyle = 1;
    desk.s.arrowSize = 96;
    const EntityRecord r = desk.made(1);
    EXPECT_EQ(r.s1, 3);
    EXPECT_EQ(r.s2, 24);
    EXPECT_EQ(r.a2, 24);
    EXPECT_EQ(r.style, 0); // no line style
    EXPECT_EQ(r.t2, "Courier");
    EXPECT_EQ(r.layer, 4);
    EXPECT_EQ(r.color, 0x00FF00);
    EXPECT_EQ(desk.s.layerTable.find(4)->layerUsed, layer::inUse);
    // Five characters of 14.4: the text starts 216 - 27 along and 36 above, sized by the arrows.
    expectNear(r.p5, {1189, 764}, "text");
}

TEST(LinearDimension, IsPaintedSolidInItsColourKeptAndLeftWithTheRubberBandPen)
{
    LinearDesk desk;
    desk.s.curColor = 0x0000FF;
    desk.s.curStyle = 3;
    desk.s.arrowSize = 64;
    desk.s.dimStyle = 2;
    desk.snap({1000, 1000});
    desk.snap({1512, 1000});
    desk.ops();
    desk.click({1512, 800});
    const Ops ops = desk.ops();
    const auto restored = std::find(ops.begin(), ops.end(), "restoreSnapshot");
    ASSERT_NE(restored, ops.end());
    const Ops before(restored - 2, restored);
    EXPECT_EQ(before, (Ops{"setStyle 0", "setColor 255"}));
    const Ops after(ops.end() - 3, ops.end());
    EXPECT_EQ(after, (Ops{"snapshot", "setColor 16777215", "setStyle 2"}));
    const Ops texts = only(ops, "text"); // 3'-6 5/8": nine characters of 38.4, 256 - 129.6 along, 96 above
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_EQ(texts[0].substr(0, 10), "text 1126.");
    EXPECT_EQ(texts[0].substr(texts[0].find(" 704 ")), " 704 0 3'-6 5/8\"");
}

TEST(LinearDimension, SecondClickShowsTheLineOnThePointsThemselves)
{
    LinearDesk desk;
    desk.snap({1000, 1000});
    desk.ops();
    desk.snap({1432, 1000});
    const Ops ops = desk.ops();
    EXPECT_EQ(only(ops, "restoreSnapshot").size(), 1U);
    ASSERT_EQ(only(ops, "text").size(), 1U);
    EXPECT_EQ(only(ops, "text")[0], "text 1162 928 0 3'-0\"");
    EXPECT_EQ(desk.s.workAngle, 0);
}

TEST(LinearDimension, HasNoBandBeforeTheOffsetIsAskedForNorAfter)
{
    LinearDesk desk;
    desk.move({900, 900});
    desk.snap({1000, 1000});
    desk.ops();
    desk.move({1200, 900});
    EXPECT_TRUE(desk.ops().empty());
    desk.snap({1432, 1000});
    desk.click({1432, 800});
    desk.ops();
    desk.move({1200, 900});
    EXPECT_TRUE(desk.ops().empty());
}

// A distance of nothing typed for the offset lays it on the second point.
TEST(LinearDimension, OffsetOnTheSecondPointKeepsTheDirectionOfTheBand)
{
    LinearDesk desk;
    desk.snap({1000, 1000});
    desk.snap({1432, 1300});
    desk.move({1432, 700});
    desk.typeIn("0");
    EXPECT_EQ(desk.made(1).p3, (Point{1432, 1300}));
    expectNear(desk.made(1).p4, {1000, 1300}, "level, as in the band");

    LinearDesk unmoved;
    unmoved.snap({1000, 1000});
    unmoved.snap({1432, 1300});
    unmoved.typeIn("0");
    expectNear(unmoved.made(1).p4, {1000, 1000}, "on the points themselves");
}

TEST(LinearDimension, FreeClickOnAMeasuredPointStartsAgainAndStoresNothing)
{
    LinearDesk desk;
    desk.click({1000, 1000});
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.promptText, "(Enter first dimension point:)");
    desk.snap({1000, 1000});
    desk.click({1432, 1000});
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.promptText, "(Enter first dimension point:)");
    desk.measure({1000, 1000}, {1432, 1000}, {1432, 800});
    desk.click({1576, 1000});
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.madeCount(), 1);
    EXPECT_EQ(desk.s.curFunc, "Ortho Dimension");
}

TEST(LinearDimension, SnapOfOneClickIsNotThatOfTheNext)
{
    LinearDesk desk;
    desk.snap({1000, 1000});
    EXPECT_FALSE(desk.s.pointWasSnapped);
    desk.snap({1432, 1000});
    EXPECT_FALSE(desk.s.pointWasSnapped);
    desk.snap({1432, 800}); // the offset may be snapped too
    EXPECT_FALSE(desk.s.pointWasSnapped);
    EXPECT_EQ(desk.madeCount(), 1);
}

TEST(LinearDimension, TypedDistanceIsNoSnap)
{
    LinearDesk desk;
    desk.snap({1000, 1000});
    desk.move({1200, 1000});
    desk.typeIn("36");
    EXPECT_EQ(desk.s.stepNo, 0);
    desk.snap({1000, 1000});
    desk.snap({1432, 1000});
    desk.snap({1432, 800});
    desk.typeIn("12");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.madeCount(), 1);
}

// Refused by its text, so only feet and inches refuse.
TEST(LinearDimension, NothingToMeasureIsRefusedWhereItsTextIsTheBareDigit)
{
    struct Style {
        const char* numStyle;
        std::int16_t comma;
        const char* text; // of what is stored, null if nothing is
    };
    const Style styles[] = {{"us", 0, nullptr},   {"us", 1, nullptr},  {"2f", 0, ".00'"},
                            {"2f", 1, ",00'"},    {"3i", 0, ".000\""}, {"3i", 1, ".000\""},
                            {"br", 0, "0.000cm"}, {"br", 1, "0,000cm"}};
    for (const Style& style : styles) {
        LinearDesk desk;
        desk.s.numStyle = style.numStyle;
        desk.s.numComma = style.comma;
        desk.measure({1000, 1000}, {1000, 1300}, {1000, 1500}); // the offset in line with both points
        if (style.text == nullptr) {
            EXPECT_EQ(desk.madeCount(), 0) << style.numStyle;
            EXPECT_EQ(desk.s.stepNo, 0) << style.numStyle;
            EXPECT_EQ(desk.s.promptText, "(Enter first dimension point:)") << style.numStyle;
            EXPECT_EQ(desk.text3(), "0") << style.numStyle;
        } else {
            ASSERT_EQ(desk.madeCount(), 1) << style.numStyle;
            EXPECT_EQ(desk.made(1).t1, style.text);
            EXPECT_EQ(desk.made(1).p3, desk.made(1).p4);
            EXPECT_EQ(desk.made(1).a1, 0);
            EXPECT_EQ(desk.s.stepNo, 3);
        }
    }
}

TEST(LinearDimension, RefusedLeavesNoBandOnThePicture)
{
    LinearDesk desk;
    desk.snap({1000, 1000});
    desk.snap({1000, 1300});
    desk.move({1000, 1500});
    desk.ops();
    desk.click({1000, 1500});
    const Ops ops = desk.ops();
    EXPECT_EQ(only(ops, "restoreSnapshot").size(), 1U);
    EXPECT_TRUE(marks(ops).empty());
    EXPECT_TRUE(only(ops, "snapshot").empty());
}

TEST(LinearDimension, ToleranceDecidesWhatIsNothing)
{
    LinearDesk coarse;
    coarse.measure({1000, 1000}, {1000.7F, 1000}, {1000.7F, 800});
    EXPECT_EQ(coarse.madeCount(), 0);
    LinearDesk fine;
    fine.s.dimTol = 0.015625F;
    fine.measure({1000, 1000}, {1000.7F, 1000}, {1000.7F, 800});
    ASSERT_EQ(fine.madeCount(), 1);
    EXPECT_EQ(fine.made(1).t1, "1/16\"");
}

TEST(LinearDimension, MiddleButtonBeforeTheFirstPointDoesNothing)
{
    LinearDesk desk;
    desk.down(4, {1000, 1000});
    desk.snap({1000, 1000}, 4);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.madeCount(), 0);
}

// Two points of a construction line may be one.
TEST(LinearDimension, OnePointMeasuredTwiceIsTakenWithoutHarm)
{
    fake::Desk desk;
    desk.press(ids::orthoToggle);
    desk.press(ids::drawLinearDimension);
    desk.s.numStyle = "3i";
    desk.layPoint(1000, 1000);
    desk.layPoint(1000, 1000);
    desk.click(1200, 900);
    ASSERT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.slot(1).p4, (Point{1200, 900}));
    expectNear(desk.slot(1).p5, {1200 - 0.375F * 5 * fake::characterWidth, 828}, "centred above the point");
}

TEST(LinearDimension, CoordinatesPastAllBoundsAreTakenWithoutHarm)
{
    const float huge = 3e38F;
    LinearDesk desk;
    desk.s.numStyle = "3i";
    desk.measure({-huge, -huge}, {huge, huge}, {huge, -huge});
    desk.snap({-huge, huge});
    for (std::int32_t i = 1; i <= desk.madeCount(); ++i) {
        const EntityRecord r = desk.made(i);
        for (const Point p : {r.p1, r.p2, r.p3, r.p4, r.p5}) {
            EXPECT_TRUE(std::isfinite(p.x) && std::isfinite(p.y));
        }
    }
}

} // namespace
} // namespace mirtane
