#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

TEST(Start, StandsInLineOnAnEmptyDrawing)
{
    const Desk desk;
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter beginning point of line:)"));
    EXPECT_EQ(desk.s.curFunc, "Line");
    EXPECT_EQ(desk.s.baseFunc, "Line");
    EXPECT_EQ(desk.s.lastFunc, "Line");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.store.entCount, 1);
    EXPECT_EQ(desk.s.savedCount, 1);
    EXPECT_EQ(desk.s.drawingName, "untitled.mtd");
    EXPECT_EQ(desk.s.dxfName, "untitled.dxf");
    EXPECT_EQ(desk.s.saveFollowUp, 0);
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.caption("freecurs"_c), "Ortho/On");
    EXPECT_EQ(desk.s.orthoCaption, "Ortho/On");
}

TEST(Start, GivesTheDefaultsWhereNothingIsStored)
{
    const Desk desk;
    const Session& s = desk.s;
    EXPECT_EQ(s.workLayer, 1);
    EXPECT_EQ(s.curColor, 0xFFFFFF);
    EXPECT_EQ(s.curStyle, 0);
    EXPECT_EQ(s.textSize, 48);
    EXPECT_EQ(s.arrowSize, 48);
    EXPECT_EQ(s.dimStyle, 1);
    EXPECT_EQ(s.textJust, 0);
    EXPECT_EQ(s.textFont, "Garamond");
    EXPECT_EQ(s.dimTol, 0.125F);
    EXPECT_EQ(s.numComma, 0);
    EXPECT_EQ(s.angFormat, 0);
    EXPECT_EQ(s.numStyle, "us");
    EXPECT_EQ(s.textRotation, 0);
    EXPECT_EQ(s.snapPercentage, 0.25F);
    EXPECT_EQ(s.filletRadius, 72);
    EXPECT_EQ(s.polygonSides, 3);
    EXPECT_EQ(s.hatchScale, 1);
    EXPECT_EQ(s.hatchRotation, 0);
    EXPECT_EQ(s.associateRotation, 0);
    EXPECT_EQ(s.associateName, "??????");
    EXPECT_EQ(s.hatchName, "??????");
    EXPECT_EQ(s.multipleLinesName, "??????");
    EXPECT_EQ(s.filterLayer, -1);
    EXPECT_EQ(s.filterKind, -1);
    EXPECT_EQ(s.filterStyle, -1);
    EXPECT_EQ(s.orthoAngle, 0);
    EXPECT_EQ(s.orthoAngleSaved, 0);
    EXPECT_EQ(s.wholeViewFlag, 0);
    EXPECT_EQ(s.log.undoGroupNext, 0);
}

TEST(Start, ListsSixteenLayersWithLayerOneWorking)
{
    const Desk desk;
    const Control& list = desk.s.controls["List1"_c];
    ASSERT_EQ(list.rows.size(), 16U);
    EXPECT_EQ(list.rows[0], "No :On :0");
    EXPECT_EQ(list.rows[1], "No :Wk :1");
    EXPECT_EQ(list.rows[15], "No :On :15");
    EXPECT_EQ(desk.text("Combo3"_c), "No :Wk :1");
    EXPECT_EQ(desk.caption("Label3"_c), "Set Working Layer");
    EXPECT_EQ(desk.s.layerTable.layerCount, 16);
}

TEST(Start, ChecksTheMenusOfTheDefaults)
{
    const Desk desk;
    std::string checked;
    for (const ControlRow& row : controlTable) {
        ControlId id;
        findControl(row.name, id);
        if (desk.s.controls[id].checked) checked += std::string(row.name) + " ";
    }
    // The running function and ortho in the tool strip, the pen among the line widths, and the choices of the
    // menus.
    EXPECT_EQ(checked, "Command1 freecurs num1 ang1 dim5 dtol3 tk7 lw10 ls3 ");
}

TEST(Start, SetsAllFoldersToThatOfTheProgram)
{
    const Desk desk;
    for (const FolderPair* pair :
         {&desk.s.drawings, &desk.s.associates, &desk.s.hatches, &desk.s.multipleLines, &desk.s.dxf}) {
        EXPECT_EQ(pair->working, fake::home);
        EXPECT_EQ(pair->last, fake::home);
    }
}

TEST(Start, CopiesTheLimitsOfTheFirstWindow)
{
    const Desk desk;
    EXPECT_EQ(desk.s.viewLeft, 0);
    EXPECT_EQ(desk.s.viewTop, 0);
    EXPECT_EQ(desk.s.viewRight, 4800);
    EXPECT_EQ(desk.s.viewBottom, 3200);
}

TEST(Start, LeavesTheRubberBandPen)
{
    const auto session = std::make_unique<Session>();
    fake::MemoryDisk disk;
    fake::MemoryFolders folders(disk);
    fake::MemorySettings settings;
    RecordingCanvas pic1(Size{1200, 800});
    Shell shell(*session, pic1, Ports{disk, folders, settings, fake::home});
    shell.start();
    const fake::Ops ops = fake::opsOn(pic1);
    EXPECT_EQ(fake::only(ops, "setColor").back(), "setColor 16777215");
    EXPECT_EQ(fake::only(ops, "setStyle").back(), "setStyle 2");
}

TEST(Start, TakesEachStoredValue)
{
    const Desk desk({{"tnam", "Courier New"},
                     {"tsize", "36.5"},
                     {"asize", "24"},
                     {"dstyle", "3"},
                     {"tjust", "2"},
                     {"ntol", "0.25"},
                     {"ncom", "1"},
                     {"acom", "1"},
                     {"nstyle", "br"},
                     {"wkd", "/d"},
                     {"wkmtad", "/e"},
                     {"wkmthd", "/f"},
                     {"wkmtmd", "/g"},
                     {"wkdxfd", "/h"},
                     {"wkp", "/i"},
                     {"wkmtap", "/j"},
                     {"wkmthp", "/k"},
                     {"wkmtmp", "/l"},
                     {"wkdxfp", "/m"}});
    const Session& s = desk.s;
    EXPECT_EQ(s.textFont, "Courier New");
    EXPECT_EQ(s.textSize, 36.5F);
    EXPECT_EQ(s.arrowSize, 24);
    EXPECT_EQ(s.dimStyle, 3);
    EXPECT_EQ(s.textJust, 2);
    EXPECT_EQ(s.dimTol, 0.25F);
    EXPECT_EQ(s.numComma, 1);
    EXPECT_EQ(s.angFormat, 1);
    EXPECT_EQ(s.numStyle, "br");
    EXPECT_EQ(s.drawings.working + s.associates.working + s.hatches.working + s.multipleLines.working +
                  s.dxf.working + s.drawings.last + s.associates.last + s.hatches.last +
                  s.multipleLines.last + s.dxf.last,
              "/d/e/f/g/h/i/j/k/l/m");
    EXPECT_TRUE(s.controls["dim3"_c].checked);
    EXPECT_TRUE(s.controls["tk8"_c].checked);
    EXPECT_TRUE(s.controls["dtol2"_c].checked);
    EXPECT_TRUE(s.controls["num5"_c].checked);
    EXPECT_TRUE(s.controls["ang2"_c].checked);
    EXPECT_FALSE(s.controls["num4"_c].checked);
}

TEST(Start, LeavesNoMenuCheckedForAValueThatIsInNone)
{
    const Desk desk({{"ntol", "0.3"}, {"nstyle", "zz"}, {"dstyle", "9"}});
    for (const ControlId id : {"dtol2"_c, "dtol3"_c, "dtol4"_c, "dtol5"_c, "dtol6"_c, "num1"_c, "num2"_c,
                               "num3"_c, "num4"_c, "num5"_c, "dim3"_c, "dim4"_c, "dim5"_c}) {
        EXPECT_FALSE(desk.s.controls[id].checked) << id.row().name;
    }
    EXPECT_EQ(desk.s.numStyle, "zz");
}

TEST(Resize, KeepsLeftTopAndUnitsToThePixelAndRepaintsNothing)
{
    Desk desk;
    desk.pic1.setScale({100, 200, 4800, 3200});
    desk.pic1.takeOps();
    desk.pic1.resizePixels({600, 1000});
    desk.shell.resized();
    EXPECT_TRUE(desk.ops().empty());
    EXPECT_EQ(desk.s.viewLeft, 100);
    EXPECT_EQ(desk.s.viewTop, 200);
    EXPECT_EQ(desk.s.viewRight, 100 + 2400);
    EXPECT_EQ(desk.s.viewBottom, 200 + 4000);
}

struct PaletteRow {
    ControlId menu;
    std::int32_t color;
};

TEST(LineColor, IsThatOfTheMenuAndNoObjectIsRepainted)
{
    const PaletteRow rows[] = {{"lw3"_c, 0xFF0000}, {"lw4"_c, 0x00FF00}, {"lw5"_c, 0xFFFF00},
                               {"lw6"_c, 0x0000FF}, {"lw7"_c, 0xFF00FF}, {"lw8"_c, 0x0080FF},
                               {"lw9"_c, 0x00FFFF}, {"lw10"_c, 0xFFFFFF}};
    Desk desk;
    desk.drawLine(2, 0, 10, 0);
    desk.ops();
    for (const PaletteRow& row : rows) {
        desk.shell.giveFocus("angle"_c);
        desk.press(row.menu);
        EXPECT_EQ(desk.s.curColor, row.color) << row.menu.row().name;
        EXPECT_EQ(desk.s.controls["setts"_c].color, row.color) << row.menu.row().name;
        EXPECT_EQ(desk.focused(), "pic1") << row.menu.row().name;
        const fake::Ops refreshed = {"refresh"};
        EXPECT_EQ(desk.ops(), refreshed) << row.menu.row().name;
    }
    EXPECT_EQ(desk.slot(1).color, 0xFFFFFF);
}

TEST(LineStyle, IsThatOfTheMenuAndNamedInItsField)
{
    const std::pair<ControlId, const char*> rows[] = {{"ls3"_c, "Solid"},
                                                      {"ls4"_c, "Dash"},
                                                      {"ls5"_c, "Dot"},
                                                      {"ls6"_c, "Dash-Dot"},
                                                      {"ls7"_c, "Dash-Dot-Dot"}};
    Desk desk;
    std::int16_t style = 0;
    for (const auto& [menu, name] : rows) {
        desk.press(menu);
        EXPECT_EQ(desk.s.curStyle, style++) << name;
        EXPECT_EQ(desk.text("setts"_c), name);
        EXPECT_TRUE(desk.s.controls[menu].checked) << name;
        EXPECT_EQ(desk.s.controls["ls3"_c].checked, menu == "ls3"_c) << name;
    }
}

TEST(UndoEntries, RepaintAndGiveTheFocusToTheDrawing)
{
    Desk desk;
    desk.drawLine(100, 100, 400, 100);
    for (const ControlId id : {"undu"_c, "redu"_c}) {
        desk.shell.giveFocus("angle"_c);
        desk.ops();
        desk.press(id);
        EXPECT_EQ(fake::only(desk.ops(), "snapshot").size(), 1U) << id.row().name;
        EXPECT_EQ(desk.focused(), "pic1") << id.row().name;
    }
    EXPECT_EQ(desk.stat(1), Stat::on);
}

TEST(UndoEntries, DoNothingInAnEmptyDrawing)
{
    Desk desk;
    desk.press("undu"_c);
    desk.press("redu"_c);
    EXPECT_TRUE(desk.ops().empty());
    EXPECT_EQ(desk.s.log.undoGroupNext, 0);
}

TEST(LeavingTheProgram, WhenRefusedTheFunctionBeginsAnew)
{
    Desk desk;
    desk.drawLine(100, 100, 400, 100);
    desk.press("freecurs"_c);
    desk.press("Command7"_c);
    const std::string before(desk.title());
    desk.click(1000, 1000);
    desk.click(1200, 1100);
    desk.shell.closeForm("frmMain"_c);
    ASSERT_TRUE(desk.visible("frmfile"_c));
    desk.shell.closeForm("frmfile"_c);
    EXPECT_EQ(desk.caption("freecurs"_c), "Ortho/Off");
    EXPECT_EQ(desk.s.orthoAngle, desk.s.orthoAngleSaved);
    EXPECT_EQ(desk.title(), before);
}

} // namespace
} // namespace mirtane
