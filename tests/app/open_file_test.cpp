#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;
using fake::houseFile;

struct OpenFile : testing::Test {
    OpenFile() { desk.drawLine(100, 100, 400, 100); }

    Desk desk;
};

TEST_F(OpenFile, IsWhatWasSaved)
{
    desk.press("freecurs"_c);
    desk.drawLine(10.5F, -20.25F, 3000, 77);
    desk.press("Command8"_c);
    desk.click(33, 44);
    desk.saveAs("house");
    desk.press("fil5"_c);
    desk.open("house");
    ASSERT_EQ(desk.s.store.entCount, 4);
    EXPECT_EQ(desk.slot(1).p1, (Point{100, 100}));
    EXPECT_EQ(desk.slot(2).p1, (Point{10.5F, -20.25F}));
    EXPECT_EQ(desk.slot(2).p2, (Point{3000, 77}));
    EXPECT_EQ(desk.slot(3).kind, Kind::point);
    for (std::int32_t i = 1; i < 4; ++i) EXPECT_EQ(desk.stat(i), Stat::on) << i;
    EXPECT_EQ(desk.s.savedCount, 4);
    EXPECT_EQ(desk.s.drawingName, "house.mtd");
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.text("memy"_c), "000.007");
}

TEST_F(OpenFile, AndSavedAgainIsTheSameByteForByte)
{
    desk.saveAs("house");
    desk.open("house");
    desk.saveAs("second");
    desk.open("second");
    desk.saveAs("third");
    EXPECT_EQ(desk.disk.files["/home/user/second.mtd"], desk.disk.files["/home/user/third.mtd"]);
}

TEST_F(OpenFile, HasTheMiddleOfItsLinesComputed)
{
    desk.saveAs("house");
    desk.open("house");
    EXPECT_EQ(desk.slot(1).p3, (Point{250, 100}));
}

TEST_F(OpenFile, ShowsItsLayersAndForgetsAssociates)
{
    desk.s.workLayer = 20;
    desk.drawLine(2, 0, 10, 0);
    desk.saveAs("house");
    desk.s.store.ownerName[7] = "chair";
    desk.open("house");
    const Control& list = desk.s.controls["List1"_c];
    ASSERT_EQ(list.rows.size(), 21U);
    EXPECT_EQ(list.rows[1], "Yes:On :1");
    EXPECT_EQ(list.rows[20], "Yes:Wk :20");
    EXPECT_EQ(list.rows[2], "No :On :2");
    EXPECT_EQ(desk.text("Combo3"_c), "Yes:Wk :20");
    EXPECT_EQ(desk.s.layerTable.layerCount, 21);
    EXPECT_EQ(desk.s.store.ownerName[7], "??????");
}

TEST_F(OpenFile, HeaderAloneIsAnEmptyDrawingWithOneLayerRow)
{
    Desk empty;
    empty.saveAs("empty");
    empty.drawLine(2, 0, 10, 0);
    empty.saveAs("full");
    empty.open("empty");
    EXPECT_EQ(empty.s.store.entCount, 1);
    EXPECT_EQ(empty.s.layerTable.layerCount, 1);
    EXPECT_EQ(empty.s.controls["List1"_c].rows.size(), 1U);
    EXPECT_EQ(empty.text("Combo3"_c),
              "No :Wk :1"); // the working layer lies outside, and is shown all the same
    EXPECT_EQ(empty.pic1.getScale().width, 4800);
}

TEST_F(OpenFile, FitsTheViewAnchoredAtTheUpperLeft)
{
    desk.drawLine(100, 500, 100, 100);
    desk.saveAs("house");
    desk.open("house"); // 300 by 400 in a window of 3 by 2
    const Scale scale = desk.pic1.getScale();
    EXPECT_NEAR(scale.width, 600 * 1.05, 0.01);
    EXPECT_NEAR(scale.height, 400 * 1.05, 0.01);
    EXPECT_NEAR(scale.left, 100 - 15, 0.01);
    EXPECT_NEAR(scale.top, 100 - 10, 0.01);
    EXPECT_EQ(desk.s.viewLeft, scale.left);
    EXPECT_EQ(desk.s.wholeViewFlag, 0);
}

TEST_F(OpenFile, TextIsAnchoredByTheFontsMeasure)
{
    EntityRecord text = fake::text({100, 50}, "abcd", 10);
    text.p2.y = 1; // right
    text.p4 = {-1, -1};
    text.layer = 1;
    desk.add(text);
    desk.saveAs("house");
    desk.open("house");
    EXPECT_NEAR(desk.slot(2).p4.x, 100 - 24 * 0.75 * 1.1, 0.001); // four characters, 0.6 of the size each
    EXPECT_NEAR(desk.slot(2).p4.y, 50, 0.001);
}

TEST_F(OpenFile, KeepsGroupSerialsAndUndoFindsNothing)
{
    desk.saveAs("house");
    const std::int32_t next = desk.s.log.undoGroupNext;
    desk.open("house");
    EXPECT_EQ(desk.s.log.undoLogCount, 0);
    EXPECT_EQ(desk.s.log.undoGroupNext, next);
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_EQ(desk.s.log.undoGroupTop, next - 1);
}

TEST_F(OpenFile, FromNothingLeavesAllAsItWas)
{
    desk.saveAs("house");
    desk.open("nowhere");
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.s.drawingName, "house.mtd");
    EXPECT_TRUE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.caption("frmfile"_c), "Open Drawing");
    EXPECT_EQ(desk.text("frmfile.Text1"_c), "nowhere.mtd");
    EXPECT_FALSE(desk.disk.files.contains("/home/user/nowhere.mtd"));
}

TEST_F(OpenFile, FromGarbageIsAnEmptyDrawingAndTheProgramGoesOn)
{
    desk.saveAs("house");
    desk.disk.files["/home/user/bad.mtd"] = Bytes(85, 0xFF);
    desk.disk.files["/home/user/none.mtd"] = {};
    for (const char* name : {"bad", "none"}) {
        desk.open(name);
        EXPECT_EQ(desk.s.store.entCount, 1) << name;
        desk.drawLine(2, 0, 10, 0);
        EXPECT_EQ(desk.s.store.entCount, 2) << name;
        desk.s.savedCount = 2;
    }
}

TEST_F(OpenFile, OfEveryShortenedFileLeavesTheProgramAbleToGoOn)
{
    desk.drawLine(100, 200, 400, 200);
    desk.saveAs("house");
    const Bytes whole = desk.disk.files[houseFile];
    for (std::size_t n = 0; n < whole.size(); n += 13) {
        const auto cut = static_cast<std::ptrdiff_t>(n); // a short file
        desk.disk.files["/home/user/cut.mtd"] = Bytes(whole.begin(), whole.begin() + cut);
        desk.open("cut");
        EXPECT_EQ(desk.s.drawingName, n == 0 ? "cut.mtd" : "untitled.mtd")
            << n << ": none ends with a record";
        EXPECT_LE(desk.s.store.entCount, 3) << n;
        desk.press("Command42"_c);
    }
}

TEST_F(OpenFile, EndsTheRunningStep)
{
    desk.saveAs("house");
    desk.click(700, 700);
    desk.open("house");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter beginning point of line:)", "house.mtd"));
}

TEST_F(OpenFile, ReadsTheFormerWhiteAsWhite)
{
    desk.s.curColor = 0xE0E0E0;
    desk.drawLine(2, 0, 10, 0);
    desk.saveAs("house");
    desk.open("house");
    EXPECT_EQ(desk.slot(2).color, 0xFFFFFF);
    EXPECT_EQ(desk.s.curColor, 0xFFFFFF);
}

// What was under way in the old drawing has nothing to do with the new one.
TEST_F(OpenFile, LeavesNothingOfATextThatWasBeingTyped)
{
    for (const bool closes : {false, true}) {
        Desk one;
        one.drawLine(100, 100, 400, 100);
        one.saveAs("house");
        one.press("Command15"_c);
        one.click(100, 100);
        one.type("abc");
        if (closes)
            one.press("fil5"_c);
        else
            one.open("house");
        EXPECT_EQ(one.s.textLength, 0) << closes;
    }
}

TEST_F(OpenFile, EndsAZoomWindowThatHasItsFirstCorner)
{
    desk.saveAs("house");
    desk.press("Command43"_c);
    desk.click(3000, 3000);
    desk.open("house");
    EXPECT_EQ(desk.caption("snaplab"_c), "");
    EXPECT_EQ(desk.s.windowStep, 0);
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter beginning point of line:)", "house.mtd"));
}

} // namespace
} // namespace mirtane
