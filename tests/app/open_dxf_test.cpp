#include "desk.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace mirtane {
namespace {

using fake::Desk;

Bytes dxf(std::initializer_list<std::string_view> lines)
{
    Bytes file;
    for (const std::string_view line : lines) {
        file.insert(file.end(), line.begin(), line.end());
        file.insert(file.end(), {'\r', '\n'});
    }
    return file;
}

const Bytes plan = dxf({"  0", "TABLE", "  2", "LAYER",  "  0", "LAYER",  "  2",      "walls",
                        "  0", "LAYER", "  2", "doors",  "  0", "ENDTAB", "ENTITIES", "LINE",
                        "  8", "doors", "  6", "DASHED", " 62", "     4", " 10",      "10",
                        " 20", "-10",   " 11", "110",    " 21", "-60",    "  0",      "EOF"});

struct OpenDxf : testing::Test {
    OpenDxf()
    {
        desk.disk.files["/home/user/plan.dxf"] = plan;
        desk.disk.files["/home/user/empty.dxf"] = dxf({"  0", "EOF"});
        desk.drawLine(100, 100, 400, 100);
        desk.drawLine(100, 100, 100, 400);
        desk.saveAs("old");
    }

    void open(const std::string& name)
    {
        desk.press("dd2"_c);
        desk.name(name);
        desk.enter();
        ASSERT_FALSE(desk.visible("frmfile"_c));
    }

    Desk desk;
};

TEST_F(OpenDxf, TakesThePlaceOfTheDrawing)
{
    open("plan");
    ASSERT_EQ(desk.s.store.entCount, 4); // the line, and a record for the name of each layer
    EXPECT_EQ(desk.slot(1).p1, (Point{120, 120}));
    EXPECT_EQ(desk.slot(1).p2, (Point{1320, 720}));
    EXPECT_EQ(desk.slot(1).layer, 1);
    EXPECT_EQ(desk.slot(2).t1, "walls");
    EXPECT_EQ(desk.slot(3).t1, "doors");
    EXPECT_EQ(desk.s.dxfName, "plan.dxf");
    EXPECT_EQ(desk.s.drawingName, "plan.mtd");
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter beginning point of line:)", "plan.mtd"));
    EXPECT_EQ(desk.text("memy"_c), "000.007");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.focused(), "pic1");
}

TEST_F(OpenDxf, ShowsItsLayers)
{
    open("plan");
    EXPECT_EQ(desk.caption("Label3"_c), "Set Working Layer");
    EXPECT_EQ(desk.s.controls["List1"_c].rows, (std::vector<std::string>{"Yes:Wk :walls", "Yes:On :doors"}));
    EXPECT_EQ(desk.text("Combo3"_c), "Yes:Wk :walls");
    EXPECT_EQ(desk.s.workLayer, 0);
}

TEST_F(OpenDxf, GoesOnWithTheLooksOfItsLastObject)
{
    open("plan");
    EXPECT_EQ(desk.s.curColor, 0x0000FF);
    EXPECT_EQ(desk.s.curStyle, 1);
    EXPECT_EQ(desk.text("setts"_c), "Dash");
    EXPECT_EQ(desk.s.controls["setts"_c].color, 0x0000FF);
}

TEST_F(OpenDxf, IsShownWhole)
{
    desk.pic1.setScale({0, 0, 48, 32});
    open("plan");
    const Scale scale = desk.pic1.getScale();
    EXPECT_LE(scale.left, 120);
    EXPECT_LE(scale.top, 120);
    EXPECT_GE(scale.left + scale.width, 1320);
    EXPECT_GE(scale.top + scale.height, 720);
    EXPECT_EQ(desk.s.wholeViewFlag, 1);
}

TEST_F(OpenDxf, WithNothingInItClearsTheOldPicture)
{
    desk.ops();
    open("empty");
    EXPECT_EQ(desk.s.store.entCount, 1);
    const fake::Ops ops = desk.ops();
    EXPECT_FALSE(fake::only(ops, "clear").empty());
    EXPECT_TRUE(fake::marks(ops).empty());
    EXPECT_TRUE(desk.s.controls["List1"_c].rows.empty());
}

TEST_F(OpenDxf, IsNotUnsavedWork)
{
    open("plan");
    desk.press("dd2"_c);
    EXPECT_EQ(desk.caption("frmfile"_c), "Open DXF");
}

TEST_F(OpenDxf, UndoDoesNotReachTheDrawingBefore)
{
    open("plan");
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(1), Stat::on);
}

} // namespace
} // namespace mirtane
