#include "library/hatch.h"

#include "library/boundary.h"
#include "library/hatch_fill.h"
#include "library_desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::LibraryDesk;

// "Place Hatch" with "Brick" chosen: tiles of 20 by 20, a level line through the middle of each.
struct HatchDesk : LibraryDesk {
    HatchDesk() : LibraryDesk("Place Hatch")
    {
        s.hatchName = "Brick";
        s.hatchLibrary.add(fake::hatchLine("Brick", {0, 10}, {20, 10}, 20, 20));
    }
    // How many slots a fill of the closed polygon takes, whatever the clicks do.
    std::int32_t filledBy(const std::vector<Point>& corners)
    {
        const auto legs = fake::legsThrough(corners);
        const auto pieces = fillHatch({legs, s.hatchLibrary.used(), s.hatchName, 1, 0});
        return static_cast<std::int32_t>(pieces.size()) + 1;
    }
    void corners(float left = 0)
    {
        click(left, 0);
        click(left + 40, 0);
        click(left + 40, 40);
        click(left, 40);
    }
    void square(float left = 0)
    {
        corners(left);
        click(left, 0);
    }
};

TEST(PlaceHatch, FillsTheBoundaryOnceItIsClosed)
{
    HatchDesk desk;
    desk.square();
    ASSERT_EQ(desk.s.store.entCount, 5);
    EXPECT_EQ(desk.slot(1).kind, Kind::line);
    EXPECT_EQ(desk.slot(1).p1, (Point{0, 10}));
    EXPECT_EQ(desk.slot(1).p2, (Point{20, 10}));
    EXPECT_EQ(desk.slot(4).p2, (Point{40, 30}));
    for (int i = 1; i < 5; ++i) EXPECT_EQ(desk.stat(i), Stat::on);
}

TEST(PlaceHatch, TakesTheCurrentColourAndLayerAndTheStyleOfTheRow)
{
    HatchDesk desk;
    desk.s.hatchLibrary.rows[0].hatchColor = 0x00FF00;
    desk.s.hatchLibrary.rows[0].hatchStyle = 2;
    desk.s.curColor = 0x0000FF;
    desk.s.curStyle = 4;
    desk.s.workLayer = 6;
    desk.square();
    EXPECT_EQ(desk.slot(1).color, 0x0000FF);
    EXPECT_EQ(desk.slot(1).style, 2);
    EXPECT_EQ(desk.slot(1).layer, 6);
    EXPECT_EQ(desk.used(6), "Yes:");
}

TEST(PlaceHatch, LeavesNoTextOfAnOlderObjectInASlot)
{
    HatchDesk desk;
    desk.s.store.t1[1] = "old";
    desk.s.store.t2[1] = "font";
    desk.square();
    EXPECT_EQ(desk.slot(1).t1, "");
    EXPECT_EQ(desk.slot(1).t2, "");
}

TEST(PlaceHatch, OneUndoTakesTheWholeFillBackAndNothingElse)
{
    HatchDesk desk;
    desk.s.store.entCount = 2;
    desk.s.store.setStat(1, Stat::on);
    logFlip(desk.s.log, 1, Stat::on);
    endGroup(desk.s.log);
    desk.square();
    ASSERT_EQ(desk.s.store.entCount, 6);
    undo(desk.s.store, desk.s.log);
    EXPECT_EQ(desk.stat(1), Stat::on);
    for (int i = 2; i < 6; ++i) EXPECT_EQ(desk.stat(i), Stat::out) << i;
    undo(desk.s.store, desk.s.log);
    EXPECT_EQ(desk.stat(1), Stat::out);
}

TEST(PlaceHatch, AnEmptyFillStillClosesAGroup)
{
    HatchDesk desk;
    desk.s.hatchName = "??????";
    desk.square();
    EXPECT_EQ(desk.s.store.entCount, 1);
    EXPECT_EQ(desk.s.log.undoGroupNext, 1);
    EXPECT_EQ(desk.s.log.undoGroupTop, 1);
    EXPECT_EQ(desk.s.stepNo, 0);
}

TEST(PlaceHatch, NoNameChosenDoesNotBringRemovedRowsBack)
{
    HatchDesk desk;
    desk.s.hatchLibrary.rows[0].hatchName = "??????";
    desk.s.hatchName = "??????";
    desk.square();
    EXPECT_EQ(desk.s.store.entCount, 1);
}

TEST(PlaceHatch, IsReadyForAnotherBoundaryWithTheSameHatch)
{
    HatchDesk desk;
    desk.square();
    EXPECT_EQ(desk.s.curFunc, "Place Hatch");
    EXPECT_EQ(desk.s.hatchName, "Brick");
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.boundaryCount, 0);
    EXPECT_EQ(desk.s.boundary[0].from, (Point{1000000, 1000000}));
    EXPECT_EQ(desk.s.promptText, "(Enter the first point on the boundary:)");
    desk.square(100); // a click where the last one closed would be the cancel
    EXPECT_EQ(desk.s.store.entCount, 9);
}

TEST(PlaceHatch, AsksForTheNextPointOnceBegun)
{
    HatchDesk desk;
    desk.click(0, 0);
    EXPECT_EQ(desk.s.promptText, "(Enter the next point on the boundary:)");
}

TEST(PlaceHatch, NeedsThreePointsToClose)
{
    HatchDesk desk;
    desk.click(0, 0);
    desk.click(40, 0);
    desk.click(0, 0);
    EXPECT_EQ(desk.s.boundaryCount, 1);
    EXPECT_EQ(desk.s.stepNo, 2);
    EXPECT_EQ(desk.s.pickFirst, (Point{40, 0}));
    EXPECT_EQ(desk.s.log.undoGroupNext, 0);
    desk.click(40, 40);
    desk.click(0, 40);
    desk.click(0, 0);
    EXPECT_EQ(desk.s.store.entCount, 5) << "as if the click had not been";
}

TEST(PlaceHatch, ATileWithoutSizeEndsWithNothingAdded)
{
    HatchDesk desk;
    desk.s.hatchLibrary.rows[0].hatchTileW = 0;
    desk.square();
    EXPECT_EQ(desk.s.store.entCount, 1);
    EXPECT_EQ(desk.s.stepNo, 0);
    EXPECT_EQ(desk.s.curFunc, "Place Hatch");
}

TEST(PlaceHatch, RowsPastTheTablesEndAreNotLookedAt)
{
    HatchDesk desk;
    desk.s.hatchLibrary.count = 5000;
    desk.square();
    EXPECT_EQ(desk.s.store.entCount, 5);
}

TEST(PlaceHatch, AFullTableTakesNoPieceRatherThanSome)
{
    HatchDesk desk;
    desk.s.store.entCount = EntityStore::slotCount - 1;
    desk.square();
    EXPECT_EQ(desk.s.store.entCount, EntityStore::slotCount - 1);
    EXPECT_EQ(desk.stat(EntityStore::slotCount - 1), Stat::none);
}

TEST(PlaceHatch, FillsABoundaryOfAHundredEdgesAndRefusesOneMore)
{
    for (const int extra : {0, 1, 40}) {
        HatchDesk desk;
        std::vector<Point> corners = {{0, 0}, {960, 0}, {1920, 0}}; // a comb, its teeth downward
        for (int i = 96; i >= 0; --i) {
            corners.push_back({static_cast<float>(20 * i), i % 2 == 0 ? 100.0F : 120.0F});
        }
        ASSERT_EQ(corners.size(), 100U);
        for (const Point p : corners) desk.click(p.x, p.y);
        EXPECT_EQ(desk.text("entry"_c), "");
        for (int i = 0; i < extra; ++i) desk.click(static_cast<float>(-20 - i), 100);
        EXPECT_EQ(desk.text("entry"_c), extra == 0 ? "" : "100 edges at most: close the boundary") << extra;
        EXPECT_EQ(desk.s.store.entCount, 1) << extra;
        desk.click(0, 0);
        EXPECT_EQ(desk.s.stepNo, 0) << extra;
        EXPECT_EQ(desk.s.store.entCount, HatchDesk().filledBy(corners)) << extra;
        EXPECT_GT(desk.s.store.entCount, 150) << extra;
    }
}

struct MissingRow {
    const char* what;
    std::int32_t freeSlots; // of the four pieces
    const char* said;
};

constexpr MissingRow missingRows[] = {
    {"all of them", 0, "Not done: room for 4 more objects is missing"},
    {"all but one", 1, "Not done: room for 3 more objects is missing"},
    {"one", 3, "Not done: room for 1 more object is missing"},
    {"none", 4, ""},
};

TEST(PlaceHatch, SaysHowManyPiecesTheTableHadNoRoomFor)
{
    for (const MissingRow& row : missingRows) {
        HatchDesk desk;
        desk.corners();
        desk.s.store.entCount = EntityStore::slotCount - row.freeSlots;
        desk.stepAt({0, 0});
        EXPECT_EQ(desk.text("entry"_c), row.said) << row.what;
    }
}

TEST(PlaceHatch, SaysHowManyPiecesAreBeyondAFillsOwnTable)
{
    struct Row {
        float width, height; // of the boundary; the tile is 20 by 20 with a piece in each
        const char* said;
    };
    const Row rows[] = {
        {4000, 3000, ""},                                                           // 30,000
        {4000, 3020, "The table is full: 199 pieces are missing"},                  // 30,200
        {20, 640000, "The table is full: 1,999 pieces are missing"},                // 32,000
        {5000, 4700, "The table is full: 28,749 pieces are missing"},               // 58,750
        {100000, 100000, "The table is full: more than 30,001 pieces are missing"}, // 25,000,000
    };
    for (const Row& row : rows) {
        HatchDesk desk;
        for (const Point p :
             {Point{0, 0}, {row.width, 0}, {row.width, row.height}, {0, row.height}, {0, 0}}) {
            desk.click(p.x, p.y);
        }
        EXPECT_EQ(desk.text("entry"_c), row.said) << row.width << " " << row.height;
        EXPECT_LE(desk.s.store.entCount, 30002) << row.width << " " << row.height;
    }
}

TEST(PlaceHatch, RepaintsAllAndLeavesTheRubberBandPen)
{
    HatchDesk desk;
    desk.click(0, 0);
    desk.click(40, 0);
    desk.click(40, 40);
    desk.ops();
    desk.click(0, 0);
    const fake::Ops ops = desk.ops();
    ASSERT_GE(ops.size(), 3U);
    EXPECT_EQ(ops[ops.size() - 3], "snapshot");
    EXPECT_EQ(ops[ops.size() - 2], "setColor 16777215");
    EXPECT_EQ(ops.back(), "setStyle 2");
}

} // namespace
} // namespace mirtane
