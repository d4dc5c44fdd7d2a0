#include "commands/radial_dimension.h"

#include "dimension_desk.h"
#include "geometry/angle.h"
#include "model/undo_log.h"

#include <cmath>
#include <random>

namespace mirtane {
namespace {

using fake::expectNear;
using fake::marks;
using fake::only;
using fake::Ops;

constexpr Point centre{1000, 1000};

// Of an arc the upper right quarter.
EntityRecord roundRecord(Kind kind, float rad)
{
    return kind == Kind::circle ? fake::circle(centre, rad) : fake::arc(centre, rad, 0, quarterTurn);
}

// A drawing with one circle of a foot about the centre in slot 1.
class RadialDesk : public fake::DimensionDesk {
  public:
    explicit RadialDesk(const EntityRecord& r = roundRecord(Kind::circle, 144))
        : DimensionDesk("Radial Dimension")
    {
        add(r);
    }

    void dimension(Point near, Point elbow)
    {
        click(near);
        click(elbow);
    }
};

TEST(RadialDimension, TwoClicksFillItsSlotWhicheverSideTheElbowLiesOn)
{
    struct Row {
        const char* what;
        Point elbow, onCircle;
    };
    const Row rows[] = {
        {"right", {1300, 1000}, {1144, 1000}},
        {"up", {1000, 700}, {1000, 856}},
        {"left", {700, 1000}, {856, 1000}},
        {"down", {1000, 1300}, {1000, 1144}},
        {"up to the right", {1300, 600}, {1086.4F, 884.8F}},
        {"up to the left", {700, 600}, {913.6F, 884.8F}},
        {"down to the left", {700, 1400}, {913.6F, 1115.2F}},
        {"down to the right", {1300, 1400}, {1086.4F, 1115.2F}},
        {"inside the circle", {1030, 960}, {1086.4F, 884.8F}},
        {"on the circle", {1144, 1000}, {1144, 1000}},
    };
    for (const Row& row : rows) {
        RadialDesk desk;
        desk.dimension({1140, 1010}, row.elbow); // a second click on the first would be the cancel
        ASSERT_EQ(desk.s.store.entCount, 3) << row.what;
        const EntityRecord r = desk.slot(2);
        EXPECT_EQ(r.kind, Kind::radialDimension) << row.what;
        EXPECT_EQ(r.p1, centre) << row.what;
        EXPECT_EQ(r.p2, row.elbow) << row.what;
        expectNear(r.p3, {row.elbow.x + 48, row.elbow.y}, row.what);
        expectNear(r.p4, row.onCircle, row.what);
        expectNear(r.p5, {row.elbow.x + 57.6F, row.elbow.y - 30}, row.what);
        EXPECT_EQ(r.t1, "1'-0\"") << row.what;
        EXPECT_EQ(r.a1, 0) << row.what;
    }
}

TEST(RadialDimension, AnArcIsMeasuredWhereverTheElbowLies)
{
    RadialDesk desk(roundRecord(Kind::arc, 144));
    desk.dimension({1101, 899}, {700, 1400}); // far out of its quarter
    ASSERT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.slot(2).p1, centre);
    expectNear(desk.slot(2).p4, {913.6F, 1115.2F}, "on the arc's circle");
    EXPECT_EQ(desk.slot(2).t1, "1'-0\"");
}

TEST(RadialDimension, AnElbowAtTheCentreKeepsAPointOnTheCircle)
{
    RadialDesk desk;
    desk.s.ptC = {5, 5}; // from another function
    desk.dimension({1144, 1000}, centre);
    EXPECT_EQ(desk.slot(2).p4, (Point{1144, 1000}));
    RadialDesk moved;
    moved.click({1144, 1000});
    moved.move({1000, 700});
    moved.click(centre);
    EXPECT_EQ(moved.slot(2).p4, (Point{1000, 856}));
}

TEST(RadialDimension, SaysTheRadiusInTheNumbersOfTheDrawing)
{
    struct Row {
        const char* numStyle;
        std::int16_t comma;
        float rad;
        const char* text;
    };
    const Row rows[] = {
        {"us", 0, 144, "1'-0\""}, {"3i", 0, 144, "12.000\""}, {"2f", 0, 144, "1.00'"},
        {"2f", 1, 144, "1,00'"},  {"br", 0, 144, "30.503cm"}, {"br", 1, 144, "30,503cm"},
        {"us", 0, 0.5F, "0"}, // a radius of nothing is no fault
    };
    for (const Row& row : rows) {
        RadialDesk desk(roundRecord(Kind::circle, row.rad));
        desk.s.numStyle = row.numStyle;
        desk.s.numComma = row.comma;
        desk.dimension({1000 + row.rad, 1000}, {1300, 600});
        ASSERT_EQ(desk.s.store.entCount, 3) << row.text;
        EXPECT_EQ(desk.slot(2).t1, row.text);
        desk.s.numStyle = "us";
        EXPECT_EQ(desk.slot(2).t1, row.text);
    }
}

TEST(RadialDimension, IsSizedByTheArrowsOfItsMomentAndNotByTheTextSize)
{
    RadialDesk desk;
    desk.s.arrowSize = 32;
    desk.s.textSize = 500;
    desk.s.dimStyle = 2;
    desk.s.curStyle = 3;
    desk.s.textFont = "Courier";
    desk.dimension({1144, 1000}, {1300, 600});
    desk.s.arrowSize = 48;
    desk.s.dimStyle = 1;
    const EntityRecord r = desk.slot(2);
    EXPECT_EQ(r.s1, 2);
    EXPECT_EQ(r.s2, 32);
    EXPECT_EQ(r.a2, 32);
    EXPECT_EQ(r.style, 0);
    EXPECT_EQ(r.t2, "Courier");
    expectNear(r.p3, {1332, 600}, "shoulder");
    expectNear(r.p5, {1338.4F, 580}, "text");
}

TEST(RadialDimension, BandShowsWhatTheClickMakes)
{
    for (const Point elbow : {Point{1300, 600}, Point{700, 1400}, Point{1030, 960}}) {
        RadialDesk desk;
        desk.click({1144, 1000});
        desk.ops();
        desk.move(elbow);
        const Ops band = desk.ops();
        desk.click(elbow);
        EXPECT_EQ(band.front(), "restoreSnapshot");
        EXPECT_EQ(only(band, "text").size(), 1U);
        EXPECT_GE(marks(band).size(), 10U); // shaft, head, cross, shoulder, text
        EXPECT_EQ(marks(band), marks(desk.ops()));
    }
}

TEST(RadialDimension, IsPaintedInThePenOfTheCurrentAttributesAndKept)
{
    RadialDesk desk;
    desk.s.curStyle = 1;
    desk.s.curColor = 0x0000FF;
    desk.click({1144, 1000});
    desk.move({1300, 600});
    desk.ops();
    desk.click({1300, 600});
    const Ops ops = desk.ops();
    const Ops begin(ops.begin(), ops.begin() + 3);
    EXPECT_EQ(begin, (Ops{"setStyle 1", "setColor 255", "restoreSnapshot"}));
    const Ops end(ops.end() - 3, ops.end());
    EXPECT_EQ(end, (Ops{"snapshot", "setColor 16777215", "setStyle 2"}));
}

TEST(RadialDimension, AsksForTheShoulderAndIsReadyForTheNext)
{
    RadialDesk desk;
    desk.click({1144, 1000});
    EXPECT_EQ(desk.s.promptText, "(Enter shoulder point:)");
    EXPECT_EQ(desk.text3(), "1'-0\"");
    desk.click({1300, 600});
    EXPECT_EQ(desk.s.promptText, "(Click near circle or arc:)");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.workRadius, 0);
    EXPECT_EQ(desk.s.curFunc, "Radial Dimension");
    desk.dimension({856, 1000}, {700, 700});
    EXPECT_EQ(desk.s.store.entCount, 4);
    undo(desk.s.store, desk.s.log);
    EXPECT_EQ(desk.stat(3), Stat::out);
    EXPECT_EQ(desk.stat(2), Stat::on);
}

TEST(RadialDimension, NothingRoundNearEndsTheAttempt)
{
    const EntityRecord line = fake::line({1000, 860}, {2000, 860});
    struct Row {
        const char* what;
        Point near;
    };
    const Row rows[] = {
        {"nothing at all", {3000, 3000}},
        {"inside the circle, far from its line", {1010, 1010}},
        {"a line nearer than the circle", {1000, 859}},
    };
    for (const Row& row : rows) {
        RadialDesk desk;
        desk.add(line);
        desk.click(row.near);
        EXPECT_EQ(desk.s.stepNo, 0) << row.what;
        EXPECT_EQ(desk.s.promptText, "(Click near circle or arc:)") << row.what;
        EXPECT_EQ(desk.s.controls.focus, "pic1"_c) << row.what;
        EXPECT_EQ(desk.s.store.entCount, 3) << row.what;
        EXPECT_EQ(desk.s.controls["entry"_c].text, "") << row.what;
    }
}

TEST(RadialDimension, PickLeavesTheMarksAlone)
{
    for (const Stat stat : {Stat::on, Stat::sel}) {
        RadialDesk desk;
        desk.s.store.setStat(1, stat);
        desk.click({1144, 1000});
        EXPECT_EQ(desk.s.stepNo, 1);
        EXPECT_EQ(desk.stat(1), stat);
        EXPECT_EQ(desk.s.pickedIndex, 1);
    }
}

TEST(RadialDimension, HasNoBandBeforeTheCircleIsFound)
{
    RadialDesk desk;
    desk.click({3000, 3000});
    desk.ops();
    desk.move({1300, 600});
    EXPECT_TRUE(desk.ops().empty());
}

// Typed distances mean nothing here, but count a step.
TEST(RadialDimension, AStepCountedByATypedDistanceIsNoDeadEnd)
{
    RadialDesk desk;
    desk.click({1144, 1000});
    desk.typeIn("12");
    desk.click({1300, 600});
    EXPECT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.s.stepNo, 0);
}

TEST(RadialDimension, PointOnTheCircleIsARadiusAwayTowardsAnyElbow)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> anywhere(0, 3000);
    RadialDesk desk;
    for (int i = 0; i < 300; ++i) {
        const Point elbow{anywhere(random), anywhere(random)};
        desk.dimension({1144, 1000}, elbow);
        const EntityRecord r = desk.last();
        EXPECT_NEAR(distance(r.p1, r.p4), 144, 0.01) << i;
        EXPECT_NEAR(distance(r.p4, elbow), std::abs(distance(centre, elbow) - 144), 0.01) << i;
        EXPECT_FLOAT_EQ(r.p3.y, elbow.y) << i;
        EXPECT_GT(r.p3.x, elbow.x) << i;
        EXPECT_GT(r.p5.x, r.p3.x) << i;
        EXPECT_LT(r.p5.y, elbow.y) << i;
    }
}

TEST(RadialDimension, MiddleButtonBeforeTheFirstClickDoesNothing)
{
    RadialDesk desk;
    desk.ops();
    desk.down(4, {1144, 1000});
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_TRUE(desk.ops().empty());
}

} // namespace
} // namespace mirtane
