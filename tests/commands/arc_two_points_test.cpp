#include "commands/arc.h"

#include "round_desk.h"

#include <random>

namespace mirtane {
namespace {

using namespace fake;

// From the radius point at a direction over so many degrees, counter-clockwise if above 0, in eight moves.
void travel(Desk& desk, Point centre, double fromDegrees, double overDegrees)
{
    for (int i = 1; i <= 8; ++i) moveTo(desk, onCircle(centre, 500, fromDegrees + overDegrees * i / 8));
}

TEST(ArcTwo, RunsTheWayThatThePointerWentAndIsStoredCounterClockwise)
{
    Desk desk;
    for (const Point centre :
         {Point{1000, 1000}, Point{0, 0}, Point{100000, 100000}, Point{-100000, 100000}}) {
        for (const double from : startDegrees) {
            for (const double over :
                 {40.0, 90.0, 180.0, 270.0, 340.0, -40.0, -90.0, -180.0, -270.0, -340.0}) {
                start(desk, "Command4"_c);
                clickAt(desk, centre);
                clickAt(desk, onCircle(centre, 400, from));
                travel(desk, centre, from, over);
                downAt(desk, onCircle(centre, 500, from + over));
                const std::string what =
                    "at " + shortest(centre.x) + " from " + shortest(from) + " over " + shortest(over);
                const double low = over > 0 ? from : from + over;
                expectArc(lastSlot(desk), centre, 400, low, low + std::abs(over), 2 * rounding(centre, 500),
                          what);
                EXPECT_EQ(lastSlot(desk).p1, centre) << what;
                desk.cancel();
            }
        }
    }
}

TEST(ArcTwo, IsExactOnTheAxes)
{
    struct Row {
        const char* what;
        Point radius, between, end;
        double a1, a2;
        Point p2, p3;
    };
    const Row rows[] = {
        {"right to top", {400, 0}, {300, -300}, {0, -500}, 0, quarter, {400, 0}, {0, -400}},
        {"top to left", {0, -400}, {-300, -300}, {-500, 0}, quarter, half, {0, -400}, {-400, 0}},
        {"left to bottom", {-400, 0}, {-300, 300}, {0, 500}, half, threeQuarters, {-400, 0}, {0, 400}},
        {"bottom to left", {0, 400}, {-300, 300}, {-500, 0}, half, threeQuarters, {-400, 0}, {0, 400}},
        {"left to top", {-400, 0}, {-300, -300}, {0, -500}, quarter, half, {0, -400}, {-400, 0}},
        {"top to right", {0, -400}, {300, -300}, {500, 0}, 0, quarter, {400, 0}, {0, -400}},
    };
    Desk desk;
    for (const Row& row : rows) {
        for (const Point at : {Point{1000, 1000}, Point{100000, -100000}}) {
            const auto about = [&](Point p) { return Point{at.x + p.x, at.y + p.y}; };
            start(desk, "Command4"_c);
            clickAt(desk, at);
            clickAt(desk, about(row.radius));
            desk.s.arcLastAngle = heading(at, about(row.radius)); // as a move at the radius point leaves it
            moveTo(desk, about(row.between));
            clickAt(desk, about(row.end));
            const EntityRecord r = lastSlot(desk);
            expectWholeArc(r, row.what);
            EXPECT_EQ(r.a1, row.a1) << row.what;
            EXPECT_EQ(r.a2, row.a2) << row.what;
            EXPECT_EQ(r.rad, 400) << row.what;
            EXPECT_EQ(r.p2, about(row.p2)) << row.what;
            EXPECT_EQ(r.p3, about(row.p3)) << row.what; // on the circle, not at the click
            desk.cancel();
        }
    }
}

TEST(ArcTwo, ThroughAngleZeroHasItsEndBelowItsStartAndItsMiddleWithinATurn)
{
    Desk desk;
    start(desk, "Command4"_c);
    desk.click(1000, 1000);
    clickAt(desk, onCircle({1000, 1000}, 400, 330));
    travel(desk, {1000, 1000}, 330, 90);
    downAt(desk, onCircle({1000, 1000}, 500, 60));
    const EntityRecord r = desk.slot(1);
    expectWholeArc(r);
    EXPECT_NEAR(r.a1, 5.759587, 1e-6);
    EXPECT_NEAR(r.a2, 1.047198, 1e-6);
    EXPECT_NEAR(r.p4.x, 1000 + 386.3703, 0.001); // at 15 degrees
    EXPECT_NEAR(r.p4.y, 1000 - 103.5276, 0.001);
}

TEST(ArcTwo, ComparesTheFirstMoveWithTheAngleThatTheArcBeforeLeft)
{
    Desk desk;
    start(desk, "Command4"_c);
    desk.s.arcLastAngle = 6;
    desk.click(1000, 1000);
    desk.click(1400, 1000);
    EXPECT_EQ(desk.s.arcWinding, 0);
    EXPECT_EQ(desk.s.arcLastAngle, 6);
    desk.move(1390, 900); // a rise from 0, but a fall from the 6
    EXPECT_EQ(desk.s.arcWinding, -1);
    desk.move(1300, 700);
    EXPECT_EQ(desk.s.arcWinding, 0);
}

TEST(ArcTwo, CountsACrossingOfAngleZeroTheWrongWay)
{
    constexpr Point centre{1000, 1000};
    Desk desk;
    start(desk, "Command4"_c);
    clickAt(desk, centre);
    clickAt(desk, onCircle(centre, 400, 350));
    const double begin = desk.s.arcAngleOne;
    desk.s.arcLastAngle = begin;
    moveTo(desk, onCircle(centre, 500, 10)); // a fall by the numbers
    EXPECT_EQ(desk.s.arcWinding, -1);
    EXPECT_EQ(desk.s.arcEnd, begin);
    EXPECT_LT(turnedBetween(desk.s.arcStart, std::numbers::pi / 18), 1e-5);
    const double held = desk.s.arcStart;
    moveTo(desk, onCircle(centre, 500, 20)); // at 0 both keep what they held
    EXPECT_EQ(desk.s.arcWinding, 0);
    EXPECT_EQ(desk.s.arcStart, held);
    EXPECT_EQ(desk.s.arcEnd, begin);
    moveTo(desk, onCircle(centre, 500, 30));
    EXPECT_EQ(desk.s.arcWinding, 1);
    EXPECT_EQ(desk.s.arcStart, begin);
    EXPECT_LT(turnedBetween(desk.s.arcEnd, std::numbers::pi / 6), 1e-5);
}

TEST(ArcTwo, HasNoSweepWhileTheWindingIsNothing)
{
    Desk desk;
    start(desk, "Command4"_c);
    desk.click(1000, 1000);
    desk.click(1000, 600);
    desk.s.arcLastAngle = quarter;
    desk.down(1, 1000, 500);
    const EntityRecord r = desk.slot(1);
    EXPECT_EQ(r.a1, quarter);
    EXPECT_EQ(r.a2, quarter);
    for (const Point p : {r.p2, r.p3, r.p4}) EXPECT_EQ(p, (Point{1000, 600}));
}

TEST(ArcTwo, KeepsItsAnglesWhileThePointerRestsOnTheCentre)
{
    Desk desk;
    start(desk, "Command4"_c);
    desk.click(1000, 1000);
    desk.click(1400, 1000);
    desk.move(1300, 700);
    const double end = desk.s.arcEnd;
    desk.move(1000, 1000);
    EXPECT_EQ(desk.s.arcWinding, 1);
    EXPECT_EQ(desk.s.arcEnd, end);
}

TEST(ArcTwo, IsConfinedAboutItsCentreUnderOrthoOnMoveAndClick)
{
    Desk desk;
    start(desk, "Command4"_c, OrthoToggle::on);
    desk.click(1000, 1000);
    desk.click(1400, 1010);
    EXPECT_FLOAT_EQ(desk.s.ptB.y, 1000);
    EXPECT_EQ(desk.s.pickFirst, (Point{1000, 1000}));
    desk.move(1010, 700);
    EXPECT_FLOAT_EQ(desk.s.pickLast.x, 1000);
    desk.down(1, 1100, 700); // in the sector that the move chose
    const EntityRecord r = desk.slot(1);
    EXPECT_EQ(r.a1, 0);
    EXPECT_EQ(r.a2, quarter);
    EXPECT_NEAR(r.rad, 400.125, 0.001);
}

TEST(ArcTwo, TakesATypedRadius)
{
    for (const OrthoToggle ortho : {OrthoToggle::on, OrthoToggle::off}) {
        for (const Point centre : {Point{1000, 1000}, Point{100000, 100000}}) {
            Desk desk;
            start(desk, "Command4"_c, ortho);
            clickAt(desk, centre);
            desk.move(centre.x - 400, centre.y);
            desk.type("24");
            desk.enter();
            EXPECT_EQ(desk.s.workRadius, 288);
            EXPECT_EQ(desk.s.stepNo, 2);
            EXPECT_EQ(desk.s.arcAngleOne, half);
            EXPECT_EQ(desk.s.promptText, "(Enter end of arc:)");
            EXPECT_EQ(desk.focused(), "pic1");
        }
    }
}

TEST(ArcTwo, TakesATypedEndAndWindsByTheDirectionOfTheTypedPoint)
{
    struct Row {
        const char* typed;
        double end;
    };
    const Row rows[] = {{"1", quarter}, {"-1", threeQuarters}}; // a negative one lies opposite
    for (const Row& row : rows) {
        for (const OrthoToggle ortho : {OrthoToggle::on, OrthoToggle::off}) {
            Desk desk;
            desk.drawLine(100, 100, 200,
                          100); // an empty drawing takes no distance below a thousandth of an inch
            start(desk, "Command4"_c, ortho);
            desk.click(1000, 1000);
            desk.move(1400, 1000);
            desk.type("24");
            desk.enter();
            desk.move(1000, 700);
            desk.type(row.typed);
            desk.enter();
            const EntityRecord r = desk.slot(2);
            expectWholeArc(r, row.typed);
            EXPECT_EQ(r.rad, 288) << row.typed;
            EXPECT_EQ(r.a1, 0) << row.typed;
            EXPECT_EQ(r.a2, row.end) << row.typed;
            EXPECT_EQ(desk.s.stepNo, 0) << row.typed;
        }
    }
}

TEST(ArcTwo, TypedWithoutAMoveHasNoSweep)
{
    Desk desk;
    start(desk, "Command4"_c, OrthoToggle::on);
    desk.click(1000, 1000);
    desk.move(1400, 1000);
    desk.type("24");
    desk.enter();
    desk.type("12");
    desk.enter();
    const EntityRecord r = desk.slot(1);
    expectWholeArc(r);
    EXPECT_EQ(r.a1, 0);
    EXPECT_EQ(r.a2, 0);
    EXPECT_EQ(r.p4, (Point{1288, 1000}));
}

TEST(ArcTwo, PromptsAndEndsReadyForTheNext)
{
    Desk desk;
    start(desk, "Command4"_c);
    EXPECT_EQ(desk.s.promptText, "(Enter center of arc:)");
    desk.click(1000, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter radius of arc:)");
    desk.click(1400, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter end of arc:)");
    desk.click(1000, 600);
    EXPECT_EQ(desk.s.promptText, "(Enter center of arc:)");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.workRadius, 0);
}

TEST(ArcTwo, BandsALineToThePointerAndThenALineAndTheArc)
{
    Desk desk;
    start(desk, "Command4"_c);
    desk.click(1000, 1000);
    desk.ops();
    desk.move(1400, 1000);
    const Ops first = {"restoreSnapshot", "line 1000 1000 1400 1000"};
    EXPECT_EQ(desk.ops(), first);
    desk.down(1, 1400, 1000);
    desk.ops();
    desk.move(1000, 500);
    const Ops second = {"restoreSnapshot", "line 1000 1000 1000 500", "arc 1000 1000 400 0 1.5707963"};
    EXPECT_EQ(desk.ops(), second);
}

TEST(ArcTwo, IsPaintedInItsOwnPenAndLeavesThePenOfBands)
{
    Desk desk;
    desk.s.curColor = 255;
    desk.s.curStyle = 4;
    start(desk, "Command4"_c);
    desk.click(1000, 1000);
    desk.click(1400, 1000);
    desk.move(1000, 500);
    desk.ops();
    desk.down(1, 1000, 500);
    expectCommit(desk.ops(), {"setStyle 4", "setColor 255"}, "arc 1000 1000 400 0 1.5707963");
}

TEST(ArcTwo, IsWholeForRandomTravelsAndItsBandShowsTheSame)
{
    std::mt19937 random(52);
    std::uniform_real_distribution<float> place(-900, 900);
    Desk desk;
    int direct = 0;
    for (int i = 0; i < 3000; ++i) {
        const Point centre = i % 3 == 0 ? Point{101000, 101000} : Point{2000, 1500};
        const auto next = [&] { return Point{centre.x + place(random), centre.y + place(random)}; };
        start(desk, "Command4"_c, i % 2 == 0 ? OrthoToggle::on : OrthoToggle::off);
        clickAt(desk, centre);
        clickAt(desk, next());
        const double begin = desk.s.arcAngleOne;
        for (int move = 0; move < 1 + i % 5; ++move) moveTo(desk, next());
        const Point last = next();
        desk.ops();
        moveTo(desk, last);
        const Ops band = shown(desk, "arc");
        downAt(desk, last);
        ASSERT_EQ(desk.s.store.entCount, i + 2) << i;
        const EntityRecord r = lastSlot(desk);
        expectWholeArc(r, shortest(i));
        EXPECT_EQ(r.p1, centre) << i;
        EXPECT_TRUE(r.a1 == begin || r.a2 == begin) << i;
        const Ops painted = shown(desk, "arc");
        if (painted.empty()) continue; // in pieces
        EXPECT_EQ(painted, band) << i;
        ++direct;
    }
    EXPECT_GT(direct, 1000);
}

} // namespace
} // namespace mirtane
