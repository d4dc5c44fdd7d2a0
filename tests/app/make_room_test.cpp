// A full table of which much is replaced objects: the strip says how to make room, and its button does it.

#include "layer_desk.h"

#include "files/drawing_file.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using namespace fake;

// Lines that are shown, and so many replaced objects that the table has room for a few more alone.
struct FullDesk : LayerDesk {
    explicit FullDesk(std::int32_t left = 3)
    {
        for (int i = 0; i < 5; ++i) drawLine(-100, 200 + static_cast<float>(i) * 17, 1300, 411); // few
        saveAs("house");
        EntityRecord r;
        r.kind = Kind::line;
        while (s.store.entCount < EntityStore::slotCount - left) DrawingDesk::add(r, Stat::out);
    }
    void moveAll()
    {
        press("Command19"_c);
        click(-1000, -1000);
        click(4000, 3000);
        cancel();
        press(ids::editMove);
        click(100, 100);
        click(177, 231);
    }
    std::vector<EntityRecord> lines() const
    {
        std::vector<EntityRecord> found;
        for (std::int32_t i = 1; i < s.store.end(); ++i) {
            if (s.store.isShown(i) && slot(i).kind == Kind::line) found.push_back(slot(i));
        }
        return found;
    }
};

TEST(FullTable, SaysHowToMakeRoom)
{
    FullDesk desk;
    desk.moveAll();
    EXPECT_EQ(desk.text("entry"_c), "Not done: room for 2 more objects is missing");
    EXPECT_EQ(desk.caption("notice"_c), "Save and open again: 59,992 replaced objects make room.");
    EXPECT_EQ(desk.caption("notice.Command1"_c), "Save and open again");
    EXPECT_EQ(desk.caption("notice.Command2"_c), "Close");
    desk.press("notice.Command2"_c);
    EXPECT_FALSE(desk.visible("notice"_c));
}

// Which are in no drawing file.
TEST(FullTable, SaysThatAssociatesHaveToBeSavedBefore)
{
    FullDesk desk(40);
    desk.s.store.setStat(1, Stat::sel);
    desk.press("ass7"_c);
    desk.type("chair");
    desk.enter();
    desk.click(1000, 1000);
    for (int i = 0; i < 9 && !desk.visible("notice"_c); ++i) desk.moveAll();
    EXPECT_TRUE(
        desk.caption("notice"_c).ends_with(" make room. Save your associates before: it forgets them."))
        << desk.caption("notice"_c);
}

TEST(FullTable, OfWhichNothingIsReplacedHasNoRoomToMake)
{
    LayerDesk desk;
    while (desk.s.store.entCount < EntityStore::slotCount - 1) {
        EntityRecord r;
        r.kind = Kind::point;
        r.p1 = {1e6F, -1e6F};
        desk.DrawingDesk::add(r, Stat::on);
    }
    desk.drawLine(3, 4, 500, 600);
    desk.press("Command17"_c);
    desk.s.store.setStat(EntityStore::slotCount - 1, Stat::sel);
    desk.cancel();
    desk.press(ids::editCopy);
    desk.click(100, 100);
    desk.click(177, 231);
    EXPECT_FALSE(desk.visible("notice"_c));
}

TEST(FullTable, IsSavedToItsOwnFileAndOpenedAgain)
{
    FullDesk desk;
    desk.moveAll();
    const std::vector<EntityRecord> before = desk.lines();
    desk.press("notice.Command1"_c);
    EXPECT_FALSE(desk.visible("frmfile"_c));
    EXPECT_FALSE(desk.visible("notice"_c));
    EXPECT_EQ(desk.s.store.entCount, 6);
    EXPECT_EQ(desk.s.drawingName, "house.mtd");
    EXPECT_EQ(desk.lines().size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i) EXPECT_EQ(desk.lines()[i].p2, before[i].p2);
    EXPECT_EQ(desk.text("entry"_c), "");
    desk.moveAll();
    EXPECT_EQ(desk.s.store.entCount, 11);
}

// A single object is drawn whatever the table holds, and lost without this word.
TEST(FullTable, SaysWhatIsDrawnInVain)
{
    FullDesk desk(1);
    desk.drawLine(3, 4, 500, 600);
    EXPECT_FALSE(desk.visible("notice"_c));
    for (int i = 0; i < 2; ++i) {
        desk.drawLine(13, 4, 500, 600);
        EXPECT_EQ(desk.caption("notice"_c),
                  "The table is full: what is drawn now is not kept. Save and open again: "
                  "59,994 replaced objects make room.");
        desk.press("notice.Command2"_c);
        EXPECT_FALSE(desk.visible("notice"_c));
    }
}

TEST(FullTable, TakesNoNameOfALayer)
{
    FullDesk desk(0);
    desk.nameLayer(1, "walls");
    EXPECT_EQ(desk.text("entry"_c), "Not done: room for 1 more object is missing");
    EXPECT_EQ(desk.s.layerTable.find(1)->layerName, "1");
    desk.addLayer("roof");
    EXPECT_EQ(desk.s.layerTable.layerCount, 16);
    EXPECT_EQ(desk.s.store.entCount, EntityStore::slotCount);
}

TEST(FullTable, WithoutAFileAsksWhereTo)
{
    FullDesk desk;
    desk.s.drawingName = "untitled.mtd";
    desk.s.drawingFile.clear();
    desk.moveAll();
    desk.press("notice.Command1"_c);
    EXPECT_EQ(desk.caption("frmfile"_c), "Save File");
    EXPECT_GT(desk.s.store.entCount, 59'000);
    desk.name("barn");
    desk.enter();
    EXPECT_EQ(desk.s.store.entCount, 6);
    EXPECT_EQ(desk.s.drawingName, "barn.mtd");
}

TEST(FullTable, ThatCannotBeSavedStaysAsItIs)
{
    FullDesk desk;
    desk.moveAll();
    const std::int32_t before = desk.s.store.entCount;
    desk.disk.refusesWrites = true;
    desk.press("notice.Command1"_c);
    EXPECT_EQ(desk.text("entry"_c), "Drawing not saved!");
    EXPECT_TRUE(desk.visible("frmfile"_c));
    EXPECT_EQ(desk.s.store.entCount, before);
    desk.shell.closeForm("frmfile"_c);
    EXPECT_EQ(desk.lines().size(), 5U);
    EXPECT_TRUE(desk.visible("notice"_c));
}

// Someone else's changes are not replaced for the sake of room.
TEST(FullTable, WhoseFileWasChangedAsksBefore)
{
    FullDesk desk;
    desk.moveAll();
    desk.disk.files[houseFile].push_back(1);
    const Bytes theirs = desk.disk.files[houseFile];
    desk.press("notice.Command1"_c);
    EXPECT_EQ(desk.caption("frmfile.Command1"_c), "Overwrite?");
    EXPECT_EQ(desk.disk.files[houseFile], theirs);
    desk.press("frmfile.Command1"_c);
    EXPECT_EQ(desk.s.store.entCount, 6);
}

} // namespace
} // namespace mirtane
