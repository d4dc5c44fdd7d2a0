#include "commands/angular_dimension.h"

#include "desk.h"
#include "dimension_desk.h"
#include "geometry/angle.h"
#include "geometry/arc.h"
#include "model/undo_log.h"
#include "slanted.h"

#include <cmath>
#include <random>

namespace mirtane {
namespace {

using fake::expectNear;
using fake::marks;
using fake::only;
using fake::Ops;
using fake::Slanted;

constexpr Point vertex{1000, 1000};

class AngularDesk : public fake::MeasuringDesk {
  public:
    AngularDesk() : MeasuringDesk("Angular Dimension") {}

    void legs(Point first, Point second)
    {
        snap(vertex);
        snap(first);
        snap(second);
    }
    void measure(Point first, Point second, Point offset)
    {
        legs(first, second);
        click(offset);
    }
};

constexpr double quarter = 1.5707963;

TEST(AngularDimension, FourClicksFillItsSlotInEveryQuadrant)
{
    struct Row {
        const char* what;
        Point first, second;
        double a1, a2;
        const char* text;
        double turn;     // of the text, degrees
        Point at, onArc; // with the arc at 300
    };
    // 300 and 372 at 45 degrees: 212.13 and 263.04.
    const Row rows[] = {
        {"first quadrant",
         {1200, 1000},
         {1000, 800},
         0,
         quarter,
         "90.000\xC2\xB0",
         315,
         {1263.04F, 736.96F},
         {1300, 1000}},
        {"second quadrant",
         {1000, 800},
         {700, 1000},
         quarter,
         2 * quarter,
         "90.000\xC2\xB0",
         45,
         {736.96F, 736.96F},
         {1000, 700}},
        {"third quadrant",
         {700, 1000},
         {1000, 1100},
         2 * quarter,
         3 * quarter,
         "90.000\xC2\xB0",
         135,
         {736.96F, 1263.04F},
         {700, 1000}},
        {"fourth quadrant",
         {1000, 1100},
         {1100, 1000},
         3 * quarter,
         0,
         "90.000\xC2\xB0",
         225,
         {1263.04F, 1263.04F},
         {1000, 1300}},
        {"the other way round: the other side",
         {1000, 800},
         {1200, 1000},
         quarter,
         0,
         "270.000\xC2\xB0",
         135,
         {736.96F, 1263.04F},
         {1000, 700}},
        {"straight above",
         {1200, 800},
         {800, 800},
         quarter / 2,
         1.5 * quarter,
         "90.000\xC2\xB0",
         0,
         {1000, 628},
         {1212.13F, 787.87F}},
        {"straight to the left",
         {800, 800},
         {800, 1200},
         1.5 * quarter,
         2.5 * quarter,
         "90.000\xC2\xB0",
         90,
         {628, 1000},
         {787.87F, 787.87F}},
        {"straight below",
         {800, 1200},
         {1200, 1200},
         2.5 * quarter,
         3.5 * quarter,
         "90.000\xC2\xB0",
         180,
         {1000, 1372},
         {787.87F, 1212.13F}},
        {"straight to the right, through 0",
         {1200, 1200},
         {1200, 800},
         3.5 * quarter,
         quarter / 2,
         "90.000\xC2\xB0",
         270,
         {1372, 1000},
         {1212.13F, 1212.13F}},
        {"a half turn",
         {1200, 1000},
         {800, 1000},
         0,
         2 * quarter,
         "180.000\xC2\xB0",
         0,
         {1000, 628},
         {1300, 1000}},
    };
    for (const Row& row : rows) {
        AngularDesk desk;
        desk.measure(row.first, row.second, {1180, 1240}); // 300 away, off the angle
        ASSERT_EQ(desk.madeCount(), 1) << row.what;
        const EntityRecord r = desk.made(1);
        EXPECT_EQ(r.kind, Kind::angularDimension) << row.what;
        EXPECT_EQ(r.p1, vertex) << row.what;
        EXPECT_EQ(r.p2, row.first) << row.what;
        EXPECT_EQ(r.p3, row.second) << row.what;
        expectNear(r.p4, row.onArc, row.what);
        expectNear(r.p5, row.at, row.what);
        EXPECT_NEAR(r.a1, row.a1, 1e-6) << row.what;
        EXPECT_NEAR(r.a2, row.a2, 1e-6) << row.what;
        EXPECT_NEAR(std::remainder(r.a3 - row.turn, 360), 0, 1e-4) << row.what;
        EXPECT_FLOAT_EQ(r.rad, 300) << row.what;
        EXPECT_EQ(r.t1, row.text) << row.what;
    }
}

TEST(AngularDimension, StandsExactlyAboveTheVertexAtARightAngleToTheScreen)
{
    AngularDesk desk;
    desk.measure({1200, 800}, {800, 800}, {1300, 1000});
    EXPECT_EQ(desk.made(1).p5, (Point{1000, 628}));
}

// This kind is crossed: both sizes hold the arrow size, the arrow style stands in the line style's place.
TEST(AngularDimension, KeepsTheArrowStyleInTheLineStyle)
{
    AngularDesk desk;
    desk.s.dimStyle = 3;
    desk.s.arrowSize = 32;
    desk.s.curStyle = 4;
    desk.s.textSize = 500;
    desk.s.textFont = "Courier";
    desk.s.curColor = 0x00FFFF;
    desk.measure({1200, 1000}, {1000, 800}, {1300, 1000});
    desk.s.dimStyle = 1;
    const EntityRecord r = desk.made(1);
    EXPECT_EQ(r.style, 3);
    EXPECT_EQ(r.s1, 32);
    EXPECT_EQ(r.s2, 32);
    EXPECT_EQ(r.t2, "Courier");
    EXPECT_EQ(r.color, 0x00FFFF);
    EXPECT_NEAR(distance(vertex, r.p5), 348, 0.01); // one and a half arrows off the arc
}

TEST(AngularDimension, WritesTheAngleInTheFormOfItsMoment)
{
    struct Row {
        Point second;
        std::int16_t format;
        const char* text;
    };
    const Row rows[] = {
        {{1000, 800}, 0, "90.000\xC2\xB0"},
        {{1000, 800}, 1, "89\xC2\xB0 59' 60\""}, // a right angle falls a little short of 90
        {{1200, 800}, 0, "45.000\xC2\xB0"},
        {{1200, 900}, 0, "26.565\xC2\xB0"},
        {{1200, 900}, 1, "26\xC2\xB0 33' 54\""},
    };
    for (const Row& row : rows) {
        AngularDesk desk;
        desk.s.angFormat = row.format;
        desk.s.numStyle = "br";
        desk.s.numComma = 1; // says nothing of angles
        desk.measure({1200, 1000}, row.second, {1300, 1000});
        EXPECT_EQ(desk.made(1).t1, row.text);
        desk.s.angFormat = 0;
        EXPECT_EQ(desk.made(1).t1, row.text);
    }
}

TEST(AngularDimension, LegsOnOneRayMakeNoDimensionInEitherForm)
{
    for (const std::int16_t format : {std::int16_t{0}, std::int16_t{1}}) {
        for (const Point second : {Point{1400, 1000}, Point{1100, 1000}}) {
            AngularDesk desk;
            desk.s.angFormat = format;
            desk.legs({1200, 1000}, second);
            EXPECT_EQ(desk.text3(), ".000");
            EXPECT_EQ(desk.s.stepNo, 0);
            EXPECT_EQ(desk.s.promptText, "(Enter point of angle:)");
            EXPECT_EQ(desk.madeCount(), 0);
        }
    }
}

// Far from the origin a step of rounding turns a short leg by much more than the text shows.
TEST(AngularDimension, LegsOnOneRayAreRefusedBothWaysRoundAndARoundingStepOffIt)
{
    Slanted dice(9);
    AngularDesk desk;
    for (int i = 0; i < 3000; ++i) {
        const double reach = dice.anySize(1, 1000000);
        const Point at = dice.pointWithin({0, 0}, reach);
        const auto onRay = [&, turn = dice.between(0, 6.2831853)](double way) {
            return Point{static_cast<float>(at.x + way * std::cos(turn)),
                         static_cast<float>(at.y - way * std::sin(turn))};
        };
        const Point one = onRay(dice.between(reach / 100, reach));
        const Point other = onRay(dice.between(reach / 100, reach));
        for (const auto& [first, second] : {std::pair{one, other}, {other, one}, {one, one}}) {
            for (const Point p : {at, first, second}) desk.snap(p);
            EXPECT_EQ(desk.text3(), ".000") << i;
            EXPECT_EQ(desk.s.stepNo, 0) << i;
            ASSERT_EQ(desk.s.promptText, "(Enter point of angle:)") << i;
        }
        EXPECT_EQ(desk.madeCount(), 0) << i;
    }
}

TEST(AngularDimension, MeasuresWhatIsPlainlyAnAngleBothWaysRound)
{
    struct Row {
        Point first, second;
        const char *angle, *rest;
    };
    const Row rows[] = {
        {{1000, 0}, {1000, -0.0175F}, ".001\xC2\xB0", "359.999\xC2\xB0"},
        {{1000, 0}, {1000, -0.1745F}, ".010\xC2\xB0", "359.990\xC2\xB0"},
        {{-1000, 0}, {-1000, 1.745F}, ".100\xC2\xB0", "359.900\xC2\xB0"},
        {{300, 400}, {-300, -400}, "180.000\xC2\xB0", "180.000\xC2\xB0"}, // one line, but two rays
    };
    for (const Row& row : rows) {
        AngularDesk desk;
        for (const auto& [first, second] : {std::pair{row.first, row.second}, {row.second, row.first}}) {
            for (const Point p : {Point{0, 0}, first, second}) desk.snap(p);
            EXPECT_EQ(desk.text3(), first == row.first ? row.angle : row.rest);
            desk.click({700, 100});
        }
        EXPECT_EQ(desk.madeCount(), 2) << row.angle;
    }
}

TEST(AngularDimension, AsksForEachPointInTurn)
{
    AngularDesk desk;
    desk.snap(vertex);
    EXPECT_EQ(desk.s.promptText, "(Enter first vertex:)");
    desk.snap({1200, 1000});
    EXPECT_EQ(desk.s.promptText, "(Enter second vertex:)");
    desk.snap({1000, 800});
    EXPECT_EQ(desk.s.promptText, "(Enter off-set point:)");
    EXPECT_EQ(desk.text3(), "90.000\xC2\xB0");
    desk.click({1300, 1000});
    EXPECT_EQ(desk.s.promptText, "(Enter point of angle:)");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.workAngle, 0);
    EXPECT_EQ(desk.s.curFunc, "Angular Dimension");
    desk.measure({1200, 1000}, {1000, 800}, {1500, 1000});
    EXPECT_EQ(desk.madeCount(), 2);
    undo(desk.s.store, desk.s.log);
    EXPECT_EQ(desk.madeStat(2), Stat::out);
    EXPECT_EQ(desk.madeStat(1), Stat::on);
}

TEST(AngularDimension, FreeClickOnAPointOfTheAngleStartsAgain)
{
    for (int snapped = 0; snapped < 3; ++snapped) {
        AngularDesk desk;
        const Point points[] = {vertex, {1200, 1000}, {1000, 800}};
        for (int i = 0; i < snapped; ++i) desk.snap(points[i]);
        EXPECT_EQ(desk.s.stepNo, snapped);
        desk.click(points[snapped]);
        EXPECT_EQ(desk.s.stepNo, 0) << snapped;
        EXPECT_EQ(desk.s.promptText, "(Enter point of angle:)") << snapped;
        EXPECT_EQ(desk.madeCount(), 0) << snapped;
    }
}

TEST(AngularDimension, SnapOfOneClickIsNotThatOfTheNext)
{
    AngularDesk desk;
    desk.snap(vertex);
    EXPECT_FALSE(desk.s.pointWasSnapped);
    desk.snap({1200, 1000});
    desk.snap({1000, 800});
    desk.snap({1300, 1000}); // the off-set point may be snapped too
    EXPECT_FALSE(desk.s.pointWasSnapped);
    EXPECT_EQ(desk.madeCount(), 1);
}

TEST(AngularDimension, BandShowsWhatTheClickMakes)
{
    for (const Point offset : {Point{1300, 1000}, Point{700, 1400}, Point{1040, 970}}) {
        AngularDesk desk;
        desk.legs({1200, 1000}, {1000, 800});
        desk.ops();
        desk.move(offset);
        const Ops band = desk.ops();
        desk.click(offset);
        EXPECT_EQ(band.front(), "restoreSnapshot");
        EXPECT_EQ(only(band, "arc").size(), 1U);
        EXPECT_EQ(only(band, "text").size(), 1U);
        EXPECT_EQ(only(band, "line").size(), 8U); // two legs, two closed heads
        EXPECT_EQ(marks(band), marks(desk.ops()));
    }
}

TEST(AngularDimension, IsShownOnceByTheClickOnTheSecondLeg)
{
    AngularDesk desk;
    desk.snap(vertex);
    desk.snap({1200, 1000});
    desk.ops();
    desk.move({1100, 900});
    EXPECT_TRUE(desk.ops().empty()); // no band before
    desk.snap({1000, 800});
    const Ops arcs = only(desk.ops(), "arc");
    ASSERT_EQ(arcs.size(), 1U);
    EXPECT_EQ(arcs[0].substr(0, 18), "arc 1000 1000 200 ");
    EXPECT_EQ(desk.s.workAngle, 0);
}

TEST(AngularDimension, IsPaintedSolidWithItsTextAtTheNearestWholeDegreeAndKept)
{
    AngularDesk desk;
    desk.s.curStyle = 3;
    desk.s.curColor = 0x0000FF;
    desk.legs({1200, 1000}, {1200, 900}); // bisected at 13.28 degrees
    desk.ops();
    desk.click({1300, 1000});
    const Ops ops = desk.ops();
    const Ops begin(ops.begin(), ops.begin() + 3);
    EXPECT_EQ(begin, (Ops{"setStyle 0", "setColor 255", "restoreSnapshot"}));
    const Ops end(ops.end() - 3, ops.end());
    EXPECT_EQ(end, (Ops{"snapshot", "setColor 16777215", "setStyle 2"}));
    const Ops texts = only(ops, "text");
    ASSERT_EQ(texts.size(), 1U);
    EXPECT_NE(texts[0].find(" 283 26.565"), std::string::npos) << texts[0];
    EXPECT_NEAR(desk.made(1).a3, 283.2825, 1e-3); // the slot keeps the whole of it
}

// Typed distances mean nothing here, but count a step.
TEST(AngularDimension, AStepCountedByATypedDistanceIsNoDeadEnd)
{
    AngularDesk desk;
    desk.legs({1200, 1000}, {1000, 800});
    desk.typeIn("12");
    desk.ops();
    desk.move({1300, 1000});
    EXPECT_EQ(only(desk.ops(), "arc").size(), 1U);
    desk.click({1300, 1000});
    EXPECT_EQ(desk.s.stepNo, 0);
}

// A point of a construction line may be the vertex itself.
TEST(AngularDimension, LegWithoutADirectionIsTakenWithoutHarm)
{
    fake::Desk desk;
    desk.press(ids::drawAngularDimension);
    desk.layPoint(1000, 1000);
    desk.layPoint(1000, 1000);
    desk.layPoint(1000, 800);
    desk.click(1300, 1000);
    ASSERT_EQ(desk.s.store.entCount, 2);
    EXPECT_TRUE(std::isfinite(desk.slot(1).p5.x));
    EXPECT_TRUE(std::isfinite(desk.slot(1).a1));
}

TEST(AngularDimension, TextOfAnyAngleStandsOutsideTheArcOnItsBisector)
{
    std::mt19937 random(11);
    std::uniform_real_distribution<float> anywhere(0, 2000);
    const auto point = [&] { return Point{anywhere(random), anywhere(random)}; };
    AngularDesk desk;
    for (int i = 0; i < 500; ++i) {
        const Point first = point();
        const Point second = point();
        const Point offset = point();
        desk.measure(first, second, offset);
        ASSERT_EQ(desk.madeCount(), i + 1) << i;
        const EntityRecord r = desk.last();
        const double radius = distance(vertex, offset);
        EXPECT_EQ(r.p2, first) << i;
        EXPECT_EQ(r.p3, second) << i;
        EXPECT_NEAR(r.rad, radius, 0.01) << i;
        EXPECT_NEAR(distance(vertex, r.p4), radius, 0.01) << i;
        EXPECT_NEAR(distance(vertex, r.p5), radius + 72, 0.01) << i;
        const double direction = directionAngle(vertex, r.p5, 0);
        EXPECT_NEAR(sweep(r.a1, direction), sweep(r.a1, r.a2) / 2, 1e-3) << i;
        EXPECT_NEAR(std::remainder(r.a3 - direction * degreesPerRadian + 90, 360), 0, 0.1) << i;
        EXPECT_GE(r.a3, 0) << i;
        EXPECT_LT(r.a3, 360.001) << i;
    }
}

// A short leg far off still shows an angle, as long as that is more than a step of rounding.
TEST(AngularDimension, MeasuresShortLegsFarOffWhatIsMoreThanAStepOfRounding)
{
    struct Row {
        Point vertex;
        double length, degrees; // of the legs; between them
    };
    const Row rows[] = {
        {{250000, 175000}, 12, 0.97}, {{-250000, 175000}, 15, 0.6}, {{100000, -70000}, 48, 0.1},
        {{40000, 28000}, 12, 0.11},   {{-1000000, -700000}, 12, 4}, {{30000, 900000}, 36, 0.9},
    };
    Slanted dice(43);
    AngularDesk desk;
    for (const Row& row : rows) {
        for (int i = 0; i < 50; ++i) {
            desk.cancel();
            const double turn = dice.between(0, 360);
            const auto on = [&](double degrees) {
                const Point leg = fake::onTurn(degrees, row.length);
                return Point{row.vertex.x + leg.x, row.vertex.y + leg.y};
            };
            for (const Point p : {row.vertex, on(turn), on(turn + row.degrees)}) desk.snap(p);
            ASSERT_EQ(desk.s.stepNo, 3) << row.degrees << " from " << turn;
            const double halfStep = 0x1p-24 * std::max(std::abs(row.vertex.x), std::abs(row.vertex.y));
            const double room = 4 * halfStep / row.length * degreesPerRadian;
            EXPECT_NEAR(std::stod(desk.text3()), row.degrees, room + 0.001) << turn;
        }
    }
}

} // namespace
} // namespace mirtane
