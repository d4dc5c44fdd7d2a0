// Paths in place of a name in the file dialog; what went wrong is said there; Tab; the libraries' first
// folder.

#include "desk.h"

#include "library/libraries.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

constexpr char32_t tab = 9;

struct Plans : testing::Test {
    Plans()
    {
        for (const char* folder :
             {"/srv", "/srv/big plans", "/home/user/plans", "/home/user/plans/old", "/home/b"})
            desk.folders.folders.insert(folder);
        desk.drawLine(100, 200, 700, 500);
    }

    void saveAs(const char* typed)
    {
        desk.press("fil7"_c);
        desk.name(typed);
        desk.enter();
    }

    void tabIn(const char* typed)
    {
        desk.name(typed);
        desk.shell.keyPress(tab);
    }

    const std::string& typed() const { return desk.text("frmfile.Text1"_c); }
    const std::string& fault() const { return desk.caption("frmfile.Label5"_c); }
    const std::string& button() const { return desk.caption("frmfile.Command1"_c); }

    Desk desk;
};

TEST_F(Plans, APathIsTakenWhereverItLeads)
{
    struct Row {
        const char* typed;
        const char* file;
    };
    const Row rows[] = {
        {"~/plans/house", "/home/user/plans/house.mtd"},
        {"/srv/x.mtd", "/srv/x.mtd"},
        {"/srv/big plans/barn", "/srv/big plans/barn.mtd"},
        {"../b/shed", "/home/b/shed.mtd"},
        {"plans/old/../hut", "/home/user/plans/hut.mtd"},
        {"./gate", "/home/user/gate.mtd"},
        {"//srv//y", "/srv/y.mtd"},
        {"/../../srv/z.old", "/srv/z.mtd"},
        {"../b", "/home/b.mtd"}, // a name beside the folder of that name
    };
    for (const Row& row : rows) {
        desk.s.drawingFolder = fake::home;
        saveAs(row.typed);
        EXPECT_FALSE(desk.visible("frmfile"_c)) << row.typed << ": " << fault();
        EXPECT_EQ(desk.s.drawingFile, row.file) << row.typed;
        EXPECT_TRUE(desk.disk.files.contains(row.file)) << row.typed;
    }
}

TEST_F(Plans, AFolderIsOpenedAndTheRestIsTheName)
{
    saveAs("~/plans/");
    EXPECT_TRUE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.caption("frmfile.Label3"_c), "/home/user/plans");
    EXPECT_EQ(typed(), "");
    desk.name("..");
    desk.enter();
    EXPECT_EQ(desk.caption("frmfile.Label3"_c), "/home/user");
    desk.name("~");
    desk.enter();
    EXPECT_EQ(desk.caption("frmfile.Label3"_c), "/home/user");
    EXPECT_TRUE(desk.disk.files.empty());
}

TEST_F(Plans, AFolderNamedInAnOpenDialogIsOpened)
{
    desk.disk.files = {{"/home/user/plans/old.mtd", {}}};
    desk.shell.closeForm("frmfile"_c);
    desk.press("undu"_c); // nothing is unsaved
    desk.s.savedCount = desk.s.store.entCount;
    desk.press("ht8"_c);
    desk.name("/srv/big plans");
    desk.enter();
    EXPECT_EQ(desk.caption("frmfile.Label3"_c), "/srv/big plans");
    EXPECT_EQ(fault(), "");
}

TEST_F(Plans, WhereAPathLeadsToAFileTheButtonSaysSoAsItIsTyped)
{
    desk.disk.files = {{"/srv/x.mtd", {1}}};
    desk.press("fil7"_c);
    desk.name("/srv/x");
    EXPECT_EQ(button(), "Overwrite?");
    desk.type("y");
    EXPECT_EQ(button(), "Save");
    desk.backspace();
    EXPECT_EQ(button(), "Overwrite?");
    desk.enter();
    EXPECT_NE(desk.disk.files["/srv/x.mtd"], Bytes{1});
}

TEST_F(Plans, WhatWentWrongIsSaidBesideTheNameUntilItIsChanged)
{
    saveAs("/nowhere/at/all/x");
    EXPECT_EQ(fault(), "There is no folder /nowhere/at/all");
    EXPECT_EQ(typed(), "/nowhere/at/all/x.mtd");
    desk.type("y");
    EXPECT_EQ(fault(), "");
    desk.disk.refusesWrites = true;
    desk.name("/srv/full");
    desk.enter();
    EXPECT_EQ(fault(), "Drawing not saved!");
    EXPECT_EQ(desk.text("entry"_c), "Drawing not saved!");
    desk.shell.closeForm("frmfile"_c);

    desk.press("ht8"_c);
    EXPECT_EQ(fault(), "");
    desk.name("brick");
    desk.enter();
    EXPECT_EQ(fault(), "There is no file brick.mth");
    HatchRow row;
    row.hatchName = "tiles";
    desk.s.hatchLibrary.add(row);
    desk.disk.files["/home/user/tiles.mth"] = {};
    desk.name("tiles");
    desk.enter();
    EXPECT_EQ(fault(), "Name already exists!");
}

TEST_F(Plans, TheListShowsTheFileThatIsMeantLit)
{
    desk.disk.files = {{"/home/user/barn.mth", {}}, {"/home/user/house.mth", {}}, {"/srv/x.mth", {}}};
    desk.press("ht8"_c);
    const Control& files = desk.s.controls["frmfile.File1"_c];
    EXPECT_EQ(files.row, -1);
    desk.name("house");
    EXPECT_EQ(files.row, 1);
    desk.backspace();
    EXPECT_EQ(files.row, -1);
    desk.name("barn.mth");
    EXPECT_EQ(files.row, 0);
    desk.shell.clickRow("frmfile.File1"_c, 1);
    EXPECT_EQ(files.row, 1);
    EXPECT_EQ(desk.text("frmfile.Picture1"_c), "/home/user/house.mth");
    desk.name("/srv/x");
    EXPECT_EQ(files.row, -1);
    EXPECT_EQ(desk.text("frmfile.Picture1"_c), "");
}

TEST_F(Plans, TabCompletesANameAsFarAsAllAgree)
{
    desk.disk.files = {{"/home/user/house one.mth", {}},
                       {"/home/user/house two.mth", {}},
                       {"/home/user/barn.mth", {}},
                       {"/srv/big plans/wall.mth", {}}};
    desk.press("ht8"_c);
    const std::pair<const char*, const char*> rows[] = {
        {"h", "house "},
        {"house t", "house two.mth"},
        {"b", "barn.mth"},
        {"p", "plans/"},
        {"plans/o", "plans/old/"},
        {"x", "x"},
        {"", ""},
        {"/srv/b", "/srv/big plans/"},
        {"/srv/big plans/w", "/srv/big plans/wall.mth"},
        {"~/b", "~/barn.mth"},
        {"/nowhere/b", "/nowhere/b"},
    };
    for (const auto& [before, after] : rows) {
        tabIn(before);
        EXPECT_EQ(typed(), after) << before;
    }
    tabIn("b");
    EXPECT_EQ(desk.s.controls["frmfile.File1"_c].row, 0);
}

// The second Enter would replace it: the first is meant for the button that Tab used to lead to.
TEST_F(Plans, TabChoosesNoFileToBeReplaced)
{
    struct Row {
        ControlId menu;
        const char* typed;
        const char* neighbour;
    };
    const Row rows[] = {{"fil7"_c, "house", "/home/user/house-old.mtd"},
                        {"fil7"_c, "~/plans/h", "/home/user/plans/hut.mtd"},
                        {"fil7"_c, "/srv/big plans/b", "/srv/big plans/barn.mtd"},
                        {"dd4"_c, "house", "/home/user/house-old.dxf"}};
    for (const Row& row : rows) {
        desk.disk.files[row.neighbour] = {1, 2, 3};
        desk.s.store.setStat(1, Stat::sel);
        desk.press(row.menu);
        tabIn(row.typed);
        EXPECT_EQ(typed(), row.typed);
        EXPECT_EQ(button(), "Save") << row.typed;
        desk.enter();
        desk.enter();
        EXPECT_EQ(desk.disk.files[row.neighbour], (Bytes{1, 2, 3})) << row.neighbour;
        desk.press("frmfile.Command2"_c);
    }
    desk.press("fil7"_c);
    tabIn("~/pl");
    EXPECT_EQ(typed(), "~/plans/") << "folders are completed";
}

TEST_F(Plans, TabCutsNoLetter)
{
    struct Row {
        const char* one;
        const char* other;
        const char* completed;
    };
    const Row rows[] = {{"/srv/café.mth", "/srv/cafè.mth", "/srv/caf"},
                        {"/srv/50€.mth", "/srv/50₤.mth", "/srv/50"},
                        {"/srv/x\U0001F3E0.mth", "/srv/x\U0001F3E1.mth", "/srv/x"},
                        {"/srv/größe.mth", "/srv/größer.mth", "/srv/größe"}};
    for (const Row& row : rows) {
        desk.disk.files = {{row.one, {1}}, {row.other, {1}}};
        desk.press("ht8"_c);
        tabIn(std::string(row.completed).substr(0, 6).c_str());
        EXPECT_EQ(typed(), row.completed);
        desk.press("frmfile.Command2"_c);
    }
}

// Only what would be replaced is warned of.
TEST_F(Plans, FilesOfOtherKindsAndFoldersAreNotInTheWay)
{
    desk.disk.files["/srv/notes.txt"] = {1};
    desk.folders.folders.insert("/srv/plans");
    desk.press("fil7"_c);
    for (const char* path : {"/srv/notes.txt", "/srv/plans", "/srv/notes", "/srv/plans.mtd"}) {
        desk.name(path);
        EXPECT_EQ(button(), "Save") << path;
    }
    desk.disk.files["/srv/notes.mtd"] = {9, 9};
    desk.name("/srv/notes.txt");
    EXPECT_EQ(button(), "Overwrite?") << "what is saved is called notes.mtd";
    desk.name("/srv/plans");
    desk.enter();
    EXPECT_TRUE(desk.disk.files.contains("/srv/plans.mtd"));
    EXPECT_EQ(desk.disk.files["/srv/notes.mtd"], (Bytes{9, 9}));
}

TEST_F(Plans, ANameThatBeginsWithAPointIsRefusedAloud)
{
    for (const char* path : {"/srv/.plan", ".plan", "~/plans/.x.mtd"}) {
        desk.press("fil7"_c);
        desk.name(path);
        desk.enter();
        EXPECT_TRUE(desk.visible("frmfile"_c)) << path;
        EXPECT_EQ(fault(), "A name can't begin with a point") << path;
        desk.press("frmfile.Command2"_c);
    }
    EXPECT_TRUE(desk.disk.files.empty());
}

TEST_F(Plans, HomeIsTheUsersAndNotTheProgramsWhereTheyDiffer)
{
    desk.folders.folders.insert("/home/ann");
    Shell shell(desk.s, desk.pic1,
                Ports{desk.disk, desk.folders, desk.settings, "/srv", nullptr, nullptr, "/home/user", nullptr,
                      nullptr, nullptr, "/home/ann"});
    shell.click("fil7"_c);
    setText(desk.s.controls["frmfile.Text1"_c], "~/mine");
    shell.keyPress(13);
    EXPECT_TRUE(desk.disk.files.contains("/home/ann/mine.mtd"));
}

TEST(LibraryFolders, BeginWithWhatCameWithTheProgramUntilOneIsStored)
{
    const auto start = [](Desk& desk, const std::map<std::string, std::string>& stored) {
        desk.folders.folders.insert("/usr/share/mirtane/libraries");
        desk.folders.folders.insert("/home/user/own");
        desk.settings.values = stored;
        Shell shell(desk.s, desk.pic1,
                    Ports{desk.disk, desk.folders, desk.settings, "/usr/share/mirtane", nullptr, nullptr,
                          fake::home, nullptr, nullptr, nullptr, fake::home, "/usr/share/mirtane/libraries"});
        shell.start();
        shell.click("ht8"_c);
        return desk.caption("frmfile.Label3"_c);
    };
    Desk fresh;
    EXPECT_EQ(start(fresh, {}), "/usr/share/mirtane/libraries");
    EXPECT_EQ(fresh.s.multipleLines.last, "/usr/share/mirtane/libraries");
    EXPECT_EQ(fresh.s.associates.last, "/usr/share/mirtane/libraries");
    EXPECT_EQ(fresh.s.drawings.last, fake::home);
    Desk used;
    EXPECT_EQ(start(used, {{"wkmthp", "/home/user/own"}}), "/home/user/own");
}

// Where an installed program stands nobody writes.
TEST(LastFolders, ThatAreGoneGiveWayToTheUsersOwn)
{
    struct Row {
        const char* what;
        std::map<std::string, std::string> stored;
        ControlId menu;
        const char* shown;
    };
    const std::string program = "/usr/share/mirtane";
    const Row rows[] = {
        {"a stick", {{"wkp", "/media/stick"}}, "fil7"_c, fake::home},
        {"a stick, a selection", {{"wkp", "/media/stick"}}, "fil9"_c, fake::home},
        {"a stick, an export", {{"wkdxfp", "/media/stick"}}, "dd4"_c, fake::home},
        {"a stick, with a working folder", {{"wkp", "/media/stick"}, {"wkd", "/plans"}}, "fil7"_c, "/plans"},
        {"both", {{"wkp", "/media/stick"}, {"wkd", "/media/other"}}, "fil7"_c, fake::home},
        {"no absolute path", {{"wkp", "plans"}}, "fil7"_c, fake::home},
        {"one that is there", {{"wkp", "/plans"}}, "fil7"_c, "/plans"},
        {"the program's, chosen by the user", {{"wkp", program}}, "fil7"_c, "/usr/share/mirtane"},
        {"what is opened", {{"wkp", "/media/stick"}}, "fil4"_c, "/usr/share/mirtane"},
    };
    for (const Row& row : rows) {
        Desk desk;
        desk.folders.folders.insert({program, "/plans"});
        desk.settings.values = row.stored;
        Shell shell(desk.s, desk.pic1,
                    Ports{desk.disk, desk.folders, desk.settings, program, nullptr, nullptr, fake::home});
        shell.start();
        desk.add(fake::record(Kind::line, {30, -7}, {1200, 455}), Stat::sel);
        desk.s.savedCount = desk.s.store.entCount;
        shell.click(row.menu);
        EXPECT_EQ(desk.caption("frmfile.Label3"_c), row.shown) << row.what;
    }
}

} // namespace
} // namespace mirtane
