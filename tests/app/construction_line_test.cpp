#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

struct ConstructionLine : testing::Test {
    void begin()
    {
        desk.press("blank"_c);
        desk.ops();
    }

    Desk desk;
};

TEST_F(ConstructionLine, SuspendsTheRunningFunction)
{
    desk.click(100, 100);
    desk.shell.giveFocus("angle"_c);
    desk.ops();
    desk.press("blank"_c);
    EXPECT_EQ(desk.caption("blank"_c), "Blank/On");
    EXPECT_EQ(desk.s.curFunc, "Blank Line");
    EXPECT_EQ(desk.s.blankSavedFunc, "Line");
    EXPECT_EQ(desk.s.blankStep, 0);
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter ending point of line:)")); // the previous prompt stays
    EXPECT_TRUE(
        fake::only(desk.ops(), "snapshot").empty()); // the rubber band never reaches the clean picture
}

TEST_F(ConstructionLine, LaysConfinedLegsOneBehindTheOther)
{
    begin();
    desk.click(1000, 1000);
    EXPECT_EQ(desk.s.blankStart, (Point{1000, 1000}));
    desk.click(1300, 1010);
    EXPECT_NEAR(desk.s.blankStart.x, 1300.17, 0.01);
    EXPECT_EQ(desk.s.blankStart.y, 1000);
    EXPECT_EQ(desk.s.blankStep, 1);
    EXPECT_EQ(desk.s.mousePos, (Point{1300, 1010}));
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.store.entCount, 1);
}

TEST_F(ConstructionLine, IsConfinedEvenWithOrthoOff)
{
    desk.press("freecurs"_c);
    begin();
    desk.click(1000, 1000);
    desk.click(1000 - 300, 1000 - 400); // up
    EXPECT_EQ(desk.s.blankStart, (Point{1000, 500}));
}

TEST_F(ConstructionLine, ShowsItsLegAsARubberBandOnceItHasBegun)
{
    begin();
    desk.move(500, 500);
    EXPECT_TRUE(desk.ops().empty());
    desk.down(1, 1000, 1000);
    desk.ops();
    desk.move(1000, 1250);
    const fake::Ops expected = {"restoreSnapshot", "line 1000 1000 1000 1250"};
    EXPECT_EQ(desk.ops(), expected);
}

TEST_F(ConstructionLine, LetGoGivesItsLastPointAsTheFirstOfTheFunction)
{
    begin();
    desk.click(1000, 1000);
    desk.click(1300, 1000);
    desk.press("blank"_c);
    EXPECT_EQ(desk.caption("blank"_c), "Blank/Off");
    EXPECT_EQ(desk.s.curFunc, "Line");
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.pickFirst, (Point{1300, 1000}));
    EXPECT_EQ(desk.s.mousePos, (Point{1300, 1000}));
    EXPECT_EQ(desk.s.ptA, (Point{1300, 1000}));
}

TEST_F(ConstructionLine, LetGoGivesALaterPointPastOrtho)
{
    desk.click(100, 100);
    begin();
    desk.click(700, 555);
    desk.press("blank"_c);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.slot(1).p1, (Point{100, 100}));
    EXPECT_EQ(desk.slot(1).p2, (Point{700, 555}));
    EXPECT_EQ(desk.text("memy"_c), "000.002"); // the insertion's own, one behind: a release runs no gauge
}

TEST_F(ConstructionLine, LetGoOnTheFirstPointStoresALineOfNoLength)
{
    desk.click(100, 100);
    begin();
    desk.click(100, 100);
    desk.press("blank"_c);
    EXPECT_EQ(desk.s.store.entCount, 2); // no equality test here
}

TEST_F(ConstructionLine, LetGoWithNoPointTakenGivesTheOldStart)
{
    desk.s.blankStart = {33, 44};
    begin();
    desk.press("blank"_c);
    EXPECT_EQ(desk.s.stepNo, 1);
    EXPECT_EQ(desk.s.pickFirst, (Point{33, 44}));
}

TEST_F(ConstructionLine, TakesATypedLeg)
{
    begin();
    desk.click(1000, 1000);
    desk.move(1000, 600); // up
    desk.type("10");
    EXPECT_EQ(desk.focused(), "entry");
    desk.enter();
    EXPECT_EQ(desk.s.blankStart, (Point{1000, 880}));
    EXPECT_EQ(desk.s.blankStep, 1);
    EXPECT_EQ(desk.s.curFunc, "Blank Line");
    EXPECT_EQ(desk.text("entry"_c), "");
}

TEST_F(ConstructionLine, HasTheFocusOnTheDrawingAfterATypedLeg)
{
    begin();
    desk.click(1000, 1000);
    desk.move(1000, 600);
    desk.type("10");
    desk.enter();
    EXPECT_EQ(desk.focused(), "pic1");
}

TEST_F(ConstructionLine, RunsBackwardAtANegativeTypedDistance)
{
    begin();
    desk.click(1000, 1000);
    desk.move(1300, 1000);
    desk.type("-5");
    desk.enter();
    EXPECT_EQ(desk.s.blankStart, (Point{940, 1000}));
    EXPECT_EQ(desk.s.blankStep, 1);
}

TEST_F(ConstructionLine, LosesKeysBeforeItHasBegun)
{
    desk.click(100, 100);
    begin();
    desk.type("5");
    EXPECT_EQ(desk.focused(), "pic1");
}

TEST_F(ConstructionLine, EndsWithARightClickAndTheSuspendedFunctionWithIt)
{
    desk.press("Command9"_c);
    desk.click(100, 100);
    begin();
    desk.click(1000, 1000);
    desk.cancel();
    EXPECT_EQ(desk.s.curFunc, "Polygon");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.caption("blank"_c), "Blank/Off");
    desk.press("blank"_c);
    EXPECT_EQ(desk.caption("blank"_c), "Blank/On");
}

TEST_F(ConstructionLine, TakesTheLeftButtonAlone)
{
    begin();
    desk.down(4, 1000, 1000);
    EXPECT_EQ(desk.s.blankStep, 0);
    EXPECT_EQ(desk.s.stepNo, 0);
}

TEST_F(ConstructionLine, DisarmsASnapAtEachPoint)
{
    begin();
    desk.s.controls["snapbox"_c].text = "sp";
    desk.s.controls["snaplab"_c].caption = "Snap Point is on:";
    desk.click(1000, 1000);
    EXPECT_EQ(desk.text("snapbox"_c), "");
    EXPECT_EQ(desk.caption("snaplab"_c), "");
}

TEST_F(ConstructionLine, IsForgottenWhenAnotherFunctionStarts)
{
    begin();
    desk.press("Command8"_c);
    EXPECT_EQ(desk.caption("blank"_c), "Blank/Off");
    EXPECT_EQ(desk.s.curFunc, "Point");
    desk.click(50, 60);
    EXPECT_EQ(desk.slot(1).kind, Kind::point);
}

} // namespace
} // namespace mirtane
