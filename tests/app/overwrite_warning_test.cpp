// The button of the file dialog, from the moment that the dialog comes up with a name.

#include "layer_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::LayerDesk;

constexpr const char* save = "Save";
constexpr const char* overwrite = "Overwrite?";

const std::string& button(const LayerDesk& desk)
{
    return desk.caption("frmfile.Command1"_c);
}

struct LibraryMenus {
    ControlId create, save;
};

// A library entry of that name, made of the first object.
void makeAndSave(LayerDesk& desk, const LibraryMenus& menus, const char* name)
{
    desk.s.store.setStat(1, Stat::sel);
    desk.press(menus.create);
    desk.type(name);
    desk.enter();
    desk.click(90, 90);
    if (desk.s.curFunc == "Create Hatch") desk.click(800, 800);
    desk.press(menus.save);
    desk.pick(0);
}

struct FlowRow {
    const char* what;
    void (*ask)(LayerDesk& desk);
    const char* proposed;
};

// All roads to a save, from a drawing with a line on layer 1 that has no file yet.
const FlowRow flowRows[] = {
    {"save", [](LayerDesk& d) { d.press("fil7"_c); }, "untitled.mtd"},
    {"open", [](LayerDesk& d) { d.press("fil4"_c); }, "untitled.mtd"},
    {"close", [](LayerDesk& d) { d.press("fil5"_c); }, "untitled.mtd"},
    {"open DXF", [](LayerDesk& d) { d.press("dd2"_c); }, "untitled.mtd"},
    {"exit", [](LayerDesk& d) { d.press("fil14"_c); }, "untitled.mtd"},
    {"frame", [](LayerDesk& d) { d.shell.closeForm("frmMain"_c); }, "untitled.mtd"},
    {"selected", [](LayerDesk& d) { d.press("fil9"_c); }, "selected.mtd"},
    {"DXF", [](LayerDesk& d) { d.press("dd4"_c); }, "untitled.dxf"},
    {"layer", [](LayerDesk& d) { d.menuRow("ly15"_c, 1); }, "1.mtd"},
    {"hatch",
     [](LayerDesk& d) {
         makeAndSave(d, {"ht5"_c, "ht7"_c}, "tiles");
     },
     "tiles.mth"},
    {"associate",
     [](LayerDesk& d) {
         makeAndSave(d, {"ass7"_c, "ass9"_c}, "door");
     },
     "door.mta"},
    {"multiple lines",
     [](LayerDesk& d) {
         makeAndSave(d, {"ml3"_c, "ml5"_c}, "wall");
     },
     "wall.mtm"},
};

TEST(OverwriteWarning, StandsFromTheStartWhereTheProposedNameIsThatOfAFile)
{
    for (const FlowRow& row : flowRows) {
        for (const bool there : {true, false}) {
            LayerDesk desk;
            if (there) desk.disk.files[std::string("/home/user/") + row.proposed] = {1, 2, 3};
            desk.disk.files["/home/user/barn.mtd"] = {};
            desk.press("freecurs"_c);
            desk.drawLine(100, 100, 400, 300);
            desk.s.store.setStat(1, Stat::sel);
            row.ask(desk);
            ASSERT_TRUE(desk.visible("frmfile"_c)) << row.what;
            EXPECT_EQ(desk.text("frmfile.Text1"_c), row.proposed) << row.what;
            EXPECT_EQ(button(desk), there ? overwrite : save) << row.what;
        }
    }
}

TEST(OverwriteWarning, IsNotGivenInAnOpenDialogThatComesUpWithAName)
{
    LayerDesk desk;
    desk.disk.files["/home/user/house.dxf"] = {};
    desk.shell.openDrawing("/home/user/house.dxf");
    ASSERT_TRUE(desk.visible("frmfile"_c));
    EXPECT_EQ(button(desk), "Open");
}

struct OpenRow {
    const char* what;
    void (*open)(LayerDesk& desk);
};

constexpr const char* plans = "/home/user/plans";

void drawAndSave(LayerDesk& desk)
{
    desk.drawLine(100, 100, 400, 300);
    desk.saveAs("house");
}

// house.mtd lies in the user's folder and in that of the plans, house.dxf in the latter.
struct Drawings : LayerDesk {
    Drawings()
    {
        folders.folders.insert(plans);
        drawAndSave(*this);
        const Bytes drawing = disk.files["/home/user/house.mtd"];
        s.store.setStat(1, Stat::sel);
        press("dd4"_c);
        enter();
        disk.files[std::string(plans) + "/house.mtd"] = drawing;
        disk.files[std::string(plans) + "/house.dxf"] = disk.files["/home/user/house.dxf"];
        disk.files["/home/user/1.mtd"] = drawing;
        s.dxf.last = plans;
        press("fil5"_c);
        if (visible("frmfile"_c)) press("frmfile.Command2"_c);
    }
};

const OpenRow ownRows[] = {
    {"opened", [](LayerDesk& d) { d.open("house"); }},
    {"opened by its path", [](LayerDesk& d) { d.shell.openDrawing("/home/user/house.mtd"); }},
    {"saved", [](LayerDesk& d) { drawAndSave(d); }},
    {"saved twice",
     [](LayerDesk& d) {
         drawAndSave(d);
         d.drawLine(100, 200, 500, 300);
         d.saveAs("house");
     }},
    {"opened, and a part of it saved elsewhere",
     [](LayerDesk& d) {
         d.open("house");
         d.s.store.setStat(1, Stat::sel);
         d.press("fil9"_c);
         d.enter();
     }},
    {"opened, and another one merged",
     [](LayerDesk& d) {
         d.open("house");
         d.menuRow("ly13"_c, 1);
         d.name("1");
         d.enter();
     }},
    {"opened, and a layer merged from another folder",
     [](LayerDesk& d) {
         d.open("house");
         d.menuRow("ly13"_c, 1);
         d.shell.clickRow("frmfile.Dir1"_c, 1);
         d.name("house");
         d.enter();
     }},
};

TEST(OverwriteWarning, IsNotGivenForTheFileThatIsOpen)
{
    for (const OpenRow& row : ownRows) {
        for (const ControlId menu : {"fil7"_c, "fil5"_c, "fil14"_c}) {
            Drawings desk;
            row.open(desk);
            desk.drawLine(100, 500, 450, 300);
            desk.press(menu);
            EXPECT_EQ(desk.text("frmfile.Text1"_c), "house.mtd") << row.what;
            EXPECT_EQ(button(desk), save) << row.what;
            desk.name("house");
            EXPECT_EQ(button(desk), overwrite) << row.what; // typed, it is asked for as any other
        }
    }
}

const OpenRow foreignRows[] = {
    {"of a DXF file that was opened",
     [](LayerDesk& d) {
         d.press("dd2"_c);
         d.name("house");
         d.enter();
     }},
    {"after the open one was closed",
     [](LayerDesk& d) {
         d.open("house");
         d.press("fil5"_c);
         d.s.drawingName = "house.mtd";
     }},
    {"after the open one failed to open",
     [](LayerDesk& d) {
         d.open("nothing");
         d.press("frmfile.Command2"_c);
         d.s.drawingName = "house.mtd";
     }},
    {"after a save that failed",
     [](LayerDesk& d) {
         d.disk.refusesWrites = true;
         drawAndSave(d);
         d.disk.refusesWrites = false;
         d.press("frmfile.Command2"_c);
         d.s.drawingName = "house.mtd";
     }},
};

TEST(OverwriteWarning, IsGivenForAFileOfTheSameNameThatIsNotOpen)
{
    for (const OpenRow& row : foreignRows) {
        Drawings desk;
        row.open(desk);
        desk.drawLine(100, 500, 450, 300);
        desk.press("fil7"_c);
        EXPECT_EQ(desk.text("frmfile.Text1"_c), "house.mtd") << row.what;
        EXPECT_EQ(button(desk), overwrite) << row.what;
    }
}

// A part of a drawing must not take the place of the whole without a word.
TEST(OverwriteWarning, IsGivenWhereAPartWouldTakeThePlaceOfTheOpenFile)
{
    LayerDesk desk;
    desk.drawLine(100, 100, 400, 300);
    desk.saveAs("selected");
    desk.s.store.setStat(1, Stat::sel);
    desk.press("fil9"_c);
    EXPECT_EQ(button(desk), overwrite);
    desk.shell.closeForm("frmfile"_c);
    desk.saveAs("1");
    desk.menuRow("ly15"_c, 1);
    EXPECT_EQ(desk.text("frmfile.Text1"_c), "1.mtd");
    EXPECT_EQ(button(desk), overwrite);
    desk.shell.closeForm("frmfile"_c);
    desk.press("fil7"_c);
    EXPECT_EQ(button(desk), save);
}

TEST(OverwriteWarning, ConfirmsAtOnce)
{
    LayerDesk desk;
    desk.disk.files["/home/user/untitled.mtd"] = {1, 2, 3};
    desk.drawLine(100, 100, 400, 300);
    desk.press("fil7"_c);
    desk.enter();
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_GT(desk.disk.files["/home/user/untitled.mtd"].size(), 100U);
}

} // namespace
} // namespace mirtane
