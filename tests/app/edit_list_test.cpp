#include "edits_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::EditFunction;
using fake::editFunctions;
using fake::editRows;
using fake::EditsDesk;

TEST(EditsForm, ComesUpOnARightClickWithItsButtonsAndTips)
{
    EditsDesk desk;
    desk.selectAll();
    desk.press("ly3"_c); // the list shows layers
    desk.cancel();
    EXPECT_TRUE(desk.visible("frmedit"_c));
    EXPECT_EQ(desk.caption("frmedit"_c), "Edits");
    EXPECT_EQ(desk.mode(), "Edit Functions");
    EXPECT_EQ(desk.rows(), editRows);
    for (const EditFunction& function : editFunctions)
        EXPECT_EQ(desk.caption(function.button), function.name);
    EXPECT_EQ(ControlId("frmedit.Command10"_c).row().tip,
              "Change the layer, color or style of an object or objects.");
}

TEST(EditStarters, AreTheSameFromTheListAndFromTheForm)
{
    for (const EditFunction& function : editFunctions) {
        for (const bool fromForm : {false, true}) {
            EditsDesk desk;
            desk.selectAll();
            setText(desk.s.controls["Text3"_c], "left over");
            if (fromForm)
                desk.pressEdit(function.button);
            else
                desk.pick(function.row);
            EXPECT_EQ(desk.s.curFunc, function.name) << fromForm;
            EXPECT_EQ(desk.s.baseFunc, "Window Select") << function.name;
            EXPECT_EQ(desk.s.stepNo, function.firstStep) << function.name;
            EXPECT_EQ(desk.s.editPending, 1) << function.name;
            EXPECT_EQ(desk.title(), fake::titleOf(std::string(function.name) + function.prompt));
            const bool asks = std::string_view(function.name) == "Fillet"; // for a radius
            EXPECT_EQ(desk.text("Text3"_c), asks ? "6" : "") << function.name;
            EXPECT_FALSE(desk.visible("frmedit"_c)) << function.name;
            EXPECT_EQ(desk.focused(), "pic1") << function.name;
            EXPECT_EQ(desk.mode(), "Edit Functions") << function.name;
            EXPECT_EQ(desk.rows(), editRows) << function.name;
            EXPECT_EQ(desk.stat(1), Stat::sel) << function.name;
        }
    }
}

TEST(EditList, WithNothingSelectedSaysSoForEveryRow)
{
    for (int row = 0; row < 14; ++row) {
        EditsDesk desk;
        desk.press("Command20"_c);
        setText(desk.s.controls["entry"_c], "");
        const std::int32_t group = desk.s.log.undoGroupNext;
        desk.pick(row);
        EXPECT_EQ(desk.text("entry"_c), "Nothing selected!") << row;
        EXPECT_EQ(desk.s.curFunc, "Object Select") << row;
        EXPECT_EQ(desk.s.editPending, 0) << row;
        EXPECT_FALSE(desk.visible("frmfilter"_c)) << row;
        EXPECT_EQ(desk.mode(), "Edit Functions") << row;
        EXPECT_EQ(desk.s.log.undoGroupNext, group) << row;
        EXPECT_EQ(desk.s.savedCount, 1) << row;
    }
}

TEST(EditsForm, WithNothingSelectedSaysSoAndStays)
{
    for (int number = 1; number <= 14; ++number) {
        EditsDesk desk;
        desk.selectAll();
        desk.cancel();
        desk.s.store.setStat(1, Stat::on); // as undo or a layer may leave it
        const std::int32_t group = desk.s.log.undoGroupNext;
        ControlId button = "pic1"_c;
        ASSERT_TRUE(findControl("frmedit.Command" + std::to_string(number), button));
        desk.press(button);
        EXPECT_EQ(desk.text("entry"_c), "Nothing selected!") << number;
        EXPECT_TRUE(desk.visible("frmedit"_c)) << number;
        EXPECT_EQ(desk.s.curFunc, "Window Select") << number;
        EXPECT_EQ(desk.s.editPending, 0) << number;
        EXPECT_EQ(desk.s.log.undoGroupNext, group) << number;
        EXPECT_EQ(desk.s.savedCount, 1) << number;
    }
}

TEST(EditsForm, CancelClosesItWithoutAWordWhateverIsSelected)
{
    for (const Stat stat : {Stat::sel, Stat::on}) {
        EditsDesk desk;
        desk.selectAll();
        desk.cancel();
        desk.s.store.setStat(1, stat);
        desk.press("frmedit.Command15"_c);
        EXPECT_FALSE(desk.visible("frmedit"_c));
        EXPECT_EQ(desk.text("entry"_c), "");
        EXPECT_EQ(desk.stat(1), stat);
        EXPECT_EQ(desk.s.curFunc, "Window Select");
    }
}

TEST(EditList, TheEmptyRowDoesNothing)
{
    EditsDesk desk;
    desk.selectAll();
    setText(desk.s.controls["entry"_c], "as it was");
    desk.pick(fake::emptyRow);
    EXPECT_EQ(desk.text("entry"_c), "as it was");
    EXPECT_EQ(desk.s.curFunc, "Window Select");
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_EQ(desk.stat(1), Stat::sel);
}

TEST(EditList, EveryRowPutsTheFormAway)
{
    EditsDesk asks;
    const std::vector<std::string> rows = (asks.selectAll(), asks.rows());
    for (int row = 0; row < std::ssize(rows); ++row) {
        if (row == fake::emptyRow) continue;
        EditsDesk desk;
        desk.selectAll();
        desk.cancel();
        ASSERT_TRUE(desk.visible("frmedit"_c));
        desk.pick(row);
        EXPECT_FALSE(desk.visible("frmedit"_c)) << rows[static_cast<std::size_t>(row)]; // not negative
    }
}

TEST(EditList, OfNothingSelectedLeavesTheFormAsItIs)
{
    EditsDesk desk;
    desk.selectAll();
    desk.cancel();
    desk.s.store.setStat(1, Stat::on);
    desk.pick(fake::deleteRow);
    EXPECT_TRUE(desk.visible("frmedit"_c));
    EXPECT_EQ(desk.text("entry"_c), "Nothing selected!");
}

TEST(Delete, IsOneActionThatCountsAsUnsavedWork)
{
    for (const bool fromForm : {false, true}) {
        EditsDesk desk;
        desk.add(Kind::circle);
        desk.saveAs("house");
        EXPECT_EQ(desk.s.savedCount, 3);
        desk.selectAll();
        const std::int32_t group = desk.s.log.undoGroupNext;
        const std::int32_t log = desk.s.log.undoLogCount;
        if (fromForm)
            desk.pressEdit("frmedit.Command14"_c);
        else
            desk.pick(fake::deleteRow);
        EXPECT_EQ(desk.stat(1), Stat::out);
        EXPECT_EQ(desk.stat(2), Stat::out);
        EXPECT_EQ(desk.s.log.undoLogCount, log + 2);
        EXPECT_EQ(desk.s.log.undoGroupNext, group + 1);
        EXPECT_EQ(desk.s.store.entCount, 3);
        EXPECT_EQ(desk.s.savedCount, 2); // once, however many were deleted
        EXPECT_EQ(desk.s.curFunc, "Window Select");
        EXPECT_EQ(desk.s.stepNo, 0);
        EXPECT_EQ(desk.focused(), "pic1");
        EXPECT_FALSE(desk.visible("frmedit"_c));
        EXPECT_EQ(desk.mode(), "Edit Functions");
        EXPECT_TRUE(desk.picture().empty());
        desk.undo();
        EXPECT_EQ(desk.stat(1), Stat::on);
        EXPECT_EQ(desk.stat(2), Stat::on);
        desk.redo();
        EXPECT_EQ(desk.stat(1), Stat::out);
        desk.press("fil5"_c);
        EXPECT_EQ(desk.caption("frmfile"_c), "Save Changes");
    }
}

TEST(Delete, InTheMiddleOfAMoveEndsIt)
{
    EditsDesk desk;
    desk.selectAll();
    desk.start("Move");
    desk.click(1000, 1000);
    desk.pick(fake::deleteRow);
    EXPECT_EQ(desk.stat(1), Stat::out);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.editPending, 0);
    desk.undo();
    EXPECT_EQ(desk.picture(), fake::Ops{"line 1000 1000 1400 1000"});
}

TEST(DeselectAll, TurnsTheSelectionOnAndStaysInTheFunction)
{
    EditsDesk desk;
    desk.add(Kind::circle);
    desk.selectAll();
    const std::int32_t log = desk.s.log.undoLogCount;
    const std::int32_t group = desk.s.log.undoGroupNext;
    desk.cancel();
    desk.ops();
    desk.press("frmedit.Command12"_c);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::on);
    EXPECT_EQ(fake::marks(desk.ops()).size(), 2U);
    EXPECT_FALSE(desk.visible("frmedit"_c));
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.s.curFunc, "Window Select");
    EXPECT_EQ(desk.s.log.undoLogCount, log);
    EXPECT_EQ(desk.s.log.undoGroupNext, group);
}

TEST(Move, ByTwoClicksIsOneActionAndReturnsToTheSelectionFunction)
{
    EditsDesk desk;
    desk.selectAll();
    desk.start("Move");
    desk.click(1000, 1000);
    EXPECT_EQ(desk.title(), fake::titleOf("Move(Enter new reference point:)"));
    desk.click(1000, 1500);
    EXPECT_EQ(desk.picture(), fake::Ops{"line 1000 1500 1400 1500"});
    EXPECT_EQ(desk.title(), fake::titleOf("Window Select(Place window around objects:)"));
    EXPECT_EQ(desk.s.lastFunc, "Window Select");
    EXPECT_EQ(desk.stat(1), Stat::out);
    EXPECT_EQ(desk.stat(2), Stat::on);
    desk.undo();
    EXPECT_EQ(desk.picture(), fake::Ops{"line 1000 1000 1400 1000"});
    desk.redo();
    EXPECT_EQ(desk.picture(), fake::Ops{"line 1000 1500 1400 1500"});
}

TEST(Move, IsConfinedByOrthoAndFreeWithoutIt)
{
    for (const bool ortho : {true, false}) {
        EditsDesk desk;
        if (!ortho) desk.press("freecurs"_c);
        desk.selectAll();
        desk.start("Move");
        desk.click(0, 0);
        desk.click(300, 400);
        EXPECT_EQ(desk.slot(2).p1, ortho ? (Point{1000, 1500}) : (Point{1300, 1400}));
    }
}

TEST(Move, CancelledInTheMiddleShowsTheObjectsAgain)
{
    EditsDesk desk;
    desk.selectAll();
    desk.start("Move");
    desk.click(1000, 1000);
    EXPECT_TRUE(desk.picture().empty());
    desk.move(1000, 1500);
    desk.ops();
    desk.cancel();
    EXPECT_FALSE(fake::only(desk.ops(), "snapshot").empty()); // the clean picture has it again
    EXPECT_EQ(desk.picture(), fake::Ops{"line 1000 1000 1400 1000"});
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_EQ(desk.s.workAngle, 0);
    EXPECT_EQ(desk.s.curFunc, "Window Select");
    EXPECT_FALSE(desk.visible("frmedit"_c));
    EXPECT_EQ(desk.text("entry"_c), "");
}

// It is marked only so that it is shown so: the rows find nothing, like the key, and it is typed on.
TEST(EditList, FindsNothingInATextUnderEdit)
{
    for (int row = 0; row < 14; ++row) {
        EditsDesk desk;
        desk.draw(fake::text({2000, 2000}, "hello"), Stat::on);
        desk.press("Command20"_c); // the list of the edits comes up
        desk.press("Command16"_c);
        desk.click(2000, 2000);
        ASSERT_EQ(desk.stat(2), Stat::sel);
        desk.type("a");
        desk.pick(row);
        EXPECT_EQ(desk.text("entry"_c), "Nothing selected!") << row;
        EXPECT_EQ(desk.s.curFunc, "Text Edit") << row;
        EXPECT_EQ(desk.s.stepNo, 1) << row;
        EXPECT_EQ(desk.stat(2), Stat::sel) << row;
        EXPECT_EQ(desk.title(), fake::titleOf("Text Edit(Edit text:)")) << row;
        desk.type("b");
        desk.enter();
        EXPECT_EQ(desk.slot(3).t1, "helloab") << row;
        EXPECT_EQ(desk.stat(3), Stat::on) << row;
    }
}

TEST(Move, GivenUpForAnotherFunctionShowsTheObjectsAgain)
{
    struct Row {
        ControlId starter;
        Stat left;
    };
    const Row rows[] = {{"Command1"_c, Stat::on},   {"Command2"_c, Stat::on},   {"Command20"_c, Stat::sel},
                        {"Command18"_c, Stat::sel}, {"Command19"_c, Stat::sel}, {"Command17"_c, Stat::sel}};
    for (const Row& row : rows) {
        EditsDesk desk;
        desk.selectAll();
        desk.start("Move");
        desk.click(1000, 1000);
        desk.ops();
        desk.press(row.starter);
        const fake::Ops ops = desk.ops();
        EXPECT_FALSE(fake::marks(ops).empty()) << row.starter.row().name;
        EXPECT_EQ(desk.picture().size(), 1U) << row.starter.row().name;
        EXPECT_EQ(desk.stat(1), row.left) << row.starter.row().name;
    }
}

TEST(Move, GivenUpForAnotherEditKeepsTheSelectionInThePicture)
{
    for (const char* name : {"Move", "Copy", "Rotate", "Scale", "Mirror Copy", "Concentric Copy"}) {
        EditsDesk desk;
        desk.selectAll();
        desk.start("Move");
        desk.click(1000, 1000);
        desk.start(name);
        EXPECT_EQ(desk.s.curFunc, name);
        EXPECT_EQ(desk.stat(1), Stat::sel) << name;
        EXPECT_EQ(desk.picture().size(), 1U) << name;
        EXPECT_EQ(desk.s.editPending, 1) << name;
    }
}

TEST(Move, IsStillUnderWayAfterAZoomAndATurnOfLayers)
{
    EditsDesk desk;
    desk.selectAll();
    desk.start("Move");
    desk.click(1000, 1000);
    desk.press("Command44"_c);
    desk.press("ly5"_c);
    EXPECT_TRUE(desk.picture().empty()); // the ghost alone shows it
    desk.click(1000, 1500);
    EXPECT_EQ(desk.slot(2).p1, (Point{1000, 1500}));
}

TEST(Move, ThatEndsOnItsReferencePointIsCancelled)
{
    EditsDesk desk;
    desk.selectAll();
    desk.start("Move");
    desk.click(1000, 1000);
    desk.down(1, 1000, 1000);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.s.curFunc, "Window Select");
}

TEST(Copy, RepeatsTheFirstOffsetWhereverTheClickLiesUntilARightClick)
{
    EditsDesk desk;
    desk.selectAll();
    desk.start("Copy");
    desk.click(1000, 1000);
    EXPECT_EQ(desk.s.promptText, "(Enter new reference point:)");
    desk.click(1000, 1100);
    EXPECT_EQ(desk.s.promptText, "(Left click for another copy:)");
    desk.click(3000, 2000);
    desk.click(10, 10);
    EXPECT_EQ(desk.s.curFunc, "Copy");
    EXPECT_EQ(desk.stat(1), Stat::sel);
    for (std::int32_t copy = 1; copy <= 3; ++copy)
        EXPECT_EQ(desk.slot(1 + copy).p1, (Point{1000, 1000 + 100.0F * static_cast<float>(copy)}));
    desk.cancel();
    EXPECT_EQ(desk.s.curFunc, "Window Select");
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_FALSE(desk.visible("frmedit"_c));
    EXPECT_EQ(desk.picture().size(), 4U);
    desk.undo();
    desk.undo();
    EXPECT_EQ(desk.picture(), (fake::Ops{"line 1000 1000 1400 1000", "line 1000 1100 1400 1100"}));
}

TEST(Copy, EndsAtAClickOnItsReferencePoint)
{
    EditsDesk desk;
    desk.selectAll();
    desk.start("Copy");
    desk.click(1000, 1000);
    desk.click(1000, 1100);
    desk.down(1, 1000, 1000);
    EXPECT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.s.curFunc, "Window Select");
    EXPECT_EQ(desk.stat(1), Stat::on);
}

TEST(MirrorCopy, ByTwoClicksKeepsTheSources)
{
    EditsDesk desk;
    desk.selectAll();
    desk.start("Mirror Copy");
    desk.click(500, 1500);
    EXPECT_EQ(desk.s.promptText, "(Enter end of mirror line:)");
    desk.click(900, 1500);
    EXPECT_EQ(desk.slot(2).p1, (Point{1000, 2000}));
    EXPECT_EQ(desk.slot(2).p2, (Point{1400, 2000}));
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.s.curFunc, "Window Select");
    EXPECT_EQ(desk.s.editPending, 0);
    desk.undo();
    EXPECT_EQ(desk.picture().size(), 1U);
}

TEST(ConcentricCopy, TakesNoClicks)
{
    EditsDesk desk;
    desk.selectAll();
    desk.start("Concentric Copy");
    desk.click(1000, 1000);
    desk.click(1300, 1900);
    EXPECT_EQ(desk.s.curFunc, "Concentric Copy");
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.stat(1), Stat::sel);
}

TEST(EditFunction, CanBeChosenAgainForTheNewObjects)
{
    EditsDesk desk;
    desk.selectAll();
    desk.start("Move");
    desk.click(1000, 1000);
    desk.click(1000, 1500);
    desk.click(0, 0); // the window selection is still the function
    desk.click(4800, 3200);
    EXPECT_EQ(desk.stat(2), Stat::sel);
    EXPECT_EQ(desk.picture(), fake::Ops{"line 1000 1500 1400 1500"});
    desk.start("Move");
    desk.click(700, 1500); // not where the last move ended: that would cancel
    desk.click(700, 1000);
    EXPECT_EQ(desk.picture(), fake::Ops{"line 1000 1000 1400 1000"});
}

} // namespace
} // namespace mirtane
