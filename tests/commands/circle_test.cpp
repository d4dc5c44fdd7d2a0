#include "commands/circle.h"

#include "desk.h"
#include "geometry/angle.h"

#include <gtest/gtest.h>

#include <random>

namespace mirtane {
namespace {

using fake::Desk;

struct Clicks {
    const char* what;
    Point a, b;
    float rad;
};

// Moves and clicks in the four quadrants, on the axes, and far from the origin, where 32 bits hold a
// hundredth.
constexpr Clicks freeClicks[] = {
    {"to the right", {1000, 1000}, {1300, 1000}, 300},
    {"up and right, 3-4-5", {1000, 1000}, {1300, 600}, 500},
    {"up and left", {1000, 1000}, {700, 600}, 500},
    {"down and left", {1000, 1000}, {700, 1400}, 500},
    {"down and right", {1000, 1000}, {1300, 1400}, 500},
    {"straight up", {1000, 1000}, {1000, 400}, 600},
    {"far away", {100000, 100000}, {100300, 99600}, 500},
};

void freeHand(Desk& desk)
{
    desk.press("freecurs"_c);
}

TEST(CircleTwo, StoresTheCentreAndTheDistanceOfTheSecondPoint)
{
    for (const Clicks& row : freeClicks) {
        Desk desk;
        freeHand(desk);
        desk.press("Command2"_c);
        desk.click(row.a.x, row.a.y);
        EXPECT_EQ(desk.s.promptText, "(Enter radius of circle:)") << row.what;
        desk.click(row.b.x, row.b.y);
        const EntityRecord r = desk.slot(1);
        EXPECT_EQ(r.kind, kind::circle) << row.what;
        EXPECT_EQ(r.p1, row.a) << row.what;
        EXPECT_FLOAT_EQ(r.rad, row.rad) << row.what;
        EXPECT_EQ(desk.s.stepNo, 0) << row.what;
        EXPECT_EQ(desk.s.workRadius, 0) << row.what;
        EXPECT_EQ(desk.s.store.entCount, 2) << row.what;
        EXPECT_EQ(desk.s.promptText, "(Enter center of circle:)") << row.what;
    }
}

TEST(CircleTwo, HasItsSpokeOnAnAxisAndThePointersDistanceUnderOrtho)
{
    Desk desk;
    desk.press("Command2"_c);
    desk.click(1000, 1000);
    desk.pic1.takeOps();
    desk.move(1400, 700);
    EXPECT_EQ(desk.ops().back(), "line 1000 1000 1500 1000");
    desk.down(1, 1400, 700);
    EXPECT_FLOAT_EQ(desk.slot(1).rad, 500);
}

TEST(CircleTwo, TakesATypedRadius)
{
    Desk desk;
    desk.press("Command2"_c);
    desk.click(1000, 1000);
    desk.move(1400, 1010);
    desk.type("1'6");
    desk.enter();
    EXPECT_FLOAT_EQ(desk.slot(1).rad, 216);
    EXPECT_EQ(desk.focused(), "pic1");
}

TEST(CircleTwo, ShowsInItsBandTheCircleThatTheClickThenStores)
{
    Desk desk;
    freeHand(desk);
    desk.press("Command2"_c);
    desk.click(1000, 1000);
    desk.pic1.takeOps();
    desk.move(1300, 600);
    const fake::Ops band = desk.ops();
    desk.down(1, 1300, 600);
    EXPECT_NE(std::find(band.begin(), band.end(), "circle 1000 1000 500"), band.end());
    const fake::Ops stored = desk.ops();
    EXPECT_NE(std::find(stored.begin(), stored.end(), "circle 1000 1000 500"), stored.end());
}

void threeClicks(Desk& desk, Point a, Point b, Point c)
{
    desk.click(a.x, a.y);
    desk.click(b.x, b.y);
    desk.click(c.x, c.y);
}

TEST(CircleThree, PassesThroughThreePointsOfAnAcuteTriangle)
{
    const Point triangles[][3] = {
        {{1000, 1000}, {1400, 1000}, {1200, 700}},
        {{1000, 1000}, {1400, 1000}, {1200, 1300}},
        {{1000, 1000}, {1000, 600}, {1300, 800}},
        {{1000, 1000}, {1000, 600}, {700, 800}},
        {{101000, 101000}, {101400, 101000}, {101200, 100700}},
    };
    for (const auto& t : triangles) {
        Desk desk;
        desk.press("Command3"_c);
        threeClicks(desk, t[0], t[1], t[2]);
        const EntityRecord r = desk.slot(1);
        ASSERT_EQ(r.kind, kind::circle);
        for (const Point p : t)
            EXPECT_NEAR(distance(r.p1, p), r.rad, 0.02 + r.p1.x * 2e-7) << t[0].x << " " << t[2].y;
    }
}

TEST(CircleThree, MissesTheThirdPointWhenTheFirstAngleIsObtuseAndItsBandShowsTheSame)
{
    Desk desk;
    desk.press("Command3"_c);
    desk.click(1000, 1000);
    desk.click(2000, 1000);
    desk.pic1.takeOps();
    desk.move(0, 2000);
    const fake::Ops band = desk.ops();
    desk.down(1, 0, 2000);
    const EntityRecord r = desk.slot(1);
    EXPECT_NEAR(r.p1.x, 1500, 0.1);
    EXPECT_NEAR(r.p1.y, 1500, 0.1);
    EXPECT_NEAR(r.rad, 707.107, 0.1);
    EXPECT_GT(std::abs(distance(r.p1, {0, 2000}) - r.rad), 500);
    ASSERT_GE(band.size(), 3U);
    EXPECT_EQ(band[1].substr(0, 6), "circle");
    EXPECT_EQ(band[2], "line 2000 1000 0 2000");
}

TEST(CircleThree, KeepsTheCentreThatStoodForEvenlySpacedPointsOnALine)
{
    Desk desk;
    desk.press("Command2"_c);
    desk.click(3000, 3000);
    desk.click(3100, 3000);
    desk.press("Command3"_c);
    threeClicks(desk, {1000, 1000}, {1100, 1000}, {1200, 1000});
    const EntityRecord r = desk.slot(2);
    EXPECT_EQ(r.p1, (Point{3000, 3000}));
    EXPECT_FLOAT_EQ(r.rad, static_cast<float>(distance({3000, 3000}, {1000, 1000})));
}

TEST(CircleThree, IgnoresOrthoOnMoveAndClick)
{
    Desk desk;
    desk.press("Command3"_c);
    desk.click(1000, 1000);
    desk.pic1.takeOps();
    desk.move(1311, 877);
    EXPECT_EQ(desk.ops().back(), "line 1000 1000 1311 877");
    desk.down(1, 1311, 877);
    EXPECT_EQ(desk.s.ptB, (Point{1311, 877}));
}

TEST(CircleThree, PassesThroughItsPointsForRandomAcuteClicks)
{
    std::mt19937 random(4);
    std::uniform_real_distribution<float> place(500, 4000);
    int acute = 0;
    for (int i = 0; i < 300; ++i) {
        const Point a{place(random), place(random)};
        const Point b{place(random), place(random)};
        const Point c{place(random), place(random)};
        const double dot = (b.x - a.x) * (c.x - a.x) + (b.y - a.y) * (c.y - a.y);
        const double sine = std::abs((b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x)) /
                            (distance(a, b) * distance(a, c));
        if (dot <= 0 || sine < 0.2 || distance(a, b) < 50 || distance(a, c) < 50) continue;
        ++acute;
        Desk desk;
        desk.press("Command3"_c);
        threeClicks(desk, a, b, c);
        const EntityRecord r = desk.slot(1);
        EXPECT_NEAR(distance(r.p1, a), r.rad, 1e-4 * r.rad + 0.05);
        EXPECT_NEAR(distance(r.p1, b), r.rad, 1e-3 * r.rad + 0.05);
        EXPECT_NEAR(distance(r.p1, c), r.rad, 2e-3 * r.rad + 0.1);
    }
    EXPECT_GT(acute, 50);
}

} // namespace
} // namespace mirtane
