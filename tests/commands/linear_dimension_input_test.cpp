// The dimensions through the whole program: what ortho, snaps and typed distances make of their clicks.

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;
using fake::only;

// A desk with a sloping line, whose ends are snapped to with Ctrl held.
struct SnapDesk : Desk {
    SnapDesk()
    {
        press("freecurs"_c);
        drawLine(1000, 1000, 1432, 1300);
        press("freecurs"_c);
        press("Command11"_c);
    }
    void snap(float x, float y)
    {
        shell.keyDown(17);
        click(x, y);
        shell.keyUp(17);
    }
};

TEST(LinearDimensionInput, MeasuredPointsAreUnconfinedAndTheOffsetIsConfined)
{
    struct Row {
        const char* what;
        bool ortho;
        Point pointer, p3, p4;
    };
    // From (1432, 1300) by (60, 80) and the like, which is 100 away.
    const Row rows[] = {
        {"up", true, {1492, 1220}, {1432, 1200}, {1000, 1200}},
        {"down", true, {1372, 1380}, {1432, 1400}, {1000, 1400}},
        {"right", true, {1512, 1240}, {1532, 1300}, {1532, 1000}},
        {"left", true, {1352, 1360}, {1332, 1300}, {1332, 1000}},
        {"free, up", false, {1432, 1200}, {1432, 1200}, {1000, 1200}},
        {"free, along a slope", false, {1462, 1260}, {1462, 1260}, {1041.52F, 944.64F}},
    };
    for (const Row& row : rows) {
        SnapDesk desk;
        if (!row.ortho) desk.press("freecurs"_c);
        desk.snap(1003, 996);
        EXPECT_EQ(desk.s.stepNo, 1) << row.what;
        desk.snap(1430, 1305);
        EXPECT_EQ(desk.s.stepNo, 2) << row.what;
        desk.click(row.pointer.x, row.pointer.y);
        ASSERT_EQ(desk.s.store.entCount, 3) << row.what;
        const EntityRecord r = desk.slot(2);
        EXPECT_EQ(r.p1, (Point{1000, 1000})) << row.what;
        EXPECT_EQ(r.p2, (Point{1432, 1300})) << row.what;
        EXPECT_NEAR(r.p3.x, row.p3.x, 0.01) << row.what;
        EXPECT_NEAR(r.p3.y, row.p3.y, 0.01) << row.what;
        EXPECT_NEAR(r.p4.x, row.p4.x, 0.01) << row.what;
        EXPECT_NEAR(r.p4.y, row.p4.y, 0.01) << row.what;
    }
}

TEST(LinearDimensionInput, TypedOffsetIsLaidFromTheSecondPoint)
{
    struct Row {
        const char* what;
        bool ortho;
        const char* typed;
        Point p3;
    };
    const Row rows[] = {
        {"on the axis nearest to the pointer", true, "20", {1432, 1060}},
        {"backward", true, "-20", {1432, 1540}},
        {"feet", true, "1'", {1432, 1156}},
        {"towards the pointer", false, "20", {1576, 1108}},
    };
    for (const Row& row : rows) {
        SnapDesk desk;
        if (!row.ortho) desk.press("freecurs"_c);
        desk.snap(1003, 996);
        desk.snap(1430, 1305);
        desk.move(1492, 1220); // three to the right to four up
        desk.type(row.typed);
        desk.enter();
        ASSERT_EQ(desk.s.store.entCount, 3) << row.what;
        EXPECT_NEAR(desk.slot(2).p3.x, row.p3.x, 0.01) << row.what;
        EXPECT_NEAR(desk.slot(2).p3.y, row.p3.y, 0.01) << row.what;
    }
}

TEST(LinearDimensionInput, PointerOrATypedDistanceIsNoMeasuredPoint)
{
    SnapDesk desk;
    desk.click(1000, 1000); // on the end of the line, but not snapped
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.promptText, "(Enter first dimension point:)");
    desk.snap(1003, 996);
    desk.move(1100, 1000);
    desk.type("20");
    desk.enter();
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.store.entCount, 2);
}

TEST(LinearDimensionInput, ChainEndsOnASecondClickAtItsEndAndOnARightClick)
{
    SnapDesk desk;
    desk.snap(1003, 996);
    desk.snap(1430, 1305);
    desk.click(1432, 1200);
    desk.snap(1430, 1305);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.curFunc, "Ortho Dimension");
    EXPECT_EQ(desk.s.store.entCount, 3);

    desk.snap(1003, 996);
    desk.snap(1430, 1305);
    desk.click(1432, 1200);
    desk.cancel(900, 900);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.store.entCount, 4);
    desk.snap(1003, 996); // a first point again, no next one
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.store.entCount, 4);
}

TEST(LinearDimensionInput, ChainIsNotConfined)
{
    SnapDesk desk;
    desk.snap(1003, 996);
    desk.snap(1430, 1305);
    desk.click(1432, 1200);
    desk.snap(1003, 996);
    ASSERT_EQ(desk.s.store.entCount, 4);
    EXPECT_EQ(desk.slot(3).p2, (Point{1000, 1000}));
    EXPECT_EQ(desk.slot(3).p3, (Point{1000, 1200}));
}

TEST(LinearDimensionInput, PointsOfAConstructionLineCountAsSnapped)
{
    SnapDesk desk;
    desk.layPoint(2000, 2000);
    EXPECT_EQ(desk.s.stepNo, 1);
    desk.layPoint(2432, 2000);
    EXPECT_EQ(desk.s.stepNo, 2);
    desk.click(2432, 1800);
    ASSERT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.slot(2).p1, (Point{2000, 2000}));
    EXPECT_EQ(desk.slot(2).p2, (Point{2432, 2000}));
    EXPECT_EQ(desk.slot(2).p3, (Point{2432, 1800}));
    EXPECT_EQ(desk.slot(2).t1, "3'-0\"");
}

TEST(LinearDimensionInput, RedrawShowsWhatTheClickPainted)
{
    SnapDesk desk;
    desk.snap(1003, 996);
    desk.snap(1430, 1305);
    desk.ops();
    desk.click(1432, 1200);
    const fake::Ops texts = only(desk.ops(), "text");
    desk.press("Command42"_c);
    desk.ops();
    desk.press("undu"_c);
    EXPECT_TRUE(only(desk.ops(), "text").empty());
    desk.press("redu"_c);
    ASSERT_FALSE(texts.empty());
    EXPECT_EQ(only(desk.ops(), "text"), fake::Ops{texts.back()});
}

} // namespace
} // namespace mirtane
