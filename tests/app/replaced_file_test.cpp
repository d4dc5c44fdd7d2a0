// The drawing's own file holds something else by now: the drawing is in no file, though nothing was done to
// it since it was saved.

#include "layer_desk.h"

#include "files/drawing_file.h"
#include "files/kept_work.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using namespace fake;

struct SavedDesk : LayerDesk {
    SavedDesk()
    {
        s.workLayer = 6;
        drawLine(-1320, 77, 4015, -260);
        s.workLayer = 2;
        drawLine(12, 1904, 733, -5);
        drawLine(-60, 811, 2207, 346);
        saveAs("mill");
        LayerDesk other;
        other.drawLine(5, 6, 71, -808);
        other.saveAs("barn");
        disk.files["/home/user/barn.mtd"] = other.disk.files["/home/user/barn.mtd"];
    }
};

std::int32_t livingObjects(const EntityStore& store)
{
    std::int32_t living = 0;
    for (std::int32_t i = 1; i < store.end(); ++i) living += store.isShown(i) ? 1 : 0;
    return living;
}

const std::string mill = "/home/user/mill.mtd";

struct ReplaceRow {
    const char* what;
    void (*act)(SavedDesk& desk);
    const char* told;
};

const char* const partTold =
    "mill.mtd holds only what you just saved: save the drawing to have all of it there again.";

const ReplaceRow replacements[] = {
    {"a selection",
     [](SavedDesk& d) {
         d.s.store.setStat(2, Stat::sel);
         d.press("fil9"_c);
         d.name("mill");
         d.enter();
     },
     partTold},
    {"a layer",
     [](SavedDesk& d) {
         d.menuRow("ly15"_c, 6);
         d.name("mill");
         d.enter();
     },
     partTold},
    {"a layer called like the drawing",
     [](SavedDesk& d) {
         d.nameLayer(2, "mill");
         d.saveAs("mill");
         d.menuRow("ly15"_c, 2);
         d.enter();
     },
     partTold},
    {"the save of another program",
     [](SavedDesk& d) { d.disk.files[mill] = d.disk.files["/home/user/barn.mtd"]; }, ""},
    {"a file cut short", [](SavedDesk& d) { d.disk.files[mill].resize(91); }, ""},
};

// Nothing was done to the drawing, and nothing is asked.
struct EndRow {
    const char* what;
    void (*act)(SavedDesk& desk);
    bool endsProgram;
};

const EndRow ends[] = {
    {"exit", [](SavedDesk& d) { d.press("fil14"_c); }, true},
    {"the frame", [](SavedDesk& d) { d.shell.closeForm("frmMain"_c); }, true},
    {"close", [](SavedDesk& d) { d.press("fil5"_c); }, false},
    {"open", [](SavedDesk& d) { d.open("barn"); }, false},
    {"a dropped drawing", [](SavedDesk& d) { d.shell.dropFile("/home/user/barn.mtd", 0); }, false},
};

TEST(ReplacedFile, OfAPartThatIsSavedOverTheDrawingIsTold)
{
    for (const ReplaceRow& row : replacements) {
        SavedDesk desk;
        row.act(desk);
        EXPECT_FALSE(desk.visible("frmfile"_c)) << row.what;
        EXPECT_EQ(desk.caption("notice"_c), row.told) << row.what;
        desk.saveAs("mill");
        if (desk.visible("frmfile"_c)) desk.enter(); // it was told that the file is another
        EXPECT_EQ(desk.caption("notice"_c), "") << row.what;
    }
}

TEST(ReplacedFile, OfAPartThatIsSavedElsewhereIsNotTold)
{
    for (const char* name : {"barn", "mill2", "selected"}) {
        SavedDesk desk;
        desk.s.store.setStat(1, Stat::sel);
        desk.press("fil9"_c);
        desk.name(name);
        desk.enter();
        EXPECT_EQ(desk.caption("notice"_c), "") << name;
    }
}

// The program may be killed after a part took the place of the whole.
TEST(ReplacedFile, OfAPartLeavesTheWholeKept)
{
    for (const ReplaceRow& row : replacements) {
        if (*row.told == '\0') continue; // nobody looks at the file when the user rests
        SavedDesk desk;
        row.act(desk);
        ASSERT_TRUE(desk.work.kept) << row.what;
        EXPECT_EQ(readKeptWork(*desk.work.kept)->drawing, drawingBytes(desk.s, SaveWhat::drawing));
        desk.shell.rest();
        desk.press("undu"_c);
        desk.shell.rest();
        desk.press("redu"_c);
        desk.shell.rest();
        EXPECT_TRUE(desk.work.kept) << row.what;
        desk.saveAs("mill");
        if (desk.visible("frmfile"_c)) desk.enter();
        EXPECT_FALSE(desk.work.kept) << row.what;
    }
}

void expectLeft(const SavedDesk& desk, std::int32_t objects, const std::string& where)
{
    ASSERT_EQ(desk.work.leftBehind.size(), 1U) << where;
    Desk next({}, MemoryWork(desk.work.leftBehind));
    EXPECT_EQ(next.caption("notice"_c), "mill.mtd, 14:32: work that was not saved is here.") << where;
    next.press("notice.Command1"_c);
    EXPECT_EQ(livingObjects(next.s.store), objects) << where;
    EXPECT_EQ(next.s.drawingFile, mill) << where;
}

TEST(ReplacedFile, LeavesTheDrawingToTheNextStart)
{
    for (const ReplaceRow& row : replacements) {
        for (const EndRow& end : ends) {
            const std::string where = std::string(row.what) + ", " + end.what;
            SavedDesk desk;
            row.act(desk);
            const std::int32_t objects = livingObjects(desk.s.store);
            const Bytes replaced = desk.disk.files[mill];
            end.act(desk);
            EXPECT_FALSE(desk.visible("frmfile"_c)) << where;
            EXPECT_EQ(desk.s.ended, end.endsProgram) << where;
            EXPECT_EQ(desk.disk.files[mill], replaced) << where;
            expectLeft(desk, objects, where);
        }
    }
}

TEST(VanishedFile, LeavesTheDrawingToTheNextStart)
{
    for (const EndRow& end : ends) {
        SavedDesk desk;
        const std::int32_t objects = livingObjects(desk.s.store);
        desk.disk.files.erase(mill);
        end.act(desk);
        EXPECT_FALSE(desk.visible("frmfile"_c)) << end.what;
        EXPECT_EQ(desk.s.ended, end.endsProgram) << end.what;
        expectLeft(desk, objects, end.what);
    }
}

// It is changed while a drawing to open is being chosen.
TEST(ReplacedFile, BehindAnOpenDialogLeavesTheDrawingToTheNextStart)
{
    for (const char* chosen : {"barn", "mill"}) {
        SavedDesk desk;
        desk.press("fil4"_c);
        replacements[3].act(desk);
        desk.name(chosen);
        desk.enter();
        EXPECT_EQ(desk.work.leftBehind.size(), 1U) << chosen;
    }
}

TEST(ReplacedFile, IsLookedAtOnlyWhereTheDrawingIsToGo)
{
    SavedDesk desk;
    replacements[3].act(desk);
    desk.shell.rest();
    EXPECT_FALSE(desk.work.kept);
    EXPECT_EQ(desk.caption("notice"_c), "");
    desk.press("fil9"_c);
    desk.press("undu"_c);
    desk.press("redu"_c);
    EXPECT_EQ(desk.caption("notice"_c), "");
}

} // namespace
} // namespace mirtane
