#include "commands/curve.h"

#include "desk.h"
#include "geometry/angle.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace mirtane {
namespace {

using fake::Desk;

struct CurveFunction : testing::Test {
    CurveFunction() { desk.press("Command6"_c); }
    Desk desk;
};

// Arcs that touch at a point are tangent there when the point lies on the line of their centres.
double offTangent(Point junction, Point c1, Point c2)
{
    const double d1 = distance(junction, c1);
    const double d2 = distance(junction, c2);
    return ((c1.x - junction.x) * (c2.y - junction.y) - (c1.y - junction.y) * (c2.x - junction.x)) /
           (d1 * d2);
}

TEST_F(CurveFunction, OfTwoClicksStoresNothing)
{
    desk.click(1000, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter next point on curve:)");
    desk.click(1300, 800);
    desk.cancel();
    EXPECT_EQ(desk.s.store.entCount, 1);
}

TEST_F(CurveFunction, MakesItsFirstArcOfThreePointsAndOneMoreOfEachFurther)
{
    desk.click(1000, 1000);
    desk.click(1282, 718);
    desk.click(1400, 1000);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.s.stepNo, 3);
    desk.click(1700, 1300);
    desk.click(2100, 1100);
    EXPECT_EQ(desk.s.store.entCount, 4);
    EXPECT_EQ(desk.s.stepNo, 5);
    for (std::int32_t i = 1; i < 4; ++i) EXPECT_EQ(desk.slot(i).kind, kind::arc);
}

TEST_F(CurveFunction, IsTangentAtEachJunctionAndReachesEachPoint)
{
    std::mt19937 random(6);
    std::uniform_real_distribution<float> stride(-300, 300);
    for (int round = 0; round < 200; ++round) {
        desk.press("Command6"_c);
        const std::int32_t first = desk.s.store.entCount;
        desk.click(2000, 1500);
        desk.click(2200, 1400);
        desk.click(2300, 1500);
        Point junction{2300, 1500};
        for (int i = 0; i < 5; ++i) {
            const Point next{junction.x + 350 + stride(random), junction.y + stride(random)};
            desk.click(next.x, next.y);
            const std::int32_t last = desk.s.store.entCount - 1;
            const EntityRecord before = desk.slot(last - 1);
            const EntityRecord r = desk.slot(last);
            if (r.rad > 20000) break; // nearly straight: 32 bits no longer hold the centre
            EXPECT_NEAR(offTangent(junction, before.p1, r.p1), 0, 0.01) << round << " " << i;
            EXPECT_NEAR(distance(r.p1, next), r.rad, 0.001 * r.rad + 0.1) << round << " " << i;
            EXPECT_NEAR(distance(r.p1, junction), r.rad, 0.001 * r.rad + 0.1) << round << " " << i;
            junction = next;
        }
        EXPECT_GT(desk.s.store.entCount, first);
        desk.cancel();
    }
}

TEST_F(CurveFunction, GoesOnSmoothlyAndDoesNotTurnBack)
{
    // A half circle from left to right over the top, then a point below: the curve swings on downwards.
    desk.click(1000, 1000);
    desk.click(1400, 600);
    desk.click(1800, 1000);
    desk.click(1900, 1400);
    const EntityRecord r = desk.slot(2);
    EXPECT_NEAR(r.p1.y, 1000, 400);
    // The arc leaves the junction downwards, as the one before it arrived: its middle lies below.
    EXPECT_GT(r.p4.y, 1000);
}

TEST_F(CurveFunction, TakesBackOneArcAtATime)
{
    desk.click(1000, 1000);
    desk.click(1282, 718);
    desk.click(1400, 1000);
    desk.click(1700, 1300);
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::out);
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(1), Stat::out);
}

TEST_F(CurveFunction, ShowsInItsBandTheArcThatTheClickThenStores)
{
    desk.click(1000, 1000);
    desk.click(1282, 718);
    desk.click(1400, 1000);
    desk.move(1700, 1300);
    const Point centre = desk.s.ptF;
    const double start = desk.s.arcStart;
    desk.down(1, 1700, 1300);
    EXPECT_EQ(desk.slot(2).p1, centre);
    EXPECT_EQ(desk.slot(2).a1, start);
}

TEST_F(CurveFunction, ANewClickOnItsFirstPointEndsItAndTheArcsStay)
{
    desk.click(1000, 1000);
    desk.click(1282, 718);
    desk.click(1400, 1000);
    desk.click(1000, 1000);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.s.store.entCount, 2);
}

} // namespace
} // namespace mirtane
