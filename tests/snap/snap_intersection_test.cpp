#include "click_desk.h"

#include "geometry/crossing.h"
#include "geometry/foot.h"
#include "geometry/rounding.h"
#include "geometry/tangent.h"
#include "slanted.h"

#include <random>

namespace mirtane {
namespace {

using fake::ClickDesk;
using fake::expectPoint;
using fake::Slanted;

TEST(SnapIntersection, MeetsTwoObjects)
{
    struct Row {
        const char* what;
        EntityRecord one, other;
        Point mouse, snapped;
    };
    const EntityRecord flat = fake::line({100, 300}, {500, 300});
    const EntityRecord left = fake::circle({300, 300}, 50);
    const EntityRecord right = fake::circle({360, 300}, 50);
    const Row rows[] = {
        {"two lines that cross", flat, fake::line({200, 200}, {240, 360}), {226, 303}, {225, 300}},
        {"circles, upper point", left, right, {331, 258}, {330, 260}},
        {"circles, lower point", left, right, {331, 342}, {330, 340}},
        {"circles of two sizes", left, fake::circle({350, 300}, 20), {343, 281}, {346, 280.404f}},
        {"an arc and a circle", fake::arc({300, 300}, 50, 0, 1.5707963), right, {331, 258}, {330, 260}},
        {"line and circle, right", flat, left, {355, 305}, {350, 300}},
        {"line and circle, left", flat, left, {246, 304}, {250, 300}},
        {"circle and line", left, flat, {246, 304}, {250, 300}},
        {"line over the centre", fake::line({100, 270}, {500, 270}), left, {338, 268}, {340, 270}},
        {"line and arc", flat, fake::arc({300, 300}, 50, 0, 1.5707963), {352, 297}, {350, 300}},
        {"the other point of a line and an arc may be off the arc",
         fake::line({100, 265}, {500, 265}),
         fake::arc({300, 300}, 50, 0, 1.5707963),
         {320, 262},
         {335.707f, 265}},
        {"a line that touches", fake::line({100, 250}, {500, 250}), left, {304, 251}, {300, 250}},
    };
    for (const Row& row : rows) {
        ClickDesk desk;
        desk.add(row.one);
        desk.add(row.other);
        expectPoint(desk.snapped("si", row.mouse), row.snapped, row.what, 0.01f);
        EXPECT_TRUE(desk.s.pointWasSnapped) << row.what;
    }
}

TEST(SnapIntersection, TheClickIsKeptWhereTwoObjectsDoNotMeet)
{
    struct Row {
        const char* what;
        EntityRecord one, other;
        Point mouse;
    };
    const EntityRecord circle = fake::circle({300, 300}, 50);
    const Row rows[] = {
        {"circles apart", circle, fake::circle({410, 300}, 50), {355, 300}},
        {"circles that touch", circle, fake::circle({400, 300}, 50), {352, 301}},
        {"circle in a circle", circle, fake::circle({310, 300}, 30), {346, 300}},
        {"about one centre", circle, fake::circle({300, 300}, 45), {348, 300}},
        {"line past a circle", fake::line({100, 355}, {500, 355}), circle, {300, 353}},
        {"both points of two circles as near", circle, fake::circle({300, 290}, 45), {300, 250}},
        {"only one object", circle, fake::circle({900, 300}, 50), {352, 301}},
        {"no object at all", circle, fake::circle({900, 300}, 50), {600, 600}},
        {"an ellipse is none", circle, fake::ellipse({350, 300}, {300, 300}, 1), {352, 301}},
        {"a point is none", circle, fake::point({350, 300}), {352, 301}},
        {"an arc is met on its sweep only",
         fake::line({100, 300}, {500, 300}),
         fake::arc({300, 300}, 50, 0.2, 1.5),
         {252, 297}},
    };
    for (const Row& row : rows) {
        ClickDesk desk;
        desk.add(row.one);
        desk.add(row.other);
        EXPECT_EQ(desk.snapped("si", row.mouse), row.mouse) << row.what;
        EXPECT_FALSE(desk.s.pointWasSnapped) << row.what;
        EXPECT_EQ(desk.armed(), "") << row.what;
    }
}

TEST(SnapIntersection, BothPointsOfALineAndACircleAsNearGiveTheOneTowardsTheLinesEnd)
{
    for (const bool toTheRight : {true, false}) {
        ClickDesk desk;
        desk.circle({300, 300}, 20);
        desk.add(toTheRight ? fake::line({200, 290}, {400, 290}) : fake::line({400, 290}, {200, 290}));
        expectPoint(desk.snapped("si", {300, 281}), {toTheRight ? 317.3205f : 282.6795f, 290}, "of two");
    }
}

// The nearer object is the first, the other the second, whose ends' heights over the first count.
struct Lines {
    const char* what;
    Point a, b; // the first line
    Point c, d; // the second
    Point met;
};

constexpr Point nearFirst{5, 0};

TEST(SnapIntersection, TwoLinesAreMetByTheHeightsOfTheSecondsEnds)
{
    const Lines rows[] = {
        {"ends on either side", {0, 0}, {10, 0}, {2, 1}, {6, -3}, {3, 0}},
        {"ends on one side give a point between, not the meeting", {0, 0}, {10, 0}, {2, 1}, {6, 3}, {3, 0}},
        {"one end on the first", {0, 0}, {10, 0}, {4, 0}, {6, 3}, {4, 0}},
        {"upright across", {0, 0}, {10, 0}, {4, 2}, {4, -9}, {4, 0}},
        {"parallel", {0, 0}, {10, 0}, {2, 1}, {6, 1}, {4, 0}},
        {"one on the other", {0, 0}, {10, 0}, {2, 0}, {8, 0}, {2, 0}},
        {"beyond the first's end", {0, 0}, {10, 0}, {3, 1}, {19, -3}, {7, 0}},
    };
    for (const Lines& row : rows) {
        ClickDesk desk;
        desk.add(fake::line(row.c, row.d));
        desk.add(fake::line(row.a, row.b)); // as near at least, and the last
        desk.firstClick(nearFirst);
        desk.s.mousePos = row.met;
        desk.shoot("si");
        EXPECT_EQ(desk.s.snapBestIndex, 2) << row.what;
        EXPECT_EQ(desk.s.snapSecondIndex, 1) << row.what;
        expectPoint(desk.s.pickFirst, row.met, row.what, 1e-5f);
    }
}

TEST(SnapIntersection, AFirstLineOfNoLengthGivesItsPoint)
{
    ClickDesk desk;
    desk.line({102, 105}, {102, 95});
    desk.line({100, 100}, {100, 100});
    EXPECT_EQ(desk.snapped("si", {100, 100}), (Point{100, 100}));
}

TEST(SnapIntersection, LinesWithTheSecondsEndsOnEitherSideMeetTrulyWhateverTheirDirection)
{
    std::mt19937 dice(7);
    std::uniform_int_distribution<int> coordinate(100, 900);
    const auto throwPoint = [&] {
        return Point{static_cast<float>(coordinate(dice)),
                     static_cast<float>(coordinate(dice))}; // small numbers
    };
    ClickDesk desk;
    int met = 0;
    for (int i = 0; i < 3000; ++i) {
        const Point a = throwPoint(), b = throwPoint(), c = throwPoint(), d = throwPoint();
        const Crossings truth = crossLines(a, b, c, d);
        if (truth.count == 0) continue;
        const Point p = truth.points[0];
        const auto between = [p](Point from, Point to) {
            return std::abs(distance(from, p) + distance(p, to) - distance(from, to)) < 0.001;
        };
        if (!between(a, b) || !between(c, d)) continue;
        desk.s.store.entCount = 1;
        desk.line(a, b);
        desk.line(c, d);
        expectPoint(desk.snapped("si", p), p, "true meeting", 0.01f);
        ++met;
    }
    EXPECT_GT(met, 200);
}

TEST(SnapIntersection, ASharedEndGoesBeforeTheHeights)
{
    struct Row {
        const char* what;
        EntityRecord first, second;
        Point met;
    };
    const Row rows[] = {
        {"start with end", fake::line({100, 100}, {200, 100}), fake::line({150, 50}, {100, 100}), {100, 100}},
        {"start with start",
         fake::line({100, 100}, {200, 100}),
         fake::line({100, 100}, {150, 50}),
         {100, 100}},
        {"end with start", fake::line({200, 100}, {100, 100}), fake::line({100, 100}, {150, 50}), {100, 100}},
        {"end with end", fake::line({200, 100}, {100, 100}), fake::line({150, 50}, {100, 100}), {100, 100}},
        {"both ends shared: the first's start",
         fake::line({100, 100}, {110, 100}),
         fake::line({110, 100}, {100, 100}),
         {100, 100}},
        {"both ends shared the same way",
         fake::line({110, 100}, {100, 100}),
         fake::line({110, 100}, {100, 100}),
         {110, 100}},
    };
    for (const Row& row : rows) {
        ClickDesk desk;
        desk.add(row.second);
        desk.add(row.first);
        desk.firstClick({105, 100});
        desk.shoot("si");
        ASSERT_EQ(desk.s.snapBestIndex, 2) << row.what;
        EXPECT_EQ(desk.s.pickFirst, row.met) << row.what;
    }
}

TEST(SnapIntersection, AnAlmostSharedEndIsNone)
{
    ClickDesk desk;
    desk.line({100.01f, 101}, {150, 50}); // 1 below the other line and 50 above it
    desk.line({90, 100}, {200, 100});
    desk.firstClick({105, 100});
    desk.shoot("si");
    EXPECT_NEAR(desk.s.pickFirst.x, 100.01f + 49.99f * (1.0f / 51.0f), 0.001f);
    EXPECT_EQ(desk.s.pickFirst.y, 100);
}

TEST(SnapIntersection, TheSecondPassTakesTheLastOfEqualsButNotTheFirstObject)
{
    ClickDesk desk;
    desk.line({100, 200}, {300, 200});
    desk.line({200, 100}, {200, 300});
    desk.line({100, 100}, {300, 300});
    EXPECT_EQ(desk.snapped("si", {200, 200}), (Point{200, 200}));
    EXPECT_EQ(desk.s.snapBestIndex, 3);
    EXPECT_EQ(desk.s.snapSecondIndex, 2);
}

TEST(SnapIntersection, WhatIsHiddenDoesNotMeet)
{
    ClickDesk desk;
    desk.line({100, 200}, {300, 200});
    desk.line({200, 100}, {200, 300}, Stat::off);
    EXPECT_EQ(desk.snapped("si", {203, 198}), (Point{203, 198}));
    desk.s.store.setStat(2, Stat::sel);
    EXPECT_EQ(desk.snapped("si", {203, 198}), (Point{200, 200}));
}

TEST(SnapIntersection, IgnoresOrtho)
{
    ClickDesk desk;
    desk.ortho(true);
    desk.line({100, 200}, {300, 200});
    desk.line({200, 100}, {200, 300});
    desk.laterClick({50, 50}, {203, 198}, {203, 50});
    desk.shoot("si");
    EXPECT_EQ(desk.s.pickLast, (Point{200, 200}));
    EXPECT_EQ(desk.s.pickFirst, (Point{50, 50}));
}

TEST(SnapIntersection, ATangentMeetsItsCircleWhereItTouches)
{
    Slanted dice(62);
    ClickDesk desk;
    for (int i = 0; i < 2000; ++i) {
        const double reach = dice.anySize(500, 300000);
        const Point centre = dice.pointWithin({0, 0}, reach);
        const auto radius = static_cast<float>(dice.between(30, 400)); // as stored
        const double way = dice.between(0, 6.28);
        const double away = dice.between(1.3, 5) * radius;
        const Point from{static_cast<float>(centre.x + away * std::cos(way)), // as stored
                         static_cast<float>(centre.y + away * std::sin(way))};
        const Point touch = tangentPoints(from, centre, radius)[dice.chance() ? 0 : 1];
        const bool lineIsFirst = dice.chance();
        desk.s.store.entCount = 1;
        if (lineIsFirst) desk.line(from, touch);
        desk.circle(centre, radius);
        if (!lineIsFirst) desk.line(touch, from);
        // Over the line, so that its foot lies on it.
        const Point mouse{touch.x + (from.x - touch.x) * 8 / radius,
                          touch.y + (from.y - touch.y) * 8 / radius};
        desk.s.pointWasSnapped = false;
        const Point landed = desk.snapped("si", mouse);
        EXPECT_TRUE(desk.s.pointWasSnapped) << i;
        EXPECT_LT(distance(landed, touch), 20 * halfStepOf(reach + 3000)) << i;
    }
}

} // namespace
} // namespace mirtane
