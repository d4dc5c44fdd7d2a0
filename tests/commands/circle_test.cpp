#include "commands/circle.h"

#include "round_desk.h"

#include <random>

namespace mirtane {
namespace {

using namespace fake;

struct Clicks {
    const char* what;
    Point a, b;
    float rad;
};

// In the four quadrants, on the axes, and far from the origin, where 32 bits hold a hundredth.
constexpr Clicks twoClicks[] = {
    {"to the right", {1000, 1000}, {1300, 1000}, 300},
    {"up and right", {1000, 1000}, {1300, 600}, 500},
    {"straight up", {1000, 1000}, {1000, 400}, 600},
    {"up and left", {1000, 1000}, {700, 600}, 500},
    {"to the left", {1000, 1000}, {250, 1000}, 750},
    {"down and left", {1000, 1000}, {700, 1400}, 500},
    {"straight down", {1000, 1000}, {1000, 1001}, 1},
    {"down and right", {1000, 1000}, {1300, 1400}, 500},
    {"about the origin", {0, 0}, {-300, 400}, 500},
    {"left of the origin", {-1000, -500}, {-1300, -900}, 500},
    {"wider than the view", {1000, 1000}, {7000, 9000}, 10000},
    {"far away", {100000, 100000}, {100300, 99600}, 500},
    {"far away to the left", {-100000, 100000}, {-100300, 100400}, 500},
};

TEST(CircleTwo, StoresTheCentreAndTheDistanceOfTheSecondPointWithOrthoOnAndOff)
{
    Desk desk;
    std::int32_t count = 1;
    for (const Clicks& row : twoClicks) {
        for (const OrthoToggle ortho : {OrthoToggle::off, OrthoToggle::on}) {
            start(desk, "Command2"_c, ortho);
            EXPECT_EQ(desk.s.promptText, "(Enter center of circle:)") << row.what;
            clickAt(desk, row.a);
            EXPECT_EQ(desk.s.promptText, "(Enter radius of circle:)") << row.what;
            EXPECT_EQ(desk.s.workRadius, 0) << row.what;
            clickAt(desk, row.b);
            ++count;
            ASSERT_EQ(desk.s.store.entCount, count) << row.what;
            const EntityRecord r = lastSlot(desk);
            EXPECT_EQ(r.kind, Kind::circle) << row.what;
            EXPECT_EQ(r.p1, row.a) << row.what;
            EXPECT_NEAR(r.rad, row.rad, rounding(row.a, row.rad)) << row.what;
            EXPECT_EQ(desk.s.stepNo, 0) << row.what;
            EXPECT_EQ(desk.s.workRadius, 0) << row.what;
            EXPECT_EQ(desk.s.promptText, "(Enter center of circle:)") << row.what;
            desk.cancel(); // parks the last point, on which a first click would end the action
        }
    }
}

TEST(CircleTwo, HasItsSpokeOnAnAxisAndThePointersDistanceUnderOrtho)
{
    struct Row {
        Point pointer;
        const char* spoke;
    };
    const Row rows[] = {
        {{1400, 700}, "line 1000 1000 1500 1000"},
        {{1300, 600}, "line 1000 1000 1000 500"},
        {{600, 700}, "line 1000 1000 500 1000"},
        {{1300, 1400}, "line 1000 1000 1000 1500"},
    };
    Desk desk;
    for (const Row& row : rows) {
        start(desk, "Command2"_c, OrthoToggle::on);
        desk.click(1000, 1000);
        desk.ops();
        moveTo(desk, row.pointer);
        const Ops wanted = {"restoreSnapshot", "circle 1000 1000 500", row.spoke};
        EXPECT_EQ(desk.ops(), wanted);
        downAt(desk, row.pointer);
        EXPECT_FLOAT_EQ(lastSlot(desk).rad, 500);
    }
}

TEST(CircleTwo, TakesATypedRadius)
{
    struct Row {
        const char* typed;
        float rad;
    };
    const Row rows[] = {{"1'6", 216}, {"24", 288}, {"0.5", 6}, {"-24", 288}, {"1'-6", 216}};
    Desk desk;
    desk.drawLine(100, 100, 200, 100); // an empty drawing takes no distance below a thousandth of an inch
    for (const Point centre : {Point{1000, 1000}, Point{100000, -100000}}) {
        for (const Row& row : rows) {
            for (const OrthoToggle ortho : {OrthoToggle::off, OrthoToggle::on}) {
                start(desk, "Command2"_c, ortho);
                clickAt(desk, centre);
                desk.move(centre.x - 300, centre.y - 400);
                desk.type(row.typed);
                desk.enter();
                const EntityRecord r = lastSlot(desk);
                EXPECT_EQ(r.p1, centre) << row.typed;
                EXPECT_NEAR(r.rad, row.rad, rounding(centre, row.rad)) << row.typed;
                EXPECT_EQ(desk.focused(), "pic1") << row.typed;
                EXPECT_EQ(desk.text("entry"_c), "") << row.typed;
                EXPECT_EQ(desk.s.stepNo, 0) << row.typed;
            }
        }
    }
}

TEST(CircleTwo, LaysATypedRadiusTowardsThePointerOrOnTheAxisOfOrtho)
{
    Desk desk;
    start(desk, "Command2"_c, OrthoToggle::off);
    desk.click(1000, 1000);
    desk.move(700, 600);
    desk.type("25"); // 300 units
    desk.enter();
    EXPECT_NEAR(desk.s.pickLast.x, 1000 - 180, 0.001);
    EXPECT_NEAR(desk.s.pickLast.y, 1000 - 240, 0.001);
    start(desk, "Command2"_c, OrthoToggle::on);
    desk.click(1000, 1000);
    desk.move(700, 600);
    desk.type("25");
    desk.enter();
    EXPECT_NEAR(desk.s.pickLast.x, 1000, 0.001);
    EXPECT_NEAR(desk.s.pickLast.y, 700, 0.001);
}

TEST(CircleTwo, ShowsInItsBandTheCircleThatTheClickThenStores)
{
    std::mt19937 random(41);
    std::uniform_real_distribution<float> place(100, 1000);
    Desk desk;
    for (int i = 0; i < 500; ++i) {
        start(desk, "Command2"_c, i % 2 == 0 ? OrthoToggle::on : OrthoToggle::off);
        desk.click(1500 + place(random), 1000 + place(random));
        const Point p{1500 + place(random), 1000 + place(random)};
        desk.ops();
        moveTo(desk, p);
        const Ops band = shown(desk, "circle");
        ASSERT_EQ(band.size(), 1U) << i;
        downAt(desk, p);
        EXPECT_EQ(shown(desk, "circle"), band) << i;
    }
}

TEST(CircleTwo, IsPaintedInItsOwnPenAndLeavesThePenOfBands)
{
    Desk desk;
    desk.s.curColor = 255;
    desk.s.curStyle = 3;
    start(desk, "Command2"_c);
    desk.click(1000, 1000);
    desk.move(1300, 600);
    desk.ops();
    desk.down(1, 1300, 600);
    expectCommit(desk.ops(), {"setStyle 3", "setColor 255"}, "circle 1000 1000 500");
    EXPECT_EQ(lastSlot(desk).color, 255);
    EXPECT_EQ(lastSlot(desk).style, 3);
}

TEST(CircleTwo, TwiceOnOneSpotStoresNothing)
{
    Desk desk;
    start(desk, "Command2"_c);
    desk.click(1000, 1000);
    desk.click(1000, 1000);
    EXPECT_EQ(desk.s.store.entCount, 1);
    EXPECT_EQ(desk.s.stepNo, 0);
}

struct Triangle {
    const char* what;
    Point b, c; // about the first point
};

// No obtuse angle at the first point, in all quadrants; each is also drawn with its last points exchanged.
constexpr Triangle acute[] = {
    {"above to the right", {400, 0}, {200, -300}},
    {"below to the right", {400, 0}, {200, 300}},
    {"upright, right", {0, -400}, {300, -200}},
    {"upright, left", {0, -400}, {-300, -200}},
    {"above to the left", {-400, 0}, {-200, -300}},
    {"below to the left", {-400, 0}, {-200, 300}},
    {"hanging, right", {0, 400}, {300, 200}},
    {"hanging, left", {0, 400}, {-300, 200}},
    {"aslant", {300, -250}, {350, 150}},
    {"aslant to the left", {-300, 250}, {-350, -150}},
};

TEST(CircleThree, PassesThroughThreePointsWhoseFirstAngleIsNotObtuse)
{
    Desk desk;
    for (const Triangle& row : acute) {
        for (const Point a :
             {Point{1000, 1000}, Point{0, 0}, Point{100000, 100000}, Point{-100000, 100000}}) {
            for (const bool exchanged : {false, true}) {
                for (const OrthoToggle ortho : {OrthoToggle::off, OrthoToggle::on}) {
                    start(desk, "Command3"_c, ortho);
                    const Point b{a.x + row.b.x, a.y + row.b.y};
                    const Point c{a.x + row.c.x, a.y + row.c.y};
                    clickAt(desk, a);
                    clickAt(desk, exchanged ? c : b);
                    clickAt(desk, exchanged ? b : c);
                    const EntityRecord r = lastSlot(desk);
                    ASSERT_EQ(r.kind, Kind::circle) << row.what;
                    for (const Point p : {a, b, c})
                        EXPECT_NEAR(away(r.p1, p), r.rad, 10 * rounding(a, 500)) << row.what << " " << a.x;
                    desk.cancel();
                }
            }
        }
    }
}

TEST(CircleThree, PromptsForThreePointsAndEndsReadyForTheNext)
{
    Desk desk;
    start(desk, "Command3"_c);
    EXPECT_EQ(desk.s.promptText, "(Enter first point on circle:)");
    EXPECT_EQ(desk.title(), titleOf("3pt. Circle(Enter first point on circle:)"));
    desk.click(1000, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter second point on circle:)");
    desk.click(1400, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter last point on circle:)");
    desk.click(1200, 700);
    EXPECT_EQ(desk.s.promptText, "(Enter first point on circle:)");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.workRadius, 0);
    EXPECT_EQ(desk.s.store.entCount, 2);
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(1), Stat::out);
}

TEST(CircleThree, MissesTheThirdPointWhenTheFirstAngleIsObtuseAndItsBandShowsTheSame)
{
    Desk desk;
    start(desk, "Command3"_c);
    desk.click(1000, 1000);
    desk.click(2000, 1000);
    desk.ops();
    desk.move(0, 2000);
    const Ops band = desk.ops();
    desk.down(1, 0, 2000);
    const EntityRecord r = desk.slot(1);
    EXPECT_NEAR(r.p1.x, 1500, 0.1);
    EXPECT_NEAR(r.p1.y, 1500, 0.1);
    EXPECT_NEAR(r.rad, 707.107, 0.1);
    EXPECT_GT(away(r.p1, {0, 2000}) - r.rad, 500);
    ASSERT_EQ(band.size(), 3U);
    EXPECT_EQ(only(band, "circle"), shown(desk, "circle"));
    EXPECT_EQ(band[2], "line 2000 1000 0 2000");
}

TEST(CircleThree, KeepsTheCentreThatStoodForEvenlySpacedPointsOnALine)
{
    Desk desk;
    start(desk, "Command2"_c);
    desk.click(3000, 3000);
    desk.click(3100, 3000);
    start(desk, "Command3"_c);
    desk.click(1000, 1000);
    desk.click(1100, 1000);
    desk.ops();
    desk.move(1200, 1000);
    const Ops band = shown(desk, "circle");
    desk.down(1, 1200, 1000);
    const EntityRecord r = desk.slot(2);
    EXPECT_EQ(r.p1, (Point{3000, 3000}));
    EXPECT_FLOAT_EQ(r.rad, 2828.4271F); // to the first point
    ASSERT_EQ(band.size(), 1U);
    EXPECT_EQ(band[0].substr(0, 16), "circle 3000 3000");
}

// A point that a construction line hands over isn't tested against the first one. The two markers are then
// one point, so no side is nearer, and the centre keeps what it held.
TEST(CircleThree, KeepsTheCentreThatStoodWhenAConstructionLineGivesTheFirstPointAgain)
{
    Desk desk;
    start(desk, "Command2"_c);
    desk.click(3000, 3000);
    desk.click(3100, 3000);
    start(desk, "Command3"_c);
    desk.click(2000, 1000); // a finished circle leaves its markers behind
    desk.click(2400, 1000);
    desk.cancel();
    desk.click(1000, 1000);
    desk.press("blank"_c);
    desk.down(1, 1000, 1000);
    desk.press("blank"_c);
    ASSERT_EQ(desk.s.stepNo, 2);
    desk.down(1, 1300, 700);
    const EntityRecord r = lastSlot(desk);
    ASSERT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(r.p1, (Point{3000, 3000}));
    EXPECT_FLOAT_EQ(r.rad, 2828.4271F);
}

TEST(CircleThree, TakesPointsOnALineThatAreNotEvenlySpacedWithoutAFault)
{
    Desk desk;
    for (const float third : {1300.0F, 1050.0F, 900.0F, 700.0F}) {
        start(desk, "Command3"_c);
        desk.click(1000, 1000);
        desk.click(1100, 1100);
        desk.click(third, third);
        const EntityRecord r = lastSlot(desk);
        ASSERT_EQ(r.kind, Kind::circle) << third;
        EXPECT_TRUE(std::isfinite(r.p1.x) && std::isfinite(r.p1.y) && std::isfinite(r.rad)) << third;
        EXPECT_NEAR(away(r.p1, {1000, 1000}), r.rad, rounding(r.p1, r.rad)) << third;
        desk.cancel();
    }
}

TEST(CircleThree, BandsALineToThePointerAndThenTheCircleAndALine)
{
    Desk desk;
    start(desk, "Command3"_c, OrthoToggle::on);
    desk.click(1000, 1000);
    desk.ops();
    desk.move(1311, 877); // ortho doesn't apply
    const Ops first = {"restoreSnapshot", "line 1000 1000 1311 877"};
    EXPECT_EQ(desk.ops(), first);
    desk.down(1, 1311, 877);
    EXPECT_EQ(desk.s.ptB, (Point{1311, 877}));
    desk.ops();
    desk.move(1200, 1200);
    const Ops second = desk.ops();
    ASSERT_EQ(second.size(), 3U);
    EXPECT_EQ(second[0], "restoreSnapshot");
    EXPECT_EQ(second[1].substr(0, 7), "circle ");
    EXPECT_EQ(second[2], "line 1311 877 1200 1200");
}

TEST(CircleThree, CountsATypedDistanceAndStoresNothing)
{
    Desk desk;
    start(desk, "Command3"_c);
    desk.click(1000, 1000);
    desk.move(1300, 1000);
    desk.type("12");
    desk.enter();
    EXPECT_EQ(desk.s.stepNo, 2);
    EXPECT_EQ(desk.text("entry"_c), "");
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.s.store.entCount, 1);
    desk.cancel();
    EXPECT_EQ(desk.s.stepNo, 0);
}

// The first two clicks lie on the circle whatever the triangle, and the band shows what the click stores.
TEST(CircleThree, PassesThroughItsFirstTwoPointsForRandomClicksAndItsBandShowsTheSame)
{
    std::mt19937 random(42);
    std::uniform_real_distribution<float> place(500, 4000);
    Desk desk;
    int direct = 0;
    for (int i = 0; i < 3000; ++i) {
        const float at = i % 3 == 0 ? 100000.0F : 0.0F;
        const auto next = [&] { return Point{at + place(random), at + place(random)}; };
        start(desk, "Command3"_c, i % 2 == 0 ? OrthoToggle::on : OrthoToggle::off);
        const Point a = next();
        const Point b = next();
        const Point c = next();
        clickAt(desk, a);
        clickAt(desk, b);
        desk.ops();
        moveTo(desk, c);
        const Ops band = shown(desk, "circle");
        ASSERT_EQ(band.size(), 1U) << i;
        downAt(desk, c);
        const EntityRecord r = lastSlot(desk);
        ASSERT_EQ(desk.s.store.entCount, i + 2) << i;
        EXPECT_NEAR(away(r.p1, a), r.rad, rounding(r.p1, r.rad)) << i;
        EXPECT_NEAR(away(r.p1, b), r.rad, 8 * rounding(r.p1, r.rad)) << i;
        const Ops painted = shown(desk, "circle");
        if (painted.empty()) continue; // out of view, or in pieces
        EXPECT_EQ(painted, band) << i;
        ++direct;
    }
    EXPECT_GT(direct, 500);
}

} // namespace
} // namespace mirtane
