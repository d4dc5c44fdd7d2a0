// A program that is started with the name of a drawing.

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

// The bytes of a drawing with one line.
Bytes oneLine()
{
    Desk desk;
    desk.drawLine(100, 100, 400, 100);
    desk.saveAs("line");
    return desk.disk.files["/home/user/line.mtd"];
}

struct StartWithDrawing : testing::Test {
    StartWithDrawing() { desk.folders.folders.insert("/plans"); }

    void put(const std::string& path) { desk.disk.files[path] = oneLine(); }

    Desk desk;
};

TEST_F(StartWithDrawing, ShowsItAndStandsInLine)
{
    put("/plans/house.mtd");
    desk.shell.openDrawing("/plans/house.mtd");
    ASSERT_EQ(desk.s.store.entCount, 2);
    EXPECT_EQ(desk.slot(1).p2, (Point{400, 100}));
    EXPECT_EQ(desk.s.savedCount, 2);
    EXPECT_EQ(desk.title(), fake::titleOf("Line(Enter beginning point of line:)", "house.mtd"));
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(fake::marks(desk.ops()).size(), 1U);
}

TEST_F(StartWithDrawing, IsTheSameAsOpenDrawing)
{
    put("/home/user/house.mtd");
    Desk other;
    other.disk.files = desk.disk.files;
    desk.shell.openDrawing("/home/user/house.mtd");
    other.open("house");
    EXPECT_EQ(desk.ops(), other.ops());
    EXPECT_EQ(desk.s.drawingName, other.s.drawingName);
    EXPECT_EQ(desk.s.drawings.last, other.s.drawings.last);
    EXPECT_EQ(desk.caption("promptlab"_c), other.caption("promptlab"_c));
}

TEST_F(StartWithDrawing, SavesBesideIt)
{
    put("/plans/house.mtd");
    desk.shell.openDrawing("/plans/house.mtd");
    desk.drawLine(2, 0, 10, 0);
    desk.press("fil7"_c);
    desk.press("frmfile.Command1"_c);
    EXPECT_GT(desk.disk.files["/plans/house.mtd"].size(), oneLine().size());
}

TEST_F(StartWithDrawing, TakesTheFileOfThatVeryName)
{
    struct Row {
        const char* asked;
        const char* there;
        const char* name;
    };
    const Row rows[] = {
        {"/plans/house", "/plans/house.mtd", "house.mtd"},
        {"/plans/house.old.mtd", "/plans/house.old.mtd", "house.old.mtd"},
        {"/plans/HOUSE.MTD", "/plans/HOUSE.MTD", "HOUSE.MTD"},
        {"/plans/--help", "/plans/--help.mtd", "--help.mtd"},
        {"/plans/my house \xC3\xA4.mtd", "/plans/my house \xC3\xA4.mtd", "my house \xC3\xA4.mtd"},
    };
    for (const Row& row : rows) {
        Desk started;
        started.folders.folders.insert("/plans");
        started.disk.files[row.there] = oneLine();
        started.disk.files["/plans/other.mtd"] = {};
        started.shell.openDrawing(row.asked);
        EXPECT_EQ(started.s.store.entCount, 2) << row.asked;
        EXPECT_EQ(started.s.drawingName, row.name) << row.asked;
        EXPECT_FALSE(started.visible("frmfile"_c)) << row.asked;
    }
}

TEST_F(StartWithDrawing, ThatIsMissingLeavesTheDialogUpInItsFolder)
{
    put("/plans/other.mtd");
    desk.shell.openDrawing("/plans/house.mtd");
    EXPECT_EQ(desk.s.store.entCount, 1);
    EXPECT_EQ(desk.s.drawingName, "untitled.mtd");
    ASSERT_TRUE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.caption("frmfile"_c), "Open Drawing");
    EXPECT_EQ(desk.text("frmfile.Text1"_c), "house.mtd");
    EXPECT_EQ(desk.text("frmfile.Dir1"_c), "/plans");
    EXPECT_EQ(desk.focused(), "frmfile.Text1");
    desk.name("other");
    desk.enter();
    EXPECT_EQ(desk.s.drawingName, "other.mtd");
}

TEST_F(StartWithDrawing, InAFolderThatIsMissingLeavesTheDialogUp)
{
    desk.shell.openDrawing("/gone/house.mtd");
    EXPECT_TRUE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.text("frmfile.Dir1"_c), fake::home);
    EXPECT_EQ(desk.text("frmfile.Text1"_c), "house.mtd");
    EXPECT_EQ(desk.s.store.entCount, 1);
}

TEST_F(StartWithDrawing, IsNoFileOfAnotherKind)
{
    for (const char* path : {"/plans/house.dxf", "/plans/door.mta", "/plans/house.mtd.txt", "/plans/.mtd"}) {
        Desk started;
        started.folders.folders.insert("/plans");
        started.disk.files[path] = oneLine();
        started.shell.openDrawing(path);
        EXPECT_EQ(started.s.store.entCount, 1) << path;
        EXPECT_TRUE(started.visible("frmfile"_c)) << path;
    }
}

TEST_F(StartWithDrawing, OfNoWholeRecordIsAnEmptyDrawing)
{
    desk.disk.files["/plans/house.mtd"] = {1, 2, 3};
    desk.shell.openDrawing("/plans/house.mtd");
    EXPECT_EQ(desk.s.store.entCount, 1);
    EXPECT_EQ(desk.s.drawingName, "untitled.mtd") << "a save must not replace what it was";
    EXPECT_FALSE(desk.visible("frmfile"_c));
}

// Where nobody writes into the program's folder.
TEST(OwnFolder, IsWhereFilesBeginAndTheProgramsFolderStaysADrive)
{
    Desk desk;
    desk.folders.folders.insert("/usr/share/program");
    const auto own = std::make_unique<Session>();
    Session& session = *own;
    Shell shell(session, desk.pic1,
                {desk.disk, desk.folders, desk.settings, "/usr/share/program", nullptr, nullptr, fake::home});
    shell.start();
    for (const ControlId menu : {"fil4"_c, "dd2"_c, "ass10"_c, "ht8"_c, "ml6"_c}) {
        shell.click(menu);
        EXPECT_EQ(session.controls["frmfile.Dir1"_c].text, fake::home);
        const std::vector<std::string>& drives = session.controls["frmfile.Drive1"_c].rows;
        EXPECT_NE(std::ranges::find(drives, "/usr/share/program"), drives.end());
        shell.closeForm("frmfile"_c);
    }
}

} // namespace
} // namespace mirtane
