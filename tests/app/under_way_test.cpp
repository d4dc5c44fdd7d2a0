// What is under way stays seen and true while buttons and menus are used beside it.

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

TEST(UnderWay, ATextHalfTypedIsSeenAfterWhateverRepaints)
{
    const ControlId repainting[] = {"undu"_c,      "redu"_c,      "ly5"_c,      "ly6"_c,
                                    "Command42"_c, "Command44"_c, "Command43"_c};
    for (const ControlId button : repainting) {
        Desk desk;
        desk.drawLine(100, 100, 400, 137);
        desk.press("undu"_c);
        if (button == "undu"_c) desk.press("redu"_c);
        desk.press("Command15"_c);
        desk.click(1000, 1000);
        desk.type("hello");
        desk.ops();
        desk.press(button);
        EXPECT_FALSE(fake::only(desk.ops(), "text").empty()) << button.row().name;
        EXPECT_EQ(desk.s.textLength, 5) << button.row().name;
    }
}

TEST(UnderWay, ATextHalfTypedIsSeenAfterAZoomWindowThatIsGivenUp)
{
    Desk desk;
    desk.press("Command15"_c);
    desk.click(1000, 1000);
    desk.type("hello");
    desk.press("Command43"_c);
    desk.click(200, 300);
    desk.ops();
    desk.cancel();
    EXPECT_FALSE(fake::only(desk.ops(), "text").empty());
}

TEST(UnderWay, AReleasedConstructionLineGivesTheTitleBack)
{
    Desk desk;
    desk.click(300, 300);
    desk.press("blank"_c);
    desk.click(350, 350);
    desk.move(400, 367);
    desk.type("5");
    desk.backspace();
    desk.enter();
    desk.press("blank"_c);
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter ending point of line:)"));
}

TEST(UnderWay, AReleasedConstructionLineIsNoCornerOfAWindow)
{
    Desk desk;
    desk.press("Command19"_c);
    desk.press("blank"_c);
    desk.click(350, 350);
    desk.press("blank"_c);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.windowStep, 0);
    EXPECT_EQ(desk.caption("promptlab"_c), "(Place window around objects:)");
}

TEST(UnderWay, AClickBesideTheDialogOfAChangeLeavesNoFilter)
{
    Desk desk;
    desk.drawLine(300, 300, 500, 317);
    desk.press("Command17"_c);
    desk.cancel();
    desk.press("frmedit.Command10"_c);
    ASSERT_TRUE(desk.visible("frmfilter"_c));
    desk.press("frmfilter.cu5"_c);
    desk.click(900, 700);
    EXPECT_FALSE(desk.visible("frmfilter"_c));
    EXPECT_EQ(desk.s.filterColor, 0);
    EXPECT_EQ(desk.text("frmfilter.Text3"_c), "All");
}

TEST(UnderWay, TheFieldOfTheOrthoAngleShowsTheUsersOwnWhileAnEllipseBorrowsIt)
{
    Desk desk;
    desk.press("freecurs"_c);
    desk.press("Command7"_c);
    desk.click(300, 300);
    desk.click(700, 433);
    ASSERT_NE(desk.s.orthoAngle, 0);
    desk.shell.giveFocus("angle"_c);
    desk.shell.giveFocus("pic1"_c);
    EXPECT_EQ(desk.text("angle"_c), "000.000");
}

} // namespace
} // namespace mirtane
