// The drawing and the file that it is in: where it is saved, and what others do to it meanwhile.

#include "layer_desk.h"

#include "files/drawing_file.h"
#include "files/entity_record_codec.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace mirtane {
namespace {

using namespace fake;

const std::string other = "/home/other";

struct HouseDesk : LayerDesk {
    HouseDesk()
    {
        folders.folders.insert(other);
        drawLine(100, 200, 300, 411);
        saveAs("house");
        drawLine(-40, 211, 977, 13);
    }

    // As another program would.
    void changeByAnother(const std::string& time = "15:07")
    {
        disk.clock = time;
        disk.files[houseFile].push_back(7);
    }
    const std::string& button() const { return caption("frmfile.Command1"_c); }
};

// -- a folder of its own --

struct WanderRow {
    const char* what;
    void (*act)(HouseDesk& d);
};

void goTo(HouseDesk& d, const std::string& folder)
{
    d.s.controls["frmfile.Drive1"_c].rows = {folder};
    d.shell.clickRow("frmfile.Drive1"_c, 0);
    d.shell.giveFocus("frmfile.Text1"_c);
}

const WanderRow wanderings[] = {
    {"a selection that was saved elsewhere",
     [](HouseDesk& d) {
         d.s.store.setStat(1, Stat::sel);
         d.press("fil9"_c);
         goTo(d, other);
         d.enter();
     }},
    {"a layer that was loaded from elsewhere",
     [](HouseDesk& d) {
         d.disk.files[other + "/1.mtd"] = d.disk.files[houseFile];
         d.menuRow("ly13"_c, 1);
         goTo(d, other);
         d.name("1");
         d.enter();
     }},
    {"a layer that was saved elsewhere",
     [](HouseDesk& d) {
         d.menuRow("ly15"_c, 1);
         goTo(d, other);
         d.enter();
     }},
    {"a drawing that could not be opened elsewhere",
     [](HouseDesk& d) {
         d.saveAs("house");
         d.press("fil4"_c);
         goTo(d, other);
         d.name("nothing");
         d.enter();
         d.shell.closeForm("frmfile"_c);
         d.drawLine(3, 4, 511, 622);
     }},
};

TEST(OwnFolder, IsWhereTheDrawingIsSavedWhateverWasDoneElsewhere)
{
    for (const WanderRow& row : wanderings) {
        for (const ControlId menu : {"fil7"_c, "fil5"_c, "fil14"_c}) {
            HouseDesk desk;
            row.act(desk);
            const Bytes foreign = {1, 2, 3};
            desk.disk.files[other + "/house.mtd"] = foreign;
            desk.press(menu);
            EXPECT_EQ(desk.text("frmfile.Dir1"_c), home) << row.what;
            EXPECT_EQ(desk.button(), "Save") << row.what;
            const Bytes before = desk.disk.files[houseFile];
            desk.enter();
            EXPECT_NE(desk.disk.files[houseFile], before) << row.what;
            EXPECT_EQ(desk.disk.files[other + "/house.mtd"], foreign) << row.what;
        }
    }
}

TEST(OwnFolder, IsWhereItWasLastSaved)
{
    HouseDesk desk;
    desk.press("fil7"_c);
    goTo(desk, other);
    desk.enter();
    ASSERT_TRUE(desk.disk.files.contains(other + "/house.mtd"));
    desk.press("fil9"_c);
    desk.shell.closeForm("frmfile"_c);
    desk.drawLine(3, 4, 511, 622);
    desk.press("fil7"_c);
    EXPECT_EQ(desk.text("frmfile.Dir1"_c), other);
}

TEST(OwnFolder, OfADrawingFromADxfFileIsThatOfTheFile)
{
    HouseDesk desk;
    desk.disk.files[other + "/plan.dxf"] = {};
    desk.saveAs("house");
    desk.press("dd2"_c);
    goTo(desk, other);
    desk.name("plan");
    desk.enter();
    wanderings[1].act(desk);
    desk.press("fil7"_c);
    EXPECT_EQ(desk.text("frmfile.Dir1"_c), other);
    EXPECT_EQ(desk.text("frmfile.Text1"_c), "plan.mtd");
}

TEST(OwnFolder, ThatIsGoneGivesWayToTheLastOne)
{
    HouseDesk desk;
    desk.press("fil7"_c);
    goTo(desk, other);
    desk.enter();
    desk.folders.folders.erase(other);
    desk.drawLine(3, 4, 511, 622);
    desk.press("fil7"_c);
    EXPECT_EQ(desk.text("frmfile.Dir1"_c), home);
}

// -- a name with points --

TEST(OwnName, WithTwoPointsIsSavedUnderItself)
{
    for (const char* name : {"plan.v2.mtd", "a.b.c.d.mtd", "north.wing.MTD"}) {
        HouseDesk desk;
        desk.disk.files[std::string("/home/user/") + name] = desk.disk.files[houseFile];
        desk.saveAs("house");
        desk.shell.openDrawing(std::string("/home/user/") + name);
        desk.disk.files.erase(std::string("/home/user/") + name); // so that no list shows it
        desk.drawLine(3, 4, 511, 622);
        desk.press("fil7"_c);
        EXPECT_EQ(desk.text("frmfile.Text1"_c), name);
        desk.enter();
        if (desk.visible("frmfile"_c)) desk.enter(); // it is said once that it was gone
        EXPECT_TRUE(desk.disk.files.contains(std::string("/home/user/") + name)) << name;
        EXPECT_FALSE(desk.disk.files.contains("/home/user/plan.mtd"));
        EXPECT_EQ(desk.s.drawingName, name);
    }
}

// -- what is on the disk --

TEST(OwnFile, ThatNobodyTouchedIsSavedWithoutAWord)
{
    HouseDesk desk;
    for (int i = 0; i < 3; ++i) {
        desk.press("fil7"_c);
        EXPECT_EQ(desk.button(), "Save");
        EXPECT_EQ(desk.caption("notice"_c), "");
        desk.enter();
        EXPECT_FALSE(desk.visible("frmfile"_c));
        desk.drawLine(3, 4, 511, 622);
    }
}

TEST(OwnFile, ThatAnotherChangedIsNotReplacedUnseen)
{
    for (const ControlId menu : {"fil7"_c, "fil5"_c, "fil14"_c}) {
        HouseDesk desk;
        desk.changeByAnother();
        const Bytes theirs = desk.disk.files[houseFile];
        desk.press(menu);
        EXPECT_EQ(desk.button(), "Overwrite?");
        EXPECT_EQ(desk.caption("notice"_c),
                  "house.mtd was changed on the disk at 15:07: saving replaces what is there.");
        EXPECT_EQ(desk.disk.files[houseFile], theirs);
        desk.enter(); // it was said
        EXPECT_NE(desk.disk.files[houseFile], theirs);
        EXPECT_FALSE(desk.visible("frmfile"_c));
    }
}

TEST(OwnFile, ThatIsChangedWhileTheDialogStandsIsNotReplacedUnseen)
{
    HouseDesk desk;
    desk.press("fil7"_c);
    EXPECT_EQ(desk.button(), "Save");
    for (const char* time : {"15:07", "15:09"}) {
        desk.changeByAnother(time);
        const Bytes theirs = desk.disk.files[houseFile];
        desk.enter();
        EXPECT_TRUE(desk.visible("frmfile"_c)) << time;
        EXPECT_EQ(desk.disk.files[houseFile], theirs) << time;
        EXPECT_EQ(desk.button(), "Overwrite?") << time;
        EXPECT_NE(desk.caption("notice"_c).find(time), std::string::npos);
    }
    desk.enter();
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.caption("notice"_c), "");
}

TEST(OwnFile, ThatVanishedIsTold)
{
    HouseDesk desk;
    desk.disk.files.erase(houseFile);
    desk.press("fil7"_c);
    EXPECT_EQ(desk.button(), "Overwrite?");
    EXPECT_EQ(desk.caption("notice"_c), "house.mtd is no longer on the disk: saving puts it back.");
    desk.enter();
    EXPECT_TRUE(desk.disk.files.contains(houseFile));
}

TEST(OwnFile, OpenInAnotherProgramIsToldAtOnceAndBeforeASave)
{
    HouseDesk desk;
    desk.saveAs("house");
    desk.press("fil5"_c);
    desk.marks.ofOthers[houseFile] = {4711, "09:12"};
    desk.open("house");
    const char* const said = "house.mtd stands open in another Mirtane since 09:12.";
    EXPECT_EQ(desk.caption("notice"_c), said);
    desk.press("notice.Command1"_c);
    EXPECT_EQ(desk.caption("notice"_c), "");
    desk.drawLine(3, 4, 511, 622);
    desk.press("fil7"_c);
    EXPECT_EQ(desk.button(), "Overwrite?");
    EXPECT_EQ(desk.caption("notice"_c), said);
    desk.shell.closeForm("frmfile"_c);
    desk.marks.ofOthers.clear();
    desk.press("fil7"_c);
    EXPECT_EQ(desk.button(), "Save");
    EXPECT_EQ(desk.caption("notice"_c), "");
}

// What would be replaced comes in front of who else is there.
TEST(OwnFile, ChangedByAProgramThatHasItOpenIsToldAsChanged)
{
    for (const bool before : {true, false}) {
        HouseDesk desk;
        desk.marks.ofOthers[houseFile] = {4711, "09:12"};
        if (before) desk.changeByAnother();
        desk.press("fil7"_c);
        if (!before) {
            desk.changeByAnother();
            desk.enter();
        }
        EXPECT_TRUE(desk.visible("frmfile"_c));
        EXPECT_EQ(desk.caption("notice"_c),
                  "house.mtd was changed on the disk at 15:07: saving replaces what is there.");
    }
}

TEST(OwnFile, IsNoLongerToldToBeOpenElsewhereOnceItIsNot)
{
    HouseDesk desk;
    desk.marks.ofOthers[houseFile] = {4711, "09:12"};
    desk.saveAs("house");
    EXPECT_TRUE(desk.visible("notice"_c));
    desk.shell.rest();
    EXPECT_TRUE(desk.visible("notice"_c));
    desk.marks.ofOthers.clear();
    desk.shell.rest();
    EXPECT_FALSE(desk.visible("notice"_c));
}

// A stick that was pulled out, a share that went away.
TEST(OwnFile, ThatVanishedWithItsFolderIsToldInTheFolderThatIsShownInstead)
{
    HouseDesk desk;
    desk.press("fil7"_c);
    goTo(desk, other);
    desk.enter();
    desk.drawLine(3, 4, 511, 622);
    desk.disk.files.erase(other + "/house.mtd");
    desk.disk.files.erase(houseFile);
    desk.folders.folders.erase(other);
    desk.press("fil7"_c);
    EXPECT_EQ(desk.button(), "Overwrite?");
    EXPECT_EQ(desk.caption("notice"_c), "house.mtd is no longer on the disk: saving puts it back.");
}

// -- files of others --

TEST(FileOfOthers, ThatAppearsWhileTheDialogStandsIsNotReplacedUnseen)
{
    for (const ControlId menu : {"fil7"_c, "fil9"_c, "dd4"_c}) {
        HouseDesk desk;
        desk.s.store.setStat(1, Stat::sel);
        desk.press(menu);
        desk.name("barn");
        const std::string path = menu == "dd4"_c ? "/home/user/barn.dxf" : "/home/user/barn.mtd";
        const Bytes theirs = {1, 2, 3};
        desk.disk.files[path] = theirs;
        desk.enter();
        EXPECT_TRUE(desk.visible("frmfile"_c));
        EXPECT_EQ(desk.button(), "Overwrite?");
        EXPECT_EQ(desk.disk.files[path], theirs);
        EXPECT_NE(desk.caption("notice"_c).find(" is there already: saving replaces it."), std::string::npos);
        desk.enter();
        EXPECT_NE(desk.disk.files[path], theirs);
        EXPECT_EQ(desk.caption("notice"_c), "");
    }
}

TEST(FileOfOthers, ThatStandsOpenElsewhereIsToldBeforeItIsReplaced)
{
    HouseDesk desk;
    desk.disk.files["/home/user/barn.mtd"] = {1, 2, 3};
    desk.marks.ofOthers["/home/user/barn.mtd"] = {4711, "09:12"};
    desk.press("fil7"_c);
    desk.name("barn");
    EXPECT_EQ(desk.button(), "Overwrite?");
    desk.enter();
    EXPECT_EQ(desk.disk.files["/home/user/barn.mtd"], (Bytes{1, 2, 3}));
    EXPECT_EQ(desk.caption("notice"_c),
              "barn.mtd stands open in another Mirtane since 09:12: saving replaces it.");
    desk.name("shed");
    EXPECT_EQ(desk.caption("notice"_c), "");
    desk.name("barn");
    desk.enter();
    desk.enter();
    EXPECT_NE(desk.disk.files["/home/user/barn.mtd"], (Bytes{1, 2, 3}));
}

// What was said of one file is not said of the next.
TEST(FileOfOthers, IsToldOfEachBeforeItIsReplaced)
{
    HouseDesk desk;
    const Bytes theirs = {1, 2, 3};
    for (const char* file : {"/home/user/barn.mtd", "/home/user/mill.mtd"}) {
        desk.disk.files[file] = theirs;
        desk.marks.ofOthers[file] = {4711, "09:12"};
    }
    desk.press("fil7"_c);
    desk.name("barn");
    desk.enter();
    const auto& rows = desk.s.controls["frmfile.File1"_c].rows;
    const auto mill = std::ranges::find(rows, "mill.mtd") - rows.begin();
    desk.shell.clickRow("frmfile.File1"_c, static_cast<int>(mill));
    EXPECT_EQ(desk.caption("notice"_c), "");
    desk.shell.giveFocus("frmfile.Text1"_c);
    desk.enter();
    EXPECT_EQ(desk.disk.files["/home/user/mill.mtd"], theirs);
    EXPECT_EQ(desk.caption("notice"_c),
              "mill.mtd stands open in another Mirtane since 09:12: saving replaces it.");
    desk.enter();
    EXPECT_NE(desk.disk.files["/home/user/mill.mtd"], theirs);
    EXPECT_EQ(desk.disk.files["/home/user/barn.mtd"], theirs);
}

TEST(FileOfOthers, ThatStandsOpenElsewhereIsToldBeforeAPartIsWrittenOverIt)
{
    for (const ControlId menu : {"fil9"_c, "ly15"_c}) {
        HouseDesk desk;
        const Bytes theirs = {1, 2, 3};
        desk.disk.files["/home/user/barn.mtd"] = theirs;
        desk.marks.ofOthers["/home/user/barn.mtd"] = {4711, "09:12"};
        desk.s.store.setStat(1, Stat::sel);
        if (menu == "ly15"_c)
            desk.menuRow(menu, 1);
        else
            desk.press(menu);
        desk.name("barn");
        EXPECT_EQ(desk.button(), "Overwrite?");
        desk.enter();
        EXPECT_EQ(desk.disk.files["/home/user/barn.mtd"], theirs);
        EXPECT_EQ(desk.caption("notice"_c),
                  "barn.mtd stands open in another Mirtane since 09:12: saving replaces it.");
        desk.enter();
        EXPECT_NE(desk.disk.files["/home/user/barn.mtd"], theirs);
    }
}

// A name with points that the dialog itself proposes is not another one when it is confirmed.
TEST(OwnName, OfALayerOrAnExportIsTheOneThatIsShown)
{
    HouseDesk desk;
    desk.nameLayer(1, "level 1.5");
    desk.disk.files["/home/user/level 1.mtd"] = {7};
    desk.menuRow("ly15"_c, 1);
    EXPECT_EQ(desk.text("frmfile.Text1"_c), "level 1.5.mtd");
    EXPECT_EQ(desk.button(), "Save");
    desk.enter();
    EXPECT_EQ(desk.disk.files["/home/user/level 1.mtd"], Bytes{7});
    EXPECT_TRUE(desk.disk.files.contains("/home/user/level 1.5.mtd"));
}

TEST(NotSaved, IsSaidNoLongerOnceItIsSaved)
{
    HouseDesk desk;
    desk.press("fil7"_c);
    desk.name("a/b");
    desk.enter();
    EXPECT_EQ(desk.text("entry"_c), "Drawing not saved!");
    desk.name("barn");
    desk.enter();
    EXPECT_EQ(desk.text("entry"_c), "");
}

TEST(OwnFile, IsMarkedWhileItIsOpen)
{
    HouseDesk desk;
    EXPECT_EQ(desk.marks.marks, std::set<std::string>{houseFile});
    desk.saveAs("barn");
    EXPECT_EQ(desk.marks.marks, std::set<std::string>{"/home/user/barn.mtd"});
    desk.press("fil5"_c);
    EXPECT_TRUE(desk.marks.marks.empty());
}

// Two who save one drawing in turn: each sees what the other did.
TEST(OwnFile, OfTwoWhoSaveInTurnNoneLosesAChangeUnseen)
{
    HouseDesk one, two;
    for (int turn = 0; turn < 6; ++turn) {
        HouseDesk& saver = turn % 2 == 0 ? one : two;
        HouseDesk& waiting = turn % 2 == 0 ? two : one;
        const auto at = static_cast<float>(turn); // few
        saver.drawLine(1, 2, 300 + at, 400);
        saver.press("fil7"_c);
        EXPECT_EQ(saver.button(), turn == 0 ? "Save" : "Overwrite?") << turn;
        saver.enter();
        ASSERT_FALSE(saver.visible("frmfile"_c));
        waiting.disk.files[houseFile] = saver.disk.files[houseFile];
    }
}

// Work that was left knows the file as its own run knew it.
TEST(OwnFile, ChangedBetweenTheLossAndTheRestoreIsTold)
{
    HouseDesk lost;
    lost.shell.rest();
    HouseDesk desk;
    desk.saveAs("house");
    MemoryWork left({{"a", *lost.work.kept}});
    Desk next({}, left);
    next.disk.files[houseFile] = {9, 9, 9};
    next.disk.clock = "16:00";
    next.press("notice.Command1"_c);
    next.press("fil7"_c);
    EXPECT_EQ(next.caption("frmfile.Command1"_c), "Overwrite?");
    EXPECT_NE(next.caption("notice"_c).find("was changed on the disk at 16:00"), std::string::npos);
}

// -- more than there is room for --

Bytes drawingOf(std::int32_t objects)
{
    Desk desk;
    desk.drawLine(-17, 23, 1911, 777);
    Bytes one = drawingBytes(desk.s, SaveWhat::drawing);
    const std::size_t header = one.size() - recordBytesWithoutTexts;
    Bytes all(one.begin(), one.begin() + static_cast<std::ptrdiff_t>(header));
    const Bytes record(one.begin() + static_cast<std::ptrdiff_t>(header), one.end());
    for (std::int32_t i = 0; i < objects; ++i) all.insert(all.end(), record.begin(), record.end());
    return all;
}

TEST(TooLargeADrawing, OpensAsFarAsItGoesAndIsNotReplacedByThePart)
{
    struct Row {
        std::int32_t objects;
        const char* said; // empty where all found a place
    };
    const Row rows[] = {
        {59'999, ""},
        {60'000, ""},
        {60'001,
         "big.mtd: there was no room for 1 object. The drawing is named untitled.mtd, so that the file "
         "stays whole."},
        {61'234,
         "big.mtd: there was no room for 1,234 objects. The drawing is named untitled.mtd, so that the "
         "file stays whole."},
    };
    for (const Row& row : rows) {
        Desk desk;
        const bool whole = *row.said == '\0';
        desk.disk.files["/home/user/big.mtd"] = drawingOf(row.objects);
        desk.open("big");
        EXPECT_EQ(desk.s.store.entCount, std::min(row.objects + 1, EntityStore::slotCount));
        EXPECT_EQ(desk.caption("notice"_c), row.said);
        EXPECT_EQ(desk.s.drawingName, whole ? "big.mtd" : "untitled.mtd");
        desk.press("fil7"_c);
        desk.enter();
        EXPECT_EQ(desk.disk.files.contains("/home/user/untitled.mtd"), !whole);
        EXPECT_EQ(desk.disk.files["/home/user/big.mtd"].size(), drawingOf(row.objects).size());
    }
}

TEST(TooLargeADrawing, ThatIsMergedSaysWhatWasLeftOut)
{
    Desk desk;
    desk.disk.files["/home/user/some.mtd"] = drawingOf(100);
    desk.disk.files["/home/user/big.mtd"] = drawingOf(59'950);
    desk.open("big");
    desk.press("ly13"_c);
    desk.shell.clickRow("List1"_c, 1);
    desk.name("some");
    desk.enter();
    EXPECT_EQ(desk.s.drawingName, "big.mtd");
    EXPECT_EQ(desk.caption("notice"_c), "some.mtd: there was no room for 51 objects.");
}

TEST(TooLargeADxfFile, OpensAsFarAsItGoesAndIsNamedAnew)
{
    std::string text = "  0\nSECTION\n  2\nENTITIES\n  0\n";
    for (int i = 0; i < 60'011; ++i) {
        text += "LINE\n  8\n1\n  6\nCONTINUOUS\n 62\n     8\n 10\n0.0\n 20\n1.0\n 11\n50.0\n 21\n77.0\n  0\n";
    }
    text += "ENDSEC\n  0\nEOF\n";
    Desk desk;
    desk.disk.files["/home/user/big.dxf"] = Bytes(text.begin(), text.end());
    desk.press("dd2"_c);
    desk.name("big");
    desk.enter();
    EXPECT_EQ(desk.s.drawingName, "untitled.mtd");
    EXPECT_EQ(desk.caption("notice"_c).substr(0, 42), "big.dxf: there was no room for 11 objects.");
}

} // namespace
} // namespace mirtane
