#include "commands/arc.h"

#include "desk.h"
#include "geometry/angle.h"
#include "geometry/arc.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace mirtane {
namespace {

using fake::Desk;

// The three points of an arc's slot belong to its centre, radius and angles.
void expectWhole(const EntityRecord& r)
{
    ASSERT_EQ(r.kind, kind::arc);
    const double slack = 1e-5 * (std::abs(r.p1.x) + std::abs(r.p1.y) + r.rad) + 0.01;
    for (const Point p : {r.p2, r.p3, r.p4}) EXPECT_NEAR(distance(r.p1, p), r.rad, slack);
    const Point start = polarPoint(r.p1, r.rad, r.a1);
    const Point end = polarPoint(r.p1, r.rad, r.a2);
    const Point middle = polarPoint(r.p1, r.rad, middleAngle(r.a1, r.a2));
    EXPECT_EQ(r.p2, start);
    EXPECT_EQ(r.p3, end);
    EXPECT_EQ(r.p4, middle);
    EXPECT_GE(r.a1, 0);
    EXPECT_LE(r.a1, fullTurn);
    EXPECT_GE(r.a2, 0);
    EXPECT_LE(r.a2, fullTurn);
}

struct ArcThree : testing::Test {
    ArcThree() { desk.press("Command5"_c); }
    void clicks(Point a, Point b, Point c)
    {
        desk.click(a.x, a.y);
        desk.click(b.x, b.y);
        desk.click(c.x, c.y);
    }
    Desk desk;
};

TEST_F(ArcThree, RunsFromTheFirstPointToTheLastCounterClockwiseEitherWayDrawn)
{
    // The upper half of a circle of radius 400 about (1000, 1000), drawn from the right and from the left.
    const float s = 282.84271F;
    clicks({1400, 1000}, {1000 + s, 1000 - s}, {1000, 600});
    EntityRecord r = desk.slot(1);
    expectWhole(r);
    EXPECT_NEAR(r.p1.x, 1000, 0.05);
    EXPECT_NEAR(r.p1.y, 1000, 0.05);
    EXPECT_NEAR(sweep(r.a1, r.a2), quarterTurn, 1e-3);
    EXPECT_NEAR(std::remainder(r.a1, fullTurn), 0, 1e-3);
    desk.cancel(); // parks the last point, on which a first click would end the action
    clicks({1000, 600}, {1000 + s, 1000 - s}, {1400, 1000});
    r = desk.slot(2);
    expectWhole(r);
    EXPECT_NEAR(sweep(r.a1, r.a2), quarterTurn, 1e-3);
    EXPECT_NEAR(std::remainder(r.a1, fullTurn), 0, 1e-3);
}

TEST_F(ArcThree, PassesThroughAngleZeroWithItsEndBelowItsStart)
{
    const float s = 282.84271F;
    clicks({1000 + s, 1000 + s}, {1400, 1000}, {1000 + s, 1000 - s});
    const EntityRecord r = desk.slot(1);
    expectWhole(r);
    EXPECT_LT(r.a2, r.a1);
    EXPECT_NEAR(r.p4.x, 1400, 0.1);
    EXPECT_NEAR(r.p4.y, 1000, 0.5);
}

TEST_F(ArcThree, PromptsAndEndsReadyForTheNext)
{
    EXPECT_EQ(desk.s.promptText, "(Enter first point on arc:)");
    desk.click(1400, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter second point on arc:)");
    desk.click(1282, 718);
    EXPECT_EQ(desk.s.promptText, "(Enter last point on arc:)");
    desk.click(1000, 600);
    EXPECT_EQ(desk.s.promptText, "(Enter first point on arc:)");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.workRadius, 0);
}

TEST_F(ArcThree, ShowsInItsBandTheArcThatTheClickThenStores)
{
    desk.click(1400, 1000);
    desk.click(1282, 718);
    desk.move(1000, 600);
    const Point centre = desk.s.ptF;
    const float radius = desk.s.workRadius;
    const double start = desk.s.arcStart;
    const double end = desk.s.arcEnd;
    desk.down(1, 1000, 600);
    const EntityRecord r = desk.slot(1);
    EXPECT_EQ(r.p1, centre);
    EXPECT_EQ(r.rad, radius);
    EXPECT_EQ(r.a1, start);
    EXPECT_EQ(r.a2, end);
}

TEST_F(ArcThree, IsWholeForRandomClicks)
{
    std::mt19937 random(5);
    std::uniform_real_distribution<float> place(500, 4000);
    std::int32_t slot = 1;
    for (int i = 0; i < 2000; ++i) {
        clicks({place(random), place(random)}, {place(random), place(random)},
               {place(random), place(random)});
        if (desk.s.store.entCount == slot) continue; // a click on the point before ended the action
        expectWhole(desk.slot(slot));
        slot = desk.s.store.entCount;
    }
    EXPECT_GT(slot, 1900);
}

struct ArcTwo : testing::Test {
    ArcTwo()
    {
        desk.press("freecurs"_c);
        desk.press("Command4"_c);
    }
    Desk desk;
};

TEST_F(ArcTwo, StartsAtTheRadiusPointWhenThePointerWentCounterClockwise)
{
    desk.click(1000, 1000);
    desk.click(1400, 1000);
    desk.move(1390, 900);
    desk.move(1300, 700);
    desk.click(1000, 500);
    const EntityRecord r = desk.slot(1);
    expectWhole(r);
    EXPECT_EQ(r.a1, 0);
    EXPECT_EQ(r.a2, quarterTurn);
    EXPECT_FLOAT_EQ(r.rad, 400);
    EXPECT_EQ(r.p3, (Point{1000, 600})); // on the circle, not at the click
}

TEST_F(ArcTwo, EndsAtTheRadiusPointWhenThePointerWentClockwise)
{
    desk.click(1000, 1000);
    desk.click(1000, 600);
    desk.move(1100, 610);
    desk.move(1300, 700);
    desk.click(1500, 1000);
    const EntityRecord r = desk.slot(1);
    expectWhole(r);
    EXPECT_EQ(r.a1, 0);
    EXPECT_EQ(r.a2, quarterTurn);
}

TEST_F(ArcTwo, ComparesTheFirstMoveWithTheAngleThatTheArcBeforeLeft)
{
    desk.s.arcLastAngle = 6;
    desk.click(1000, 1000);
    desk.click(1400, 1000);
    desk.move(1390, 900); // a rise from 0, but a fall from the stale 6
    EXPECT_EQ(desk.s.arcWinding, -1);
    desk.move(1300, 700);
    EXPECT_EQ(desk.s.arcWinding, 0);
}

TEST_F(ArcTwo, HasNoSweepWhileTheWindingIsNothing)
{
    desk.click(1000, 1000);
    desk.click(1000, 600);
    desk.s.arcLastAngle = quarterTurn;
    desk.down(1, 1000, 500);
    const EntityRecord r = desk.slot(1);
    EXPECT_EQ(r.a1, quarterTurn);
    EXPECT_EQ(r.a2, quarterTurn);
}

TEST_F(ArcTwo, IsConfinedAboutItsCentreUnderOrtho)
{
    desk.press("freecurs"_c);
    desk.press("Command4"_c);
    desk.click(1000, 1000);
    desk.click(1400, 1010);
    EXPECT_FLOAT_EQ(desk.s.ptB.y, 1000);
    EXPECT_EQ(desk.s.pickFirst, (Point{1000, 1000}));
    desk.move(1010, 700);
    EXPECT_FLOAT_EQ(desk.s.pickLast.x, 1000);
    desk.down(1, 1010, 700);
    EXPECT_EQ(desk.slot(1).a2, quarterTurn);
}

TEST_F(ArcTwo, TakesATypedRadius)
{
    desk.click(1000, 1000);
    desk.move(1400, 1000);
    desk.type("24");
    desk.enter();
    EXPECT_FLOAT_EQ(desk.s.workRadius, 288);
    EXPECT_EQ(desk.s.stepNo, 2);
}

} // namespace
} // namespace mirtane
