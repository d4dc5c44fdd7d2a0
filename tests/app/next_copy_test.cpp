// Each copy of an associate but the first takes two clicks. The first of the two only brings the next copy to
// the pointer.

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

// An associate of one line, of which a first copy is placed, beside lines to snap to.
struct NextCopy : testing::Test {
    NextCopy()
    {
        desk.press("freecurs"_c);
        desk.drawLine(300, 500, 340, 520);
        desk.drawLine(2013, 1011, 2613, 1311); // slot 2
        desk.drawLine(2113, 1611, 2313, 811);  // slot 3 crosses it
        desk.s.store.setStat(1, Stat::sel);
        desk.press("ass7"_c);
        desk.type("door");
        desk.enter();
        desk.click(300, 500);
        desk.press("ass3"_c);
        desk.shell.clickRow("List1"_c, 0);
        desk.click(900, 2500);
        EXPECT_EQ(desk.s.curFunc, "Place Associate");
        EXPECT_EQ(desk.s.stepNo, 0);
        placed = desk.s.store.entCount;
    }

    Desk desk;
    std::int32_t placed = 0;
};

struct ArmedRow {
    ControlId button;
    Point aim, to;
};

TEST_F(NextCopy, IsSnappedByTheSnapThatWasArmedBeforeItWasAskedFor)
{
    const ArmedRow rows[] = {
        {"Command35"_c, {2014, 1012}, {2013, 1011}},
        {"Command35"_c, {2612, 1310}, {2613, 1311}},
        {"Command21"_c, {2314, 1160}, {2313, 1161}},
        {"Command38"_c, {2164, 1085}, {2163, 1086}},
    };
    for (const ArmedRow& row : rows) {
        desk.press(row.button);
        const std::string armed = desk.text("snapbox"_c);
        const std::string label = desk.caption("snaplab"_c);
        ASSERT_FALSE(armed.empty());
        desk.click(row.aim.x, row.aim.y);
        EXPECT_EQ(desk.s.stepNo, 1);
        EXPECT_EQ(desk.text("snapbox"_c), armed);
        EXPECT_EQ(desk.caption("snaplab"_c), label);
        EXPECT_EQ(desk.s.store.entCount, placed) << "it is only asked for";
        desk.click(row.aim.x, row.aim.y);
        ASSERT_EQ(desk.s.store.entCount, ++placed);
        EXPECT_EQ(desk.slot(placed - 1).p1, row.to);
        EXPECT_EQ(desk.text("snapbox"_c), "");
        EXPECT_EQ(desk.caption("snaplab"_c), "");
    }
}

TEST_F(NextCopy, ShowsNoMarkForTheClickWhosePlaceIsNotUsed)
{
    desk.press("Command35"_c);
    desk.move(2014, 1012);
    EXPECT_FALSE(desk.s.snapMark);
    desk.down(1, 2014, 1012);
    desk.move(2015, 1012);
    ASSERT_TRUE(desk.s.snapMark);
}

// The list has brought it: the first click places it.
TEST_F(NextCopy, FromTheListIsPlacedAndSnappedAtOnce)
{
    desk.press("ass3"_c);
    desk.shell.clickRow("List1"_c, 0);
    desk.press("Command35"_c);
    desk.click(2014, 1012);
    ASSERT_EQ(desk.s.store.entCount, placed + 1);
    EXPECT_EQ(desk.slot(placed).p1, (Point{2013, 1011}));
}

} // namespace
} // namespace mirtane
