// A hand that moves the drawing: the middle button, two fingers.

#include "desk.h"

#include "app/drawing/middle_drag.h"
#include "app/files/unsaved_work.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

TEST(MiddleButton, ClicksWithinFourPixelsAndDragsBeyond)
{
    struct Row {
        const char* what;
        double dx, dy;
        bool drags;
    };
    const Row rows[] = {{"at rest", 0, 0, false},
                        {"four to the right", 4, 0, false},
                        {"four up and left", -4, -4, false},
                        {"a little more down", 0, 4.5, true},
                        {"five to the left", -5, 0, true},
                        {"far off", 300, -200, true}};
    for (const Row& row : rows) {
        MiddleDrag hand;
        EXPECT_FALSE(hand.isHeld());
        hand.press(100.5, 700);
        EXPECT_TRUE(hand.isHeld());
        EXPECT_EQ(hand.move(100.5 + row.dx, 700 + row.dy), row.drags) << row.what;
        EXPECT_EQ(hand.release(), !row.drags) << row.what;
        EXPECT_FALSE(hand.isHeld());
    }
}

TEST(MiddleButton, ThatCameBackAfterADragClicksNot)
{
    MiddleDrag hand;
    hand.press(10, 10);
    hand.move(50, 10);
    EXPECT_TRUE(hand.move(10, 10));
    EXPECT_FALSE(hand.release());
    hand.press(10, 10);
    EXPECT_FALSE(hand.move(12, 10));
    EXPECT_TRUE(hand.release());
}

TEST(Drag, BringsWhatWasHeldUnderThePointer)
{
    for (const Scale& view : {Scale{0, 0, 4800, 3200}, Scale{-81000, 5000, 480, 320}}) {
        Desk desk;
        desk.pic1.setScale(view);
        const Point held{view.left + view.width / 4, view.top + view.height / 2};
        const Point to{view.left + view.width / 2, view.top + view.height / 8};
        desk.ops();
        desk.shell.drag(held, to);
        const Scale now = desk.pic1.getScale();
        EXPECT_FLOAT_EQ(now.left, view.left - view.width / 4);
        EXPECT_FLOAT_EQ(now.top, view.top + view.height * 3 / 8);
        EXPECT_EQ(now.width, view.width);
        EXPECT_EQ(desk.s.viewLeft, now.left);
        EXPECT_EQ(desk.s.pointer, std::optional(held));
    }
}

TEST(Drag, LeavesTheStepAndTheRubberBandGoesOn)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.click(1000, 1000);
    desk.move(1600, 1400);
    desk.ops();
    desk.shell.drag({1600, 1400}, {1700, 1500});
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.pickLast, (Point{1600, 1400}));
    EXPECT_EQ(fake::only(desk.ops(), "line").back(), "line 1000 1000 1600 1400");
    desk.down(1, 1600, 1400);
    EXPECT_EQ(desk.last().p2, (Point{1600, 1400}));
}

TEST(Pinch, ZoomsAboutThePointBetweenTheFingers)
{
    Desk desk;
    desk.shell.zoom(2, {1200, 800});
    const Scale now = desk.pic1.getScale();
    EXPECT_EQ(now.width, 2400);
    EXPECT_EQ(now.left, 600);
    EXPECT_EQ(now.top, 400);
    desk.shell.zoom(0, {1200, 800}); // fingers that meet
    EXPECT_EQ(desk.pic1.getScale().width, 2400);
}

struct Drop : testing::Test {
    Drop()
    {
        desk.drawLine(311, 402, 977, 1203);
        desk.saveAs("house");
        desk.press("fil5"_c);
    }
    void drop(const std::string& name, int others) { desk.shell.dropFile("/home/user/" + name, others); }
    std::string said() { return desk.caption("notice"_c); }

    Desk desk;
};

TEST_F(Drop, OfSeveralFilesSaysWhichIsTakenAndHowManyAreNot)
{
    drop("house.mtd", 0);
    EXPECT_EQ(said(), "");
    drop("house.mtd", 1);
    EXPECT_EQ(said(), "1 other file that was dropped with house.mtd was not taken.");
    drop("house.mtd", 14);
    EXPECT_EQ(said(), "14 other files that were dropped with house.mtd were not taken.");
    EXPECT_EQ(desk.s.store.entCount, 2);
    desk.press("notice.Command1"_c);
    EXPECT_EQ(said(), "");
    EXPECT_EQ(desk.s.store.entCount, 2);
}

TEST_F(Drop, SaysItTooWhereUnsavedWorkIsAskedForFirst)
{
    desk.drawLine(100, 200, 700, 533);
    drop("house.mtd", 2);
    EXPECT_EQ(desk.caption("frmfile"_c), "Save Changes");
    desk.press("frmfile.Command2"_c);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(said(), "2 other files that were dropped with house.mtd were not taken.");
    drop("house.mtd", 0);
    EXPECT_EQ(said(), "") << "the next drop is another matter";
}

// The strip tells of the others alone: of this one nobody knows yet what becomes of it.
TEST_F(Drop, DoesNotSayThatAFileWasTakenWhichIsNot)
{
    desk.drawLine(100, 200, 700, 533);
    drop("house.mtd", 3);
    desk.shell.closeForm(ids::fileForm);
    EXPECT_TRUE(hasUnsavedWork(desk.s)) << "the drawing stays";
    EXPECT_EQ(said(), "3 other files that were dropped with house.mtd were not taken.");
    drop("notes.txt", 1);
    EXPECT_TRUE(hasUnsavedWork(desk.s));
    EXPECT_EQ(said(), "1 other file that was dropped with notes.txt was not taken.");
}

} // namespace
} // namespace mirtane
