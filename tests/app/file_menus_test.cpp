// The menu entries and other callers that lead to the file dialog, and how each of them primes it.

#include "app/menus/file_menus.h"

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

constexpr const char* drawingType = "Mirtane Drawing    *.mtd";
constexpr const char* dxfType = "DXF Format    *.dxf";
constexpr const char* associateType = "Mirtane Associate    *.mta";
constexpr const char* hatchType = "Mirtane Hatch    *.mth";
constexpr const char* multipleLinesType = "Multiple Lines    *.mtm";

struct DialogRow {
    const char* caption;
    const char* confirm;
    const char* pattern;
    const char* typeLine;
    const char* name;
    const char* folder;
};

// Each pattern has a last path of its own.
std::map<std::string, std::string> foldersApart()
{
    return {{"wkp", "/drawings"},
            {"wkdxfp", "/dxfs"},
            {"wkmtap", "/associates"},
            {"wkmthp", "/hatches"},
            {"wkmtmp", "/lines"}};
}

struct Menus : testing::Test {
    Menus() { desk.folders.folders.insert({"/drawings", "/dxfs", "/associates", "/hatches", "/lines"}); }

    void expectDialog(const DialogRow& row)
    {
        EXPECT_TRUE(desk.visible("frmfile"_c)) << row.caption;
        EXPECT_EQ(desk.caption("frmfile"_c), row.caption);
        EXPECT_EQ(desk.caption("frmfile.Command1"_c), row.confirm) << row.caption;
        EXPECT_EQ(desk.caption("frmfile.Command2"_c), "Close") << row.caption;
        EXPECT_EQ(desk.s.filePattern, row.pattern) << row.caption;
        EXPECT_EQ(desk.text("frmfile.Text2"_c), row.typeLine) << row.caption;
        EXPECT_EQ(desk.text("frmfile.Text1"_c), row.name) << row.caption;
        EXPECT_EQ(desk.text("frmfile.Dir1"_c), row.folder) << row.caption;
        EXPECT_EQ(desk.s.saveFollowUp, 0) << row.caption;
        EXPECT_EQ(desk.focused(), "frmfile.Text1") << row.caption;
    }

    Desk desk{foldersApart()};
    Ports ports{desk.disk, desk.folders, desk.settings, fake::home};
    DxfScratch scratch;
};

TEST_F(Menus, PrimeTheDialogEachInItsWay)
{
    const std::pair<ControlId, DialogRow> rows[] = {
        {"fil4"_c, {"Open Drawing", "Open", "*.mtd", drawingType, "", "/drawings"}},
        {"fil7"_c, {"Save File", "Save", "*.mtd", drawingType, "untitled.mtd", "/drawings"}},
        {"fil9"_c, {"Save Selected", "Save", "*.mtd", drawingType, "selected.mtd", "/drawings"}},
        {"dd2"_c, {"Open DXF", "Open", "*.dxf", dxfType, "", "/dxfs"}},
        {"dd4"_c, {"Save DXF", "Save", "*.dxf", dxfType, "untitled.dxf", "/dxfs"}},
        {"ass10"_c, {"Open Associate", "Open", "*.mta", associateType, "", "/associates"}},
        {"ht8"_c, {"Open Hatch", "Open", "*.mth", hatchType, "", "/hatches"}},
        {"ml6"_c, {"Open Multiple Lines", "Open", "*.mtm", multipleLinesType, "", "/lines"}}};
    desk.drawLine(100, 100, 400, 100);
    desk.s.savedCount = desk.s.store.entCount;
    desk.s.store.setStat(1, Stat::sel);
    for (const auto& [entry, row] : rows) {
        desk.press(entry);
        expectDialog(row);
        desk.press("frmfile.Command2"_c);
        EXPECT_FALSE(desk.visible("frmfile"_c)) << row.caption;
        EXPECT_EQ(desk.s.store.entCount, 2) << row.caption;
    }
}

TEST_F(Menus, OfOtherCallersPrimeTheDialogByItsCaption)
{
    const DialogRow rows[] = {
        {"Load Layer", "Open", "*.mtd", drawingType, "", "/drawings"},
        {"Save Layer", "Save", "*.mtd", drawingType, "walls.mtd", "/drawings"},
        {"Save Associate", "Save", "*.mta", associateType, "chair.mta", "/associates"},
        {"Save Hatch", "Save", "*.mth", hatchType, "brick.mth", "/hatches"},
        {"Save Multiple Lines", "Save", "*.mtm", multipleLinesType, "wall.mtm", "/lines"}};
    App app{desk.s, desk.pic1, ports, scratch};
    for (const DialogRow& row : rows) {
        desk.s.saveFollowUp = follow::clear; // left behind by an offer to save
        openNamedFlow(app, row.caption, row.name);
        expectDialog(row);
        desk.shell.closeForm("frmfile"_c);
    }
}

TEST_F(Menus, RefuseToSaveASelectionThatIsNone)
{
    desk.drawLine(100, 100, 400, 100);
    desk.drawLine(100, 200, 400, 200);
    desk.s.store.setStat(1, Stat::out);
    desk.s.store.setStat(2, Stat::off);
    for (const ControlId entry : {"fil9"_c, "dd4"_c}) {
        setText(desk.s.controls["entry"_c], "");
        desk.press(entry);
        EXPECT_EQ(desk.text("entry"_c), "Nothing Selected!") << entry.row().name;
        EXPECT_FALSE(desk.visible("frmfile"_c)) << entry.row().name;
    }
}

TEST_F(Menus, OfferToSaveWhatIsUnsavedInTheFolderOfDrawings)
{
    struct Row {
        ControlId entry;
        std::int16_t followUp;
        const char* dismiss;
    };
    const Row rows[] = {
        {"fil4"_c, 3, "Close"}, {"fil5"_c, 2, "Close"}, {"dd2"_c, 4, "Close"}, {"fil14"_c, 1, "End"}};
    desk.drawLine(100, 100, 400, 100);
    for (const Row& row : rows) {
        desk.press(row.entry);
        EXPECT_EQ(desk.caption("frmfile"_c), "Save Changes") << row.entry.row().name;
        EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Save");
        EXPECT_EQ(desk.caption("frmfile.Command2"_c), row.dismiss);
        EXPECT_EQ(desk.s.filePattern, "*.mtd");
        EXPECT_EQ(desk.text("frmfile.Text2"_c), drawingType);
        EXPECT_EQ(desk.text("frmfile.Text1"_c), "untitled.mtd");
        EXPECT_EQ(desk.text("frmfile.Dir1"_c), "/drawings");
        EXPECT_EQ(desk.s.saveFollowUp, row.followUp) << row.entry.row().name;
        desk.shell.closeForm("frmfile"_c);
        EXPECT_EQ(desk.s.saveFollowUp, 0);
        EXPECT_EQ(desk.s.store.entCount, 2);
        EXPECT_FALSE(desk.shell.ended());
    }
}

TEST_F(Menus, OfLibrariesAskNothingOfUnsavedWork)
{
    desk.drawLine(100, 100, 400, 100);
    for (const ControlId entry : {"ass10"_c, "ht8"_c, "ml6"_c, "fil7"_c}) {
        desk.press(entry);
        EXPECT_NE(desk.caption("frmfile"_c), "Save Changes") << entry.row().name;
        EXPECT_EQ(desk.s.saveFollowUp, 0);
    }
}

TEST_F(Menus, OfDxfGoOnToOpenDxfAfterTheWorkIsSavedOrGivenUp)
{
    for (const ControlId button : {"frmfile.Command1"_c, "frmfile.Command2"_c}) {
        desk.drawLine(100, 100, 400, 100);
        desk.press("dd2"_c);
        desk.press(button);
        EXPECT_EQ(desk.s.store.entCount, 1);
        expectDialog({"Open DXF", "Open", "*.dxf", dxfType, "", "/dxfs"});
        desk.press("frmfile.Command2"_c);
    }
    EXPECT_TRUE(desk.disk.files.contains("/drawings/untitled.mtd"));
}

TEST_F(Menus, NoteTheFolderOfEachPatternAtEveryConfirm)
{
    struct Row {
        ControlId entry;
        FolderPair FileState::*folders;
        const char* folder;
    };
    const Row rows[] = {{"fil4"_c, &FileState::drawings, "/drawings/old"},
                        {"dd2"_c, &FileState::dxf, "/dxfs/old"},
                        {"ass10"_c, &FileState::associates, "/associates/old"},
                        {"ht8"_c, &FileState::hatches, "/hatches/old"},
                        {"ml6"_c, &FileState::multipleLines, "/lines/old"}};
    for (const Row& row : rows) {
        desk.folders.folders.insert(row.folder);
        desk.press(row.entry);
        desk.shell.clickRow("frmfile.Dir1"_c, 1); // ".." first
        desk.name("nowhere");
        desk.press("frmfile.Command1"_c);
        EXPECT_EQ((desk.s.*row.folders).last, row.folder);
        EXPECT_EQ((desk.s.*row.folders).working, fake::home) << row.folder;
        desk.press("frmfile.Command2"_c);
    }
}

TEST_F(Menus, LeftWithoutAConfirmNoteNoFolder)
{
    desk.folders.folders.insert("/drawings/old");
    desk.press("fil4"_c);
    desk.shell.clickRow("frmfile.Dir1"_c, 1);
    ASSERT_EQ(desk.text("frmfile.Dir1"_c), "/drawings/old");
    desk.press("frmfile.Command2"_c);
    EXPECT_EQ(desk.s.drawings.last, "/drawings");
}

TEST_F(Menus, OfSelectedAndLayerLeaveTheNameAndWhatCountsAsSaved)
{
    desk.drawLine(100, 100, 400, 100);
    desk.s.store.setStat(1, Stat::sel);
    desk.press("fil9"_c);
    desk.press("frmfile.Command1"_c);
    EXPECT_TRUE(desk.disk.files.contains("/drawings/selected.mtd"));
    EXPECT_EQ(desk.s.drawingName, "untitled.mtd");
    EXPECT_EQ(desk.s.savedCount, 1);
    EXPECT_EQ(desk.stat(1), Stat::on);
    EXPECT_FALSE(desk.visible("frmfile"_c));

    desk.press("ly15"_c);
    desk.shell.clickRow("List1"_c, 1);
    EXPECT_EQ(desk.caption("frmfile"_c), "Save Layer");
    desk.name("first");
    desk.press("frmfile.Command1"_c);
    EXPECT_TRUE(desk.disk.files.contains("/drawings/first.mtd"));
    EXPECT_EQ(desk.s.drawingName, "untitled.mtd");
    EXPECT_EQ(desk.s.savedCount, 1);
}

TEST_F(Menus, OfALayerWriteWhatWasDeletedAndUndoneToo)
{
    desk.drawLine(100, 100, 400, 100);
    desk.drawLine(100, 200, 400, 200);
    desk.press("undu"_c);
    ASSERT_EQ(desk.stat(2), Stat::out);
    desk.press("ly15"_c);
    desk.shell.clickRow("List1"_c, 1);
    desk.name("first");
    desk.press("frmfile.Command1"_c);
    EXPECT_EQ(desk.stat(2), Stat::out);
    desk.s.savedCount = desk.s.store.entCount;
    desk.open("first");
    EXPECT_EQ(desk.s.store.entCount, 3);
    EXPECT_EQ(desk.stat(2), Stat::on);
}

TEST_F(Menus, OfLoadLayerMergeAndForgetAssociatesAndKeepTheName)
{
    desk.drawLine(100, 100, 400, 100);
    desk.saveAs("house");
    desk.s.store.ownerName[7] = "chair";
    desk.press("ly13"_c);
    desk.shell.clickRow("List1"_c, 5);
    EXPECT_EQ(desk.caption("frmfile"_c), "Load Layer");
    desk.name("house");
    desk.enter();
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.s.store.entCount, 4); // the header is kept as a slot
    EXPECT_EQ(desk.slot(2).kind, headerKind);
    EXPECT_EQ(desk.slot(3).layer, 5);
    EXPECT_EQ(desk.s.savedCount, 2);
    EXPECT_EQ(desk.s.drawingName, "house.mtd");
    EXPECT_EQ(desk.s.store.ownerName[7], "??????");
}

TEST_F(Menus, DeleteOfAnObjectCountsAsUnsavedWork)
{
    desk.drawLine(100, 100, 400, 100);
    desk.saveAs("house");
    desk.press("Command17"_c);
    ASSERT_EQ(desk.stat(1), Stat::sel);
    desk.down(2, 0, 0); // to the edit list
    const std::vector<std::string>& edits = desk.s.controls["List1"_c].rows;
    const auto found = std::ranges::find(edits, "Delete");
    ASSERT_NE(found, edits.end());
    desk.shell.clickRow("List1"_c, static_cast<int>(found - edits.begin())); // a short list
    ASSERT_EQ(desk.stat(1), Stat::out);
    desk.press("fil5"_c);
    EXPECT_EQ(desk.caption("frmfile"_c), "Save Changes");
    EXPECT_TRUE(desk.visible("frmfile"_c));
}

TEST_F(Menus, SaveThatFailsSaysWhichFileItWas)
{
    const std::pair<ControlId, const char*> rows[] = {
        {"fil7"_c, "Drawing not saved!"}, {"fil9"_c, "Drawing not saved!"}, {"dd4"_c, "File not saved!"}};
    desk.drawLine(100, 100, 400, 100);
    desk.s.store.setStat(1, Stat::sel);
    desk.disk.refusesWrites = true;
    for (const auto& [entry, said] : rows) {
        setText(desk.s.controls["entry"_c], "");
        desk.press(entry);
        desk.press("frmfile.Command1"_c);
        EXPECT_EQ(desk.text("entry"_c), said) << entry.row().name;
        EXPECT_TRUE(desk.visible("frmfile"_c)) << entry.row().name;
        EXPECT_EQ(desk.stat(1), Stat::sel) << entry.row().name;
        EXPECT_EQ(desk.s.savedCount, 1) << entry.row().name;
        desk.press("frmfile.Command2"_c);
    }
}

TEST_F(Menus, SaveThatFailsBeforeAnOpenKeepsTheDrawingAndWhatWasAskedFor)
{
    desk.drawLine(100, 100, 400, 100);
    desk.disk.refusesWrites = true;
    for (const auto& [entry, followUp] :
         {std::pair("fil4"_c, follow::openDrawing), std::pair("dd2"_c, follow::openDxf)}) {
        desk.press(entry);
        desk.press("frmfile.Command1"_c);
        EXPECT_EQ(desk.s.store.entCount, 2);
        EXPECT_EQ(desk.s.saveFollowUp, followUp);
        EXPECT_EQ(desk.caption("frmfile"_c), "Save Changes");
        EXPECT_EQ(desk.s.drawingName, "untitled.mtd");
        desk.shell.closeForm("frmfile"_c);
    }
}

TEST_F(Menus, SaveDxfIsLaterOfferedUnderTheDrawingsName)
{
    desk.drawLine(100, 100, 400, 100);
    desk.saveAs("house");
    desk.s.store.setStat(1, Stat::sel);
    desk.press("dd4"_c);
    EXPECT_EQ(desk.text("frmfile.Text1"_c), "house.dxf");
}

TEST_F(Menus, OpenedDxfIsSavedAsADrawingBesideIt)
{
    desk.drawLine(100, 100, 400, 100);
    desk.saveAs("house");
    desk.s.store.setStat(1, Stat::sel);
    desk.press("dd4"_c);
    desk.press("frmfile.Command1"_c);
    ASSERT_TRUE(desk.disk.files.contains("/dxfs/house.dxf"));
    desk.press("fil5"_c);
    desk.press("dd2"_c);
    desk.name("house");
    desk.enter();
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.s.dxfName, "house.dxf");
    desk.press("fil7"_c);
    expectDialog({"Save File", "Save", "*.mtd", drawingType, "house.mtd", "/dxfs"});
}

TEST_F(Menus, OverwriteWarningFollowsTheFolderShown)
{
    desk.folders.folders.insert("/drawings/old");
    desk.disk.files["/drawings/old/house.mtd"] = {};
    desk.press("fil7"_c);
    desk.name("house");
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Save");
    desk.shell.clickRow("frmfile.Dir1"_c, 1);
    ASSERT_EQ(desk.text("frmfile.Dir1"_c), "/drawings/old");
    desk.name("house");
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Overwrite?");
    desk.type("r");
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Save");
}

TEST_F(Menus, NamesOfAllSortsAreSavedAndOpenedAgain)
{
    const std::pair<std::string, std::string> rows[] = {
        {"my new house", "my new house.mtd"},
        {" leading and trailing ", " leading and trailing .mtd"},
        {"\xC3\xA9t\xC3\xA9 \xC3\x9F\xC3\xB8", "\xC3\xA9t\xC3\xA9 \xC3\x9F\xC3\xB8.mtd"},
        {"\xE5\xAE\xB6 \xF0\x9F\x8F\xA0", "\xE5\xAE\xB6 \xF0\x9F\x8F\xA0.mtd"},
        {"o'brien \"the\" `house`", "o'brien \"the\" `house`.mtd"},
        {"back\\slash", "back\\slash.mtd"},
        {"a*b?c", "a*b?c.mtd"},
        {"two.dots.mtd", "two.mtd"},
        {"house.mtd.mtd", "house.mtd"},
        {"$HOME & | ; ~", "$HOME & | ; ~.mtd"},
        {"-rf", "-rf.mtd"}};
    for (const auto& [typed, file] : rows) {
        Desk one;
        one.drawLine(100, 100, 400, 100);
        one.saveAs(typed);
        EXPECT_TRUE(one.disk.files.contains(std::string(fake::home) + "/" + file)) << typed;
        EXPECT_EQ(one.s.drawingName, file);
        EXPECT_NE(one.title().find(file), std::string::npos) << one.title();
        one.press("fil5"_c);
        one.open(typed);
        EXPECT_EQ(one.s.store.entCount, 2) << typed;
    }
}

TEST_F(Menus, PathsThatLeadToNoFileSaveNothingAndLoseNothing)
{
    for (const char* typed : {"a/b", "/etc/house", "..", "../nowhere/house", "a/", "/"}) {
        Desk one;
        one.drawLine(100, 100, 400, 100);
        one.saveAs(typed);
        EXPECT_TRUE(one.disk.files.empty()) << typed;
        EXPECT_EQ(one.s.savedCount, 1) << typed;
        EXPECT_EQ(one.s.store.entCount, 2) << typed;
        EXPECT_TRUE(one.visible("frmfile"_c)) << typed;
        EXPECT_EQ(one.s.drawingName, "untitled.mtd") << typed;
    }
}

TEST_F(Menus, NameOfThreeHundredCharactersIsTakenWhole)
{
    const std::string name(300, 'n');
    desk.press("fil7"_c);
    desk.name(name);
    EXPECT_EQ(desk.text("frmfile.Text1"_c), name);
    desk.enter();
    EXPECT_EQ(desk.text("frmfile.Text1"_c), name + ".mtd");
}

// The part of a DXF file before a dimension that can't be written is kept, and the selection with it.
TEST_F(Menus, DxfThatEndsOnTheSpotLeavesWhatItHasAndTheSelection)
{
    desk.drawLine(100, 100, 400, 100);
    EntityRecord radial = fake::record(Kind::radialDimension, {}, {200, 200});
    radial.style = 9;
    desk.add(radial, Stat::sel);
    desk.s.store.setStat(1, Stat::sel);
    desk.press("dd4"_c);
    desk.ops();
    desk.press("frmfile.Command1"_c);
    EXPECT_FALSE(desk.visible("frmfile"_c));
    ASSERT_TRUE(desk.disk.files.contains("/dxfs/untitled.dxf"));
    const Bytes& file = desk.disk.files["/dxfs/untitled.dxf"];
    const std::string text(file.begin(), file.end());
    EXPECT_NE(text.find("LINE"), std::string::npos);
    EXPECT_EQ(text.find("EOF"), std::string::npos);
    EXPECT_EQ(desk.stat(1), Stat::sel);
    EXPECT_EQ(desk.stat(2), Stat::sel);
    EXPECT_EQ(desk.text("entry"_c), "");
    EXPECT_TRUE(fake::only(desk.ops(), "clear").empty());
}

TEST_F(Menus, SavedDxfGivesTheDrawingTheFocusAndRepaintsIt)
{
    desk.drawLine(100, 100, 400, 100);
    desk.s.store.setStat(1, Stat::sel);
    desk.press("dd4"_c);
    desk.ops();
    desk.press("frmfile.Command1"_c);
    EXPECT_EQ(desk.focused(), "pic1");
    EXPECT_EQ(fake::marks(desk.ops()), fake::Ops{"line 100 100 400 100"});
}

} // namespace
} // namespace mirtane
