// "Change" and its dialog.

#include "edits_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::changeRow;
using fake::editRows;
using fake::EditsDesk;

TEST(Change, OpensItsDialogFromTheListAndFromTheForm)
{
    for (const bool fromForm : {false, true}) {
        EditsDesk desk;
        desk.press("flt1"_c);
        desk.press("frmfilter.ob6"_c); // criteria that another use left
        desk.press("frmfilter.st7"_c);
        desk.press("frmfilter.Command1"_c);
        desk.selectAll();
        if (fromForm)
            desk.pressEdit("frmedit.Command10"_c);
        else
            desk.pick(changeRow);
        EXPECT_TRUE(desk.visible("frmfilter"_c));
        EXPECT_FALSE(desk.visible("frmedit"_c));
        EXPECT_EQ(desk.caption("frmfilter"_c), "Change Properties");
        for (const ControlId box : fake::filterBoxes) EXPECT_EQ(desk.text(box), "All") << box.row().name;
        EXPECT_EQ(desk.mode(), "Change Properties");
        EXPECT_EQ(desk.rows(), desk.s.layerTable.rows());
        EXPECT_EQ(desk.s.controls["frmfilter.List1"_c].rows, desk.s.layerTable.rows());
        EXPECT_EQ(desk.s.curFunc, "Change");
        EXPECT_EQ(desk.s.baseFunc, "Window Select");
        EXPECT_EQ(desk.s.stepNo, 0);
        EXPECT_EQ(desk.s.editPending, 1);
        desk.pick(5); // the list of the main window has no part in this
        EXPECT_EQ(desk.text("frmfilter.Text1"_c), "All");
        EXPECT_EQ(desk.s.workLayer, 1);
    }
}

TEST(Change, GivesLayerColourAndStyleAsOneAction)
{
    EditsDesk desk;
    desk.selectAll();
    desk.pick(changeRow);
    desk.shell.clickRow("frmfilter.List1"_c, 7);
    EXPECT_EQ(desk.text("frmfilter.Text1"_c), "No :On :7");
    desk.press("frmfilter.cu8"_c);
    EXPECT_EQ(desk.text("frmfilter.Text3"_c), "4:Red");
    EXPECT_EQ(desk.s.controls["frmfilter.Text3"_c].color, 0x0000FF);
    desk.press("frmfilter.st7"_c);
    EXPECT_EQ(desk.text("frmfilter.Text4"_c), "Dot");
    const std::int32_t group = desk.s.log.undoGroupNext;
    desk.press("frmfilter.Command1"_c);
    EXPECT_FALSE(desk.visible("frmfilter"_c));
    EXPECT_EQ(desk.stat(1), Stat::out);
    EXPECT_EQ(desk.stat(2), Stat::on);
    EXPECT_EQ(desk.slot(2).layer, 7);
    EXPECT_EQ(desk.slot(2).color, 0x0000FF);
    EXPECT_EQ(desk.slot(2).style, 2);
    EXPECT_EQ(desk.slot(2).p2, (Point{1400, 1000}));
    EXPECT_EQ(desk.s.layerTable.find(7)->layerUsed, "Yes:");
    EXPECT_EQ(desk.s.log.undoGroupNext, group + 1);
    EXPECT_EQ(desk.s.curFunc, "Window Select");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.editPending, 0);
    EXPECT_EQ(desk.title(), fake::titleOf("Window Select(Place window around objects:)"));
    for (const ControlId box : fake::filterBoxes) EXPECT_EQ(desk.text(box), "All") << box.row().name;
    EXPECT_EQ(desk.s.filterLayer, -1);
    EXPECT_EQ(desk.s.filterStyle, -1);
    EXPECT_EQ(desk.s.filterColor, 0);
    EXPECT_EQ(desk.s.controls["frmfilter.Text3"_c].color, desk.s.controls["frmfilter.List1"_c].color);
    desk.undo();
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::out);
    desk.redo();
    EXPECT_EQ(desk.stat(2), Stat::on);
}

TEST(Change, WithOneBoxSetKeepsTheRest)
{
    struct Row {
        ControlId menu; // or the list of layers
        std::int16_t layer;
        std::int32_t color;
        std::int16_t style;
    };
    const Row rows[] = {{"frmfilter.List1"_c, 7, 0x00FF00, 3},
                        {"frmfilter.cu8"_c, 2, 0x0000FF, 3},
                        {"frmfilter.st5"_c, 2, 0x00FF00, 0},
                        {"frmfilter.ob6"_c, 2, 0x00FF00, 3}}; // the kind is no property
    for (const Row& row : rows) {
        EditsDesk desk;
        const std::int32_t circle = desk.add(Kind::circle);
        desk.startChange();
        if (row.menu == "frmfilter.List1"_c)
            desk.shell.clickRow(row.menu, 7);
        else
            desk.press(row.menu);
        desk.press("frmfilter.Command1"_c);
        const EntityRecord changed = desk.slot(desk.s.store.entCount - 1);
        EXPECT_EQ(desk.stat(circle), Stat::out) << row.menu.row().name;
        EXPECT_EQ(changed.kind, Kind::circle) << row.menu.row().name;
        EXPECT_EQ(changed.layer, row.layer) << row.menu.row().name;
        EXPECT_EQ(changed.color, row.color) << row.menu.row().name;
        EXPECT_EQ(changed.style, row.style) << row.menu.row().name;
    }
}

TEST(Change, OfTheStyleLeavesPointsTextsAndDimensions)
{
    EditsDesk desk;
    for (const Kind kind : everyKind) desk.add(kind);
    desk.startChange();
    for (std::int32_t slot = 2; slot < 12; ++slot) desk.s.store.setStat(slot, Stat::sel);
    desk.s.store.setStat(1, Stat::on);
    desk.press("frmfilter.st7"_c);
    desk.press("frmfilter.Command1"_c);
    ASSERT_EQ(desk.s.store.entCount, 22);
    for (std::int32_t slot = 12; slot < 22; ++slot)
        EXPECT_EQ(desk.slot(slot).style, desk.slot(slot).kind < Kind::point ? 2 : 3)
            << numberOf(desk.slot(slot).kind);
}

TEST(Change, WithAllBoxesOnAllStillMakesCopies)
{
    EditsDesk desk;
    desk.startChange();
    const EntityRecord before = desk.slot(1);
    desk.press("frmfilter.Command1"_c);
    EXPECT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.stat(1), Stat::out);
    EXPECT_EQ(desk.slot(2).p1, before.p1);
    EXPECT_EQ(desk.slot(2).color, before.color);
}

TEST(Change, ABoxPutBackToAllCountsAgain)
{
    EditsDesk desk;
    desk.startChange();
    desk.shell.clickRow("frmfilter.List1"_c, 7);
    desk.press("frmfilter.cu8"_c);
    desk.press("frmfilter.st7"_c);
    for (const ControlId box : {"frmfilter.Text1"_c, "frmfilter.Text3"_c, "frmfilter.Text4"_c}) {
        desk.press(box);
        EXPECT_EQ(desk.text(box), "All");
        EXPECT_EQ(desk.focused(), "frmfilter.List1");
    }
    EXPECT_EQ(desk.s.controls["frmfilter.Text3"_c].color, desk.s.controls["frmfilter.List1"_c].color);
    desk.press("frmfilter.Command1"_c);
    EXPECT_EQ(desk.slot(2).layer, 1);
    EXPECT_EQ(desk.slot(2).color, 0xFFFFFF);
    EXPECT_EQ(desk.slot(2).style, 0);
}

TEST(FilterSettings, ABoxPutBackToAllLeavesTheCriterionInForce)
{
    EditsDesk desk;
    desk.add(Kind::point);
    desk.press("flt1"_c);
    EXPECT_EQ(desk.caption("frmfilter"_c), "Filter Settings");
    desk.press("frmfilter.ob9"_c);
    desk.press("frmfilter.Text2"_c);
    EXPECT_EQ(desk.text("frmfilter.Text2"_c), "All");
    desk.press("frmfilter.Command1"_c);
    EXPECT_FALSE(desk.visible("frmfilter"_c));
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.s.store.entCount, 3);
    desk.press("Command18"_c);
    desk.click(0, 0);
    desk.click(4800, 3200);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.stat(2), Stat::sel);
}

TEST(Change, ResetSetsAllBoxesBack)
{
    EditsDesk desk;
    desk.startChange();
    desk.shell.clickRow("frmfilter.List1"_c, 7);
    desk.press("frmfilter.ob6"_c);
    desk.press("frmfilter.cu8"_c);
    desk.press("frmfilter.st7"_c);
    desk.press("frmfilter.rst1"_c);
    for (const ControlId box : fake::filterBoxes) EXPECT_EQ(desk.text(box), "All") << box.row().name;
    EXPECT_TRUE(desk.visible("frmfilter"_c));
    desk.press("frmfilter.Command1"_c);
    EXPECT_EQ(desk.slot(2).layer, 1);
}

TEST(Change, CancelledDropsTheSelectionAndChangesNothing)
{
    for (const bool byTheWindow : {false, true}) {
        EditsDesk desk;
        desk.startChange();
        desk.press("frmfilter.cu8"_c);
        const std::int32_t group = desk.s.log.undoGroupNext;
        if (byTheWindow)
            desk.shell.closeForm("frmfilter"_c);
        else
            desk.press("frmfilter.Command2"_c);
        EXPECT_FALSE(desk.visible("frmfilter"_c));
        EXPECT_EQ(desk.stat(1), Stat::on);
        EXPECT_EQ(desk.s.store.entCount, 2);
        EXPECT_EQ(desk.s.log.undoGroupNext, group);
        EXPECT_EQ(desk.s.curFunc, "Window Select");
        EXPECT_EQ(desk.title(), fake::titleOf("Window Select(Place window around objects:)"));
        EXPECT_EQ(desk.s.editPending, 0);
        EXPECT_EQ(desk.s.stepNo, 0);
        EXPECT_EQ(desk.s.filterColor, 0);
        for (const ControlId box : fake::filterBoxes) EXPECT_EQ(desk.text(box), "All") << box.row().name;
    }
}

TEST(Change, GivenUpByARightClickDropsTheSelection)
{
    EditsDesk desk;
    desk.startChange();
    desk.cancel();
    EXPECT_FALSE(desk.visible("frmfilter"_c));
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.s.curFunc, "Window Select");
    EXPECT_EQ(desk.s.editPending, 0);
}

TEST(Change, OntoAHiddenLayerStaysInThePictureUntilTheLayerIsSwitched)
{
    EditsDesk desk;
    desk.press("ly7"_c);
    desk.pick(7);
    desk.startChange();
    EXPECT_EQ(desk.s.controls["frmfilter.List1"_c].rows[7], "No :Off:7");
    desk.shell.clickRow("frmfilter.List1"_c, 7);
    desk.press("frmfilter.Command1"_c);
    EXPECT_EQ(desk.picture().size(), 1U);
    desk.press("ly7"_c);
    desk.pick(7);
    desk.pick(7);
    EXPECT_TRUE(desk.picture().empty());
}

TEST(Change, ARightClickAfterItOffersTheEditsAgain)
{
    EditsDesk desk;
    desk.startChange();
    desk.press("frmfilter.Command1"_c);
    EXPECT_EQ(desk.mode(), "Change Properties");
    desk.click(0, 0);
    desk.click(4800, 3200);
    desk.cancel();
    EXPECT_TRUE(desk.visible("frmedit"_c));
    EXPECT_EQ(desk.mode(), "Edit Functions");
    EXPECT_EQ(desk.rows(), editRows);
}

} // namespace
} // namespace mirtane
