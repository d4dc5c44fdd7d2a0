#include "commands/arc.h"

#include "round_desk.h"

#include <random>

namespace mirtane {
namespace {

using namespace fake;

// Its place is within what 32 bits hold of the clicks, magnified by as much as a flat arc magnifies it.
double slackOf(Point centre, double r, double sweepDegrees)
{
    const double flatness = 1 - std::cos(sweepDegrees / 360 * std::numbers::pi);
    return 8 * rounding(centre, r) / std::min(flatness, 1.0) + 0.01;
}

TEST(ArcThree, RunsCounterClockwiseFromOneEndToTheOtherByWayOfTheSecondPointHoweverDrawn)
{
    Desk desk;
    for (const Point centre :
         {Point{1000, 1000}, Point{0, 0}, Point{100000, 100000}, Point{100000, -100000}}) {
        for (const double from : startDegrees) {
            for (const double sweep : {40.0, 90.0, 180.0, 270.0, 340.0}) {
                for (const bool clockwise : {false, true}) {
                    start(desk, "Command5"_c,
                          clockwise ? OrthoToggle::on : OrthoToggle::off); // neither makes a difference
                    const Point low = onCircle(centre, 400, from);
                    const Point high = onCircle(centre, 400, from + sweep);
                    clickAt(desk, clockwise ? high : low);
                    clickAt(desk, onCircle(centre, 400, from + sweep / 2));
                    clickAt(desk, clockwise ? low : high);
                    const std::string what = "at " + shortest(centre.x) + " from " + shortest(from) +
                                             " over " + shortest(sweep) + (clockwise ? " clockwise" : "");
                    expectArc(lastSlot(desk), centre, 400, from, from + sweep, slackOf(centre, 400, sweep),
                              what);
                    desk.cancel(); // parks the last point, on which a first click would end the action
                }
            }
        }
    }
}

TEST(ArcThree, PassesThroughAngleZeroWithItsEndBelowItsStart)
{
    Desk desk;
    for (const bool clockwise : {false, true}) {
        start(desk, "Command5"_c);
        const Point low = onCircle({1000, 1000}, 400, 330);
        const Point high = onCircle({1000, 1000}, 400, 60);
        clickAt(desk, clockwise ? high : low);
        clickAt(desk, onCircle({1000, 1000}, 400, 10));
        clickAt(desk, clockwise ? low : high);
        const EntityRecord r = lastSlot(desk);
        expectWholeArc(r);
        EXPECT_NEAR(r.a1, 5.759587, 1e-4);
        EXPECT_NEAR(r.a2, 1.047198, 1e-4);
        EXPECT_NEAR(r.p4.x, 1000 + 386.3703, 0.02); // at 15 degrees
        EXPECT_NEAR(r.p4.y, 1000 - 103.5276, 0.02);
        desk.cancel();
    }
}

// The corners of a square about (1500, 1500), and a third click that the circle misses.
TEST(ArcThree, WithAnObtuseFirstAngleEndsAtTheDirectionOfTheThirdPointWhichItMisses)
{
    Desk desk;
    start(desk, "Command5"_c);
    desk.click(1000, 1000);
    desk.click(2000, 1000);
    desk.ops();
    desk.move(0, 2000);
    const Ops band = shown(desk, "arc");
    desk.down(1, 0, 2000);
    const EntityRecord r = desk.slot(1);
    expectWholeArc(r);
    EXPECT_NEAR(r.p1.x, 1500, 0.1);
    EXPECT_NEAR(r.p1.y, 1500, 0.1);
    EXPECT_NEAR(r.rad, 707.1068, 0.1);
    EXPECT_NEAR(r.a1, 3.1415927 + std::atan(1.0 / 3), 1e-3);
    EXPECT_NEAR(r.a2, 2.3561945, 1e-3);
    EXPECT_GT(away(r.p2, {0, 2000}), 500); // an end is computed, and is not the click
    EXPECT_EQ(shown(desk, "arc"), band);
}

TEST(ArcThree, OfEvenlySpacedPointsOnALineKeepsCentreAndAnglesThatStood)
{
    Desk desk;
    start(desk, "Command2"_c);
    desk.click(3000, 3000);
    desk.click(3100, 3000);
    desk.s.arcStart = 1;
    desk.s.arcEnd = 2;
    start(desk, "Command5"_c);
    desk.click(1000, 1000);
    desk.click(1100, 1000);
    EXPECT_EQ(desk.s.arcStart, 2); // the second point brings it to the end
    desk.click(1200, 1000);
    const EntityRecord r = desk.slot(2);
    expectWholeArc(r);
    EXPECT_EQ(r.p1, (Point{3000, 3000}));
    EXPECT_FLOAT_EQ(r.rad, 2828.4271F);
    EXPECT_EQ(r.a1, 2);
    EXPECT_EQ(r.a2, 2);
}

TEST(ArcThree, PromptsForThreePointsAndEndsReadyForTheNext)
{
    Desk desk;
    start(desk, "Command5"_c);
    EXPECT_EQ(desk.s.promptText, "(Enter first point on arc:)");
    desk.click(1400, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter second point on arc:)");
    desk.s.arcWinding = 7;
    desk.click(1282, 718);
    EXPECT_EQ(desk.s.arcWinding, 0);
    EXPECT_EQ(desk.s.promptText, "(Enter last point on arc:)");
    desk.click(1000, 600);
    EXPECT_EQ(desk.s.promptText, "(Enter first point on arc:)");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.workRadius, 0);
    EXPECT_EQ(desk.s.store.entCount, 2);
}

TEST(ArcThree, BandsALineToThePointerAndThenALineAndTheArc)
{
    Desk desk;
    start(desk, "Command5"_c, OrthoToggle::on);
    desk.click(1400, 1000);
    desk.ops();
    desk.move(1282, 718); // ortho doesn't apply
    const Ops first = {"restoreSnapshot", "line 1400 1000 1282 718"};
    EXPECT_EQ(desk.ops(), first);
    desk.down(1, 1282, 718);
    desk.ops();
    desk.move(1000, 600);
    const Ops second = desk.ops();
    ASSERT_EQ(second.size(), 3U);
    EXPECT_EQ(second[0], "restoreSnapshot");
    EXPECT_EQ(second[1], "line 1282 718 1000 600");
    EXPECT_EQ(second[2].substr(0, 4), "arc ");
}

TEST(ArcThree, IsPaintedInItsOwnPenAndLeavesThePenOfBands)
{
    Desk desk;
    desk.s.curColor = 65280;
    desk.s.curStyle = 1;
    start(desk, "Command5"_c);
    desk.click(1400, 1000);
    desk.click(1282, 718);
    desk.move(1000, 600);
    const std::string arc = shown(desk, "arc").back();
    desk.down(1, 1000, 600);
    expectCommit(desk.ops(), {"setStyle 1", "setColor 65280"}, arc);
    EXPECT_EQ(lastSlot(desk).color, 65280);
    EXPECT_EQ(lastSlot(desk).style, 1);
}

TEST(ArcThree, IsWholeForRandomClicksAndItsBandShowsTheSame)
{
    std::mt19937 random(51);
    std::uniform_real_distribution<float> place(500, 4000);
    Desk desk;
    int direct = 0;
    for (int i = 0; i < 4000; ++i) {
        const float at = i % 3 == 0 ? 100000.0F : 0.0F;
        const auto next = [&] { return Point{at + place(random), at + place(random)}; };
        start(desk, "Command5"_c, i % 2 == 0 ? OrthoToggle::on : OrthoToggle::off);
        const Point first = next();
        clickAt(desk, first);
        clickAt(desk, next());
        desk.ops();
        const Point last = next();
        moveTo(desk, last);
        const Ops band = shown(desk, "arc");
        downAt(desk, last);
        ASSERT_EQ(desk.s.store.entCount, i + 2) << i;
        const EntityRecord r = lastSlot(desk);
        expectWholeArc(r, shortest(i));
        const double nearest = std::min(away(r.p2, first), away(r.p3, first));
        EXPECT_LT(nearest, 8 * rounding(r.p1, r.rad)) << i; // the arc begins or ends at the first click
        const Ops painted = shown(desk, "arc");
        if (painted.empty()) continue; // in pieces
        EXPECT_EQ(painted, band) << i;
        ++direct;
    }
    EXPECT_GT(direct, 500);
}

} // namespace
} // namespace mirtane
