// What the user was never asked about stays for the next run, however the drawing goes.

#include "layer_desk.h"

#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace mirtane {
namespace {

using fake::Desk;
using fake::LayerDesk;

// Their ends, of which a file keeps all.
std::vector<std::pair<Point, Point>> livingLines(const Desk& desk)
{
    std::vector<std::pair<Point, Point>> lines;
    for (std::int32_t i = 1; i < desk.s.store.end(); ++i) {
        const std::size_t at = EntityStore::at(i);
        if (desk.s.store.kind[at] == Kind::line && desk.s.store.stat[at] != Stat::out)
            lines.emplace_back(desk.slot(i).p1, desk.slot(i).p2);
    }
    return lines;
}

struct WorkRow {
    const char* what;
    void (*act)(LayerDesk& desk);
};

// A drawing of slanted lines far off, one of them on a hidden layer, saved as house.mtd.
void saveHouseOf(LayerDesk& desk, int lines = 4)
{
    for (int i = 0; i < lines; ++i) {
        const auto at = static_cast<float>(i); // few
        desk.drawLine(-3e4F + 11 * at, 170 + 7 * at, 4.1e4F, -2110 - 13 * at);
    }
    desk.saveAs("house");
    ASSERT_TRUE(desk.disk.files.contains(fake::houseFile));
}

// None of these counts as unsaved, and each makes the drawing another than the file's.
const WorkRow unaskedWorks[] = {
    {"an undo of what was saved", [](LayerDesk& d) { d.press("undu"_c); }},
    {"three undos",
     [](LayerDesk& d) {
         for (int i = 0; i < 3; ++i) d.press("undu"_c);
     }},
    {"an undo that was kept already",
     [](LayerDesk& d) {
         d.press("undu"_c);
         d.shell.rest();
     }},
    {"a redo of what was saved undone",
     [](LayerDesk& d) {
         d.press("undu"_c);
         d.saveAs("house");
         d.press("redu"_c);
     }},
    {"a layer that has no name any more",
     [](LayerDesk& d) {
         d.nameLayer(3, "WALLS");
         d.saveAs("house");
         d.menuRow("ly9a"_c, 3);
     }},
};

struct EndRow {
    const char* what;
    void (*act)(LayerDesk& desk);
    bool endsProgram;
};

// All that puts another drawing, or none, in the place of this one.
const EndRow endsOfADrawing[] = {
    {"exit", [](LayerDesk& d) { d.press("fil14"_c); }, true},
    {"the frame", [](LayerDesk& d) { d.shell.closeForm("frmMain"_c); }, true},
    {"close", [](LayerDesk& d) { d.press("fil5"_c); }, false},
    {"open", [](LayerDesk& d) { d.open("barn"); }, false},
    {"open DXF",
     [](LayerDesk& d) {
         d.press("dd2"_c);
         d.name("shed");
         d.enter();
     },
     false},
    {"a dropped drawing", [](LayerDesk& d) { d.shell.dropFile("/home/user/barn.mtd", 0); }, false},
    {"a dropped DXF file", [](LayerDesk& d) { d.shell.dropFile("/home/user/shed.dxf", 0); }, false},
};

void addBarnAndShed(LayerDesk& desk)
{
    LayerDesk other;
    other.drawLine(1, 2, 3, 400);
    other.saveAs("barn");
    other.s.store.setStat(1, Stat::sel);
    other.press("dd4"_c);
    other.name("shed");
    other.enter();
    for (const char* file : {"/home/user/barn.mtd", "/home/user/shed.dxf"}) {
        ASSERT_TRUE(other.disk.files.contains(file));
        desk.disk.files[file] = other.disk.files[file];
    }
}

TEST(WorkLeftUnasked, IsOfferedByTheNextStart)
{
    for (const WorkRow& work : unaskedWorks) {
        for (const EndRow& end : endsOfADrawing) {
            const std::string where = std::string(work.what) + ", " + end.what;
            LayerDesk desk;
            addBarnAndShed(desk);
            saveHouseOf(desk);
            work.act(desk);
            const auto before = livingLines(desk);
            const std::string layer3 = desk.layer(3).layerName;
            end.act(desk);
            EXPECT_FALSE(desk.visible("frmfile"_c)) << where << ": nothing is asked";
            EXPECT_EQ(desk.s.ended, end.endsProgram) << where;
            EXPECT_FALSE(desk.work.kept) << where;
            ASSERT_EQ(desk.work.leftBehind.size(), 1U) << where;

            Desk next({}, fake::MemoryWork(desk.work.leftBehind));
            EXPECT_EQ(next.caption("notice"_c), "house.mtd, 14:32: work that was not saved is here.")
                << where;
            next.press("notice.Command1"_c);
            EXPECT_EQ(livingLines(next), before) << where;
            EXPECT_EQ(next.s.drawingName, "house.mtd") << where;
            EXPECT_EQ(next.s.drawingFile, fake::houseFile) << where;
            EXPECT_EQ(next.s.layerTable.find(3)->layerName, layer3) << where;
        }
    }
}

// What is the same as in the file needs no offer, by whatever way it came to be so; and what was asked about
// goes.
const WorkRow settledWorks[] = {
    {"nothing", [](LayerDesk&) {}},
    {"an undo and its redo",
     [](LayerDesk& d) {
         d.press("undu"_c);
         d.shell.rest();
         d.press("redu"_c);
         d.shell.rest();
     }},
    {"many undos and redos",
     [](LayerDesk& d) {
         for (int i = 0; i < 4; ++i) d.press("undu"_c);
         for (int i = 0; i < 4; ++i) d.press("redu"_c);
     }},
    {"a selection and a hidden layer",
     [](LayerDesk& d) {
         d.s.store.setStat(2, Stat::sel);
         d.menuRow("ly7"_c, 1);
     }},
    {"an undo that was saved",
     [](LayerDesk& d) {
         d.press("undu"_c);
         d.saveAs("house");
     }},
};

TEST(WorkLeftUnasked, IsNoneWhereTheDrawingIsAsItWasSaved)
{
    for (const WorkRow& work : settledWorks) {
        for (const EndRow& end : endsOfADrawing) {
            LayerDesk desk;
            addBarnAndShed(desk);
            saveHouseOf(desk);
            work.act(desk);
            end.act(desk);
            EXPECT_EQ(desk.s.ended, end.endsProgram) << work.what << ", " << end.what;
            EXPECT_TRUE(desk.work.leftBehind.empty()) << work.what << ", " << end.what;
            EXPECT_FALSE(desk.work.kept) << work.what << ", " << end.what;
        }
    }
}

TEST(WorkLeftUnasked, IsNoneOfWhatWasGivenUp)
{
    for (const EndRow& end : endsOfADrawing) {
        LayerDesk desk;
        addBarnAndShed(desk);
        saveHouseOf(desk);
        desk.press("undu"_c);
        desk.drawLine(5, 6, 711, -88);
        desk.shell.rest();
        desk.press(end.endsProgram ? "fil14"_c : "fil5"_c);
        ASSERT_TRUE(desk.visible("frmfile"_c)) << end.what;
        desk.press("frmfile.Command2"_c);
        EXPECT_TRUE(desk.work.leftBehind.empty()) << end.what;
        EXPECT_FALSE(desk.work.kept) << end.what;
    }
}

// The other work comes, and this one waits for the next start.
TEST(WorkLeftUnasked, WaitsBehindWhatIsRestoredInItsPlace)
{
    LayerDesk old;
    old.drawLine(10, 20, 333, 444);
    old.shell.rest();
    Desk desk({}, fake::MemoryWork({{"a", *old.work.kept}}));
    desk.drawLine(-9e3F, 17, 8123, 5);
    desk.saveAs("house");
    desk.press("undu"_c);
    desk.press("notice.Command1"_c);
    EXPECT_EQ(desk.s.drawingName, "untitled.mtd");
    EXPECT_EQ(livingLines(desk).size(), 1U);
    EXPECT_TRUE(desk.work.kept);
    EXPECT_EQ(desk.work.leftBehind.size(), 1U);
    EXPECT_EQ(desk.caption("notice"_c), "") << "it is not offered before the next start";
    const Desk next({}, fake::MemoryWork(desk.work.leftBehind));
    EXPECT_EQ(next.caption("notice"_c), "house.mtd, 14:32: work that was not saved is here.");
}

TEST(WorkLeftUnasked, OfTwoDrawingsIsOfferedOneAfterAnother)
{
    LayerDesk desk;
    saveHouseOf(desk);
    desk.press("undu"_c);
    desk.press("fil5"_c);
    desk.drawLine(1, 2, 400, 777);
    desk.saveAs("shed");
    desk.press("undu"_c);
    desk.press("fil14"_c);
    EXPECT_EQ(desk.work.leftBehind.size(), 2U);
}

} // namespace
} // namespace mirtane
