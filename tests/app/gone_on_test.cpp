// What is begun while a dialog stands or a list is shown, what is not taken over, and how it goes on after.

#include "half_done.h"

namespace mirtane {
namespace {

using namespace fake;

// What was begun before the dialog came up is ended when it is confirmed.
TEST(TakenOverMeanwhile, WhatIsBegunEndsWhollyWhenTheDialogIsConfirmed)
{
    for (const Moment& moment : moments) {
        Office office;
        moment.begin(office);
        office.press("fil7"_c);
        office.lookAtScreen();
        office.press(confirm);
        ASSERT_TRUE(office.disk.files.contains("/home/user/untitled.mtd")) << moment.what;
        expectNothingBegun(office, moment.what);
        expectNothingLeftOnThePicture(office, moment.what);
    }
}

TEST(TakenOverByAFont, WhatIsBegunEndsWholly)
{
    for (const Moment& moment : moments) {
        Office office;
        office.select(office.textSlot);
        office.press("tk14"_c);
        moment.begin(office);
        if (office.caption("Label3"_c) != "Change Selected Font") continue; // a list of its own came up
        office.row(0);
        office.enter();
        expectNothingBegun(office, moment.what);
    }
}

TEST(NothingIsTakenOver, WhereAListIsEmptyOrNothingIsSelected)
{
    for (const ControlId menu : {"ass3"_c, "ass9"_c, "ht3"_c, "ht7"_c, "ml5"_c, "fil9"_c, "dd4"_c}) {
        Desk desk;
        desk.click(300, 410);
        desk.move(700, 433);
        desk.ops();
        desk.press(menu);
        EXPECT_EQ(desk.s.stepNo, 1) << menu.row().name;
        EXPECT_TRUE(desk.ops().empty()) << menu.row().name;
    }
}

// The text under edit is marked by its function, and a page or file of it alone was not asked for.
TEST(NothingIsTakenOver, ByASaveOfTheTextUnderEdit)
{
    for (const ControlId menu : {"fil9"_c, "dd4"_c}) {
        Office office;
        office.press("Command16"_c);
        office.click(2000, 2000);
        ASSERT_EQ(office.stat(office.textSlot), Stat::sel);
        office.press(menu);
        EXPECT_FALSE(office.visible("frmfile"_c));
        EXPECT_EQ(office.text("entry"_c), "Nothing Selected!");
        EXPECT_EQ(office.s.stepNo, 1);
    }
}

TEST(TakenOverAndGoneOn, ASelectionThatWasAboutToMoveIsPrintedOrEditedAnew)
{
    for (const ControlId menu : {"picset"_c, "ht3"_c, "ass9"_c, "ml5"_c}) {
        Office office;
        startEdit(office, "frmedit.Command8"_c);
        office.click(300, 410);
        office.move(911, 215);
        office.press(menu);
        EXPECT_EQ(office.stat(2), Stat::sel) << menu.row().name;
        if (menu == "picset"_c) continue;
        office.cancel();
        EXPECT_TRUE(office.visible("frmedit"_c)) << menu.row().name;
    }
}

// A line that ended goes on from its end: the click there is the first of a new one.
TEST(TakenOverAndGoneOn, TheFirstClickAfterwardsMayBeTheLastOneBefore)
{
    for (const ControlId menu : {"ml9"_c, "ht3"_c, "ass21"_c}) {
        Office office;
        office.click(300, 410);
        office.down(1, 700, 433);
        const Point end = office.s.pickLast;
        office.press(menu);
        office.click(end.x, end.y);
        EXPECT_EQ(office.s.stepNo, 1) << menu.row().name;
    }
}

// A hatch saved between two boundaries is still the one that is placed.
TEST(TakenOverAndGoneOn, APlacedHatchStaysTheFunctionWhenOneIsSaved)
{
    Office office;
    chooseFromList(office, "ht3"_c);
    office.click(300, 410);
    office.click(700, 433);
    chooseFromList(office, "ht7"_c);
    office.press(confirm);
    EXPECT_EQ(office.s.curFunc, "Place Hatch");
    EXPECT_EQ(office.caption("promptlab"_c), "(Enter the first point on the boundary:)");
    office.click(300, 410);
    EXPECT_EQ(office.caption("promptlab"_c), "(Enter the next point on the boundary:)");
    EXPECT_EQ(office.s.boundary[0].from, (Point{300, 410}));
}

} // namespace
} // namespace mirtane
