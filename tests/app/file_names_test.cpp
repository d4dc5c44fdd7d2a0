#include "layer_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;
using fake::houseFile;

struct NameRow {
    const char* typed;
    const char* file;
};

TEST(FileNames, KeepThePartBeforeTheFirstPoint)
{
    const NameRow rows[] = {{"house", "house.mtd"},
                            {"house.mtd", "house.mtd"},
                            {"a.b.c", "a.mtd"},
                            {"house.dxf", "house.mtd"},
                            {"my house", "my house.mtd"}};
    for (const NameRow& row : rows) {
        Desk desk;
        desk.saveAs(row.typed);
        EXPECT_TRUE(desk.disk.files.contains(std::string(fake::home) + "/" + row.file)) << row.typed;
        EXPECT_EQ(desk.text("frmfile.Text1"_c), row.file) << row.typed;
        EXPECT_EQ(desk.s.drawingName, row.file) << row.typed;
    }
}

// What the drawing holds may be called in ways that no file can be.
TEST(FileNames, ThatAreProposedLeadToNoOtherFolder)
{
    const NameRow rows[] = {
        {"1/2 wall", "1-2 wall.mtd"},
        {"A/B/C", "A-B-C.mtd"},
        {"../plans/house", "---plans-house.mtd"},
        {"/srv/x", "-srv-x.mtd"},
        {"~/q", "--q.mtd"},
        {"~", "-.mtd"},
        {"..", "--.mtd"},
        {".", "-.mtd"},
        {".5 brick", "-5 brick.mtd"},
        {"1.5 wall", "1.5 wall.mtd"},
        {"plain", "plain.mtd"},
        {"a~b", "a~b.mtd"},
        {"x/", "x-.mtd"},
    };
    for (const NameRow& row : rows) {
        fake::LayerDesk desk;
        for (const char* folder : {"/home", "/home/user/1", "/home/user/plans", "/home/plans", "/srv"})
            desk.folders.folders.insert(folder);
        desk.add(1);
        desk.nameLayer(1, row.typed);
        desk.menuRow("ly15"_c, 1);
        EXPECT_EQ(desk.text("frmfile.Text1"_c), row.file) << row.typed;
        desk.enter();
        EXPECT_FALSE(desk.visible("frmfile"_c)) << row.typed;
        EXPECT_TRUE(desk.disk.files.contains(std::string(fake::home) + "/" + row.file)) << row.typed;
        EXPECT_EQ(desk.text("frmfile.Dir1"_c), fake::home) << row.typed;
    }
}

TEST(FileNames, ThatAreTypedWithASlashAreStillPaths)
{
    fake::LayerDesk desk;
    desk.folders.folders.insert("/home/user/1");
    desk.add(1);
    desk.menuRow("ly15"_c, 1);
    desk.name("1/2 wall");
    desk.enter();
    EXPECT_TRUE(desk.disk.files.contains("/home/user/1/2 wall.mtd"));
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

// -- folders --

TEST(FileFolders, ShownIsTheLastPathThenTheWorkingOneThenTheProgramsOwn)
{
    struct Row {
        const char* last;
        const char* working;
        const char* shown;
    };
    const Row rows[] = {
        {"/plans", "/jobs", "/plans"}, {"/gone", "/jobs", "/jobs"}, {"/gone", "/lost", fake::home}};
    for (const Row& row : rows) {
        Desk desk({{"wkp", row.last}, {"wkd", row.working}});
        desk.folders.folders.insert({"/plans", "/jobs"});
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
    desk.drawLine(2, 0, 10, 0);
    desk.press("fil7"_c);
    EXPECT_EQ(desk.text("frmfile.Dir1"_c), "/home/user/plans");
    desk.press("frmfile.Command1"_c);
    EXPECT_FALSE(desk.disk.files["/home/user/plans/house.mtd"].empty());
}

TEST(FileNames, WithTwoPointsAreTakenAsTheyStandInTheList)
{
    const Bytes other = {1, 2, 3};
    Desk desk;
    desk.drawLine(100, 100, 400, 100);
    desk.saveAs("plan");
    desk.disk.files["/home/user/plan.two.mtd"] = desk.disk.files["/home/user/plan.mtd"];
    desk.disk.files["/home/user/plan.mtd"] = other;
    desk.press("fil4"_c);
    desk.shell.clickRow("frmfile.File1"_c, 1);
    desk.press("frmfile.Command1"_c);
    EXPECT_EQ(desk.s.drawingName, "plan.two.mtd");
    EXPECT_EQ(desk.s.store.entCount, 2);
    desk.press("fil7"_c);
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Save");
    desk.shell.clickRow("frmfile.File1"_c, 1);
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Overwrite?");
    desk.press("frmfile.Command1"_c);
    EXPECT_EQ(desk.disk.files["/home/user/plan.mtd"], other);
    EXPECT_FALSE(desk.visible("frmfile"_c));
}

} // namespace
} // namespace mirtane
