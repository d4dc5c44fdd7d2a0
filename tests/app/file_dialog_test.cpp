#include "files/entity_record_codec.h"

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;
using fake::houseFile;

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

// Of many drives the last is the working folder.
TEST(FileDialog, ShowsTheFilesOfADriveThatIsChosen)
{
    const char* plans = "/a/long/way/to/the/plans";
    Desk desk({{"wkd", plans}, {"wkp", fake::home}});
    desk.folders.folders.insert(plans);
    desk.disk.files = {{std::string(plans) + "/barn.mtd", {}}};
    desk.press("fil4"_c);
    EXPECT_EQ(desk.text("frmfile.Dir1"_c), fake::home);
    const int last = static_cast<int>(desk.s.controls["frmfile.Drive1"_c].rows.size()) - 1; // two rows
    desk.shell.clickRow("frmfile.Drive1"_c, last);
    EXPECT_EQ(desk.text("frmfile.Dir1"_c), plans);
    EXPECT_EQ(desk.s.controls["frmfile.File1"_c].rows, std::vector<std::string>{"barn.mtd"});
    EXPECT_EQ(desk.s.controls["frmfile.Drive1"_c].row, last);
}

// -- opening, closing, leaving --

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
        desk.shell.closeForm("frmfile"_c);
    }
    desk.shell.closeForm("frmMain"_c);
    expectDialog(desk, "Save Changes", "Save", "End", "untitled.mtd");
    EXPECT_EQ(desk.s.saveFollowUp, 1);
    EXPECT_FALSE(desk.shell.ended());
}

TEST_F(FileWork, SaveDrawingOpensSaveFileAndAsksForNothingAfterwards)
{
    desk.press("fil5"_c); // leaves a follow-up behind
    desk.shell.closeForm("frmfile"_c);
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
    EXPECT_EQ(header.kind, headerKind);
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
        {"tnam", "Garamond"},   {"tsize", "48"},        {"asize", "48"},        {"dstyle", "1"},
        {"tjust", "0"},         {"ntol", "0.125"},      {"ncom", "0"},          {"acom", "0"},
        {"nstyle", "us"},       {"wkd", fake::home},    {"wkmtad", fake::home}, {"wkmthd", fake::home},
        {"wkmtmd", fake::home}, {"wkdxfd", fake::home}, {"wkp", fake::home},    {"wkmtap", fake::home},
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
    header.kind = headerKind;
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

// -- clearing --

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
    desk.drawLine(2, 0, 10, 0);
    desk.press("undu"_c);
    EXPECT_EQ(desk.stat(1), Stat::out);
    desk.press("undu"_c); // the group before is that of the old drawing
    EXPECT_EQ(desk.stat(1), Stat::out);
}

TEST(FileDialog, ADriveIsARowOfTheListThatItFillsAnew)
{
    Desk desk;
    desk.folders.folders.insert("/a folder with a long name of its own");
    desk.s.drawings.working = "/a folder with a long name of its own";
    desk.press("fil4"_c);
    desk.shell.clickRow("frmfile.Drive1"_c, 1);
    EXPECT_EQ(desk.text("frmfile.Dir1"_c), "/a folder with a long name of its own");
    EXPECT_EQ(desk.s.controls["frmfile.Drive1"_c].row, 1);
}

} // namespace
} // namespace mirtane
