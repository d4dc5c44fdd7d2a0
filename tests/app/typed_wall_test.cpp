// A wall whose corners are typed: its rubber band is on the picture at once.

#include "desk.h"

#include <gtest/gtest.h>

namespace mirtane {
namespace {

using fake::Desk;

// Two lines, 40 apart, beside the reference line.
void chooseWall(Desk& desk)
{
    for (const float offset : {-20.0F, 20.0F}) {
        MultipleLine row;
        row.m1 = offset;
        row.colour = 0x00FFFF;
        row.name = "wall";
        desk.s.multipleLinesLibrary.add(row);
    }
    desk.press("Command10"_c);
    desk.shell.clickRow("List1"_c, 0);
}

fake::Ops bandIn(const fake::Ops& ops)
{
    fake::Ops band;
    for (const std::string& op : ops) {
        if (op == "restoreSnapshot") band.clear();
        if (op.starts_with("line ")) band.push_back(op);
    }
    return band;
}

std::vector<MultipleLine> rowsOf(const Desk& desk)
{
    const auto used = desk.s.multipleLinesLibrary.used();
    return {used.begin(), used.end()};
}

TEST(TypedWallCorner, ShowsTheBandThatTheNextMoveWouldShow)
{
    for (const bool ortho : {true, false}) {
        for (const Point from : {Point{1000, 2000}, Point{-70000, 30000}}) {
            Desk desk;
            desk.pic1.setScale({from.x - 1000, from.y - 2000, 4800, 3200});
            if (!ortho) desk.press("freecurs"_c);
            chooseWall(desk);
            desk.click(from.x, from.y);
            desk.move(from.x + 1100, from.y - 700);
            for (const char* length : {"6'", "4'3", "-2'6"}) {
                desk.type(length);
                desk.ops();
                desk.enter();
                const fake::Ops shown = bandIn(desk.ops());
                const Point pointer = *desk.s.pointer;
                const auto [last, sector] = std::tuple(desk.s.pickLast, desk.s.orthoSector);
                const auto rows = rowsOf(desk);
                desk.shell.mouseMove(pointer);
                EXPECT_FALSE(shown.empty()) << length;
                EXPECT_EQ(shown, bandIn(desk.ops())) << length;
                desk.s.pickLast = last; // as if it had not been moved
                desk.s.orthoSector = sector;
                std::ranges::copy(rows, desk.s.multipleLinesLibrary.rows.begin());
            }
        }
    }
}

// Where a length is typed next it goes on as if no band had been shown.
TEST(TypedWallCorner, StoresWhatItDidWithoutTheBand)
{
    Desk shown;
    Desk unseen;
    for (Desk* desk : {&shown, &unseen}) {
        desk->press("freecurs"_c);
        chooseWall(*desk);
        desk->click(1000, 2000);
        desk->move(2200, 1500);
        if (desk == &unseen) desk->s.pointer.reset();
        for (const char* length : {"6'", "4'3", "3'", "8'"}) {
            desk->type(length);
            desk->enter();
            if (desk == &unseen) desk->s.pointer.reset();
        }
    }
    ASSERT_EQ(shown.s.store.entCount, unseen.s.store.entCount);
    EXPECT_GT(shown.s.store.entCount, 1);
    for (std::int32_t slot = 1; slot < shown.s.store.entCount; ++slot)
        EXPECT_EQ(shown.slot(slot), unseen.slot(slot)) << slot;
}

TEST(TypedWallCorner, ShowsNoBandWhereThePointerHasNotBeen)
{
    Desk desk;
    chooseWall(desk);
    desk.s.pointer.reset();
    desk.s.stepNo = 1;
    desk.type("6'");
    desk.enter();
    EXPECT_EQ(desk.s.stepNo, 2);
}

} // namespace
} // namespace mirtane
