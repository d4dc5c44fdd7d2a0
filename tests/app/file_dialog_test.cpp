#include "files/drawing_file.h"
#include "files/entity_record_codec.h"

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

const std::string houseFile = "/home/user/house.mtd";

void expectDialog(const Desk& desk, const char* caption, const char* confirm, const char* dismiss,
                  const char* name)
{
    EXPECT_TRUE(desk.visible("frmfile"_c)) << caption;
    EXPECT_EQ(desk.caption("frmfile"_c), caption);
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), confirm) << caption;
    EXPECT_EQ(desk.caption("frmfile.Command2"_c), dismiss) << caption;
    EXPECT_EQ(desk.text("frmfile.Text1"_c), name) << caption;
    EXPECT_EQ(desk.text("frmfile.Text2"_c), "Mirtane Drawing    *.mtd") << caption;
    EXPECT_EQ(desk.s.filePattern, "*.mtd") << caption;
}

struct FileWork : testing::Test {
    FileWork() { desk.drawLine(100, 100, 400, 100); }

    Desk desk;
};

// Opening, closing, leaving

TEST(FileMenu, OffersADrawingToOpenWhereNothingIsUnsaved)
{
    Desk desk;
    desk.disk.files = {{"/home/user/b.mtd", {}}, {"/home/user/a.mtd", {}}, {"/home/user/a.dxf", {}}};
    desk.press("fil4"_c);
    expectDialog(desk, "Open Drawing", "Open", "Close", "");
    const std::vector<std::string> names = {"a.mtd", "b.mtd"};
    EXPECT_EQ(desk.s.controls["frmfile.File1"_c].rows, names);
    EXPECT_EQ(desk.s.saveFollowUp, 0);
}

TEST_F(FileWork, UnsavedIsOfferedToBeSavedBeforeWhatWasAskedFor)
{
    struct Row {
        ControlId entry;
        std::int16_t followUp;
        const char* dismiss;
    };
    const Row rows[] = {{"fil4"_c, 3, "Close"}, {"fil5"_c, 2, "Close"}, {"fil14"_c, 1, "End"}};
    for (const Row& row : rows) {
        desk.press(row.entry);
        expectDialog(desk, "Save Changes", "Save", row.dismiss, "untitled.mtd");
        EXPECT_EQ(desk.s.saveFollowUp, row.followUp) << row.entry.row().name;
        EXPECT_EQ(desk.s.store.entCount, 2);
    }
    desk.shell.closeForm("frmMain"_c);
    expectDialog(desk, "Save Changes", "Save", "End", "untitled.mtd");
    EXPECT_EQ(desk.s.saveFollowUp, 1);
    EXPECT_FALSE(desk.shell.ended());
}

TEST_F(FileWork, SaveDrawingOpensSaveFileAndAsksForNothingAfterwards)
{
    desk.press("fil5"_c); // leaves a follow-up behind
    desk.press("fil7"_c);
    expectDialog(desk, "Save File", "Save", "Close", "untitled.mtd");
    EXPECT_EQ(desk.s.saveFollowUp, 0);
    desk.press("frmfile.Command1"_c);
    EXPECT_EQ(desk.s.store.entCount, 2); // the drawing was not cleared
}

TEST_F(FileWork, SaveWritesTheFileAndCountsAsSaved)
{
    desk.saveAs("house");
    ASSERT_TRUE(desk.disk.files.contains(houseFile));
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.s.drawingName, "house.mtd");
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter beginning point of line:)", "house.mtd"));
    EXPECT_EQ(desk.s.savedCount, 2);
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.s.drawings.last, fake::home);
}

TEST_F(FileWork, SaveOfAnEmptyDrawingWritesTheHeaderAlone)
{
    Desk empty;
    empty.saveAs("empty");
    EXPECT_EQ(empty.disk.files["/home/user/empty.mtd"].size(), 90U + 2 + 8); // "us", "Garamond"
}

TEST_F(FileWork, SaveRewritesTheHeaderFromTheCurrentAttributes)
{
    desk.press("lw6"_c);
    desk.press("ls6"_c);
    desk.saveAs("house");
    const EntityRecord header = desk.slot(0);
    EXPECT_EQ(header.kind, kind::header);
    EXPECT_EQ(header.color, 0x0000FF);
    EXPECT_EQ(header.style, 3);
    EXPECT_EQ(header.t1, "us");
    EXPECT_EQ(header.t2, "Garamond");
}

TEST_F(FileWork, SaveDropsWhatWasUndone)
{
    desk.drawLine(100, 200, 400, 200);
    desk.press("undu"_c);
    desk.saveAs("house");
    desk.open("house");
    EXPECT_EQ(desk.s.store.entCount, 2);
}

TEST_F(FileWork, SaveTurnsTheSelectionBackOn)
{
    desk.s.store.setStat(1, Stat::sel);
    desk.saveAs("house");
    EXPECT_EQ(desk.stat(1), Stat::on);
}

TEST_F(FileWork, SaveThatFailsLosesNothing)
{
    const Bytes before = {1, 2, 3};
    desk.disk.files[houseFile] = before;
    desk.disk.refusesWrites = true;
    desk.saveAs("house");
    EXPECT_EQ(desk.disk.files[houseFile], before);
    EXPECT_EQ(desk.s.savedCount, 1);
    EXPECT_EQ(desk.s.drawingName, "untitled.mtd");
    EXPECT_EQ(desk.text("entry"_c), "Drawing not saved!");
    EXPECT_TRUE(desk.visible("frmfile"_c));
    desk.disk.refusesWrites = false;
    desk.press("frmfile.Command1"_c);
    EXPECT_NE(desk.disk.files[houseFile], before);
    EXPECT_FALSE(desk.visible("frmfile"_c));
}

TEST_F(FileWork, SaveThatFailsBeforeTheEndKeepsTheProgramAlive)
{
    desk.disk.refusesWrites = true;
    desk.press("fil14"_c);
    desk.press("frmfile.Command1"_c);
    EXPECT_EQ(desk.disk.writesTried, 1);
    EXPECT_FALSE(desk.shell.ended());
    EXPECT_EQ(desk.s.saveFollowUp, 1);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.settings.writes, 0);
    desk.disk.refusesWrites = false;
    desk.press("frmfile.Command1"_c);
    EXPECT_TRUE(desk.shell.ended());
}

TEST_F(FileWork, SaveThatFailsBeforeAClearKeepsTheDrawing)
{
    desk.disk.refusesWrites = true;
    desk.press("fil5"_c);
    desk.press("frmfile.Command1"_c);
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.s.saveFollowUp, 2);
    EXPECT_TRUE(desk.visible("frmfile"_c));
}

TEST_F(FileWork, SavedBeforeACloseIsThenCleared)
{
    desk.press("fil5"_c);
    desk.name("house");
    desk.enter();
    EXPECT_TRUE(desk.disk.files.contains(houseFile));
    EXPECT_EQ(desk.s.store.entCount, 1);
    EXPECT_EQ(desk.s.savedCount, 1);
    EXPECT_EQ(desk.s.drawingName, "untitled.mtd");
    EXPECT_EQ(desk.s.saveFollowUp, 0);
    EXPECT_FALSE(desk.visible("frmfile"_c));
}

TEST_F(FileWork, SavedBeforeAnOpenIsClearedAndTheDialogGoesOnToOpen)
{
    desk.press("fil4"_c);
    desk.name("house");
    desk.enter();
    EXPECT_EQ(desk.s.store.entCount, 1);
    expectDialog(desk, "Open Drawing", "Open", "Close", "");
    EXPECT_EQ(desk.s.saveFollowUp, 0);
    const std::vector<std::string> names = {"house.mtd"};
    EXPECT_EQ(desk.s.controls["frmfile.File1"_c].rows, names);
}

TEST_F(FileWork, SavedBeforeTheEndEndsTheProgramAndWritesTheSettingsOnce)
{
    desk.press("fil14"_c);
    desk.name("house");
    desk.enter();
    EXPECT_TRUE(desk.disk.files.contains(houseFile));
    EXPECT_TRUE(desk.shell.ended());
    EXPECT_EQ(desk.settings.writes, 1);
}

TEST_F(FileWork, GivenUpCarriesOutTheSameWithoutAFile)
{
    desk.press("fil5"_c);
    desk.press("frmfile.Command2"_c);
    EXPECT_EQ(desk.s.store.entCount, 1);
    EXPECT_EQ(desk.s.saveFollowUp, 0);
    EXPECT_FALSE(desk.visible("frmfile"_c));

    desk.drawLine(100, 100, 400, 100);
    desk.press("fil4"_c);
    desk.press("frmfile.Command2"_c);
    EXPECT_EQ(desk.s.store.entCount, 1);
    expectDialog(desk, "Open Drawing", "Open", "Close", "");
    desk.press("frmfile.Command2"_c);
    EXPECT_FALSE(desk.visible("frmfile"_c));

    desk.drawLine(100, 100, 400, 100);
    desk.press("fil14"_c);
    desk.press("frmfile.Command2"_c);
    EXPECT_TRUE(desk.shell.ended());
    EXPECT_EQ(desk.disk.writesTried, 0);
}

TEST_F(FileWork, DialogClosedByItsFrameForgetsWhatWasAskedFor)
{
    desk.press("fil14"_c);
    desk.shell.closeForm("frmfile"_c);
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.s.saveFollowUp, 0);
    EXPECT_FALSE(desk.shell.ended());
    EXPECT_EQ(desk.s.store.entCount, 2);
}

TEST_F(FileWork, DialogDismissedElsewhereLeavesTheDrawingAlone)
{
    desk.press("fil7"_c);
    desk.press("frmfile.Command2"_c);
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.disk.writesTried, 0);
}

TEST_F(FileWork, UndoneWithoutASaveBeforeItStillCountsAsUnsaved)
{
    desk.press("undu"_c);
    desk.press("fil14"_c);
    EXPECT_FALSE(desk.shell.ended());
}

TEST_F(FileWork, UndoneAfterASaveCountsAsNothingToSave)
{
    desk.saveAs("house");
    desk.press("undu"_c);
    desk.press("fil14"_c);
    EXPECT_TRUE(desk.shell.ended());
}

TEST(Exit, WithNothingUnsavedWritesAllNineteenSettings)
{
    Desk desk;
    desk.press("fil14"_c);
    EXPECT_TRUE(desk.shell.ended());
    EXPECT_EQ(desk.settings.writes, 1);
    const std::map<std::string, std::string> expected = {
        {"tnam", "Garamond"}, {"tsize", "48"},      {"asize", "48"},       {"dstyle", "1"},
        {"tjust", "0"},       {"ntol", "0.125"},    {"ncom", "0"},         {"acom", "0"},
        {"nstyle", "us"},     {"wkd", fake::home},  {"wkmtad", fake::home}, {"wkmthd", fake::home},
        {"wkmtmd", fake::home}, {"wkdxfd", fake::home}, {"wkp", fake::home}, {"wkmtap", fake::home},
        {"wkmthp", fake::home}, {"wkmtmp", fake::home}, {"wkdxfp", fake::home}};
    EXPECT_EQ(desk.settings.values, expected);
}

TEST(Exit, DropsTheStepOfTheRunningFunction)
{
    Desk desk;
    desk.drawLine(100, 100, 400, 100);
    desk.click(700, 700);
    desk.shell.closeForm("frmMain"_c);
    EXPECT_EQ(desk.s.stepNo, 0);
}

TEST(Exit, AnswersNothingAfterwards)
{
    Desk desk;
    desk.press("fil14"_c);
    desk.click(100, 100);
    desk.press("Command9"_c);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.curFunc, "Line");
}

TEST(Exit, CarriesTheAttributesOfTheLastDrawingIntoTheSettings)
{
    Desk desk;
    EntityRecord header;
    header.kind = kind::header;
    header.p1 = {60, 24};
    header.p2 = {3, 2};
    header.p3 = {0.25F, 1};
    header.p4 = {1, 0};
    header.t1 = "br";
    header.t2 = "Courier";
    header.layer = 1;
    ByteWriter out(desk.disk.files[houseFile]);
    writeRecord(out, header);
    desk.open("house");
    desk.press("fil14"_c);
    EXPECT_EQ(desk.settings.values["tsize"], "60");
    EXPECT_EQ(desk.settings.values["asize"], "24");
    EXPECT_EQ(desk.settings.values["dstyle"], "3");
    EXPECT_EQ(desk.settings.values["tjust"], "2");
    EXPECT_EQ(desk.settings.values["ntol"], "0.25");
    EXPECT_EQ(desk.settings.values["ncom"], "1");
    EXPECT_EQ(desk.settings.values["acom"], "1");
    EXPECT_EQ(desk.settings.values["nstyle"], "br");
    EXPECT_EQ(desk.settings.values["tnam"], "Courier");
}

// Clearing

TEST_F(FileWork, CloseClearsTheDrawingAndNotTheSlots)
{
    desk.press("lw6"_c);
    desk.s.workLayer = 3;
    desk.s.layerTable.layerCount = 40;
    desk.s.store.ownerName[5] = "chair";
    desk.s.associateName = desk.s.hatchName = desk.s.multipleLinesName = "x";
    desk.s.controls["Label3"_c].caption = "Select Hatch";
    desk.saveAs("house");
    const std::int32_t group = desk.s.log.undoGroupNext;
    desk.ops();
    desk.press("fil5"_c);
    EXPECT_EQ(desk.s.store.entCount, 1);
    EXPECT_EQ(desk.s.savedCount, 1);
    EXPECT_EQ(desk.s.drawingName, "untitled.mtd");
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter beginning point of line:)"));
    EXPECT_EQ(desk.s.workLayer, 1);
    EXPECT_EQ(desk.s.layerTable.layerCount, 16);
    EXPECT_EQ(desk.s.controls["List1"_c].rows.size(), 16U);
    EXPECT_EQ(desk.text("Combo3"_c), "No :Wk :1");
    EXPECT_EQ(desk.caption("Label3"_c), "Set Working Layer");
    EXPECT_EQ(desk.s.store.ownerName[5], "??????");
    EXPECT_EQ(desk.s.associateName, "??????");
    EXPECT_EQ(desk.s.hatchName, "??????");
    EXPECT_EQ(desk.s.multipleLinesName, "??????");
    EXPECT_EQ(desk.s.log.undoLogCount, 0);
    EXPECT_EQ(desk.s.log.undoGroupNext, group);
    EXPECT_EQ(desk.s.curColor, 0x0000FF); // attributes stay
    EXPECT_EQ(desk.slot(1).p2, (Point{400, 100}));
    const fake::Ops ops = desk.ops();
    EXPECT_EQ(fake::only(ops, "clear").size(), 1U);
    EXPECT_EQ(fake::only(ops, "clearSnapshot").size(), 1U);
}

TEST_F(FileWork, OldUndoRecordsDoNotReachTheNewDrawing)
{
    desk.saveAs("house");
    desk.press("fil5"_c);
    desk.drawLine(0, 0, 10, 0);
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(1), Stat::out);
    desk.press("undu"_c); // the group before is that of the old drawing
    EXPECT_EQ(desk.stat(1), Stat::out);
}

// Opening

TEST_F(FileWork, OpenedIsWhatWasSaved)
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
    EXPECT_EQ(desk.slot(3).kind, kind::point);
    for (std::int32_t i = 1; i < 4; ++i) EXPECT_EQ(desk.stat(i), Stat::on) << i;
    EXPECT_EQ(desk.s.savedCount, 4);
    EXPECT_EQ(desk.s.drawingName, "house.mtd");
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(desk.text("memy"_c), "000.007");
}

TEST_F(FileWork, OpenedAndSavedAgainIsTheSameByteForByte)
{
    desk.saveAs("house");
    desk.open("house");
    desk.saveAs("second");
    desk.open("second");
    desk.saveAs("third");
    EXPECT_EQ(desk.disk.files["/home/user/second.mtd"], desk.disk.files["/home/user/third.mtd"]);
}

TEST_F(FileWork, OpenedHasTheMiddleOfItsLinesComputed)
{
    desk.saveAs("house");
    desk.open("house");
    EXPECT_EQ(desk.slot(1).p3, (Point{250, 100}));
}

TEST_F(FileWork, OpenedShowsItsLayersAndForgetsAssociates)
{
    desk.s.workLayer = 20;
    desk.drawLine(0, 0, 10, 0);
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

TEST_F(FileWork, OpenedHeaderAloneIsAnEmptyDrawingWithOneLayerRow)
{
    Desk empty;
    empty.saveAs("empty");
    empty.drawLine(0, 0, 10, 0);
    empty.saveAs("full");
    empty.open("empty");
    EXPECT_EQ(empty.s.store.entCount, 1);
    EXPECT_EQ(empty.s.layerTable.layerCount, 1);
    EXPECT_EQ(empty.s.controls["List1"_c].rows.size(), 1U);
    EXPECT_EQ(empty.text("Combo3"_c), "No :Wk :1"); // the working layer lies outside, and is shown all the same
    EXPECT_EQ(empty.pic1.getScale().width, 4800);
}

TEST_F(FileWork, OpenedFitsTheViewAnchoredAtTheUpperLeft)
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

TEST_F(FileWork, OpenedTextIsAnchoredByTheFontsMeasure)
{
    EntityRecord text;
    text.kind = kind::text;
    text.p1 = {100, 50};
    text.p2 = {10, 1}; // size, right
    text.p4 = {-1, -1};
    text.t1 = "abcd";
    text.t2 = "Garamond";
    text.layer = 1;
    desk.s.store.setRecord(2, text);
    desk.s.store.setStat(2, Stat::on);
    desk.s.store.entCount = 3;
    desk.saveAs("house");
    desk.open("house");
    EXPECT_NEAR(desk.slot(2).p4.x, 100 - 24 * 0.75 * 1.1, 0.001); // four characters, 0.6 of the size each
    EXPECT_NEAR(desk.slot(2).p4.y, 50, 0.001);
}

TEST_F(FileWork, OpenedKeepsGroupSerialsAndUndoFindsNothing)
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

TEST_F(FileWork, OpenedFromNothingLeavesAllAsItWas)
{
    desk.saveAs("house");
    desk.open("nowhere");
    EXPECT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.s.drawingName, "house.mtd");
    expectDialog(desk, "Open Drawing", "Open", "Close", "nowhere.mtd");
    EXPECT_FALSE(desk.disk.files.contains("/home/user/nowhere.mtd"));
}

TEST_F(FileWork, OpenedFromGarbageIsAnEmptyDrawingAndTheProgramGoesOn)
{
    desk.saveAs("house");
    desk.disk.files["/home/user/bad.mtd"] = Bytes(85, 0xFF);
    desk.disk.files["/home/user/none.mtd"] = {};
    for (const char* name : {"bad", "none"}) {
        desk.open(name);
        EXPECT_EQ(desk.s.store.entCount, 1) << name;
        desk.drawLine(0, 0, 10, 0);
        EXPECT_EQ(desk.s.store.entCount, 2) << name;
        desk.s.savedCount = 2;
    }
}

TEST_F(FileWork, OpenedOfEveryShortenedFileLeavesTheProgramAbleToGoOn)
{
    desk.drawLine(100, 200, 400, 200);
    desk.saveAs("house");
    const Bytes whole = desk.disk.files[houseFile];
    for (std::size_t n = 0; n < whole.size(); n += 13) {
        const auto cut = static_cast<std::ptrdiff_t>(n); // a short file
        desk.disk.files["/home/user/cut.mtd"] = Bytes(whole.begin(), whole.begin() + cut);
        desk.open("cut");
        EXPECT_EQ(desk.s.drawingName, "cut.mtd") << n;
        EXPECT_LE(desk.s.store.entCount, 3) << n;
        desk.press("Command42"_c);
    }
}

TEST_F(FileWork, OpenedEndsTheRunningStep)
{
    desk.saveAs("house");
    desk.click(700, 700);
    desk.open("house");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter beginning point of line:)", "house.mtd"));
}

TEST_F(FileWork, OpenedReadsTheFormerWhiteAsWhite)
{
    desk.s.curColor = 0xE0E0E0;
    desk.drawLine(0, 0, 10, 0);
    desk.saveAs("house");
    desk.open("house");
    EXPECT_EQ(desk.slot(2).color, 0xFFFFFF);
    EXPECT_EQ(desk.s.curColor, 0xFFFFFF);
}

// Names

struct NameRow {
    const char* typed;
    const char* file;
};

TEST(FileNames, KeepThePartBeforeTheFirstPoint)
{
    const NameRow rows[] = {{"house", "house.mtd"},       {"house.mtd", "house.mtd"}, {"a.b.c", "a.mtd"},
                            {"house.dxf", "house.mtd"},   {"my house", "my house.mtd"}};
    for (const NameRow& row : rows) {
        Desk desk;
        desk.saveAs(row.typed);
        EXPECT_TRUE(desk.disk.files.contains(std::string(fake::home) + "/" + row.file)) << row.typed;
        EXPECT_EQ(desk.text("frmfile.Text1"_c), row.file) << row.typed;
        EXPECT_EQ(desk.s.drawingName, row.file) << row.typed;
    }
}

TEST(FileNames, WithoutABaseConfirmNothing)
{
    for (const char* typed : {"", ".", ".mtd", "..x"}) {
        Desk desk;
        desk.saveAs(typed);
        EXPECT_EQ(desk.disk.writesTried, 0) << typed;
        EXPECT_TRUE(desk.visible("frmfile"_c)) << typed;
    }
}

TEST(FileNames, StayAsTypedUntilTheyAreConfirmed)
{
    Desk desk;
    desk.press("fil7"_c);
    desk.name("a.b");
    EXPECT_EQ(desk.text("frmfile.Text1"_c), "a.b");
}

TEST(FileNames, ThatExistTurnTheButtonToOverwriteAndBack)
{
    Desk desk;
    desk.disk.files[houseFile] = {};
    desk.press("fil7"_c);
    desk.name("hous");
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Save");
    desk.type("e");
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Overwrite?");
    desk.type("s");
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Save");
    desk.backspace();
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Overwrite?");
    desk.enter();
    EXPECT_FALSE(desk.disk.files[houseFile].empty()); // it confirms at once
}

TEST(FileNames, OfAnOpenDialogNeverTurnItsButton)
{
    Desk desk;
    desk.disk.files[houseFile] = {};
    desk.press("fil4"_c);
    desk.name("house");
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Open");
    desk.type("s");
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Open");
    desk.shell.clickRow("frmfile.File1"_c, 0);
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Open");
    EXPECT_EQ(desk.text("frmfile.Text1"_c), "house.mtd");
}

TEST(FileNames, ProposedOpenAsSaveEvenWhereTheFileExists)
{
    Desk desk;
    desk.disk.files["/home/user/untitled.mtd"] = {};
    desk.press("fil7"_c);
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Save");
}

TEST(FileNames, PickedFromTheListAreCopiedAndWarned)
{
    Desk desk;
    desk.disk.files[houseFile] = {};
    desk.press("fil7"_c);
    desk.shell.clickRow("frmfile.File1"_c, 0);
    EXPECT_EQ(desk.text("frmfile.Text1"_c), "house.mtd");
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Overwrite?");
}

TEST(FileNames, AreComparedCaseAsStored)
{
    Desk desk;
    desk.disk.files[houseFile] = {};
    desk.press("fil7"_c);
    desk.name("House");
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Save");
}

TEST(FileNames, DoNotLeadToAnotherFolder)
{
    Desk desk;
    desk.saveAs("../evil");
    EXPECT_TRUE(desk.disk.files.empty());
    EXPECT_FALSE(desk.shell.ended());
}

// Folders

TEST(FileFolders, ShownIsTheLastPathThenTheWorkingOneThenTheProgramsOwn)
{
    struct Row {
        const char* last;
        const char* working;
        const char* shown;
    };
    const Row rows[] = {{"/plans", "/work", "/plans"}, {"/gone", "/work", "/work"}, {"/gone", "/lost", fake::home}};
    for (const Row& row : rows) {
        Desk desk({{"wkp", row.last}, {"wkd", row.working}});
        desk.folders.folders.insert({"/plans", "/work"});
        desk.press("fil4"_c);
        EXPECT_EQ(desk.text("frmfile.Dir1"_c), row.shown);
    }
}

TEST(FileFolders, ConfirmedAreRememberedOnSaveAndOnOpen)
{
    Desk desk;
    desk.folders.folders.insert("/home/user/plans");
    desk.disk.files["/home/user/plans/house.mtd"] = {};
    desk.press("fil4"_c);
    desk.shell.clickRow("frmfile.Dir1"_c, 1); // ".." first
    EXPECT_EQ(desk.text("frmfile.Dir1"_c), "/home/user/plans");
    EXPECT_EQ(desk.s.controls["frmfile.File1"_c].rows, std::vector<std::string>{"house.mtd"});
    desk.shell.clickRow("frmfile.File1"_c, 0);
    desk.press("frmfile.Command1"_c);
    EXPECT_EQ(desk.s.drawings.last, "/home/user/plans");
    EXPECT_EQ(desk.s.drawings.working, fake::home);
    desk.drawLine(0, 0, 10, 0);
    desk.press("fil7"_c);
    EXPECT_EQ(desk.text("frmfile.Dir1"_c), "/home/user/plans");
    desk.press("frmfile.Command1"_c);
    EXPECT_FALSE(desk.disk.files["/home/user/plans/house.mtd"].empty());
}

} // namespace
} // namespace mirtane
