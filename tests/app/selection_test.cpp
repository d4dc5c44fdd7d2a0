#include "selection_lines.h"

#include <gmock/gmock.h>

namespace mirtane {
namespace {

using fake::Desk;

constexpr const char* hint = "Right click to display edits:";

using SelectionFunctions = fake::SelectionLines;
using ObjectSelect = fake::SelectionLines;
using SelectLast = fake::SelectionLines;
using WindowSelect = fake::SelectionLines;

TEST_F(SelectionFunctions, EachStarterGivesTheHintTheEditListAndItsPrompt)
{
    struct Row {
        ControlId starter;
        const char* function;
        const char* prompt;
    };
    const Row rows[] = {
        {"Command20"_c, "Object Select", "(Click near object:)"},
        {"Command17"_c, "Object Select", "(Click near object:)"},
        {"Command19"_c, "Window Select", "(Place window around objects:)"},
        {"Command18"_c, "Window Select Filtered", "(Place window around objects:)"},
    };
    for (const Row& row : rows) {
        Desk own;
        own.click(100, 100);
        own.shell.giveFocus("List1"_c);
        own.press(row.starter);
        EXPECT_EQ(own.text("entry"_c), hint) << row.function;
        EXPECT_EQ(own.caption("Label3"_c), "Edit Functions") << row.function;
        EXPECT_EQ(own.s.controls["List1"_c].rows, fake::editRows) << row.function;
        EXPECT_EQ(own.s.curFunc, row.function);
        EXPECT_EQ(own.s.baseFunc, row.function);
        EXPECT_EQ(own.s.stepNo, 0) << row.function;
        EXPECT_EQ(own.title(), fake::titleOf(std::string(row.function) + row.prompt));
        EXPECT_EQ(own.focused(), "pic1") << row.function;
    }
}

TEST_F(SelectionFunctions, StartingTakesTheRubberBandAway)
{
    desk.press("Command1"_c);
    desk.click(100, 100);
    desk.move(700, 100);
    desk.ops();
    desk.press("Command20"_c);
    EXPECT_THAT(desk.ops(), testing::IsSupersetOf({std::string("clear"), std::string("restoreSnapshot")}));
}

TEST_F(SelectionFunctions, OutlivesEverythingButAnotherBaseFunction)
{
    struct Row {
        const char* what;
        void (*act)(Desk& d);
    };
    const Row rows[] = {
        {"window select", [](Desk& d) { d.press("Command19"_c); }},
        {"filtered window select", [](Desk& d) { d.press("Command18"_c); }},
        {"object select again", [](Desk& d) { d.press("Command20"_c); }},
        {"zoom all", [](Desk& d) { d.press("Command42"_c); }},
        {"zoom out", [](Desk& d) { d.press("Command44"_c); }},
        {"zoom window",
         [](Desk& d) {
             d.press("Command43"_c);
             d.click(500, 500);
             d.click(2500, 1500);
         }},
        {"panning", [](Desk& d) { d.shell.keyDown(39); }},
        {"a field",
         [](Desk& d) {
             d.press("angle"_c);
             d.type("45");
             d.enter();
         }},
        {"ortho", [](Desk& d) { d.press("freecurs"_c); }},
        {"a colour", [](Desk& d) { d.press("lw3"_c); }},
        {"a snap", [](Desk& d) { d.press("Command35"_c); }},
        {"the filter", [](Desk& d) { d.press("flt1"_c); }},
        {"a layer menu", [](Desk& d) { d.press("ly3"_c); }},
        {"the edits", [](Desk& d) { d.cancel(); }},
        {"an edit", [](Desk& d) { d.shell.clickRow("List1"_c, 3); }},
    };
    for (const Row& row : rows) {
        Desk own;
        own.drawLine(1000, 1000, 2000, 1000);
        own.press("Command20"_c);
        own.click(1500, 1000);
        ASSERT_EQ(own.stat(1), Stat::sel) << row.what;
        row.act(own);
        EXPECT_EQ(own.stat(1), Stat::sel) << row.what;
    }
}

TEST_F(SelectionFunctions, DiesWithAnotherBaseFunctionAndIsRepainted)
{
    desk.press("Command20"_c);
    pick(1);
    pick(2);
    setText(desk.s.controls["entry"_c], hint);
    desk.ops();
    desk.press("Command9"_c);
    EXPECT_EQ(selected(), "");
    EXPECT_EQ(desk.text("entry"_c), "");
    EXPECT_EQ(fake::marks(desk.ops()).size(), 3U);
}

TEST_F(SelectionFunctions, DiesAlsoWhenTheFunctionBeforeTheSelectionIsTakenUpAgain)
{
    desk.press("Command20"_c);
    pick(1);
    desk.press("Command1"_c);
    EXPECT_EQ(selected(), "");
}

TEST_F(ObjectSelect, AClickMarksTheNearestAndASecondUnmarksIt)
{
    desk.press("Command20"_c);
    desk.click(1500, 1060); // 60 from line 1, 140 from line 2; within 24 pixels of 4 units
    EXPECT_EQ(selected(), "1");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.text("entry"_c), ""); // the hint is gone with the first click
    pick(3);
    EXPECT_EQ(selected(), "1 3");
    pick(1);
    EXPECT_EQ(selected(), "3");
}

TEST_F(ObjectSelect, PaintsWhatIsSelectedDottedInWhite)
{
    desk.press("lw6"_c);
    desk.drawLine(1000, 1600, 2000, 1600);
    desk.press("Command20"_c);
    desk.ops();
    desk.click(1500, 1600);
    const fake::Ops ops = desk.ops();
    const auto line = std::ranges::find(ops, "line 1000 1600 2000 1600");
    ASSERT_NE(line, ops.end());
    const fake::Ops before(ops.begin(), line);
    EXPECT_EQ(fake::only(before, "setColor").back(), "setColor 16777215");
    EXPECT_EQ(fake::only(before, "setStyle").back(), "setStyle 2");
}

TEST_F(ObjectSelect, AMissChangesAndRepaintsNothing)
{
    desk.press("Command20"_c);
    pick(2);
    desk.ops();
    desk.click(1500, 2000);
    EXPECT_EQ(selected(), "2");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.text("entry"_c), "");
    EXPECT_TRUE(fake::marks(desk.ops()).empty());
}

TEST_F(ObjectSelect, ALineIsNotPickedBeyondItsEnds)
{
    desk.press("Command20"_c);
    desk.click(2004, 1000);
    EXPECT_EQ(selected(), "");
    desk.click(1996, 1000);
    EXPECT_EQ(selected(), "1");
}

TEST_F(ObjectSelect, NeitherSnapsNorOrthoRunAndAnArmedSnapWaits)
{
    desk.press("Command20"_c);
    desk.press("Command35"_c);
    desk.shell.keyDown(17);
    desk.click(1500, 1010);
    EXPECT_EQ(selected(), "1");
    EXPECT_EQ(desk.s.pickFirst, (Point{1500, 1010}));
    EXPECT_EQ(desk.text("snapbox"_c), "sp");
    EXPECT_EQ(desk.caption("snaplab"_c), "Snap Point is on:");
    desk.shell.keyUp(17);
    desk.press("Command1"_c);
    desk.click(1003, 1002);
    EXPECT_EQ(desk.s.pickFirst, (Point{1000, 1000}));
    EXPECT_EQ(desk.text("snapbox"_c), "");
}

TEST_F(ObjectSelect, TheMiddleButtonPicksToo)
{
    desk.press("Command20"_c);
    desk.down(4, 1500, 1000);
    EXPECT_EQ(selected(), "1");
    EXPECT_EQ(desk.s.stepNo, 0);
}

TEST_F(ObjectSelect, RemembersTheRawClickInTheFifthPairOfALineButNotWhenUnmarking)
{
    desk.press("Command20"_c);
    desk.click(1234, 1020);
    EXPECT_EQ(desk.slot(1).p5, (Point{1234, 1020}));
    desk.click(1777, 1010);
    EXPECT_EQ(selected(), "");
    EXPECT_EQ(desk.slot(1).p5, (Point{1234, 1020}));
}

TEST_F(ObjectSelect, WhatIsHiddenOrDeletedIsNotPicked)
{
    desk.s.store.setStat(1, Stat::off);
    desk.s.store.setStat(2, Stat::out);
    desk.press("Command20"_c);
    pick(1);
    pick(2);
    EXPECT_EQ(desk.stat(1), Stat::off);
    EXPECT_EQ(desk.stat(2), Stat::out);
}

TEST_F(ObjectSelect, KeysOnTheDrawingAreLost)
{
    desk.press("Command20"_c);
    pick(1);
    desk.type("5");
    EXPECT_EQ(desk.text("entry"_c), "");
    EXPECT_EQ(desk.focused(), "pic1");
}

TEST_F(SelectionFunctions, ARightClickWithNothingSelectedSaysSoAndShowsNoForm)
{
    for (const ControlId starter : {"Command20"_c, "Command19"_c, "Command18"_c}) {
        desk.press(starter);
        desk.press("ly3"_c);
        desk.cancel();
        EXPECT_EQ(desk.text("entry"_c), "Nothing selected!");
        EXPECT_FALSE(desk.visible("frmedit"_c));
        EXPECT_EQ(desk.caption("Label3"_c), "Set Working Layer"); // the list is left alone
    }
}

TEST_F(SelectionFunctions, ARightClickShowsTheEditsAndTheirListAgain)
{
    desk.press("Command20"_c);
    pick(2);
    desk.press("ly3"_c);
    desk.cancel();
    EXPECT_TRUE(desk.visible("frmedit"_c));
    EXPECT_EQ(desk.caption("frmedit"_c), "Edits");
    EXPECT_EQ(desk.caption("Label3"_c), "Edit Functions");
    EXPECT_EQ(desk.s.controls["List1"_c].rows, fake::editRows);
    EXPECT_EQ(selected(), "2");
    EXPECT_EQ(desk.s.curFunc, "Object Select");
}

TEST_F(SelectionFunctions, InOtherFunctionsARightClickShowsNoEdits)
{
    desk.s.store.setStat(1, Stat::sel);
    desk.cancel();
    EXPECT_FALSE(desk.visible("frmedit"_c));
    EXPECT_EQ(desk.text("entry"_c), "");
    EXPECT_EQ(desk.focused(), "pic1");
}

TEST_F(SelectionFunctions, WithZoomWindowOnARightClickEndsOnlyTheZoom)
{
    desk.press("Command20"_c);
    pick(1);
    desk.press("Command43"_c);
    desk.cancel();
    EXPECT_FALSE(desk.visible("frmedit"_c));
    EXPECT_EQ(desk.title(), fake::titleOf("Object Select(Click near object:)"));
    desk.cancel();
    EXPECT_TRUE(desk.visible("frmedit"_c));
}

TEST_F(SelectLast, MarksWhatTheLastActionMadeAndGoesOnAsObjectSelect)
{
    desk.press("Command17"_c);
    EXPECT_EQ(selected(), "3");
    EXPECT_EQ(fake::marks(desk.ops()).size(), 3U);
    pick(1);
    EXPECT_EQ(selected(), "1 3");
    desk.cancel();
    EXPECT_TRUE(desk.visible("frmedit"_c));
}

// The text is marked by its function and let go of first, and it is in the picture again.
TEST_F(SelectLast, FromTheMiddleOfATextEditMarksTheLastAndShowsTheText)
{
    desk.draw(fake::text({3000, 2000}, "hello"), Stat::on);
    desk.drawLine(100, 2500, 300, 2540);
    desk.press("Command16"_c);
    desk.click(3000, 2000);
    ASSERT_EQ(desk.stat(4), Stat::sel);
    desk.type("x");
    desk.ops();
    desk.press("Command17"_c);
    EXPECT_EQ(selected(), "5");
    const fake::Ops ops = desk.ops();
    ASSERT_FALSE(fake::only(ops, "text").empty());
    EXPECT_TRUE(fake::only(ops, "text").back().ends_with(" hello"));
    desk.cancel();
    EXPECT_TRUE(desk.visible("frmedit"_c));
}

// What the edit has made is the last, and its words are drawn in the pen of the selection.
TEST_F(SelectLast, OfATextThatWasEditedShowsIt)
{
    for (const char* key : {"", "!"}) {
        desk.draw(fake::text({3000, 2000}, "hello"), Stat::on);
        desk.press("Command16"_c);
        desk.click(3000, 2000);
        desk.type(key);
        desk.enter();
        const std::int32_t edited = desk.s.store.entCount - 1;
        desk.ops();
        desk.press("Command17"_c);
        EXPECT_EQ(desk.stat(edited), Stat::sel);
        const fake::Ops words = fake::only(desk.ops(), "text");
        ASSERT_FALSE(words.empty()) << key;
        EXPECT_TRUE(words.back().ends_with(std::string(" hello") + key)) << words.back();
        desk.shell.clickRow("List1"_c, 13);
    }
}

TEST_F(SelectLast, LeavesEarlierMarks)
{
    desk.press("Command20"_c);
    pick(1);
    desk.press("Command17"_c);
    EXPECT_EQ(selected(), "1 3");
}

TEST_F(SelectLast, OfAPolygonIsItsLastSide)
{
    desk.press("freecurs"_c);
    desk.press("Command9"_c);
    desk.click(3000, 1000);
    desk.click(3000, 1400);
    ASSERT_EQ(desk.s.store.entCount, 7);
    desk.press("Command17"_c);
    EXPECT_EQ(selected(), "6");
}

TEST_F(SelectLast, AfterAnUndoFindsNothingAndAfterARedoWhatCameBack)
{
    desk.press("undu"_c);
    desk.press("Command17"_c);
    EXPECT_EQ(selected(), "");
    desk.press("redu"_c);
    desk.press("Command17"_c);
    EXPECT_EQ(selected(), "3");
}

TEST_F(SelectLast, AfterADeleteFindsNothingAndAfterItsUndoAllThatCameBack)
{
    desk.press("Command20"_c);
    pick(1);
    pick(2);
    desk.shell.clickRow("List1"_c, 13);
    desk.press("Command17"_c);
    EXPECT_EQ(selected(), "");
    desk.press("undu"_c);
    desk.press("Command17"_c);
    EXPECT_EQ(selected(), "1 2");
}

TEST_F(SelectLast, WhatIsOnAHiddenLayerStaysHidden)
{
    desk.s.store.setStat(3, Stat::off);
    desk.press("Command17"_c);
    EXPECT_EQ(desk.stat(3), Stat::off);
    EXPECT_EQ(selected(), "");
}

TEST_F(SelectLast, OfAnEmptyDrawingSelectsNothing)
{
    Desk empty;
    empty.press("Command17"_c);
    EXPECT_EQ(empty.s.curFunc, "Object Select");
    empty.cancel();
    EXPECT_EQ(empty.text("entry"_c), "Nothing selected!");
}

TEST_F(WindowSelect, TwoCornersSelectWhatLiesWhollyInside)
{
    desk.press("Command19"_c);
    desk.click(900, 900);
    EXPECT_EQ(desk.title(), fake::titleOf("Window Select(Enter opposite corner of window:)"));
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.windowStep, 1);
    desk.click(2000, 1200); // the edges count
    EXPECT_EQ(selected(), "1 2");
    EXPECT_EQ(desk.title(), fake::titleOf("Window Select(Place window around objects:)"));
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.windowStep, 0);
}

TEST_F(WindowSelect, AnyTwoOppositeCornersDo)
{
    const std::pair<Point, Point> corners[] = {{{900, 900}, {2100, 1300}},
                                               {{2100, 1300}, {900, 900}},
                                               {{900, 1300}, {2100, 900}},
                                               {{2100, 900}, {900, 1300}}};
    for (const auto& [from, to] : corners) {
        changeStat(desk.s.store, Stat::sel, Stat::on);
        desk.press("Command19"_c);
        desk.click(from.x, from.y);
        desk.click(to.x, to.y);
        EXPECT_EQ(selected(), "1 2");
        EXPECT_EQ(desk.s.window1, (Point{900, 900}));
        EXPECT_EQ(desk.s.window2, (Point{2100, 1300}));
    }
}

TEST_F(WindowSelect, WhatIsPartlyOutsideIsNotSelected)
{
    desk.press("Command19"_c);
    desk.click(900, 900);
    desk.click(1999, 1500);
    EXPECT_EQ(selected(), "");
}

TEST_F(WindowSelect, FurtherWindowsAddAndNeverUnmark)
{
    desk.press("Command19"_c);
    for (const float y : {950.0F, 1350.0F, 950.0F}) {
        desk.click(900, y);
        desk.click(2100, y + 100);
    }
    EXPECT_EQ(selected(), "1 3");
}

TEST_F(WindowSelect, DrawsItsBandAndRepaintsAtTheEnd)
{
    desk.press("Command19"_c);
    desk.ops();
    desk.move(500, 500);
    EXPECT_TRUE(desk.ops().empty());
    desk.click(900, 900);
    desk.ops();
    desk.move(2100, 1300);
    EXPECT_EQ(fake::only(desk.ops(), "line").size(), 4U);
    desk.down(1, 2100, 1300);
    const fake::Ops ops = desk.ops();
    EXPECT_EQ(fake::marks(ops).size(), 3U);
    EXPECT_EQ(fake::only(ops, "snapshot").size(), 1U);
}

TEST_F(WindowSelect, KnowsNoSnapNoOrthoAndNoMiddleButton)
{
    desk.press("Command19"_c);
    desk.press("Command35"_c);
    desk.shell.keyDown(17);
    desk.click(1010, 990);
    EXPECT_EQ(desk.s.window1, (Point{1010, 990}));
    desk.down(4, 1500, 1500);
    EXPECT_EQ(desk.s.windowStep, 1);
    desk.click(2100, 1500);
    EXPECT_EQ(selected(), "");
    EXPECT_EQ(desk.text("snapbox"_c), "sp");
    EXPECT_EQ(desk.caption("snaplab"_c), "Snap Point is on:");
}

TEST_F(WindowSelect, ARightClickAfterOneCornerGivesTheWindowUp)
{
    desk.press("Command19"_c);
    desk.click(900, 900);
    desk.cancel();
    EXPECT_EQ(desk.s.windowStep, 0);
    EXPECT_EQ(desk.text("entry"_c), "Nothing selected!");
    EXPECT_EQ(desk.title(), fake::titleOf("Window Select(Place window around objects:)"));
    desk.click(2100, 1300);
    EXPECT_EQ(desk.s.windowStep, 1);
    EXPECT_EQ(selected(), "");
}

TEST_F(WindowSelect, AnotherFunctionForgetsTheCorner)
{
    desk.press("Command19"_c);
    desk.click(900, 900);
    desk.press("Command20"_c);
    desk.press("Command19"_c);
    desk.click(2100, 1300);
    EXPECT_EQ(desk.s.windowStep, 1);
    EXPECT_EQ(selected(), "");
}

TEST_F(WindowSelect, AZoomBetweenTwoWindowsDoesNotEndIt)
{
    desk.press("Command19"_c);
    desk.press("Command43"_c);
    desk.click(500, 500);
    desk.click(2900, 2100);
    EXPECT_EQ(selected(), "");
    EXPECT_EQ(desk.s.viewLeft, 500);
    EXPECT_EQ(desk.title(), fake::titleOf("Window Select(Place window around objects:)"));
    desk.click(900, 900);
    desk.click(2100, 1300);
    EXPECT_EQ(selected(), "1 2");
}

TEST_F(WindowSelect, KindsThatAreNeverPaintedAreNeverSelected)
{
    const std::int16_t kinds[] = {0, 11, 20, 24, 25, 30, 35};
    for (const std::int16_t kind : kinds) {
        EntityRecord r = desk.slot(1);
        r.kind = Kind{kind};
        desk.s.store.setRecord(1, r);
        for (const ControlId starter : {"Command19"_c, "Command18"_c}) {
            desk.press(starter);
            desk.click(900, 900);
            desk.click(2100, 1100);
            EXPECT_EQ(selected(), "") << kind;
        }
        desk.press("Command20"_c);
        pick(1);
        EXPECT_EQ(selected(), "") << kind;
    }
}

} // namespace
} // namespace mirtane
